#pragma once

#include "common/SysLogger.h"

#include <deque>
#include <functional>
#include <string>

class QWidget;

namespace TAMFx::Common::Xml {
class Node;
}

namespace PANFx::Components {
class ZELComponent;
}

namespace PANFx::Windows {

// What pages and dialogs do alike when they build themselves from a layout file.

/** Black, with the corners at 0, 0 and 799, 479. */
void setUpScreenWidget(QWidget& widget);

/** The instrument's path of a layout file in the current language; there is no fall-back. */
std::string layoutPath(const std::string& strResourceID);

/**
 * Puts a box with the picture of that name below all components to come.
 * Nothing happens without a picture; an error line names one that is given and not found.
 */
void createBackground(const std::string& strImage, QWidget& parent,
                      std::deque<Components::ZELComponent*>& components, Common::SysLogger& logger);

/**
 * Builds the components of a "Components" section; null writes an error line.
 * @param strID the window's own id, which the line names
 * @param onFailure is called with keyword and id for each component that can't be made
 */
void createPageComponents(
    TAMFx::Common::Xml::Node* pComponents, QWidget& parent, const std::string& strID,
    std::deque<Components::ZELComponent*>& components, Common::SysLogger& logger,
    const std::function<void(const char* keyword, const char* id)>& onFailure);

/** Calls showWindow() on each component, in the order of creation. */
void showComponents(const std::deque<Components::ZELComponent*>& components, const QWidget& page);

/** The first component with that id; null when there is none. */
Components::ZELComponent* findComponent(const std::deque<Components::ZELComponent*>& components,
                                        const QWidget& page, const std::string& strID);

} // namespace PANFx::Windows

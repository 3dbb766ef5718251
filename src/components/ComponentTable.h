#pragma once

#include "common/Export.h"

#include <string>
#include <vector>

class QWidget;

namespace TAMFx::Common::Xml {
class Node;
}

namespace PANFx::Components {

class ZELComponent;

/** One keyword of a layout file and the component that it makes. */
struct ComponentEntry
{
    const char* keyword; ///< name of the group of elements, compared exactly
    const char* type;    ///< the component's type string

    /** Makes the component as a child of the widget. */
    ZELComponent* (*create)(QWidget* pParent, std::string strID, std::string strType,
                            TAMFx::Common::Xml::Node* pLayout);
};

/** Keywords that hold neither "button" nor "list", in lookup order. */
QTPANFX_EXPORT const std::vector<ComponentEntry>& componentTable();

/** Keywords that hold "button", in lookup order. */
QTPANFX_EXPORT const std::vector<ComponentEntry>& buttonTable();

/** Keywords that hold "list", in lookup order. */
QTPANFX_EXPORT const std::vector<ComponentEntry>& listTable();

} // namespace PANFx::Components

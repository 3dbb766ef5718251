#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"

#include <string>

class QWidget;

namespace TAMFx::Common::Xml {
class Node;
}

namespace PANFx::Components {

class ZELComponent;

/**
 * Turns a type keyword of a layout file into a live component. Keywords are case-sensitive.
 *
 * A keyword that holds "button" is looked up among the button keywords only, one that holds
 * "list" (and not "button") among the list keywords only.
 */
class QTPANFX_EXPORT ComponentFactory
{
public:
    /** The one instance, made on first use. */
    static ComponentFactory* getInstance();

    /** Deletes the instance, if there is one; the next getInstance makes a new one. */
    static void destroyInstance();

    virtual ~ComponentFactory();

    /**
     * Makes a component as a child widget of @p pParent, complete but not shown.
     * @param strType the keyword, not the type string of the component
     * @param pLayout the component's element; the component reads it and does not keep it
     * @return null for an unknown keyword; nothing is logged. What a constructor throws passes.
     */
    ZELComponent* createComponent(QWidget* pParent, std::string strType, std::string strID,
                                  TAMFx::Common::Xml::Node* pLayout);

    /** The same for button keywords only. */
    ZELComponent* createComponent_button(QWidget* pParent, std::string strType, std::string strID,
                                         TAMFx::Common::Xml::Node* pLayout);

    /** The same for list keywords only. */
    ZELComponent* createComponent_list(QWidget* pParent, std::string strType, std::string strID,
                                       TAMFx::Common::Xml::Node* pLayout);

protected:
    /** For getInstance() only. */
    ComponentFactory();

    Common::SysLogger m_logger{"QTPANFx", "ComponentFactory"};

    static ComponentFactory* m_pInstance; ///< owned; null until first used
};

} // namespace PANFx::Components

#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"
#include "common/ZELWindow.h"
#include "components/ComponentDeque.h"

#include <cstddef>
#include <deque>
#include <string>

class QObject;
class QWidget;

/** What stands on a page: the components, the factory that makes them, and what they share. */
namespace PANFx::Components {

/**
 * Base of every component. It is no widget itself: a component derives from ZELComponent first
 * and from a Qt widget second, and joins the two through getQWidget.
 *
 * A component is complete when its constructor returns; its parent makes it visible. It is
 * destroyed with its parent widget, and so are its sub-components with it.
 */
class QTPANFX_EXPORT ZELComponent : public Windows::ZELWindow
{
public:
    /**
     * @param strID the element's name in the layout file; every event of the component carries it
     * @param strType the class-name string that the factory gives
     */
    ZELComponent(std::string strID, std::string strType);
    ~ZELComponent() override;

    /** Builds sub-components from an element; a failed one is logged and left out. */
    void createSubComponent(TAMFx::Common::Xml::Node* pLayout) override;

    /** Calls showWindow() on each sub-component that is still there, in the order of creation. */
    void showSubComponent() override;

    /** Makes the component visible; on the screen it is once all its parents are. */
    virtual void showWindow() = 0;

    /** Hides the component and all within it. */
    virtual void hideWindow() = 0;

    /** Reads the attributes of the component's element; does nothing here. */
    virtual void setLayout(TAMFx::Common::Xml::Node* pLayout);

    /** The component's widget. */
    virtual QWidget* getQWidget() = 0;

    /** Calls hideWindow() on each sub-component that is still there, in the order of creation. */
    void hideSubComponent();

    /** @throw std::out_of_range when there is no sub-component at @p nIndex */
    ZELComponent* getSubComponent(int nIndex);

    /** The first sub-component with that id; null, with no log line, when there is none. */
    ZELComponent* getSubComponent(std::string strID);

    /** Number of sub-components, those included that an application has deleted. */
    int getComponentCount();

    /**
     * The sub-component, at any depth, whose widget is @p pWidget; null when there is none. The
     * pointer is only compared, so it may be that of an object that is gone.
     */
    ZELComponent* findByWidget(const QObject* pWidget);

    /**
     * Takes the entry at the front out of the sequence when any entry has the id; nothing is
     * deleted, the widget lives on as a child. Emptying from the front is what callers build on.
     */
    void deleteSubComponent(std::string strID);

    /** Whether there still is a component at that address, which is only compared. */
    static bool isAlive(const ZELComponent* pComponent);

    /**
     * The same, and whether it is a part of @p pWidget: another one may have come to lie where a
     * component was that an application has deleted. A part is what lies inside the widget, at any
     * depth, and what did so when it was made or first asked for, wherever it was moved since.
     */
    static bool isPartOf(const QWidget* pWidget, ZELComponent* pComponent);

    /** Makes parts of @p pWidget of the components from the place @p nFirst on; they lie inside. */
    static void adoptParts(const QWidget* pWidget, const std::deque<ZELComponent*>& components,
                           std::size_t nFirst);

    /** Whether it is alive and lies inside @p pWidget now, at any depth. */
    static bool liesIn(const QWidget* pWidget, ZELComponent* pComponent);

    std::string m_strType; ///< kind of the component

    /** In order of creation, not owned; one that an application deletes leaves its entry behind. */
    ComponentDeque m_dqSubComponents;

protected:
    Common::SysLogger m_logger{"QTPANFx", "ZELWindow"}; ///< not the class's name, and stays so
};

} // namespace PANFx::Components

#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"
#include "common/ZELWindow.h"
#include "resource/ZELLayout.h"

#include <QWidget>

#include <deque>
#include <string>

namespace PANFx::Components {
class ZELComponent;
}

namespace PANFx::Windows {

/**
 * A full-screen page (800 by 480), built from its layout file. An application derives a class
 * for each page, and overrides event(QEvent*) to get what the components report.
 *
 * A page is born hidden and complete; the frame shows it. A page that is left stays alive, hidden
 * and disabled, with its state. A page with a fault in its file shows less and doesn't stop.
 */
class QTPANFX_EXPORT ZELChildWindow : public ZELWindow, public QWidget
{
public:
    /**
     * Builds the page from "<resource directory><locale>/layout/<resource>.resource".
     *
     * The frame's navigation lock is held: the constructor of a derived class must not navigate.
     * Overrides of createSubComponent and showSubComponent are not reached from here; a derived
     * class adds what it needs in its own constructor.
     * @param pParent the frame, which deletes the page with itself
     * @param strResourceID name of the layout file; "" takes @p strID. Two pages can share one.
     * @throw what the constructor of a component throws
     */
    ZELChildWindow(std::string strID, QWidget* pParent, std::string strResourceID);
    ~ZELChildWindow() override;

    /** Builds components from the "Components" section. */
    void createSubComponent(TAMFx::Common::Xml::Node* pComponents) override;

    /** Calls showWindow() on each component, in the order of creation. */
    void showSubComponent() override;

    /** The page is about to be shown. The navigation lock is held: don't navigate here. */
    virtual void activating();

    /** The page is up. The lock is released: this is where a page may navigate onward. */
    virtual void activated();

    /// @{
    /**
     * For the application, which overrides and calls it; does nothing here, and the library never
     * calls it.
     */
    virtual void powerOffKeyReleased();
    virtual void CoverClose();
    virtual void CoverOpen();
    virtual void setSampleData();
    /// @}

    /** Makes the background box, with the id "background". */
    void createBackgroundSubComponent(std::string strImage);

    /**
     * The first top-level component with that id; null, with an error line, when there is none.
     * A button inside a tab is reached through the tab's own lookup.
     */
    Components::ZELComponent* getSubComponent(std::string strID);

    /**
     * Saves a picture of the whole screen as "/tmp/screen_<resource>yyMMdd_hhmmss.jpg", with the
     * local time and no separator before it. Failures are not reported.
     */
    void CaptureView();

    std::string m_strResourceID; ///< name of the layout file without path or extension
    std::deque<Components::ZELComponent*> m_dqSubComponents; ///< in order of creation, not owned

protected:
    Common::SysLogger m_logger{"QTPANFx", "ZELChildWindow"};
    Resource::ZELLayout m_layout; ///< kept for the life of the page
};

} // namespace PANFx::Windows

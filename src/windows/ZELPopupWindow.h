#pragma once

#include "common/Export.h"
#include "common/SysLogger.h"
#include "common/ZELWindow.h"
#include "resource/ZELLayout.h"

#include <QDialog>
#include <QEventLoop>

#include <deque>
#include <memory>
#include <string>

namespace PANFx::Components {
class ZELComponent;
}

namespace PANFx::Windows {

/**
 * A full-screen modal dialog, built from its layout file as a page is, and run so that the caller
 * waits for its answer. An application derives a class for each dialog, which sets
 * m_nPopupResult and then calls accept() or reject().
 *
 * The caller owns it, and may delete it while it runs. An object that has run by showAndWait()
 * can no longer run by exec(); the other way round it can.
 */
class QTPANFX_EXPORT ZELPopupWindow : public ZELWindow, public QDialog
{
public:
    /**
     * Builds the dialog from "<resource directory><locale>/layout/<id>.resource". A missing file
     * gives an empty black dialog, which the derived class has to be able to close.
     * @throw an exception of the foundation that is no XmlException, and what the constructor of
     *        a component throws
     */
    ZELPopupWindow(std::string strID, QWidget* pParent);

    /** Ends a nested loop that is still running: showAndWait then returns. */
    ~ZELPopupWindow() override;

    /** Builds components from the section "Components"; a failed one is told and left out. */
    void createSubComponent(TAMFx::Common::Xml::Node* pComponents) override;

    /** Makes the components visible, in the order of creation. */
    void showSubComponent() override;

    /** The dialog is about to be shown. Does nothing here. */
    virtual void activating();

    /** Ends the dialog. The result stays what m_nPopupResult is. */
    void accept() override;

    /** Ends the dialog, as accept() does. */
    void reject() override;

    /**
     * Runs the dialog modally. Posts EVENT_WINDOW_ACTIVATE to it.
     * @return m_nPopupResult, or -1 when the dialog was deleted meanwhile. While it runs already,
     *         and after showAndWait(), it returns at once, with an error line
     */
    int exec() override;

    /**
     * Shows the dialog and waits in a loop of its own, without modality: pages underneath go on
     * getting events. The dialog stays visible afterwards.
     * @return m_nPopupResult, or -1 when the dialog was deleted meanwhile. While exec() runs it
     *         returns at once, with an error line
     */
    int showAndWait();

    /** The loop of showAndWait(): comes back after eventLoopExit(). */
    void eventLoopExec();

    /** Ends that loop; nothing while it doesn't run. */
    void eventLoopExit();

    /** Whether opening plays the popup sound; it does unless told otherwise. */
    void setSoundPlay(bool bSoundPlay);

    /** A free label for the application. */
    void setPopupTag(std::string strPopupTag);

    /** The label as it was set; "" at first. */
    std::string getPopupTag();

    /** The first top-level component with that id; null, with an error line, when there is none. */
    Components::ZELComponent* getSubComponent(std::string strID);

    /** Puts a picture beneath what is built later; a missing one is told. */
    void createBackgroundSubComponent(std::string strImage);

    int m_nPopupResult = -1; ///< what exec() and showAndWait() return
    bool m_bSoundPlay = true;
    std::deque<Components::ZELComponent*> m_dqSubComponents; ///< in order of creation, not owned

protected:
    Resource::ZELLayout m_layout; ///< kept for the life of the dialog
    Common::SysLogger m_logger{"QTPANFx", "ZELPopupWindow"};
    bool m_bLoopMode = false; ///< showAndWait has been used
    /** Shared with a wait in progress, so that a dialog can be deleted under it. */
    std::shared_ptr<QEventLoop> m_eventLoop = std::make_shared<QEventLoop>();
    std::string m_strPopupTag;

private:
    void playPopupSound();

    bool m_bExecMode = false; ///< exec is running
};

} // namespace PANFx::Windows

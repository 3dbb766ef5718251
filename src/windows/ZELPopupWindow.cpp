#include "windows/ZELPopupWindow.h"

#include "events/EventNumbers.h"
#include "events/ZELEvent.h"
#include "resource/SoundFactory.h"
#include "windows/PageBuilding.h"

#include <QCoreApplication>
#include <QPointer>

#include <utility>

namespace PANFx::Windows {

using Components::ZELComponent;
using TAMFx::Common::Xml::Node;

namespace {

// Marks a dialog while it runs by exec, also when an exception passes, unless it is gone by then.
class ExecMode
{
public:
    ExecMode(const QPointer<QWidget>& alive, bool& bMode)
        : m_alive(alive)
        , m_bMode(bMode)
    {
        m_bMode = true;
    }
    ExecMode(const ExecMode&) = delete;
    ExecMode& operator=(const ExecMode&) = delete;
    ~ExecMode()
    {
        if (m_alive)
            m_bMode = false;
    }

private:
    const QPointer<QWidget>& m_alive; // whether the dialog is still there
    bool& m_bMode;
};

} // namespace

ZELPopupWindow::ZELPopupWindow(std::string strID, QWidget* pParent)
    : ZELWindow(std::move(strID))
    , QDialog(pParent, Qt::FramelessWindowHint)
{
    setUpScreenWidget(*this);
    setAttribute(Qt::WA_NoSystemBackground, true);
    const std::string path = layoutPath(m_strID);
    if (!m_layout.loadLayout(path)) {
        m_logger.WriteError("[%s] Layout load failed: %s", "ZELPopupWindow", path.c_str());
        // no picture will cover it, and what nobody paints shows pixels of former windows
        setAttribute(Qt::WA_NoSystemBackground, false);
        return;
    }
    createBackgroundSubComponent(m_layout.getBackgroundImageName());
    ZELPopupWindow::createSubComponent(m_layout.getFirstNodebyName("Components"));
    ZELPopupWindow::showSubComponent();
}

ZELPopupWindow::~ZELPopupWindow()
{
    eventLoopExit();
}

void ZELPopupWindow::createSubComponent(Node* pComponents)
{
    createPageComponents(pComponents, *this, m_strID, m_dqSubComponents, m_logger,
                         [this](const char* keyword, const char* id) {
                             m_logger.WriteError("[%s] Fail to create a component (%s, %s)",
                                                 "createSubComponent", keyword, id);
                         });
}

void ZELPopupWindow::showSubComponent()
{
    showComponents(m_dqSubComponents, *this);
}

void ZELPopupWindow::createBackgroundSubComponent(std::string strImage)
{
    createBackground(strImage, *this, m_dqSubComponents, m_logger);
}

ZELComponent* ZELPopupWindow::getSubComponent(std::string strID)
{
    ZELComponent* component = findComponent(m_dqSubComponents, *this, strID);
    if (!component)
        m_logger.WriteError("[%s] Fail to get component (%s)", "getSubComponent", strID.c_str());
    return component;
}

void ZELPopupWindow::activating() {}

void ZELPopupWindow::accept()
{
    if (m_bLoopMode)
        eventLoopExit();
    else
        QDialog::accept();
}

void ZELPopupWindow::reject()
{
    if (m_bLoopMode)
        eventLoopExit();
    else
        QDialog::reject();
}

int ZELPopupWindow::exec()
{
    if (m_bExecMode) {
        m_logger.WriteError("[%s] %s runs already", "exec", m_strID.c_str());
        return m_nPopupResult;
    }
    if (m_bLoopMode) {
        // accept and reject end the other loop, so this one would never end
        m_logger.WriteError("[%s] %s has run by showAndWait", "exec", m_strID.c_str());
        return m_nPopupResult;
    }
    QWidget* widget = this;
    const QPointer<QWidget> alive(widget);
    const ExecMode execMode(alive, m_bExecMode);
    playPopupSound();
    activating();
    if (!alive)
        return -1;
    QCoreApplication::postEvent(widget, new ZELEvent(EVENT_WINDOW_ACTIVATE));
    QDialog::exec();
    return alive ? m_nPopupResult : -1;
}

int ZELPopupWindow::showAndWait()
{
    if (m_bExecMode) {
        // exec would never end: accept and reject would end this loop in its place
        m_logger.WriteError("[%s] %s runs by exec", "showAndWait", m_strID.c_str());
        return m_nPopupResult;
    }
    QWidget* widget = this;
    const QPointer<QWidget> alive(widget);
    playPopupSound();
    m_bLoopMode = true;
    activating();
    if (!alive)
        return -1;
    setVisible(true);
    if (!alive)
        return -1;
    eventLoopExec();
    return alive ? m_nPopupResult : -1;
}

void ZELPopupWindow::eventLoopExec()
{
    const std::shared_ptr<QEventLoop> loop = m_eventLoop;
    loop->exec();
}

void ZELPopupWindow::eventLoopExit()
{
    if (m_eventLoop->isRunning())
        m_eventLoop->exit(0);
}

void ZELPopupWindow::playPopupSound()
{
    if (m_bSoundPlay)
        Resource::SoundFactory::getInstance()->playPopupSound();
}

void ZELPopupWindow::setSoundPlay(bool bSoundPlay)
{
    m_bSoundPlay = bSoundPlay;
}

void ZELPopupWindow::setPopupTag(std::string strPopupTag)
{
    m_strPopupTag = std::move(strPopupTag);
}

std::string ZELPopupWindow::getPopupTag()
{
    return m_strPopupTag;
}

} // namespace PANFx::Windows

#include "tour/Screen.h"

#include "ComponentAccess.h"
#include "InstrumentFrame.h"

#include "components/ZELComponent.h"
#include "components/buttons/ZELImageButton.h"
#include "components/editors/ZELImageEdit.h"
#include "components/lists/ZELListScroll.h"
#include "components/text/ZELLineEdit.h"
#include "events/Timer.h"
#include "windows/ZELChildWindow.h"
#include "windows/ZELPopupWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimerEvent>

using PANFx::Components::Timer;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELImageButton;
using PANFx::Components::ZELImageEdit;
using PANFx::Components::ZELLineEdit;
using PANFx::Components::ZELListScroll;
using PANFx::Windows::ZELChildWindow;
using PANFx::Windows::ZELPopupWindow;

Screen::Screen(InstrumentFrame& frame)
    : m_frame(frame)
{
}

std::string Screen::page()
{
    ZELChildWindow* pPage = m_frame.getCurrentWindow();
    return pPage != nullptr ? pPage->m_strID : "none";
}

std::string Screen::dialog()
{
    ZELPopupWindow* pDialog = findDialog();
    return pDialog != nullptr ? pDialog->m_strID : "";
}

ZELPopupWindow* Screen::findDialog()
{
    for (QWidget* pWindow : QApplication::topLevelWidgets()) {
        auto* pDialog = dynamic_cast<ZELPopupWindow*>(pWindow);
        if (pDialog != nullptr && pDialog->isVisible())
            return pDialog;
    }
    return nullptr;
}

QWidget* Screen::top()
{
    QWidget* pDialog = findDialog();
    return pDialog != nullptr ? pDialog : &m_frame;
}

QImage Screen::picture()
{
    return top()->grab().toImage();
}

void Screen::activate()
{
    if (!top()->isActiveWindow())
        top()->activateWindow();
}

namespace {

/// A part of a component by its id: the parts that a scroll makes itself are widgets in it only.
ZELComponent* partOf(ZELComponent& whole, const std::string& strID)
{
    if (ZELComponent* pPart = whole.getSubComponent(strID))
        return pPart;
    for (QObject* pChild : whole.getQWidget()->children()) {
        auto* pPart = dynamic_cast<ZELComponent*>(pChild);
        if (pPart != nullptr && pPart->m_strID == strID)
            return pPart;
    }
    return nullptr;
}

} // namespace

ZELComponent* Screen::find(const std::string& strID)
{
    std::size_t nSlash = strID.find('/');
    const std::string strOuter = strID.substr(0, nSlash);
    ZELPopupWindow* pDialog = findDialog();
    ZELChildWindow* pPage = m_frame.getCurrentWindow();
    ZELComponent* pComponent = pDialog != nullptr ? pDialog->getSubComponent(strOuter)
                               : pPage != nullptr ? pPage->getSubComponent(strOuter)
                                                  : nullptr;
    while (pComponent != nullptr && nSlash != std::string::npos) {
        const std::size_t nStart = nSlash + 1;
        nSlash = strID.find('/', nStart);
        pComponent = partOf(*pComponent, strID.substr(nStart, nSlash - nStart));
    }
    if (pComponent == nullptr && m_strMissing.empty())
        m_strMissing = strID;
    return pComponent;
}

void Screen::press(const std::string& strID)
{
    ZELComponent* pComponent = find(strID);
    if (pComponent == nullptr)
        return;
    QWidget* pWidget = pComponent->getQWidget();
    m_window = pWidget->window()->windowHandle();
    m_finger = pWidget->mapTo(pWidget->window(), pWidget->rect().center());
    send(QEvent::MouseButtonPress);
}

void Screen::release()
{
    send(QEvent::MouseButtonRelease);
    m_window.clear();
}

void Screen::send(QEvent::Type type)
{
    if (m_window.isNull())
        return;
    const Qt::MouseButtons down = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, m_finger, m_window->mapToGlobal(m_finger), Qt::LeftButton, down,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(m_window, &event);
}

void Screen::tap(const std::string& strID)
{
    press(strID);
    release();
}

void Screen::tick(const std::string& strID, int nTicks)
{
    QWidget* pOwner = findDialog();
    if (!strID.empty()) {
        ZELComponent* pComponent = find(strID);
        pOwner = pComponent != nullptr ? pComponent->getQWidget() : nullptr;
    }
    if (pOwner == nullptr)
        return;
    for (QObject* pChild : pOwner->children()) {
        auto* pTimer = dynamic_cast<Timer*>(pChild);
        const bool bRuns = pTimer != nullptr && pTimer->isActive();
        for (int n = 0; bRuns && n < nTicks; ++n) {
            QTimerEvent event(pTimer->timerId());
            QCoreApplication::sendEvent(pTimer, &event);
        }
    }
}

void Screen::scan(const QString& strCode)
{
    const auto strike = [this](int nKey, const QString& strText) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, nKey, Qt::NoModifier, strText);
            QCoreApplication::sendEvent(m_frame.windowHandle(), &event);
        }
    };
    for (const QChar letter : strCode)
        strike(letter.toUpper().unicode(), letter);
    strike(Qt::Key_Return, QStringLiteral("\r"));
}

std::string Screen::text(const std::string& strID)
{
    ZELComponent* pComponent = find(strID);
    if (auto* pLine = componentAs<ZELLineEdit>(pComponent, "ZELLineEdit"))
        return pLine->text().toStdString();
    if (auto* pScroll = componentAs<ZELListScroll>(pComponent, "ZELListScroll"))
        return pScroll->getPageNumbering();
    if (auto* pButton = componentAs<ZELImageButton>(pComponent, "ZELImageButton"))
        return pButton->getTitle();
    auto* pEdit = dynamic_cast<ZELImageEdit*>(pComponent);
    return pEdit != nullptr ? pEdit->text() : "";
}

bool Screen::isVisible(const std::string& strID)
{
    ZELComponent* pComponent = find(strID);
    return pComponent != nullptr && pComponent->getQWidget()->isVisible();
}

bool Screen::isEnabled(const std::string& strID)
{
    ZELComponent* pComponent = find(strID);
    return pComponent != nullptr && pComponent->getQWidget()->isEnabled();
}

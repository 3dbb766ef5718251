#include "tour/Screen.h"

#include "ComponentAccess.h"
#include "InstrumentFrame.h"
#include "tour/PaintedTexts.h"

#include "components/ZELComponent.h"
#include "components/buttons/ZELImageButton.h"
#include "components/containers/ZELTab.h"
#include "components/editors/ZELImageEdit.h"
#include "components/gauges/ZELProgressBar.h"
#include "components/gauges/ZELRange.h"
#include "components/lists/ZELListScroll.h"
#include "components/text/ZELLineEdit.h"
#include "components/text/ZELTextEdit.h"
#include "events/Timer.h"
#include "windows/ZELChildWindow.h"
#include "windows/ZELPopupWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>

using PANFx::Components::Timer;
using PANFx::Components::ZELComponent;
using PANFx::Components::ZELImageButton;
using PANFx::Components::ZELImageEdit;
using PANFx::Components::ZELLineEdit;
using PANFx::Components::ZELListScroll;
using PANFx::Components::ZELProgressBar;
using PANFx::Components::ZELRange;
using PANFx::Components::ZELTab;
using PANFx::Components::ZELTextEdit;
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

std::string Screen::dialogTag()
{
    ZELPopupWindow* pDialog = findDialog();
    return pDialog != nullptr ? pDialog->getPopupTag() : "";
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

bool Screen::shows(const std::string& strText)
{
    return paintedTexts(*top()).strAll.contains(QString::fromStdString(strText));
}

std::string Screen::cutText()
{
    return paintedTexts(*top()).strCut.toStdString();
}

void Screen::write(const std::string& strLabel, const std::string& strText)
{
    showText(find(strLabel), strText);
}

void Screen::activate()
{
    if (!top()->isActiveWindow())
        top()->activateWindow();
}

namespace {

/// A part of a component by its id: those that a scroll or a range makes itself are widgets in
/// it only.
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
                               : pPage != nullptr
                                   ? findComponent(pPage->m_dqSubComponents, strOuter)
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
    if (pWidget->isVisible())
        press(*pWidget, pWidget->rect().center());
    else if (m_strMissing.empty())
        m_strMissing = strID + " to be seen";
}

void Screen::press(QWidget& widget, const QPoint& place)
{
    m_window = widget.window()->windowHandle();
    m_finger = widget.mapTo(widget.window(), place);
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

void Screen::tapScrollBar(const std::string& strID)
{
    if (auto* pEdit = componentAs<ZELTextEdit>(find(strID), "ZELTextEdit")) {
        QScrollBar* pBar = pEdit->verticalScrollBar();
        press(*pBar, QPoint(pBar->width() / 2, 4));
        release();
    }
}

void Screen::tick(const std::string& strID, int nTicks)
{
    QWidget* pOwner = top();
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
    type(strCode + QLatin1Char('\n'));
}

void Screen::type(const QString& strText)
{
    const auto strike = [this](int nKey, const QString& strText) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, nKey, Qt::NoModifier, strText);
            QCoreApplication::sendEvent(m_frame.windowHandle(), &event);
        }
    };
    for (const QChar letter : strText) {
        if (letter == QLatin1Char('\n'))
            strike(Qt::Key_Return, QStringLiteral("\r"));
        else
            strike(letter.toUpper().unicode(), letter);
    }
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
    if (auto* pNotes = componentAs<ZELTextEdit>(pComponent, "ZELTextEdit"))
        return pNotes->toPlainText().toStdString();
    auto* pEdit = dynamic_cast<ZELImageEdit*>(pComponent);
    return pEdit != nullptr ? pEdit->text() : "";
}

int Screen::number(const std::string& strID)
{
    ZELComponent* pComponent = find(strID);
    if (auto* pGauge = dynamic_cast<ZELProgressBar*>(pComponent))
        return pGauge->value();
    if (auto* pRange = dynamic_cast<ZELRange*>(pComponent))
        return pRange->getStep();
    if (auto* pTab = componentAs<ZELTab>(pComponent, "ZELTab"))
        return pTab->getPage();
    auto* pNotes = componentAs<ZELTextEdit>(pComponent, "ZELTextEdit");
    return pNotes != nullptr ? pNotes->verticalScrollBar()->value() : -1;
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

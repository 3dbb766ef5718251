#include "components/pads/ZELNumPad.h"

#include "common/Numbers.h"
#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/buttons/ButtonKind.h"
#include "components/buttons/ZELImageButton.h"
#include "components/editors/ZELImageEdit.h"
#include "components/editors/ZELImageTimeEdit.h"
#include "components/support/ComponentsNode.h"
#include "components/support/LayoutPosition.h"
#include "components/support/Painting.h"
#include "components/support/Picture.h"
#include "components/support/PostToParent.h"
#include "components/support/ReceivedEvent.h"
#include "events/EventNumbers.h"
#include "events/ZELRangeEvent.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

constexpr int backspaceValue = -1;
constexpr int otherValue = 100;
constexpr float dimmed = 0.6F;

enum KeySet { doubleZero, point, comma, timeOfDay, userDefined };

void showKey(const QWidget& pad, ZELImageButton* key, bool visible)
{
    if (key && ZELComponent::isPartOf(&pad, key))
        key->setVisible(visible);
}

// by address only: neither the key nor the sender is touched
bool isKey(const QWidget* key, const QObject* sender)
{
    return key && key == sender;
}

} // namespace

ZELNumPad::ZELNumPad(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    ZELNumPad::setLayout(pLayout);
    createSubComponent(componentsNode(pLayout));
    findKeys();
    if (pLayout) {
        tellMissingKey(m_pNumBtn[0], "num0");
        tellMissingKey(m_pNum00Btn, "num00");
        tellMissingKey(m_pCloseBtn, "close");
    }
    if (m_pEmptyBtn)
        m_strUserDefine = m_pEmptyBtn->getTitle();
    setType(m_nType);
    setPopupMode(m_bPopupMode);
}

ZELNumPad::~ZELNumPad() = default;

void ZELNumPad::showWindow()
{
    setVisible(true);
}

void ZELNumPad::hideWindow()
{
    setVisible(false);
}

QWidget* ZELNumPad::getQWidget()
{
    return this;
}

void ZELNumPad::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    const LayoutPosition place = readPosition(pLayout->getNodeByName("position"), {0, 0, 1, 1});
    readBackground(pLayout);
    setGeometry(place.rect());
}

// Sizes that the background leaves out come from the size before the place is applied.
void ZELNumPad::readBackground(Node* pLayout)
{
    Node* background = pLayout->getNodeByName("backimage");
    Attribute* file = background ? background->getAttributeByName("file") : nullptr;
    m_pBasePixmap = findPicture(file ? file->getValue() : "");
    if (!background || !m_pBasePixmap) {
        m_logger.WriteDebug("m_pBasePixmap is NULL");
        return;
    }
    const auto read = [background](const char* name, int missing) {
        Attribute* attribute = background->getAttributeByName(name);
        return attribute ? heldPixels(Common::toInt(attribute->getValue())) : missing;
    };
    m_nBaseX = read("x", m_nBaseX);
    m_nBaseY = read("y", m_nBaseY);
    m_nBaseWidth = read("width", width() - m_nBaseX);
    m_nBaseHeight = read("height", height() - m_nBaseY);
}

void ZELNumPad::findKeys()
{
    for (int i = 0; i < digitKeys; ++i)
        m_pNumBtn[i] = findKey("num" + std::to_string(i));
    m_pNum00Btn = findKey("num00");
    m_pBackspaceBtn = findKey("backspace");
    m_pDotBtn = findKey("dot");
    m_pCommaBtn = findKey("comma");
    m_pAmpmBtn = findKey("ampm");
    m_pEmptyBtn = findKey("empty");
    m_pCloseBtn = findKey("close");
}

ZELImageButton* ZELNumPad::findKey(const std::string& strID)
{
    ZELComponent* component = getSubComponent(strID);
    ZELImageButton* key = asImageButton(component);
    if (component && !key)
        m_logger.WriteError("[%s] %s: the key %s is no button", "ZELNumPad", m_strID.c_str(),
                            strID.c_str());
    return key;
}

void ZELNumPad::tellMissingKey(const ZELImageButton* pKey, const char* pszID)
{
    if (!pKey && !getSubComponent(pszID))
        m_logger.WriteError("[%s] %s has no key %s", "ZELNumPad", m_strID.c_str(), pszID);
}

void ZELNumPad::setEdit(ZELImageEdit* pEdit)
{
    m_pEdit = pEdit;
    m_editWidget = pEdit;
}

ZELImageEdit* ZELNumPad::getEdit()
{
    if (!m_editWidget)
        m_pEdit = nullptr;
    return m_pEdit;
}

void ZELNumPad::setType(int nType)
{
    m_nType = nType;
    if (nType >= doubleZero && nType <= userDefined) {
        showKey(*this, m_pNumBtn[0], nType != doubleZero);
        showKey(*this, m_pNum00Btn, nType == doubleZero);
    }
    showKey(*this, m_pDotBtn, nType == point);
    showKey(*this, m_pCommaBtn, nType == comma);
    showKey(*this, m_pAmpmBtn, nType == timeOfDay);
    showKey(*this, m_pEmptyBtn, nType == userDefined);
}

void ZELNumPad::setPopupMode(bool bPopup)
{
    m_bPopupMode = bPopup;
    showKey(*this, m_pCloseBtn, bPopup);
    update();
}

void ZELNumPad::setEnable(bool bEnable)
{
    m_fOpacity = bEnable ? 1.0F : dimmed;
    setEnabled(bEnable);
}

void ZELNumPad::setUserDefineButtonTitle(std::string strTitle)
{
    m_strUserDefine = std::move(strTitle);
    if (isPartOf(this, m_pEmptyBtn))
        m_pEmptyBtn->setTitle(m_strUserDefine);
}

// Only the other form takes a title. A text that comes here is a fault of the program, which ends
// where it can be found.
void ZELNumPad::setUserDefineButtonTitle(const char* pszTitle)
{
    if (pszTitle) {
        m_logger.WriteError("[%s] %s: a title is passed as a std::string",
                            "setUserDefineButtonTitle", m_strID.c_str());
        std::abort();
    }
    setUserDefineButtonTitle(std::string());
}

void ZELNumPad::sendEvent(int nValue)
{
    postToParent(this, std::make_unique<ZELRangeEvent>(EVENT_MOUSE_UP, this, m_strID, nValue),
                 m_strID, m_logger, "sendEvent");
}

// The last character of the id is the digit, so "num00" types one zero.
void ZELNumPad::onNumBtnPress(ZELEvent* pEvent)
{
    if (!pEvent) {
        m_logger.WriteError("[%s] %s got no event", "onNumBtnPress", m_strID.c_str());
        return;
    }
    const std::string digit = pEvent->m_strID.substr(pEvent->m_strID.size() - 1);
    if (ZELImageEdit* edit = getEdit())
        edit->addText(digit);
    sendEvent(Common::toInt(digit.c_str()));
}

void ZELNumPad::onBspacePress(ZELEvent*)
{
    if (ZELImageEdit* edit = getEdit())
        edit->backspace();
    sendEvent(backspaceValue);
}

void ZELNumPad::onBspacePressLong(ZELEvent*)
{
    if (ZELImageEdit* edit = getEdit())
        edit->setText("");
    sendEvent(backspaceValue);
}

void ZELNumPad::onETCBtnPress(ZELEvent* pEvent)
{
    if (!pEvent) {
        m_logger.WriteError("[%s] %s got no event", "onETCBtnPress", m_strID.c_str());
        return;
    }
    const std::string& key = pEvent->m_strID;
    if (ZELImageEdit* edit = getEdit()) {
        if (key == "dot")
            edit->addText(".");
        else if (key == "comma")
            edit->addText(",");
        else if (key == "ampm" && edit->m_strType == "ZELImageTimeEdit")
            static_cast<ZELImageTimeEdit*>(edit)->changeAMPM();
        else if (key == "empty")
            edit->addText(m_strUserDefine.c_str());
    }
    sendEvent(otherValue);
}

// The edit stays attached.
void ZELNumPad::onClosePress(ZELEvent*)
{
    setVisible(false);
    ZELImageEdit* edit = getEdit();
    if (edit && edit->hasFocus())
        edit->clearFocus();
    postToParent(this, EVENT_NUMPAD_CLOSE, m_strID, m_logger, "onClosePress");
}

bool ZELNumPad::event(QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    if (type == EVENT_MOUSE_UP || type == EVENT_LONG_PRESS || type == EVENT_LONG_PRESS_HELD) {
        if (ZELEvent* received = receivedEvent(pEvent, m_strID, m_logger))
            handleKey(type, received);
    }
    return QWidget::event(pEvent);
}

void ZELNumPad::handleKey(QEvent::Type type, ZELEvent* pEvent)
{
    const QObject* sender = pEvent->m_pSender;
    const bool click = type == EVENT_MOUSE_UP;
    if (isKey(m_pBackspaceBtn, sender)) {
        if (type == EVENT_LONG_PRESS_HELD)
            onBspacePressLong(pEvent);
        else
            onBspacePress(pEvent);
    } else if (click && isDigitKey(sender)) {
        onNumBtnPress(pEvent);
    } else if (click && isKey(m_pCloseBtn, sender)) {
        onClosePress(pEvent);
    } else if (click && isOtherKey(sender)) {
        onETCBtnPress(pEvent);
    }
}

bool ZELNumPad::isDigitKey(const QObject* pSender) const
{
    return isKey(m_pNum00Btn, pSender) ||
           std::any_of(std::begin(m_pNumBtn), std::end(m_pNumBtn),
                       [pSender](const ZELImageButton* key) { return isKey(key, pSender); });
}

bool ZELNumPad::isOtherKey(const QObject* pSender) const
{
    return isKey(m_pDotBtn, pSender) || isKey(m_pCommaBtn, pSender) || isKey(m_pAmpmBtn, pSender) ||
           isKey(m_pEmptyBtn, pSender);
}

// The opacity comes after the background and is meant for nothing behind it: a disabled pad looks
// the same.
void ZELNumPad::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_bPopupMode && m_pBasePixmap) {
        const int nWidth = m_nBaseWidth < 1 ? width() : m_nBaseWidth;
        const int nHeight = m_nBaseHeight < 1 ? height() : m_nBaseHeight;
        drawPicture(painter, m_pBasePixmap, QRect(m_nBaseX, m_nBaseY, nWidth, nHeight));
    }
    painter.setOpacity(static_cast<double>(m_fOpacity));
}

} // namespace PANFx::Components

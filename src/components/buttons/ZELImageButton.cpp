#include "components/buttons/ZELImageButton.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/support/LayoutFont.h"
#include "components/support/LayoutPosition.h"
#include "components/support/Painting.h"
#include "components/support/Picture.h"
#include "components/support/PostToParent.h"
#include "events/EventNumbers.h"
#include "events/Timer.h"
#include "events/ZELEvent.h"
#include "resource/ParseHelper.h"
#include "resource/SoundFactory.h"
#include "resource/ZELResourceMgr.h"

#include <QEasingCurve>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cstring>
#include <utility>

namespace PANFx::Components {

using Resource::Font;
using Resource::SoundFactory;
using Resource::ZELResourceMgr;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

constexpr int firstTick = 1000; // milliseconds
constexpr int nextTick = 300;
constexpr int slowTicks = 4;

constexpr const char* pushAnimation = "elastic_push";
constexpr int pushDuration = 150; // milliseconds
constexpr double pressAmplitude = 0.8;
constexpr double releaseAmplitude = 0.5;
constexpr int pushLimit = 4; // pixels
constexpr int pushFraction = 20;

} // namespace

ZELImageButton::ZELImageButton(QWidget* pParent, std::string strID, std::string strType,
                               Node* pLayout)
    : ZELImageButton(pParent, std::move(strID), std::move(strType))
{
    ZELImageButton::setLayout(pLayout);
}

ZELImageButton::ZELImageButton(QWidget* pParent, std::string strID, std::string strType)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    m_animation.setTargetObject(this);
    m_pTimer = new Timer(this);
}

ZELImageButton::~ZELImageButton()
{
    delete m_pTimer;
}

void ZELImageButton::showWindow()
{
    setVisible(true);
}

void ZELImageButton::hideWindow()
{
    setVisible(false);
}

QWidget* ZELImageButton::getQWidget()
{
    return this;
}

void ZELImageButton::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    m_nAlign = Qt::AlignCenter;
    Node* image = pLayout->getNodeByName("image");
    Node* position = pLayout->getNodeByName("position");
    Node* textPos = pLayout->getNodeByName("textPos");
    Node* imagePos = pLayout->getNodeByName("imagePos");

    readTitle(pLayout);
    if (Attribute* longPress = pLayout->getAttributeByName("longpress"))
        m_bLongPress = std::strcmp(longPress->getValue(), "false") != 0;

    std::string down;
    std::string up;
    std::string dim;
    ParseHelper::getButtonImage(image, down, up, dim);
    setImages(std::move(down), std::move(up), std::move(dim));

    const LayoutPosition place = readPosition(position, {0, 0, 1, 1});
    const QRect geometry = place.rect();
    setGeometry(geometry);
    setOrgPos(geometry.x(), geometry.y());
    if (textPos) {
        m_textRect = readPosition(textPos, place).rect();
        m_nAlign = ParseHelper::getAlign(textPos->getAttributeByName("align"), Qt::AlignCenter);
    }
    if (imagePos)
        m_imageRect = readPosition(imagePos, place).rect();
}

void ZELImageButton::readTitle(Node* pLayout)
{
    Attribute* title = pLayout->getAttributeByName("title");
    if (!title)
        return;
    m_strTitle = ZELResourceMgr::getInstance()->getLocaleString(title->getValue());
    m_pFont = fontNamedBy(pLayout, "style");
    m_pPressFont = fontNamedBy(pLayout, "pressstyle");
    m_pDimFont = fontNamedBy(pLayout, "dimstyle");
    if (Attribute* animation = pLayout->getAttributeByName("animation"))
        m_strAnimation = animation->getValue();
}

void ZELImageButton::setImages(std::string strDown, std::string strUp, std::string strDim)
{
    m_strDownImage = std::move(strDown);
    m_strUpImage = std::move(strUp);
    m_strDimImage = std::move(strDim);
    m_pDownImage = findPicture(m_strDownImage);
    m_pUpImage = findPicture(m_strUpImage);
    if (!m_pUpImage)
        return;
    m_pCurImage = m_pUpImage;
    m_nPressOffset = std::min(m_pUpImage->width() / pushFraction, pushLimit);
}

void ZELImageButton::setTitle(std::string strTitle)
{
    m_strTitle = std::move(strTitle);
}

std::string ZELImageButton::getTitle()
{
    return m_strTitle;
}

void ZELImageButton::setFont(Font* pFont)
{
    m_pFont = pFont;
}

void ZELImageButton::setSoundMode(bool bSoundMode)
{
    m_bSoundMode = bSoundMode;
}

void ZELImageButton::setLongPress(bool bLongPress)
{
    m_bLongPress = bLongPress;
}

void ZELImageButton::setElidedText(bool)
{
    m_bElided = true;
}

void ZELImageButton::setOrgPos(int nX, int nY)
{
    m_nOrgX = heldPixels(nX);
    m_nOrgY = heldPixels(nY);
}

void ZELImageButton::setDimMode(bool bDimMode)
{
    if (bDimMode == m_bDimMode)
        return;
    m_bDimMode = bDimMode;
    setDisabled(bDimMode);
    if (!bDimMode) {
        m_pCurImage = m_pUpImage;
    } else if (!m_strDimImage.empty()) {
        if (QPixmap* dim = findPicture(m_strDimImage))
            m_pCurImage = dim;
    }
    update();
}

QPixmap* ZELImageButton::downImage()
{
    if (!hasPicture(m_pDownImage) && !m_strDownImage.empty())
        m_pDownImage = findPicture(m_strDownImage);
    return m_pDownImage;
}

QPixmap* ZELImageButton::checkedImage(Common::SysLogger& logger)
{
    QPixmap* down = downImage();
    if (!hasPicture(down))
        m_noDownImage.error(logger, "paintEvent", m_strID, "is checked and has no down image");
    return down;
}

void ZELImageButton::mousePressEvent(QMouseEvent*)
{
    if (m_bDimMode)
        return;
    press();
    m_logger.WriteDebug("[%s] id : %s (%d)==> mousePressEvent!!!!", "mousePressEvent",
                        m_strID.c_str(), m_bLongPress);
    hold();
}

void ZELImageButton::press()
{
    m_bPressed = true;
    m_pCurImage = downImage();
    update();
    if (m_bSoundMode)
        SoundFactory::getInstance()->playTouchSound();
    animationPressed();
}

void ZELImageButton::hold()
{
    if (!m_bLongPress)
        return;
    m_nLongPressCount = 0;
    m_bLongPressed = false;
    m_pTimer->start(firstTick);
}

// Where the pointer is doesn't matter: the release alone makes the click.
void ZELImageButton::mouseReleaseEvent(QMouseEvent*)
{
    m_pTimer->stop();
    if (m_bDimMode)
        return;
    m_pCurImage = m_pUpImage;
    m_bPressed = false;
    update();
    animationReleased();
    m_bLongPressed = false;
    postToParent(this, EVENT_MOUSE_UP, m_strID, m_logger, "mouseReleaseEvent");
}

bool ZELImageButton::event(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Hide || pEvent->type() == QEvent::WindowBlocked) {
        dropPress();
    } else if (pEvent->type() == EVENT_TIMER) {
        const ZELEvent* tick = ZELEvent::from(pEvent);
        if (tick && tick->m_pSender == m_pTimer)
            onLongPressed();
    }
    return QWidget::event(pEvent);
}

// The timer goes on: its next tick is still reported, and is the last.
void ZELImageButton::dropPress()
{
    m_bPressed = false;
    m_pCurImage = m_pUpImage;
    if (m_bDimMode && !m_strDimImage.empty())
        m_pCurImage = findPicture(m_strDimImage);
    update();
    animationReleased();
}

void ZELImageButton::onLongPressed()
{
    m_pTimer->stop();
    if (m_bDimMode)
        return;
    if (m_bSoundMode && !m_bLongPressed)
        SoundFactory::getInstance()->playTouchSound();
    m_bLongPressed = true;
    postToParent(this, m_nLongPressCount < slowTicks ? EVENT_LONG_PRESS : EVENT_LONG_PRESS_HELD,
                 m_strID, m_logger, "onLongPressed");
    m_logger.WriteDebug("[%s] id : %s ==> Long Pressed!!!!", "onLongPressed", m_strID.c_str());
    ++m_nLongPressCount;
    if (m_bPressed)
        m_pTimer->start(nextTick);
}

void ZELImageButton::animationPressed()
{
    if (m_strAnimation != pushAnimation)
        return;
    m_animation.stop();
    m_animation.setTargetObject(this);
    m_animation.setPropertyName("geometry");
    animateTo(m_nOrgX + m_nPressOffset, m_nOrgY + m_nPressOffset, pressAmplitude);
}

// Starts where the button is, so a release in mid-flight goes on smoothly.
void ZELImageButton::animationReleased()
{
    if (m_strAnimation != pushAnimation)
        return;
    m_animation.stop();
    animateTo(m_nOrgX, m_nOrgY, releaseAmplitude);
}

void ZELImageButton::animateTo(int nX, int nY, double dAmplitude)
{
    m_animation.setDuration(pushDuration);
    m_animation.setStartValue(QRect(x(), y(), width(), height()));
    m_animation.setEndValue(QRect(nX, nY, width(), height()));
    m_animation.setEasingCurve(QEasingCurve::OutBack);
    QEasingCurve curve = m_animation.easingCurve();
    curve.setAmplitude(dAmplitude);
    m_animation.setEasingCurve(curve);
    m_animation.start(QAbstractAnimation::KeepWhenStopped);
}

void ZELImageButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawPicture(painter, m_pCurImage, rectOrWhole(m_imageRect, *this));
    paintTitle(painter, m_bPressed, m_bElided);
}

void ZELImageButton::paintCheckable(bool bChecked, Common::SysLogger& logger)
{
    QPainter painter(this);
    const QPixmap* picture = bChecked ? checkedImage(logger) : m_pCurImage;
    drawPicture(painter, picture, rectOrWhole(m_imageRect, *this));
    paintTitle(painter, m_bPressed || bChecked, false);
}

// The width to elide to is that of the text rectangle also where none is set, and is -2 then.
void ZELImageButton::paintTitle(QPainter& painter, bool bPressStyle, bool bElided)
{
    const bool dim = m_bDimMode && m_pDimFont;
    const Font* font = dim ? m_pDimFont : bPressStyle && m_pPressFont ? m_pPressFont : m_pFont;
    if (!font)
        return;
    QString title = QString::fromUtf8(m_strTitle.c_str());
    if (bElided)
        title = elided(title, *font, m_textRect.right() - 1 - m_textRect.left());
    const auto draw = dim ? drawEngravedText : drawStyledText;
    draw(painter, title, *font, rectOrWhole(m_textRect, *this), m_nAlign);
}

} // namespace PANFx::Components

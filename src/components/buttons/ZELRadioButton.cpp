#include "components/buttons/ZELRadioButton.h"

#include "components/support/PostToParent.h"
#include "resource/SoundFactory.h"

#include <utility>

namespace PANFx::Components {

ZELRadioButton::ZELRadioButton(QWidget* pParent, std::string strID, std::string strType,
                               TAMFx::Common::Xml::Node* pLayout)
    : ZELImageButton(pParent, std::move(strID), std::move(strType), pLayout)
{
}

ZELRadioButton::~ZELRadioButton() = default;

QWidget* ZELRadioButton::getQWidget()
{
    return this;
}

void ZELRadioButton::setCheck(int nCheck)
{
    if (static_cast<unsigned int>(nCheck) == static_cast<unsigned int>(m_bChecked))
        return;
    m_bChecked = nCheck != 0;
    update();
    repaint();
}

void ZELRadioButton::mouseReleaseEvent(QMouseEvent* pEvent)
{
    m_bChecked = true;
    ZELImageButton::mouseReleaseEvent(pEvent);
}

void ZELRadioButton::reportPress(QEvent::Type type, Common::SysLogger& logger)
{
    m_bPressed = false;
    m_pCurImage = m_pUpImage;
    update();
    animationReleased();
    Resource::SoundFactory::getInstance()->playTouchSound();
    postToParent(this, type, m_strID, logger, "mousePressEvent");
}

void ZELRadioButton::paintEvent(QPaintEvent*)
{
    paintCheckable(m_bChecked, m_logger);
}

} // namespace PANFx::Components

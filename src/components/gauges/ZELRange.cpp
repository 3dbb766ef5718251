#include "components/gauges/ZELRange.h"

#include "components/DeleteLiving.h"
#include "components/buttons/ZELImageButton.h"
#include "components/support/LayoutPosition.h"
#include "components/support/PostToParent.h"
#include "components/support/ReceivedEvent.h"
#include "events/EventNumbers.h"
#include "events/ZELRangeEvent.h"
#include "resource/ParseHelper.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Node;

ZELRange::ZELRange(QWidget* pParent, std::string strID, std::string strType, Node*)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
}

ZELRange::~ZELRange()
{
    deleteLiving(*this, m_pUpBtn);
    deleteLiving(*this, m_pDownBtn);
    // an application's part may lie anywhere
    if (isAlive(m_pExtra))
        delete m_pExtra;
    m_pExtra = nullptr;
}

void ZELRange::setSoundMode(bool bSoundMode)
{
    if (!isAlive(m_pUpBtn) || !isAlive(m_pDownBtn)) {
        m_logger.WriteError("[%s] %s has not both buttons", "setSoundMode", m_strID.c_str());
        return;
    }
    m_pUpBtn->setSoundMode(bSoundMode);
    m_pDownBtn->setSoundMode(bSoundMode);
}

void ZELRange::setWrap(bool bWrap)
{
    m_bWrap = bWrap;
}

int ZELRange::getStep() const
{
    return m_nStep;
}

void ZELRange::dressButton(ZELImageButton& button, Node* pNode)
{
    std::string down;
    std::string up;
    std::string dim;
    ParseHelper::getButtonImage(pNode, down, up, dim);
    button.setGeometry(readPosition(pNode, {0, 0, 1, 1}).rect());
    button.setImages(std::move(down), std::move(up), std::move(dim));
}

void ZELRange::dimButtons(bool bUp, bool bDown)
{
    if (isAlive(m_pUpBtn))
        m_pUpBtn->setDimMode(bUp);
    if (isAlive(m_pDownBtn))
        m_pDownBtn->setDimMode(bDown);
}

void ZELRange::moveWithin(int nStep, int nTop)
{
    if (m_bWrap) {
        m_nStep = nStep < 0 ? nTop : nStep > nTop ? 0 : nStep;
    } else if (nStep < 1) {
        m_nStep = 0;
        dimButtons(false, true);
    } else if (nStep < nTop) {
        m_nStep = nStep;
        dimButtons(false, false);
    } else {
        m_nStep = nTop;
        dimButtons(true, false);
    }
}

void ZELRange::enableButtons(bool bEnable)
{
    if (!bEnable) {
        dimButtons(true, true);
    } else if (m_nStep < 1 && !m_bWrap) {
        m_nStep = 0;
        dimButtons(false, true);
    } else if (m_nStep < m_nMax || m_bWrap) {
        dimButtons(false, false);
    } else {
        m_nStep = m_nMax;
        dimButtons(true, false);
    }
}

bool ZELRange::handleClick(QEvent* pEvent, Common::SysLogger& logger)
{
    if (pEvent->type() != EVENT_MOUSE_UP)
        return false;
    const ZELEvent* received = receivedEvent(pEvent, m_strID, logger);
    if (!received || !received->m_pSender)
        return false;
    if (received->m_strID == "upbtn")
        stepBy(1);
    else if (received->m_strID == "downbtn")
        stepBy(-1);
    else
        return true;
    postToParent(this, std::make_unique<ZELRangeEvent>(EVENT_RANGE_CHANGED, this, m_strID, m_nStep),
                 m_strID, logger, "event");
    return true;
}

void ZELRange::stepBy(int nDifference)
{
    const long long step = static_cast<long long>(m_nStep) + nDifference;
    setStep(static_cast<int>(std::clamp<long long>(step, INT_MIN, INT_MAX)));
}

} // namespace PANFx::Components

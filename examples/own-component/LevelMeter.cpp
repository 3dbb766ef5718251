#include "LevelMeter.h"

#include <QTPANFx/common/tamfx/Attribute.h>
#include <QTPANFx/common/tamfx/Node.h>
#include <QTPANFx/events/EventNumbers.h>
#include <QTPANFx/events/ZELEvent.h>

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <utility>

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

int number(Node* pLayout, const char* pszName)
{
    Attribute* const attribute = pLayout->getAttributeByName(pszName);
    return attribute ? std::atoi(attribute->getValue()) : 0;
}

} // namespace

LevelMeter::LevelMeter(QWidget* pParent, std::string strID, Node* pLayout)
    : ZELComponent(std::move(strID), "LevelMeter")
    , QWidget(pParent)
{
    LevelMeter::setLayout(pLayout);
}

void LevelMeter::setLayout(Node* pLayout)
{
    // a fault in a layout is told in the log, and the page goes on without
    if (!pLayout) {
        m_logger.WriteError("[setLayout] %s has no element", m_strID.c_str());
        return;
    }
    setGeometry(number(pLayout, "x"), number(pLayout, "y"), number(pLayout, "width"),
                number(pLayout, "height"));
    m_nLow = number(pLayout, "low");
}

void LevelMeter::setLevel(int nPercent)
{
    m_nLevel = std::clamp(nPercent, 0, 100);
    update();
}

void LevelMeter::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int nHeight = height() * m_nLevel / 100;
    painter.fillRect(rect(), QColor(0x18, 0x28, 0x38));
    painter.fillRect(0, height() - nHeight, width(), nHeight,
                     m_nLevel < m_nLow ? QColor(0xe0, 0x50, 0x40) : QColor(0x40, 0xa0, 0xe0));
}

void LevelMeter::mouseReleaseEvent(QMouseEvent*)
{
    if (parent())
        QCoreApplication::postEvent(parent(), new ZELEvent(EVENT_MOUSE_UP, this, m_strID));
}

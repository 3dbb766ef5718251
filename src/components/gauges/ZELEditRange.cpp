#include "components/gauges/ZELEditRange.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/DeleteLiving.h"
#include "components/buttons/ZELImageButton.h"
#include "components/editors/ZELImageEdit.h"
#include "components/support/EditorFrame.h"
#include "components/support/LayoutPosition.h"
#include "resource/ZELResourceMgr.h"

#include <utility>

namespace PANFx::Components {

using Resource::ZELResourceMgr;
using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

ZELEditRange::ZELEditRange(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELRange(pParent, std::move(strID), std::move(strType), pLayout)
{
    createSubComponent(pLayout);
    showSubComponent();
    ZELEditRange::setLayout(pLayout);
    ZELEditRange::setStep(m_nStep);
}

ZELEditRange::~ZELEditRange()
{
    deleteLiving(*this, m_pEditor);
}

void ZELEditRange::showWindow()
{
    setVisible(true);
}

void ZELEditRange::hideWindow()
{
    setVisible(false);
}

QWidget* ZELEditRange::getQWidget()
{
    return this;
}

void ZELEditRange::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    setGeometry(readPosition(pLayout->getNodeByName("position"), {0, 0, 1, 1}).rect());
    if (Node* param = pLayout->getNodeByName("param"))
        readParam(param);
    if (makeButtons(pLayout))
        makeEditor(pLayout);
}

void ZELEditRange::readParam(Node* pParam)
{
    m_nMax = pParam->getAttributeSize();
    m_logger.WriteDebug("The number of parameters : %d", m_nMax);
    for (int i = 0; i < m_nMax; ++i)
        m_arrParam.Add(pParam->getAttribute(i)->getValue());
}

// The buttons read the range's own element first, which is how both get "longpress".
bool ZELEditRange::makeButtons(Node* pLayout)
{
    Node* up = pLayout->getNodeByName("upbtn");
    if (!up) {
        m_logger.WriteError("[%s] UpBtn Node is NULL", "setLayout");
        return false;
    }
    m_pUpBtn = new ZELImageButton(this, "upbtn", "ZELImageButton", pLayout);
    dressButton(*m_pUpBtn, up);
    Node* down = pLayout->getNodeByName("downbtn");
    if (!down) {
        m_logger.WriteError("[%s] DownBtn Node is NULL", "setLayout");
        return true;
    }
    m_pDownBtn = new ZELImageButton(this, "downbtn", "ZELImageButton", pLayout);
    dressButton(*m_pDownBtn, down);
    return true;
}

// A missing editor is told as the button is: logs are compared.
void ZELEditRange::makeEditor(Node* pLayout)
{
    Node* node = pLayout->getNodeByName("editor");
    if (!node) {
        m_logger.WriteError("[%s] DownBtn Node is NULL", "setLayout");
        return;
    }
    m_pEditor = new ZELImageEdit(this, "editor", "ZELImageEdit", nullptr);
    m_pEditor->setGeometry(readPosition(node, {0, 0, 1, 1}).rect());
    m_pEditor->setPadding(0, 0, m_pEditor->width(), m_pEditor->height());
    Attribute* style = pLayout->getAttributeByName("style");
    m_pEditor->setFont(ZELResourceMgr::getInstance()->getFont(style ? style->getValue() : ""));
    m_pEditor->setAlign(Qt::AlignCenter);
    if (const auto names = readFrameNames(pLayout, "editor")) {
        m_pEditor->setDownImage(names->start, names->mid, names->end);
        m_pEditor->setUpImage(names->start, names->mid, names->end, true);
        m_pEditor->setDimImage(names->start, names->mid, names->end);
    }
}

std::string ZELEditRange::getParam(int nIndex)
{
    if (m_arrParam.Count() == 0)
        return {};
    if (nIndex < 0 || nIndex >= m_arrParam.Count())
        m_logger.WriteError("[%s] %s has no text %d", "getParam", m_strID.c_str(), nIndex);
    return m_arrParam.AtString(nIndex);
}

void ZELEditRange::setStep(int nStep)
{
    if (m_bWrap)
        dimButtons(false, false);
    moveWithin(nStep, m_nMax - 1);
    if (isAlive(m_pEditor)) {
        const std::string text = ZELResourceMgr::getInstance()->getLocaleString(getParam(m_nStep));
        m_pEditor->setText(text.c_str());
    }
    repaint();
}

void ZELEditRange::setEnable(bool bEnable)
{
    enableButtons(bEnable);
    if (isAlive(m_pEditor))
        m_pEditor->setDimMode(!bEnable);
    setEnabled(bEnable);
}

void ZELEditRange::paintEvent(QPaintEvent*) {}

bool ZELEditRange::event(QEvent* pEvent)
{
    return handleClick(pEvent, m_logger) || QWidget::event(pEvent);
}

} // namespace PANFx::Components

#include "components/lists/ZELList.h"

#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/SubComponents.h"
#include "components/buttons/ZELCheckButton.h"
#include "components/buttons/ZELRadioButton.h"
#include "components/lists/ListHop.h"
#include "components/lists/ZELListHeader.h"
#include "components/lists/ZELListScroll.h"
#include "components/support/LayoutPosition.h"
#include "components/support/Painting.h"
#include "components/support/Picture.h"
#include "components/support/PostToParent.h"
#include "components/support/ReceivedEvent.h"
#include "events/EventNumbers.h"
#include "events/ZELListEvent.h"
#include "events/ZELRangeEvent.h"
#include "resource/ParseHelper.h"

#include <QPainter>

#include <memory>
#include <optional>
#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

constexpr int focusOfItem = 32; // from the focus events of a cell to those of a list

std::optional<bool> checkedState(ZELComponent& cell, bool inHeader)
{
    if (cell.m_strType == "ZELCheckButton")
        return static_cast<ZELCheckButton&>(cell).m_bChecked;
    if (!inHeader && cell.m_strType == "ZELRadioButton")
        return static_cast<ZELRadioButton&>(cell).m_bChecked;
    return std::nullopt;
}

QEvent::Type clickNumber(std::optional<bool> checked, bool inHeader)
{
    if (!checked)
        return inHeader ? EVENT_LIST_HEADER_CLICK : EVENT_LIST_ITEM_CLICK;
    if (inHeader)
        return *checked ? EVENT_LIST_HEADER_CHECKED : EVENT_LIST_HEADER_UNCHECKED;
    return *checked ? EVENT_LIST_ITEM_CHECKED : EVENT_LIST_ITEM_UNCHECKED;
}

} // namespace

ZELList::ZELList(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    createSubComponent(pLayout);
    showSubComponent();
    m_pListScroll = static_cast<ZELListScroll*>(firstOfType(*this, "ZELListScroll"));
    m_pListHeader = static_cast<ZELListHeader*>(firstOfType(*this, "ZELListHeader"));
    ZELList::setLayout(pLayout);
}

ZELList::~ZELList() = default;

void ZELList::showWindow()
{
    setVisible(true);
}

void ZELList::hideWindow()
{
    setVisible(false);
}

QWidget* ZELList::getQWidget()
{
    return this;
}

void ZELList::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    setGeometry(readPosition(pLayout->getNodeByName("position"), {0, 0, 0, 0}).rect());
    Node* image = pLayout->getNodeByName("image");
    if (!image) {
        m_logger.WriteDebug("[%s] Background Node is NULL", "setLayout");
        return;
    }
    readBackground(image);
    addListItem();
}

void ZELList::readBackground(Node* pImage)
{
    // a list that wants no picture names none, which is no fault
    if (Attribute* file = pImage->getAttributeByName("file")) {
        m_pBGPixmap = findPicture(file->getValue());
        if (!m_pBGPixmap)
            m_logger.WriteDebug("[%s]  no BackgroundImage File", "setLayout");
    }
    ParseHelper::getPosition(pImage, m_nBGX, m_nBGY, m_nBGWidth, m_nBGHeight);
}

int ZELList::getNowPage()
{
    return isPartOf(this, m_pListScroll) ? m_pListScroll->m_nNowPage : -1;
}

void ZELList::setNowPage(int nPage)
{
    if (isPartOf(this, m_pListScroll))
        m_pListScroll->setListNowPage(nPage);
}

void ZELList::setTotalPage(int nTotal)
{
    if (isPartOf(this, m_pListScroll))
        m_pListScroll->setListTotalPage(nTotal);
}

ZELComponent* ZELList::getListItem(int nRow)
{
    if (nRow >= m_arrItemId.Count())
        return nullptr;
    if (nRow < 0) {
        m_logger.WriteError("[%s] %s has no row %d", "getListItem", m_strID.c_str(), nRow);
        return nullptr;
    }
    return getSubComponent(m_arrItemId.AtString(nRow));
}

ZELComponent* ZELList::getItemComponent(int nRow, int nColumn)
{
    ZELComponent* row = nRow < 0 ? nullptr : getListItem(nRow);
    ZELComponent* cell = row ? subComponentAt(*row, nColumn) : nullptr;
    if (!cell)
        m_logger.WriteError("[%s] %s has no cell (%d, %d)", "getItemComponent", m_strID.c_str(),
                            nRow, nColumn);
    return cell;
}

ZELListHeader* ZELList::header(const char* pszOperation)
{
    if (isPartOf(this, m_pListHeader))
        return m_pListHeader;
    m_logger.WriteError("[%s] %s has no header", pszOperation, m_strID.c_str());
    return nullptr;
}

ZELComponent* ZELList::getHeaderComponent(int nColumn)
{
    ZELListHeader* row = header("getHeaderComponent");
    return row ? row->getSubComponent(nColumn) : nullptr;
}

ZELComponent* ZELList::getHeaderComponent(std::string strID)
{
    ZELListHeader* row = header("getHeaderComponent");
    return row ? row->getSubComponent(std::move(strID)) : nullptr;
}

void ZELList::addListItem()
{
    numberRows(*this, m_arrItemId);
}

void ZELList::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawPicture(painter, m_pBGPixmap,
                LayoutPosition{m_nBGX, m_nBGY, m_nBGWidth, m_nBGHeight}.rect());
}

bool ZELList::event(QEvent* pEvent)
{
    const QEvent::Type type = pEvent->type();
    if (type < EVENT_MOUSE_UP)
        return QWidget::event(pEvent);
    m_logger.WriteDebug("[%s] start(type:%d)", "event", int(type));
    switch (static_cast<int>(type)) {
    case EVENT_PAGE_UP:
    case EVENT_PAGE_DOWN:
    case EVENT_HEADER_DOWN:
    case EVENT_HEADER_UP:
    case EVENT_MOUSE_UP:
    case EVENT_FOCUS_IN:
    case EVENT_FOCUS_OUT:
        if (ZELEvent* received = receivedEvent(pEvent, m_strID, m_logger))
            forward(*received);
        break;
    default:
        break;
    }
    return true;
}

void ZELList::forward(ZELEvent& event)
{
    const QEvent::Type type = event.type();
    if (type == EVENT_PAGE_UP || type == EVENT_PAGE_DOWN) {
        if (isOfClass(event, "ZELRangeEvent"))
            postPage(event);
        return;
    }
    if (!isOfClass(event, "ZELListEvent"))
        return;
    const auto& place = static_cast<const ZELListEvent&>(event);
    if (type == EVENT_MOUSE_UP)
        handleClick(place);
    else if (type == EVENT_HEADER_DOWN || type == EVENT_HEADER_UP)
        postPlace(type, place, true);
    else
        postPlace(QEvent::Type(type + focusOfItem), place, place.m_bHeader);
}

// Whether the cell is checked is read now, two steps of the event loop after the touch.
void ZELList::handleClick(const ZELListEvent& event)
{
    ZELComponent* cell = nullptr;
    if (!event.m_bHeader)
        cell = getItemComponent(event.m_nRow, event.m_nColumn);
    else if (isPartOf(this, m_pListHeader))
        cell = subComponentAt(*m_pListHeader, event.m_nColumn);
    if (!cell)
        return;
    postPlace(clickNumber(checkedState(*cell, event.m_bHeader), event.m_bHeader), event,
              event.m_bHeader);
}

void ZELList::postPage(ZELEvent& event)
{
    const int page = static_cast<ZELRangeEvent&>(event).m_nValue;
    postToParent(this, std::make_unique<ZELRangeEvent>(event.type(), this, m_strID, page), m_strID,
                 m_logger, "event");
}

void ZELList::postPlace(QEvent::Type type, const ZELListEvent& event, bool bHeader)
{
    postToParent(
        this,
        std::make_unique<ZELListEvent>(type, this, m_strID, event.m_nRow, event.m_nColumn, bHeader),
        m_strID, m_logger, "event");
}

} // namespace PANFx::Components

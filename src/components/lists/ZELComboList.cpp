#include "components/lists/ZELComboList.h"

#include "common/Numbers.h"
#include "common/tamfx/Attribute.h"
#include "common/tamfx/Node.h"
#include "components/SubComponents.h"
#include "components/buttons/ButtonKind.h"
#include "components/buttons/ZELImageButton.h"
#include "components/editors/ZELImageEdit.h"
#include "components/lists/ListHop.h"
#include "components/lists/ZELListScroll.h"
#include "components/support/LayoutPosition.h"
#include "components/support/PostToParent.h"
#include "components/support/ReceivedEvent.h"
#include "components/text/ZELLineEdit.h"
#include "events/EventNumbers.h"
#include "events/ZELListEvent.h"
#include "events/ZELRangeEvent.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Attribute;
using TAMFx::Common::Xml::Node;

namespace {

constexpr long long mostLength = 1 << 24; // pixels, beyond every screen

bool hasValue(Node* node, const char* name, const char* value)
{
    Attribute* attribute = node->getAttributeByName(name);
    return attribute && std::strcmp(attribute->getValue(), value) == 0;
}

} // namespace

ZELComboList::ZELComboList(QWidget* pParent, std::string strID, std::string strType, Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    ZELComboList::setLayout(pLayout);
    createSubComponent(pLayout);
    m_pListScroll = static_cast<ZELListScroll*>(firstOfType(*this, "ZELListScroll"));
    addListItem();
    clearItem();
    hideSubComponent();
    setVisible(false);
}

// First of all, as it reaches into the rows, which go with the widget.
ZELComboList::~ZELComboList()
{
    try {
        clearItem();
    } catch (const std::length_error&) {
        m_logger.WriteError("[%s] length error", "~ZELComboList");
    } catch (const std::out_of_range&) {
        m_logger.WriteError("[%s] out of range error", "~ZELComboList");
    } catch (...) {
        m_logger.WriteError("[%s] Exception error", "~ZELComboList");
    }
}

void ZELComboList::showWindow()
{
    setVisible(true);
}

void ZELComboList::hideWindow()
{
    setVisible(false);
}

QWidget* ZELComboList::getQWidget()
{
    return this;
}

void ZELComboList::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    if (hasValue(pLayout, "direction", "UP"))
        m_bUp = true;
    if (Attribute* index = pLayout->getAttributeByName("itemIndex"))
        m_nItemIndex = Common::toInt(index->getValue());
    if (hasValue(pLayout, "sort", "YES"))
        m_bSort = true;
    const LayoutPosition place =
        readPosition(pLayout->getNodeByName("position"), {m_nX, m_nY, m_nWidth, m_nHeight});
    m_nX = heldPixels(place.x);
    m_nY = heldPixels(place.y);
    m_nWidth = heldPixels(place.width);
    m_nHeight = heldPixels(place.height);
    setGeometry(place.rect());
    readImages(pLayout->getNodeByName("image"));
}

void ZELComboList::readImages(Node* pImage)
{
    m_bImage = pImage != nullptr;
    if (!pImage) {
        m_logger.WriteDebug("[%s] pImage is NULL", "setLayout");
        return;
    }
    const auto read = [this, pImage](const char* name, std::string& file) {
        if (Attribute* attribute = pImage->getAttributeByName(name))
            file = attribute->getValue();
        else
            m_bImage = false;
    };
    read("mid", m_strMidImage);
    read("end", m_strEndImage);
    read("press", m_strPressImage);
}

ZELListScroll* ZELComboList::scroll()
{
    return isPartOf(this, m_pListScroll) ? m_pListScroll : nullptr;
}

int ZELComboList::getTotalPage()
{
    return m_nTotalPage;
}

int ZELComboList::getNowPage()
{
    return m_nNowPage;
}

void ZELComboList::setTotalPage(int nTotal)
{
    m_nTotalPage = nTotal;
    if (scroll())
        scroll()->setListTotalPage(nTotal);
}

void ZELComboList::setNowPage(int nPage)
{
    m_nNowPage = nPage;
    if (scroll())
        scroll()->setListNowPage(nPage);
}

void ZELComboList::setEdit(ZELImageEdit* pEdit)
{
    m_pEdit = pEdit;
    m_editWidget = pEdit;
}

ZELImageEdit* ZELComboList::getEdit()
{
    if (!m_editWidget)
        m_pEdit = nullptr;
    return m_pEdit;
}

void ZELComboList::setLineEdit(ZELLineEdit* pLineEdit)
{
    if (!pLineEdit)
        return;
    m_pLineEdit = pLineEdit;
    m_lineEditWidget = pLineEdit;
}

ZELLineEdit* ZELComboList::getLineEdit()
{
    if (!m_lineEditWidget)
        m_pLineEdit = nullptr;
    return m_pLineEdit;
}

int ZELComboList::getItemCount()
{
    return static_cast<int>(m_dequeItem.size());
}

std::string ZELComboList::getItem(int nIndex)
{
    return m_dequeItem.at(static_cast<std::size_t>(nIndex));
}

int ZELComboList::findItem(std::string strText)
{
    const auto found = std::find(m_dequeItem.begin(), m_dequeItem.end(), strText);
    return found == m_dequeItem.end() ? -1 : static_cast<int>(found - m_dequeItem.begin());
}

void ZELComboList::erase(const std::string& strText)
{
    const auto found = std::find(m_dequeItem.begin(), m_dequeItem.end(), strText);
    if (found != m_dequeItem.end())
        m_dequeItem.erase(found);
}

void ZELComboList::addItem(std::string strText)
{
    if (strText.empty())
        return;
    if (findItem(strText) >= 0) {
        if (!m_bSort)
            return;
        erase(strText);
    }
    // a list without rows keeps the newest alone and does not grow for ever
    if (m_nListCount <= 0)
        m_logger.WriteError("[%s] %s has no rows", "addItem", m_strID.c_str());
    if (getItemCount() == std::max(m_nListCount, 1))
        m_dequeItem.pop_front();
    m_dequeItem.push_back(std::move(strText));
    draw();
}

void ZELComboList::removeItem(int nRank)
{
    if (nRank < 0 || nRank >= getItemCount()) {
        m_logger.WriteError("[%s] %s has no item %d", "removeItem", m_strID.c_str(), nRank);
        return;
    }
    m_dequeItem.erase(m_dequeItem.end() - 1 - nRank);
    draw();
}

void ZELComboList::clearItem()
{
    try {
        m_dequeItem.clear();
    } catch (const std::out_of_range&) {
        m_logger.WriteError("[%s] out of range error", "clearItem");
    } catch (...) {
        m_logger.WriteError("[%s] Exception error", "clearItem");
    }
    draw();
}

void ZELComboList::addListItem()
{
    numberRows(*this, m_arrItemId);
    m_nListCount = m_arrItemId.Count();
}

void ZELComboList::draw()
{
    if (m_nListCount == 0)
        return;
    fit();
    for (int row = 0; row < m_nListCount; ++row)
        drawRow(row);
}

// One page shrinks to its entries: from the top where the list opens downward, onto the bottom,
// which lies at the field, where it opens upward.
void ZELComboList::fit()
{
    // entries may be more than rows when rows were deleted, and the product beyond an int
    const long long rowHeight = m_nHeight / m_nListCount;
    const auto heightOf = [rowHeight](int nRows) {
        return static_cast<int>(std::clamp<long long>(nRows * rowHeight, -mostLength, mostLength));
    };
    const bool onePage = m_nTotalPage == 1;
    const int rows = onePage ? getItemCount() : m_nListCount;
    int listWidth = m_nWidth;
    if (onePage && scroll()) {
        scroll()->hideWindow();
        listWidth -= scroll()->width();
    }
    const int top = m_bUp ? m_nY + heightOf(m_nListCount - rows) : y();
    setGeometry(x(), top, listWidth, heightOf(rows));
    if (!onePage && scroll())
        scroll()->showWindow();
}

void ZELComboList::drawRow(int nRow)
{
    const std::string id = m_arrItemId.AtString(nRow);
    if (id.empty()) {
        m_logger.WriteDebug("[ZELComboList::%s] list item ID is NULL", "draw");
        return;
    }
    ZELComponent* row = getSubComponent(id);
    if (!row) {
        m_logger.WriteDebug("[ZELComboList::%s] list item is NULL", "draw");
        return;
    }
    ZELImageButton* button = asImageButton(subComponentAt(*row, m_nItemIndex));
    if (!button) {
        m_logger.WriteDebug("[ZELComboList::%s] button is NULL", "draw");
        return;
    }
    if (nRow < getItemCount()) {
        if (m_bImage)
            writeEntry(*button, nRow);
        row->getQWidget()->setEnabled(true);
        row->showWindow();
    } else if (!scroll()) {
        row->hideWindow();
    } else {
        // an empty, dead row keeps the list's shape
        row->getQWidget()->setEnabled(false);
        button->setTitle("");
        row->showWindow();
    }
}

void ZELComboList::writeEntry(ZELImageButton& button, int nRow)
{
    const int count = getItemCount();
    const bool farthest = m_bUp ? nRow == 0 : nRow + 1 == count;
    button.setImages(m_strPressImage, farthest ? m_strEndImage : m_strMidImage, "");
    button.setTitle(getItem(m_bUp ? nRow : count - (nRow + 1)));
}

void ZELComboList::paintEvent(QPaintEvent*) {}

bool ZELComboList::event(QEvent* pEvent)
{
    if (pEvent->type() < EVENT_MOUSE_UP)
        return QWidget::event(pEvent);
    ZELEvent* received = receivedEvent(pEvent, m_strID, m_logger);
    if (!received)
        return true;
    if (isOfClass(*received, "ZELRangeEvent")) {
        m_nNowPage = static_cast<ZELRangeEvent*>(received)->m_nValue;
        postToParent(this,
                     std::make_unique<ZELRangeEvent>(received->type(), this, m_strID, m_nNowPage),
                     m_strID, m_logger, "event");
    } else if (isOfClass(*received, "ZELListEvent")) {
        handleRow(static_cast<const ZELListEvent&>(*received));
    }
    return true;
}

// Any event in the column of the texts is a choice, also the first tick of a hold.
void ZELComboList::handleRow(const ZELListEvent& event)
{
    if (event.m_nColumn == m_nItemIndex && event.m_pSender)
        choose(event.m_pSender);
    // the event may be an application's own, with any row
    const long long fromTop = getItemCount() - 1LL - event.m_nRow;
    const int rank =
        m_bUp ? static_cast<int>(std::clamp<long long>(fromTop, INT_MIN, INT_MAX)) : event.m_nRow;
    postToParent(
        this,
        std::make_unique<ZELListEvent>(event.type(), this, m_strID, rank, event.m_nColumn, false),
        m_strID, m_logger, "event");
}

void ZELComboList::choose(const QObject* pSender)
{
    ZELImageButton* button = asImageButton(findByWidget(pSender));
    if (!button) {
        m_logger.WriteError("[%s] %s: what was chosen is no button", "event", m_strID.c_str());
        return;
    }
    const std::string text = button->getTitle();
    hand(text);
    if (m_bSort) {
        erase(text);
        addItem(text);
    }
    hideWindow();
}

// A line edit takes the text byte by byte, as it always did.
void ZELComboList::hand(const std::string& strText)
{
    if (ZELImageEdit* edit = getEdit()) {
        edit->setText(strText.c_str());
    } else if (ZELLineEdit* lineEdit = getLineEdit()) {
        lineEdit->setText(QString::fromLatin1(strText.c_str()));
        lineEdit->setShowMode(true);
    } else {
        m_logger.WriteDebug("[%s] %s", "event", "both NULL");
    }
}

} // namespace PANFx::Components

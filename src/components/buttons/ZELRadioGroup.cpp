#include "components/buttons/ZELRadioGroup.h"

#include "common/tamfx/Node.h"
#include "common/tamfx/Object.h"
#include "components/buttons/ZELRadioButton.h"
#include "components/support/LayoutPosition.h"
#include "components/support/PostToParent.h"
#include "components/support/ReceivedEvent.h"
#include "events/EventNumbers.h"
#include "events/ZELEvent.h"

#include <QCoreApplication>
#include <QPointer>

#include <utility>

namespace PANFx::Components {

using TAMFx::Common::Xml::Node;

// A button as an entry of the table, which an application may have deleted since.
class ZELRadioGroup::Entry : public TAMFx::Data::Object
{
public:
    explicit Entry(ZELRadioButton* pButton)
        : m_pButton(pButton)
        , m_alive(pButton)
    {
    }

    ZELRadioButton* button() const { return m_alive ? m_pButton : nullptr; }

private:
    ZELRadioButton* const m_pButton;
    const QPointer<QWidget> m_alive;
};

ZELRadioGroup::ZELRadioGroup(QWidget* pParent, std::string strID, std::string strType,
                             Node* pLayout)
    : ZELComponent(std::move(strID), std::move(strType))
    , QWidget(pParent, Qt::WindowFlags())
{
    m_buttons.setDeleteFlag(false);
    createSubComponent(pLayout);
    showSubComponent();
    ZELRadioGroup::setLayout(pLayout);
    addButton();
}

ZELRadioGroup::~ZELRadioGroup()
{
    m_buttons.ClearAll();
}

void ZELRadioGroup::showWindow()
{
    setVisible(true);
}

void ZELRadioGroup::hideWindow()
{
    setVisible(false);
}

QWidget* ZELRadioGroup::getQWidget()
{
    return this;
}

void ZELRadioGroup::setLayout(Node* pLayout)
{
    if (!pLayout) {
        m_logger.WriteError("[%s] %s pLayout == NULL", "setLayout", m_strID.c_str());
        return;
    }
    const LayoutPosition place = readPosition(pLayout->getNodeByName("position"), {0, 0, 1, 1});
    m_logger.WriteDebug("[%s] setGeometry (%d, %d, %d, %d)", "setLayout", place.x, place.y,
                        place.width, place.height);
    setGeometry(place.rect());
}

void ZELRadioGroup::addButton()
{
    m_buttons.ClearAll();
    m_entries.clear();
    for (int i = 0; i < getComponentCount(); ++i) {
        ZELComponent* component = getSubComponent(i);
        if (!isPartOf(this, component) || component->m_strType != "ZELRadioButton")
            continue;
        m_entries.push_back(std::make_unique<Entry>(static_cast<ZELRadioButton*>(component)));
        m_buttons.AddObj(component->m_strID.c_str(), m_entries.back().get());
    }
}

ZELRadioButton* ZELRadioGroup::buttonAt(int nIndex)
{
    auto* entry = static_cast<Entry*>(m_buttons.getValue(nIndex));
    return entry ? entry->button() : nullptr;
}

ZELRadioButton* ZELRadioGroup::getSelectedButton()
{
    auto* entry = static_cast<Entry*>(m_buttons.getValue(m_strSelected.c_str()));
    return entry ? entry->button() : nullptr;
}

void ZELRadioGroup::setButtonSelect(ZELRadioButton* pButton)
{
    if (!pButton)
        return;
    m_strSelected = pButton->m_strID;
    for (int i = 0; i < m_buttons.getCount(); ++i) {
        if (ZELRadioButton* button = buttonAt(i))
            button->setCheck(button == pButton ? 1 : 0);
    }
}

void ZELRadioGroup::setButtonSelect(int nIndex)
{
    if (nIndex < 0) {
        m_logger.WriteError("[%s] %s has no button %d", "setButtonSelect", m_strID.c_str(), nIndex);
        return;
    }
    if (nIndex < m_buttons.getCount())
        setButtonSelect(buttonAt(nIndex));
}

void ZELRadioGroup::setButtonSelect(const char* pszID)
{
    if (!pszID)
        return;
    m_strSelected = pszID;
    setButtonSelect(getSelectedButton());
}

void ZELRadioGroup::setSelectClear()
{
    for (int i = 0; i < m_buttons.getCount(); ++i) {
        if (ZELRadioButton* button = buttonAt(i))
            button->setCheck(0);
    }
}

void ZELRadioGroup::setDimMode(bool bDimMode, bool bClear)
{
    for (int i = 0; i < m_buttons.getCount(); ++i) {
        ZELRadioButton* button = buttonAt(i);
        if (!button)
            continue;
        button->setDimMode(bDimMode);
        if (bClear)
            button->setCheck(0);
    }
}

void ZELRadioGroup::eventButtonPress(ZELRadioButton* pButton)
{
    if (pButton)
        select(*pButton);
}

// The component itself is left alone: a radio button's own release has checked it already. A
// label inside the group becomes the selected one too, and then no button is.
void ZELRadioGroup::select(const ZELComponent& component)
{
    m_strSelected = component.m_strID;
    for (int i = 0; i < m_buttons.getCount(); ++i) {
        ZELRadioButton* button = buttonAt(i);
        if (button && button != &component)
            button->setCheck(0);
    }
}

bool ZELRadioGroup::event(QEvent* pEvent)
{
    if (pEvent->type() == EVENT_MOUSE_UP) {
        if (const ZELEvent* click = receivedEvent(pEvent, m_strID, m_logger))
            handleClick(click->m_pSender);
    }
    return QWidget::event(pEvent);
}

void ZELRadioGroup::handleClick(const QObject* pSender)
{
    if (pSender) {
        if (const ZELComponent* component = findByWidget(pSender))
            select(*component);
        else
            m_logger.WriteError("[%s] %s does not hold the sender", "event", m_strID.c_str());
    }
    postToParent(this,
                 std::make_unique<ZELEvent>(EVENT_MOUSE_UP, const_cast<QObject*>(pSender), ""),
                 m_strID, m_logger, "event");
}

} // namespace PANFx::Components

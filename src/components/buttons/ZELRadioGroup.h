#pragma once

#include "common/tamfx/HashTable.h"
#include "components/ZELComponent.h"

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

namespace PANFx::Components {

class ZELRadioButton;

/**
 * An invisible container that holds radio buttons, of which one is selected, and passes their
 * clicks on.
 *
 * Layout: child "position"; the other children are type groups of components, as on a page. Only
 * components of the exact type "ZELRadioButton" take part in the selection.
 *
 * Posts EVENT_MOUSE_UP (1552) to its parent for each click inside, with the sender kept and an
 * empty id: the page tells the button by its sender or by getSelectedButton(). At the beginning
 * nothing is selected.
 */
class QTPANFX_EXPORT ZELRadioGroup : public ZELComponent, public QWidget
{
public:
    /**
     * Builds and shows the components of the element, then takes its place and addButton(). A null
     * element is told twice and leaves an empty group.
     */
    ZELRadioGroup(QWidget* pParent, std::string strID, std::string strType,
                  TAMFx::Common::Xml::Node* pLayout);
    ~ZELRadioGroup() override;

    void showWindow() override;
    void hideWindow() override;
    void setLayout(TAMFx::Common::Xml::Node* pLayout) override;
    QWidget* getQWidget() override;

    /** Takes the radio buttons among the sub-components, in their order, in place of the old. */
    void addButton();

    /** The button under the selected id; null when there is none of that id. */
    ZELRadioButton* getSelectedButton();

    /** Selects and checks a button and unchecks the others; null does nothing. */
    void setButtonSelect(ZELRadioButton* pButton);

    /** By position, from 0. A position beyond the last does nothing, nor does a negative one. */
    void setButtonSelect(int nIndex);

    /** By id; an unknown id becomes the selected one and touches no button. Null does nothing. */
    void setButtonSelect(const char* pszID);

    /** Unchecks all buttons; the selected id stays. */
    void setSelectClear();

    /** Dim mode of all buttons. @param bClear unchecks them too */
    void setDimMode(bool bDimMode, bool bClear);

    /** What a click does: selects the button's id and unchecks the others; null does nothing. */
    void eventButtonPress(ZELRadioButton* pButton);

protected:
    bool event(QEvent* pEvent) override;

    TAMFx::Data::Collection::HashTable m_buttons; ///< id to button, delete flag false
    bool m_bFlag = false;                         ///< read by nothing

public:
    std::string m_strSelected; ///< id of the selected button

protected:
    Common::SysLogger m_logger{"QTPANFx", "ZELRadioGroup"};

private:
    class Entry;

    ZELRadioButton* buttonAt(int nIndex);
    void select(const ZELComponent& component);
    void handleClick(const QObject* pSender);

    std::vector<std::unique_ptr<Entry>> m_entries; ///< what the table points to
};

} // namespace PANFx::Components

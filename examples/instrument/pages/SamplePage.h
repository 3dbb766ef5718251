#pragma once

#include "LabelReader.h"
#include "pages/DropDown.h"
#include "pages/KeyboardPage.h"

#include <QString>

namespace PANFx::Components {
class ZELLineEdit;
}

class ZELStringEvent;

/// The name of the next sample, typed on a keyboard or chosen among the last ones, and the code of
/// its label, read by a scanner that acts as a keyboard. A label reader tells both.
class SamplePage : public KeyboardPage
{
public:
    SamplePage(const std::string& strID, InstrumentFrame* pFrame);

    void activating() override;
    void activated() override;

    static constexpr int nameLength = 12; ///< characters

protected:
    bool event(QEvent* pEvent) override;
    QString typedText() override;
    void showTypedText(const QString& strText) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;

private:
    void takeCode();
    void takeLabel(ZELStringEvent& label);
    void showCode(const QString& strCode);
    void keep();

    PANFx::Components::ZELLineEdit* m_pName;
    PANFx::Components::ZELLineEdit* m_pCode;
    DropDown m_recent;
    QString m_strCode; ///< the code that the field shows
    LabelReader m_reader;
};

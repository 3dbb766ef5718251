#pragma once

#include "pages/DropDown.h"
#include "pages/KeyboardPage.h"

#include <QString>

namespace PANFx::Components {
class ZELLineEdit;
}

/// The name of the next sample, typed on a keyboard or chosen among the last ones, and the code of
/// its label, read by a scanner that acts as a keyboard.
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

private:
    void takeCode();
    void keep();

    PANFx::Components::ZELLineEdit* m_pName;
    PANFx::Components::ZELLineEdit* m_pCode;
    DropDown m_recent;
    QString m_strCode; ///< the code that the field shows
};

#pragma once

#include "pages/KeyboardPage.h"

namespace PANFx::Components {
class ZELTextEdit;
}

/// Notes in lines, typed on the keyboard of the panel or on an attached one, wherever the cursor
/// stands.
class NotesPage : public KeyboardPage
{
public:
    NotesPage(const std::string& strID, InstrumentFrame* pFrame);

    void activating() override;
    void activated() override;

protected:
    bool event(QEvent* pEvent) override;
    QString typedText() override;
    void showTypedText(const QString& strText) override;

private:
    void finish();

    PANFx::Components::ZELTextEdit* m_pNotes;
};

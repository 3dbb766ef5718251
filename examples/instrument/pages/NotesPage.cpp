#include "pages/NotesPage.h"

#include "InstrumentFrame.h"

#include "components/text/ZELTextEdit.h"

#include <QTextCursor>

#include <algorithm>

using PANFx::Components::ZELTextEdit;

namespace {

const int notesLength = 2000; // characters in front of the cursor

} // namespace

NotesPage::NotesPage(const std::string& strID, InstrumentFrame* pFrame)
    : KeyboardPage(strID, pFrame, notesLength)
    , m_pNotes(component<ZELTextEdit>("notes", "ZELTextEdit"))
{
    if (m_pNotes != nullptr)
        m_pNotes->setAcceptRichText(false);
}

void NotesPage::activating()
{
    if (m_pNotes != nullptr) {
        m_pNotes->setPlainText(QString::fromStdString(m_pFrame->settings().strNotes));
        m_pNotes->moveCursor(QTextCursor::End);
    }
    KeyboardPage::activating();
}

// So that the cursor is seen and an attached keyboard can be used.
void NotesPage::activated()
{
    if (m_pNotes != nullptr)
        m_pNotes->setFocus();
}

bool NotesPage::event(QEvent* pEvent)
{
    const std::string strID = touchedID(pEvent);
    if (strID == "back")
        finish();
    else if (strID == "enter")
        showTypedText(typedText() + QLatin1Char('\n'));
    else
        return KeyboardPage::event(pEvent);
    return true;
}

QString NotesPage::typedText()
{
    if (m_pNotes == nullptr)
        return QString();
    return m_pNotes->toPlainText().left(m_pNotes->textCursor().selectionStart());
}

// Only what differs is written, so that one can go back key by key, and what is selected goes.
void NotesPage::showTypedText(const QString& strText)
{
    if (m_pNotes == nullptr)
        return;
    const QString strOld = typedText();
    const auto differs =
        std::mismatch(strOld.begin(), strOld.end(), strText.begin(), strText.end());
    const int nSame = static_cast<int>(differs.first - strOld.begin());
    QTextCursor cursor = m_pNotes->textCursor();
    const int nEnd = cursor.selectionEnd();
    cursor.setPosition(nSame);
    cursor.setPosition(nEnd, QTextCursor::KeepAnchor);
    cursor.insertText(strText.mid(nSame));
    m_pNotes->setTextCursor(cursor);
    m_pNotes->ensureCursorVisible();
}

void NotesPage::finish()
{
    if (m_pNotes != nullptr) {
        Settings settings = m_pFrame->settings();
        settings.strNotes = m_pNotes->toPlainText().toStdString();
        m_pFrame->setSettings(settings);
    }
    m_pFrame->moveBack(true);
}

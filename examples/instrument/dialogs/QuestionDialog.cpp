#include "dialogs/QuestionDialog.h"

QuestionDialog::QuestionDialog(InstrumentFrame* pFrame, const std::string& strTitle,
                               const std::string& strNote)
    : InstrumentDialog("question", pFrame)
{
    showText(getSubComponent("title"), localText(strTitle));
    showText(getSubComponent("note"), localText(strNote));
}

bool QuestionDialog::event(QEvent* pEvent)
{
    const std::string strID = touchedID(pEvent);
    if (strID != "yes" && strID != "no")
        return InstrumentDialog::event(pEvent);
    finish(strID == "yes" ? yes : no);
    return true;
}

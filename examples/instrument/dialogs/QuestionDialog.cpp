#include "dialogs/QuestionDialog.h"

QuestionDialog::QuestionDialog(InstrumentFrame* pFrame, const std::string& strTitle,
                               const std::string& strNote, const std::string& strLayout)
    : InstrumentDialog(strLayout, pFrame)
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

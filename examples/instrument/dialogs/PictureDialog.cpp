#include "dialogs/PictureDialog.h"

PictureDialog::PictureDialog(InstrumentFrame* pFrame, const std::string& strPath, bool bSaved)
    : InstrumentDialog("picture", pFrame)
{
    showText(getSubComponent("title"), localText(bSaved ? "@picture.saved" : "@picture.failed"));
    showText(getSubComponent("note"), strPath);
    setPopupTag(bSaved ? strPath : "");
}

bool PictureDialog::event(QEvent* pEvent)
{
    if (touchedID(pEvent) != "close")
        return InstrumentDialog::event(pEvent);
    finish(0);
    return true;
}

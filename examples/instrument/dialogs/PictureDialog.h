#pragma once

#include "dialogs/InstrumentDialog.h"

/// Tells where a picture of the screen went; run it with exec(). Its popup tag is the picture's
/// path, or "" when it could not be saved.
class PictureDialog : public InstrumentDialog
{
public:
    PictureDialog(InstrumentFrame* pFrame, const std::string& strPath, bool bSaved);

protected:
    bool event(QEvent* pEvent) override;
};

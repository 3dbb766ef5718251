#pragma once

#include "ComponentAccess.h"

#include "windows/ZELPopupWindow.h"

#include <QPixmap>

class InstrumentFrame;

/// What the dialogs of this instrument share: below their panel the page can still be seen, in the
/// dark. A derived class handles touches in event(), sets m_nPopupResult, and ends the dialog.
class InstrumentDialog : public PANFx::Windows::ZELPopupWindow
{
public:
    InstrumentDialog(const std::string& strID, InstrumentFrame* pFrame);

    /// Runs before the dialog is shown: takes the picture of the page.
    void activating() override;

protected:
    void paintEvent(QPaintEvent* pEvent) override;

    /// Ends the dialog with a result.
    void finish(int nResult);

private:
    InstrumentFrame* m_pFrame;
    QPixmap m_page;
};

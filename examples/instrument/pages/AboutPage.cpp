#include "pages/AboutPage.h"

#include "InstrumentFrame.h"

#include "components/lists/ZELTextBoard.h"

using PANFx::Components::ZELTextBoard;

// The board turns its pages by itself.
AboutPage::AboutPage(const std::string& strID, InstrumentFrame* pFrame)
    : InstrumentPage(strID, pFrame)
{
    if (auto* pBoard = component<ZELTextBoard>("text", "ZELTextBoard"))
        pBoard->setText(localText("@about.text"));
}

bool AboutPage::event(QEvent* pEvent)
{
    if (touchedID(pEvent) != "back")
        return InstrumentPage::event(pEvent);
    m_pFrame->moveBack(true);
    return true;
}

#include "components/ComponentTable.h"

#include "components/buttons/ZELCheckButton.h"
#include "components/buttons/ZELIconCheckButton.h"
#include "components/buttons/ZELImageButton.h"
#include "components/buttons/ZELRadioButton.h"
#include "components/buttons/ZELRadioGroup.h"
#include "components/containers/ZELBubbleDialog.h"
#include "components/containers/ZELTab.h"
#include "components/containers/ZELTabButton.h"
#include "components/containers/ZELTabPage.h"
#include "components/editors/ZELImageDateEdit.h"
#include "components/editors/ZELImageEdit.h"
#include "components/editors/ZELImageIPEdit.h"
#include "components/editors/ZELImageNumberEdit.h"
#include "components/editors/ZELImageTimeEdit.h"
#include "components/gauges/ZELEditRange.h"
#include "components/gauges/ZELImageProgressBar.h"
#include "components/gauges/ZELProgressRange.h"
#include "components/gauges/ZELRoundProgressBar.h"
#include "components/lists/ZELComboList.h"
#include "components/lists/ZELHeaderButton.h"
#include "components/lists/ZELList.h"
#include "components/lists/ZELListHeader.h"
#include "components/lists/ZELListItem.h"
#include "components/lists/ZELListScroll.h"
#include "components/lists/ZELTextBoard.h"
#include "components/lists/ZELUnitList.h"
#include "components/pads/ZELKeyButton.h"
#include "components/pads/ZELNumPad.h"
#include "components/pictures/ZELChartImageBox.h"
#include "components/pictures/ZELImageBox.h"
#include "components/pictures/ZELPieImageBox.h"
#include "components/text/ZELLabel.h"
#include "components/text/ZELLineEdit.h"
#include "components/text/ZELTextEdit.h"

#include <utility>

namespace PANFx::Components {

namespace {

template <typename Component>
ZELComponent* make(QWidget* pParent, std::string strID, std::string strType,
                   TAMFx::Common::Xml::Node* pLayout)
{
    return new Component(pParent, std::move(strID), std::move(strType), pLayout);
}

} // namespace

const std::vector<ComponentEntry>& componentTable()
{
    static const std::vector<ComponentEntry> table = {
        {"label", "ZELLabel", make<ZELLabel>},
        {"imagebox", "ZELImageBox", make<ZELImageBox>},
        {"imageEdit", "ZELImageEdit", make<ZELImageEdit>},
        {"imageIPEdit", "ZELImageIPEdit", make<ZELImageIPEdit>},
        {"imageDateEdit", "ZELImageDateEdit", make<ZELImageDateEdit>},
        {"imageNumberEdit", "ZELImageNumberEdit", make<ZELImageNumberEdit>},
        {"imageTimeEdit", "ZELImageTimeEdit", make<ZELImageTimeEdit>},
        {"chartimagebox", "ZELChartImageBox", make<ZELChartImageBox>},
        {"range", "ZELProgressRange", make<ZELProgressRange>},
        {"editrange", "ZELEditRange", make<ZELEditRange>},
        {"tab", "ZELTab", make<ZELTab>},
        {"tabpage", "ZELTabPage", make<ZELTabPage>},
        {"imageprogress", "ZELImageProgress",
         make<ZELImageProgressBar>}, // shorter than the class name, as is
        {"roundprogress", "ZELRoundProgress",
         make<ZELRoundProgressBar>}, // the next: applications compare them
        {"pieimagebox", "ZELPieImageBox", make<ZELPieImageBox>},
        {"numpad", "ZELNumPad", make<ZELNumPad>},
        {"bubble", "ZELBubbleDialog", make<ZELBubbleDialog>},
        {"radiogroup", "ZELRadioGroup", make<ZELRadioGroup>},
        {"textboard", "ZELTextBoard", make<ZELTextBoard>},
        {"textedit", "ZELTextEdit", make<ZELTextEdit>},
        {"lineedit", "ZELLineEdit", make<ZELLineEdit>},
    };
    return table;
}

const std::vector<ComponentEntry>& buttonTable()
{
    static const std::vector<ComponentEntry> table = {
        {"button", "ZELImageButton", make<ZELImageButton>},
        {"radiobutton", "ZELRadioButton", make<ZELRadioButton>},
        {"checkbutton", "ZELCheckButton", make<ZELCheckButton>},
        {"iconcheckbutton", "ZELIconCheckButton", make<ZELIconCheckButton>},
        {"keybutton", "ZELKeyButton", make<ZELKeyButton>},
        {"tabbutton", "ZELTabButton", make<ZELTabButton>},
        {"headerbutton", "ZELHeaderButton", make<ZELHeaderButton>},
    };
    return table;
}

const std::vector<ComponentEntry>& listTable()
{
    static const std::vector<ComponentEntry> table = {
        {"list", "ZELList", make<ZELList>},
        {"listscroll", "ZELListScroll", make<ZELListScroll>},
        {"listheader", "ZELListHeader", make<ZELListHeader>},
        {"listitem", "ZELListItem", make<ZELListItem>},
        {"listUnit", "ZELUnitList", make<ZELUnitList>},
        {"listCombo", "ZELComboList", make<ZELComboList>},
    };
    return table;
}

} // namespace PANFx::Components

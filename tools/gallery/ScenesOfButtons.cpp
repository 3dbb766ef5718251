#include "Acts.h"

#include "components/buttons/ZELIconCheckButton.h"
#include "components/buttons/ZELRadioGroup.h"
#include "components/containers/ZELTabButton.h"
#include "components/lists/ZELHeaderButton.h"
#include "components/pads/ZELKeyButton.h"

namespace gallery {

using namespace PANFx::Components;

namespace {

void tapTwice(ZELComponent& component)
{
    tap(component);
    tap(component);
}

void tapAndDim(ZELComponent& component)
{
    tap(component);
    dim<ZELImageButton>(component);
}

std::vector<Scene> pushScenes()
{
    return {{"at rest", atRest}, {"pressed", press}, {"dim", dim<ZELImageButton>}};
}

// pressed, it looks as if it were checked
std::vector<Scene> checkScenes()
{
    return {{"unchecked", atRest},
            {"pressed or checked", tap},
            {"dim", dim<ZELImageButton>},
            {"checked and dim", tapAndDim}};
}

void shift(ZELComponent& component)
{
    as<ZELKeyButton>(component).setShiftMode(1, true);
}

void secondLanguage(ZELComponent& component)
{
    as<ZELKeyButton>(component).changeKeyTitle(2);
}

void shiftSecondLanguage(ZELComponent& component)
{
    as<ZELKeyButton>(component).setShiftMode(2, true);
}

void selectMedium(ZELComponent& component)
{
    as<ZELRadioGroup>(component).setButtonSelect("medium");
}

void dimGroup(ZELComponent& component)
{
    selectMedium(component);
    as<ZELRadioGroup>(component).setDimMode(true, false);
}

std::vector<Scene> keyScenes()
{
    std::vector<Scene> scenes = pushScenes();
    scenes.push_back({"shifted", shift});
    scenes.push_back({"second language", secondLanguage});
    scenes.push_back({"second language, shifted", shiftSecondLanguage});
    return scenes;
}

} // namespace

Room roomOfButtons()
{
    return {
        "Buttons",
        {
            {"button", pushScenes()},
            {"checkbutton", checkScenes()},
            {"iconcheckbutton",
             {{"unchecked", atRest},
              {"pressed", press},
              {"checked", tap},
              {"dim", dim<ZELImageButton>}}},
            {"radiobutton", checkScenes()},
            {"radiogroup",
             {{"none selected", atRest}, {"one selected", selectMedium}, {"dim", dimGroup}}},
            {"keybutton", keyScenes()},
            {"tabbutton",
             {{"unchecked", atRest}, {"checked", press}, {"dim", dim<ZELImageButton>}}},
            {"headerbutton",
             {{"not selected", atRest},
              {"selected", press},
              {"the other direction", tapTwice},
              {"dim", dim<ZELImageButton>}}},
        },
    };
}

} // namespace gallery

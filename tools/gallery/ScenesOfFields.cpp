#include "Acts.h"

#include "components/editors/ZELImageDateEdit.h"
#include "components/editors/ZELImageIPEdit.h"
#include "components/editors/ZELImageNumberEdit.h"
#include "components/editors/ZELImageTimeEdit.h"
#include "components/pads/ZELNumPad.h"

namespace gallery {

using namespace PANFx::Components;

namespace {

using Act = std::function<void(ZELComponent&)>;

Act text(const char* text)
{
    return [text](ZELComponent& component) { as<ZELImageEdit>(component).setText(text); };
}

void asPassword(ZELComponent& component)
{
    as<ZELImageEdit>(component).setEchoMode(1);
    text("secret")(component);
}

void elide(ZELComponent& component)
{
    as<ZELImageEdit>(component).setElidedText(Qt::ElideRight);
    text("A name that is too long")(component);
}

// empty, with a value, focused and dim
std::vector<Scene> fieldScenes(const Act& fill)
{
    return {{"empty", atRest},
            {"with a value", fill},
            {"focused",
             [fill](ZELComponent& component) {
                 fill(component);
                 focus(component);
             }},
            {"dim", [fill](ZELComponent& component) {
                 fill(component);
                 dim<ZELImageEdit>(component);
             }}};
}

void number(ZELComponent& component)
{
    auto& edit = as<ZELImageNumberEdit>(component);
    edit.setDecimalplace(2);
    edit.setRange(0, 14);
    edit.setText("7.25");
}

std::vector<Scene> textScenes()
{
    std::vector<Scene> scenes = fieldScenes(text("Well 3"));
    scenes.push_back({"password", asPassword});
    scenes.push_back({"elided", elide});
    return scenes;
}

std::vector<Scene> padScenes()
{
    const auto kind = [](int type) {
        return [type](ZELComponent& component) { as<ZELNumPad>(component).setType(type); };
    };
    return {{"kind 0", kind(0)},
            {"kind 1", kind(1)},
            {"kind 2", kind(2)},
            {"kind 3", kind(3)},
            {"kind 4", kind(4)},
            {"popped up",
             [](ZELComponent& component) { as<ZELNumPad>(component).setPopupMode(true); }}};
}

} // namespace

Room roomOfFields()
{
    return {
        "Fields",
        {
            {"imageEdit", textScenes()},
            {"imageDateEdit", fieldScenes(text("12252024"))},
            {"imageTimeEdit", fieldScenes(text("14:30"))},
            {"imageIPEdit", fieldScenes(text("192.168.1.20"))},
            {"imageNumberEdit", fieldScenes(number)},
            {"numpad", padScenes()},
        },
    };
}

} // namespace gallery

#include "Acts.h"

#include "components/buttons/ZELCheckButton.h"
#include "components/lists/ZELComboList.h"
#include "components/lists/ZELHeaderButton.h"
#include "components/lists/ZELListScroll.h"
#include "components/lists/ZELUnitList.h"

namespace gallery {

using namespace PANFx::Components;

namespace {

std::function<void(ZELComponent&)> page(int now)
{
    return [now](ZELComponent& component) {
        auto& scroll = as<ZELListScroll>(component);
        scroll.setListTotalPage(3);
        scroll.setListNowPage(now);
    };
}

void threePages(ZELComponent& component)
{
    as<ZELList>(component).setTotalPage(3);
}

void check(ZELComponent& list, int row)
{
    if (ZELComponent* box = as<ZELList>(list).getItemComponent(row, 0))
        tap(*box);
}

void checkOne(ZELComponent& component)
{
    threePages(component);
    check(component, 1);
}

void sort(ZELComponent& component)
{
    as<ZELList>(component).setTotalPage(3);
    as<ZELList>(component).setNowPage(2);
    tap(part<ZELHeaderButton>(component, "time"));
}

void pickAll(ZELComponent& component)
{
    threePages(component);
    for (int row = 0; row < 3; ++row)
        check(component, row);
    as<ZELUnitList>(component).setHeaderCheckButton(1);
}

void sortHeader(ZELComponent& component)
{
    tap(part<ZELHeaderButton>(component, "time"));
}

void checkRow(ZELComponent& component)
{
    tap(part<ZELCheckButton>(component, "pick"));
}

void open(ZELComponent& component)
{
    auto& list = as<ZELComboList>(component);
    for (const char* name : {"Inlet", "Well 4", "Well 3"})
        list.addItem(name);
    list.showWindow();
}

void pressRow(ZELComponent& component)
{
    open(component);
    press(part<ZELImageButton>(component, "text"));
}

} // namespace

Room roomOfLists()
{
    return {
        "Lists",
        {
            {"list", {{"first page", threePages}, {"row checked", checkOne}, {"sorted", sort}}},
            {"listUnit", {{"none picked", threePages}, {"all picked", pickAll}}},
            {"listCombo", {{"open", open}, {"row pressed", pressRow}}},
            {"listheader", {{"at rest", atRest}, {"sorted", sortHeader}}},
            {"listitem", {{"at rest", atRest}, {"checked", checkRow}}},
            {"listscroll",
             {{"first page", page(1)}, {"page between", page(2)}, {"last page", page(3)}}},
        },
    };
}

} // namespace gallery

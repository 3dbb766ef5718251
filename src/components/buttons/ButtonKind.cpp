#include "components/buttons/ButtonKind.h"

#include "components/buttons/ZELImageButton.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace PANFx::Components {

namespace {

constexpr std::array<std::string_view, 7> kinds = {
    "ZELImageButton", "ZELCheckButton", "ZELIconCheckButton", "ZELRadioButton",
    "ZELKeyButton",   "ZELTabButton",   "ZELHeaderButton"};

} // namespace

ZELImageButton* asImageButton(ZELComponent* pComponent)
{
    if (!pComponent || std::find(kinds.begin(), kinds.end(), pComponent->m_strType) == kinds.end())
        return nullptr;
    return static_cast<ZELImageButton*>(pComponent);
}

} // namespace PANFx::Components

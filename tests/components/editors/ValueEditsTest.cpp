// What the editors of dates, times and numbers have in common.

#include "components/editors/EditorTest.h"
#include "components/editors/ZELImageDateEdit.h"
#include "components/editors/ZELImageNumberEdit.h"
#include "components/editors/ZELImageTimeEdit.h"
#include "support/VirtualSlot.h"

using namespace PANFx::Testing;
using namespace PANFx::Components;

namespace {

// an application's class with an operation of its own
template <class Edit>
class Own : public Edit
{
public:
    using Edit::addText;
    using Edit::Edit;

    void addText(const char* text) override { noted += text; }
    virtual void added() {}

    static std::intptr_t lastOfAnEdit() { return slot(&Own::mouseReleaseEvent); }

    std::string noted;
};

template <class Edit>
class ValueEditsTest : public EditorTest
{
};

using ValueEdits = ::testing::Types<ZELImageDateEdit, ZELImageTimeEdit, ZELImageNumberEdit>;
TYPED_TEST_SUITE(ValueEditsTest, ValueEdits, );

} // namespace

TYPED_TEST(ValueEditsTest, aStringIsAddedThroughTheOperationForLiterals)
{
    auto* const edit = this->template make<Own<TypeParam>>("own");
    const std::string before = edit->text();
    edit->addText(std::string("1.2"));
    EXPECT_EQ(edit->noted, "1.2");
    EXPECT_EQ(edit->text(), before);
}

TYPED_TEST(ValueEditsTest, addsNoVirtualOperation)
{
    EXPECT_EQ(slot(&Own<TypeParam>::added), Own<TypeParam>::lastOfAnEdit() + slotSize);
}

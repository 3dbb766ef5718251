// TellOnce is not exported: it is tested through fields that have no style to paint in.

#include "components/editors/ZELImageEdit.h"
#include "components/editors/ZELImageTimeEdit.h"
#include "support/EventLoop.h"
#include "support/PanelTest.h"
#include "support/Pixels.h"

using namespace PANFx::Testing;
using PANFx::Components::ZELImageEdit;
using PANFx::Components::ZELImageTimeEdit;

namespace {

class TellOnceTest : public PanelTest
{
protected:
    TellOnceTest() { writePicture("p.png", 4, 20, Qt::cyan); }

    template <class T>
    T* build(const std::string& keyword, const std::string& id)
    {
        return buildComponent<T>(keyword, "<" + id +
                                              "><imageup start='p.png' mid='p.png' end='p.png'/>" +
                                              "<position width='80' height='20'/></" + id + ">");
    }
};

} // namespace

TEST_F(TellOnceTest, theFirstPaintTellsAndTheNextOnesDoNot)
{
    auto* const edit = build<ZELImageEdit>("imageEdit", "quiet");
    EXPECT_EQ(log().countLevel('E'), 0);
    for (int i = 0; i < 5; ++i)
        Pixels::grab(edit);
    log().expectError("[paintEvent] quiet has no font", 1, "ZELImageEdit");
}

TEST_F(TellOnceTest, eachObjectTellsForItself)
{
    for (const char* const id : {"one", "two"}) {
        Pixels::grab(build<ZELImageEdit>("imageEdit", id));
        log().expectError("[paintEvent] " + std::string(id) + " has no font", 1, "ZELImageEdit");
    }
}

TEST_F(TellOnceTest, whatWasToldOfOneOperationIsNotToldOfTheNext)
{
    log().expectError("[ZELImageTimeEdit] time has no font", 1, "ZELImageTimeEdit");
    Pixels::grab(build<ZELImageTimeEdit>("imageTimeEdit", "time"));
}

TEST_F(TellOnceTest, anIdIsNoFormat)
{
    expectNullLayoutLines("50%d");
    ZELImageEdit edit(&panel(), "50%d", "ZELImageEdit", nullptr);
    edit.setUpImage("p.png", "p.png", "p.png", true);
    Pixels::grab(&edit);
    log().expectError("[paintEvent] 50%d has no font", 1, "ZELImageEdit");
}

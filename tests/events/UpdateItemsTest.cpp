#include "events/UpdateItems.h"

#include "common/tamfx/Object.h"
#include "events/ZELUpdateInfoEvent.h"
#include "events/ZELUpdateStatusEvent.h"
#include "support/LogCapture.h"
#include "support/ResourceFaults.h"

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace PANFx::Testing;

namespace {

// The end of an event of three items, at the second of which something is thrown.
template <class Event, class Item>
void expectEndAtTheSecondItem(void (Event::*add)(Item*), Item item, const char* destructor)
{
    for (const bool range : {true, false}) {
        auto event = std::make_unique<Event>(QEvent::Type(2000));
        for (int i = 0; i < 3; ++i)
            (event.get()->*add)(&item);
        // what the walk does not reach is not freed
        std::vector<std::unique_ptr<TAMFx::Data::Object>> left;
        for (int i = 1; i < 3; ++i)
            left.emplace_back(event->m_arrItem.At(i));
        std::vector<int> asked;
        ResourceFaults faults;
        faults.onListEntry = [&](int index) {
            asked.push_back(index);
            if (index == 1 && range)
                throw std::out_of_range("");
            if (index == 1)
                throw 7;
        };
        LogCapture::instance().expectError(std::string("[") + destructor + "] " +
                                               (range ? "out of range error" : "Exception error"),
                                           1, "Unknown");
        event.reset();
        EXPECT_EQ(asked, (std::vector<int>{0, 1})) << "the walk ends there";
        LogCapture::instance().verify();
    }
}

} // namespace

TEST(UpdateItems, whatIsThrownAtTheEndOfAnEventIsToldAndStaysInside)
{
    expectEndAtTheSecondItem(&ZELUpdateInfoEvent::addUpdateItem, ZELUpdateInfoItem(0, "1.0"),
                             "~ZELUpdateInfoEvent");
    expectEndAtTheSecondItem(&ZELUpdateStatusEvent::addUpdateStatusItem, ZELUpdateStatusItem(0, 50),
                             "~ZELUpdateStatusEvent");
}

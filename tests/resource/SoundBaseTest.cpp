#include "resource/SoundBase.h"

#include "support/SoundProbe.h"

#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

using PANFx::Resource::SoundBase;
using PANFx::Testing::SoundProbe;

namespace {

// where a virtual operation stands among the others of its class, in bytes
template <typename Operation>
std::intptr_t slot(Operation operation)
{
    std::intptr_t place = 0;
    static_assert(sizeof operation >= sizeof place);
    std::memcpy(&place, &operation, sizeof place);
    return place;
}

} // namespace

TEST(SoundBase, isAbstractAndDeletedThroughItsBase)
{
    EXPECT_TRUE(std::is_abstract_v<SoundBase>);
    const auto sounds = std::make_shared<SoundProbe::Sounds>();
    std::unique_ptr<SoundBase>(new SoundProbe(sounds)).reset();
    EXPECT_EQ(*sounds, SoundProbe::Sounds{"deleted"});
}

TEST(SoundBase, hasItsOperationsInTheirFixedOrder)
{
    const auto word = static_cast<std::intptr_t>(sizeof(void*));
    const std::intptr_t table[] = {
        slot(&SoundBase::initialize),        slot(&SoundBase::playSound),
        slot(&SoundBase::playSystemSound),   slot(&SoundBase::playTouchSound),
        slot(&SoundBase::playAlertSound),    slot(&SoundBase::playPopupSound),
        slot(&SoundBase::playCompleteSound), slot(&SoundBase::playVoiceSound),
        slot(&SoundBase::playWarningSound),
    };
    std::intptr_t place = 2; // a virtual destructor takes two places
    for (const std::intptr_t found : table)
        EXPECT_EQ(found / word, place++);
}

TEST(SoundBase, theApplicationsOwnOperationDoesNothingByItself)
{
    const auto sounds = std::make_shared<SoundProbe::Sounds>();
    SoundProbe probe(sounds);
    probe.SoundBase::initialize();
    EXPECT_TRUE(sounds->empty());
}

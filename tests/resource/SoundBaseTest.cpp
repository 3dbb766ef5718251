#include "resource/SoundBase.h"

#include "support/SoundProbe.h"
#include "support/VirtualSlot.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

using PANFx::Resource::SoundBase;
using PANFx::Testing::slot;
using PANFx::Testing::SoundProbe;

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

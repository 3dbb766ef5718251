#include "resource/SoundFactory.h"

#include "support/LogCapture.h"
#include "support/SoundProbe.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <type_traits>

using namespace PANFx::Testing;
using PANFx::Resource::SoundBase;
using PANFx::Resource::SoundFactory;

namespace {

using Sounds = SoundProbe::Sounds;

class SoundFactoryTest : public ::testing::Test
{
protected:
    SoundFactoryTest() { SoundFactory::destroyInstance(); }
    ~SoundFactoryTest() override { SoundFactory::destroyInstance(); }

    static void playAll()
    {
        SoundFactory* const sounds = SoundFactory::getInstance();
        sounds->playTouchSound();
        sounds->playAlertSound();
        sounds->playPopupSound();
        sounds->playCompleteSound();
        sounds->playWarningSound();
        sounds->playSystemSound("boot");
        sounds->playVoiceSound("door");
        sounds->playSound("file", 1, -2);
    }

    Sounds takeSounds() { return std::exchange(*m_sounds, {}); }

    std::shared_ptr<Sounds> m_sounds = std::make_shared<Sounds>();
};

} // namespace

TEST_F(SoundFactoryTest, isOneInstanceUntilItIsDestroyed)
{
    SoundFactory* const first = SoundFactory::getInstance();
    EXPECT_EQ(SoundFactory::getInstance(), first);
    SoundFactory::getInstance()->registerSound(new SoundProbe(m_sounds));
    SoundFactory::destroyInstance();
    EXPECT_EQ(SoundFactory::getInstance()->getSoundObject(), nullptr) << "a new one";
    SoundFactory::destroyInstance();
    SoundFactory::destroyInstance();
    EXPECT_TRUE(std::has_virtual_destructor_v<SoundFactory>);
}

TEST_F(SoundFactoryTest, isSilentWithoutABackEnd)
{
    EXPECT_EQ(SoundFactory::getInstance()->getSoundObject(), nullptr);
    playAll();
    EXPECT_TRUE(LogCapture::instance().lines().empty());
}

TEST_F(SoundFactoryTest, forwardsEachSoundToTheOperationOfItsName)
{
    auto* const probe = new SoundProbe(m_sounds);
    SoundFactory::getInstance()->registerSound(probe);
    EXPECT_EQ(SoundFactory::getInstance()->getSoundObject(), probe);
    playAll();
    EXPECT_EQ(takeSounds(), (Sounds{"touch", "alert", "popup", "complete", "warning", "system boot",
                                    "voice door", "sound file 1 -2"}));
}

TEST_F(SoundFactoryTest, aNewBackEndLeavesTheFormerAliveAndUnowned)
{
    const auto otherSounds = std::make_shared<Sounds>();
    SoundProbe former(m_sounds);
    SoundFactory::getInstance()->registerSound(&former);
    SoundFactory::getInstance()->registerSound(new SoundProbe(otherSounds));
    playAll();
    EXPECT_EQ(takeSounds(), Sounds{});
    EXPECT_EQ(otherSounds->size(), 8u);
    SoundFactory::destroyInstance();
    EXPECT_EQ(takeSounds(), Sounds{}) << "it is the caller's to delete";
    EXPECT_EQ(otherSounds->back(), "deleted");
}

TEST_F(SoundFactoryTest, nullTurnsTheSoundOff)
{
    SoundProbe former(m_sounds);
    SoundFactory::getInstance()->registerSound(&former);
    SoundFactory::getInstance()->registerSound(nullptr);
    EXPECT_EQ(SoundFactory::getInstance()->getSoundObject(), nullptr);
    playAll();
    SoundFactory::destroyInstance();
    EXPECT_EQ(takeSounds(), Sounds{});
}

TEST_F(SoundFactoryTest, takesTheBackEndWithIt)
{
    SoundFactory::getInstance()->registerSound(new SoundProbe(m_sounds));
    SoundFactory::destroyInstance();
    EXPECT_EQ(takeSounds(), Sounds{"deleted"});
}

TEST_F(SoundFactoryTest, neverCallsTheOperationThatIsTheApplicationsOwn)
{
    SoundFactory::getInstance()->registerSound(new SoundProbe(m_sounds));
    playAll();
    for (const std::string& sound : takeSounds())
        EXPECT_NE(sound, "initialize");
}

TEST_F(SoundFactoryTest, hasALoggerOfItsName)
{
    class Open : public SoundFactory
    {
    public:
        using SoundFactory::m_logger;
    };
    EXPECT_EQ(Open().m_logger.m_strIdentity, "QTPANFx SoundFactory   ");
}

TEST_F(SoundFactoryTest, writesNothingWhateverHappens)
{
    SoundProbe former(m_sounds);
    SoundFactory* const sounds = SoundFactory::getInstance();
    sounds->registerSound(&former);
    playAll();
    sounds->registerSound(new SoundProbe(m_sounds));
    sounds->registerSound(sounds->getSoundObject());
    playAll();
    SoundFactory::destroyInstance();
    EXPECT_EQ(takeSounds().size(), 17u) << "it did happen";
    EXPECT_TRUE(LogCapture::instance().lines().empty());
}

TEST_F(SoundFactoryTest, aBackEndMayPlayAndAskAsItEnds)
{
    class Last : public SoundProbe
    {
    public:
        using SoundProbe::SoundProbe;
        ~Last() override
        {
            EXPECT_EQ(SoundFactory::getInstance()->getSoundObject(), nullptr);
            playAll(); // there is no back end any more
        }
    };
    SoundFactory::getInstance()->registerSound(new Last(m_sounds));
    SoundFactory::destroyInstance();
    EXPECT_EQ(takeSounds(), Sounds{"deleted"});
}

#include "sound/SoundEngine.h"

#include "TestSupport.h"
#include "platform/twins/RecordingAudio.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;
typedef std::vector<std::string> CStrings;
typedef std::pair<uint32_t, std::string> CLoad;

class SoundEngine : public ::testing::Test
{
protected:
    SoundEngine() { m_Sound.m_pAudio = &m_Audio; }

    void StartPlaylist(const CStrings& vFiles)
    {
        m_Sound.m_vMusicFiles = vFiles;
        m_Sound.PlayMusic(vFiles[0], false);
    }
    // A frame just before the playing track ends, then one just after.
    void EndTrack()
    {
        m_Audio.m_uiMusicLength = 1000;
        m_Audio.m_uiMusicPosition = 999;
        m_Sound.Update(true, m_uiIndex);
        m_Audio.m_uiMusicPosition = 1000;
        m_Sound.Update(true, m_uiIndex);
    }
    CStrings Opened() const
    {
        CStrings vOpened;
        for(const std::string& Call : m_Audio.m_vMusicCalls)
        {
            if(Call.rfind("open ", 0) == 0)
                vOpened.push_back(Call.substr(5));
        }
        return vOpened;
    }

    CRecordingAudio m_Audio;
    CSoundEngine m_Sound;
    uint32_t m_uiIndex = 0;
};

TEST_F(SoundEngine, WithNoDeviceInitTriesBothRatesAndTheGameGoesOnSilent)
{
    m_Audio.m_bHasDevice = false;
    EXPECT_FALSE(m_Sound.Init());
    EXPECT_EQ(m_Audio.m_vOpenRates, (std::vector<int>{44100, 22050}));
    m_Sound.LoadSounds();
    m_Sound.PlaySound(SOUND_SHOOT);
    m_Sound.PlayMusic("a.mp3", false);
    EXPECT_TRUE(m_Audio.m_vLoaded.empty() && m_Audio.m_vPlayed.empty() && m_Audio.m_vMusicCalls.empty());
    EXPECT_TRUE(m_Sound.IsMusicFinished());
}

TEST_F(SoundEngine, TheSixEffectsLoadByNumberOnceTheDeviceOpens)
{
    EXPECT_TRUE(m_Sound.Init());
    EXPECT_EQ(m_Audio.m_vOpenRates, std::vector<int>{44100});
    m_Sound.LoadSounds();
    ASSERT_EQ(m_Audio.m_vLoaded.size(), size_t(NUM_SOUNDS));
    EXPECT_EQ(m_Audio.m_vLoaded.front(), CLoad(SOUND_HIGHLIGHT, "data/menus/sounds/highlight.wav"));
    EXPECT_EQ(m_Audio.m_vLoaded.back(), CLoad(SOUND_POWER, "data/hud/sounds/power.wav"));
}

TEST_F(SoundEngine, EffectNumbersOutOfRangeAreIgnored)
{
    for(uint32_t uiId : {uint32_t(SOUND_SHOOT), uint32_t(NUM_SOUNDS), UINT32_MAX, uint32_t(SOUND_CHIMES)})
        m_Sound.PlaySound(uiId);
    EXPECT_EQ(m_Audio.m_vPlayed, (std::vector<uint32_t>{SOUND_SHOOT, SOUND_CHIMES}));
}

TEST_F(SoundEngine, TheMusicFolderGivesItsMp3FilesByName)
{
    const CTempFile Readme("", "data/Music/readme.txt");
    const struct CBackHome
    {
        fs::path m_Folder = fs::current_path();
        ~CBackHome() { fs::current_path(m_Folder); }
    } BackHome;
    fs::current_path(fs::path(Readme.Path()).parent_path().parent_path().parent_path());
    EXPECT_FALSE(m_Sound.ScanMusic());
    for(const char* pName : {"b.mp3", "a.mp3", "Intro.MP3"})
        std::ofstream(std::string("data/Music/") + pName) << "music";
    fs::create_directory("data/Music/old.mp3");
    EXPECT_TRUE(m_Sound.ScanMusic());
    ASSERT_EQ(m_Sound.m_vMusicFiles, (CStrings{"data\\Music\\Intro.MP3", "data\\Music\\a.mp3", "data\\Music\\b.mp3"}));
    m_Sound.PlayMusic(m_Sound.m_vMusicFiles[0], false);
    EXPECT_EQ(Opened(), CStrings{"data/Music/Intro.MP3"});
}

TEST_F(SoundEngine, ANewTrackClosesTheOldOneAndPlaysOnceAtTheMusicVolume)
{
    m_Sound.PlayMusic("a.mp3", false);
    m_Sound.SetMusicVolume(100);
    m_Sound.PlayMusic("b.mp3", false);
    EXPECT_EQ(m_Audio.m_vMusicCalls, (CStrings{"open a.mp3", "play once", "volume 255", "volume 100", "close",
                                               "open b.mp3", "play once", "volume 100"}));
}

TEST_F(SoundEngine, ThreeTracksPlayInTurnAndWrapToTheFirst)
{
    StartPlaylist({"a.mp3", "b.mp3", "c.mp3"});
    for(int i = 0; i < 3; i++)
        EndTrack();
    EXPECT_EQ(Opened(), (CStrings{"a.mp3", "b.mp3", "c.mp3", "a.mp3"}));
    EXPECT_EQ(m_uiIndex, 0u);
}

TEST_F(SoundEngine, ATrackThatWontOpenIsPassedOverInTheNextFrame)
{
    m_Audio.m_vMissing = {"b.mp3"};
    StartPlaylist({"a.mp3", "b.mp3", "c.mp3"});
    EndTrack();
    m_Sound.Update(true, m_uiIndex);
    EXPECT_EQ(Opened(), (CStrings{"a.mp3", "b.mp3", "c.mp3"}));
}

TEST_F(SoundEngine, WithoutMusicOrWithAnEmptyListThePlaylistStandsStill)
{
    m_Sound.Update(true, m_uiIndex);
    m_Sound.m_vMusicFiles = {"a.mp3"};
    m_Sound.Update(false, m_uiIndex);
    EXPECT_TRUE(m_Audio.m_vMusicCalls.empty());
}

TEST_F(SoundEngine, TheVolumesAreApartAndHeldToTheScale)
{
    m_Sound.SetEffectsVolume(40);
    m_Sound.SetMusicVolume(300);
    EXPECT_EQ(m_Audio.m_iEffectsVolume, 40);
    EXPECT_EQ(m_Audio.m_vMusicCalls, CStrings{"volume 255"});
    m_Sound.SetEffectsVolume(-3);
    EXPECT_EQ(m_Sound.GetEffectsVolume(), 0);
    EXPECT_EQ(m_Sound.GetMusicVolume(), 255);
}

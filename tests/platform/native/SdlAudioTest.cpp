#include "platform/native/SdlAudio.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <thread>

namespace
{
template <class T> std::string Bytes(T Value)
{
    return std::string(reinterpret_cast<const char*>(&Value), sizeof(Value)); // little-endian, as WAV is
}

// A 16-bit mono WAV of a loud square wave.
std::string SquareWave(uint32_t uiMilliseconds)
{
    const uint32_t uiRate = 22050, uiBytes = 2 * (uiRate * uiMilliseconds / 1000);
    std::string Wav = "RIFF" + Bytes(36 + uiBytes) + "WAVEfmt " + Bytes(16u) + Bytes<uint16_t>(1) + Bytes<uint16_t>(1) +
                      Bytes(uiRate) + Bytes(2 * uiRate) + Bytes<uint16_t>(2) + Bytes<uint16_t>(16) + "data" +
                      Bytes(uiBytes);
    for(uint32_t i = 0; i < uiBytes / 2; i++)
        Wav += Bytes<int16_t>(i / 50 % 2 ? 12000 : -12000);
    return Wav;
}
} // namespace

// SDL's disk driver writes what the mixer plays to a file, so a test can tell silence from sound.
class SoundEngineSdlAudio : public ::testing::Test
{
protected:
    // Runs the device for 300 ms after fnPlay and closes it; true when anything but silence came out.
    bool Heard(const std::function<void(CSdlAudio&)>& fnPlay)
    {
        const std::string Output = std::string(m_Wav.Path()) + ".raw";
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", Output.c_str(), 1);
        {
            CSdlAudio Audio;
            EXPECT_TRUE(Audio.Open(44100));
            fnPlay(Audio);
            std::this_thread::sleep_for(std::chrono::milliseconds(300));
        }
        std::ifstream File(Output, std::ios::binary);
        const std::string Sound((std::istreambuf_iterator<char>(File)), std::istreambuf_iterator<char>());
        EXPECT_FALSE(Sound.empty()) << "the device never ran";
        return Sound.find_first_not_of('\0') != std::string::npos;
    }

    CTempFile m_Wav{SquareWave(250), "beep.wav"};
    CTempFile m_Broken{"not a sound", "broken.wav"};
};

TEST_F(SoundEngineSdlAudio, AnEffectIsHeardUnlessItsFileFailedOrItsVolumeIsDown)
{
    const auto fnPlay = [](const std::string& Path, int iEffectsVolume) {
        return [=](CSdlAudio& Audio) {
            Audio.SetEffectsVolume(iEffectsVolume);
            Audio.LoadEffect(2, Path);
            for(uint32_t uiId : {1u, 2u, 99u})
                Audio.PlayEffect(uiId);
        };
    };
    EXPECT_TRUE(Heard(fnPlay(m_Wav.Path(), 255)));
    EXPECT_FALSE(Heard(fnPlay("no such file.wav", 255)));
    EXPECT_FALSE(Heard(fnPlay(m_Broken.Path(), 255)));
    EXPECT_FALSE(Heard(fnPlay(m_Wav.Path(), 0)));
}

TEST_F(SoundEngineSdlAudio, MusicThatOpensPlaysToItsLengthAndStandsThere)
{
    EXPECT_TRUE(Heard([this](CSdlAudio& Audio) {
        EXPECT_FALSE(Audio.OpenMusic("no such file.mp3") || Audio.OpenMusic(m_Broken.Path()));
        ASSERT_TRUE(Audio.OpenMusic(m_Wav.Path()));
        EXPECT_NEAR(Audio.GetMusicLength(), 250, 2);
        Audio.PlayMusic(false);
        EXPECT_LT(Audio.GetMusicPosition(), Audio.GetMusicLength());
        std::this_thread::sleep_for(std::chrono::milliseconds(400));
        EXPECT_EQ(Audio.GetMusicPosition(), Audio.GetMusicLength());
    }));
}

#pragma once
#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// What the sound engine needs of an audio device: the effects, held by their numbers, and one music stream.
// Paths are paths of this system. Volumes run from 0 to 255; the effects and the music are set apart.
class IAudio
{
public:
    virtual ~IAudio() = default;
    // Starts the device at a mixing rate; false when there is no device to be had.
    virtual bool Open(int iRate) = 0;
    // A file that can't be read leaves that effect silent.
    virtual void LoadEffect(uint32_t uiId, const std::string& Path) = 0;
    // Plays a loaded effect on any free channel; an effect that never loaded plays nothing.
    virtual void PlayEffect(uint32_t uiId) = 0;
    virtual void SetEffectsVolume(int iVolume) = 0;

    // Opens the one music stream; false when the file can't be read.
    virtual bool OpenMusic(const std::string& Path) = 0;
    virtual void PlayMusic(bool bLoop) = 0;
    // Stops the stream and lets it go.
    virtual void CloseMusic() = 0;
    virtual void SetMusicVolume(int iVolume) = 0;
    // In milliseconds. A stream that has played to its end stands at its length.
    virtual uint32_t GetMusicPosition() = 0;
    virtual uint32_t GetMusicLength() = 0;
};

// Plays nothing and remembers what it was asked to do, in order: for tests and headless tools. Tests say
// whether a device is there, which music files can't be read and how far the music has got.
class CRecordingAudio : public IAudio
{
public:
    bool Open(int iRate) override
    {
        m_vOpenRates.push_back(iRate);
        return m_bHasDevice;
    }
    void LoadEffect(uint32_t uiId, const std::string& Path) override { m_vLoaded.emplace_back(uiId, Path); }
    void PlayEffect(uint32_t uiId) override { m_vPlayed.push_back(uiId); }
    void SetEffectsVolume(int iVolume) override { m_iEffectsVolume = iVolume; }

    bool OpenMusic(const std::string& Path) override
    {
        m_vMusicCalls.push_back("open " + Path);
        m_uiMusicPosition = 0;
        return std::find(m_vMissing.begin(), m_vMissing.end(), Path) == m_vMissing.end();
    }
    void PlayMusic(bool bLoop) override { m_vMusicCalls.push_back(bLoop ? "play looped" : "play once"); }
    void CloseMusic() override { m_vMusicCalls.push_back("close"); }
    void SetMusicVolume(int iVolume) override { m_vMusicCalls.push_back("volume " + std::to_string(iVolume)); }
    uint32_t GetMusicPosition() override { return m_uiMusicPosition; }
    uint32_t GetMusicLength() override { return m_uiMusicLength; }

    bool m_bHasDevice = true;
    std::vector<std::string> m_vMissing; // music files that fail to open
    uint32_t m_uiMusicPosition = 0;
    uint32_t m_uiMusicLength = 0;

    std::vector<int> m_vOpenRates;
    std::vector<std::pair<uint32_t, std::string>> m_vLoaded;
    std::vector<uint32_t> m_vPlayed; // effect numbers
    int m_iEffectsVolume = -1;       // -1 until set
    std::vector<std::string> m_vMusicCalls;
};

#pragma once
#include "platform/interfaces/Audio.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

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

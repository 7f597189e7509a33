#pragma once
#include <cstdint>
#include <vector>

// What the sound engine needs of an audio device: play one of the loaded effects by its number.
class IAudio
{
public:
    virtual ~IAudio() = default;
    virtual void PlayEffect(uint32_t uiId) = 0;
};

// Plays nothing and remembers what it was asked to play, in order: for tests and headless tools.
class CRecordingAudio : public IAudio
{
public:
    void PlayEffect(uint32_t uiId) override { m_vPlayed.push_back(uiId); }
    std::vector<uint32_t> m_vPlayed;
};

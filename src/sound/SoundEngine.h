#pragma once
#include <cstdint>

class IAudio;

enum
{
    SOUND_HIGHLIGHT = 0,
    SOUND_CLICK = 1,
    SOUND_SHOOT = 2,
    SOUND_CHIMES = 3,
    SOUND_STICK = 4,
    SOUND_POWER = 5,
    NUM_SOUNDS = 6,
};

// The game's sound effects, by number, played on whatever audio device it was given; with none it is silent.
class CSoundEngine
{
public:
    void PlaySound(uint32_t uiId);

    IAudio* m_pAudio = nullptr;
};

#pragma once
#include <cstdint>
#include <string>
#include <vector>

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

// The game's sound effects, by number, and its background music: every mp3 of the music folder, one after
// the other, for ever, through menus and levels alike. It plays on whatever audio device it was given; with
// none, or when that device can't start, it is silent. It owns nothing of the device, which closes itself.
class CSoundEngine
{
public:
    static constexpr int32_t MAX_VOLUME = 255;
    static constexpr int RATE = 44100;
    static constexpr int FALLBACK_RATE = 22050;

    // Starts the device; on failure the device is let go and the engine stays silent.
    bool Init();
    void LoadSounds();
    // Lists the music folder into m_vMusicFiles; true when anything in it matched, even only folders.
    bool ScanMusic();
    void PlaySound(uint32_t uiId);
    // Replaces the playing track; a file that can't be opened leaves no music, which counts as finished.
    void PlayMusic(const std::string& FileName, bool bLoop);
    bool IsMusicFinished() const;
    // The frame step of the playlist: when the track has finished, the next one, wrapping to the first.
    // The playlist position is the game's.
    void Update(bool bHasMusic, uint32_t& nMusicIndex);
    void SetEffectsVolume(int32_t nVolume);
    void SetMusicVolume(int32_t nVolume);
    int32_t GetEffectsVolume() const { return m_nEffectsVolume; }
    int32_t GetMusicVolume() const { return m_nMusicVolume; }

    std::vector<std::string> m_vMusicFiles; // game paths, in name order
    bool m_bStreamOpen = false;
    int32_t m_nMusicVolume = MAX_VOLUME;
    int32_t m_nEffectsVolume = MAX_VOLUME;
    IAudio* m_pAudio = nullptr;

private:
    void CloseMusic();
};

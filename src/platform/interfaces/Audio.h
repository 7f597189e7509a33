#pragma once
#include <cstdint>
#include <string>

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

#pragma once
#include "platform/interfaces/Audio.h"

#include <SDL_mixer.h>

#include <vector>

// The audio device on SDL_mixer: effects on 32 mixing channels, music on the mixer's own music stream. It
// closes whatever it opened when it goes.
class CSdlAudio : public IAudio
{
public:
    CSdlAudio() = default;
    CSdlAudio(const CSdlAudio&) = delete;
    CSdlAudio& operator=(const CSdlAudio&) = delete;
    ~CSdlAudio() override;

    bool Open(int iRate) override;
    void LoadEffect(uint32_t uiId, const std::string& Path) override;
    void PlayEffect(uint32_t uiId) override;
    void SetEffectsVolume(int iVolume) override;
    bool OpenMusic(const std::string& Path) override;
    void PlayMusic(bool bLoop) override;
    void CloseMusic() override;
    void SetMusicVolume(int iVolume) override;
    uint32_t GetMusicPosition() override;
    uint32_t GetMusicLength() override;

private:
    std::vector<Mix_Chunk*> m_vEffects; // by effect number; null where a file failed to load
    Mix_Music* m_pMusic = nullptr;
    bool m_bOpen = false;
};

#include "platform/native/SdlAudio.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>
#include <cstdint>

namespace
{
constexpr int NUM_CHANNELS = 32;
constexpr int STEREO = 2;
constexpr int CHUNK_BYTES = 1024;
constexpr int GAME_MAX_VOLUME = 255;
constexpr double MAX_MILLISECONDS = 4.0e9;
// A stream whose length the decoder can't tell never counts as played out while it plays.
constexpr uint32_t UNKNOWN_LENGTH = UINT32_MAX;

int ToMixerVolume(int iVolume)
{
    return iVolume * MIX_MAX_VOLUME / GAME_MAX_VOLUME;
}

// The mixer gives seconds, and a negative number when it can't tell.
uint32_t ToMilliseconds(double dSeconds)
{
    return static_cast<uint32_t>(std::clamp(dSeconds * 1000.0, 0.0, MAX_MILLISECONDS));
}
} // namespace

CSdlAudio::~CSdlAudio()
{
    CloseMusic();
    for(Mix_Chunk* pEffect : m_vEffects)
        Mix_FreeChunk(pEffect);
    if(!m_bOpen)
        return;
    Mix_CloseAudio();
    Mix_Quit();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

bool CSdlAudio::Open(int iRate)
{
    if(SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
        return false;
    Mix_Init(MIX_INIT_MP3); // without an mp3 decoder each music file simply fails to open
    if(Mix_OpenAudio(iRate, MIX_DEFAULT_FORMAT, STEREO, CHUNK_BYTES) != 0)
    {
        Mix_Quit();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    Mix_AllocateChannels(NUM_CHANNELS);
    m_bOpen = true;
    return true;
}

void CSdlAudio::LoadEffect(uint32_t uiId, const std::string& Path)
{
    if(uiId >= m_vEffects.size())
        m_vEffects.resize(uiId + 1, nullptr);
    Mix_FreeChunk(m_vEffects[uiId]);
    m_vEffects[uiId] = nullptr;
    // The file is closed here rather than by the mixer, which forgets to when it can't tell the format.
    SDL_RWops* pFile = SDL_RWFromFile(Path.c_str(), "rb");
    if(!pFile)
        return;
    m_vEffects[uiId] = Mix_LoadWAV_RW(pFile, 0);
    SDL_RWclose(pFile);
}

void CSdlAudio::PlayEffect(uint32_t uiId)
{
    if(uiId < m_vEffects.size() && m_vEffects[uiId])
        Mix_PlayChannel(-1, m_vEffects[uiId], 0); // with every channel busy the effect is dropped
}

// A master level over every channel, playing or not; the music has a level of its own.
void CSdlAudio::SetEffectsVolume(int iVolume)
{
    Mix_Volume(-1, ToMixerVolume(iVolume));
}

bool CSdlAudio::OpenMusic(const std::string& Path)
{
    m_pMusic = Mix_LoadMUS(Path.c_str());
    return m_pMusic != nullptr;
}

// A stream that fails to start stops at once, which reads as played out.
void CSdlAudio::PlayMusic(bool bLoop)
{
    if(m_pMusic)
        Mix_PlayMusic(m_pMusic, bLoop ? -1 : 1);
}

void CSdlAudio::CloseMusic()
{
    Mix_FreeMusic(m_pMusic); // stops it first if it plays
    m_pMusic = nullptr;
}

void CSdlAudio::SetMusicVolume(int iVolume)
{
    Mix_VolumeMusic(ToMixerVolume(iVolume));
}

// The mixer keeps no position for a stream it has stopped, so one that has ended is put at its length.
uint32_t CSdlAudio::GetMusicPosition()
{
    if(!m_pMusic || !Mix_PlayingMusic())
        return GetMusicLength();
    return ToMilliseconds(Mix_GetMusicPosition(m_pMusic));
}

uint32_t CSdlAudio::GetMusicLength()
{
    if(!m_pMusic)
        return 0;
    const double dSeconds = Mix_MusicDuration(m_pMusic);
    return dSeconds > 0.0 ? ToMilliseconds(dSeconds) : UNKNOWN_LENGTH;
}

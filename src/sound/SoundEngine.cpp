#include "sound/SoundEngine.h"

#include "platform/interfaces/Audio.h"
#include "platform/interfaces/Paths.h"
#include "sound/FolderSearch.h"

#include <algorithm>

namespace
{
// By sound number.
const char* const SOUND_FILES[NUM_SOUNDS] = {
    "data\\menus\\sounds\\highlight.wav", "data\\menus\\sounds\\click.wav", "data\\hud\\sounds\\shoot.wav",
    "data\\hud\\sounds\\chimes.wav",      "data\\hud\\sounds\\stick.wav",   "data\\hud\\sounds\\power.wav",
};
const char MUSIC_FOLDER[] = "data\\Music\\";
const char MUSIC_EXTENSION[] = ".mp3";
} // namespace

bool CSoundEngine::Init()
{
    if(m_pAudio && (m_pAudio->Open(RATE) || m_pAudio->Open(FALLBACK_RATE)))
        return true;
    m_pAudio = nullptr;
    return false;
}

// Loaded once, here, so that no effect costs file work in the middle of the play rules.
void CSoundEngine::LoadSounds()
{
    if(!m_pAudio)
        return;
    for(uint32_t uiId = 0; uiId < NUM_SOUNDS; uiId++)
        m_pAudio->LoadEffect(uiId, NativePath(SOUND_FILES[uiId]));
}

bool CSoundEngine::ScanMusic()
{
    const std::vector<CFolderMatch> vMatches = FindMatches(NativePath(MUSIC_FOLDER), MUSIC_EXTENSION);
    for(const CFolderMatch& Match : vMatches)
    {
        if(!Match.m_bFolder)
            m_vMusicFiles.push_back(MUSIC_FOLDER + Match.m_Name);
    }
    return !vMatches.empty();
}

void CSoundEngine::PlaySound(uint32_t uiId)
{
    if(m_pAudio && uiId < NUM_SOUNDS)
        m_pAudio->PlayEffect(uiId);
}

void CSoundEngine::PlayMusic(const std::string& FileName, bool bLoop)
{
    if(!m_pAudio)
        return;
    CloseMusic();
    m_bStreamOpen = m_pAudio->OpenMusic(NativePath(FileName.c_str()));
    if(!m_bStreamOpen)
        return;
    m_pAudio->PlayMusic(bLoop);
    m_pAudio->SetMusicVolume(m_nMusicVolume);
}

void CSoundEngine::CloseMusic()
{
    if(m_bStreamOpen)
        m_pAudio->CloseMusic();
    m_bStreamOpen = false;
}

bool CSoundEngine::IsMusicFinished() const
{
    return !m_bStreamOpen || m_pAudio->GetMusicPosition() >= m_pAudio->GetMusicLength();
}

// A track that can't be opened counts as finished at once, so the list moves on by one file a frame until
// one plays. The list may be empty though the scan matched, when every match was a folder.
void CSoundEngine::Update(bool bHasMusic, uint32_t& nMusicIndex)
{
    if(!bHasMusic || m_vMusicFiles.empty() || !IsMusicFinished())
        return;
    if(++nMusicIndex >= m_vMusicFiles.size())
        nMusicIndex = 0;
    PlayMusic(m_vMusicFiles[nMusicIndex], false);
}

// The options screen gives 1 to 254; anything else is held to the scale, which the sliders are drawn from.
void CSoundEngine::SetEffectsVolume(int32_t nVolume)
{
    m_nEffectsVolume = std::clamp(nVolume, 0, MAX_VOLUME);
    if(m_pAudio)
        m_pAudio->SetEffectsVolume(m_nEffectsVolume);
}

// Acts on the playing track at once; the next tracks start at it too.
void CSoundEngine::SetMusicVolume(int32_t nVolume)
{
    m_nMusicVolume = std::clamp(nVolume, 0, MAX_VOLUME);
    if(m_pAudio)
        m_pAudio->SetMusicVolume(m_nMusicVolume);
}

#include "sound/SoundEngine.h"

#include "platform/Audio.h"

void CSoundEngine::PlaySound(uint32_t uiId)
{
    if(m_pAudio && uiId < NUM_SOUNDS)
        m_pAudio->PlayEffect(uiId);
}

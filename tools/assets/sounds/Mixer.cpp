#include "sounds/Mixer.h"

#include "sounds/Arrangement.h"
#include "sounds/Echo.h"
#include "sounds/Levels.h"
#include "sounds/Reverb.h"
#include "sounds/Rng.h"
#include "sounds/Voices.h"

#include <algorithm>

namespace
{
// Room after the last bar for the reverb and the final notes to ring out.
constexpr double TAIL_SECONDS = 3.0;
// Headroom left for the encoder, whose output can overshoot the source a little.
constexpr double MUSIC_PEAK_DB = -1.0;
constexpr double FADE_IN_SECONDS = 0.01;
constexpr double ECHO_FEEDBACK = 0.35;
constexpr double ROOM_DAMPING = 0.5;
constexpr float ECHO_TO_ROOM = 0.5f;

struct Buses
{
    Stereo m_Dry;
    Stereo m_Room;
    Stereo m_Echo;

    explicit Buses(std::size_t nSamples) : m_Dry(nSamples), m_Room(nSamples), m_Echo(nSamples) {}
};

void AddInto(Stereo& Bus, const Stereo& Sound, std::size_t nOffset, float fGain)
{
    if(fGain == 0.0f || nOffset >= Bus.Size())
        return;
    const std::size_t nCount = std::min(Sound.Size(), Bus.Size() - nOffset);
    for(std::size_t i = 0; i < nCount; ++i)
    {
        Bus.m_vLeft[nOffset + i] += Sound.m_vLeft[i] * fGain;
        Bus.m_vRight[nOffset + i] += Sound.m_vRight[i] * fGain;
    }
}

void PlayNotes(Buses& Mix, const PieceStyle& Style, const Score& Notes)
{
    const double dSecondsPerBeat = 60.0 / Style.m_dBpm;
    for(std::size_t i = 0; i < Notes.size(); ++i)
    {
        const Note& Played = Notes[i];
        const Patch& Sound = Style.Sound(Played.m_ePart);
        const Stereo Voice = RenderVoice(Played, Sound, dSecondsPerBeat, MixSeed(Style.m_ulSeed, 100000 + i));
        const std::size_t nOffset = SecondsToSamples(std::max(0.0, Played.m_dStart) * dSecondsPerBeat);
        AddInto(Mix.m_Dry, Voice, nOffset, Sound.m_fLevel);
        AddInto(Mix.m_Room, Voice, nOffset, Sound.m_fLevel * Sound.m_fReverb);
        AddInto(Mix.m_Echo, Voice, nOffset, Sound.m_fLevel * Sound.m_fEcho);
    }
}

Stereo Master(Buses& Mix, const PieceStyle& Style)
{
    const Stereo Repeats = Echo(Mix.m_Echo, Style.m_dEchoBeats * 60.0 / Style.m_dBpm, ECHO_FEEDBACK);
    AddInto(Mix.m_Dry, Repeats, 0, 1.0f);
    AddInto(Mix.m_Room, Repeats, 0, ECHO_TO_ROOM);
    AddInto(Mix.m_Dry, Reverberate(Mix.m_Room, Style.m_dRoomSize, ROOM_DAMPING), 0, 1.0f);
    Stereo& Out = Mix.m_Dry;
    for(Mono* pChannel : {&Out.m_vLeft, &Out.m_vRight})
    {
        RemoveDc(*pChannel);
        FadeIn(*pChannel, FADE_IN_SECONDS);
        // Ends in silence, so the next piece of the playlist follows without a jolt.
        FadeOut(*pChannel, Style.m_dFadeSeconds + TAIL_SECONDS);
    }
    NormalisePeak(Out, MUSIC_PEAK_DB);
    return Out;
}
} // namespace

Stereo RenderPiece(const PieceStyle& Style, const Score& Notes)
{
    const double dSeconds = LengthInBeats(Style) * 60.0 / Style.m_dBpm + TAIL_SECONDS;
    Buses Mix(SecondsToSamples(dSeconds));
    PlayNotes(Mix, Style, Notes);
    return Master(Mix, Style);
}

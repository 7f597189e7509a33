#include "sounds/Echo.h"

#include "sounds/Filters.h"

#include <algorithm>

Stereo Echo(const Stereo& Send, double dDelaySeconds, double dFeedback)
{
    const std::size_t nDelay = std::max<std::size_t>(1, SecondsToSamples(dDelaySeconds));
    const float fFeedback = static_cast<float>(dFeedback);
    // Each pass loses some treble, as tape and air would, so the repeats sink behind the music.
    COnePole Darken(3500.0);
    Stereo Wet(Send.Size());
    for(std::size_t i = nDelay; i < Wet.Size(); ++i)
    {
        const std::size_t nThen = i - nDelay;
        const float fInput = 0.5f * (Send.m_vLeft[nThen] + Send.m_vRight[nThen]);
        Wet.m_vLeft[i] = Darken.Low(fInput + fFeedback * Wet.m_vRight[nThen]);
        Wet.m_vRight[i] = fFeedback * Wet.m_vLeft[nThen];
    }
    return Wet;
}

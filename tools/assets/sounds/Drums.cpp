#include "sounds/Drums.h"

#include <string>

namespace
{
float VelocityOf(char cHit)
{
    switch(cHit)
    {
    case 'X': return 1.0f;
    case 'x': return 0.75f;
    case 'o': return 0.45f;
    default: return 0.0f;
    }
}

// Hits after nFirstQuiet (a sixteenth index) are left out, to make room for a fill.
void AddLine(Score& Notes, const std::string& Pattern, Part eDrum, const BarInfo& Bar, std::size_t nFirstQuiet,
             CRng& Humanise)
{
    for(std::size_t i = 0; i < Pattern.size() && i < nFirstQuiet; ++i)
    {
        const float fVelocity = VelocityOf(Pattern[i]);
        if(fVelocity <= 0.0f)
            continue;
        // Hands are never quite even: hats and shakers wander a little in level.
        const bool bLoose = eDrum == Part::Hat || eDrum == Part::Shaker;
        const float fWander = bLoose ? static_cast<float>(Humanise.Unit() - 0.5) * 0.2f : 0.0f;
        Notes.push_back({Bar.m_dStart + 0.25 * static_cast<double>(i), 0.25, 0, fVelocity + fWander, eDrum});
    }
}

void AddFill(Score& Notes, const PieceStyle& Style, const BarInfo& Bar)
{
    const double dLastBeat = Bar.m_dStart + Style.m_nBeatsPerBar - 1;
    static const float RISE[] = {0.45f, 0.6f, 0.75f, 0.9f};
    for(int i = 0; i < 4; ++i)
        Notes.push_back({dLastBeat + 0.25 * i, 0.25, 0, RISE[i], Part::Snare});
}
} // namespace

void AddDrums(Score& Notes, const PieceStyle& Style, const BarInfo& Bar, int nLevel, bool bFill, CRng& Humanise)
{
    if(nLevel <= 0)
        return;
    const DrumPattern& Pattern = nLevel >= 2 ? Style.m_FullDrums : Style.m_LightDrums;
    const std::size_t nSixteenths = static_cast<std::size_t>(Style.m_nBeatsPerBar) * 4;
    const std::size_t nQuietFrom = bFill ? nSixteenths - 4 : nSixteenths;
    AddLine(Notes, Pattern.m_Kick, Part::Kick, Bar, nSixteenths, Humanise);
    AddLine(Notes, Pattern.m_Snare, Part::Snare, Bar, nQuietFrom, Humanise);
    AddLine(Notes, Pattern.m_Hat, Part::Hat, Bar, nQuietFrom, Humanise);
    AddLine(Notes, Pattern.m_Shaker, Part::Shaker, Bar, nSixteenths, Humanise);
    if(bFill)
        AddFill(Notes, Style, Bar);
}

#include "sounds/Composer.h"

#include "sounds/Accompaniment.h"
#include "sounds/Arrangement.h"
#include "sounds/Drums.h"
#include "sounds/Melody.h"

#include <cmath>

namespace
{
// The piece's last chord: the tonic held over a long bass root, ringing out under the fade.
void AddClosingBar(Score& Notes, const PieceStyle& Style, const BarInfo& Bar, const std::vector<int>& vVoicing)
{
    AddPad(Notes, Style, Bar, vVoicing);
    AddBass(Notes, Style.m_Key, Bar, {{0, Style.EighthsPerBar(), BassNote::Root}});
}

// A snare run is wanted where a full-drum section hands over to another section that has drums.
bool WantsFill(const PieceStyle& Style, const std::vector<SectionPlan>& vPlans, std::size_t nSection)
{
    if(!Style.m_bFills || nSection + 1 >= vPlans.size())
        return false;
    return vPlans[nSection].m_pSection->m_nDrums == 2 && vPlans[nSection + 1].m_pSection->m_nDrums > 0;
}

// A chord that stays from one bar to the next is held on, not struck again, so the pad does not swell anew.
void HoldOrAddPad(Score& Notes, const PieceStyle& Style, const BarInfo& Bar, const std::vector<int>& vVoicing,
                  bool bSameChord)
{
    if(bSameChord)
    {
        for(Note& Held : Notes)
        {
            if(Held.m_ePart == Part::Pad && std::fabs(Held.m_dStart + Held.m_dLength - Bar.m_dStart) < 1e-9)
                Held.m_dLength += Style.m_nBeatsPerBar;
        }
        return;
    }
    AddPad(Notes, Style, Bar, vVoicing);
}

void AddSection(Score& Notes, const PieceStyle& Style, const SectionPlan& Plan, bool bFill, CRng& Humanise,
                std::vector<int>& vVoicing)
{
    const Section& Stretch = *Plan.m_pSection;
    for(const BarInfo& Bar : Plan.m_vBars)
    {
        const std::vector<int> vPrevious = vVoicing;
        vVoicing = VoiceChord(Style.m_Key, Bar.m_Chord, vVoicing);
        HoldOrAddPad(Notes, Style, Bar, vVoicing, vVoicing == vPrevious);
        if(Stretch.m_bArp)
            AddArpeggio(Notes, Style, Bar, vVoicing);
        if(Stretch.m_bBass)
            AddBass(Notes, Style.m_Key, Bar, Style.m_vBass);
        const bool bLastBar = Bar.m_nInSection + 1 == static_cast<int>(Plan.m_vBars.size());
        AddDrums(Notes, Style, Bar, Stretch.m_nDrums, bFill && bLastBar, Humanise);
    }
    if(Stretch.m_nTheme >= 0)
        AddMelody(Notes, Style, Plan, Humanise);
}
} // namespace

Score Compose(const PieceStyle& Style)
{
    Score Notes;
    CRng Humanise(MixSeed(Style.m_ulSeed, 7));
    std::vector<int> vVoicing;
    const std::vector<SectionPlan> vPlans = LayOut(Style);
    for(std::size_t nSection = 0; nSection + 1 < vPlans.size(); ++nSection)
        AddSection(Notes, Style, vPlans[nSection], WantsFill(Style, vPlans, nSection), Humanise, vVoicing);
    const BarInfo& Last = vPlans.back().m_vBars.front();
    AddClosingBar(Notes, Style, Last, VoiceChord(Style.m_Key, Last.m_Chord, vVoicing));
    return Notes;
}

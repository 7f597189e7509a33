#include "sounds/Arrangement.h"

namespace
{
// Silence for the closing bar: it belongs to no section of the form.
const Section CLOSING = {1, 0, -1, 0, true, false};

const Chord TONIC = {0, false};

std::vector<SectionPlan> PlainSections(const PieceStyle& Style)
{
    std::vector<SectionPlan> vPlans;
    double dBeat = 0.0;
    for(const Section& Stretch : Style.m_vForm)
    {
        const std::vector<Chord>& vChords = Style.m_vProgressions.at(static_cast<std::size_t>(Stretch.m_nProgression));
        SectionPlan Plan{&Stretch, {}};
        for(int nBar = 0; nBar < Stretch.m_nBars; ++nBar)
        {
            const Chord& Now = vChords[static_cast<std::size_t>(nBar) % vChords.size()];
            Plan.m_vBars.push_back({dBeat, Now, Now, nBar});
            dBeat += Style.m_nBeatsPerBar;
        }
        vPlans.push_back(Plan);
    }
    vPlans.push_back({&CLOSING, {{dBeat, TONIC, TONIC, 0}}});
    return vPlans;
}

// Each bar learns the chord that follows it, across section boundaries too.
void LinkNextChords(std::vector<SectionPlan>& vPlans)
{
    BarInfo* pPrevious = nullptr;
    for(SectionPlan& Plan : vPlans)
    {
        for(BarInfo& Bar : Plan.m_vBars)
        {
            if(pPrevious != nullptr)
                pPrevious->m_NextChord = Bar.m_Chord;
            pPrevious = &Bar;
        }
    }
}
} // namespace

std::vector<SectionPlan> LayOut(const PieceStyle& Style)
{
    std::vector<SectionPlan> vPlans = PlainSections(Style);
    LinkNextChords(vPlans);
    return vPlans;
}

double LengthInBeats(const PieceStyle& Style)
{
    int nBars = 1;
    for(const Section& Stretch : Style.m_vForm)
        nBars += Stretch.m_nBars;
    return static_cast<double>(nBars) * Style.m_nBeatsPerBar;
}

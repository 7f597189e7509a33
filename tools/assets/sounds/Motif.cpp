#include "sounds/Motif.h"

#include <cstdlib>

namespace
{
struct Weighted
{
    std::vector<int> m_vValues;
    double m_dWeight;
};

const Weighted& Pick(CRng& Rng, const std::vector<Weighted>& vChoices)
{
    double dTotal = 0.0;
    for(const Weighted& Choice : vChoices)
        dTotal += Choice.m_dWeight;
    double dRoll = Rng.Unit() * dTotal;
    for(const Weighted& Choice : vChoices)
    {
        dRoll -= Choice.m_dWeight;
        if(dRoll < 0.0)
            return Choice;
    }
    return vChoices.back();
}

// Cells of one or two beats, chosen so that long notes fall on beats and a bar is filled exactly.
std::vector<int> BarRhythm(CRng& Rng, int nEighths, double dBusy)
{
    std::vector<int> vDurations;
    int nAt = 0;
    while(nAt < nEighths)
    {
        const int nLeft = nEighths - nAt;
        std::vector<Weighted> vCells = {{{2}, 1.0}};
        if(nLeft >= 2)
            vCells.push_back({{1, 1}, 2.0 * dBusy});
        if(nLeft >= 4 && nAt % 2 == 0)
        {
            vCells.push_back({{4}, 1.3 * (1.0 - dBusy)});
            vCells.push_back({{3, 1}, 0.7});
        }
        for(int nDuration : nLeft == 1 ? std::vector<int>{1} : Pick(Rng, vCells).m_vValues)
        {
            vDurations.push_back(nDuration);
            nAt += nDuration;
        }
    }
    return vDurations;
}

// Mostly steps, some skips, the odd leap; a leap is followed by a step back the other way, as singers do.
int NextStep(CRng& Rng, int nPrevious)
{
    if(std::abs(nPrevious) >= 3)
        return nPrevious > 0 ? -1 : 1;
    static const std::vector<Weighted> STEPS = {{{-1}, 4.0}, {{1}, 4.0},  {{-2}, 2.5}, {{2}, 2.5}, {{0}, 1.0},
                                                {{3}, 0.9},  {{-3}, 0.9}, {{4}, 0.4},  {{-4}, 0.3}};
    return Pick(Rng, STEPS).m_vValues.front();
}

void Reshape(Motif& Notes, std::size_t nFrom, CRng& Rng)
{
    int nPrevious = 0;
    for(std::size_t i = nFrom; i < Notes.size(); ++i)
    {
        if(i > 0)
            Notes[i].m_nStep = NextStep(Rng, nPrevious);
        nPrevious = Notes[i].m_nStep;
    }
}
} // namespace

Motif MakeMotif(CRng& Rng, int nEighthsPerBar, double dBusy, bool bMayRest)
{
    Motif Notes;
    for(int nDuration : BarRhythm(Rng, nEighthsPerBar, dBusy))
        Notes.push_back({nDuration, 0, false});
    Reshape(Notes, 0, Rng);
    // A rest on the downbeat turns the opening into a pickup; it only works before a short note.
    if(bMayRest && Notes.size() > 2 && Notes.front().m_nEighths == 1 && Rng.Chance(0.5))
        Notes.front().m_bRest = true;
    return Notes;
}

Motif Answer(const Motif& Source, CRng& Rng)
{
    Motif Notes = Source;
    Reshape(Notes, Notes.size() / 2, Rng);
    return Notes;
}

Motif Cadence(const Motif& Source, int nEighthsPerBar)
{
    Motif Notes;
    int nAt = 0;
    for(const MotifNote& Note : Source)
    {
        if(nAt + Note.m_nEighths > nEighthsPerBar / 2)
            break;
        Notes.push_back(Note);
        nAt += Note.m_nEighths;
    }
    Notes.push_back({nEighthsPerBar - nAt, -1, false});
    return Notes;
}

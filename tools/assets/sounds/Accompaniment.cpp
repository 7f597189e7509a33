#include "sounds/Accompaniment.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>

namespace
{
// The pad lives in the middle of the keyboard, under the melody and above the bass.
constexpr int PAD_LOWEST = 52;
constexpr int PAD_HIGHEST = 77;
constexpr int BASS_LOWEST = 33;

int PlaceFrom(int nMidi, int nLowest)
{
    while(nMidi < nLowest)
        nMidi += 12;
    while(nMidi >= nLowest + 12)
        nMidi -= 12;
    return nMidi;
}

int PlaceNear(int nMidi, int nTarget)
{
    return PlaceFrom(nMidi, nTarget - 6);
}

// The chord stacked upwards from its nInversion-th note, its lowest note placed from nLowest.
std::vector<int> Stack(const std::vector<int>& vRootPosition, std::size_t nInversion, int nLowest)
{
    std::vector<int> vNotes;
    for(std::size_t i = 0; i < vRootPosition.size(); ++i)
    {
        const std::size_t nFrom = (i + nInversion) % vRootPosition.size();
        vNotes.push_back(vRootPosition[nFrom] + (nFrom < nInversion ? 12 : 0));
    }
    const int nShift = PlaceFrom(vNotes.front(), nLowest) - vNotes.front();
    for(int& nNote : vNotes)
        nNote += nShift;
    return vNotes;
}

int Distance(const std::vector<int>& vA, const std::vector<int>& vB)
{
    if(vB.empty())
        return std::abs(vA.front() + vA.back() - PAD_LOWEST - PAD_HIGHEST);
    if(vA.size() != vB.size())
        return std::abs(std::accumulate(vA.begin(), vA.end(), 0) / static_cast<int>(vA.size()) -
                        std::accumulate(vB.begin(), vB.end(), 0) / static_cast<int>(vB.size()));
    int nSum = 0;
    for(std::size_t i = 0; i < vA.size(); ++i)
        nSum += std::abs(vA[i] - vB[i]);
    return nSum;
}

int BassRoot(const CKey& Key, const Chord& Harmony)
{
    return PlaceFrom(Key.Midi(Harmony.m_nRoot), BASS_LOWEST);
}

int BassPitch(const CKey& Key, const BarInfo& Bar, BassNote eNote)
{
    const int nRoot = BassRoot(Key, Bar.m_Chord);
    switch(eNote)
    {
    case BassNote::Fifth: return PlaceNear(Key.Midi(Bar.m_Chord.m_nRoot + 4), nRoot + 7);
    case BassNote::Octave: return nRoot + 12;
    case BassNote::Approach: return PlaceNear(Key.Midi(Bar.m_NextChord.m_nRoot - 1), BassRoot(Key, Bar.m_NextChord));
    case BassNote::Root:
    default: return nRoot;
    }
}
} // namespace

std::vector<int> VoiceChord(const CKey& Key, const Chord& Harmony, const std::vector<int>& vPrevious)
{
    std::vector<int> vRootPosition;
    for(int nDegree : ChordDegrees(Harmony))
        vRootPosition.push_back(Key.Midi(nDegree));
    std::vector<int> vBest;
    int nBestDistance = 0;
    for(std::size_t nInversion = 0; nInversion < vRootPosition.size(); ++nInversion)
    {
        const std::vector<int> vCandidate = Stack(vRootPosition, nInversion, PAD_LOWEST);
        const int nDistance = Distance(vCandidate, vPrevious);
        if(vCandidate.back() <= PAD_HIGHEST && (vBest.empty() || nDistance < nBestDistance))
        {
            vBest = vCandidate;
            nBestDistance = nDistance;
        }
    }
    return vBest.empty() ? Stack(vRootPosition, 0, PAD_LOWEST) : vBest;
}

void AddPad(Score& Notes, const PieceStyle& Style, const BarInfo& Bar, const std::vector<int>& vVoicing)
{
    for(int nMidi : vVoicing)
        Notes.push_back({Bar.m_dStart, static_cast<double>(Style.m_nBeatsPerBar), nMidi, 0.7f, Part::Pad});
}

void AddArpeggio(Score& Notes, const PieceStyle& Style, const BarInfo& Bar, const std::vector<int>& vVoicing)
{
    std::vector<int> vTones = vVoicing;
    for(int nMidi : vVoicing)
        vTones.push_back(nMidi + 12);
    const int nSteps = static_cast<int>(std::lround(Style.m_nBeatsPerBar / Style.m_dArpStep));
    for(int nStep = 0; nStep < nSteps; ++nStep)
    {
        const std::size_t nOrder = static_cast<std::size_t>(nStep) % Style.m_vArpOrder.size();
        const std::size_t nTone = static_cast<std::size_t>(Style.m_vArpOrder[nOrder]) % vTones.size();
        const double dOffset = nStep * Style.m_dArpStep;
        const bool bOnBeat = dOffset == static_cast<double>(static_cast<int>(dOffset));
        Notes.push_back({Bar.m_dStart + dOffset, Style.m_dArpStep * 0.9, vTones[nTone] + 12 * Style.m_nArpOctave,
                         bOnBeat ? 0.8f : 0.62f, Part::Arp});
    }
}

void AddBass(Score& Notes, const CKey& Key, const BarInfo& Bar, const std::vector<BassHit>& vPattern)
{
    for(const BassHit& Hit : vPattern)
    {
        const float fVelocity = Hit.m_nEighth == 0 ? 0.9f : 0.75f;
        Notes.push_back({Bar.m_dStart + 0.5 * Hit.m_nEighth, 0.5 * Hit.m_nEighths * 0.92,
                         BassPitch(Key, Bar, Hit.m_eNote), fVelocity, Part::Bass});
    }
}

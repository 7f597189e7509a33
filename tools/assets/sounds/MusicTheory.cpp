#include "sounds/MusicTheory.h"

const Mode MAJOR = {0, 2, 4, 5, 7, 9, 11};
const Mode MINOR = {0, 2, 3, 5, 7, 8, 10};
const Mode LYDIAN = {0, 2, 4, 6, 7, 9, 11};
const Mode DORIAN = {0, 2, 3, 5, 7, 9, 10};

int DegreeClass(int nDegree)
{
    return ((nDegree % 7) + 7) % 7;
}

int CKey::Midi(int nDegree) const
{
    const int nOctave = (nDegree - DegreeClass(nDegree)) / 7;
    return m_nTonic + 12 * nOctave + m_Steps[static_cast<std::size_t>(DegreeClass(nDegree))];
}

std::vector<int> ChordDegrees(const Chord& Harmony)
{
    std::vector<int> vDegrees = {Harmony.m_nRoot, Harmony.m_nRoot + 2, Harmony.m_nRoot + 4};
    if(Harmony.m_bSeventh)
        vDegrees.push_back(Harmony.m_nRoot + 6);
    return vDegrees;
}

bool IsChordTone(int nDegree, const Chord& Harmony)
{
    const int nAboveRoot = DegreeClass(nDegree - Harmony.m_nRoot);
    return nAboveRoot == 0 || nAboveRoot == 2 || nAboveRoot == 4 || (Harmony.m_bSeventh && nAboveRoot == 6);
}

int NearestChordTone(int nDegree, const Chord& Harmony, int nDirection)
{
    const int nFirst = nDirection >= 0 ? 1 : -1;
    for(int nDistance = 0; nDistance < 7; ++nDistance)
    {
        if(IsChordTone(nDegree + nFirst * nDistance, Harmony))
            return nDegree + nFirst * nDistance;
        if(IsChordTone(nDegree - nFirst * nDistance, Harmony))
            return nDegree - nFirst * nDistance;
    }
    return nDegree;
}

#include "sounds/Melody.h"

#include "sounds/Motif.h"

namespace
{
constexpr int PHRASE_BARS = 4;

struct Line
{
    const PieceStyle& m_Style;
    Score& m_Notes;
    CRng& m_Humanise;
    int m_nLowest;
    int m_nHighest;
    int m_nDegree; // the last note's degree, where the next bar's anchor is sought
};

struct Themes
{
    Motif m_Call;
    Motif m_Answer;
    Motif m_SecondAnswer;
    Motif m_Cadence;
};

Themes MakeThemes(const PieceStyle& Style, int nTheme)
{
    CRng Rng(MixSeed(Style.m_ulSeed, 1000 + static_cast<uint64_t>(nTheme)));
    const int nEighths = Style.EighthsPerBar();
    Themes Tunes;
    Tunes.m_Call = MakeMotif(Rng, nEighths, Style.m_dMelodyBusy, true);
    Tunes.m_Answer = MakeMotif(Rng, nEighths, Style.m_dMelodyBusy, false);
    Tunes.m_SecondAnswer = Answer(Tunes.m_Answer, Rng);
    Tunes.m_Cadence = Cadence(Tunes.m_Call, nEighths);
    return Tunes;
}

// Strong beats carry chord tones: the downbeat and, in four, the middle of the bar.
bool IsStrong(const PieceStyle& Style, int nEighth)
{
    return nEighth == 0 || (Style.m_nBeatsPerBar == 4 && nEighth == 4);
}

// Turns back at the edges of the range instead of running off it.
int Fold(const Line& Tune, int nDegree)
{
    if(nDegree > Tune.m_nHighest)
        return 2 * Tune.m_nHighest - nDegree;
    if(nDegree < Tune.m_nLowest)
        return 2 * Tune.m_nLowest - nDegree;
    return nDegree;
}

// The chord tone nearest to nDegree. Where the motif moves (nStep not 0) but that would sound the same note
// again, the tune goes on to the next chord tone that way instead, so moving shapes keep moving.
int Snap(const Line& Tune, int nDegree, const Chord& Harmony, int nStep)
{
    const int nSnapped = NearestChordTone(nDegree, Harmony, nStep);
    if(nStep == 0 || nSnapped != Tune.m_nDegree)
        return nSnapped;
    const int nWay = nStep > 0 ? 1 : -1;
    int nNext = nSnapped + nWay;
    while(!IsChordTone(nNext, Harmony))
        nNext += nWay;
    return Fold(Tune, nNext);
}

// The nearest degree of the tonic, for the last note of a section.
int NearestTonic(int nDegree)
{
    const int nBelow = nDegree - DegreeClass(nDegree);
    return nDegree - nBelow <= 3 ? nBelow : nBelow + 7;
}

void Play(Line& Tune, const BarInfo& Bar, int nEighth, const MotifNote& Note, bool bLast)
{
    const double dBeats = 0.5 * Note.m_nEighths;
    const bool bDownbeat = nEighth == 0;
    const double dNudge = bDownbeat ? 0.0 : (Tune.m_Humanise.Unit() - 0.5) * 0.03;
    const float fAccent = bDownbeat ? 0.1f : (nEighth % 2 == 1 ? -0.08f : 0.0f);
    const float fVelocity = 0.78f + fAccent + static_cast<float>(Tune.m_Humanise.Unit() - 0.5) * 0.08f;
    const double dLength = dBeats * (bLast ? 0.97 : Tune.m_Style.m_dLegato);
    Tune.m_Notes.push_back({Bar.m_dStart + 0.5 * nEighth + dNudge, dLength, Tune.m_Style.m_Key.Midi(Tune.m_nDegree),
                            fVelocity, Part::Lead});
}

// Fits the motif to the bar's chord, starting from the chord tone nearest to where the tune stands.
void PlayBar(Line& Tune, const BarInfo& Bar, const Motif& Shape, bool bHome)
{
    int nEighth = 0;
    for(std::size_t i = 0; i < Shape.size(); ++i)
    {
        const MotifNote& Note = Shape[i];
        const bool bLast = i + 1 == Shape.size();
        int nDegree = Fold(Tune, Tune.m_nDegree + Note.m_nStep);
        if(i == 0 || IsStrong(Tune.m_Style, nEighth) || bLast)
            nDegree = Snap(Tune, nDegree, Bar.m_Chord, i == 0 ? 0 : Note.m_nStep);
        // Home is the tonic where the chord has it; over any other chord the tune rests on a chord tone.
        if(bLast && bHome && IsChordTone(0, Bar.m_Chord))
            nDegree = NearestTonic(nDegree);
        if(!Note.m_bRest)
        {
            Tune.m_nDegree = nDegree;
            Play(Tune, Bar, nEighth, Note, bLast && bHome);
        }
        nEighth += Note.m_nEighths;
    }
}

const Motif& ShapeOfBar(const Themes& Tunes, int nInPhrase, bool bSecondPhrase)
{
    if(nInPhrase == PHRASE_BARS - 1)
        return Tunes.m_Cadence;
    if(nInPhrase == 2)
        return bSecondPhrase ? Tunes.m_SecondAnswer : Tunes.m_Answer;
    return Tunes.m_Call;
}
} // namespace

void AddMelody(Score& Notes, const PieceStyle& Style, const SectionPlan& Plan, CRng& Humanise)
{
    const int nCentre = Style.m_nMelodyCentre + Plan.m_pSection->m_nMelodyLift;
    const Themes Tunes = MakeThemes(Style, Plan.m_pSection->m_nTheme);
    Line Tune{Style, Notes, Humanise, nCentre - 4, nCentre + 5, nCentre};
    const int nBars = static_cast<int>(Plan.m_vBars.size());
    for(int nBar = 0; nBar < nBars; ++nBar)
    {
        const int nInPhrase = nBar % PHRASE_BARS;
        // Each phrase sets out from the same place, so that a repeated motif is heard as a repeat.
        if(nInPhrase == 0)
            Tune.m_nDegree = nCentre;
        const bool bSecondPhrase = (nBar / PHRASE_BARS) % 2 == 1;
        const bool bHome = nBar == nBars - 1 || (bSecondPhrase && nInPhrase == PHRASE_BARS - 1);
        PlayBar(Tune, Plan.m_vBars[static_cast<std::size_t>(nBar)], ShapeOfBar(Tunes, nInPhrase, bSecondPhrase), bHome);
    }
}

#include "sounds/PieceStyle.h"

// "Chain Reaction": a driving tune in A minor for the faster rounds. A bright synth lead over a pumping
// eighth-note bass, sixteenth-note plucks, four on the floor and a snare run into each new section.

namespace
{
void SetHarmony(PieceStyle& Style)
{
    Style.m_vProgressions = {
        // i VI III VII
        {{0, false}, {5, false}, {2, false}, {6, false}},
        // iv7 VI III VII, iv7 VI VII VII: the climb that hands back to the main tune
        {{3, true}, {5, false}, {2, false}, {6, false}, {3, true}, {5, false}, {6, false}, {6, false}},
        // VImaj7 VII i i: the breakdown
        {{5, true}, {6, false}, {0, false}, {0, false}},
    };
    // Bars, progression, theme, drums, bass, arpeggio and, where given, how far the tune is lifted.
    Style.m_vForm = {
        {4, 0, -1, 1, true, false}, {8, 0, 0, 2, true, false}, {8, 0, 0, 2, true, true, 2}, {8, 1, 1, 2, true, true, 2},
        {4, 2, -1, 0, false, true}, {8, 0, 0, 2, true, true},  {4, 0, -1, 1, true, false},
    };
}

void SetRhythm(PieceStyle& Style)
{
    Style.m_vBass = {{0, 1, BassNote::Root},  {1, 1, BassNote::Root},    {2, 1, BassNote::Octave},
                     {3, 1, BassNote::Root},  {4, 1, BassNote::Root},    {5, 1, BassNote::Octave},
                     {6, 1, BassNote::Fifth}, {7, 1, BassNote::Approach}};
    Style.m_vArpOrder = {0, 2, 4, 1, 3, 5, 2, 4};
    Style.m_dArpStep = 0.25;
    Style.m_nArpOctave = 1;
    Style.m_LightDrums = {"X.......X.......", "................", "x.x.x.x.x.x.x.x.", "................"};
    Style.m_FullDrums = {"X...X...X...X...", "....X.......X..o", "o.X.o.X.o.X.o.Xo", "x.x.x.x.x.x.x.x."};
    Style.m_bFills = true;
}

void SetLeadAndPad(PieceStyle& Style)
{
    Patch& Lead = Style.Sound(Part::Lead);
    Lead.m_Envelope = {0.005, 0.25, 0.6, 0.12};
    Lead.m_fSaw = 0.6f;
    Lead.m_fSquare = 0.5f;
    Lead.m_nUnison = 2;
    Lead.m_dDetuneCents = 6.0;
    Lead.m_dCutoffHz = 1800.0;
    Lead.m_dCutoffFromEnvelope = 1.0;
    Lead.m_dQ = 1.0;
    Lead.m_dVibratoHz = 5.5;
    Lead.m_dVibratoCents = 8.0;
    Lead.m_dVibratoDelay = 0.2;
    Lead.m_fLevel = 0.4f;
    Lead.m_fReverb = 0.2f;
    Lead.m_fEcho = 0.25f;

    Patch& Pad = Style.Sound(Part::Pad);
    Pad.m_Envelope = {0.3, 1.5, 0.7, 0.6};
    Pad.m_nUnison = 4;
    Pad.m_dDetuneCents = 15.0;
    Pad.m_dCutoffHz = 1400.0;
    Pad.m_dCutoffFromEnvelope = 0.3;
    Pad.m_fLevel = 0.15f;
    Pad.m_fReverb = 0.4f;
}

void SetBassAndKit(PieceStyle& Style)
{
    Patch& Bass = Style.Sound(Part::Bass);
    Bass.m_Envelope = {0.003, 0.18, 0.5, 0.06};
    Bass.m_fSaw = 1.0f;
    Bass.m_fSquare = 0.3f;
    Bass.m_dCutoffHz = 350.0;
    Bass.m_dCutoffFromEnvelope = 2.5;
    Bass.m_dQ = 1.4;
    Bass.m_fLevel = 0.3f;
    Bass.m_fReverb = 0.0f;

    Patch& Plucks = Style.Sound(Part::Arp);
    Plucks.m_eEngine = Engine::Pluck;
    Plucks.m_Envelope = {0.002, 0.1, 1.0, 0.15};
    Plucks.m_dRing = 0.6;
    Plucks.m_dBrightness = 0.75;
    Plucks.m_fLevel = 0.4f;
    Plucks.m_fPan = 0.4f;
    Plucks.m_fReverb = 0.25f;
    Plucks.m_fEcho = 0.2f;

    Style.Sound(Part::Kick) = DrumPatch(0.42f, 0.0f, 0.03f, 1.0, 1.0);
    Style.Sound(Part::Snare) = DrumPatch(0.3f, 0.05f, 0.2f, 1.0, 1.0);
    Style.Sound(Part::Hat) = DrumPatch(0.2f, 0.25f, 0.1f, 1.0, 1.0);
    Style.Sound(Part::Shaker) = DrumPatch(0.12f, -0.3f, 0.1f, 1.1, 0.8);
}
} // namespace

PieceStyle DrivingPiece()
{
    PieceStyle Style;
    Style.m_FileName = "02-chain-reaction";
    Style.m_Title = "Chain Reaction";
    Style.m_Key = CKey(69, MINOR); // A
    Style.m_dBpm = 124.0;
    Style.m_nBeatsPerBar = 4;
    Style.m_ulSeed = 0xC4A1;
    Style.m_nMelodyCentre = 4;
    Style.m_dMelodyBusy = 0.6;
    Style.m_dLegato = 0.8;
    Style.m_dRoomSize = 0.6;
    Style.m_dEchoBeats = 0.75;
    Style.m_dFadeSeconds = 7.0;
    SetHarmony(Style);
    SetRhythm(Style);
    SetLeadAndPad(Style);
    SetBassAndKit(Style);
    return Style;
}

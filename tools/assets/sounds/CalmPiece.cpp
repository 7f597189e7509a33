#include "sounds/PieceStyle.h"

// "Glass Garden": an unhurried tune in F major for the menus and the first levels. A breathy flute over
// plucked strings and a warm pad, with brushes of shaker and a soft kick.

namespace
{
void SetHarmony(PieceStyle& Style)
{
    Style.m_vProgressions = {
        // I vi IV V
        {{0, false}, {5, false}, {3, false}, {4, false}},
        // IVmaj7 V iii vi7, ii7 V I I
        {{3, true}, {4, false}, {2, false}, {5, true}, {1, true}, {4, false}, {0, false}, {0, false}},
        // I IVmaj7: the open, undecided frame of the intro and the close
        {{0, false}, {3, true}},
    };
    // Bars, progression, theme, drums, bass, arpeggio and, where given, how far the tune is lifted.
    Style.m_vForm = {
        {4, 2, -1, 0, true, true}, {8, 0, 0, 1, true, true},  {8, 1, 1, 2, true, true, 2},
        {8, 0, 0, 2, true, true},  {4, 2, -1, 1, true, true},
    };
}

void SetRhythm(PieceStyle& Style)
{
    Style.m_vBass = {{0, 4, BassNote::Root}, {4, 3, BassNote::Fifth}, {7, 1, BassNote::Approach}};
    Style.m_vArpOrder = {0, 1, 2, 3, 4, 3, 2, 1};
    Style.m_dArpStep = 0.5;
    Style.m_nArpOctave = 0;
    Style.m_LightDrums = {"x.......x.......", "................", "................", "x.o.x.o.x.o.x.o."};
    Style.m_FullDrums = {"X.......x.x.....", "....x.......x...", "..o...o...o...o.", "x.o.x.o.x.o.x.o."};
}

void SetSounds(PieceStyle& Style)
{
    Patch& Flute = Style.Sound(Part::Lead);
    Flute.m_eEngine = Engine::Fm;
    Flute.m_Envelope = {0.05, 0.3, 0.8, 0.25};
    Flute.m_dRatio = 1.0;
    Flute.m_dIndex = 0.9;
    Flute.m_dIndexFloor = 0.5;
    Flute.m_dIndexDecay = 0.4;
    Flute.m_dVibratoCents = 12.0;
    Flute.m_dVibratoDelay = 0.25;
    Flute.m_fLevel = 0.38f;
    Flute.m_fPan = 0.1f;
    Flute.m_fReverb = 0.35f;
    Flute.m_fEcho = 0.18f;

    Patch& Pad = Style.Sound(Part::Pad);
    Pad.m_Envelope = {0.6, 1.0, 0.8, 1.2};
    Pad.m_nUnison = 3;
    Pad.m_dDetuneCents = 12.0;
    Pad.m_dCutoffHz = 1300.0;
    Pad.m_dCutoffFromEnvelope = 0.4;
    Pad.m_fLevel = 0.16f;
    Pad.m_fReverb = 0.5f;

    Patch& Bass = Style.Sound(Part::Bass);
    Bass.m_Envelope = {0.005, 0.4, 0.6, 0.12};
    Bass.m_fSaw = 0.4f;
    Bass.m_fSine = 1.0f;
    Bass.m_dCutoffHz = 400.0;
    Bass.m_fLevel = 0.42f;
    Bass.m_fReverb = 0.05f;

    Patch& Strings = Style.Sound(Part::Arp);
    Strings.m_eEngine = Engine::Pluck;
    Strings.m_Envelope = {0.002, 0.1, 1.0, 0.3};
    Strings.m_dRing = 1.2;
    Strings.m_dBrightness = 0.55;
    Strings.m_fLevel = 0.35f;
    Strings.m_fPan = -0.35f;
    Strings.m_fReverb = 0.4f;
    Strings.m_fEcho = 0.15f;

    Style.Sound(Part::Kick) = DrumPatch(0.45f, 0.0f, 0.05f, 0.95, 0.9);
    Style.Sound(Part::Snare) = DrumPatch(0.45f, 0.1f, 0.3f, 1.1, 0.6);
    Style.Sound(Part::Hat) = DrumPatch(0.3f, 0.3f, 0.15f, 1.0, 0.8);
    Style.Sound(Part::Shaker) = DrumPatch(0.24f, -0.25f, 0.2f, 1.0, 1.0);
}
} // namespace

PieceStyle CalmPiece()
{
    PieceStyle Style;
    Style.m_FileName = "01-glass-garden";
    Style.m_Title = "Glass Garden";
    Style.m_Key = CKey(65, MAJOR); // F
    Style.m_dBpm = 84.0;
    Style.m_nBeatsPerBar = 4;
    Style.m_ulSeed = 0x61A55;
    Style.m_nMelodyCentre = 4;
    Style.m_dMelodyBusy = 0.45;
    Style.m_dLegato = 0.9;
    Style.m_dRoomSize = 0.75;
    Style.m_dEchoBeats = 0.75;
    Style.m_dFadeSeconds = 8.0;
    SetHarmony(Style);
    SetRhythm(Style);
    SetSounds(Style);
    return Style;
}

#include "sounds/PieceStyle.h"

// "Drifting Lanterns": a slow waltz in D lydian, whose raised fourth keeps it floating. A chiming electric
// piano over a wide, slow-breathing pad and celesta arpeggios, with long echoes and a large room.

namespace
{
void SetHarmony(PieceStyle& Style)
{
    Style.m_vProgressions = {
        // Imaj7 II vi7 Vmaj7
        {{0, true}, {1, false}, {5, true}, {4, true}},
        // vi7 iii7 Vmaj7 Imaj7
        {{5, true}, {2, true}, {4, true}, {0, true}},
        // Imaj7 II7: the lydian sway of the intro and the close
        {{0, true}, {1, true}},
    };
    // Bars, progression, theme, drums, bass, arpeggio and, where given, how far the tune is lifted.
    Style.m_vForm = {
        {4, 2, -1, 0, true, true}, {8, 0, 0, 1, true, true},    {8, 1, 1, 2, true, true, 2},
        {8, 0, 0, 2, true, true},  {8, 1, 1, 1, true, true, 2}, {4, 2, -1, 0, true, true},
    };
}

void SetRhythm(PieceStyle& Style)
{
    Style.m_vBass = {{0, 4, BassNote::Root}, {4, 2, BassNote::Fifth}};
    Style.m_vArpOrder = {0, 2, 1, 3, 2, 4};
    Style.m_dArpStep = 0.5;
    Style.m_nArpOctave = 1;
    Style.m_LightDrums = {"X...........", "............", "............", "x.o.o.x.o.o."};
    Style.m_FullDrums = {"X.......x...", "........o...", "..o...o...o.", "x.o.o.x.o.o."};
}

void SetKeysAndPad(PieceStyle& Style)
{
    Patch& Piano = Style.Sound(Part::Lead);
    Piano.m_eEngine = Engine::Fm;
    Piano.m_Envelope = {0.003, 1.6, 0.3, 0.9};
    Piano.m_dRatio = 1.0;
    Piano.m_dIndex = 2.2;
    Piano.m_dIndexFloor = 0.15;
    Piano.m_dIndexDecay = 0.25;
    Piano.m_fLevel = 0.44f;
    Piano.m_fPan = -0.1f;
    Piano.m_fReverb = 0.5f;
    Piano.m_fEcho = 0.3f;

    Patch& Pad = Style.Sound(Part::Pad);
    Pad.m_Envelope = {1.2, 2.0, 0.8, 2.0};
    Pad.m_fSaw = 0.7f;
    Pad.m_fTriangle = 0.5f;
    Pad.m_nUnison = 5;
    Pad.m_dDetuneCents = 18.0;
    Pad.m_dCutoffHz = 1000.0;
    Pad.m_dCutoffFromEnvelope = 0.8;
    Pad.m_fLevel = 0.165f;
    Pad.m_fReverb = 0.7f;
}

void SetBassBellsAndKit(PieceStyle& Style)
{
    Patch& Bass = Style.Sound(Part::Bass);
    Bass.m_Envelope = {0.02, 0.6, 0.8, 0.4};
    Bass.m_fSaw = 0.0f;
    Bass.m_fSine = 1.0f;
    Bass.m_fTriangle = 0.3f;
    Bass.m_dCutoffHz = 300.0;
    Bass.m_fLevel = 0.22f;
    Bass.m_fReverb = 0.1f;

    Patch& Celesta = Style.Sound(Part::Arp);
    Celesta.m_eEngine = Engine::Fm;
    Celesta.m_Envelope = {0.002, 0.8, 0.0, 0.6};
    Celesta.m_dRatio = 4.0;
    Celesta.m_dIndex = 1.2;
    Celesta.m_dIndexFloor = 0.05;
    Celesta.m_dIndexDecay = 0.15;
    Celesta.m_fLevel = 0.2f;
    Celesta.m_fPan = 0.4f;
    Celesta.m_fReverb = 0.6f;
    Celesta.m_fEcho = 0.35f;

    Style.Sound(Part::Kick) = DrumPatch(0.35f, 0.0f, 0.1f, 0.9, 1.2);
    Style.Sound(Part::Snare) = DrumPatch(0.3f, 0.15f, 0.6f, 1.0, 1.5);
    Style.Sound(Part::Hat) = DrumPatch(0.15f, 0.3f, 0.3f, 1.0, 1.0);
    Style.Sound(Part::Shaker) = DrumPatch(0.22f, -0.3f, 0.3f, 1.0, 1.2);
}
} // namespace

PieceStyle DreamyPiece()
{
    PieceStyle Style;
    Style.m_FileName = "03-drifting-lanterns";
    Style.m_Title = "Drifting Lanterns";
    Style.m_Key = CKey(62, LYDIAN); // D
    Style.m_dBpm = 72.0;
    Style.m_nBeatsPerBar = 3;
    Style.m_ulSeed = 0xD12E;
    Style.m_nMelodyCentre = 5;
    Style.m_dMelodyBusy = 0.3;
    Style.m_dLegato = 0.95;
    Style.m_dRoomSize = 0.9;
    Style.m_dEchoBeats = 1.5;
    Style.m_dFadeSeconds = 10.0;
    SetHarmony(Style);
    SetRhythm(Style);
    SetKeysAndPad(Style);
    SetBassBellsAndKit(Style);
    return Style;
}

#pragma once

#include "sounds/MusicTheory.h"
#include "sounds/Patch.h"
#include "sounds/Score.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// One stretch of a piece, with which parts play in it.
struct Section
{
    int m_nBars;
    int m_nProgression; // which of the piece's progressions, repeated to fill the section
    int m_nTheme;       // which melody; -1 for none. A theme that comes back is the same tune again.
    int m_nDrums;       // 0 none, 1 the light pattern, 2 the full one
    bool m_bBass;
    bool m_bArp;
    int m_nMelodyLift = 0; // degrees to raise the melody by, for a lift in a contrasting section
};

// One note of the bass pattern: where in the bar (in eighths), how long, and which chord note.
enum class BassNote
{
    Root,
    Fifth,
    Octave,
    Approach // a scale step next to the next bar's root, leading into it
};
struct BassHit
{
    int m_nEighth;
    int m_nEighths;
    BassNote m_eNote;
};

// A drum pattern: one string of sixteenths per bar for each drum. 'X' accent, 'x' normal, 'o' ghost, '.' rest.
struct DrumPattern
{
    std::string m_Kick;
    std::string m_Snare;
    std::string m_Hat;
    std::string m_Shaker;
};

struct PieceStyle
{
    std::string m_FileName; // without folder and extension
    std::string m_Title;
    CKey m_Key{60, MAJOR};
    double m_dBpm = 100.0;
    int m_nBeatsPerBar = 4;
    uint64_t m_ulSeed = 1;

    std::vector<std::vector<Chord>> m_vProgressions; // one chord per bar
    std::vector<Section> m_vForm;

    int m_nMelodyCentre = 7;    // the degree the tune moves around
    double m_dMelodyBusy = 0.5; // 0 long notes to 1 many short ones
    double m_dLegato = 0.9;     // how much of its slot a melody note fills
    std::vector<BassHit> m_vBass;
    std::vector<int> m_vArpOrder; // indices into the chord's notes (and the octave above), one per step
    double m_dArpStep = 0.5;      // beats per arpeggio note
    int m_nArpOctave = 1;         // octaves above the pad
    DrumPattern m_LightDrums;
    DrumPattern m_FullDrums;
    bool m_bFills = false; // a snare run into each new section
    double m_dEchoBeats = 0.75;
    double m_dRoomSize = 0.8;
    double m_dFadeSeconds = 8.0;

    std::array<Patch, static_cast<std::size_t>(Part::Count)> m_aPatches;

    Patch& Sound(Part ePart) { return m_aPatches[static_cast<std::size_t>(ePart)]; }
    const Patch& Sound(Part ePart) const { return m_aPatches[static_cast<std::size_t>(ePart)]; }
    int EighthsPerBar() const { return 2 * m_nBeatsPerBar; }
};

// The pieces of the game's music, in playing order.
std::vector<PieceStyle> AllPieces();
PieceStyle CalmPiece();
PieceStyle DrivingPiece();
PieceStyle DreamyPiece();

// A drum of the kit at the given level, position, reverb, tuning and length (1 is the kit's default).
Patch DrumPatch(float fLevel, float fPan, float fReverb, double dTune, double dDecay);

#pragma once

#include <array>
#include <vector>

// Semitones of each of the seven degrees above the tonic.
using Mode = std::array<int, 7>;
extern const Mode MAJOR;
extern const Mode MINOR;
extern const Mode LYDIAN;
extern const Mode DORIAN;

// A key: a tonic (as a MIDI note) and a mode. Melodies and chords are worked out in scale degrees, counted
// from 0 at the tonic, so that they always stay in the key; degree 7 is the tonic an octave up, -1 the
// leading note below it.
class CKey
{
public:
    CKey(int nTonicMidi, const Mode& Steps) : m_nTonic(nTonicMidi), m_Steps(Steps) {}
    int Midi(int nDegree) const;
    int Tonic() const { return m_nTonic; }

private:
    int m_nTonic;
    Mode m_Steps;
};

// A chord built in thirds on a degree of the key: root, third and fifth, and the seventh when asked for.
struct Chord
{
    int m_nRoot;
    bool m_bSeventh;
};

// The chord's degrees from its root upwards, within one octave and a bit.
std::vector<int> ChordDegrees(const Chord& Harmony);
bool IsChordTone(int nDegree, const Chord& Harmony);
// The chord tone closest to nDegree; a tie goes the way nDirection points (+1 up, -1 down).
int NearestChordTone(int nDegree, const Chord& Harmony, int nDirection);
// Degree modulo 7, always 0 to 6.
int DegreeClass(int nDegree);

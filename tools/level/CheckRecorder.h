#pragma once
#include "level/Diagnostic.h"
#include "tracks/TrackFile.h"

#include <string>
#include <vector>

class CLevel;

// Hears the game's reader go through a file and keeps what a designer must be told: the sections it found,
// where it broke off, and what it cut or skipped.
class CCheckRecorder : public ITrackFileObserver
{
public:
    CCheckRecorder(const CLevel& Level, const std::string& Text) : m_Level(Level), m_Text(Text) {}

    void OnSection(char cTag, std::streamoff Offset) override;
    void OnStrayByte(char cByte, std::streamoff Offset) override;
    void OnBrokenOff(const std::string& Expected, std::streamoff Offset) override;
    void OnCut(const std::string& What, std::streamoff Offset) override;

    // Where the sections stood, once the reading is over: a curve kept by the last section is noted here.
    const CSectionPlaces& Places();
    std::vector<CDiagnostic>& Diagnostics() { return m_vDiagnostics; }

private:
    // The first byte that is not blank at or behind the offset: a number's place, not the space before it.
    int64_t TokenStart(std::streamoff Offset) const;
    // A section adds a curve only when it is read whole: what the level gained since the last section began is
    // that section's.
    void NoteKeptCurves();
    std::string TokenAt(int64_t Offset) const;

    const CLevel& m_Level;
    const std::string& m_Text;
    CSectionPlaces m_Places;
    std::vector<CDiagnostic> m_vDiagnostics;
    bool m_bInStrayRun = false;
};

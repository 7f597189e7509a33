#include "level/CheckRecorder.h"

#include "tracks/Level.h"

#include <cctype>

namespace
{
bool IsBlank(char c)
{
    return std::isspace(static_cast<unsigned char>(c)) != 0;
}
} // namespace

void CCheckRecorder::OnSection(char cTag, std::streamoff Offset)
{
    NoteKeptCurves();
    m_Places.m_vSections.push_back({cTag, Offset});
    m_bInStrayRun = false;
}

void CCheckRecorder::NoteKeptCurves()
{
    const int64_t Last = m_Places.m_vSections.empty() ? 0 : m_Places.m_vSections.back().m_Offset;
    m_Places.m_vTracks.resize(m_Level.m_vTracks.size(), Last);
    m_Places.m_vPaths.resize(m_Level.m_vCameraPaths.size(), Last);
}

const CSectionPlaces& CCheckRecorder::Places()
{
    NoteKeptCurves();
    return m_Places;
}

// Everything from a stray byte up to the next section is skipped: that is one mistake, told once.
void CCheckRecorder::OnStrayByte(char, std::streamoff Offset)
{
    if(m_bInStrayRun)
        return;
    m_bInStrayRun = true;
    m_vDiagnostics.push_back({Offset, true,
                              "'" + TokenAt(Offset) +
                                  "' stands between sections, where the game skips everything up "
                                  "to the next section letter (B, C, I, P, T or E)"});
}

void CCheckRecorder::OnBrokenOff(const std::string& Expected, std::streamoff Offset)
{
    const int64_t At = TokenStart(Offset);
    if(At >= static_cast<int64_t>(m_Text.size()))
        m_vDiagnostics.push_back({At, true, "the file ends before its E, where " + Expected + " should stand"});
    else
        m_vDiagnostics.push_back({At, true, "bad number '" + TokenAt(At) + "' for " + Expected});
}

void CCheckRecorder::OnCut(const std::string& What, std::streamoff Offset)
{
    m_vDiagnostics.push_back({TokenStart(Offset), true, What});
}

int64_t CCheckRecorder::TokenStart(std::streamoff Offset) const
{
    size_t At = Offset < 0 ? m_Text.size() : static_cast<size_t>(Offset);
    while(At < m_Text.size() && IsBlank(m_Text[At]))
        At++;
    return static_cast<int64_t>(At);
}

// The word that starts there, cut to a length a message can carry.
std::string CCheckRecorder::TokenAt(int64_t Offset) const
{
    constexpr size_t MAX_SHOWN = 24;
    std::string Word;
    for(size_t i = static_cast<size_t>(Offset); i < m_Text.size() && !IsBlank(m_Text[i]) && Word.size() < MAX_SHOWN;
        i++)
        Word += std::isprint(static_cast<unsigned char>(m_Text[i])) ? m_Text[i] : '?';
    return Word;
}

#pragma once
#include <cstdint>
#include <string>
#include <vector>

// One problem of a level file, placed at a byte of the file.
struct CDiagnostic
{
    int64_t m_Offset = 0;
    bool m_bError = false;
    std::string m_Text;
};

// Where a section of the file began, and how many curves the level held before it was read, so that a kept
// curve can be traced back to the section that made it.
struct CSectionStart
{
    char m_cTag = 0;
    int64_t m_Offset = 0;
    size_t m_TracksBefore = 0;
    size_t m_PathsBefore = 0;
};

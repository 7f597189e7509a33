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

// Where the file's sections began, by tag letter as the file spells it, and which section made each track
// and each camera path that the level kept.
struct CSectionPlaces
{
    struct CSection
    {
        char m_cTag;
        int64_t m_Offset;
    };
    std::vector<CSection> m_vSections;
    std::vector<int64_t> m_vTracks;
    std::vector<int64_t> m_vPaths;

    // The first section with that tag in either case, or -1 when the file has none.
    int64_t First(char cTag) const
    {
        for(const CSection& Section : m_vSections)
        {
            if((Section.m_cTag | 0x20) == (cTag | 0x20))
                return Section.m_Offset;
        }
        return -1;
    }
};

#include "tracks/TrackList.h"

#include "tracks/GameFile.h"

#include <cstdio>

bool CTrackList::Load(const char* pFileName)
{
    std::ifstream Stream;
    if(!OpenGameFile(pFileName, Stream))
        return false;
    ReadLines(Stream);
    return true;
}

void CTrackList::ReadLines(std::istream& Stream)
{
    while(Stream.good())
    {
        char szLine[MAX_LINE_CHARS + 1] = "";
        Stream.getline(szLine, sizeof(szLine));
        char szPath[512];
        std::snprintf(szPath, sizeof(szPath), "%s%s", TRACK_FOLDER, szLine);
        std::string Path(szPath);
        if(!Path.empty() && Path.back() == '\r')
            Path.pop_back();
        m_vFiles.push_back(Path);
    }
    m_uiNumFiles = static_cast<uint32_t>(m_vFiles.size());
}

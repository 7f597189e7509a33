#include "tracks/TrackList.h"

#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t Size)
{
    std::istringstream Stream(std::string(reinterpret_cast<const char*>(pData), Size));
    CTrackList List;
    List.ReadLines(Stream);
    for(const std::string& File : List.m_vFiles)
    {
        // Each entry is the folder and at most one line's worth of name, and never runs into the next line.
        if(File.size() > 14 + CTrackList::MAX_LINE_CHARS || File.find('\n') != std::string::npos)
            __builtin_trap();
    }
    return List.m_uiNumFiles == List.m_vFiles.size() ? 0 : (__builtin_trap(), 0);
}

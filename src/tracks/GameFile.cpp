#include "tracks/GameFile.h"

#include "platform/interfaces/ErrorBox.h"
#include "platform/interfaces/Paths.h"

#include <cstdio>

bool OpenGameFile(const char* pFileName, std::ifstream& Stream)
{
    const std::string Path = NativePath(pFileName);
    std::FILE* pFile = std::fopen(Path.c_str(), "r");
    if(!pFile)
    {
        ShowErrorf(MISSING_FILE_ERROR, pFileName);
        return false;
    }
    std::fclose(pFile);
    Stream.open(Path, std::ios::in | std::ios::binary);
    if(!Stream.is_open())
    {
        ShowErrorf("ERROR: Couldn't open %s", pFileName);
        return false;
    }
    return true;
}

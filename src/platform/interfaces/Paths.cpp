#include "platform/interfaces/Paths.h"

std::string NativePath(const char* pGamePath)
{
    std::string Path(pGamePath);
    for(char& c : Path)
    {
        if(c == '\\')
            c = '/';
    }
    return Path;
}

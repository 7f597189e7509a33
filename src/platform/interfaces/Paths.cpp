#include "platform/interfaces/Paths.h"

namespace
{
std::string g_DataRoot;

bool InDataFolder(const std::string& Path)
{
    return Path.compare(0, 5, "data/") == 0;
}
} // namespace

std::string NativePath(const char* pGamePath)
{
    std::string Path(pGamePath);
    for(char& c : Path)
    {
        if(c == '\\')
            c = '/';
    }
    if(!g_DataRoot.empty() && InDataFolder(Path))
        return g_DataRoot + "/" + Path;
    return Path;
}

void SetDataRoot(const std::string& Root)
{
    g_DataRoot = Root;
}

#include "sound/FolderSearch.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace
{
bool SameLetter(char a, char b)
{
    return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
}

bool EndsWithAnyCase(const std::string& Name, const std::string& Ending)
{
    return Name.size() >= Ending.size() && std::equal(Ending.rbegin(), Ending.rend(), Name.rbegin(), SameLetter);
}
} // namespace

std::vector<CFolderMatch> FindMatches(const std::string& Folder, const std::string& Extension)
{
    std::vector<CFolderMatch> vMatches;
    std::error_code Error;
    for(std::filesystem::directory_iterator It(Folder, Error), End; !Error && It != End; It.increment(Error))
    {
        const std::string Name = It->path().filename().string();
        std::error_code TypeError; // an entry whose type can't be read is taken for a file
        if(EndsWithAnyCase(Name, Extension))
            vMatches.push_back({Name, It->is_directory(TypeError)});
    }
    std::sort(vMatches.begin(), vMatches.end(),
              [](const CFolderMatch& a, const CFolderMatch& b) { return a.m_Name < b.m_Name; });
    return vMatches;
}

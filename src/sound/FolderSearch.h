#pragma once
#include <string>
#include <vector>

struct CFolderMatch
{
    std::string m_Name;
    bool m_bFolder;
};

// The entries of a folder whose names end in an extension, in any case, as a search of "*.ext" finds them
// on a file system that ignores case. They come sorted by name, so that every machine plays the same order.
// A missing or unreadable folder has none.
std::vector<CFolderMatch> FindMatches(const std::string& Folder, const std::string& Extension);

// One picture that shows every picture, scaled to fit a cell, with its file name and size under it: a
// reviewer sees the whole set at once and spots what clashes.
#pragma once

#include "Canvas.h"

#include <string>
#include <vector>

namespace art
{
class CContactSheet
{
public:
    // Keeps only a thumbnail, so the full pictures need not stay in memory.
    void Add(const std::string& Path, const CCanvas& Picture);
    CCanvas Render() const;

private:
    struct CEntry
    {
        std::string m_Path;
        int m_iWidth, m_iHeight;
        CCanvas m_Thumbnail;
    };
    std::vector<CEntry> m_vEntries;
};
} // namespace art

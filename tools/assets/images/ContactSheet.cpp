#include "ContactSheet.h"

#include "Filters.h"
#include "Gradients.h"
#include "Shapes.h"
#include "Text.h"
#include "Theme.h"
#include "Widgets.h"

#include <algorithm>
#include <cmath>

namespace art
{
namespace
{
constexpr int COLUMNS = 6;
constexpr int CELL_WIDTH = 210, CELL_HEIGHT = 196;
constexpr int BOX_WIDTH = 190, BOX_HEIGHT = 142; // an 800 by 600 screen fits exactly
constexpr int MAX_ENLARGE = 4;                   // small pictures are shown bigger, up to this factor
constexpr int PAD = 30, HEADER = 70;

// A checked ground shows which parts of a picture are transparent.
void Checks(CCanvas& Canvas, int iLeft, int iTop, int iWidth, int iHeight)
{
    CMask Area(iLeft, iTop, iWidth, iHeight);
    std::fill(Area.m_vCover.begin(), Area.m_vCover.end(), 1.0f);
    Canvas.Paint(Area, [](float fX, float fY) {
        bool bDark = ((static_cast<int>(fX) / 8) + (static_cast<int>(fY) / 8)) % 2 == 0;
        return bDark ? Hex(0x2a2d3a) : Hex(0x3a3e4e);
    });
}

std::string FileName(const std::string& Path)
{
    return Path.substr(Path.find_last_of('/') + 1);
}
std::string Folder(const std::string& Path)
{
    return Path.substr(0, Path.find('/'));
}
} // namespace

void CContactSheet::Add(const std::string& Path, const CCanvas& Picture)
{
    float fFit =
        std::min(static_cast<float>(BOX_WIDTH) / Picture.Width(), static_cast<float>(BOX_HEIGHT) / Picture.Height());
    fFit = std::min(fFit, static_cast<float>(MAX_ENLARGE));
    if(fFit > 1.0f)
        fFit = std::floor(fFit); // whole-number enlargement keeps pixels square and sharp
    int iW = std::max(1, static_cast<int>(Picture.Width() * fFit)),
        iH = std::max(1, static_cast<int>(Picture.Height() * fFit));
    m_vEntries.push_back({Path, Picture.Width(), Picture.Height(), Resized(Picture, iW, iH)});
}

CCanvas CContactSheet::Render() const
{
    int iRows = (static_cast<int>(m_vEntries.size()) + COLUMNS - 1) / COLUMNS;
    CCanvas Sheet(COLUMNS * CELL_WIDTH + 2 * PAD, HEADER + iRows * CELL_HEIGHT + PAD);
    Sheet.Fill(Solid(Hex(0x10142a)));
    ScreenTitle(Sheet, "Trelvane pictures", PAD, 12, 30);
    CTextStyle Count = Plain(EFace::Regular, 14, theme::Mist());
    DrawText(Sheet, std::to_string(m_vEntries.size()) + " files", Sheet.Width() - PAD, 26, Count, EAlign::Right);
    CTextStyle Name = Plain(EFace::Bold, 11, theme::Cream());
    CTextStyle Info = Plain(EFace::Regular, 10, theme::Mist());
    for(std::size_t i = 0; i < m_vEntries.size(); ++i)
    {
        const CEntry& Entry = m_vEntries[i];
        int iLeft = PAD + static_cast<int>(i % COLUMNS) * CELL_WIDTH + (CELL_WIDTH - BOX_WIDTH) / 2;
        int iTop = HEADER + static_cast<int>(i / COLUMNS) * CELL_HEIGHT;
        Checks(Sheet, iLeft, iTop, BOX_WIDTH, BOX_HEIGHT);
        Sheet.Draw(Entry.m_Thumbnail, iLeft + (BOX_WIDTH - Entry.m_Thumbnail.Width()) / 2,
                   iTop + (BOX_HEIGHT - Entry.m_Thumbnail.Height()) / 2);
        DrawText(Sheet, FileName(Entry.m_Path), iLeft + BOX_WIDTH / 2.0f, iTop + BOX_HEIGHT + 4, Name, EAlign::Centre);
        std::string Detail =
            Folder(Entry.m_Path) + "  " + std::to_string(Entry.m_iWidth) + " x " + std::to_string(Entry.m_iHeight);
        DrawText(Sheet, Detail, iLeft + BOX_WIDTH / 2.0f, iTop + BOX_HEIGHT + 20, Info, EAlign::Centre);
    }
    return Sheet;
}
} // namespace art

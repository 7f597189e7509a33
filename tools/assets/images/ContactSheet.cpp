#include "ContactSheet.h"

#include "Filters.h"
#include "Gradients.h"
#include "Shapes.h"
#include "Text.h"
#include "Theme.h"
#include "Widgets.h"

#include <algorithm>
#include <cmath>

namespace art {

namespace {

constexpr int kColumns = 6;
constexpr int kCellWidth = 210, kCellHeight = 196;
constexpr int kBoxWidth = 190, kBoxHeight = 142; // an 800 by 600 screen fits exactly
constexpr int kMaxEnlarge = 4;                   // small pictures are shown bigger, up to this factor
constexpr int kPad = 30, kHeader = 70;

// A checked ground shows which parts of a picture are transparent.
void checks(Canvas &c, int left, int top, int width, int height)
{
    Mask area(left, top, width, height);
    std::fill(area.cover.begin(), area.cover.end(), 1.0f);
    c.paint(area, [](float x, float y) {
        bool dark = ((static_cast<int>(x) / 8) + (static_cast<int>(y) / 8)) % 2 == 0;
        return dark ? hex(0x2a2d3a) : hex(0x3a3e4e);
    });
}

std::string fileName(const std::string &path) { return path.substr(path.find_last_of('/') + 1); }
std::string folder(const std::string &path) { return path.substr(0, path.find('/')); }

} // namespace

void ContactSheet::add(const std::string &path, const Canvas &picture)
{
    float fit = std::min(static_cast<float>(kBoxWidth) / picture.width(), static_cast<float>(kBoxHeight) / picture.height());
    fit = std::min(fit, static_cast<float>(kMaxEnlarge));
    if (fit > 1.0f)
        fit = std::floor(fit); // whole-number enlargement keeps pixels square and sharp
    int w = std::max(1, static_cast<int>(picture.width() * fit)), h = std::max(1, static_cast<int>(picture.height() * fit));
    entries_.push_back({path, picture.width(), picture.height(), resized(picture, w, h)});
}

Canvas ContactSheet::render() const
{
    int rows = (static_cast<int>(entries_.size()) + kColumns - 1) / kColumns;
    Canvas sheet(kColumns * kCellWidth + 2 * kPad, kHeader + rows * kCellHeight + kPad);
    sheet.fill(solid(hex(0x10142a)));
    screenTitle(sheet, "Trelvane pictures", kPad, 12, 30);
    TextStyle count = plain(Face::Regular, 14, theme::mist());
    drawText(sheet, std::to_string(entries_.size()) + " files", sheet.width() - kPad, 26, count, Align::Right);
    TextStyle name = plain(Face::Bold, 11, theme::cream());
    TextStyle info = plain(Face::Regular, 10, theme::mist());
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const Entry &e = entries_[i];
        int left = kPad + static_cast<int>(i % kColumns) * kCellWidth + (kCellWidth - kBoxWidth) / 2;
        int top = kHeader + static_cast<int>(i / kColumns) * kCellHeight;
        checks(sheet, left, top, kBoxWidth, kBoxHeight);
        sheet.draw(e.thumbnail, left + (kBoxWidth - e.thumbnail.width()) / 2, top + (kBoxHeight - e.thumbnail.height()) / 2);
        drawText(sheet, fileName(e.path), left + kBoxWidth / 2.0f, top + kBoxHeight + 4, name, Align::Centre);
        std::string detail = folder(e.path) + "  " + std::to_string(e.width) + " x " + std::to_string(e.height);
        drawText(sheet, detail, left + kBoxWidth / 2.0f, top + kBoxHeight + 20, info, Align::Centre);
    }
    return sheet;
}

} // namespace art

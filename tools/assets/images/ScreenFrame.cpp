#include "ScreenFrame.h"

#include "Backdrop.h"
#include "Filters.h"
#include "Marbles.h"
#include "Text.h"
#include "Theme.h"
#include "Widgets.h"

namespace art {

Canvas titledScreen(const std::string &title, std::uint64_t seed, int titleSize)
{
    Canvas c = menuBackdrop(seed);
    screenTitle(c, title, theme::kMargin, 10, titleSize);
    // Under the title, and short of the return button at x 440.
    rule(c, theme::kMargin - 10, 430, 12.0f + lineHeight(Face::Bold, titleSize), 0.7f);
    return c;
}

void nameMark(Canvas &canvas, float cy, int size)
{
    screenTitle(canvas, "Trelvane", kScreenWidth / 2.0f, cy - lineHeight(Face::Bold, size) / 2.0f, size, true);
}

void decorativeChain(Canvas &canvas, const std::vector<Point> &through, float radius, std::uint64_t seed,
                     float opacity)
{
    std::vector<Point> path = smoothCurve(through, 24);
    ChainLook look;
    look.radius = radius;
    look.opacity = opacity;
    look.seed = seed;
    // The chain stops short of the pit, as a chain does while the player still has a chance.
    std::vector<Point> rolling(path.begin(), path.end() - static_cast<long>(path.size() / 5));
    drawGroove(canvas, path, radius, 0.6f * opacity);
    drawPit(canvas, through.back().x, through.back().y, radius * 1.15f, opacity);
    look.grooveOpacity = 0.0f;
    drawChain(canvas, rolling, look);
}

void startGlow(Canvas &canvas, float strength)
{
    canvas.paint(blurred(rasterize(roundRect(603, 494, 173, 78, 39)), 14), solid(withAlpha(theme::gold(), strength)), Blend::Add);
}

float bulletLine(Canvas &canvas, const std::string &text, float x, float y, int width, int colour)
{
    auto palette = theme::balls();
    int cap = capTop(Face::Regular, theme::kBodySize), base = baseline(Face::Regular, theme::kBodySize);
    drawMarble(canvas, x + 6, y + (cap + base) / 2.0f, 5.5f, palette[static_cast<std::size_t>(colour % 6)]);
    return paragraph(canvas, text, x + 20, y, width - 20, theme::kBodySize, theme::cream()) + 6.0f;
}

} // namespace art

// The pictures behind the results screen. The game writes over them in white, teal and red: the score list of
// a network game at y 70..180 (x 200..640), and the statistics with the prompt at x 200, y 350..550. The
// titles stand in the band between, and the grounds stay dark wherever text goes.
#include "Backdrop.h"
#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "Marbles.h"
#include "Random.h"
#include "ScreenFrame.h"
#include "Shapes.h"
#include "Text.h"
#include "Theme.h"
#include "Widgets.h"

#include <cmath>

namespace art {

namespace {

constexpr float kPi = 3.14159265f;
constexpr float kTitleCentre = 262; // middle of the band between the two blocks of text

void subtitle(Canvas &c, const std::string &text)
{
    TextStyle st = plain(Face::Regular, 17, theme::mist());
    st.shadow = 2.0f;
    drawText(c, text, 400, 302, st, Align::Centre);
}

void statsPanel(Canvas &c) { glassPanel(c, 182, 338, 598, 222, 0.9f); }

// Where the game writes: the score list, the statistics, and our own title.
bool keepsClear(float x, float y)
{
    bool list = y < 196 && x > 180 && x < 660;
    bool stats = y > 326 && x > 170;
    bool title = y > 206 && y < 326 && x > 130 && x < 670;
    return !(list || stats || title);
}

// Marbles flung out in a ring, as a chain bursts, with sparks between them.
void burst(Canvas &c)
{
    Random rng(404);
    auto palette = theme::balls();
    for (int i = 0; i < 44; ++i) {
        float angle = 2 * kPi * i / 44 + rng.range(-0.05f, 0.05f), reach = rng.range(0.8f, 1.2f);
        float x = 400 + std::cos(angle) * 330 * reach, y = kTitleCentre + std::sin(angle) * 150 * reach;
        if (!keepsClear(x, y))
            continue;
        drawMarble(c, x, y, rng.range(6, 11), palette[static_cast<std::size_t>(i % 6)], rng.range(0.75f, 1.0f));
    }
    for (int i = 0; i < 30; ++i) {
        float x = rng.range(20, 780), y = rng.range(20, 580), r = rng.range(3, 7);
        if (!keepsClear(x, y))
            continue;
        Shape spark = polygon({{x, y - r}, {x + r * 0.22f, y}, {x, y + r}, {x - r * 0.22f, y}});
        c.paint(rasterize(unite(spark, polygon({{x - r, y}, {x, y - r * 0.22f}, {x + r, y}, {x, y + r * 0.22f}}))),
                solid(withAlpha(theme::goldLight(), 0.8f)), Blend::Add);
    }
}

Canvas winPicture()
{
    Canvas c = menuBackdrop(81);
    // Warm light rising behind the title.
    c.paint(fullMask(kScreenWidth, kScreenHeight),
            oval(400, kTitleCentre, 420, 130, {{0.0f, hex(0xe8b94a, 0.38f)}, {0.6f, hex(0xa04a6a, 0.12f)}, {1.0f, hex(0, 0)}}));
    for (int i = 0; i < 14; ++i) {
        float a = kPi * (i / 14.0f) * 2.0f;
        Point tip{400 + std::cos(a) * 520, kTitleCentre + std::sin(a) * 230};
        c.paint(blurred(rasterize(polygon({{400, kTitleCentre}, tip, {tip.x + 40 * std::sin(a), tip.y - 40 * std::cos(a)}})), 6),
                solid(hex(0xffe7a3, 0.05f)), Blend::Add);
    }
    burst(c);
    // The same picture greets a cleared level and a network race won on points, so it says only who won.
    screenTitle(c, "You Win!", 400, kTitleCentre - 40, 54, true);
    subtitle(c, "Well played!");
    statsPanel(c);
    return c;
}

Canvas losePicture()
{
    Canvas c = menuBackdrop(91);
    c.paint(fullMask(kScreenWidth, kScreenHeight),
            oval(400, kTitleCentre, 420, 120, {{0.0f, hex(0x8a2a3a, 0.32f)}, {1.0f, hex(0, 0)}}));
    // A chain that made it all the way down to its pit.
    decorativeChain(c, {{40, -20}, {120, 120}, {60, 260}, {120, 380}, {90, 470}}, 12, 37);
    screenTitle(c, "Level Lost", 400, kTitleCentre - 40, 54, true);
    subtitle(c, "Better luck next time!");
    statsPanel(c);
    return c;
}

} // namespace

Pictures resultPictures() { return {inMenus("win.png", winPicture), inMenus("lose.png", losePicture)}; }

} // namespace art

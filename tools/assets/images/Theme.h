// The one look of every picture: palette, type sizes and margins. Screens and widgets take their colours
// from here, so that a change of mood is made in one place.
#pragma once

#include "Canvas.h"

#include <array>

namespace art::theme
{
// Night sky of the menus, from the top of a screen to its foot.
inline CRgba NightTop()
{
    return Hex(0x070b1d);
}
inline CRgba NightMid()
{
    return Hex(0x121a3d);
}
inline CRgba NightLow()
{
    return Hex(0x1c1f4a);
}

// Gold for titles, rims and what is lit.
inline CRgba Gold()
{
    return Hex(0xe8b94a);
}
inline CRgba GoldLight()
{
    return Hex(0xffe7a3);
}
inline CRgba GoldDeep()
{
    return Hex(0x9a6a22);
}

// Teal of the game's numbers and labels on screen (the HUD's number colour).
inline CRgba Teal()
{
    return Hex(0x88cccc);
}
inline CRgba TealDeep()
{
    return Hex(0x1d5566);
}

// Cream panels, on which the game writes in black.
inline CRgba Paper()
{
    return Hex(0xf4ecd8);
}
inline CRgba PaperShade()
{
    return Hex(0xe3d6b6);
}
inline CRgba PaperEdge()
{
    return Hex(0xb89a5c);
}

// Words printed on dark ground.
inline CRgba Cream()
{
    return Hex(0xf3ead2);
}
inline CRgba Mist()
{
    return Hex(0xa9b3d6);
}

// Translucent dark glass behind the game's white text.
inline CRgba Glass()
{
    return Hex(0x0b1230, 0.72f);
}

// Button bodies, normal and lit.
inline CRgba ButtonTop()
{
    return Hex(0x21426a);
}
inline CRgba ButtonLow()
{
    return Hex(0x0e1d3a);
}
inline CRgba ButtonLitTop()
{
    return Hex(0x3c85b4);
}
inline CRgba ButtonLitLow()
{
    return Hex(0x18477a);
}

// The six ball colours of the game, in colour order: red, green, blue, yellow, orange, purple.
inline std::array<CRgba, 6> Balls()
{
    return {CRgba{0.8f, 0.0f, 0.0f, 1}, CRgba{0.0f, 0.7f, 0.0f, 1},  CRgba{0.0f, 0.0f, 0.8f, 1},
            CRgba{1.0f, 1.0f, 0.0f, 1}, CRgba{1.0f, 0.5f, 0.25f, 1}, CRgba{0.65f, 0.0f, 0.65f, 1}};
}

// Layout.
constexpr int MARGIN = 40;         // left edge of titles and text blocks
constexpr int TITLE_SIZE = 40;     // screen titles, bold
constexpr int HEAD_SIZE = 13;      // small capitals over panels
constexpr int BODY_SIZE = 16;      // running text
constexpr int GAME_TEXT_SIZE = 20; // the size at which the game writes its own medium text
} // namespace art::theme

// The one look of every picture: palette, type sizes and margins. Screens and widgets take their colours
// from here, so that a change of mood is made in one place.
#pragma once

#include "Canvas.h"

#include <array>

namespace art::theme {

// Night sky of the menus, from the top of a screen to its foot.
inline Rgba nightTop() { return hex(0x070b1d); }
inline Rgba nightMid() { return hex(0x121a3d); }
inline Rgba nightLow() { return hex(0x1c1f4a); }

// Gold for titles, rims and what is lit.
inline Rgba gold() { return hex(0xe8b94a); }
inline Rgba goldLight() { return hex(0xffe7a3); }
inline Rgba goldDeep() { return hex(0x9a6a22); }

// Teal of the game's numbers and labels on screen (the HUD's number colour).
inline Rgba teal() { return hex(0x88cccc); }
inline Rgba tealDeep() { return hex(0x1d5566); }

// Cream panels, on which the game writes in black.
inline Rgba paper() { return hex(0xf4ecd8); }
inline Rgba paperShade() { return hex(0xe3d6b6); }
inline Rgba paperEdge() { return hex(0xb89a5c); }

// Words printed on dark ground.
inline Rgba cream() { return hex(0xf3ead2); }
inline Rgba mist() { return hex(0xa9b3d6); }

// Translucent dark glass behind the game's white text.
inline Rgba glass() { return hex(0x0b1230, 0.72f); }

// Button bodies, normal and lit.
inline Rgba buttonTop() { return hex(0x21426a); }
inline Rgba buttonLow() { return hex(0x0e1d3a); }
inline Rgba buttonLitTop() { return hex(0x3c85b4); }
inline Rgba buttonLitLow() { return hex(0x18477a); }

// The six ball colours of the game, in colour order: red, green, blue, yellow, orange, purple.
inline std::array<Rgba, 6> balls()
{
    return {Rgba{0.8f, 0.0f, 0.0f, 1}, Rgba{0.0f, 0.7f, 0.0f, 1}, Rgba{0.0f, 0.0f, 0.8f, 1},
            Rgba{1.0f, 1.0f, 0.0f, 1}, Rgba{1.0f, 0.5f, 0.25f, 1}, Rgba{0.65f, 0.0f, 0.65f, 1}};
}

// Layout.
constexpr int kMargin = 40;     // left edge of titles and text blocks
constexpr int kTitleSize = 40;  // screen titles, bold
constexpr int kHeadSize = 13;   // small capitals over panels
constexpr int kBodySize = 16;   // running text
constexpr int kGameTextSize = 20; // the size at which the game writes its own medium text

} // namespace art::theme

// Lettering in DejaVu Sans, the game's one type family. Text becomes a coverage mask, so that it can be
// filled with gradients and given outlines, glows and shadows like any other shape.
#pragma once

#include "Canvas.h"

#include <string>
#include <vector>

namespace art {

enum class Face { Regular, Bold, Light, Oblique };
enum class Align { Left, Centre, Right };

// Opens the fonts; throws std::runtime_error naming the missing file. Call once before any text.
void openFonts();
void closeFonts();

// The text's line box has its top-left corner at (left, top).
Mask textMask(Face face, int size, const std::string &text, int left, int top);
int textWidth(Face face, int size, const std::string &text);
int lineHeight(Face face, int size);
// Distance from the top of the line box to the top of a capital letter, and to the baseline.
int capTop(Face face, int size);
int baseline(Face face, int size);
// The top of the line box that puts the middle of the capitals at capCentre.
float lineTopFor(Face face, int size, float capCentre);

struct TextStyle {
    Face face = Face::Regular;
    int size = 16;
    Paint fill = solid({1, 1, 1, 1});
    float outline = 0.0f; // width of a rim around the letters
    Rgba outlineColour{0, 0, 0, 1};
    float shadow = 0.0f; // blur radius of a drop shadow; 0 for none
    int shadowDx = 0, shadowDy = 2;
    Rgba shadowColour{0, 0, 0, 0.7f};
    float glow = 0.0f; // blur radius of a halo drawn under the letters
    Rgba glowColour{1, 1, 1, 0.5f};
};

TextStyle plain(Face face, int size, Rgba colour);

// x is the left edge, the centre or the right edge of the text, by align; y is the top of the line box.
void drawText(Canvas &canvas, const std::string &text, float x, float y, const TextStyle &style,
              Align align = Align::Left);
// Draws text so that its capitals are centred on cy.
void drawTextCentredOn(Canvas &canvas, const std::string &text, float cx, float cy, const TextStyle &style);

// Words broken into lines no wider than maxWidth.
std::vector<std::string> wrapped(Face face, int size, const std::string &text, int maxWidth);

} // namespace art

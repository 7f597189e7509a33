// The parts that menus are built from: buttons in their normal and lit states, the panels the game writes
// on, captions and titles. Each screen arranges these; none draws its own kind of button or panel.
#pragma once

#include "Canvas.h"

#include <string>

namespace art {

enum class Lit { No, Yes };

// A pill-shaped button that fills the whole picture; its label is centred. Lit is the mouse-over picture:
// brighter body, gold rim and a glow round the label.
Canvas button(int width, int height, const std::string &label, Lit lit, int labelSize);

// Cream paper with a soft shadow: the game writes black text on it.
void paperPanel(Canvas &canvas, float left, float top, float width, float height);
// A sunken paper field for typed text.
void paperField(Canvas &canvas, float left, float top, float width, float height);
// Dark translucent glass with a thin rim: the game writes white and teal text on it.
void glassPanel(Canvas &canvas, float left, float top, float width, float height, float opacity = 1.0f);

// Small gold capitals over a panel, left edge at x, top of the line box at y.
void caption(Canvas &canvas, const std::string &text, float x, float y);
// A screen's title: large gold letters; x is the left edge, or the centre when centred is set.
void screenTitle(Canvas &canvas, const std::string &text, float x, float y, int size, bool centred = false);
// A thin gold line that fades out at both ends.
void rule(Canvas &canvas, float left, float right, float y, float opacity = 0.6f);
// Running text in the theme's light colour, wrapped to the width; returns the y below the last line.
float paragraph(Canvas &canvas, const std::string &text, float x, float y, int width, int size, Rgba colour);

} // namespace art

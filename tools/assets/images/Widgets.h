// The parts that menus are built from: buttons in their normal and lit states, the panels the game writes
// on, captions and titles. Each screen arranges these; none draws its own kind of button or panel.
#pragma once

#include "Canvas.h"

#include <string>

namespace art
{
enum class ELit
{
    No,
    Yes
};

// A pill-shaped button that fills the whole picture; its label is centred. ELit::Yes is the mouse-over picture:
// brighter body, gold rim and a glow round the label.
CCanvas Button(int iWidth, int iHeight, const std::string& Label, ELit eLit, int iLabelSize);

// Cream paper with a soft shadow: the game writes black text on it.
void PaperPanel(CCanvas& Canvas, float fLeft, float fTop, float fWidth, float fHeight);
// A sunken paper field for typed text.
void PaperField(CCanvas& Canvas, float fLeft, float fTop, float fWidth, float fHeight);
// Dark translucent glass with a thin rim: the game writes white and teal text on it.
void GlassPanel(CCanvas& Canvas, float fLeft, float fTop, float fWidth, float fHeight, float fOpacity = 1.0f);

// Small gold capitals over a panel, left edge at fX, top of the line box at fY.
void Caption(CCanvas& Canvas, const std::string& Text, float fX, float fY);
// A screen's title: large gold letters; fX is the left edge, or the centre when bCentred is set.
void ScreenTitle(CCanvas& Canvas, const std::string& Text, float fX, float fY, int iSize, bool bCentred = false);
// A thin gold line that fades out at both ends.
void Rule(CCanvas& Canvas, float fLeft, float fRight, float fY, float fOpacity = 0.6f);
// Running text in the theme's light colour, wrapped to the width; returns the y below the last line.
float Paragraph(CCanvas& Canvas, const std::string& Text, float fX, float fY, int iWidth, int iSize, CRgba Colour);
} // namespace art

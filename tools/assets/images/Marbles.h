// Glossy marbles, the game's one motif: the HUD's ball icons, the chains that wind through the menus, the
// logo's spiral.
#pragma once

#include "Canvas.h"
#include "Shapes.h"

#include <cstdint>
#include <vector>

namespace art
{
// A lit sphere: colour, a soft shade to the lower right, a white highlight to the upper left.
void DrawMarble(CCanvas& Canvas, float fCx, float fCy, float fRadius, CRgba Colour, float fOpacity = 1.0f);

struct CChainLook
{
    float m_fRadius = 12.0f;
    float m_fOpacity = 1.0f;
    float m_fGrooveOpacity = 0.5f; // the track under the balls; 0 for none
    std::uint64_t m_ulSeed = 1;    // which colours, in runs of one to three as in play
};

// The track a chain rolls on: a dark channel with a thin gold line.
void DrawGroove(CCanvas& Canvas, const std::vector<CPoint>& vPath, float fBallRadius, float fOpacity);

// Balls touching one another along a path, with the track they roll on.
void DrawChain(CCanvas& Canvas, const std::vector<CPoint>& vPath, const CChainLook& Look);

// The pit at a track's end, where a chain must never arrive.
void DrawPit(CCanvas& Canvas, float fCx, float fCy, float fRadius, float fOpacity = 1.0f);
} // namespace art

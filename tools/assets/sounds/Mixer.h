#pragma once

#include "sounds/PieceStyle.h"
#include "sounds/Signal.h"

// Plays a score through the piece's sounds into one stereo track: every note into the dry mix and its sends,
// then echo and room, a fade-out over the closing bars, and the level set just below full scale.
Stereo RenderPiece(const PieceStyle& Style, const Score& Notes);

#pragma once

#include "sounds/PieceStyle.h"

// Writes every note of a piece from its style: the form, the harmony, a tune, bass, arpeggio and drums.
Score Compose(const PieceStyle& Style);

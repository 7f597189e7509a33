// The game's icon for desktop menus: a chain of marbles spiralling into its pit on a round night sky.
#pragma once

#include "Canvas.h"

namespace art
{
// A square picture of that many pixels on a clear background, drawn at its own size so that small icons stay sharp.
CCanvas AppIcon(int iSize);
} // namespace art

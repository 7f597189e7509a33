// The danger faces, also shown on the single-player screen to teach what they mean.
#pragma once

#include "Canvas.h"

namespace art
{
constexpr int FACE_COUNT = 4;

// 0 calm, 1 watchful, 2 worried, 3 panic; 32 by 32 pixels.
CCanvas Face(int iMood);
} // namespace art

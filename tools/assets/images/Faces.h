// The danger faces, also shown on the single-player screen to teach what they mean.
#pragma once

#include "Canvas.h"

namespace art {

constexpr int kFaceCount = 4;

// 0 calm, 1 watchful, 2 worried, 3 panic; 32 by 32 pixels.
Canvas face(int mood);

} // namespace art

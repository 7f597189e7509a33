#pragma once
#include <cstdint>

class CBall;
class CGraphicsEngine;
class CLevel;

// The ball that a shot fired now through the camera's sight would hit first if nothing moved meanwhile, or
// null. The shot is followed frame by frame as the rules move and test it, so a ball that a long frame's
// step jumps over counts as missed. The search gives up once the shot is further than fRange from its start.
const CBall* PredictHit(const CLevel& Level, const CGraphicsEngine& Camera, uint32_t uiDeltaMs, float fRange);

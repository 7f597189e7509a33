#pragma once
#include <cstdint>

class CBall;
class CBallMotion;
class CGraphicsEngine;
class CLevel;

// The ball that a shot fired now through the camera's sight would hit first if nothing moved meanwhile, or
// null. The shot is followed frame by frame as the rules move and test it, so a ball that a long frame's
// step jumps over counts as missed. The search gives up once the shot is further than fRange from its start.
// With a motion record the balls are taken to roll on at their pace while the shot flies.
const CBall* PredictHit(const CLevel& Level, const CGraphicsEngine& Camera, uint32_t uiDeltaMs, float fRange,
                        const CBallMotion* pMotion = nullptr);

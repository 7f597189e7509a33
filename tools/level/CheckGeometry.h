#pragma once
#include "level/Diagnostic.h"

#include <vector>

class CGraphicsEngine;
class CLevel;

// What the loaded level's curves make of it, where the file reads well but plays badly: curves that stay
// empty, chains that don't fit or don't touch, tracks through each other, ends that can't be seen.
// Camera is the engine the level was loaded with: its yaw and pitch are those of the first view.
void CheckCurves(const CLevel& Level, const CSectionPlaces& Places, std::vector<CDiagnostic>& vOut);
void CheckCrossings(const CLevel& Level, const CSectionPlaces& Places, std::vector<CDiagnostic>& vOut);
void CheckSight(const CLevel& Level, CGraphicsEngine& Camera, const CSectionPlaces& Places,
                std::vector<CDiagnostic>& vOut);

// The section that made the index-th kept curve of the tag's kind (T for tracks, C for camera paths), or 0.
int64_t SectionOf(const CSectionPlaces& Places, char cTag, size_t Index);

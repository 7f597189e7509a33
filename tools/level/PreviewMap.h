#pragma once
#include "Canvas.h"

#include <string>
#include <vector>

class CLevel;

// Where a level's marks land on the map, for whoever wants to find them again in the picture.
struct CMapMark
{
    std::string m_Name; // "T1 start", "T1 end", "C1 start"
    float m_fX = 0.0f;
    float m_fY = 0.0f;
    art::CRgba m_Colour;
};

// The level seen from high above, y being up: x runs to the right and z up the picture, so that left and right
// are a player's own when looking along +z. Each track in a colour of its own and brighter where it runs
// higher, drawn from its lowest parts up so that what passes over lies on top, with a ring at its start, a
// bar at its end, arrowheads along it and its ball count; the camera paths in white with their direction; the
// first line of sight from the first eye along the first yaw. iSize pixels square.
art::CCanvas DrawLevelMap(const CLevel& Level, float fYaw, float fPitch, int iSize, std::vector<CMapMark>& vMarks);

// The colour of the track with that index on the map.
art::CRgba TrackColour(size_t Index);

#pragma once
#include "app/Game.h"
#include "platform/interfaces/Clock.h"
#include "platform/twins/RecordingAudio.h"
#include "platform/twins/RecordingRenderDevice.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// A game in play on straight tracks along +x, driven frame by frame with a hand-set clock. The eye stands
// off the track at z = -20 and looks along +z, so a shot crosses the track where it is aimed.
class CPlayFixture : public ::testing::Test
{
protected:
    CPlayFixture();
    ~CPlayFixture() override;

    // A track of points i * fSpacing along x, with an empty queue and no balls.
    CTrack& AddTrack(uint32_t uiPoints = 1500, float fSpacing = 0.2f, uint32_t uiInterval = 700);
    // Appends a ball (ahead of those already there) standing on a point.
    CBall& Place(CTrack& Track, uint32_t uiPoint, uint8_t ucColour);
    // Appends touching balls, 14 points apart, one for each letter of "RGBYOP".
    void PlaceChain(CTrack& Track, uint32_t uiFirstPoint, const std::string& Colours);
    std::string Colours(const CTrack& Track) const;
    // The frame the game runs when dt milliseconds have passed.
    void Frame(uint32_t uiDelta = 10);
    // Puts the eye where a straight shot along +z reaches the track at x, and fires with that colour.
    void FireAt(float fX, uint8_t ucColour);

    CRecordingRenderDevice m_Device; // the play frame aims the camera on it
    CGame m_Game;
    CLevel& m_Level;
    CChainLogic& m_Logic;
    CRecordingAudio m_Audio;
};

enum
{
    RED,
    GREEN,
    BLUE,
    YELLOW,
    ORANGE,
    PURPLE
};

#pragma once
#include "TestSupport.h"
#include "app/Game.h"
#include "gfx/Fonts.h"
#include "platform/interfaces/Clock.h"
#include "platform/twins/RecordingRenderDevice.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

typedef CRecordingRenderDevice::CDraw CDraw;

// A game whose engine draws on the recording device, on a hand-set clock.
class CEngineFixture : public ::testing::Test
{
protected:
    CEngineFixture()
    {
        SetManualClock(0);
        m_Game.m_Clock = CGameClock();
        g_pGame = &m_Game;
        m_Engine.m_fnOpenDevice = [this]() -> IRenderDevice* { return &m_Device; };
    }
    ~CEngineFixture() override
    {
        ReleaseFonts();
        g_pGame = nullptr;
        UseSystemClock();
    }
    // Init and the fonts, then a clean record.
    void Start()
    {
        ASSERT_TRUE(m_Engine.Init());
        ASSERT_TRUE(InitFonts());
        m_Device.ClearRecords();
    }
    // The draws of one kind, in order.
    std::vector<CDraw> DrawsOf(EPrimitive Type) const
    {
        std::vector<CDraw> vDraws;
        for(const CDraw& Draw : m_Device.m_vDraws)
        {
            if(Draw.m_Type == Type)
                vDraws.push_back(Draw);
        }
        return vDraws;
    }
    // The frame that follows uiDelta milliseconds.
    void Frame(uint32_t uiDelta = 10)
    {
        AdvanceManualClock(uiDelta);
        m_Game.Tick();
    }

    CErrorRecorder m_Errors;
    CRecordingRenderDevice m_Device;
    CGame m_Game;
    CGraphicsEngine& m_Engine = m_Game.m_Graphics;
};

#include "app/Game.h"
#include "bot/BotOptions.h"
#include "bot/BotPlayer.h"
#include "net/Log.h"
#include "platform/interfaces/Clock.h"
#include "platform/native/DataFolder.h"
#include "platform/native/SocketEvents.h"
#include "platform/twins/RecordingRenderDevice.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>

namespace
{
constexpr int EXIT_BAD_USAGE = 2;
constexpr int EXIT_NOT_JOINED = 1;
constexpr uint32_t FRAME_MS = 10;

uint64_t g_ulLogLines = 0;
volatile std::sig_atomic_t g_bStopAsked = 0;
volatile std::sig_atomic_t g_bReportAsked = 0;

// Asked to stop (Ctrl-C, or a test ending it by its id), the bot still leaves cleanly and reports.
void AskToStop(int)
{
    g_bStopAsked = 1;
}

// A long run is watched from outside without ending it: the loop writes the report, since a handler may not.
void AskForReport(int)
{
    g_bReportAsked = 1;
}

void ReportIfAsked(const CBotPlayer& Bot)
{
    if(!g_bReportAsked)
        return;
    g_bReportAsked = 0;
    Bot.WriteReport(std::cout, g_ulLogLines);
    std::cout.flush();
}

void CountAndPrint(const char* pLine)
{
    g_ulLogLines++;
    std::fprintf(stderr, "net: %s\n", pLine);
}

// Events first, as the game's loop takes them, then a frame every 10 ms of real time; between frames the
// bot sleeps until its sockets have something or the next frame is due.
void RunFrames(CGame& Game, CBotPlayer& Bot, CSocketEvents& Sockets)
{
    const CSocketEvents::CHandler fnToNetwork = [&Game](int Socket, uint32_t uiEvent) {
        Game.m_Network.OnSocketEvent(Socket, uiEvent);
    };
    uint32_t uiNextFrame = timeGetTime();
    while(!Bot.IsDone() && !g_bStopAsked)
    {
        while(Sockets.HandleOneEvent(fnToNetwork))
        {
        }
        // What just came is handled now rather than in the next frame, so a host passes a frame on within
        // microseconds of its arrival instead of up to a frame later: the players' tables and chat stay as
        // close to the host's as the wire allows.
        if(Game.m_Network.m_bRunning)
            Game.m_Network.ProcessMessages();
        ReportIfAsked(Bot);
        const uint32_t uiNow = timeGetTime();
        const int32_t iWait = static_cast<int32_t>(uiNextFrame - uiNow);
        if(iWait > 0)
        {
            Sockets.Wait(static_cast<uint32_t>(iWait));
            continue;
        }
        // A bot that fell far behind (a stopped process) does not rush to catch up.
        uiNextFrame = iWait < -static_cast<int32_t>(FRAME_MS) ? uiNow + FRAME_MS : uiNextFrame + FRAME_MS;
        Bot.BeforeFrame();
        if(Bot.IsDone())
            break;
        Game.Tick();
        Bot.AfterFrame();
    }
}

int RunBot(const CBotOptions& Options)
{
    SetLogSink(CountAndPrint);
    std::signal(SIGINT, AskToStop);
    std::signal(SIGTERM, AskToStop);
    std::signal(SIGUSR1, AskForReport);
    UseSystemClock();
    std::srand(Options.m_bSeedGiven ? Options.m_uiSeed : timeGetTime());
    CRecordingRenderDevice Device; // the play frame aims the camera and works out the danger value
    Device.m_bRecording = false;
    CSocketEvents Sockets;
    const auto pGame = std::make_unique<CGame>();
    g_pGame = pGame.get();
    pGame->m_Graphics.m_pDevice = &Device;
    pGame->m_Tracks.Load(TRACK_LIST_FILE);
    CBotPlayer Bot(Options, *pGame);
    pGame->m_Network.m_pListener = &Bot;
    const bool bJoined = Bot.Join(Sockets);
    if(bJoined)
        RunFrames(*pGame, Bot, Sockets);
    pGame->m_Network.Shutdown();
    Bot.WriteReport(std::cout, g_ulLogLines);
    pGame->m_Network.m_pListener = nullptr;
    g_pGame = nullptr;
    return bJoined ? EXIT_SUCCESS : EXIT_NOT_JOINED;
}
} // namespace

int main(int iArgCount, char** ppArgs)
{
    CBotOptions Options;
    std::string Error;
    if(!ParseBotOptions(iArgCount - 1, ppArgs + 1, Options, Error))
    {
        std::cerr << "trelvane-bot: " << Error << " (usage: " << BOT_USAGE << ")\n";
        return EXIT_BAD_USAGE;
    }
    if(Options.m_bHelp)
    {
        std::cout << BOT_HELP;
        return EXIT_SUCCESS;
    }
    // The bot plays the levels of the game's data, installed or below the folder it is started in.
    std::string MissingFolder;
    if(!EnterDataFolder(MissingFolder))
        std::cerr << "trelvane-bot: " << MissingFolder << " doesn't exist; no level can be loaded\n";
    return RunBot(Options);
}

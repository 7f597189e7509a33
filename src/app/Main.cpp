#include "app/Game.h"
#include "app/MainLoop.h"
#include "platform/Clock.h"
#include "platform/HeadlessWindow.h"

#include <cstdio>
#include <cstdlib>

int main()
{
    std::srand(timeGetTime()); // the one seeding: every rand of the game draws from this sequence

    CHeadlessWindow Window;
    CGame Game;
    g_pGame = &Game;
    Game.Init();

    std::printf("Trelvane: %u levels in the track list. No window yet: the frame loop runs headless; "
                "Ctrl+C quits.\n",
                Game.m_Tracks.m_uiNumFiles);
    std::fflush(stdout);
    const uint64_t ulFrames = RunMainLoop(Game, Window);
    std::printf("Trelvane: %llu frames run.\n", static_cast<unsigned long long>(ulFrames));

    g_pGame = nullptr;
    return 0;
}

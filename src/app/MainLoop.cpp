#include "app/MainLoop.h"

#include "app/Game.h"
#include "platform/Window.h"

uint64_t RunMainLoop(CGame& Game, IWindow& Window)
{
    uint64_t ulFrames = 0;
    while(Window.IsOpen())
    {
        if(!Window.HandleOneEvent())
        {
            Game.Tick();
            ulFrames++;
        }
    }
    return ulFrames;
}

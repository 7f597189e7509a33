#include "app/MainLoop.h"

#include "app/Game.h"
#include "input/Input.h"
#include "platform/Window.h"

uint64_t RunMainLoop(CGame& Game, IWindow& Window)
{
    uint64_t ulFrames = 0;
    while(Window.IsOpen())
    {
        PollKeyboard();
        PollMouse();
        // The flow steps on every pass, also on those that run no frame, so no click is lost to waiting events.
        if(!Game.m_Flow.Step())
            Window.Destroy();
        if(!Window.HandleOneEvent())
        {
            Game.Tick();
            ulFrames++;
        }
    }
    return ulFrames;
}

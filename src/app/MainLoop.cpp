#include "app/MainLoop.h"

#include "app/Game.h"
#include "input/Input.h"
#include "platform/interfaces/Window.h"
#include "platform/native/SocketEvents.h"

uint64_t RunMainLoop(CGame& Game, IWindow& Window, CSocketEvents& Sockets)
{
    const CSocketEvents::CHandler fnToNetwork = [&Game](int Socket, uint32_t uiEvent) {
        Game.m_Network.OnSocketEvent(Socket, uiEvent);
    };
    uint64_t ulFrames = 0;
    while(Window.IsOpen())
    {
        PollKeyboard();
        PollMouse();
        // The flow steps on every pass, also on those that run no frame, so no click is lost to waiting events.
        if(!Game.m_Flow.Step())
            Window.Destroy();
        if(!Window.HandleOneEvent() && !Sockets.HandleOneEvent(fnToNetwork))
        {
            Game.Tick();
            ulFrames++;
        }
    }
    return ulFrames;
}

#include "app/Game.h"
#include "app/MainLoop.h"
#include "gfx/Fonts.h"
#include "input/Input.h"
#include "platform/interfaces/Clock.h"
#include "platform/interfaces/ErrorBox.h"
#include "platform/native/DataFolder.h"
#include "platform/native/GlRenderDevice.h"
#include "platform/native/SdlAudio.h"
#include "platform/native/SdlInput.h"
#include "platform/native/SdlWindow.h"
#include "platform/native/SocketEvents.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace
{
// Builds the game on the window's devices, runs it until the window closes and takes it down in reverse.
int RunGame(CSdlWindow& Window)
{
    CSdlAudio Audio;
    CGlRenderDevice Device;
    CSocketEvents Sockets;
    CGame Game;
    g_pGame = &Game;
    g_pWindow = &Window;
    Game.m_Sound.m_pAudio = &Audio;
    Game.m_Network.m_pEvents = &Sockets;
    Game.m_Graphics.m_fnOpenDevice = [&Device, &Window]() -> IRenderDevice* {
        return Device.Init(Window) ? &Device : nullptr;
    };
    Window.SetCharHandler([&Game](char cCharacter) { Game.m_Flow.OnChar(cCharacter); });
    const bool bStarted = StartGame(Game);
    if(bStarted)
        RunMainLoop(Game, Window, Sockets);
    // What the window's end lets go of: the input devices and the fonts.
    ReleaseMouse();
    ReleaseKeyboard();
    ReleaseInput();
    ReleaseFonts();
    g_pWindow = nullptr;
    g_pGame = nullptr;
    return bStarted ? 0 : -1;
}
} // namespace

int main()
{
    std::srand(timeGetTime()); // the one seeding: every rand of the game draws from this sequence
    SetErrorHandler(ShowErrorInMessageBox);
    std::string MissingFolder;
    if(!EnterDataFolder(MissingFolder))
    {
        // Without its data every picture, sound and level would fail one by one; one message says it all.
        ShowErrorf(MISSING_FILE_ERROR, MissingFolder.c_str());
        return 1;
    }
    CSdlWindow Window;
    const char* pReason = "";
    if(!Window.Create("Trelvane", &pReason))
    {
        std::fprintf(stderr, "Trelvane: %s\n", pReason);
        ShowErrorInMessageBox("CreateWindow (for main window) failed");
        return 0;
    }
    CSdlInput Input;
    Input.Listen(Window);
    InitInput();
    CreateKeyboard(&Input);
    CreateMouse(&Input);
    return RunGame(Window);
}

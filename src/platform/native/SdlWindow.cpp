#include "platform/native/SdlWindow.h"

#include <SDL.h>

#include <cstdio>

namespace
{
constexpr int BACK_BUFFER_WIDTH = 800;
constexpr int BACK_BUFFER_HEIGHT = 600;
constexpr char ESCAPE = 27;
constexpr char BACKSPACE = 8;
constexpr char RETURN = 13;
} // namespace

CSdlWindow::~CSdlWindow()
{
    Free();
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

bool CSdlWindow::Create(const char* pTitle, const char** ppError, bool bHidden)
{
    if(SDL_InitSubSystem(SDL_INIT_VIDEO | SDL_INIT_EVENTS) != 0)
    {
        *ppError = SDL_GetError();
        return false;
    }
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MAJOR_VERSION, 2);
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MINOR_VERSION, 1);
    SDL_GL_SetAttribute(SDL_GL_DEPTH_SIZE, 16);
    SDL_GL_SetAttribute(SDL_GL_DOUBLEBUFFER, 1);
    // Full screen at the desktop's own size: the 800x600 picture is scaled into it with its shape kept.
    m_pWindow = SDL_CreateWindow(pTitle, SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED, BACK_BUFFER_WIDTH,
                                 BACK_BUFFER_HEIGHT,
                                 bHidden ? SDL_WINDOW_OPENGL | SDL_WINDOW_HIDDEN
                                         : SDL_WINDOW_OPENGL | SDL_WINDOW_BORDERLESS | SDL_WINDOW_FULLSCREEN_DESKTOP);
    if(m_pWindow)
        m_pContext = SDL_GL_CreateContext(m_pWindow);
    if(!m_pWindow || !m_pContext)
    {
        *ppError = SDL_GetError();
        Free();
        return false;
    }
    m_bOpen = true;
    SDL_GL_SetSwapInterval(1);          // fails under a virtual display, which is harmless
    SDL_SetRelativeMouseMode(SDL_TRUE); // the game draws its own cursor and reads relative counts
    SDL_StartTextInput();
    return true;
}

bool CSdlWindow::IsShown() const
{
    return m_pWindow && (SDL_GetWindowFlags(m_pWindow) & SDL_WINDOW_SHOWN) != 0;
}

bool CSdlWindow::IsOpen() const
{
    return m_bOpen;
}

bool CSdlWindow::HandleOneEvent()
{
    SDL_Event Event;
    if(!m_bOpen || !SDL_PollEvent(&Event))
        return false;
    if(Event.type == SDL_QUIT)
    {
        Destroy();
        return true;
    }
    for(const CEventListener& fnListener : m_vListeners)
        fnListener(Event);
    TypeCharacters(Event);
    return true;
}

// Printable characters come as text; the keys that type control characters come as key presses.
void CSdlWindow::TypeCharacters(const SDL_Event& Event)
{
    if(!m_fnOnChar)
        return;
    if(Event.type == SDL_TEXTINPUT)
    {
        for(const char* p = Event.text.text; *p; p++)
        {
            if(static_cast<unsigned char>(*p) < 128)
                m_fnOnChar(*p);
        }
    }
    else if(Event.type == SDL_KEYDOWN)
    {
        switch(Event.key.keysym.sym)
        {
        case SDLK_ESCAPE: m_fnOnChar(ESCAPE); break;
        case SDLK_BACKSPACE: m_fnOnChar(BACKSPACE); break;
        case SDLK_RETURN: m_fnOnChar(RETURN); break;
        default: break;
        }
    }
}

// Closing hides the window at once; the window and its GL context go with the object, after everything
// that still holds GL objects has let go of them.
void CSdlWindow::Destroy()
{
    if(m_pWindow)
        SDL_HideWindow(m_pWindow);
    m_bOpen = false;
}

void CSdlWindow::Free()
{
    if(m_pContext)
        SDL_GL_DeleteContext(m_pContext);
    m_pContext = nullptr;
    if(m_pWindow)
        SDL_DestroyWindow(m_pWindow);
    m_pWindow = nullptr;
    m_bOpen = false;
}

void ShowErrorInMessageBox(const char* pText)
{
    std::fprintf(stderr, "Trelvane: %s\n", pText);
    SDL_ShowSimpleMessageBox(SDL_MESSAGEBOX_WARNING, "Trelvane", pText, nullptr);
}

void CSdlWindow::SetCharHandler(const std::function<void(char)>& fnOnChar)
{
    m_fnOnChar = fnOnChar;
}

void CSdlWindow::AddListener(CEventListener fnListener)
{
    m_vListeners.push_back(std::move(fnListener));
}

void CSdlWindow::SwapBuffers()
{
    if(m_pWindow)
        SDL_GL_SwapWindow(m_pWindow);
}

void CSdlWindow::GetDrawableSize(int& iWidth, int& iHeight) const
{
    SDL_GL_GetDrawableSize(m_pWindow, &iWidth, &iHeight);
}

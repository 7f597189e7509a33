#pragma once
#include "platform/interfaces/Window.h"

#include <functional>
#include <vector>

union SDL_Event;
struct SDL_Window;

// The game's one window: undecorated and full screen, with an OpenGL 2.1 context. Its events are handed one
// at a time to whoever listens (the input devices, the typed-character handler) and a quit request closes it.
class CSdlWindow : public IWindow
{
public:
    typedef std::function<void(const SDL_Event&)> CEventListener;

    ~CSdlWindow() override;
    // Opens the window; false, with the reason in pError, when no window or no GL context can be had. A
    // hidden window gives a GL context to tools that draw off screen.
    bool Create(const char* pTitle, const char** ppError, bool bHidden = false);
    bool IsOpen() const override;
    bool HandleOneEvent() override;
    void Destroy() override;
    void SetCharHandler(const std::function<void(char)>& fnOnChar) override;

    void AddListener(CEventListener fnListener);
    void SwapBuffers();
    // The size of the drawable area in pixels, which the 800x600 picture is scaled into.
    void GetDrawableSize(int& iWidth, int& iHeight) const;
    bool IsShown() const;

private:
    void TypeCharacters(const SDL_Event& Event);
    void Free();

    SDL_Window* m_pWindow = nullptr;
    void* m_pContext = nullptr;
    std::vector<CEventListener> m_vListeners;
    std::function<void(char)> m_fnOnChar;
    bool m_bOpen = false;
};

// The error box of the game's window: the text on standard error, then a message box that waits for the
// player.
void ShowErrorInMessageBox(const char* pText);

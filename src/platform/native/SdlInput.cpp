#include "platform/native/SdlInput.h"

#include "platform/native/ScancodeTable.h"
#include "platform/native/SdlWindow.h"

#include <SDL.h>

void CSdlInput::Listen(CSdlWindow& Window)
{
    Window.AddListener([this](const SDL_Event& Event) { OnEvent(Event); });
}

void CSdlInput::OnEvent(const SDL_Event& Event)
{
    switch(Event.type)
    {
    case SDL_KEYDOWN:
    case SDL_KEYUP:
    {
        const uint8_t byKey = DikFromScancode(Event.key.keysym.scancode);
        if(byKey != 0)
            SetKey(byKey, Event.type == SDL_KEYDOWN);
        break;
    }
    case SDL_MOUSEMOTION: AddMotion(Event.motion.xrel, Event.motion.yrel); break;
    case SDL_MOUSEWHEEL:
        AddWheel(Event.wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -Event.wheel.y : Event.wheel.y);
        break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP: OnButton(Event.button.button, Event.type == SDL_MOUSEBUTTONDOWN); break;
    case SDL_WINDOWEVENT: OnWindowEvent(Event.window.event); break;
    default: break;
    }
}

// The game numbers the buttons left, right, middle, side; SDL numbers them left, middle, right, side.
void CSdlInput::OnButton(uint8_t bySdlButton, bool bDown)
{
    switch(bySdlButton)
    {
    case SDL_BUTTON_LEFT: SetButton(0, bDown); break;
    case SDL_BUTTON_RIGHT: SetButton(1, bDown); break;
    case SDL_BUTTON_MIDDLE: SetButton(2, bDown); break;
    case SDL_BUTTON_X1: SetButton(3, bDown); break;
    default: break;
    }
}

void CSdlInput::OnWindowEvent(uint8_t byWindowEvent)
{
    if(byWindowEvent == SDL_WINDOWEVENT_FOCUS_LOST)
        SetFocus(false);
    else if(byWindowEvent == SDL_WINDOWEVENT_FOCUS_GAINED)
        SetFocus(true);
}

#pragma once
#include "platform/interfaces/InputAccumulator.h"

union SDL_Event;
class CSdlWindow;

// The real keyboard and mouse, built from the window's events alone: events that other code injects into the
// queue reach the game exactly as a player's do, which SDL's own state queries would miss.
class CSdlInput : public CInputAccumulator
{
public:
    // Hands every event of the window to OnEvent.
    void Listen(CSdlWindow& Window);
    void OnEvent(const SDL_Event& Event);

private:
    void OnButton(uint8_t bySdlButton, bool bDown);
    void OnWindowEvent(uint8_t byWindowEvent);
};

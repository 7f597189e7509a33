#pragma once
#include <functional>

// What the main loop needs of a window: whether it still stands, one pending event at a time, and a way to
// close it. The real window and the headless stand-in implement it; the loop never knows which it has.
class IWindow
{
public:
    virtual ~IWindow() = default;
    virtual bool IsOpen() const = 0;
    // Handles one pending event if there is one; returns false when none was waiting.
    virtual bool HandleOneEvent() = 0;
    virtual void Destroy() = 0;
    // Who receives the characters the player types (the game's typed-character handling).
    virtual void SetCharHandler(const std::function<void(char)>& /*fnOnChar*/) {}
};

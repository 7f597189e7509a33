#pragma once
#include <cstdint>

constexpr int NUM_KEYS = 256;
constexpr int NUM_MOUSE_BUTTONS = 4;
constexpr uint8_t INPUT_DOWN = 0x80; // top bit of a key or button byte: held down

// One reading of the mouse: counts moved since the reading before (x right, y down, z the wheel, 120 a notch,
// positive away from the player) and a byte for each button.
struct CMouseState
{
    int32_t lX = 0;
    int32_t lY = 0;
    int32_t lZ = 0;
    uint8_t rgbButtons[NUM_MOUSE_BUTTONS] = {};
};

// Where the polled keyboard and mouse get their state: the real devices or a script. A source is read once in
// each pass of the main loop.
class IInputSource
{
public:
    virtual ~IInputSource() = default;
    // Copies the state of all keys, by key code, INPUT_DOWN for a key that is held.
    virtual void ReadKeyboard(uint8_t aState[NUM_KEYS]) = 0;
    // Hands over the counts gathered since the last read, which start again from zero, and the buttons. While
    // the mouse is not the game's (another window has the focus) State keeps what it held.
    virtual void ReadMouse(CMouseState& State) = 0;
};

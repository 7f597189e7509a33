#pragma once
#include "e2e/Screen.h"

#include <functional>
#include <string>
#include <sys/types.h>

// The real game, started in a folder of its own on the virtual display and driven as a player drives it:
// keys, mouse moves and clicks through the display's input, its screen read back from the display.
class CGameSession
{
public:
    ~CGameSession();
    // Binds the session to another display than the one the tests run on, read back from its frame buffer
    // file; called before Start. Without it the game and the input go to the tests' own display.
    void UseDisplay(const std::string& Display, const std::string& FrameBufferFile);
    // Starts the binary in the folder, silent, and waits until its window shows something.
    bool Start(const std::string& Binary, const std::string& Folder);
    // Waits for the game to end; its exit code, or -1 when it was still running after the time.
    int WaitForExit(int iSeconds);
    std::string Log() const;

    void Key(const std::string& Name);
    void Click(int iButton = 1);
    // Moves the game's own cursor until the screen shows it at (x, y), give or take two pixels; where it
    // stopped comes back in x and y.
    bool MoveCursorTo(int& x, int& y);
    bool GrabScreen(CPicture& Screen) const;
    // Waits until the screen satisfies the test; false after the time.
    bool WaitForScreen(const std::function<bool(const CPicture&)>& fnTest, int iSeconds, CPicture* pLast = nullptr);
    // Saves what the screen shows, for a person to look at.
    bool SaveScreen(const std::string& FileName) const;

    CPicture m_Cursor; // the cursor's picture, found on screen by its opaque pixels
    // How much longer than the input step keys and buttons stay down: the game reads them once a frame, and a
    // game that shares the machine with others may draw slow frames that a short press falls between.
    int m_iHoldMs = 0;

private:
    bool FindCursor(const CPicture& Screen, int& x, int& y) const;

    void Input(const std::string& Arguments) const;

    pid_t m_Pid = -1;
    std::string m_Folder;
    std::string m_Display;         // empty: the tests' own display
    std::string m_FrameBufferFile; // empty: the tests' own display's
};

// Runs an input command of a display (by default the tests' own) and waits a little, so that the game sees
// each step in its own frames.
void DisplayInput(const std::string& Arguments, const std::string& Display = "");

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

private:
    bool FindCursor(const CPicture& Screen, int& x, int& y) const;

    pid_t m_Pid = -1;
    std::string m_Folder;
};

// Runs an input command of the display and waits a little, so that the game sees each step in its own frames.
void DisplayInput(const std::string& Arguments);

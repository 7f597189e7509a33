#include "e2e/GameSession.h"

#include "platform/native/PngFile.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <signal.h>
#include <sstream>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace
{
constexpr int STEP_MS = 100;
constexpr int CURSOR_TRIES = 20;
constexpr int CLOSE_ENOUGH = 2;

std::string FrameBufferFile()
{
    const char* pFolder = std::getenv("TRELVANE_E2E_FBDIR");
    return std::string(pFolder ? pFolder : ".") + "/Xvfb_screen0";
}

void Pause(int iMs)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(iMs));
}

// A third of the way, at least one pixel: each reading of the cursor in a pass moves it once more, so the
// game may take a move up to three times over.
int StepTowards(int iDistance)
{
    if(iDistance == 0)
        return 0;
    const int iStep = iDistance / 3;
    return iStep != 0 ? iStep : (iDistance > 0 ? 1 : -1);
}
} // namespace

void DisplayInput(const std::string& Arguments, const std::string& Display)
{
    const std::string Command = (Display.empty() ? "" : "DISPLAY='" + Display + "' ") + "xdotool " + Arguments;
    EXPECT_EQ(std::system(Command.c_str()), 0) << Command;
    Pause(STEP_MS);
}

CGameSession::~CGameSession()
{
    if(m_Pid > 0 && WaitForExit(0) == -1)
    {
        kill(m_Pid, SIGKILL);
        waitpid(m_Pid, nullptr, 0);
    }
}

void CGameSession::UseDisplay(const std::string& Display, const std::string& FrameBufferFile)
{
    m_Display = Display;
    m_FrameBufferFile = FrameBufferFile;
}

void CGameSession::Input(const std::string& Arguments) const
{
    DisplayInput(Arguments, m_Display);
}

bool CGameSession::Start(const std::string& Binary, const std::string& Folder)
{
    m_Folder = Folder;
    m_Pid = fork();
    if(m_Pid == 0)
    {
        // The child: no sound card here, and everything it prints goes to its log.
        setenv("SDL_AUDIODRIVER", "dummy", 1);
        if(!m_Display.empty())
            setenv("DISPLAY", m_Display.c_str(), 1);
        if(chdir(Folder.c_str()) != 0 || !freopen("game.log", "w", stdout) || !freopen("game.log", "a", stderr))
            _exit(127);
        execl(Binary.c_str(), Binary.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    return m_Pid > 0 && WaitForScreen([](const CPicture& Screen) { return Screen.Rgb(400, 300) != 0; }, 20);
}

int CGameSession::WaitForExit(int iSeconds)
{
    for(int i = 0; i <= iSeconds * 1000 / STEP_MS; i++)
    {
        int iStatus = 0;
        if(waitpid(m_Pid, &iStatus, WNOHANG) == m_Pid)
        {
            m_Pid = -1;
            return WIFEXITED(iStatus) ? WEXITSTATUS(iStatus) : 128 + WTERMSIG(iStatus);
        }
        if(i * STEP_MS < iSeconds * 1000)
            Pause(STEP_MS);
    }
    return -1;
}

std::string CGameSession::Log() const
{
    std::ifstream File(m_Folder + "/game.log");
    std::stringstream Text;
    Text << File.rdbuf();
    return Text.str();
}

void CGameSession::Key(const std::string& Name)
{
    Input("keydown " + Name);
    Pause(m_iHoldMs);
    Input("keyup " + Name);
}

void CGameSession::Click(int iButton)
{
    Input("mousedown " + std::to_string(iButton));
    Pause(m_iHoldMs);
    Input("mouseup " + std::to_string(iButton));
}

bool CGameSession::MoveCursorTo(int& x, int& y)
{
    for(int i = 0; i < CURSOR_TRIES; i++)
    {
        CPicture Screen;
        int iAtX = 0, iAtY = 0;
        if(!GrabScreen(Screen) || !FindCursor(Screen, iAtX, iAtY))
            return false;
        if(std::abs(x - iAtX) <= CLOSE_ENOUGH && std::abs(y - iAtY) <= CLOSE_ENOUGH)
        {
            x = iAtX;
            y = iAtY;
            return true;
        }
        Input("mousemove_relative -- " + std::to_string(StepTowards(x - iAtX)) + " " +
              std::to_string(StepTowards(y - iAtY)));
        Pause(2 * STEP_MS);
    }
    return false;
}

bool CGameSession::GrabScreen(CPicture& Screen) const
{
    return ReadScreen(m_FrameBufferFile.empty() ? FrameBufferFile() : m_FrameBufferFile, Screen);
}

bool CGameSession::WaitForScreen(const std::function<bool(const CPicture&)>& fnTest, int iSeconds, CPicture* pLast)
{
    CPicture Screen;
    for(int i = 0; i <= iSeconds * 1000 / STEP_MS; i++)
    {
        if(GrabScreen(Screen) && fnTest(Screen))
        {
            if(pLast)
                *pLast = Screen;
            return true;
        }
        Pause(STEP_MS);
    }
    if(pLast)
        *pLast = Screen;
    return false;
}

bool CGameSession::SaveScreen(const std::string& FileName) const
{
    CPicture Screen;
    return GrabScreen(Screen) && SavePng(FileName.c_str(), Screen.m_vRgba, Screen.m_iWidth, Screen.m_iHeight);
}

bool CGameSession::FindCursor(const CPicture& Screen, int& x, int& y) const
{
    for(y = 0; y + m_Cursor.m_iHeight <= Screen.m_iHeight; y++)
    {
        for(x = 0; x + m_Cursor.m_iWidth <= Screen.m_iWidth; x++)
        {
            if(Screen.Shows(m_Cursor, x, y, 24))
                return true;
        }
    }
    return false;
}

#include "TestSupport.h"
#include "e2e/GameSession.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <regex>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

// The network game between real games, each on a virtual display of its own, and between the game and the
// bot. The tests run in a network of their own (see tests/in-private-network.sh): the game always uses port 666.
namespace
{
const std::string REPOSITORY = TRELVANE_SOURCE_DIR;
constexpr int SCREEN_SECONDS = 20;  // for a screen to follow an input or a message
constexpr int MATCH_SECONDS = 40;   // for a match of a five-second level to reach its results
constexpr int DISPLAY_SECONDS = 20; // for a new X server to say which display it took
constexpr int HOLD_MS = 150;        // keys and buttons, for games that share the machine

CPicture Picture(const std::string& GamePath)
{
    CPicture Result;
    EXPECT_TRUE(ReadPicture(REPOSITORY + "/data/" + GamePath, Result)) << GamePath;
    return Result;
}

void Pause(int iMs)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(iMs));
}

// Waits for a child to end; its exit code, or -1 when it still runs after the time.
int WaitForChild(pid_t& Pid, int iSeconds)
{
    for(int i = 0; Pid > 0 && i <= iSeconds * 10; i++)
    {
        int iStatus = 0;
        if(waitpid(Pid, &iStatus, WNOHANG) == Pid)
        {
            Pid = -1;
            return WIFEXITED(iStatus) ? WEXITSTATUS(iStatus) : 128 + WTERMSIG(iStatus);
        }
        Pause(100);
    }
    return -1;
}

// Asks a child to end, and makes sure it does.
void EndChild(pid_t& Pid)
{
    if(Pid <= 0)
        return;
    kill(Pid, SIGTERM);
    if(WaitForChild(Pid, 5) == -1)
    {
        kill(Pid, SIGKILL);
        waitpid(Pid, nullptr, 0);
        Pid = -1;
    }
}

// A folder to start a game or a bot in, its track list one level of five seconds whose chain enters slowly
// behind the camera: a player who doesn't turn round can't hit a ball, none reaches the end in time, and the
// match ends by the clock.
class CNetPlayFolder
{
public:
    CNetPlayFolder() : m_List("clock.txt", "data/tracks/Track List.txt")
    {
        m_Folder = std::string(m_List.Path()).substr(0, std::string(m_List.Path()).find("/data/"));
        for(const char* pPart : {"menus", "hud", "Music"})
            std::filesystem::create_directory_symlink(REPOSITORY + "/data/" + pPart, m_Folder + "/data/" + pPart);
        std::ofstream(m_Folder + "/data/tracks/clock.txt")
            << "Background: bg_nebula.png\nPlaytime: 0 min 5 sec\nInitial camera yaw and pitch: 0.0 and 0.0\n"
               "Track: 4 points, degree 3 balls 60 interval 3000 points follow\n"
               "-60,0,-40\n-20,0,-40\n20,0,-40\n60,0,-40\nEnd\n";
    }
    const std::string& Path() const { return m_Folder; }

private:
    CTempFile m_List;
    std::string m_Folder;
};

// An X server of the test's own, beside the one the test runs on, its frame buffer kept in a file.
class CVirtualDisplay
{
public:
    ~CVirtualDisplay()
    {
        EndChild(m_Pid);
        std::error_code Error;
        if(!m_Folder.empty())
            std::filesystem::remove_all(m_Folder, Error);
    }

    // The server picks a free display number and writes it down the pipe.
    bool Start()
    {
        std::string Template = (std::filesystem::temp_directory_path() / "trelvane-display-XXXXXX").string();
        if(!mkdtemp(Template.data()))
            return false;
        m_Folder = Template;
        int aPipe[2];
        if(pipe(aPipe) != 0)
            return false;
        const std::string Fd = std::to_string(aPipe[1]);
        m_Pid = fork();
        if(m_Pid == 0)
        {
            close(aPipe[0]);
            const int iQuiet = open("/dev/null", O_WRONLY);
            dup2(iQuiet, STDOUT_FILENO);
            dup2(iQuiet, STDERR_FILENO);
            execlp("Xvfb", "Xvfb", "-displayfd", Fd.c_str(), "-screen", "0", "800x600x24", "-fbdir", m_Folder.c_str(),
                   "-nolisten", "tcp", "-noreset", static_cast<char*>(nullptr));
            _exit(127);
        }
        close(aPipe[1]);
        std::string Number;
        for(int i = 0; m_Pid > 0 && i < DISPLAY_SECONDS * 10 && Number.find('\n') == std::string::npos; i++)
        {
            pollfd Poll{aPipe[0], POLLIN, 0};
            char acRead[16];
            if(poll(&Poll, 1, 100) == 1)
            {
                const ssize_t Read = read(aPipe[0], acRead, sizeof(acRead));
                if(Read <= 0)
                    break;
                Number.append(acRead, static_cast<size_t>(Read));
            }
        }
        close(aPipe[0]);
        if(Number.find('\n') == std::string::npos)
            return false;
        m_Name = ":" + Number.substr(0, Number.find('\n'));
        CPicture Screen;
        for(int i = 0; i < DISPLAY_SECONDS * 10 && !ReadScreen(FrameBufferFile(), Screen); i++)
            Pause(100);
        return Screen.m_iWidth == 800;
    }
    const std::string& Name() const { return m_Name; }
    std::string FrameBufferFile() const { return m_Folder + "/Xvfb_screen0"; }

private:
    pid_t m_Pid = -1;
    std::string m_Folder;
    std::string m_Name;
};

// The bot in a play folder; its report is what it prints, its log what it writes on standard error.
class CBotRun
{
public:
    ~CBotRun() { EndChild(m_Pid); }

    bool Start(const std::string& Folder, const std::vector<std::string>& vArguments)
    {
        m_Folder = Folder;
        std::vector<char*> vArgs{const_cast<char*>(TRELVANE_BOT_BINARY)};
        for(const std::string& Argument : vArguments)
            vArgs.push_back(const_cast<char*>(Argument.c_str()));
        vArgs.push_back(nullptr);
        m_Pid = fork();
        if(m_Pid == 0)
        {
            if(chdir(Folder.c_str()) != 0 || !freopen("bot.json", "w", stdout) || !freopen("bot.log", "w", stderr))
                _exit(127);
            execv(TRELVANE_BOT_BINARY, vArgs.data());
            _exit(127);
        }
        return m_Pid > 0;
    }
    int WaitForExit(int iSeconds) { return WaitForChild(m_Pid, iSeconds); }
    // An interrupt ends the bot as Ctrl-C does: it leaves the game and reports.
    int Stop()
    {
        if(m_Pid > 0)
            kill(m_Pid, SIGTERM);
        return WaitForExit(15);
    }
    std::string Report() const { return Read("bot.json"); }
    std::string Log() const { return Read("bot.log"); }

private:
    std::string Read(const std::string& Name) const
    {
        std::ifstream File(m_Folder + "/" + Name);
        std::stringstream Text;
        Text << File.rdbuf();
        return Text.str();
    }

    pid_t m_Pid = -1;
    std::string m_Folder;
};

// What a bot's report says about its slot, the listed players and its matches.
struct CBotReport
{
    int m_iMyId = -1;
    int m_iNumber = -1;
    int m_iPresent = 0;
    std::vector<int> m_viTracks;
    std::vector<std::string> m_vOutcomes;
};

CBotReport ReadReport(const std::string& Json)
{
    CBotReport Report;
    std::smatch Match;
    if(!std::regex_search(Json, Match, std::regex(R"(^\{"my_id":(\d+),"number":(\d+),"players":\[([^\]]*)\])")))
        return Report;
    Report.m_iMyId = std::stoi(Match[1]);
    Report.m_iNumber = std::stoi(Match[2]);
    const std::string Players = Match[3];
    const std::regex Present(R"("present":true)");
    Report.m_iPresent = static_cast<int>(
        std::distance(std::sregex_iterator(Players.begin(), Players.end(), Present), std::sregex_iterator()));
    const std::regex MatchRecord(R"re(\{"track":(\d+),"outcome":"(\w+)")re");
    for(std::sregex_iterator it(Json.begin(), Json.end(), MatchRecord); it != std::sregex_iterator(); ++it)
    {
        Report.m_viTracks.push_back(std::stoi((*it)[1]));
        Report.m_vOutcomes.push_back((*it)[2]);
    }
    return Report;
}

// A rectangle of the screen where a text is drawn.
struct CBox
{
    int m_iX, m_iY, m_iWidth, m_iHeight;
};

// The texts of the screens, by where the game draws them.
CBox LobbyName(int iSlot)
{
    return {620, 74 + 17 * iSlot, 80, 15};
}
CBox LobbyChatLine(int iLine)
{
    return {260, 74 + 17 * iLine, 330, 15};
}
const CBox TYPED_ADDRESS{106, 218, 280, 18};
const CBox RESULTS_HEADING{360, 70, 110, 24};
// A row of the score list from its player's number to the score: the rows stand so close that a "y" reaches
// into the next one.
CBox ScoreRow(int iSlot)
{
    return {265, 104 + 20 * iSlot, 70, 14};
}

// The pixels of a box that stand out from the picture the screen shows behind them: the strokes of a text.
std::vector<bool> Ink(const CPicture& Screen, const CPicture& Background, const CBox& Box)
{
    std::vector<bool> vInk;
    for(int y = Box.m_iY; y < Box.m_iY + Box.m_iHeight; y++)
    {
        for(int x = Box.m_iX; x < Box.m_iX + Box.m_iWidth; x++)
        {
            const uint32_t uiMine = Screen.Rgb(x, y);
            const uint32_t uiBack = Background.Rgb(x, y);
            bool bInk = false;
            for(int iShift = 0; iShift < 24; iShift += 8)
                bInk = bInk || std::abs(int(uiMine >> iShift & 255) - int(uiBack >> iShift & 255)) > 64;
            vInk.push_back(bInk);
        }
    }
    return vInk;
}

size_t InkCount(const std::vector<bool>& vInk)
{
    return static_cast<size_t>(std::count(vInk.begin(), vInk.end(), true));
}

bool HasText(const CPicture& Screen, const CPicture& Background, const CBox& Box)
{
    return InkCount(Ink(Screen, Background, Box)) >= 20;
}

// Whether two screens show the same text in a box, each over its own background and in any colour: the
// strokes may differ only at a few edge pixels, where colours blend.
::testing::AssertionResult SameText(const CPicture& A, const CPicture& BackA, const CPicture& B, const CPicture& BackB,
                                    const CBox& Box)
{
    const std::vector<bool> vA = Ink(A, BackA, Box), vB = Ink(B, BackB, Box);
    size_t uDifferent = 0;
    for(size_t i = 0; i < vA.size(); i++)
        uDifferent += vA[i] != vB[i];
    if(uDifferent * 10 <= std::max(InkCount(vA), InkCount(vB)))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << uDifferent << " pixels differ, of " << InkCount(vA) << " and "
                                         << InkCount(vB) << " in the box at " << Box.m_iX << "," << Box.m_iY;
}

// One player: a game in a folder of its own (where its log stays), on a display of its own or on the one the
// test runs on.
struct CPlayer
{
    explicit CPlayer(const CVirtualDisplay* pDisplay = nullptr)
    {
        m_Game.m_Cursor = Picture("menus/images/cursor.png");
        m_Game.m_iHoldMs = HOLD_MS;
        if(pDisplay)
            m_Game.UseDisplay(pDisplay->Name(), pDisplay->FrameBufferFile());
    }
    CNetPlayFolder m_Folder;
    CGameSession m_Game;
};

class EndToEnd : public ::testing::Test
{
protected:
    bool Shows(CGameSession& Game, const CPicture& Expected, int x = 0, int y = 0, double dShare = 0.8)
    {
        return Game.WaitForScreen([&](const CPicture& s) { return s.Likeness(Expected, x, y) > dShare; },
                                  SCREEN_SECONDS);
    }
    bool ShowsText(CGameSession& Game, const CPicture& Background, const CBox& Box, int iSeconds = SCREEN_SECONDS)
    {
        return Game.WaitForScreen([&](const CPicture& s) { return HasText(s, Background, Box); }, iSeconds);
    }
    void ClickAt(CGameSession& Game, int x, int y)
    {
        EXPECT_TRUE(Game.MoveCursorTo(x, y)) << "cursor not brought to " << x << "," << y;
        Game.Click();
    }
    void StartOnTheConnectScreen(CPlayer& Player)
    {
        ASSERT_TRUE(Player.m_Game.Start(TRELVANE_BINARY, Player.m_Folder.Path())) << Player.m_Game.Log();
        ASSERT_TRUE(Shows(Player.m_Game, m_Logo, 0, 0, 0.9));
        Player.m_Game.Click(); // the logo gives way at a click
        ASSERT_TRUE(Shows(Player.m_Game, m_MainMenu, 0, 0, 0.9));
        ClickAt(Player.m_Game, 390, 353); // Multi Player
        ASSERT_TRUE(Shows(Player.m_Game, m_Connect)) << Player.m_Game.Log();
    }
    void Host(CPlayer& Player)
    {
        ClickAt(Player.m_Game, 395, 402);
        ASSERT_TRUE(Shows(Player.m_Game, m_Lobby)) << Player.m_Game.Log();
        ASSERT_TRUE(ShowsText(Player.m_Game, m_Lobby, LobbyName(0))) << "the host lists itself";
    }
    void Join(CPlayer& Player)
    {
        for(const char* pKey : {"1", "2", "7", "period", "0", "period", "0", "period", "1"})
            Player.m_Game.Key(pKey);
        ASSERT_TRUE(ShowsText(Player.m_Game, m_Connect, TYPED_ADDRESS)) << "the typed address";
        ClickAt(Player.m_Game, 570, 222);
    }
    // The play HUD with a face for each of the players, and none after them.
    bool ShowsPlayersInPlay(CGameSession& Game, int iPlayers, CPicture* pLast = nullptr)
    {
        return Game.WaitForScreen(
            [&](const CPicture& s) {
                if(s.Likeness(m_Powerups, 10, 10) < 0.8)
                    return false;
                for(int i = 0; i <= iPlayers && i < 8; i++)
                {
                    double dFace = 0.0;
                    for(const CPicture& Face : m_Faces)
                        dFace = std::max(dFace, s.Likeness(Face, 125 + 80 * i, 510));
                    if((dFace > 0.8) != (i < iPlayers))
                        return false;
                }
                return true;
            },
            SCREEN_SECONDS, pLast);
    }
    // The results the game shows: 1 won, -1 lost, 0 none after the time.
    int WaitForResults(CGameSession& Game, CPicture* pScreen)
    {
        int iOutcome = 0;
        Game.WaitForScreen(
            [&](const CPicture& s) {
                const double dWin = s.Likeness(m_Win, 0, 0), dLose = s.Likeness(m_Lose, 0, 0);
                iOutcome = dWin > 0.8 && dWin > dLose + 0.1 ? 1 : dLose > 0.8 && dLose > dWin + 0.1 ? -1 : 0;
                return iOutcome != 0;
            },
            MATCH_SECONDS, pScreen);
        return iOutcome;
    }
    void SaveScreen(CGameSession& Game, const std::string& Name)
    {
        EXPECT_TRUE(Game.SaveScreen(TRELVANE_SCREENSHOT_DIR "/" + Name));
    }

    const CPicture m_Logo = Picture("menus/images/kestrun.png");
    const CPicture m_MainMenu = Picture("menus/images/Main_Menu.png");
    const CPicture m_Connect = Picture("menus/images/connect_menu.png");
    const CPicture m_Lobby = Picture("menus/images/multi_player_menu.png");
    const CPicture m_Win = Picture("menus/images/win.png");
    const CPicture m_Lose = Picture("menus/images/lose.png");
    const CPicture m_Powerups = Picture("hud/images/power_ups.png");
    const CPicture m_Faces[4] = {Picture("hud/images/face1.png"), Picture("hud/images/face2.png"),
                                 Picture("hud/images/face3.png"), Picture("hud/images/face4.png")};
};
} // namespace

TEST_F(EndToEnd, ThreeGamesMeetInTheLobbyChatPlayAMatchToItsResultsAndGoBack)
{
    CVirtualDisplay Second, Third;
    ASSERT_TRUE(Second.Start());
    ASSERT_TRUE(Third.Start());
    CPlayer First, SecondPlayer(&Second), ThirdPlayer(&Third);
    CPlayer* const apPlayers[3] = {&First, &SecondPlayer, &ThirdPlayer};
    for(CPlayer* pPlayer : apPlayers)
        ASSERT_NO_FATAL_FAILURE(StartOnTheConnectScreen(*pPlayer));
    ASSERT_NO_FATAL_FAILURE(Host(*apPlayers[0]));
    // One after the other, so that the slots follow the order of joining.
    for(int i = 1; i < 3; i++)
    {
        ASSERT_NO_FATAL_FAILURE(Join(*apPlayers[i]));
        ASSERT_TRUE(Shows(apPlayers[i]->m_Game, m_Lobby)) << apPlayers[i]->m_Game.Log();
        ASSERT_TRUE(ShowsText(apPlayers[0]->m_Game, m_Lobby, LobbyName(i))) << "player " << i + 1 << " on the host";
    }
    for(CPlayer* pPlayer : apPlayers)
    {
        CPicture Screen;
        EXPECT_TRUE(pPlayer->m_Game.WaitForScreen([&](const CPicture& s) { return HasText(s, m_Lobby, LobbyName(2)); },
                                                  SCREEN_SECONDS, &Screen));
        EXPECT_FALSE(HasText(Screen, m_Lobby, LobbyName(3))) << "a fourth player listed";
        EXPECT_FALSE(HasText(Screen, m_Lobby, LobbyChatLine(0))) << "a chat line before anyone wrote";
    }

    // The second player writes a line; everyone sees it, the writer when the host's relay comes back.
    for(const char* pKey : {"h", "i", "Return"})
        apPlayers[1]->m_Game.Key(pKey);
    CPicture aLobby[3];
    for(int i = 0; i < 3; i++)
    {
        EXPECT_TRUE(apPlayers[i]->m_Game.WaitForScreen(
            [&](const CPicture& s) { return HasText(s, m_Lobby, LobbyChatLine(0)); }, SCREEN_SECONDS, &aLobby[i]))
            << "the chat line on player " << i + 1 << "'s screen";
        EXPECT_FALSE(HasText(aLobby[i], m_Lobby, LobbyChatLine(1))) << "one line sent, two shown";
        EXPECT_TRUE(SameText(aLobby[0], m_Lobby, aLobby[i], m_Lobby, LobbyChatLine(0))) << "player " << i + 1;
    }
    SaveScreen(apPlayers[0]->m_Game, "lobby.png");

    ClickAt(apPlayers[0]->m_Game, 689, 533); // Start, on the first level of the list
    for(int i = 0; i < 3; i++)
        EXPECT_TRUE(ShowsPlayersInPlay(apPlayers[i]->m_Game, 3)) << "player " << i + 1 << "'s HUD";
    SaveScreen(apPlayers[0]->m_Game, "network-play.png");

    // Nobody scores, and with equal scores the later slot ranks higher: the last to join wins.
    CPicture aResults[3];
    const int aiOutcome[3] = {WaitForResults(apPlayers[0]->m_Game, &aResults[0]),
                              WaitForResults(apPlayers[1]->m_Game, &aResults[1]),
                              WaitForResults(apPlayers[2]->m_Game, &aResults[2])};
    EXPECT_EQ(aiOutcome[0], -1) << apPlayers[0]->m_Game.Log();
    EXPECT_EQ(aiOutcome[1], -1) << apPlayers[1]->m_Game.Log();
    EXPECT_EQ(aiOutcome[2], 1) << apPlayers[2]->m_Game.Log();
    SaveScreen(apPlayers[2]->m_Game, "network-results.png");
    for(int i = 0; i < 3; i++)
    {
        const CPicture& Back = aiOutcome[i] == 1 ? m_Win : m_Lose;
        const CPicture& FirstBack = aiOutcome[0] == 1 ? m_Win : m_Lose;
        EXPECT_TRUE(HasText(aResults[i], Back, RESULTS_HEADING)) << "player " << i + 1;
        for(int iSlot = 0; iSlot < 4; iSlot++)
        {
            EXPECT_EQ(HasText(aResults[i], Back, ScoreRow(iSlot)), iSlot < 3) << "player " << i + 1 << " row " << iSlot;
            EXPECT_TRUE(SameText(aResults[0], FirstBack, aResults[i], Back, ScoreRow(iSlot))) << "player " << i + 1;
        }
    }

    for(CPlayer* pPlayer : apPlayers)
        pPlayer->m_Game.Key("space");
    for(int i = 0; i < 3; i++)
    {
        EXPECT_TRUE(Shows(apPlayers[i]->m_Game, m_Lobby)) << "player " << i + 1 << " back in the lobby";
        EXPECT_TRUE(ShowsText(apPlayers[i]->m_Game, m_Lobby, LobbyName(2))) << "player " << i + 1;
    }
    for(int i = 2; i >= 0; i--)
    {
        apPlayers[i]->m_Game.Key("Escape");
        EXPECT_EQ(apPlayers[i]->m_Game.WaitForExit(15), 0) << apPlayers[i]->m_Game.Log();
        EXPECT_EQ(apPlayers[i]->m_Game.Log().find("ERROR"), std::string::npos) << apPlayers[i]->m_Game.Log();
    }
}

TEST_F(EndToEnd, TheGameHostsABotThatPlaysItsMatch)
{
    CPlayer Player;
    ASSERT_NO_FATAL_FAILURE(StartOnTheConnectScreen(Player));
    ASSERT_NO_FATAL_FAILURE(Host(Player));
    CBotRun Bot;
    ASSERT_TRUE(Bot.Start(Player.m_Folder.Path(), {"--join", "127.0.0.1", "--matches", "2", "--quit-after", "100"}));
    ASSERT_TRUE(ShowsText(Player.m_Game, m_Lobby, LobbyName(1))) << Bot.Log();

    ClickAt(Player.m_Game, 689, 533); // Start
    EXPECT_TRUE(ShowsPlayersInPlay(Player.m_Game, 2));
    CPicture Results;
    const int iOutcome = WaitForResults(Player.m_Game, &Results);
    ASSERT_NE(iOutcome, 0) << Player.m_Game.Log();
    EXPECT_TRUE(HasText(Results, iOutcome == 1 ? m_Win : m_Lose, ScoreRow(1))) << "the bot's score row";

    // A second start takes the bot off the results, if it hasn't left them yet, and so closes its record of
    // the first match; the interrupt then ends it in the middle of the second one.
    Player.m_Game.Key("space");
    ASSERT_TRUE(Shows(Player.m_Game, m_Lobby));
    ClickAt(Player.m_Game, 689, 533);
    EXPECT_TRUE(ShowsPlayersInPlay(Player.m_Game, 2));
    EXPECT_EQ(Bot.Stop(), 0) << Bot.Log();
    const CBotReport Report = ReadReport(Bot.Report());
    EXPECT_EQ(Report.m_iMyId, 1) << Bot.Report();
    EXPECT_EQ(Report.m_iNumber, 2) << Bot.Report();
    ASSERT_EQ(Report.m_viTracks, std::vector<int>{0}) << Bot.Report();
    EXPECT_EQ(Report.m_vOutcomes[0], iOutcome == 1 ? "lost" : "won") << "the game and the bot disagree";

    Player.m_Game.Key("Escape");
    EXPECT_EQ(Player.m_Game.WaitForExit(15), 0) << Player.m_Game.Log();
}

TEST_F(EndToEnd, TheGameJoinsABotThatStartsAMatch)
{
    CPlayer Player;
    CBotRun Bot;
    ASSERT_TRUE(
        Bot.Start(Player.m_Folder.Path(), {"--host", "--start-when", "2", "--matches", "1", "--quit-after", "100"}));
    ASSERT_NO_FATAL_FAILURE(StartOnTheConnectScreen(Player));
    ASSERT_NO_FATAL_FAILURE(Join(Player));
    EXPECT_TRUE(ShowsPlayersInPlay(Player.m_Game, 2)) << Bot.Log();
    const int iOutcome = WaitForResults(Player.m_Game, nullptr);
    ASSERT_NE(iOutcome, 0) << Player.m_Game.Log();

    EXPECT_EQ(Bot.WaitForExit(30), 0) << "the bot ends after its one match\n" << Bot.Log();
    const CBotReport Report = ReadReport(Bot.Report());
    EXPECT_EQ(Report.m_iNumber, 1) << Bot.Report();
    EXPECT_EQ(Report.m_iPresent, 2) << Bot.Report();
    ASSERT_EQ(Report.m_viTracks, std::vector<int>{0}) << Bot.Report();
    EXPECT_EQ(Report.m_vOutcomes[0], iOutcome == 1 ? "lost" : "won") << "the game and the bot disagree";

    Player.m_Game.Key("Escape");
    EXPECT_EQ(Player.m_Game.WaitForExit(15), 0) << Player.m_Game.Log();
}

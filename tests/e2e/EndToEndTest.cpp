#include "TestSupport.h"
#include "e2e/GameSession.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace
{
const std::string REPOSITORY = TRELVANE_SOURCE_DIR;

CPicture Picture(const std::string& GamePath)
{
    CPicture Result;
    EXPECT_TRUE(ReadPicture(REPOSITORY + "/data/" + GamePath, Result)) << GamePath;
    return Result;
}

// The ball colour whose lit shade a pixel is nearest to, by the shares of its channels: red, green, blue,
// yellow, orange, purple.
int NearestBallColour(uint32_t uiRgb)
{
    const float afShades[6][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 0}, {1, 0.5f, 0.25f}, {1, 0, 1}};
    const float afPixel[3] = {float(uiRgb >> 16 & 255), float(uiRgb >> 8 & 255), float(uiRgb & 255)};
    const float fBrightest = std::max({afPixel[0], afPixel[1], afPixel[2], 1.0f});
    int iNearest = -1;
    float fBest = 1e9f;
    for(int c = 0; c < 6; c++)
    {
        float fDistance = 0.0f;
        for(int i = 0; i < 3; i++)
            fDistance += std::pow(afPixel[i] / fBrightest - afShades[c][i], 2.0f);
        if(fDistance < fBest)
        {
            fBest = fDistance;
            iNearest = c;
        }
    }
    return iNearest;
}
} // namespace

namespace
{
// A folder to start the game in: the generated pictures, sounds and music of the repository, and a track
// list of a level that is won the moment it starts (its track holds no balls) followed by the first shipped
// level.
class CPlayFolder
{
public:
    CPlayFolder() : m_List("quick.txt\nlevel1.txt", "data/tracks/Track List.txt")
    {
        m_Folder = std::string(m_List.Path()).substr(0, std::string(m_List.Path()).find("/data/"));
        for(const char* pPart : {"menus", "hud", "Music"})
            std::filesystem::create_directory_symlink(REPOSITORY + "/data/" + pPart, m_Folder + "/data/" + pPart);
        std::filesystem::copy_file(REPOSITORY + "/tests/data/level1.txt", m_Folder + "/data/tracks/level1.txt");
        std::ofstream(m_Folder + "/data/tracks/quick.txt")
            << "Track: 4 points, degree 3 balls 0 interval 500 : :\n0,0,0\n1,0,0\n2,0,0\n3,0,0\nEnd\n";
    }
    const std::string& Path() const { return m_Folder; }

private:
    CTempFile m_List;
    std::string m_Folder;
};

class EndToEnd : public ::testing::Test
{
protected:
    EndToEnd() { m_Game.m_Cursor = Picture("menus/images/cursor.png"); }

    void StartOnTheMainMenu()
    {
        ASSERT_TRUE(m_Game.Start(TRELVANE_BINARY, m_Folder.Path())) << m_Game.Log();
        ASSERT_TRUE(Shows("menus/images/kestrun.png"));
        m_Game.Click(); // the logo gives way at a click
        ASSERT_TRUE(Shows("menus/images/Main_Menu.png"));
    }
    // Waits until the screen shows a picture of the game at its place, mostly: the cursor and texts may
    // cover some of it.
    bool Shows(const std::string& GamePath, int x = 0, int y = 0, double dShare = 0.9)
    {
        const CPicture Expected = Picture(GamePath);
        return m_Game.WaitForScreen([&](const CPicture& s) { return s.Likeness(Expected, x, y) > dShare; }, 15);
    }
    // Clicks with the cursor brought near (x, y); gives the place it was clicked at.
    int ClickAt(int x, int y)
    {
        EXPECT_TRUE(m_Game.MoveCursorTo(x, y)) << "cursor not brought to " << x << "," << y;
        m_Game.Click();
        return x;
    }
    void SaveScreen(const std::string& Name) { EXPECT_TRUE(m_Game.SaveScreen(TRELVANE_SCREENSHOT_DIR "/" + Name)); }

    CPlayFolder m_Folder;
    CGameSession m_Game;
};
} // namespace

TEST_F(EndToEnd, SinglePlayerRunsFromTheLogoThroughAWonLevelToTheNextOne)
{
    StartOnTheMainMenu();
    SaveScreen("main-menu.png");
    ClickAt(390, 298); // Single Player
    ASSERT_TRUE(Shows("menus/images/single_player_menu.png"));
    ClickAt(690, 533); // Start: the first level of the list, won as it starts
    ASSERT_TRUE(Shows("menus/images/win.png", 0, 0, 0.8)) << m_Game.Log();
    SaveScreen("results.png");
    m_Game.Key("space"); // on to the next level of the list
    ASSERT_TRUE(Shows("hud/images/power_ups.png", 10, 10));
    ASSERT_TRUE(Shows("hud/images/score.png", 500, 10, 0.7));
    SaveScreen("play.png");
    m_Game.Key("Escape");
    EXPECT_EQ(m_Game.WaitForExit(10), 0) << m_Game.Log();
    EXPECT_EQ(m_Game.Log().find("ERROR"), std::string::npos) << m_Game.Log();
}

TEST_F(EndToEnd, AClickOnTheOptionsSliderMovesTheEffectsVolumeThere)
{
    StartOnTheMainMenu();
    ClickAt(390, 408); // Options
    ASSERT_TRUE(Shows("menus/images/Options_Menu.png", 0, 0, 0.8));
    ASSERT_TRUE(Shows("menus/images/slide_bar.png", 610, 180)) << "the effects volume starts at its highest";
    const int iVolume = ClickAt(456, 185) - 355; // about 101
    int x = 300, y = 450;
    ASSERT_TRUE(m_Game.MoveCursorTo(x, y)) << "the cursor out of the slider's way";
    EXPECT_TRUE(Shows("menus/images/slide_bar.png", 355 + iVolume, 180)) << "volume " << iVolume;
    m_Game.Key("Escape");
    EXPECT_EQ(m_Game.WaitForExit(10), 0) << m_Game.Log();
}

TEST_F(EndToEnd, TheGameOpensOnItsLogoAndQuitsOnEscape)
{
    ASSERT_TRUE(m_Game.Start(TRELVANE_BINARY, m_Folder.Path())) << m_Game.Log();
    EXPECT_TRUE(Shows("menus/images/kestrun.png", 0, 0, 0.95));
    m_Game.Key("Escape");
    EXPECT_EQ(m_Game.WaitForExit(10), 0) << m_Game.Log();
    EXPECT_EQ(m_Game.Log().find("ERROR"), std::string::npos) << m_Game.Log();
}

TEST_F(EndToEnd, AFrameOfAShippedLevelShowsItsTrackLinesAndBallsInTheirColours)
{
    CTempFile Out("", "level1.png");
    const CCommandResult Run =
        RunCommand("cd '" + REPOSITORY + "' && '" TRELVANE_SHOT_BINARY "' tests/data/level1.txt '" + Out.Path() +
                   "' --frames 1500 --balls");
    ASSERT_EQ(Run.m_iExitCode, 0) << Run.m_Output;
    CPicture Frame;
    ASSERT_TRUE(ReadPicture(Out.Path(), Frame));
    ASSERT_EQ(Frame.m_iWidth, 800);
    ASSERT_EQ(Frame.m_iHeight, 600);

    // Half-transparent cyan over the clear colour, where no ball stands in front of the line.
    size_t uLinePixels = 0;
    for(int y = 0; y < 600; y++)
    {
        for(int x = 0; x < 800; x++)
        {
            const uint32_t uiRgb = Frame.Rgb(x, y);
            uLinePixels += (uiRgb >> 16) < 16 && std::abs(int(uiRgb >> 8 & 255) - 0xB1) < 12 &&
                           std::abs(int(uiRgb & 255) - 0xBB) < 12;
        }
    }
    EXPECT_GT(uLinePixels, 200u);

    std::istringstream Balls(Run.m_Output);
    std::string Word;
    int iShown = 0, iRight = 0;
    float fX, fY;
    int iColour, iPowerup;
    while(Balls >> Word >> fX >> fY >> iColour >> iPowerup)
    {
        if(Word != "ball" || iPowerup)
            continue; // a powerup ball's colour is blended with what lies behind it
        iShown++;
        iRight += NearestBallColour(Frame.Rgb(int(fX), int(fY))) == iColour;
    }
    EXPECT_GT(iShown, 20) << Run.m_Output;
    // A ball's centre may lie behind a nearer ball of another colour; most stand in the open.
    EXPECT_GT(iRight, iShown * 8 / 10) << iRight << " of " << iShown;
}

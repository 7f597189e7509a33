#include "Screen.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>
#include <sstream>
#include <string>

namespace
{
const std::string REPOSITORY = TRELVANE_SOURCE_DIR;

// Two tracks that cross, one over the other, in front of a camera that stands still.
const char* const TWO_TRACKS = "Background: bg_dawn.png\n"
                               "Playtime: 3 min 0 sec\n"
                               "Initial camera yaw and pitch: 0 and 15\n"
                               "Camera: 4 points, degree 3 :\n"
                               "0, 30, -120\n0, 30, -120\n0, 30, -119\n0, 30, -118\n"
                               "Track: 6 points, degree 3 balls 30 interval 900 points follow\n"
                               "-80, 0, 0\n-80, 0, 0\n-20, 0, 10\n20, 0, 10\n80, 0, 0\n80, 0, 0\n"
                               "Track: 6 points, degree 3 balls 30 interval 900 points follow\n"
                               "0, 10, -40\n0, 10, -40\n10, 10, 0\n10, 10, 20\n0, 10, 60\n0, 10, 60\n"
                               "End\n";

// "T1 start 54 231" lines into a name-to-place table.
std::map<std::string, std::pair<int, int>> ReadMarks(const std::string& Output)
{
    std::map<std::string, std::pair<int, int>> Marks;
    std::istringstream Lines(Output);
    std::string Name, Which;
    int iX, iY;
    while(Lines >> Name >> Which >> iX >> iY)
        Marks[Name + " " + Which] = {iX, iY};
    return Marks;
}

bool Near(uint32_t uiRgb, uint32_t uiExpected)
{
    for(int iShift : {0, 8, 16})
    {
        if(std::abs(int(uiRgb >> iShift & 255) - int(uiExpected >> iShift & 255)) > 24)
            return false;
    }
    return true;
}

// The mean of each colour channel over a rectangle.
std::array<double, 3> Mean(const CPicture& Picture, int iLeft, int iWidth)
{
    std::array<double, 3> adSum{};
    for(int y = 0; y < Picture.m_iHeight; y++)
    {
        for(int x = iLeft; x < iLeft + iWidth; x++)
        {
            const uint32_t uiRgb = Picture.Rgb(x, y);
            for(int i = 0; i < 3; i++)
                adSum[i] += uiRgb >> (16 - 8 * i) & 255;
        }
    }
    for(double& dSum : adSum)
        dSum /= static_cast<double>(iWidth) * Picture.m_iHeight;
    return adSum;
}
} // namespace

// The map shows each track's colour at its start ring and its end bar, and beside it stands the frame that
// the frame grabber draws of the same level, scaled down.
TEST(LevelTool, PreviewShowsEachTrackInItsColourBesideTheFirstFrame)
{
    CTempFile Level(TWO_TRACKS);
    CTempFile Out("", "preview.png"), Shot("", "shot.png");
    const CCommandResult Run = RunCommand("cd '" + REPOSITORY + "' && '" TRELVANE_LEVEL_BINARY "' preview '" +
                                          Level.Path() + "' '" + Out.Path() + "' --size 300 --marks");
    ASSERT_EQ(Run.m_iExitCode, 0) << Run.m_Output;
    CPicture Preview;
    ASSERT_TRUE(ReadPicture(Out.Path(), Preview));
    ASSERT_EQ(Preview.m_iWidth, 700);
    ASSERT_EQ(Preview.m_iHeight, 300);

    const std::map<std::string, std::pair<int, int>> Marks = ReadMarks(Run.m_Output);
    const float fRing = 2.4f * 300 / 200; // the start ring's radius at this size
    for(const auto& [Track, uiColour] : {std::make_pair("T1", 0xff6b6bu), std::make_pair("T2", 0x4dabf7u)})
    {
        ASSERT_EQ(Marks.count(std::string(Track) + " end"), 1u) << Run.m_Output;
        const auto [iEndX, iEndY] = Marks.at(std::string(Track) + " end");
        EXPECT_TRUE(Near(Preview.Rgb(iEndX, iEndY), uiColour))
            << Track << " end " << std::hex << Preview.Rgb(iEndX, iEndY);
        const auto [iStartX, iStartY] = Marks.at(std::string(Track) + " start");
        const uint32_t uiRing = Preview.Rgb(iStartX, static_cast<int>(std::lround(iStartY - fRing)));
        EXPECT_TRUE(Near(uiRing, uiColour)) << Track << " start " << std::hex << uiRing;
    }

    ASSERT_EQ(
        RunCommand("cd '" + REPOSITORY + "' && '" TRELVANE_SHOT_BINARY "' '" + Level.Path() + "' '" + Shot.Path() + "'")
            .m_iExitCode,
        0);
    CPicture Frame;
    ASSERT_TRUE(ReadPicture(Shot.Path(), Frame));
    const std::array<double, 3> adFrame = Mean(Frame, 0, 800), adPanel = Mean(Preview, 300, 400);
    for(int i = 0; i < 3; i++)
        EXPECT_NEAR(adPanel[i], adFrame[i], 1.5) << "channel " << i;
}

TEST(LevelTool, PreviewRefusesBadInputInOneLine)
{
    for(const char* pArguments : {"", "data/tracks/01-first-light.txt", "/no/such.txt out.png",
                                  "data/tracks/01-first-light.txt out.png --size 100", "--bogus a b"})
    {
        const CCommandResult Run =
            RunCommand("cd '" + REPOSITORY + "' && '" TRELVANE_LEVEL_BINARY "' preview " + pArguments);
        EXPECT_EQ(Run.m_iExitCode, 2) << pArguments;
        EXPECT_EQ(Run.m_Output.find('\n'), Run.m_Output.size() - 1) << Run.m_Output;
    }
}

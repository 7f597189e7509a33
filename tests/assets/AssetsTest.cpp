#include "TestSupport.h"
#include "tracks/Level.h"
#include "tracks/TrackList.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace
{
std::string ReadFile(const std::string& Path)
{
    std::ifstream Stream(Path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>());
}

uint32_t BigEndian32(const std::string& Bytes, size_t At)
{
    uint32_t u = 0;
    for(size_t i = 0; i < 4; i++)
        u = u << 8 | static_cast<unsigned char>(Bytes[At + i]);
    return u;
}

// Width and height from a PNG's header chunk; 0 x 0 for anything that is no PNG.
std::pair<uint32_t, uint32_t> PngSize(const std::string& Path)
{
    const std::string Bytes = ReadFile(Path);
    if(Bytes.size() < 24 || Bytes.compare(1, 3, "PNG") != 0 || Bytes.compare(12, 4, "IHDR") != 0)
        return {0, 0};
    return {BigEndian32(Bytes, 16), BigEndian32(Bytes, 20)};
}

struct CPicture
{
    const char* m_pName;
    uint32_t m_uiWidth, m_uiHeight; // 0 where the picture's size is free
};

// Every picture the game loads: the buttons cover their hot rectangles, the screens fill the back buffer.
const CPicture MENU_PICTURES[] = {
    {"Main_Menu", 800, 600},
    {"single_player_menu", 800, 600},
    {"multi_player_menu", 800, 600},
    {"spline_editor_menu", 800, 600},
    {"menu_credits", 800, 600},
    {"Options_Menu", 800, 600},
    {"connect_menu", 800, 600},
    {"win", 800, 600},
    {"lose", 800, 600},
    {"kestrun", 800, 600},
    {"Single_Player1", 244, 37},
    {"Multi_Player1", 244, 37},
    {"Spline_Editor1", 0, 0},
    {"Options1", 152, 37},
    {"Quit1", 85, 37},
    {"credits1", 140, 27},
    {"return_to_main1", 343, 33},
    {"start1", 173, 78},
    {"connect_client1", 291, 38},
    {"connect_server1", 291, 38},
    {"arrow_up1", 16, 16},
    {"arrow_down1", 16, 16},
    {"arrow_left", 0, 0},
    {"arrow_right", 0, 0},
    {"cursor", 0, 0},
    {"gray_box", 0, 0},
    {"slide_bar", 0, 0},
    {"highlight", 0, 0},
    {"scroll", 0, 0},
};
const char* const HUD_PICTURES[] = {"power_ups", "score",  "linear_track", "red",   "green", "blue", "yellow",
                                    "orange",    "purple", "face1",        "face2", "face3", "face4"};
const char* const SOUNDS[] = {"menus/sounds/highlight.wav", "menus/sounds/click.wav", "hud/sounds/shoot.wav",
                              "hud/sounds/chimes.wav",      "hud/sounds/stick.wav",   "hud/sounds/power.wav"};

// The name of a button's lit picture: the 1 of its normal picture becomes a 2, or a 2 is added.
std::string OverName(const std::string& Name)
{
    return Name.back() == '1' ? Name.substr(0, Name.size() - 1) + "2" : Name + "2";
}
} // namespace

TEST(Assets, EveryPictureExistsAtItsSizeAndEachOverPictureMatchesItsButton)
{
    for(const CPicture& Picture : MENU_PICTURES)
    {
        const std::string Path = std::string("data/menus/images/") + Picture.m_pName + ".png";
        const auto Size = PngSize(Path);
        ASSERT_GT(Size.first, 0u) << Path;
        if(Picture.m_uiWidth != 0)
        {
            EXPECT_EQ(Size, std::make_pair(Picture.m_uiWidth, Picture.m_uiHeight)) << Path;
        }
        const std::string Name = Picture.m_pName;
        if(Name.back() == '1' || Name.rfind("arrow_", 0) == 0)
        {
            EXPECT_EQ(PngSize("data/menus/images/" + OverName(Name) + ".png"), Size) << OverName(Name);
        }
    }
    for(const char* pName : HUD_PICTURES)
        EXPECT_GT(PngSize(std::string("data/hud/images/") + pName + ".png").first, 0u) << pName;

    // The flare is an uncompressed true-colour picture with alpha.
    const std::string Flare = ReadFile("data/hud/images/flare.tga");
    ASSERT_GE(Flare.size(), 18u);
    EXPECT_EQ(Flare[2], 2);
    EXPECT_EQ(static_cast<unsigned char>(Flare[16]), 32u);
}

TEST(Assets, SoundsMusicAndEveryLevelsBackgroundAreThere)
{
    for(const char* pName : SOUNDS)
    {
        const std::string Wave = ReadFile(std::string("data/") + pName);
        EXPECT_TRUE(Wave.size() > 44 && Wave.compare(0, 4, "RIFF") == 0 && Wave.compare(8, 4, "WAVE") == 0) << pName;
    }
    int iPieces = 0;
    for(const auto& Entry : std::filesystem::directory_iterator("data/Music"))
    {
        // A minute at 128 kbit/s is 960,000 bytes.
        iPieces += Entry.path().extension() == ".mp3" && Entry.file_size() >= 960000;
    }
    EXPECT_GE(iPieces, 3);

    CTrackList List;
    ASSERT_TRUE(List.Load(TRACK_LIST_FILE));
    for(const std::string& File : List.m_vFiles)
    {
        CLevel Level;
        Level.Load(File.c_str(), 1);
        EXPECT_EQ(PngSize(std::string("data/hud/images/") + Level.m_szBackground), std::make_pair(800u, 600u)) << File;
    }
}

TEST(Assets, TheGeneratorsMakeTheSameBytesOnEveryRun)
{
    CTempFile First("", "unused"), Second("", "unused");
    const std::string& FirstDir = First.Folder();
    const std::string& SecondDir = Second.Folder();
    for(const std::string& Dir : {FirstDir, SecondDir})
    {
        ASSERT_EQ(RunCommand("'" TRELVANE_IMAGES_BINARY "' '" + Dir + "'").m_iExitCode, 0);
        ASSERT_EQ(RunCommand("'" TRELVANE_SOUNDS_BINARY "' '" + Dir + "'").m_iExitCode, 0);
    }
    const CCommandResult Diff = RunCommand("diff -r '" + FirstDir + "' '" + SecondDir + "'");
    EXPECT_EQ(Diff.m_iExitCode, 0) << Diff.m_Output;
    EXPECT_TRUE(std::filesystem::exists(FirstDir + "/Music"));
}

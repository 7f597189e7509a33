#include "tracks/TrackList.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

TEST(TrackList, OneEntryALineBehindTheFolder)
{
    CErrorRecorder Errors;
    CTempFile File("one.txt\r\ntwo.txt\r\nthree.txt");
    CTrackList List;
    ASSERT_TRUE(List.Load(File.Path()));
    EXPECT_EQ(List.m_uiNumFiles, 3u);
    EXPECT_EQ(List.m_vFiles,
              (std::vector<std::string>{"data//tracks//one.txt", "data//tracks//two.txt", "data//tracks//three.txt"}));
    EXPECT_EQ(List.m_uiCurrentFile, 0u);
    EXPECT_EQ(List.m_uiRound, 1u);
    EXPECT_TRUE(Errors.Errors().empty());
}

TEST(TrackList, AFinalOrBlankLineGivesTheBareFolder)
{
    CTempFile File("one.txt\n\ntwo.txt\n");
    CTrackList List;
    List.Load(File.Path());
    EXPECT_EQ(List.m_vFiles, (std::vector<std::string>{"data//tracks//one.txt", "data//tracks//",
                                                       "data//tracks//two.txt", "data//tracks//"}));

    CTempFile Empty("");
    CTrackList None;
    None.Load(Empty.Path());
    EXPECT_EQ(None.m_vFiles, std::vector<std::string>{"data//tracks//"});
}

TEST(TrackList, ALongLineEndsTheListWithItsFirst255Characters)
{
    const std::string Long(300, 'a');
    CTempFile File("one.txt\n" + Long + "\ntwo.txt");
    CTrackList List;
    List.Load(File.Path());
    ASSERT_EQ(List.m_uiNumFiles, 2u);
    EXPECT_EQ(List.m_vFiles[1], "data//tracks//" + Long.substr(0, 255));
}

TEST(TrackList, AMissingListIsReportedAndLeftEmpty)
{
    CErrorRecorder Errors;
    CTrackList List;
    EXPECT_FALSE(List.Load("/nonexistent/Track List.txt"));
    EXPECT_EQ(List.m_uiNumFiles, 0u);
    ASSERT_EQ(Errors.Errors().size(), 1u);
    EXPECT_EQ(Errors.Errors()[0], "ERROR: /nonexistent/Track List.txt doesn't exist.");
}

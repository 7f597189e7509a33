#include "bot/BotOptions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
bool Parse(const std::vector<const char*>& vArgs, CBotOptions& Options, std::string& Error)
{
    return ParseBotOptions(static_cast<int>(vArgs.size()), vArgs.data(), Options, Error);
}
} // namespace

TEST(BotOptions, AHostStopsStartingMatchesAfterTheSecondsGiven)
{
    CBotOptions Options;
    std::string Error;
    ASSERT_TRUE(Parse({"--host", "--start-when", "2", "--start-until", "40"}, Options, Error)) << Error;
    EXPECT_EQ(Options.m_uiStartUntilMs, 40000u);
    EXPECT_EQ(CBotOptions{}.m_uiStartUntilMs, 0u) << "no limit unless asked";
}

TEST(BotOptions, StartUntilIsForAHostAndTakesWholeSeconds)
{
    for(const std::vector<const char*>& vArgs : {std::vector<const char*>{"--join", "127.0.0.1", "--start-until", "5"},
                                                 {"--host", "--start-until", "0"},
                                                 {"--host", "--start-until", "1.5"},
                                                 {"--host", "--start-until"}})
    {
        CBotOptions Options;
        std::string Error;
        EXPECT_FALSE(Parse(vArgs, Options, Error)) << vArgs.back();
        EXPECT_FALSE(Error.empty());
    }
}

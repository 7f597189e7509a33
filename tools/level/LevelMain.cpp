// trelvane-level: checks, draws and measures level files with the game's own reader and rules.
#include "level/LevelCommands.h"
#include "platform/native/DataFolder.h"

#include <cstdlib>
#include <iostream>

namespace
{
const char* const LEVEL_HELP =
    "usage: trelvane-level check FILE...\n"
    "       trelvane-level preview FILE OUT.png [--size N]\n"
    "       trelvane-level stats FILE [--seeds N] [--round R]\n"
    "Run where data/ is; installed, from any folder (the pictures then come from the installed game).\n"
    "  check    reports every problem of each level file as FILE:LINE:COLUMN: error|warning: text;\n"
    "           exits 1 when any error was found\n"
    "  preview  draws the level from above (tracks with start, end, direction and ball count, camera paths,\n"
    "           the first line of sight) beside the first frame a player sees; needs a display\n"
    "  stats    plays the level over N seeds (default 20) as an expert and a casual player, and idle once,\n"
    "           at round R (default 1), and prints JSON\n"
    "  --help   show this text\n";
} // namespace

int FailLevelTool(const std::string& Reason)
{
    std::cerr << "trelvane-level: " << Reason << "\n";
    return LEVEL_EXIT_BAD_INPUT;
}

int main(int iArgCount, char** ppArgs)
{
    const std::vector<std::string> vArgs(ppArgs + 1, ppArgs + iArgCount);
    if(vArgs.empty())
        return FailLevelTool("no command given (try --help)");
    const std::string& Command = vArgs[0];
    const std::vector<std::string> vRest(vArgs.begin() + 1, vArgs.end());
    if(Command == "--help" || Command == "help")
    {
        std::cout << LEVEL_HELP;
        return EXIT_SUCCESS;
    }
    FindToolData(); // the pictures that levels name
    if(Command == "check")
        return RunCheck(vRest);
    if(Command == "preview")
        return RunPreview(vRest);
    if(Command == "stats")
        return RunStats(vRest);
    return FailLevelTool("unknown command '" + Command + "' (try --help)");
}

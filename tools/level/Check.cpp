// Checks level files with the game's own reader and reports every problem where it stands in the file, in the
// form compilers use, so that an editor can jump to it.
#include "level/CheckLevel.h"
#include "level/LevelCommands.h"
#include "platform/interfaces/ErrorBox.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace
{
bool ReadWhole(const std::string& FileName, std::string& Text)
{
    std::error_code Ignored;
    if(!std::filesystem::is_regular_file(FileName, Ignored))
        return false;
    std::ifstream Stream(FileName, std::ios::in | std::ios::binary);
    std::ostringstream Whole;
    Whole << Stream.rdbuf();
    Text = Whole.str();
    return static_cast<bool>(Stream);
}
} // namespace

int RunCheck(const std::vector<std::string>& vArgs)
{
    if(vArgs.empty())
        return FailLevelTool("no level file given (usage: trelvane-level check FILE...)");
    std::vector<std::string> vTexts(vArgs.size());
    for(size_t i = 0; i < vArgs.size(); i++)
    {
        if(!vArgs[i].empty() && vArgs[i][0] == '-')
            return FailLevelTool("unknown option '" + vArgs[i] + "' (usage: trelvane-level check FILE...)");
        if(!ReadWhole(vArgs[i], vTexts[i]))
            return FailLevelTool("cannot read " + vArgs[i] + ": not a file");
    }
    SetErrorHandler([](const char*) {}); // the checks tell what the game would have put in a box
    bool bErrors = false;
    for(size_t i = 0; i < vArgs.size(); i++)
    {
        for(const CDiagnostic& Found : CheckLevelText(vTexts[i]))
        {
            std::cout << vArgs[i] << ":" << LineAndColumn(vTexts[i], Found.m_Offset) << ": "
                      << (Found.m_bError ? "error: " : "warning: ") << Found.m_Text << "\n";
            bErrors = bErrors || Found.m_bError;
        }
    }
    return bErrors ? LEVEL_EXIT_FOUND_ERRORS : 0;
}

#pragma once
#include <string>
#include <vector>

// The commands of the level designer's tool. Each takes the arguments behind its own name and returns the
// program's exit code: 0 when all went well, 1 when a check found an error, 2 on bad input.
constexpr int LEVEL_EXIT_FOUND_ERRORS = 1;
constexpr int LEVEL_EXIT_BAD_INPUT = 2;

int RunCheck(const std::vector<std::string>& vArgs);
int RunPreview(const std::vector<std::string>& vArgs);
int RunStats(const std::vector<std::string>& vArgs);

// One line on standard error, "trelvane-level: REASON", and the exit code of bad input.
int FailLevelTool(const std::string& Reason);

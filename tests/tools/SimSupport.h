#pragma once
#include "TestSupport.h"

#include <string>

// Runs the level simulator with the given arguments.
CCommandResult Simulate(const std::string& Arguments);
// The value of the first numeric key of that name in the simulator's JSON, or -1 when there is none.
double Field(const std::string& Output, const std::string& Key);
// The same inside one player's part of the level tool's measurement ("idle", "expert", "casual"), or -1.
double PlayerField(const std::string& Json, const std::string& Player, const std::string& Key);

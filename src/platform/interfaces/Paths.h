#pragma once
#include <string>

// The game names its files the way the data folder was first laid out, with backslashes ("data\hud\images\").
// This is the one place where such a name becomes a path of this system.
std::string NativePath(const char* pGamePath);

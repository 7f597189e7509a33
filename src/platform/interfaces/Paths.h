#pragma once
#include <string>

// The game names its files the way the data folder was first laid out, with backslashes ("data\hud\images\").
// This is the one place where such a name becomes a path of this system.
std::string NativePath(const char* pGamePath);

// The folder that holds data/; empty, as at the start, for the working folder. Tools started away from any data
// set it to an installed game's folder, so that the pictures and sounds under data/ load from there while every
// other file they are given keeps its own path.
void SetDataRoot(const std::string& Root);

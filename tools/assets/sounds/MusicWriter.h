#pragma once

#include <filesystem>
#include <string>

// Composes, renders and encodes every piece into DataDir/Music, one piece on each thread: the pieces share
// nothing, so they come out the same whatever order the threads finish in. On failure returns false with the
// reason of the first piece that failed in Error.
bool WriteMusic(const std::filesystem::path& DataDir, const std::string& Lame, std::string& Error);

#pragma once
#include <fstream>

// Opens one of the game's own data files as a binary stream, so that a carriage return reaches its reader.
// A file that is missing or can't be opened is reported to the user, and the caller gets false.
bool OpenGameFile(const char* pFileName, std::ifstream& Stream);

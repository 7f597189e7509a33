#pragma once
#include "level/Diagnostic.h"

#include <string>
#include <vector>

// Reads a level file's text as the game does, with a recorder listening, then looks at what the level holds:
// every problem in the order of the file. Pictures are looked for below the working directory, as the game does.
std::vector<CDiagnostic> CheckLevelText(const std::string& Text);

// "LINE:COLUMN" of a byte of the text, both counted from 1, columns in bytes.
std::string LineAndColumn(const std::string& Text, int64_t Offset);

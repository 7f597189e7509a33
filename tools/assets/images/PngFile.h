// Writing a finished picture as a PNG file with an alpha channel.
#pragma once

#include "Canvas.h"

#include <string>

namespace art
{
// Throws std::runtime_error with the file name if the file can't be written.
void SavePng(const CCanvas& Canvas, const std::string& Path);
} // namespace art

// Writing a finished picture as a PNG file with an alpha channel.
#pragma once

#include "Canvas.h"

#include <string>

namespace art {

// Throws std::runtime_error with the file name if the file can't be written.
void savePng(const Canvas &canvas, const std::string &path);

} // namespace art

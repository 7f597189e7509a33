// One picture that shows every picture, scaled to fit a cell, with its file name and size under it: a
// reviewer sees the whole set at once and spots what clashes.
#pragma once

#include "Canvas.h"

#include <string>
#include <vector>

namespace art {

class ContactSheet {
public:
    // Keeps only a thumbnail, so the full pictures need not stay in memory.
    void add(const std::string &path, const Canvas &picture);
    Canvas render() const;

private:
    struct Entry {
        std::string path;
        int width, height;
        Canvas thumbnail;
    };
    std::vector<Entry> entries_;
};

} // namespace art

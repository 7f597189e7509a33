// trelvane-images: draws every picture the game loads, from code, and writes them below a data folder.
//
//   trelvane-images OUT_DATA_DIR [--contact-sheet FILE.png]
//   trelvane-images --icon SIZE FILE.png
//
// writes OUT_DATA_DIR/menus/images/*.png, OUT_DATA_DIR/hud/images/*.png (the HUD, the ball icons, the faces
// and the level backgrounds) and OUT_DATA_DIR/hud/images/flare.tga. With --contact-sheet it also writes one
// PNG that shows all of them with their file names. With --icon it writes only the game's desktop icon,
// SIZE pixels square (16 to 1024). The output depends on nothing but this code and the
// DejaVu fonts: no clock and no unseeded randomness, so two runs write identical files. Software drawing
// only; no window is opened. On any failure (a missing font, a folder that can't be written) it prints one
// line on stderr and exits with 1; with wrong arguments it prints the usage and exits with 2.
#include "AppIcon.h"
#include "Catalogue.h"
#include "ContactSheet.h"
#include "PngFile.h"
#include "TgaFile.h"
#include "Text.h"

#include <SDL.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace {

struct Options {
    std::string dataDir;
    std::string contactSheet; // empty when none is wanted
    int iconSize = 0;         // above 0: write only the icon, to iconFile
    std::string iconFile;
};

bool parseIcon(int argc, char **argv, Options &options)
{
    if (argc != 4)
        return false;
    char *end = nullptr;
    long size = std::strtol(argv[2], &end, 10);
    if (*end != '\0' || size < 16 || size > 1024)
        return false;
    options.iconSize = static_cast<int>(size);
    options.iconFile = argv[3];
    return true;
}

bool parse(int argc, char **argv, Options &options)
{
    if (argc > 1 && std::string(argv[1]) == "--icon")
        return parseIcon(argc, argv, options);
    for (int i = 1; i < argc; ++i) {
        std::string arg = argv[i];
        if (arg == "--contact-sheet" && i + 1 < argc)
            options.contactSheet = argv[++i];
        else if (!arg.empty() && arg[0] != '-' && options.dataDir.empty())
            options.dataDir = arg;
        else
            return false;
    }
    return !options.dataDir.empty();
}

bool endsWith(const std::string &s, const std::string &tail)
{
    return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

void writePicture(const art::Canvas &canvas, const std::filesystem::path &file)
{
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
    if (error)
        throw std::runtime_error("cannot make folder " + file.parent_path().string() + ": " + error.message());
    if (endsWith(file.string(), ".tga"))
        art::saveTga(canvas, file.string());
    else
        art::savePng(canvas, file.string());
}

void run(const Options &options)
{
    if (options.iconSize > 0) {
        writePicture(art::appIcon(options.iconSize), options.iconFile);
        return;
    }
    art::openFonts();
    art::ContactSheet sheet;
    for (const art::Picture &picture : art::catalogue()) {
        art::Canvas canvas = picture.draw();
        writePicture(canvas, std::filesystem::path(options.dataDir) / picture.path);
        if (!options.contactSheet.empty())
            sheet.add(picture.path, canvas);
    }
    if (!options.contactSheet.empty())
        writePicture(sheet.render(), options.contactSheet);
    art::closeFonts();
}

} // namespace

int main(int argc, char **argv)
{
    Options options;
    if (!parse(argc, argv, options)) {
        std::fprintf(stderr, "usage: trelvane-images OUT_DATA_DIR [--contact-sheet FILE.png] | --icon SIZE FILE.png\n");
        return 2;
    }
    try {
        run(options);
    } catch (const std::exception &e) {
        std::fprintf(stderr, "trelvane-images: %s\n", e.what());
        return 1;
    }
    return 0;
}

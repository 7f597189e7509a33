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
#include "Text.h"
#include "TgaFile.h"
#include "common/NumberParse.h"

#include <SDL.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace
{
struct COptions
{
    std::string m_DataDir;
    std::string m_ContactSheet; // empty when none is wanted
    int m_iIconSize = 0;        // above 0: write only the icon, to m_IconFile
    std::string m_IconFile;
};

bool ParseIcon(int iArgCount, char** ppArgs, COptions& Options)
{
    if(iArgCount != 4)
        return false;
    uint32_t uiSize = 0;
    if(!ParseU32(ppArgs[2], 16, 1024, uiSize))
        return false;
    Options.m_iIconSize = static_cast<int>(uiSize);
    Options.m_IconFile = ppArgs[3];
    return true;
}

bool Parse(int iArgCount, char** ppArgs, COptions& Options)
{
    if(iArgCount > 1 && std::string(ppArgs[1]) == "--icon")
        return ParseIcon(iArgCount, ppArgs, Options);
    for(int i = 1; i < iArgCount; ++i)
    {
        std::string Arg = ppArgs[i];
        if(Arg == "--contact-sheet" && i + 1 < iArgCount)
            Options.m_ContactSheet = ppArgs[++i];
        else if(!Arg.empty() && Arg[0] != '-' && Options.m_DataDir.empty())
            Options.m_DataDir = Arg;
        else
            return false;
    }
    return !Options.m_DataDir.empty();
}

bool EndsWith(const std::string& Text, const std::string& Tail)
{
    return Text.size() >= Tail.size() && Text.compare(Text.size() - Tail.size(), Tail.size(), Tail) == 0;
}

void WritePicture(const art::CCanvas& Canvas, const std::filesystem::path& File)
{
    std::error_code Error;
    std::filesystem::create_directories(File.parent_path(), Error);
    if(Error)
        throw std::runtime_error("cannot make folder " + File.parent_path().string() + ": " + Error.message());
    if(EndsWith(File.string(), ".tga"))
        art::SaveTga(Canvas, File.string());
    else
        art::SavePng(Canvas, File.string());
}

void Run(const COptions& Options)
{
    if(Options.m_iIconSize > 0)
    {
        WritePicture(art::AppIcon(Options.m_iIconSize), Options.m_IconFile);
        return;
    }
    art::OpenFonts();
    art::CContactSheet Sheet;
    for(const art::CPicture& Picture : art::Catalogue())
    {
        art::CCanvas Canvas = Picture.m_fnDraw();
        WritePicture(Canvas, std::filesystem::path(Options.m_DataDir) / Picture.m_Path);
        if(!Options.m_ContactSheet.empty())
            Sheet.Add(Picture.m_Path, Canvas);
    }
    if(!Options.m_ContactSheet.empty())
        WritePicture(Sheet.Render(), Options.m_ContactSheet);
    art::CloseFonts();
}
} // namespace

int main(int iArgCount, char** ppArgs)
{
    COptions Options;
    if(!Parse(iArgCount, ppArgs, Options))
    {
        std::fprintf(stderr, "usage: trelvane-images OUT_DATA_DIR [--contact-sheet FILE.png] | --icon SIZE FILE.png\n");
        return 2;
    }
    try
    {
        Run(Options);
    }
    catch(const std::exception& Failure)
    {
        std::fprintf(stderr, "trelvane-images: %s\n", Failure.what());
        return 1;
    }
    return 0;
}

// Draws a level from above beside the first frame a player sees, or a sheet of many levels drawn so.
#include "app/Game.h"
#include "common/NumberParse.h"
#include "gfx/GraphicsEngine.h"
#include "level/LevelCommands.h"
#include "level/PreviewMap.h"
#include "net/Log.h"
#include "platform/interfaces/Clock.h"
#include "platform/interfaces/ErrorBox.h"
#include "shot/FrameGrab.h"
#include "tracks/Level.h"

#include "PngFile.h"
#include "Text.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <stdexcept>

namespace
{
constexpr uint32_t DEFAULT_SIZE = 600;
constexpr uint32_t DEFAULT_SHEET_SIZE = 300;
constexpr uint32_t MIN_SIZE = 200, MAX_SIZE = 4000;
constexpr int SHEET_COLUMNS = 2;
constexpr int FRAME_WIDTH = 800, FRAME_HEIGHT = 600;
const char* const PREVIEW_USAGE = "trelvane-level preview FILE... OUT.png [--size N] [--marks]";

struct CPreviewOptions
{
    std::vector<std::string> m_vLevels;
    std::string m_OutFile;
    uint32_t m_uiSize = 0; // 0 until given
    bool m_bMarks = false;
};

bool ParsePreviewOptions(const std::vector<std::string>& vArgs, CPreviewOptions& Options, std::string& Error)
{
    std::vector<std::string> vFiles;
    for(size_t i = 0; i < vArgs.size(); i++)
    {
        if(vArgs[i] == "--size")
        {
            if(i + 1 >= vArgs.size() || !ParseU32(vArgs[i + 1], MIN_SIZE, MAX_SIZE, Options.m_uiSize))
                return Reject(Error, "--size needs a whole number from 200 to 4000");
            i++;
        }
        else if(vArgs[i] == "--marks")
            Options.m_bMarks = true;
        else if(vArgs[i].empty() || vArgs[i][0] == '-')
            return Reject(Error, "unknown option '" + vArgs[i] + "'");
        else
            vFiles.push_back(vArgs[i]);
    }
    if(vFiles.size() < 2)
        return Reject(Error, "a level file and an output file are needed");
    Options.m_OutFile = vFiles.back();
    vFiles.pop_back();
    Options.m_vLevels = vFiles;
    for(const std::string& File : vFiles)
    {
        std::error_code Ignored;
        if(!std::filesystem::is_regular_file(File, Ignored))
            return Reject(Error, "cannot read " + File + ": not a file");
    }
    if(Options.m_uiSize == 0)
        Options.m_uiSize = vFiles.size() == 1 ? DEFAULT_SIZE : DEFAULT_SHEET_SIZE;
    return true;
}

art::CCanvas FromRgba(const std::vector<uint8_t>& vRgba)
{
    art::CCanvas Frame(FRAME_WIDTH, FRAME_HEIGHT);
    for(int y = 0; y < FRAME_HEIGHT; y++)
    {
        for(int x = 0; x < FRAME_WIDTH; x++)
        {
            const uint8_t* p = &vRgba[(static_cast<size_t>(y) * FRAME_WIDTH + static_cast<size_t>(x)) * 4];
            Frame.Pixel(x, y) = {p[0] / 255.0f, p[1] / 255.0f, p[2] / 255.0f, 1.0f};
        }
    }
    return Frame;
}

// The level as the game loads it, for the map: a camera takes the first view's angles.
art::CCanvas DrawMap(const std::string& File, int iSize, std::vector<CMapMark>& vMarks)
{
    CGraphicsEngine Camera;
    CLevel Level;
    Level.m_pGraphics = &Camera;
    Level.Load(File.c_str(), 1);
    return DrawLevelMap(Level, Camera.m_fYaw, Camera.m_fPitch, iSize, vMarks);
}

// The map, and to its right the first frame a player sees, scaled to the map's height.
art::CCanvas DrawPreview(CFrameGrab& Grab, const std::string& File, int iSize, std::vector<CMapMark>& vMarks)
{
    const art::CCanvas Map = DrawMap(File, iSize, vMarks);
    Grab.PlayLevel(File, 0);
    Grab.Game().m_Graphics.RenderPlayFrame();
    std::vector<uint8_t> vRgba;
    if(!Grab.ReadFrame(vRgba) || vRgba.size() < static_cast<size_t>(FRAME_WIDTH) * FRAME_HEIGHT * 4)
        throw std::runtime_error("the first frame could not be read back");
    const int iFrameWidth = iSize * FRAME_WIDTH / FRAME_HEIGHT;
    art::CCanvas Preview(iSize + iFrameWidth, iSize);
    Preview.Draw(Map, 0, 0);
    Preview.Draw(art::Resized(FromRgba(vRgba), iFrameWidth, iSize), iSize, 0);
    return Preview;
}

// Every level's preview in a grid, each with its file name under it.
art::CCanvas DrawSheet(CFrameGrab& Grab, const CPreviewOptions& Options)
{
    const int iSize = static_cast<int>(Options.m_uiSize);
    const int iCellWidth = iSize + iSize * FRAME_WIDTH / FRAME_HEIGHT, iCaption = iSize / 8;
    const int iCount = static_cast<int>(Options.m_vLevels.size());
    const int iRows = (iCount + SHEET_COLUMNS - 1) / SHEET_COLUMNS;
    const int iGap = iSize / 20;
    art::CCanvas Sheet(SHEET_COLUMNS * (iCellWidth + iGap) + iGap, iRows * (iSize + iCaption + iGap) + iGap);
    Sheet.Fill(art::Solid(art::Hex(0x1c1f26)));
    for(int i = 0; i < iCount; i++)
    {
        std::vector<CMapMark> vMarks;
        const int iLeft = iGap + (i % SHEET_COLUMNS) * (iCellWidth + iGap);
        const int iTop = iGap + (i / SHEET_COLUMNS) * (iSize + iCaption + iGap);
        Sheet.Draw(DrawPreview(Grab, Options.m_vLevels[static_cast<size_t>(i)], iSize, vMarks), iLeft, iTop);
        const std::string Name = std::filesystem::path(Options.m_vLevels[static_cast<size_t>(i)]).filename().string();
        art::DrawText(Sheet, Name, static_cast<float>(iLeft), static_cast<float>(iTop + iSize + iCaption / 6),
                      art::Plain(art::EFace::Bold, iCaption * 3 / 5, art::Hex(0xdee2e6)));
    }
    return Sheet;
}

void PrintMarks(const std::vector<CMapMark>& vMarks)
{
    for(const CMapMark& Mark : vMarks)
        std::printf("%s %.0f %.0f\n", Mark.m_Name.c_str(), Mark.m_fX, Mark.m_fY);
}

int Draw(const CPreviewOptions& Options)
{
    CFrameGrab Grab;
    std::string Reason;
    if(!Grab.Open(Reason))
        return FailLevelTool(Reason);
    art::OpenFonts();
    std::vector<CMapMark> vMarks;
    const art::CCanvas Picture = Options.m_vLevels.size() == 1 ? DrawPreview(Grab, Options.m_vLevels[0],
                                                                             static_cast<int>(Options.m_uiSize), vMarks)
                                                               : DrawSheet(Grab, Options);
    art::SavePng(Picture, Options.m_OutFile);
    art::CloseFonts();
    if(Options.m_bMarks)
        PrintMarks(vMarks);
    return std::fflush(stdout) == 0 ? EXIT_SUCCESS : LEVEL_EXIT_BAD_INPUT;
}
} // namespace

int RunPreview(const std::vector<std::string>& vArgs)
{
    CPreviewOptions Options;
    std::string Error;
    if(!ParsePreviewOptions(vArgs, Options, Error))
        return FailLevelTool(Error + " (usage: " + PREVIEW_USAGE + ")");
    // A level with faults is drawn as the game would load it; what the game would have put in a box is told.
    SetErrorHandler([](const char* pText) { std::cerr << "trelvane-level: warning: " << pText << "\n"; });
    SetLogSink([](const char*) {});
    SetManualClock(0);
    std::srand(1); // the first frame is the frame grabber's with its first seed
    try
    {
        return Draw(Options);
    }
    catch(const std::exception& Failure)
    {
        return FailLevelTool(Failure.what());
    }
}

#include "level/CheckLevel.h"

#include "gfx/GraphicsEngine.h"
#include "level/CheckGeometry.h"
#include "level/CheckRecorder.h"
#include "platform/interfaces/Paths.h"
#include "tracks/Level.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace
{
struct CMissing
{
    char m_cTag;
    const char* m_pText;
};

// Each section that a level leaves out keeps what the level before it had.
const CMissing MISSING_SECTIONS[] = {
    {'B', "no background section: the level keeps the picture of the level before"},
    {'P', "no play time section: the level keeps the clock of the level before, or a day at the start"},
    {'I', "no initial camera section: the level starts looking where the level before left off"},
    {'C', "no camera path: the eye stands at 0, 0, 0"},
    {'T', "no track: the level is won at once"},
};

// A file that broke off lacks what stood behind the break; that is told once, where it broke.
void CheckSections(const CLevel& Level, const CSectionPlaces& Places, bool bWhole, std::vector<CDiagnostic>& vOut)
{
    for(const CMissing& Missing : MISSING_SECTIONS)
    {
        if(bWhole && Places.First(Missing.m_cTag) < 0)
            vOut.push_back({0, false, Missing.m_pText});
    }
    const std::string Picture = NativePath((std::string(BACKGROUND_FOLDER) + Level.m_szBackground).c_str());
    std::error_code Ignored;
    if(Places.First('B') >= 0 && !std::filesystem::is_regular_file(Picture, Ignored))
        vOut.push_back({Places.First('B'), false, "the picture " + Picture + " does not exist"});
    if(Places.First('P') >= 0 && Level.m_Countdown.IsExpired())
        vOut.push_back({Places.First('P'), false, "a play time of 0: the level is lost at once"});
}

} // namespace

// Reads the file as the game does, with a recorder listening, then looks at what the level holds.
std::vector<CDiagnostic> CheckLevelText(const std::string& Text)
{
    CGraphicsEngine Camera; // no device: the background is not loaded, but the view is aimed
    CLevel Level;
    Level.m_pGraphics = &Camera;
    Camera.m_pLevel = &Level;
    CCheckRecorder Recorder(Level, Text);
    std::istringstream Stream(Text);
    CTrackFileReader Reader(Stream, Level, 1);
    Reader.SetObserver(&Recorder);
    const bool bWhole = Reader.Read();
    Level.FinishLoad();

    const CSectionPlaces& Places = Recorder.Places();
    std::vector<CDiagnostic> vFound = std::move(Recorder.Diagnostics());
    CheckSections(Level, Places, bWhole, vFound);
    CheckCurves(Level, Places, vFound);
    CheckCrossings(Level, Places, vFound);
    CheckSight(Level, Camera, Places, vFound);
    std::stable_sort(vFound.begin(), vFound.end(),
                     [](const CDiagnostic& a, const CDiagnostic& b) { return a.m_Offset < b.m_Offset; });
    return vFound;
}

// Lines and columns count from 1, columns in bytes.
std::string LineAndColumn(const std::string& Text, int64_t Offset)
{
    const size_t At = std::min(static_cast<size_t>(std::max<int64_t>(Offset, 0)), Text.size());
    const size_t Line =
        static_cast<size_t>(std::count(Text.begin(), Text.begin() + static_cast<std::ptrdiff_t>(At), '\n'));
    const size_t LineStart = At == 0 ? 0 : Text.rfind('\n', At - 1);
    const size_t Column = LineStart == std::string::npos || At == 0 ? At : At - LineStart - 1;
    return std::to_string(Line + 1) + ":" + std::to_string(Column + 1);
}

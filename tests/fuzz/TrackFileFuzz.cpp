#include "gfx/GraphicsEngine.h"
#include "platform/interfaces/ErrorBox.h"
#include "tracks/Level.h"
#include "tracks/TrackFile.h"

#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t Size)
{
    SetErrorHandler([](const char*) {});
    std::istringstream Stream(std::string(reinterpret_cast<const char*>(pData), Size));
    CGraphicsEngine Graphics;
    CLevel Level;
    Level.m_pGraphics = &Graphics;
    CTrackFileReader(Stream, Level, 1 + Size % 10).Read();
    Level.FinishLoad();
    // What every later user relies on: the counters match the records and the path in use exists.
    if(Level.m_ucNumTracks != Level.m_vTracks.size() || Level.m_ucNumCameraPaths != Level.m_vCameraPaths.size() ||
       (Level.m_ucNumCameraPaths > 0 && Level.m_ucCurrentPath >= Level.m_ucNumCameraPaths))
        __builtin_trap();
    Level.MoveForward(7);
    Level.NextCameraPath();
    Level.MoveBack(3);
    return 0;
}

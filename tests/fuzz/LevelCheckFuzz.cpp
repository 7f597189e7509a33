#include "level/CheckLevel.h"
#include "platform/interfaces/ErrorBox.h"

#include <string>

// The level designer's check on any bytes: the game's reader with its observer, then every look at the curves.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t Size)
{
    SetErrorHandler([](const char*) {});
    const std::string Text(reinterpret_cast<const char*>(pData), Size);
    for(const CDiagnostic& Found : CheckLevelText(Text))
    {
        // Every place told must lie inside the file or at its very end.
        if(Found.m_Offset < 0 || Found.m_Offset > static_cast<int64_t>(Size) ||
           LineAndColumn(Text, Found.m_Offset).empty())
            __builtin_trap();
    }
    return 0;
}

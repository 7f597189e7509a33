#include "common/NumberParse.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace
{
// from_chars with nothing left over; a leading plus sign is the one extra that hand-typed numbers get.
template <typename T> bool ParseWhole(const std::string& Text, T& Value)
{
    const char* pBegin = Text.data();
    const char* pEnd = pBegin + Text.size();
    const bool bPlus = pBegin != pEnd && *pBegin == '+';
    if(bPlus)
        pBegin++;
    if(pBegin == pEnd || (bPlus && *pBegin == '-'))
        return false;
    const auto Result = std::from_chars(pBegin, pEnd, Value);
    return Result.ec == std::errc() && Result.ptr == pEnd;
}
} // namespace

bool ParseU32(const std::string& Text, uint32_t uiMin, uint32_t uiMax, uint32_t& uiValue)
{
    uint64_t ulValue = 0;
    if(!ParseUnsigned(Text, uiMax, ulValue) || ulValue < uiMin)
        return false;
    uiValue = static_cast<uint32_t>(ulValue);
    return true;
}

bool ParseUnsigned(const std::string& Text, uint64_t uiMax, uint64_t& uiValue)
{
    uint64_t uiRead = 0;
    if(!ParseWhole(Text, uiRead) || uiRead > uiMax)
        return false;
    uiValue = uiRead;
    return true;
}

bool ParseSigned(const std::string& Text, int32_t& iValue)
{
    return ParseWhole(Text, iValue);
}

bool ParseFinite(const std::string& Text, float& fValue)
{
    float fRead = 0.0f;
    if(!ParseWhole(Text, fRead) || !std::isfinite(fRead))
        return false;
    fValue = fRead;
    return true;
}

bool Reject(std::string& Error, const std::string& Reason)
{
    Error = Reason;
    return false;
}

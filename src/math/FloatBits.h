#pragma once
#include <cstdint>
#include <cstring>

// A single-precision constant given by its bit pattern, so that every machine computes with the same value.
inline float FloatFromBits(uint32_t uiBits)
{
    float f;
    std::memcpy(&f, &uiBits, sizeof(f));
    return f;
}

// The bit pattern of a float, as the device takes floats among its render states.
inline uint32_t FloatToBits(float fValue)
{
    uint32_t uiBits;
    std::memcpy(&uiBits, &fValue, sizeof(uiBits));
    return uiBits;
}

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

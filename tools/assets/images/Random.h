// A small seeded generator (SplitMix64). Every picture draws its scatter from its own fixed seed, so a run
// writes the same bytes as the one before on any machine.
#pragma once

#include <cstdint>

namespace art
{
class CRandom
{
public:
    explicit CRandom(std::uint64_t ulSeed) : m_ulState(ulSeed) {}

    std::uint64_t Next()
    {
        std::uint64_t ulZ = (m_ulState += 0x9e3779b97f4a7c15ULL);
        ulZ = (ulZ ^ (ulZ >> 30)) * 0xbf58476d1ce4e5b9ULL;
        ulZ = (ulZ ^ (ulZ >> 27)) * 0x94d049bb133111ebULL;
        return ulZ ^ (ulZ >> 31);
    }

    // Uniform in [0, 1), 24 bits of precision, exact in a float.
    float Unit() { return static_cast<float>(Next() >> 40) / 16777216.0f; }
    float Range(float fLow, float fHigh) { return fLow + (fHigh - fLow) * Unit(); }
    int Below(int iCount) { return static_cast<int>(Next() % static_cast<std::uint64_t>(iCount)); }

private:
    std::uint64_t m_ulState;
};
} // namespace art

#pragma once

#include <cstdint>

// A small seeded generator (SplitMix64): the same seed gives the same sounds on every run and every machine,
// which the standard library's distributions do not promise.
class CRng
{
public:
    explicit CRng(uint64_t ulSeed) : m_ulState(ulSeed) {}

    uint64_t Next()
    {
        uint64_t ulZ = (m_ulState += 0x9E3779B97F4A7C15ULL);
        ulZ = (ulZ ^ (ulZ >> 30)) * 0xBF58476D1CE4E5B9ULL;
        ulZ = (ulZ ^ (ulZ >> 27)) * 0x94D049BB133111EBULL;
        return ulZ ^ (ulZ >> 31);
    }

    // From 0 up to but not including 1.
    double Unit() { return static_cast<double>(Next() >> 11) * (1.0 / 9007199254740992.0); }

    // From -1 up to 1: white noise.
    float Bipolar() { return static_cast<float>(Unit() * 2.0 - 1.0); }

    // From 0 up to but not including nCount.
    int Below(int nCount) { return nCount <= 0 ? 0 : static_cast<int>(Next() % static_cast<uint64_t>(nCount)); }

    bool Chance(double dProbability) { return Unit() < dProbability; }

private:
    uint64_t m_ulState;
};

// Mixes several numbers into one seed, so that each note can have noise of its own that does not depend on
// the order in which notes are rendered.
inline uint64_t MixSeed(uint64_t ulA, uint64_t ulB)
{
    CRng Rng(ulA * 0x100000001B3ULL ^ (ulB + 0x9E3779B97F4A7C15ULL));
    return Rng.Next();
}

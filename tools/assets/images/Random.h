// A small seeded generator (SplitMix64). Every picture draws its scatter from its own fixed seed, so a run
// writes the same bytes as the one before on any machine.
#pragma once

#include <cstdint>

namespace art {

class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next()
    {
        std::uint64_t z = (state_ += 0x9e3779b97f4a7c15ULL);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
        return z ^ (z >> 31);
    }

    // Uniform in [0, 1), 24 bits of precision, exact in a float.
    float unit() { return static_cast<float>(next() >> 40) / 16777216.0f; }
    float range(float low, float high) { return low + (high - low) * unit(); }
    int below(int n) { return static_cast<int>(next() % static_cast<std::uint64_t>(n)); }

private:
    std::uint64_t state_;
};

} // namespace art

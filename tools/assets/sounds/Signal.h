#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

// Every sound of the game is made and stored at one rate, the rate the game opens its mixer at.
constexpr int SAMPLE_RATE = 44100;
constexpr double PI = 3.14159265358979323846;

using Mono = std::vector<float>;

// Two channels kept apart while mixing; they are only interleaved when written out.
struct Stereo
{
    Mono m_vLeft;
    Mono m_vRight;

    explicit Stereo(std::size_t nSamples = 0) : m_vLeft(nSamples), m_vRight(nSamples) {}
    std::size_t Size() const { return m_vLeft.size(); }
    void Resize(std::size_t nSamples)
    {
        m_vLeft.resize(nSamples);
        m_vRight.resize(nSamples);
    }
};

inline std::size_t SecondsToSamples(double dSeconds)
{
    return dSeconds <= 0.0 ? 0 : static_cast<std::size_t>(std::llround(dSeconds * SAMPLE_RATE));
}

inline double MidiToHz(double dMidi)
{
    return 440.0 * std::pow(2.0, (dMidi - 69.0) / 12.0);
}

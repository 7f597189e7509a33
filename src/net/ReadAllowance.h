#pragma once
#include <cstdint>

// How many bytes one connection may still deliver. It grows back at a steady rate up to a burst, so a peer
// may send a burst at any moment but never more than the rate for long; what a flooding peer sends beyond it
// waits in its own TCP stream, and the peer is made to wait, not the game.
class CReadAllowance
{
public:
    CReadAllowance(uint32_t uiRate, uint32_t uiNowMs);
    void Refill(uint32_t uiNowMs);
    void Take(uint32_t uiBytes);
    uint32_t Left() const { return m_uiLeft; }

private:
    uint32_t m_uiRate; // bytes a second
    uint32_t m_uiLeft;
    uint32_t m_uiLastMs;
};

// The burst every connection may send at once: many times the largest frame, far more than any game sends in
// one go.
constexpr uint32_t READ_BURST = 65536;

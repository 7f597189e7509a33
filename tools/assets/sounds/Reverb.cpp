#include "sounds/Reverb.h"

#include <vector>

namespace
{
// Delay lengths in samples, mutually prime-ish so that the echoes never line up into a buzz.
const std::size_t COMB_LENGTHS[] = {1116, 1188, 1277, 1356, 1422, 1491, 1557, 1617};
const std::size_t ALLPASS_LENGTHS[] = {556, 441, 341, 225};
constexpr std::size_t RIGHT_SPREAD = 23;
constexpr float INPUT_GAIN = 0.015f;
constexpr float ALLPASS_FEEDBACK = 0.5f;

class CComb
{
public:
    CComb(std::size_t nLength, float fFeedback, float fDamping)
        : m_vLine(nLength, 0.0f), m_fFeedback(fFeedback), m_fDamping(fDamping)
    {
    }
    float Process(float fInput)
    {
        const float fOut = m_vLine[m_nAt];
        m_fFiltered = fOut * (1.0f - m_fDamping) + m_fFiltered * m_fDamping;
        m_vLine[m_nAt] = fInput + m_fFiltered * m_fFeedback;
        m_nAt = m_nAt + 1 == m_vLine.size() ? 0 : m_nAt + 1;
        return fOut;
    }

private:
    std::vector<float> m_vLine;
    std::size_t m_nAt = 0;
    float m_fFeedback;
    float m_fDamping;
    float m_fFiltered = 0.0f;
};

class CAllpass
{
public:
    explicit CAllpass(std::size_t nLength) : m_vLine(nLength, 0.0f) {}
    float Process(float fInput)
    {
        const float fDelayed = m_vLine[m_nAt];
        m_vLine[m_nAt] = fInput + fDelayed * ALLPASS_FEEDBACK;
        m_nAt = m_nAt + 1 == m_vLine.size() ? 0 : m_nAt + 1;
        return fDelayed - fInput;
    }

private:
    std::vector<float> m_vLine;
    std::size_t m_nAt = 0;
};

// One ear's worth of the room, fed the mono sum of the send.
Mono Room(const Stereo& Send, std::size_t nSpread, float fFeedback, float fDamping)
{
    std::vector<CComb> vCombs;
    for(std::size_t nLength : COMB_LENGTHS)
        vCombs.emplace_back(nLength + nSpread, fFeedback, fDamping);
    std::vector<CAllpass> vAllpasses;
    for(std::size_t nLength : ALLPASS_LENGTHS)
        vAllpasses.emplace_back(nLength + nSpread);
    Mono vOut(Send.Size());
    for(std::size_t i = 0; i < vOut.size(); ++i)
    {
        const float fInput = (Send.m_vLeft[i] + Send.m_vRight[i]) * INPUT_GAIN;
        float fSum = 0.0f;
        for(CComb& Comb : vCombs)
            fSum += Comb.Process(fInput);
        for(CAllpass& Allpass : vAllpasses)
            fSum = Allpass.Process(fSum);
        vOut[i] = fSum;
    }
    return vOut;
}
} // namespace

Stereo Reverberate(const Stereo& Send, double dRoomSize, double dDamping)
{
    const float fFeedback = static_cast<float>(0.7 + 0.28 * dRoomSize);
    const float fDamping = static_cast<float>(0.4 * dDamping);
    Stereo Wet;
    Wet.m_vLeft = Room(Send, 0, fFeedback, fDamping);
    Wet.m_vRight = Room(Send, RIGHT_SPREAD, fFeedback, fDamping);
    return Wet;
}

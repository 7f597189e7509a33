#include "net/GameOnTheNetwork.h"

std::vector<uint8_t> ScoreRow(uint32_t uiNumber, uint32_t uiId, uint32_t uiScore, float fDanger)
{
    std::vector<uint8_t> vRow;
    uint32_t uiDanger;
    std::memcpy(&uiDanger, &fDanger, sizeof(uiDanger));
    for(uint32_t uiField : {uiNumber, uiId, uiScore, uiDanger})
    {
        const std::vector<uint8_t> vField = WireU32(uiField);
        vRow.insert(vRow.end(), vField.begin(), vField.end());
    }
    vRow.insert(vRow.end(), {0, 0, 0, 0});
    return vRow;
}

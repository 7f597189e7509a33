#pragma once
#include <cstdint>

constexpr int MAX_PLAYERS = 8;

// One entry of the player table.
struct CPlayerSlot
{
    uint32_t m_nId = 0; // 0 is the host; -1 marks a slot freed by a departure
    bool m_bPresent = false;
    bool m_bFinished = false; // out of the running match
};

// The link to the other players of a network game.
class CNetwork
{
public:
    CNetwork() { m_Players[0].m_bPresent = true; } // the player's own slot

    uint32_t m_nMyId = 0;
    bool m_bNetGame = false; // a network match is on
    CPlayerSlot m_Players[MAX_PLAYERS];
    int32_t m_nTarget = -1; // id of the chosen powerup target, -1 for the player itself
};

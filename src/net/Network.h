#pragma once

// The link to the other players of a network game.
class CNetwork
{
public:
    bool m_bNetGame = false; // a network match is on
};

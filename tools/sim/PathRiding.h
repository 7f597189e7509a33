#pragma once

class CBall;
class CGame;
class CLevel;

// The lead ball of the chain that has come furthest along its track, and how far: 0 at the start and 1 at the
// end. No ball and 0 when nothing rolls.
struct CFurthestLead
{
    const CBall* m_pBall = nullptr;
    float m_fAlong = 0.0f;
};
CFurthestLead FurthestLead(const CLevel& Level);

// Takes the eye towards the chain that is closest to its end, as a player does with the arrow keys and the
// middle button: another camera path is taken when it passes clearly nearer to that chain's lead ball, and the
// eye rides its path towards the nearest point, as far in one frame as a held arrow key takes it.
void RideTowardsDanger(CGame& Game);

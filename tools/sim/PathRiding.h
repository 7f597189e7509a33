#pragma once

class CGame;

// Takes the eye towards the chain that is closest to its end, as a player does with the arrow keys and the
// middle button: another camera path is taken when it passes clearly nearer to that chain's lead ball, and the
// eye rides its path towards the nearest point, as far in one frame as a held arrow key takes it.
void RideTowardsDanger(CGame& Game);

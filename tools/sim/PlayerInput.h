#pragma once

class CGame;
class CGraphicsEngine;

// The operations a player's hand reaches, done through the game's own calls so that a simulated player is
// held to the same rounding, wrapping and clamping as a real one.

// Turns right by a positive amount and left by a negative one, down by a positive amount and up by a
// negative one (each unit a quarter of a degree), then aims the sight along the new angles.
void TurnBy(CGraphicsEngine& Camera, float fRight, float fDown);
// Mouse counts, as the play screen takes them: five counts to a unit of turn.
void TurnByMouse(CGame& Game, int iDeltaX, int iDeltaY);
// Pulls the trigger; true when a shot really left, which the fire delay and the shot limit can prevent.
bool FireShot(CGame& Game);
// Presses a powerup key (blank for the player's own level, or a player's number); true when a letter was spent.
bool PressPowerupKey(CGame& Game, char cKey);

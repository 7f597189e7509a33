#pragma once

#include "sounds/Signal.h"

#include <vector>

// The six sound effects, in the order of their ids in the game.
Mono MakeHighlight(); // 0: the mouse comes onto a menu button
Mono MakeClick();     // 1: a menu button is clicked
Mono MakeShoot();     // 2: a ball is fired
Mono MakeChimes();    // 3: a ball bursts
Mono MakeStick();     // 4: a shot joins a chain
Mono MakePower();     // 5: a powerup is used

struct EffectFile
{
    const char* m_pPath; // below the data folder, with forward slashes
    Mono (*m_pMake)();
};

// Every effect with the file the game loads it from, indexed by sound id.
const std::vector<EffectFile>& EffectFiles();

#include "sounds/Effects.h"

const std::vector<EffectFile>& EffectFiles()
{
    static const std::vector<EffectFile> FILES = {
        {"menus/sounds/highlight.wav", MakeHighlight}, {"menus/sounds/click.wav", MakeClick},
        {"hud/sounds/shoot.wav", MakeShoot},           {"hud/sounds/chimes.wav", MakeChimes},
        {"hud/sounds/stick.wav", MakeStick},           {"hud/sounds/power.wav", MakePower},
    };
    return FILES;
}

#include "sounds/EffectParts.h"
#include "sounds/Effects.h"

#include <utility>

// A marble leaving the launcher: a puff of air falling in pitch, a quick downward "pew" and a soft low thump.
Mono MakeShoot()
{
    Mono vOut = SilenceOf(0.3);
    AddNoise(vOut, {0.0, 3200.0, 500.0, 0.05, 1.4, 0.003, 0.055, 1.4f, 21});
    AddTone(vOut, {0.0, 900.0, 240.0, 0.045, 0.002, 0.06, 0.55f});
    AddTone(vOut, {0.0, 130.0, 55.0, 0.04, 0.003, 0.05, 0.6f});
    FinishEffect(vOut, 0.06);
    return vOut;
}

// Played once for every ball that vanishes, so a burst of five sets off five at once: a short, bright pair of
// bell strikes a fifth apart that blend into a sparkle instead of piling up into mud.
Mono MakeChimes()
{
    Mono vOut = SilenceOf(0.36);
    AddBell(vOut, 0.0, 1567.98, 0.09, 1.0f);  // G6
    AddBell(vOut, 0.04, 2349.32, 0.07, 0.7f); // D7
    AddNoise(vOut, {0.0, 9000.0, 9000.0, 0.0, 1.0, 0.0005, 0.01, 0.25f, 31});
    FinishEffect(vOut, 0.08);
    return vOut;
}

// Two hard balls knocking together: a short glassy click with a dull thud under it, and a smaller second
// knock as the chain settles.
Mono MakeStick()
{
    Mono vOut = SilenceOf(0.18);
    for(const auto& Knock : {std::pair<double, float>{0.0, 1.0f}, std::pair<double, float>{0.028, 0.45f}})
    {
        const double dAt = Knock.first;
        const float fLevel = Knock.second;
        AddTone(vOut, {dAt, 3150.0, 3150.0, 0.0, 0.0005, 0.012, 0.6f * fLevel});
        AddTone(vOut, {dAt, 4730.0, 4730.0, 0.0, 0.0005, 0.008, 0.35f * fLevel});
        AddTone(vOut, {dAt, 240.0, 170.0, 0.02, 0.001, 0.03, 0.8f * fLevel});
        AddNoise(vOut, {dAt, 5000.0, 5000.0, 0.0, 0.8, 0.0003, 0.004, 0.8f * fLevel, 41});
    }
    FinishEffect(vOut, 0.04);
    return vOut;
}

// A powerup rising: a tone sweeping up two octaves under a quick major arpeggio that climbs with it.
Mono MakePower()
{
    constexpr double LENGTH = 0.56;
    Mono vOut = SilenceOf(LENGTH);
    AddSweep(vOut, 0.0, LENGTH, 262.0, 1046.5, 0.03, 0.35f);
    static const double ARPEGGIO_HZ[] = {523.25, 659.26, 783.99, 1046.5, 1318.5, 1568.0, 2093.0};
    for(int i = 0; i < 7; ++i)
        AddTone(vOut, {0.055 * i, ARPEGGIO_HZ[i], ARPEGGIO_HZ[i], 0.0, 0.004, 0.09, 0.45f});
    FinishEffect(vOut, 0.12);
    return vOut;
}

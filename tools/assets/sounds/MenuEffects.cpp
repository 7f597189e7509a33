#include "sounds/EffectParts.h"
#include "sounds/Effects.h"

// Menu sounds sit behind everything else: small, dry and high, so hovering along a row of buttons ticks
// lightly instead of nagging.

Mono MakeHighlight()
{
    Mono vOut = SilenceOf(0.07);
    AddTone(vOut, {0.0, 2600.0, 2250.0, 0.01, 0.0008, 0.012, 1.0f});
    AddTone(vOut, {0.0, 3900.0, 3400.0, 0.01, 0.0008, 0.006, 0.25f});
    AddNoise(vOut, {0.0, 6000.0, 6000.0, 0.0, 1.5, 0.0003, 0.003, 0.6f, 11});
    FinishEffect(vOut, 0.02);
    return vOut;
}

// A firmer press than the hover tick: a short woody knock with a little body under it.
Mono MakeClick()
{
    Mono vOut = SilenceOf(0.14);
    AddTone(vOut, {0.0, 1500.0, 720.0, 0.012, 0.0008, 0.022, 1.0f});
    AddTone(vOut, {0.0, 340.0, 300.0, 0.03, 0.002, 0.035, 0.45f});
    AddNoise(vOut, {0.0, 3200.0, 2200.0, 0.01, 1.2, 0.0003, 0.005, 0.9f, 12});
    // The key coming back up, quieter and higher.
    AddTone(vOut, {0.045, 2100.0, 1600.0, 0.01, 0.0008, 0.012, 0.25f});
    FinishEffect(vOut, 0.03);
    return vOut;
}

#pragma once
#include <cstdint>

class CGame;
class CSocketEvents;
class IWindow;

// Spins until the window is gone. Each pass polls the keyboard and the mouse, steps the screen flow (closing
// the window when the player quits), then handles one pending event, of the window first or else of the
// network's sockets, or, when none waits, runs one frame; so a frame that follows a burst of events sees one
// long delta. There is no limiter and no sleep. Returns the number of frames run.
uint64_t RunMainLoop(CGame& Game, IWindow& Window, CSocketEvents& Sockets);

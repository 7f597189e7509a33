#!/usr/bin/env python3
"""Writes the shipped levels and the track list from the shape descriptions below.

Each track is a curve in the game's world (left-handed, y up, one ball 2.76 units across), sampled into a
control polygon a few units apart so that the game's cubic B-spline follows it closely. A track's length is
kept where the game's evenly spaced points lie at most 0.138 apart, so that neighbouring balls always touch.
Run from the top of the repository, then `trelvane-level check` and `trelvane-level stats` on the result:

    python3 tools/level/make-levels.py && build/release/bin/trelvane-level check data/tracks/level*.txt
"""
import math
import os
import sys

BALL = 2.76
CONTROL_STEP = 3.5  # units between control points along a curve
TRACKS_DIR = os.path.join("data", "tracks")

# Lengths (in units) whose evenly spaced points lie between 0.1 and 0.138 apart: the game halves a track's
# length until a step is at most 0.2, and a neighbour that stands one step further than a diameter must still
# be within 1.05 diameters to touch.
LINKED_LENGTHS = [(102.5, 141.0), (205.0, 282.0), (410.0, 564.0), (820.0, 1128.0), (1640.0, 2256.0)]


def add(a, b):
    return (a[0] + b[0], a[1] + b[1], a[2] + b[2])


def sub(a, b):
    return (a[0] - b[0], a[1] - b[1], a[2] - b[2])


def scale(a, f):
    return (a[0] * f, a[1] * f, a[2] * f)


def dist(a, b):
    return math.sqrt(sum((x - y) ** 2 for x, y in zip(a, b)))


# ---- shapes: each returns a function of u in [0, 1] ------------------------------------------------------


def helix(centre, radius, height, turns, start_deg=0.0, clockwise=False, squash=1.0):
    """A coil about a vertical axis through centre, climbing `height` over `turns` turns."""
    def at(u):
        a = math.radians(start_deg) + (-1 if clockwise else 1) * 2 * math.pi * turns * u
        return (centre[0] + radius * math.cos(a), centre[1] + height * u, centre[2] + squash * radius * math.sin(a))
    return at


def spiral(centre, r0, r1, height, turns, start_deg=0.0, clockwise=False):
    """A coil whose radius runs from r0 to r1 while it climbs `height` (negative to fall)."""
    def at(u):
        a = math.radians(start_deg) + (-1 if clockwise else 1) * 2 * math.pi * turns * u
        r = r0 + (r1 - r0) * u
        return (centre[0] + r * math.cos(a), centre[1] + height * u, centre[2] + r * math.sin(a))
    return at


def polyline(points):
    """Straight legs through the given corners, rounded by the spline."""
    lengths = [dist(points[i], points[i + 1]) for i in range(len(points) - 1)]
    total = sum(lengths)

    def at(u):
        d = u * total
        for i, length in enumerate(lengths):
            if d <= length or i == len(lengths) - 1:
                f = min(d / length, 1.0) if length > 0 else 0.0
                return add(points[i], scale(sub(points[i + 1], points[i]), f))
            d -= length
        return points[-1]
    return at


def wave(start, end, amplitude, waves, axis=(0.0, 1.0, 0.0)):
    """A straight run from start to end that swings `amplitude` along axis, `waves` times."""
    def at(u):
        base = add(start, scale(sub(end, start), u))
        return add(base, scale(axis, amplitude * math.sin(2 * math.pi * waves * u)))
    return at


def lemniscate(centre, width, depth, lift, turns=1.0, start=0.0):
    """A figure of eight in the horizontal plane whose two lobes cross at different heights."""
    def at(u):
        a = 2 * math.pi * (start + turns * u)
        return (centre[0] + width * math.sin(a), centre[1] + lift * math.cos(a),
                centre[2] + depth * math.sin(a) * math.cos(a))
    return at


def trefoil(centre, size, lift, span=0.92):
    """A knot of three lobes, left open by the rest of the turn after `span` so that its ends don't meet."""
    def at(u):
        a = 2 * math.pi * span * u
        return (centre[0] + size * (math.sin(a) + 2 * math.sin(2 * a)) / 3,
                centre[1] - lift * math.sin(3 * a),
                centre[2] + size * (math.cos(a) - 2 * math.cos(2 * a)) / 3)
    return at


def joined(*parts):
    """Curves one after the other, each given a share of u by its length."""
    lengths = [curve_length(p) for p in parts]
    total = sum(lengths)

    def at(u):
        d = u * total
        for part, length in zip(parts, lengths):
            if d <= length:
                return part(d / length)
            d -= length
        return parts[-1](1.0)
    return at


def reversed_curve(f):
    return lambda u: f(1.0 - u)


# ---- sampling ------------------------------------------------------------------------------------------


def curve_length(f, steps=4000):
    total = 0.0
    prev = f(0.0)
    for i in range(1, steps + 1):
        p = f(i / steps)
        total += dist(prev, p)
        prev = p
    return total


def control_points(f, step=CONTROL_STEP):
    """Points every `step` units along the curve, with the ends doubled so that the spline reaches them."""
    dense = [f(i / 8000) for i in range(8001)]
    points = [dense[0]]
    run = 0.0
    for a, b in zip(dense, dense[1:]):
        run += dist(a, b)
        if run >= step:
            points.append(b)
            run = 0.0
    if dist(points[-1], dense[-1]) > step * 0.3:
        points.append(dense[-1])
    return [points[0]] + points + [points[-1]]


def spline_samples(points):
    """The game's uniform cubic B-spline, ten samples to a span."""
    out = []
    for j in range(3, len(points)):
        for k in range(10):
            t = k / 10
            b0 = (1 - t) ** 3 / 6
            b1 = (3 * t ** 3 - 6 * t ** 2 + 4) / 6
            b2 = (-3 * t ** 3 + 3 * t ** 2 + 3 * t + 1) / 6
            b3 = t ** 3 / 6
            p0, p1, p2, p3 = points[j - 3], points[j - 2], points[j - 1], points[j]
            out.append(tuple(b0 * p0[i] + b1 * p1[i] + b2 * p2[i] + b3 * p3[i] for i in range(3)))
    return out


def polyline_length(points):
    return sum(dist(a, b) for a, b in zip(points, points[1:]))


# ---- levels --------------------------------------------------------------------------------------------


def fitted(curve, least):
    """The curve scaled about its middle point just enough that its balls touch (see LINKED_LENGTHS) and that
    it is at least `least` long."""
    length = polyline_length(spline_samples(control_points(curve)))
    goals = [min(max(length, lo * 1.02, least * 1.01), hi * 0.98) for lo, hi in LINKED_LENGTHS if hi * 0.98 >= least]
    goal = min(goals, key=lambda g: abs(g - length))
    if abs(goal - length) < 1e-6:
        return curve
    middle = curve(0.5)
    factor = goal / length
    return lambda u: add(middle, scale(sub(curve(u), middle), factor))


class Track:
    def __init__(self, curve, balls, interval):
        curve = fitted(curve, balls * BALL)
        self.points = control_points(curve)
        self.samples = spline_samples(self.points)
        self.length = polyline_length(self.samples)
        self.balls = balls
        self.interval = interval

    def move_away(self, eye, factor):
        """Moves the whole track away from the eye, its middle to `factor` times its distance, keeping its shape."""
        middle = tuple(sum(p[i] for p in self.points) / len(self.points) for i in range(3))
        shift = scale(sub(middle, eye), factor - 1.0)
        self.points = [add(p, shift) for p in self.points]
        self.samples = [add(p, shift) for p in self.samples]


class Level:
    def __init__(self, name, background, minutes, seconds, eye_paths, look_at, tracks, pace=1.0, push=1.0):
        self.name = name
        self.background = background
        self.minutes = minutes
        self.seconds = seconds
        self.paths = [control_points(p, step=2.0) if callable(p) else still_path(p) for p in eye_paths]
        self.eye = spline_samples(self.paths[0])[0]
        self.look_at = look_at
        self.tracks = tracks
        for track in tracks:  # two knobs set how hard a level is: the speed of its chains and their distance
            track.interval = int(round(track.interval * pace))
            track.move_away(self.eye, push)


def still_path(eye):
    """A camera path the eye hardly leaves: the player turns on the spot."""
    return [eye, eye, eye, add(eye, (0.0, 0.0, 1.0)), add(eye, (0.0, 0.0, 2.0)), add(eye, (0.0, 0.0, 3.0))]


def yaw_pitch(eye, target):
    v = sub(target, eye)
    yaw = math.degrees(math.atan2(v[0], v[2])) % 360.0
    pitch = -math.degrees(math.atan2(v[1], math.hypot(v[0], v[2])))
    return yaw, pitch


def in_view(eye, yaw, pitch, p):
    """Whether a point stands well inside the view (45 degrees high, 4:3, 750 deep) from eye at yaw and pitch."""
    y, x = math.radians(yaw), math.radians(pitch)
    ahead = (math.sin(y) * math.cos(x), -math.sin(x), math.cos(y) * math.cos(x))
    right = (math.cos(y), 0.0, -math.sin(y))
    up = (math.sin(y) * math.sin(x), math.cos(x), math.cos(y) * math.sin(x))
    d = sub(p, eye)
    depth = sum(a * b for a, b in zip(d, ahead))
    if not 1.0 < depth < 740.0:
        return False
    half = math.tan(math.radians(22.5)) * 0.92
    return (abs(sum(a * b for a, b in zip(d, right))) < half * 4 / 3 * depth
            and abs(sum(a * b for a, b in zip(d, up))) < half * depth)


def first_view(level):
    """The view nearest the one asked for from which every track shows its start or its end, or None."""
    ends = [(t.samples[0], t.samples[-1]) for t in level.tracks]
    yaw0, pitch0 = yaw_pitch(level.eye, level.look_at)
    best = None
    for dy in range(-180, 181, 2):
        for pitch in range(-80, 81, 2):
            yaw = (yaw0 + dy) % 360.0
            if all(in_view(level.eye, yaw, pitch, a) or in_view(level.eye, yaw, pitch, b) for a, b in ends):
                cost = abs(dy) + abs(pitch - pitch0)
                if best is None or cost < best[0]:
                    best = (cost, yaw, float(pitch))
    return best and best[1:]


def fmt(p):
    return "%.2f, %.2f, %.2f" % p


def write_level(level):
    yaw, pitch = first_view(level) or yaw_pitch(level.eye, level.look_at)
    lines = ["Background: %s" % level.background,
             "Playtime: %d min %d sec" % (level.minutes, level.seconds),
             "Initial camera yaw and pitch: %.2f and %.2f" % (yaw, pitch)]
    for path in level.paths:
        lines.append("Camera: %d points, degree 3 :" % len(path))
        lines += [fmt(p) for p in path]
    for track in level.tracks:
        lines.append("Track: %d points, degree 3 balls %d interval %d points follow"
                     % (len(track.points), track.balls, track.interval))
        lines += [fmt(p) for p in track.points]
    lines.append("End")
    with open(os.path.join(TRACKS_DIR, level.name), "w", newline="\n") as f:
        f.write("\n".join(lines) + "\n")


def report(level):
    problems = []
    for i, track in enumerate(level.tracks, 1):
        if not any(lo <= track.length <= hi for lo, hi in LINKED_LENGTHS):
            problems.append("track %d is %.1f long, outside the lengths whose balls touch" % (i, track.length))
        if track.balls * BALL > track.length:
            problems.append("track %d holds %d balls but only %d fit" % (i, track.balls, track.length / BALL))
    for i, a in enumerate(level.tracks):
        for j, b in enumerate(level.tracks[i + 1:], i + 2):
            gap = min(dist(p, q) for p in a.samples[::3] for q in b.samples[::3])
            if gap < 2 * BALL:
                problems.append("tracks %d and %d come within %.1f" % (i + 1, j, gap))
    if first_view(level) is None:
        problems.append("no first view shows the start or the end of every track")
    summary = ", ".join("%.0f u %d balls" % (t.length, t.balls) for t in level.tracks)
    print("%-12s %s" % (level.name, summary))
    for p in problems:
        print("   ! " + p)
    return not problems


def main():
    levels = designs()
    ok = True
    for level in levels:
        ok = report(level) and ok
        write_level(level)
    with open(os.path.join(TRACKS_DIR, "Track List.txt"), "w", newline="\n") as f:
        f.write("\n".join(level.name for level in levels))  # no line break after the last name
    return 0 if ok else 1



# ---- the twenty levels, in order of play ---------------------------------------------------------------
# Distances: the eye mostly stands 60 to 150 units from what it shoots at; a shot flies 600 units, and the
# view reaches 750, so a track between the two can be seen but not hit until the player rides closer.


def designs():
    return [
        # A gentle bend across the view, climbing towards its end.
        Level("01-first-light.txt", "bg_dawn.png", 5, 0, [(0.0, 32.0, -85.0)], (0.0, 8.0, 10.0), [
            Track(wave((-70.0, 0.0, 10.0), (70.0, 18.0, 20.0), 30.0, 1.0, axis=(0.0, 0.0, 1.0)), 60, 1800),
        ]),
        # One coil that climbs round a column in front of the player.
        Level("02-rising-coil.txt", "bg_forest.png", 5, 0, [(0.0, 30.0, -70.0)], (0.0, 18.0, 30.0), [
            Track(helix((0.0, 0.0, 30.0), 30.0, 36.0, 1.3, start_deg=200.0), 75, 1650),
        ]),
        # A ring all round the player: what comes in front leaves behind.
        Level("03-ring-around.txt", "bg_aurora.png", 5, 0, [(0.0, 14.0, 0.0)], (0.0, 0.0, 45.0), [
            Track(helix((0.0, -6.0, 0.0), 48.0, 14.0, 1.1, start_deg=120.0, clockwise=True), 85, 1500),
        ]),
        # Two coils wound into each other.
        Level("04-double-coil.txt", "bg_nebula.png", 5, 0, [(0.0, 35.0, -75.0)], (0.0, 25.0, 20.0), [
            Track(helix((0.0, 0.0, 20.0), 24.0, 50.0, 1.6, start_deg=180.0), 55, 1700),
            Track(helix((0.0, 0.0, 20.0), 24.0, 50.0, 1.6, start_deg=0.0), 55, 1700),
        ]),
        # A tall tower of coils; the camera rides up beside it.
        Level("05-tower.txt", "bg_city.png", 5, 0, [polyline([(0.0, 10.0, -70.0), (0.0, 130.0, -70.0)])],
              (0.0, 20.0, 0.0), [
            Track(helix((0.0, 0.0, 0.0), 30.0, 150.0, 2.4, start_deg=270.0), 150, 1200),
        ]),
        # Two tracks, one bridging over the other where they cross.
        Level("06-overpass.txt", "bg_ocean.png", 5, 0, [(0.0, 40.0, -80.0)], (0.0, 5.0, 15.0), [
            Track(wave((-75.0, 0.0, 0.0), (75.0, 0.0, 30.0), 25.0, 0.5, axis=(0.0, 0.0, -1.0)), 45, 1900),
            Track(joined(polyline([(70.0, 2.0, -20.0), (20.0, 6.0, 0.0)]),
                         polyline([(20.0, 6.0, 0.0), (0.0, 16.0, 10.0), (-20.0, 6.0, 20.0)]),
                         polyline([(-20.0, 6.0, 20.0), (-70.0, 2.0, 45.0)])), 45, 1900),
        ]),
        # A near track and a far one down a valley; riding forward brings the far one close.
        Level("07-deep-field.txt", "bg_canyon.png", 5, 0, [polyline([(0.0, 25.0, -70.0), (0.0, 30.0, 120.0)])],
              (0.0, 0.0, 60.0), [
            Track(wave((-60.0, 0.0, 10.0), (60.0, 6.0, 10.0), 20.0, 1.0, axis=(0.0, 0.0, 1.0)), 60, 1600),
            Track(helix((0.0, 0.0, 250.0), 40.0, 20.0, 0.9, start_deg=160.0, clockwise=True), 70, 1600),
        ]),
        # A dome of coils overhead.
        Level("08-dome.txt", "bg_deep.png", 4, 30, [(0.0, 0.0, 0.0)], (0.0, 50.0, 40.0), [
            Track(spiral((0.0, 90.0, 0.0), 15.0, 75.0, -55.0, 1.6, start_deg=90.0), 75, 1300),
            Track(spiral((0.0, 90.0, 0.0), 15.0, 75.0, -55.0, 1.6, start_deg=270.0), 75, 1300),
        ], pace=0.5),
        # Three rings round the player at three heights.
        Level("09-three-rings.txt", "bg_storm.png", 4, 30, [(0.0, 10.0, 0.0)], (0.0, 0.0, 110.0), [
            Track(helix((0.0, 40.0, 0.0), 115.0, 4.0, 0.75, start_deg=90.0), 150, 1400),
            Track(helix((0.0, 4.0, 0.0), 120.0, 4.0, 0.75, start_deg=75.0), 150, 1400),
            Track(helix((0.0, -30.0, 0.0), 115.0, 4.0, 0.75, start_deg=105.0, clockwise=True), 150, 1400),
        ], pace=0.4),
        # Two rooms far apart, each with a camera path of its own: the middle button takes you across.
        Level("10-two-rooms.txt", "bg_nebula.png", 5, 0,
              [(0.0, 30.0, -80.0), polyline([(0.0, 30.0, 560.0), (0.0, 30.0, 580.0)])], (0.0, 10.0, 40.0), [
            Track(helix((0.0, 0.0, 20.0), 30.0, 20.0, 1.2, start_deg=180.0), 70, 1500),
            Track(wave((-60.0, 30.0, 650.0), (60.0, 10.0, 650.0), 20.0, 1.5, axis=(0.0, 0.0, 1.0)), 70, 1500),
        ]),
        # A track that runs in front, dives under the player and climbs again behind.
        Level("11-underpass.txt", "bg_ocean.png", 5, 0, [(0.0, 45.0, 0.0)], (0.0, 10.0, 60.0), [
            Track(joined(polyline([(-50.0, 20.0, 70.0), (40.0, 10.0, 60.0)]),
                         helix((40.0, -10.0, 0.0), 60.0, 0.0, 0.5, start_deg=90.0, clockwise=True),
                         polyline([(40.0, -10.0, -60.0), (-40.0, 5.0, -60.0), (-60.0, 25.0, -10.0)])), 80, 1500),
            Track(wave((-70.0, 0.0, 20.0), (-70.0, 0.0, -40.0), 8.0, 1.0), 40, 1700),
        ]),
        # A figure of eight whose lobes pass over and under each other.
        Level("12-figure-eight.txt", "bg_volcano.png", 4, 30, [(0.0, 55.0, -60.0)], (0.0, 0.0, 25.0), [
            Track(lemniscate((0.0, 0.0, 30.0), 60.0, 50.0, 9.0, turns=0.95, start=0.02), 80, 1400),
            Track(helix((0.0, 30.0, 30.0), 16.0, 10.0, 1.0, start_deg=90.0), 40, 1600),
        ]),
        # A long corridor: the far tracks are out of reach until the player rides down it.
        Level("13-corridor.txt", "bg_forest.png", 4, 30, [polyline([(0.0, 25.0, -40.0), (0.0, 25.0, 560.0)])],
              (0.0, 10.0, 200.0), [
            Track(helix((-100.0, 0.0, 180.0), 22.0, 25.0, 1.6, start_deg=0.0), 60, 1300),
            Track(helix((100.0, 0.0, 340.0), 22.0, 25.0, 1.6, start_deg=180.0), 60, 1300),
            Track(helix((-100.0, 0.0, 500.0), 22.0, 25.0, 1.6, start_deg=0.0), 60, 1300),
            Track(helix((100.0, 0.0, 660.0), 22.0, 25.0, 1.6, start_deg=180.0), 60, 1300),
        ], pace=0.8),
        # One long coil with a great many balls: the clock is the danger.
        Level("14-long-coil.txt", "bg_canyon.png", 3, 35, [(0.0, 40.0, -100.0)], (0.0, 20.0, 30.0), [
            Track(spiral((0.0, 0.0, 30.0), 70.0, 25.0, 45.0, 2.5, start_deg=200.0), 260, 1100),
        ], pace=0.8),
        # Three switchbacks falling from high above.
        Level("15-switchbacks.txt", "bg_city.png", 4, 30, [(0.0, 50.0, -190.0)], (0.0, 50.0, 30.0), [
            Track(wave((-50.0, 110.0, 30.0), (-50.0, 0.0, 30.0), 18.0, 2.0, axis=(1.0, 0.0, 0.0)), 55, 1400),
            Track(wave((0.0, 120.0, 45.0), (0.0, 0.0, 45.0), 18.0, 2.0, axis=(1.0, 0.0, 0.0)), 55, 1400),
            Track(wave((50.0, 110.0, 30.0), (50.0, 0.0, 30.0), 18.0, 2.0, axis=(1.0, 0.0, 0.0)), 55, 1400),
        ], pace=0.45),
        # A ribbon that weaves up and down, and a track that runs beneath it.
        Level("16-ribbon.txt", "bg_dawn.png", 4, 30, [(0.0, 70.0, -170.0)], (0.0, 10.0, 20.0), [
            Track(wave((-80.0, 15.0, 0.0), (80.0, 15.0, 40.0), 14.0, 2.5), 80, 1300),
            Track(wave((70.0, -10.0, -10.0), (-70.0, -10.0, 60.0), 15.0, 1.0, axis=(0.0, 0.0, 1.0)), 60, 1400),
        ], pace=0.45),
        # Three spirals drawn down into a well below the player.
        Level("17-maelstrom.txt", "bg_deep.png", 4, 30, [(0.0, 130.0, -170.0)], (0.0, 0.0, 30.0), [
            Track(spiral((0.0, 30.0, 30.0), 85.0, 18.0, -60.0, 1.2, start_deg=90.0), 80, 1150),
            Track(spiral((0.0, 30.0, 30.0), 85.0, 18.0, -60.0, 1.2, start_deg=210.0), 80, 1150),
            Track(spiral((0.0, 30.0, 30.0), 85.0, 18.0, -60.0, 1.2, start_deg=330.0), 80, 1150),
        ], pace=0.4095),
        # Tracks to the left and the right: the player turns from one to the other.
        Level("18-crossfire.txt", "bg_storm.png", 4, 30, [(0.0, 15.0, 0.0)], (0.0, 10.0, 150.0), [
            Track(helix((0.0, 0.0, 0.0), 150.0, 20.0, 0.45, start_deg=100.0), 60, 1300),
            Track(helix((0.0, 10.0, 0.0), 150.0, -20.0, 0.45, start_deg=80.0, clockwise=True), 60, 1300),
            Track(wave((-40.0, 30.0, 120.0), (40.0, 30.0, 120.0), 12.0, 1.0), 40, 1500),
        ], pace=0.39, push=1.5),
        # A knotted track, and a coil through its middle.
        Level("19-knot.txt", "bg_volcano.png", 4, 30, [(0.0, 90.0, -200.0)], (0.0, 0.0, 30.0), [
            Track(trefoil((0.0, 0.0, 30.0), 55.0, 22.0), 85, 1200),
            Track(helix((0.0, -40.0, 30.0), 10.0, 80.0, 3.0, start_deg=0.0), 75, 1200),
        ], pace=0.6683, push=1.5),
        # Everything at once, all round the player.
        Level("20-finale.txt", "bg_aurora.png", 5, 0, [(0.0, 20.0, 0.0)], (0.0, 10.0, 170.0), [
            Track(helix((0.0, -10.0, 0.0), 175.0, 20.0, 0.5, start_deg=95.0), 75, 1100),
            Track(helix((0.0, 30.0, 0.0), 175.0, 20.0, 0.5, start_deg=85.0, clockwise=True), 75, 1100),
            Track(helix((-50.0, -5.0, 120.0), 20.0, 40.0, 1.6, start_deg=0.0), 60, 1200),
            Track(helix((50.0, -5.0, 120.0), 20.0, 40.0, 1.6, start_deg=180.0), 60, 1200),
        ], pace=0.3568, push=1.4),
    ]


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Writes the movement artwork to resources/svg/: track pieces, tab icons, direction bricks,
small round arrow buttons and the volume pills.

Run by hand after changing a look: python3 resources/tools/gen_track_icons.py
The build only renders the committed SVGs; it never runs this script.

Families and their templates:
  track pieces   one turtle route per piece (straight runs and arcs), drawn by one band style;
                 each route starts at the piece's entry point and leaves through the edge its
                 direction names, so consecutive pieces join into one continuous track
  marker pieces  the stop sign and the two circling arrows that end or interrupt a track
  tab icons      one tile in two looks (slate, lit orange) with five glyphs
  bricks         one toy brick in two looks; straight arrows are one arrow rotated, turning and
                 circling arrows are drawn once and mirrored for the other hand
  small arrows   one round button in two looks, one chevron rotated four ways
  volume pills   one pill, a speaker and a minus or plus sign
"""

import math

from svgkit import (BLACK, CORAL, CYAN, FOCUS_BOTTOM, FOCUS_TOP, LIT_BOTTOM, LIT_TOP, NAVY_DEEP,
                    ORANGE, ORANGE_DARK, ORANGE_LIGHT, ORANGE_PALE, SLATE_BOTTOM, SLATE_RIM,
                    SLATE_TOP, WHITE, Svg, circle_path, el, fmt, group, pel, rrect_path, write_all)

LOOKS = {
    # slate: the resting look of every button drawn here
    "slate": dict(top=SLATE_TOP, bottom=SLATE_BOTTOM, rim=SLATE_RIM, rim_w=1, gloss=0.12,
                  highlight=0.32, glow=None, ink="#dfe7f2"),
    # focus: brighter blue with the cyan rim glow
    "focus": dict(top=FOCUS_TOP, bottom=FOCUS_BOTTOM, rim=CYAN, rim_w=2, gloss=0.14,
                  highlight=0.38, glow=CYAN, ink=WHITE),
    # lit: the current / hovered tab
    "lit": dict(top=LIT_TOP, bottom=LIT_BOTTOM, rim="#ffc27a", rim_w=1.5, gloss=0.18,
                highlight=0.45, glow=ORANGE_LIGHT, ink=WHITE),
}


# --- the robot's track --------------------------------------------------------------------------

BAND = 11.0          # track width
HALF = BAND / 2
OUTSIDE = 2.0        # the route runs this far past the picture so the join has no seam
TIGHT_R = 13.0       # small quarter turns
WIDE_STUB = 5.0      # straight run kept at both ends of a wide sweep
TREAD_STEP = 7.0

HEADING = {0: (0, 1), 1: (1, 0), 2: (0, -1), 3: (-1, 0)}   # direction code -> unit vector


def right_of(h):
    """The heading after a quarter turn to the right, seen on screen (y grows downwards)."""
    return (-h[1], h[0])


def left_of(h):
    return (h[1], -h[0])


class Route:
    """A centre line made of straight runs and circular arcs, driven like a turtle."""

    def __init__(self, x, y, heading):
        self.start = (x, y)
        self.pos = (x, y)
        self.h = heading
        self.segs = []          # ("L", p0, p1) or ("A", centre, r, a0, a1)

    def forward(self, d):
        if d <= 1e-6:
            return self
        p1 = (self.pos[0] + self.h[0] * d, self.pos[1] + self.h[1] * d)
        self.segs.append(("L", self.pos, p1))
        self.pos = p1
        return self

    def turn(self, side, r, quarters=1):
        """Arc of quarters * 90 degrees to the 'right' or 'left' with centre-line radius r."""
        for _ in range(quarters):
            n = right_of(self.h) if side == "right" else left_of(self.h)
            c = (self.pos[0] + n[0] * r, self.pos[1] + n[1] * r)
            a0 = math.atan2(self.pos[1] - c[1], self.pos[0] - c[0])
            a1 = a0 + (math.pi / 2 if side == "right" else -math.pi / 2)
            self.h = n
            p1 = (c[0] + r * math.cos(a1), c[1] + r * math.sin(a1))
            self.segs.append(("A", c, r, a0, a1))
            self.pos = p1
        return self

    def d(self):
        f = fmt
        out = [f"M{f(self.start[0])},{f(self.start[1])}"]
        for s in self.segs:
            if s[0] == "L":
                out.append(f"L{f(s[2][0])},{f(s[2][1])}")
            else:
                _, c, r, a0, a1 = s
                sweep = 1 if a1 > a0 else 0
                out.append(f"A{f(r)},{f(r)} 0 0 {sweep} {f(c[0] + r * math.cos(a1))},"
                           f"{f(c[1] + r * math.sin(a1))}")
        return " ".join(out)

    def length(self):
        total = 0.0
        for s in self.segs:
            total += (math.dist(s[1], s[2]) if s[0] == "L" else abs(s[4] - s[3]) * s[2])
        return total

    def at(self, dist):
        """Point and unit tangent at a distance along the route."""
        for s in self.segs:
            n = math.dist(s[1], s[2]) if s[0] == "L" else abs(s[4] - s[3]) * s[2]
            if dist <= n or s is self.segs[-1]:
                if s[0] == "L":
                    t = ((s[2][0] - s[1][0]) / n, (s[2][1] - s[1][1]) / n)
                    return (s[1][0] + t[0] * dist, s[1][1] + t[1] * dist), t
                _, c, r, a0, a1 = s
                sgn = 1 if a1 > a0 else -1
                a = a0 + sgn * dist / r
                p = (c[0] + r * math.cos(a), c[1] + r * math.sin(a))
                return p, (-math.sin(a) * sgn, math.cos(a) * sgn)
            dist -= n
        raise ValueError("empty route")


def edge_of(x, y, w, h):
    """Which edge a table point lies on, as the direction code that leaves through it."""
    if x <= 0:
        return 3
    if x >= w:
        return 1
    if y <= 0:
        return 2
    return 0


def clamp_band(v, size):
    """Keeps the whole band inside the picture for a point placed off the picture."""
    return min(max(v, HALF), size - HALF)


def edge_point(edge, coord, w, h):
    """A point on an edge; coord runs along the edge (x on top/bottom, y on left/right)."""
    if edge in (0, 2):
        return (clamp_band(coord, w), h if edge == 0 else 0)
    return (w if edge == 1 else 0, clamp_band(coord, h))


def quarter_route(w, h, entry_edge, entry_coord, exit_dir, exit_coord, side, radius):
    """Straight in, one quarter turn, straight out; radius None = as wide as the piece allows."""
    ex, ey = edge_point(entry_edge, entry_coord, w, h)
    heading = HEADING[(entry_edge + 2) % 4]          # entering means driving away from the edge
    ox, oy = edge_point(exit_dir, exit_coord, w, h)
    out_h = HEADING[exit_dir]
    # Corner where the entry line meets the exit line.
    cx, cy = (ex, oy) if heading[0] == 0 else (ox, ey)
    d_in = abs(cx - ex) + abs(cy - ey)
    d_out = abs(ox - cx) + abs(oy - cy)
    r = min(d_in, d_out) - WIDE_STUB if radius is None else min(radius, d_in, d_out)
    route = Route(ex - heading[0] * OUTSIDE, ey - heading[1] * OUTSIDE, heading)
    route.forward(d_in - r + OUTSIDE).turn(side, r).forward(d_out - r + OUTSIDE)
    assert route.h == out_h, "turn hand does not match the table"
    return route


def draw_track(svg, route):
    """The band: dark rim, orange body, chevron treads pointing the way, light dashed centre."""
    d = route.d()
    svg.path(d, fill="none", stroke=NAVY_DEEP, stroke_opacity=0.45, stroke_width=BAND + 1.6,
             filter=svg.blur(0.9))
    svg.path(d, fill="none", stroke=ORANGE_DARK, stroke_width=BAND)
    svg.path(d, fill="none", stroke=ORANGE, stroke_width=BAND - 2.2)
    # Treads: chevrons pointing in the direction of travel, so a turn's hand reads at a glance.
    treads = []
    dist = OUTSIDE + TREAD_STEP / 2
    end = route.length() - OUTSIDE
    while dist < end:
        (px, py), (tx, ty) = route.at(dist)
        nx, ny = -ty, tx
        a = 3.6          # half width of a chevron
        b = 1.7          # how far its tip leads
        pts = [(px + nx * a - tx * b, py + ny * a - ty * b), (px + tx * b, py + ty * b),
               (px - nx * a - tx * b, py - ny * a - ty * b)]
        treads.append("M" + " L".join(f"{fmt(x)},{fmt(y)}" for x, y in pts))
        dist += TREAD_STEP
    if treads:
        svg.path(" ".join(treads), fill="none", stroke="#a84a00", stroke_opacity=0.55,
                 stroke_width=1.3, stroke_linecap="round", stroke_linejoin="round")
    svg.path(d, fill="none", stroke="#ffe3c2", stroke_opacity=0.9, stroke_width=1.3,
             stroke_dasharray="3.5 3.5", stroke_dashoffset=-OUTSIDE)


# Entry and exit points of every line and turn piece, with each piece's size and the way it
# leaves; "hand" is the way the robot turns, "kind" how tightly.
PIECES = [
    # name,             w,   h,  out, entry,        exit,        hand,    kind
    ("DirArroundLeft1", 45, 42, 3, (23, 42), (0, 7), "left", "tight"),
    ("DirArroundLeft2", 46, 42, 0, (46, 7), (11, 42), "left", "tight"),
    ("DirArroundLeft3", 46, 42, 1, (11, 0), (46, 23), "left", "tight"),
    ("DirArroundLeft4", 45, 42, 2, (0, 23), (23, 0), "left", "tight"),
    ("DirArroundRight1", 45, 45, 1, (12, 45), (10, 45), "right", "tight"),
    ("DirArroundRight2", 45, 44, 2, (23, 45), (12, 0), "right", "tight"),
    ("DirArroundRight3", 45, 44, 3, (26, 0), (0, 25), "right", "tight"),
    ("DirArroundRight4", 45, 45, 0, (0, 10), (27, 45), "right", "tight"),
    ("DirLine1", 66, 73, 2, (29, 73), (29, 0), None, "line"),
    ("DirLine2", 66, 73, 3, (66, 33), (0, 33), None, "line"),
    ("DirLine3", 66, 73, 0, (29, 0), (29, 73), None, "line"),
    ("DirLine4", 66, 73, 1, (0, 33), (66, 33), None, "line"),
    ("DirTurnLeft1", 106, 103, 3, (84, 103), (0, 7), "left", "wide"),
    ("DirTurnLeft2", 107, 103, 0, (107, 7), (12, 103), "left", "wide"),
    ("DirTurnLeft3", 106, 103, 1, (11, 0), (106, 83), "left", "wide"),
    ("DirTurnLeft4", 106, 105, 2, (0, 84), (85, 0), "left", "wide"),
    ("DirTurnRight1", 106, 105, 1, (14, 105), (10, 106), "right", "wide"),
    ("DirTurnRight2", 106, 104, 2, (106, 84), (13, 0), "right", "wide"),
    ("DirTurnRight3", 105, 104, 3, (87, 0), (0, 84), "right", "wide"),
    ("DirTurnRight4", 105, 105, 0, (0, 10), (87, 105), "right", "wide"),
]


def turn_in_edge(out_dir, hand):
    """The edge a turn enters through: a right turn that leaves upwards came in heading left."""
    before = HEADING[out_dir]
    came = left_of(before) if hand == "right" else right_of(before)
    back = (-came[0], -came[1])
    return [k for k, v in HEADING.items() if v == back][0]


def piece_route(w, h, out_dir, entry, exit_, hand, kind):
    if kind == "line":
        in_edge = edge_of(entry[0], entry[1], w, h)
    else:
        in_edge = turn_in_edge(out_dir, hand)
    # The coordinate along the edge is the one placement lines up with the neighbour.
    in_coord = entry[0] if in_edge in (0, 2) else entry[1]
    out_coord = exit_[0] if out_dir in (0, 2) else exit_[1]
    if kind == "line":
        p = edge_point(in_edge, in_coord, w, h)
        heading = HEADING[out_dir]
        route = Route(p[0] - heading[0] * OUTSIDE, p[1] - heading[1] * OUTSIDE, heading)
        return route.forward((h if heading[0] == 0 else w) + 2 * OUTSIDE)
    ex, ey = edge_point(in_edge, in_coord, w, h)
    ox, oy = edge_point(out_dir, out_coord, w, h)
    heading = HEADING[(in_edge + 2) % 4]
    cx, cy = (ex, oy) if heading[0] == 0 else (ox, ey)
    d_in = abs(cx - ex) + abs(cy - ey)
    if kind == "wide" and d_in < 30:
        # The exit sits at the foot of the piece, too low for a wide turn from the entry: swing
        # right over the top, come down the far side and bend into the exit. (A tight turn
        # simply takes the corner as sharply as the band allows.)
        return hook_route(w, h, (ex, ey), (ox, oy))
    return quarter_route(w, h, in_edge, in_coord, out_dir, out_coord, hand,
                         TIGHT_R if kind == "tight" else None)


def hook_route(w, h, entry, exit_):
    ex, ey = entry
    ox, oy = exit_
    r1, r2 = 36.0, 12.0
    down_x = ex + 2 * r1
    top = HALF + 2.5
    route = Route(ex, ey + OUTSIDE, (0, -1))
    route.forward(ey + OUTSIDE - (top + r1)).turn("right", r1, 2)
    route.forward((oy - r2) - (top + r1)).turn("left", r2)
    route.forward(ox - (down_x + r2) + OUTSIDE)
    return route


def track_piece(row):
    name, w, h, out_dir, entry, exit_, hand, kind = row
    svg = Svg(w, h, name)
    draw_track(svg, piece_route(w, h, out_dir, entry, exit_, hand, kind))
    return svg


def stop_piece():
    """A stop sign where the robot halts: red octagon, white border and bar, on a short post."""
    svg = Svg(40, 38, "DirStop")
    cx, cy, r = 20, 18, 15.5
    pts = [(cx + r * math.cos(math.radians(22.5 + 45 * k)),
            cy + r * math.sin(math.radians(22.5 + 45 * k))) for k in range(8)]
    octa = "M" + " L".join(f"{fmt(x)},{fmt(y)}" for x, y in pts) + " Z"
    svg.shadow(octa, 0.5, 1.3, 1.6)
    svg.path(octa, fill=WHITE, stroke="#b8c2d0", stroke_width=0.8, stroke_linejoin="round")
    inner = [(cx + (r - 2.6) * math.cos(math.radians(22.5 + 45 * k)),
              cy + (r - 2.6) * math.sin(math.radians(22.5 + 45 * k))) for k in range(8)]
    d_in = "M" + " L".join(f"{fmt(x)},{fmt(y)}" for x, y in inner) + " Z"
    svg.path(d_in, fill=svg.linear([(0, "#ff7b80"), (0.55, CORAL), (1, "#d93a40")]))
    svg.add(group([el("ellipse", cx=cx, cy=cy - 6.5, rx=9.5, ry=5, fill=WHITE, fill_opacity=0.22)],
                  clip_path=svg.clip(d_in)))
    svg.path(rrect_path(cx - 8.5, cy - 2.6, 17, 5.2, 2.2), fill=WHITE)
    return svg


def circling_arrow(cx, cy, r, clockwise, head_half, head_len):
    """Most of a circle with a head at the top, turning clockwise or anticlockwise on screen.

    Returns the ring's centre line and the head's outline."""
    sgn = 1 if clockwise else -1                # screen clockwise is the positive angle
    a_end = -90.0 - sgn * 28                    # the ring stops here and the head begins
    a_tail = a_end + sgn * 108                  # the ring starts here, after the head's gap

    def pt(a, rr=r):
        return cx + rr * math.cos(math.radians(a)), cy + rr * math.sin(math.radians(a))

    x0, y0 = pt(a_tail)
    x1, y1 = pt(a_end)
    ring = f"M{fmt(x0)},{fmt(y0)} A{fmt(r)},{fmt(r)} 0 1 {1 if clockwise else 0} {fmt(x1)},{fmt(y1)}"
    # Base across the band where the ring stops, tip bent a little along the curve.
    bx, by = pt(a_end)
    nx, ny = math.cos(math.radians(a_end)), math.sin(math.radians(a_end))
    lead = math.radians(a_end + sgn * 90 + sgn * 20)
    tip = (bx + math.cos(lead) * head_len, by + math.sin(lead) * head_len)
    bo = (bx + nx * head_half, by + ny * head_half)
    bi = (bx - nx * head_half, by - ny * head_half)
    head = (f"M{fmt(bo[0])},{fmt(bo[1])} L{fmt(tip[0])},{fmt(tip[1])} "
            f"L{fmt(bi[0])},{fmt(bi[1])} Z")
    return ring, head


def circle_piece(name, clockwise):
    """The robot spinning on the spot: a ring of track that closes on its own arrowhead."""
    svg = Svg(33, 33, name)
    cx, cy = 16.5, 16.5
    ring, head = circling_arrow(cx, cy, 9.8, clockwise, 5.4, 11)
    shadow = [pel(ring, fill="none", stroke=BLACK, stroke_width=7.5),
              pel(head, fill=BLACK, stroke=BLACK, stroke_width=1.5, stroke_linejoin="round")]
    svg.add(group(shadow, opacity=0.45, filter=svg.blur(1.1), transform="translate(0,1.2)"))
    svg.path(ring, fill="none", stroke=ORANGE_DARK, stroke_width=7)
    svg.path(ring, fill="none", stroke=ORANGE, stroke_width=5)
    svg.path(ring, fill="none", stroke="#ffe3c2", stroke_opacity=0.9, stroke_width=1.1,
             stroke_dasharray="2.6 2.6")
    svg.path(head, fill=ORANGE, stroke=ORANGE_DARK, stroke_width=1.1, stroke_linejoin="round")
    svg.add(el("circle", cx=cx, cy=cy, r=2.2, fill=svg.radial([(0, ORANGE_PALE), (1, ORANGE_DARK)])))
    return svg


# --- shared button bodies -----------------------------------------------------------------------

def body(svg, outline, look, bbox):
    """A glossy body: soft drop shadow, gradient, top sheen, inner highlight, rim (and glow)."""
    lk = LOOKS[look]
    x, y, w, h = bbox
    svg.shadow(outline, 0.5, 1.3, 1.7)
    if lk["glow"]:
        svg.path(outline, fill="none", stroke=lk["glow"], stroke_width=3.2, stroke_opacity=0.8,
                 filter=svg.blur(1.2))
    svg.path(outline, fill=svg.linear([(0, lk["top"]), (1, lk["bottom"])], y1=y, y2=y + h,
                                      units="userSpaceOnUse"))
    clip = svg.clip(outline)
    sheen = svg.linear([(0, WHITE, lk["gloss"]), (1, WHITE, 0)], y1=y, y2=y + h * 0.5,
                       units="userSpaceOnUse")
    line = svg.linear([(0, WHITE, lk["highlight"]), (0.4, WHITE, 0)], y1=y, y2=y + h,
                      units="userSpaceOnUse")
    svg.add(group([el("rect", x=x - 4, y=y, width=w + 8, height=h * 0.5, fill=sheen),
                   pel(outline, fill="none", stroke=line, stroke_width=2.4)], clip_path=clip))
    svg.path(outline, fill="none", stroke=lk["rim"], stroke_width=lk["rim_w"])
    return lk


def glyph_shadow(svg, elements, dy=1.2, opacity=0.45):
    svg.add(group(elements, opacity=opacity, filter=svg.blur(0.9), transform=f"translate(0,{dy})"))


# --- tab icons (64x63) --------------------------------------------------------------------------

def glyph_movement(ink, cx, cy):
    """A wheel with four arrows: the robot can roll every way."""
    out = []
    arrow = (f"M0,-8.5 L0,-14 M-4.6,-12.2 L0,-17.6 L4.6,-12.2")
    for k in range(4):
        out.append(pel(arrow, fill="none", stroke=ink, stroke_width=3, stroke_linecap="round",
                       stroke_linejoin="round", transform=f"translate({cx},{cy}) rotate({90 * k})"))
    out.append(el("circle", cx=cx, cy=cy, r=6.2, fill="none", stroke=ink, stroke_width=2.6))
    out.append(el("circle", cx=cx, cy=cy, r=1.9, fill=ink))
    return out


def glyph_sound(ink, cx, cy):
    x = cx - 11
    spk = (f"M{x - 4},{cy - 5} L{x + 1.5},{cy - 5} L{x + 8},{cy - 11} L{x + 8},{cy + 11} "
           f"L{x + 1.5},{cy + 5} L{x - 4},{cy + 5} Z")
    out = [pel(spk, fill=ink, stroke=ink, stroke_width=1.6, stroke_linejoin="round")]
    for r in (7, 12.5, 18):
        a = math.radians(42)
        x0, y0 = x + 8 + r * math.cos(-a), cy + r * math.sin(-a)
        x1, y1 = x + 8 + r * math.cos(a), cy + r * math.sin(a)
        out.append(pel(f"M{fmt(x0)},{fmt(y0)} A{r},{r} 0 0 1 {fmt(x1)},{fmt(y1)}", fill="none",
                       stroke=ink, stroke_width=2.6, stroke_linecap="round"))
    return out


def glyph_lazer(ink, cx, cy, accent):
    """A small emitter on a stand firing a beam that ends in a spark."""
    out = []
    g = f"translate({cx},{cy}) rotate(-35)"
    parts = [
        pel(rrect_path(-15, -5, 15, 10, 3), fill=ink),
        pel(f"M0,-3.4 L4.5,-2 L4.5,2 L0,3.4 Z", fill=ink),
        el("rect", x=-12.5, y=-7.6, width=2.2, height=2.6, fill=ink, rx=0.6),
        el("rect", x=-6.5, y=-7.6, width=2.2, height=2.6, fill=ink, rx=0.6),
        pel("M6.5,0 L17,0", fill="none", stroke=accent, stroke_width=2.4, stroke_linecap="round"),
    ]
    out.append(group(parts, transform=g))
    # spark at the beam's end
    sx = cx + 20 * math.cos(math.radians(-35))
    sy = cy + 20 * math.sin(math.radians(-35))
    star = []
    for k in range(8):
        rr = 5.2 if k % 2 == 0 else 2.0
        a = math.radians(45 * k)
        star.append((sx + rr * math.cos(a), sy + rr * math.sin(a)))
    out.append(pel("M" + " L".join(f"{fmt(x)},{fmt(y)}" for x, y in star) + " Z", fill=accent,
                   stroke=accent, stroke_width=0.8, stroke_linejoin="round"))
    # stand
    out.append(pel(f"M{cx - 9},{cy + 3} L{cx - 13},{cy + 13} M{cx - 17},{cy + 13} L{cx - 6},{cy + 13}",
                   fill="none", stroke=ink, stroke_width=2.6, stroke_linecap="round"))
    return out


def glyph_face(ink, cx, cy, eye):
    """A friendly robot head: antenna, ears, two bright eyes and a smile."""
    out = [
        pel(f"M{cx},{cy - 12} L{cx},{cy - 17}", fill="none", stroke=ink, stroke_width=2.4,
            stroke_linecap="round"),
        el("circle", cx=cx, cy=cy - 18.3, r=2.7, fill=ink),
        el("rect", x=cx - 19.5, y=cy - 3.5, width=4, height=9, rx=1.6, fill=ink),
        el("rect", x=cx + 15.5, y=cy - 3.5, width=4, height=9, rx=1.6, fill=ink),
        pel(rrect_path(cx - 15, cy - 12, 30, 25, 7), fill=ink),
        pel(rrect_path(cx - 11.5, cy - 8.5, 23, 11.5, 4.5), fill=NAVY_DEEP, fill_opacity=0.85),
        el("circle", cx=cx - 5.2, cy=cy - 2.8, r=2.7, fill=eye),
        el("circle", cx=cx + 5.2, cy=cy - 2.8, r=2.7, fill=eye),
        pel(f"M{cx - 5},{cy + 6} Q{cx},{cy + 10} {cx + 5},{cy + 6}", fill="none", stroke=NAVY_DEEP,
            stroke_opacity=0.8, stroke_width=2, stroke_linecap="round"),
    ]
    return out


def glyph_play(ink, cx, cy):
    tri = f"M{cx - 6},{cy - 10} L{cx + 11},{cy} L{cx - 6},{cy + 10} Z"
    return [el("circle", cx=cx, cy=cy, r=17, fill="none", stroke=ink, stroke_width=2.6),
            pel(tri, fill=ink, stroke=ink, stroke_width=3, stroke_linejoin="round")]


def tab_icon(name, glyph, lit):
    svg = Svg(64, 63, name)
    look = "lit" if lit else "slate"
    x, y, w, h = 4, 3, 56, 54
    lk = body(svg, rrect_path(x, y, w, h, 13), look, (x, y, w, h))
    cx, cy = 32, 30

    def draw(ink, accent):
        if glyph == "movement":
            return glyph_movement(ink, cx, cy)
        if glyph == "sound":
            return glyph_sound(ink, cx + 1, cy)
        if glyph == "lazer":
            return glyph_lazer(ink, cx - 2, cy + 2, accent)
        if glyph == "face":
            return glyph_face(ink, cx, cy + 3, accent)
        return glyph_play(ink, cx, cy)

    glyph_shadow(svg, draw(NAVY_DEEP, NAVY_DEEP), opacity=0.45 if lit else 0.6)
    els = draw(lk["ink"], WHITE if lit else CYAN)
    svg.add(*els)
    return svg


# --- direction bricks (62x62) -------------------------------------------------------------------

def brick_body(svg, look):
    """A toy brick seen from the front: two studs on top, glossy face."""
    lk = LOOKS[look]
    x, y, w, h, r = 4, 10, 54, 46, 8
    studs = []
    for sx in (19, 43):
        studs.append(rrect_path(sx - 7, 4.5, 14, 9, 3))
    outline = rrect_path(x, y, w, h, r)
    # shadows
    svg.add(group([pel(outline), pel(studs[0]), pel(studs[1])], fill=BLACK, fill_opacity=0.5,
                  filter=svg.blur(1.4), transform="translate(0,1.8)"))
    if lk["glow"]:
        svg.add(group([pel(outline), pel(studs[0]), pel(studs[1])], fill="none", stroke=lk["glow"],
                      stroke_width=3.4, stroke_opacity=0.85, filter=svg.blur(1.3)))
    # studs, a shade darker than the top of the face, with a light cap
    for sd in studs:
        svg.path(sd, fill=svg.linear([(0, lk["top"]), (1, lk["bottom"])], y1=4.5, y2=13.5,
                                     units="userSpaceOnUse"), stroke=lk["rim"], stroke_width=lk["rim_w"])
    for sx in (19, 43):
        svg.add(el("ellipse", cx=sx, cy=6.8, rx=5, ry=1.4, fill=WHITE, fill_opacity=0.35))
    svg.path(outline, fill=svg.linear([(0, lk["top"]), (1, lk["bottom"])], y1=y, y2=y + h,
                                      units="userSpaceOnUse"))
    clip = svg.clip(outline)
    svg.add(group([
        # glossy face: a broad soft sheen over the upper half and a crisp highlight line
        pel(f"M{x},{y} H{x + w} V{y + 17} Q{x + w / 2},{y + 24} {x},{y + 17} Z", fill=WHITE,
            fill_opacity=lk["gloss"] + 0.04),
        pel(outline, fill="none", stroke=svg.linear([(0, WHITE, lk["highlight"]), (0.35, WHITE, 0)],
                                                    y1=y, y2=y + h, units="userSpaceOnUse"),
            stroke_width=2.4),
        # a darker foot so the brick stands on the page
        el("rect", x=x, y=y + h - 5, width=w, height=5, fill=BLACK, fill_opacity=0.16),
    ], clip_path=clip))
    svg.path(outline, fill="none", stroke=lk["rim"], stroke_width=lk["rim_w"])
    return lk


def brick_ink(focus):
    return (("#ffc170", ORANGE_LIGHT, "#e87300") if focus else (ORANGE_LIGHT, ORANGE, ORANGE_DARK))


def arrow_straight(fill, edge):
    """A fat arrow pointing up, centred on the origin."""
    d = "M0,-15 L13,-1.5 L5,-1.5 L5,14 L-5,14 L-5,-1.5 L-13,-1.5 Z"
    return [pel(d, fill=fill, stroke=edge, stroke_width=1.2, stroke_linejoin="round")]


def arrow_turn(fill, edge):
    """Drive up, then bend to the right: a thick bent shaft with a head pointing right."""
    shaft = "M-8,15 L-8,2 A9,9 0 0 1 1,-7 L3,-7"
    head = "M2.5,-16.5 L15,-7 L2.5,2.5 Z"
    return [pel(shaft, fill="none", stroke=edge, stroke_width=10.4, stroke_linejoin="round"),
            pel(head, fill=edge, stroke=edge, stroke_width=2.4, stroke_linejoin="round"),
            pel(shaft, fill="none", stroke=fill, stroke_width=8),
            pel(head, fill=fill)]


def arrow_circle(fill, edge):
    """Most of a circle running clockwise; the anticlockwise brick mirrors it."""
    ring, head = circling_arrow(0, 1, 10.5, True, 7.2, 12.5)
    return [pel(ring, fill="none", stroke=edge, stroke_width=8.4),
            pel(head, fill=edge, stroke=edge, stroke_width=2.4, stroke_linejoin="round"),
            pel(ring, fill="none", stroke=fill, stroke_width=6),
            pel(head, fill=fill)]


def stop_glyph(focus, silhouette=False):
    r = 14.5
    pts = [(r * math.cos(math.radians(22.5 + 45 * k)), r * math.sin(math.radians(22.5 + 45 * k)))
           for k in range(8)]
    ri = r - 2.4
    inner = [(ri * math.cos(math.radians(22.5 + 45 * k)), ri * math.sin(math.radians(22.5 + 45 * k)))
             for k in range(8)]
    octa = "M" + " L".join(f"{fmt(x)},{fmt(y)}" for x, y in pts) + " Z"
    octi = "M" + " L".join(f"{fmt(x)},{fmt(y)}" for x, y in inner) + " Z"
    if silhouette:
        return [pel(octa, fill=NAVY_DEEP)]
    red = "#ff7479" if focus else CORAL
    return [pel(octa, fill=WHITE),
            pel(octi, fill=red),
            pel(octi, fill=NAVY_DEEP, fill_opacity=0.12, transform="translate(0,1.5) scale(0.95)"),
            pel(rrect_path(-8, -2.4, 16, 4.8, 2), fill=WHITE)]


BRICK_GLYPHS = {
    "Up": ("straight", 0, False), "Right": ("straight", 90, False),
    "Down": ("straight", 180, False), "Left": ("straight", 270, False),
    "TurnRight": ("turn", 0, False), "TurnLeft": ("turn", 0, True),
    "ArroundRight": ("circle", 0, False), "ArroundLeft": ("circle", 0, True),
    "Stop": ("stop", 0, False),
}


def brick(name, which, focus):
    svg = Svg(62, 62, name)
    brick_body(svg, "focus" if focus else "slate")
    kind, angle, mirror = BRICK_GLYPHS[which]
    cx, cy = 31, 33.5
    fill, light, edge = brick_ink(focus)
    shapes = {"straight": arrow_straight, "turn": arrow_turn, "circle": arrow_circle,
              "stop": lambda f, e: stop_glyph(focus, f == NAVY_DEEP)}
    shape = shapes[kind]
    els = shape(svg.linear([(0, fill), (1, light)]) if kind == "straight" else fill, edge)
    tf = f"translate({cx},{cy}) rotate({angle})" + (" scale(-1,1)" if mirror else "")
    glyph_shadow(svg, [group(shape(NAVY_DEEP, NAVY_DEEP), transform=tf)], dy=1.5, opacity=0.6)
    svg.add(group(els, transform=tf))
    return svg


# --- small round arrow buttons (36x38) ----------------------------------------------------------

def small_circle(name, direction, focus):
    svg = Svg(36, 38, name)
    cx, cy, r = 18, 18, 14.5
    lk = body(svg, circle_path(cx, cy, r), "focus" if focus else "slate", (cx - r, cy - r, 2 * r, 2 * r))
    angle = {"Up": 0, "Right": 90, "Down": 180, "Left": 270}[direction]
    chevron = "M-6,3 L0,-3.5 L6,3"
    tf = f"translate({cx},{cy}) rotate({angle})"
    els = [pel(chevron, fill="none", stroke=lk["ink"], stroke_width=3.4, stroke_linecap="round",
               stroke_linejoin="round", transform=tf)]
    glyph_shadow(svg, [pel(chevron, fill="none", stroke=BLACK, stroke_width=3.4,
                           stroke_linecap="round", stroke_linejoin="round", transform=tf)],
                 dy=1.1, opacity=0.5)
    svg.add(*els)
    return svg


# --- volume pills (70x40) -----------------------------------------------------------------------

def volume_pill(name, plus):
    svg = Svg(70, 40, name)
    x, y, w, h = 3, 3, 64, 32
    lk = body(svg, rrect_path(x, y, w, h, 16), "slate", (x, y, w, h))
    ink = lk["ink"]
    cy = y + h / 2
    sx = 21
    spk = (f"M{sx - 6},{cy - 4} L{sx - 1.5},{cy - 4} L{sx + 4.5},{cy - 9} L{sx + 4.5},{cy + 9} "
           f"L{sx - 1.5},{cy + 4} L{sx - 6},{cy + 4} Z")
    els = [pel(spk, fill=ink, stroke=ink, stroke_width=1.4, stroke_linejoin="round")]
    waves = (6, 11) if plus else (6,)
    for r in waves:
        a = math.radians(40)
        x0, y0 = sx + 4.5 + r * math.cos(-a), cy + r * math.sin(-a)
        x1, y1 = sx + 4.5 + r * math.cos(a), cy + r * math.sin(a)
        els.append(pel(f"M{fmt(x0)},{fmt(y0)} A{r},{r} 0 0 1 {fmt(x1)},{fmt(y1)}", fill="none",
                       stroke=ink, stroke_width=2.2, stroke_linecap="round"))
    mx = 51
    sign = [el("rect", x=mx - 8, y=cy - 2, width=16, height=4, rx=1.6, fill=ORANGE_LIGHT)]
    if plus:
        sign.append(el("rect", x=mx - 2, y=cy - 8, width=4, height=16, rx=1.6, fill=ORANGE_LIGHT))
    dark = [e.replace(f'"{ink}"', f'"{NAVY_DEEP}"').replace(f'"{ORANGE_LIGHT}"', f'"{NAVY_DEEP}"')
            for e in els + sign]
    glyph_shadow(svg, dark, opacity=0.6)
    svg.add(*els, *sign)
    return svg


# --- output ---------------------------------------------------------------------------------------

def pictures():
    pics = {}
    for row in PIECES:
        pics[row[0]] = track_piece(row)
    pics["DirStop"] = stop_piece()
    pics["DirCircleLeft"] = circle_piece("DirCircleLeft", clockwise=False)
    pics["DirCircleRight"] = circle_piece("DirCircleRight", clockwise=True)
    for glyph in ("movement", "sound", "lazer", "face", "play"):
        pics[glyph] = tab_icon(glyph, glyph, lit=False)
        pics[glyph + "_over"] = tab_icon(glyph + "_over", glyph, lit=True)
    for which in BRICK_GLYPHS:
        for focus in (False, True):
            n = f"ButtonArrow{which}_{'focus' if focus else 'common'}"
            pics[n] = brick(n, which, focus)
    for direction in ("Up", "Left", "Down", "Right"):
        for focus in (False, True):
            n = f"ButtonSmallCircle{direction}_{'focus' if focus else 'common'}"
            pics[n] = small_circle(n, direction, focus)
    pics["ButtonSoundDe_common"] = volume_pill("ButtonSoundDe_common", plus=False)
    pics["ButtonSoundPlus_common"] = volume_pill("ButtonSoundPlus_common", plus=True)
    return pics


if __name__ == "__main__":
    write_all(pictures())

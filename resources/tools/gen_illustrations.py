#!/usr/bin/env python3
"""Writes the illustration artwork of Robot Companion as SVG files.

Covers the robot mascot, the three robot builds and their small configuration
buttons, the main-menu tiles, the three full-window backgrounds and the alarm
confirmation page.  Everything is drawn from a handful of shared robot parts so
the character looks the same wherever it appears.

Run from anywhere:  python3 resources/tools/gen_illustrations.py
The SVGs land in resources/svg/ next to this tools folder and are committed;
the build only renders them.
"""

import math
import os
import random
import sys

OUT_DIR = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "svg")

# Palette shared with the rest of the artwork.
NAVY_DEEP = "#0c1730"
NAVY = "#132446"
NAVY_LIGHT = "#1b3163"
PANEL = "#16284d"
PANEL_RIM = "#2e4a80"
ORANGE = "#ff8000"
ORANGE_LIGHT = "#ffa640"
ORANGE_DARK = "#c85f00"
SHELL = "#eef2f7"
SHELL_SHADE = "#c5d0de"
JOINT = "#8a97ab"
VISOR = "#1a2236"
CYAN = "#36d6ff"
CYAN_GLOW = "#8feaff"
GREEN = "#3ddc84"
CORAL = "#ff5a5f"
YELLOW = "#ffd23f"
OUTLINE = "#66748c"


def f(v):
    """Compact number formatting so the SVGs stay small and diff-friendly."""
    r = round(v, 2)
    if r == int(r):
        return str(int(r))
    return ("%.2f" % r).rstrip("0")


class Doc:
    """One SVG document: collects definitions once and body markup in order."""

    def __init__(self, w, h):
        self.w, self.h = w, h
        self.defs = []
        self.def_ids = set()
        self.body = []
        self.counter = 0

    def uid(self, stem):
        self.counter += 1
        return "%s%d" % (stem, self.counter)

    def define(self, did, markup):
        if did not in self.def_ids:
            self.def_ids.add(did)
            self.defs.append(markup)
        return did

    def add(self, markup):
        self.body.append(markup)

    def text(self):
        head = ('<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" '
                'viewBox="0 0 %d %d">\n' % (self.w, self.h, self.w, self.h))
        defs = "<defs>\n" + "\n".join(self.defs) + "\n</defs>\n" if self.defs else ""
        return head + defs + "\n".join(self.body) + "\n</svg>\n"


# ---------------------------------------------------------------------------
# Shared paint: gradients and filters
# ---------------------------------------------------------------------------

def lin(doc, did, stops, x1=0, y1=0, x2=0, y2=1, units=None):
    s = "".join('<stop offset="%s" stop-color="%s"%s/>' % (
        f(o), c, (' stop-opacity="%s"' % f(a)) if a is not None else "")
        for o, c, a in [(st + (None,))[:3] for st in stops])
    u = ' gradientUnits="%s"' % units if units else ""
    return doc.define(did, '<linearGradient id="%s" x1="%s" y1="%s" x2="%s" y2="%s"%s>%s</linearGradient>'
                      % (did, f(x1), f(y1), f(x2), f(y2), u, s))


def rad(doc, did, stops, cx=0.5, cy=0.5, r=0.5, fx=None, fy=None, units=None, extra=""):
    s = "".join('<stop offset="%s" stop-color="%s"%s/>' % (
        f(o), c, (' stop-opacity="%s"' % f(a)) if a is not None else "")
        for o, c, a in [(st + (None,))[:3] for st in stops])
    fxy = ""
    if fx is not None:
        fxy = ' fx="%s" fy="%s"' % (f(fx), f(fy))
    u = ' gradientUnits="%s"' % units if units else ""
    return doc.define(did, '<radialGradient id="%s" cx="%s" cy="%s" r="%s"%s%s%s>%s</radialGradient>'
                      % (did, f(cx), f(cy), f(r), fxy, u, extra, s))


def shadow_filter(doc, did, blur=6, dy=6, opacity=0.45, color="#040914"):
    return doc.define(did, (
        '<filter id="%s" x="-30%%" y="-30%%" width="160%%" height="170%%" color-interpolation-filters="sRGB">'
        '<feGaussianBlur in="SourceAlpha" stdDeviation="%s"/>'
        '<feOffset dy="%s" result="o"/>'
        '<feFlood flood-color="%s" flood-opacity="%s"/>'
        '<feComposite in2="o" operator="in"/>'
        '<feMerge><feMergeNode/><feMergeNode in="SourceGraphic"/></feMerge>'
        '</filter>') % (did, f(blur), f(dy), color, f(opacity)))


def glow_filter(doc, did, blur=4, opacity=0.9):
    return doc.define(did, (
        '<filter id="%s" x="-100%%" y="-100%%" width="300%%" height="300%%" color-interpolation-filters="sRGB">'
        '<feGaussianBlur in="SourceGraphic" stdDeviation="%s" result="b"/>'
        '<feComponentTransfer in="b" result="c"><feFuncA type="linear" slope="%s"/></feComponentTransfer>'
        '<feMerge><feMergeNode in="c"/><feMergeNode in="SourceGraphic"/></feMerge>'
        '</filter>') % (did, f(blur), f(opacity)))


def blur_filter(doc, did, blur):
    return doc.define(did, (
        '<filter id="%s" x="-50%%" y="-50%%" width="200%%" height="200%%">'
        '<feGaussianBlur stdDeviation="%s"/></filter>') % (did, f(blur)))


def inset_filter(doc, did, blur=3, dy=2, opacity=0.55):
    """Inner shadow: darkens the inside edge along the top, a pressed-in look."""
    return doc.define(did, (
        '<filter id="%s" x="-10%%" y="-10%%" width="120%%" height="120%%" color-interpolation-filters="sRGB">'
        '<feComponentTransfer in="SourceAlpha" result="inv"><feFuncA type="table" tableValues="1 0"/></feComponentTransfer>'
        '<feGaussianBlur in="inv" stdDeviation="%s"/>'
        '<feOffset dy="%s" result="sh"/>'
        '<feFlood flood-color="#2a0f00" flood-opacity="%s"/>'
        '<feComposite in2="sh" operator="in"/>'
        '<feComposite in2="SourceAlpha" operator="in" result="inner"/>'
        '<feMerge><feMergeNode in="SourceGraphic"/><feMergeNode in="inner"/></feMerge>'
        '</filter>') % (did, f(blur), f(dy), f(opacity)))


def robot_paints(doc):
    """Gradients every robot part uses; ids are fixed so parts can share them."""
    rad(doc, "shell", [(0, "#ffffff"), (0.5, SHELL), (1, SHELL_SHADE)], cx=0.38, cy=0.28, r=0.85)
    lin(doc, "shellV", [(0, "#ffffff"), (0.45, SHELL), (1, SHELL_SHADE)])
    lin(doc, "shellAcross", [(0, SHELL_SHADE), (0.35, "#ffffff"), (0.6, SHELL), (1, "#aab6c8")])
    rad(doc, "joint", [(0, "#b9c3d2"), (0.6, JOINT), (1, "#5f6b80")], cx=0.38, cy=0.32, r=0.75)
    lin(doc, "jointAcross", [(0, "#5f6b80"), (0.4, "#aeb8c8"), (1, "#66728a")])
    lin(doc, "visor", [(0, "#2a3654"), (0.55, VISOR), (1, "#0d1322")])
    rad(doc, "orangeBall", [(0, "#ffd9a8"), (0.35, ORANGE_LIGHT), (0.8, ORANGE), (1, ORANGE_DARK)],
        cx=0.4, cy=0.35, r=0.7)
    rad(doc, "cyanEye", [(0, "#e6fbff"), (0.35, CYAN_GLOW), (1, CYAN)], cx=0.45, cy=0.35, r=0.75)
    rad(doc, "tyre", [(0, "#3a4660"), (0.75, "#232c40"), (1, "#141a28")], cx=0.45, cy=0.4, r=0.6)
    lin(doc, "belt", [(0, "#364260"), (0.5, "#222b3f"), (1, "#141a28")])
    lin(doc, "bellGold", [(0, "#fff1b0"), (0.4, YELLOW), (1, "#d89a10")], x1=0, y1=0, x2=1, y2=1)
    glow_filter(doc, "glow", 3.5, 0.95)
    glow_filter(doc, "glowBig", 8, 0.9)


# ---------------------------------------------------------------------------
# Robot parts.  All take a scale s; sizes are given for s = 1.
# ---------------------------------------------------------------------------

def capsule(doc, x1, y1, x2, y2, w, fill="url(#shellAcross)", stroke=OUTLINE, sw=2):
    dx, dy = x2 - x1, y2 - y1
    length = math.hypot(dx, dy)
    ang = math.degrees(math.atan2(dy, dx))
    return ('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="%s" stroke="%s" stroke-width="%s" '
            'transform="translate(%s %s) rotate(%s)"/>' % (
                f(-w / 2), f(-w / 2), f(length + w), f(w), f(w / 2), fill, stroke, f(sw),
                f(x1), f(y1), f(ang)))


def joint(x, y, r, sw=2):
    return ('<circle cx="%s" cy="%s" r="%s" fill="url(#joint)" stroke="#4f5a6d" stroke-width="%s"/>'
            % (f(x), f(y), f(r), f(sw)))


def hand(x, y, r, ang, s):
    """A round mitten with a small thumb, pointing along ang (degrees)."""
    a = math.radians(ang)
    tx = x + math.cos(a + 0.9) * r * 0.95
    ty = y + math.sin(a + 0.9) * r * 0.95
    parts = [
        '<circle cx="%s" cy="%s" r="%s" fill="url(#shell)" stroke="%s" stroke-width="%s"/>'
        % (f(tx), f(ty), f(r * 0.45), OUTLINE, f(2 * s)),
        '<circle cx="%s" cy="%s" r="%s" fill="url(#shell)" stroke="%s" stroke-width="%s"/>'
        % (f(x), f(y), f(r), OUTLINE, f(2 * s)),
        '<circle cx="%s" cy="%s" r="%s" fill="none" stroke="%s" stroke-width="%s" opacity="0.8"/>'
        % (f(x), f(y), f(r * 0.55), SHELL_SHADE, f(2 * s)),
    ]
    return "".join(parts)


def arm(doc, sx, sy, ex, ey, hx, hy, s, hand_r=None):
    """Shoulder -> elbow -> hand, drawn back to front."""
    w = 24 * s
    hr = hand_r if hand_r else 19 * s
    ang = math.degrees(math.atan2(hy - ey, hx - ex))
    return "".join([
        capsule(doc, sx, sy, ex, ey, w, sw=2 * s),
        capsule(doc, ex, ey, hx, hy, w * 0.92, sw=2 * s),
        joint(ex, ey, w * 0.62, 2 * s),
        hand(hx, hy, hr, ang, s),
        joint(sx, sy, w * 0.8, 2 * s),
    ])


def antenna(cx, top, s, lean=0):
    tip_x = cx + lean * s
    tip_y = top - 38 * s
    return "".join([
        '<path d="M%s %s Q%s %s %s %s" fill="none" stroke="%s" stroke-width="%s" stroke-linecap="round"/>'
        % (f(cx), f(top), f(cx + lean * 0.2 * s), f(top - 20 * s), f(tip_x), f(tip_y), JOINT, f(5 * s)),
        '<circle cx="%s" cy="%s" r="%s" fill="%s" opacity="0.35" filter="url(#glowBig)"/>'
        % (f(tip_x), f(tip_y), f(11 * s), ORANGE),
        '<circle cx="%s" cy="%s" r="%s" fill="url(#orangeBall)" stroke="%s" stroke-width="%s"/>'
        % (f(tip_x), f(tip_y), f(10 * s), ORANGE_DARK, f(1.5 * s)),
        '<circle cx="%s" cy="%s" r="%s" fill="#ffffff" opacity="0.8"/>'
        % (f(tip_x - 3 * s), f(tip_y - 3.5 * s), f(2.8 * s)),
        '<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#joint)" stroke="#4f5a6d" stroke-width="%s"/>'
        % (f(cx - 14 * s), f(top - 8 * s), f(28 * s), f(12 * s), f(5 * s), f(1.5 * s)),
    ])


def head(doc, cx, cy, s, mood="smile", tilt=0, antenna_lean=0):
    """The character's head: a rounded shell, dark visor, two glowing eyes."""
    w, h = 200 * s, 150 * s
    out = ['<g transform="rotate(%s %s %s)">' % (f(tilt), f(cx), f(cy + h / 2))]
    out.append(antenna(cx, cy - h / 2 + 2 * s, s, antenna_lean))
    # ear pods
    for side in (-1, 1):
        ex = cx + side * (w / 2 + 2 * s)
        out.append('<ellipse cx="%s" cy="%s" rx="%s" ry="%s" fill="url(#joint)" stroke="#4f5a6d" stroke-width="%s"/>'
                   % (f(ex), f(cy + 4 * s), f(16 * s), f(26 * s), f(2 * s)))
        out.append('<ellipse cx="%s" cy="%s" rx="%s" ry="%s" fill="url(#orangeBall)"/>'
                   % (f(ex + side * 3 * s), f(cy + 4 * s), f(7 * s), f(13 * s)))
    # shell
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#shell)" stroke="%s" stroke-width="%s"/>'
               % (f(cx - w / 2), f(cy - h / 2), f(w), f(h), f(64 * s), OUTLINE, f(2.5 * s)))
    # soft top highlight on the shell
    out.append('<path d="M%s %s Q%s %s %s %s" fill="none" stroke="#ffffff" stroke-width="%s" '
               'stroke-linecap="round" opacity="0.9"/>'
               % (f(cx - w * 0.3), f(cy - h * 0.41), f(cx - w * 0.1), f(cy - h * 0.5 + 3 * s),
                  f(cx + w * 0.12), f(cy - h * 0.45), f(5 * s)))
    # visor
    vw, vh = 160 * s, 96 * s
    vx, vy = cx - vw / 2, cy - vh / 2 + 8 * s
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#visor)" stroke="#0b1020" stroke-width="%s"/>'
               % (f(vx), f(vy), f(vw), f(vh), f(42 * s), f(2 * s)))
    # visor gloss
    out.append('<path d="M%s %s Q%s %s %s %s" fill="none" stroke="#ffffff" stroke-width="%s" '
               'stroke-linecap="round" opacity="0.18"/>'
               % (f(vx + 26 * s), f(vy + 18 * s), f(vx + 50 * s), f(vy + 6 * s), f(vx + 96 * s), f(vy + 8 * s),
                  f(6 * s)))
    ey = cy + 2 * s
    for side in (-1, 1):
        ex = cx + side * 38 * s
        if mood == "joy":
            # closed, smiling eyes
            out.append('<path d="M%s %s Q%s %s %s %s" fill="none" stroke="%s" stroke-width="%s" '
                       'stroke-linecap="round" filter="url(#glow)"/>'
                       % (f(ex - 17 * s), f(ey + 6 * s), f(ex), f(ey - 20 * s), f(ex + 17 * s), f(ey + 6 * s),
                          CYAN_GLOW, f(8 * s)))
        else:
            out.append('<ellipse cx="%s" cy="%s" rx="%s" ry="%s" fill="url(#cyanEye)" filter="url(#glow)"/>'
                       % (f(ex), f(ey), f(17 * s), f(22 * s)))
            out.append('<circle cx="%s" cy="%s" r="%s" fill="#ffffff"/>' % (f(ex - 5 * s), f(ey - 8 * s), f(5.5 * s)))
            out.append('<circle cx="%s" cy="%s" r="%s" fill="#ffffff" opacity="0.7"/>'
                       % (f(ex + 6 * s), f(ey + 8 * s), f(2.5 * s)))
    # cheeks
    for side in (-1, 1):
        out.append('<ellipse cx="%s" cy="%s" rx="%s" ry="%s" fill="%s" opacity="0.6" filter="url(#glow)"/>'
                   % (f(cx + side * 62 * s), f(ey + 22 * s), f(9 * s), f(5 * s), CORAL))
    # mouth
    my = ey + 26 * s
    if mood in ("joy", "open"):
        out.append('<path d="M%s %s Q%s %s %s %s Z" fill="%s" stroke="%s" stroke-width="%s" '
                   'stroke-linejoin="round" filter="url(#glow)"/>'
                   % (f(cx - 20 * s), f(my - 2 * s), f(cx), f(my + 30 * s), f(cx + 20 * s), f(my - 2 * s),
                      "#0f3a4a", CYAN, f(4 * s)))
    else:
        out.append('<path d="M%s %s Q%s %s %s %s" fill="none" stroke="%s" stroke-width="%s" '
                   'stroke-linecap="round" filter="url(#glow)"/>'
                   % (f(cx - 20 * s), f(my), f(cx), f(my + 16 * s), f(cx + 20 * s), f(my), CYAN, f(5 * s)))
    out.append("</g>")
    return "".join(out)


def neck(cx, top, s, length=18):
    return ('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#jointAcross)" stroke="#4f5a6d" '
            'stroke-width="%s"/>' % (f(cx - 24 * s), f(top), f(48 * s), f(length * s), f(6 * s), f(2 * s)))


def torso(doc, cx, top, w, h, s, core=True):
    """Rounded, slightly tapering body with a chest panel and a glowing core."""
    bw = w * 0.84
    r = 34 * s
    x0, x1 = cx - w / 2, cx + w / 2
    b0, b1 = cx - bw / 2, cx + bw / 2
    bot = top + h
    d = ("M%s %s H%s Q%s %s %s %s L%s %s Q%s %s %s %s H%s Q%s %s %s %s L%s %s Q%s %s %s %s Z" % (
        f(x0 + r), f(top), f(x1 - r), f(x1), f(top), f(x1), f(top + r),
        f(b1), f(bot - r), f(b1), f(bot), f(b1 - r), f(bot),
        f(b0 + r), f(b0), f(bot), f(b0), f(bot - r),
        f(x0), f(top + r), f(x0), f(top), f(x0 + r), f(top)))
    out = ['<path d="%s" fill="url(#shell)" stroke="%s" stroke-width="%s"/>' % (d, OUTLINE, f(2.5 * s))]
    # lower shade band
    out.append('<path d="M%s %s Q%s %s %s %s" fill="none" stroke="%s" stroke-width="%s" stroke-linecap="round" opacity="0.8"/>'
               % (f(b0 + 14 * s), f(bot - 16 * s), f(cx), f(bot - 8 * s), f(b1 - 14 * s), f(bot - 16 * s),
                  SHELL_SHADE, f(4 * s)))
    if core:
        pw, ph = w * 0.56, h * 0.5
        px, py = cx - pw / 2, top + h * 0.2
        out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#visor)" stroke="#0b1020" stroke-width="%s"/>'
                   % (f(px), f(py), f(pw), f(ph), f(16 * s), f(2 * s)))
        cr = min(pw, ph) * 0.3
        ccx, ccy = cx - pw * 0.12, py + ph / 2
        out.append('<circle cx="%s" cy="%s" r="%s" fill="%s" opacity="0.45" filter="url(#glowBig)"/>'
                   % (f(ccx), f(ccy), f(cr), ORANGE))
        out.append('<circle cx="%s" cy="%s" r="%s" fill="url(#orangeBall)" stroke="%s" stroke-width="%s"/>'
                   % (f(ccx), f(ccy), f(cr), ORANGE_DARK, f(1.5 * s)))
        out.append('<circle cx="%s" cy="%s" r="%s" fill="none" stroke="#ffe0bd" stroke-width="%s" opacity="0.7"/>'
                   % (f(ccx), f(ccy), f(cr * 0.55), f(2 * s)))
        # three status lights
        lx = cx + pw * 0.24
        for i, c in enumerate((CYAN, GREEN, YELLOW)):
            ly = py + ph * (0.25 + i * 0.25)
            out.append('<circle cx="%s" cy="%s" r="%s" fill="%s" filter="url(#glow)"/>'
                       % (f(lx), f(ly), f(4.5 * s), c))
    return "".join(out)


def wheel(cx, cy, r, s):
    out = ['<circle cx="%s" cy="%s" r="%s" fill="url(#tyre)" stroke="#0b1020" stroke-width="%s"/>'
           % (f(cx), f(cy), f(r), f(2 * s))]
    n = 14
    for i in range(n):
        a = 2 * math.pi * i / n
        x = cx + math.cos(a) * (r - 4 * s)
        y = cy + math.sin(a) * (r - 4 * s)
        out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="#3b4762" '
                   'transform="rotate(%s %s %s)"/>'
                   % (f(x - 5 * s), f(y - 2.5 * s), f(10 * s), f(5 * s), f(2 * s),
                      f(math.degrees(a)), f(x), f(y)))
    out.append('<circle cx="%s" cy="%s" r="%s" fill="url(#shell)" stroke="%s" stroke-width="%s"/>'
               % (f(cx), f(cy), f(r * 0.6), OUTLINE, f(2 * s)))
    for i in range(5):
        a = 2 * math.pi * i / 5 - math.pi / 2
        out.append('<circle cx="%s" cy="%s" r="%s" fill="%s"/>'
                   % (f(cx + math.cos(a) * r * 0.42), f(cy + math.sin(a) * r * 0.42), f(r * 0.06), JOINT))
    out.append('<circle cx="%s" cy="%s" r="%s" fill="url(#orangeBall)" stroke="%s" stroke-width="%s"/>'
               % (f(cx), f(cy), f(r * 0.24), ORANGE_DARK, f(1.2 * s)))
    out.append('<path d="M%s %s A%s %s 0 0 1 %s %s" fill="none" stroke="#ffffff" stroke-width="%s" '
               'stroke-linecap="round" opacity="0.25"/>'
               % (f(cx - r * 0.78), f(cy - r * 0.3), f(r * 0.83), f(r * 0.83), f(cx - r * 0.2), f(cy - r * 0.8),
                  f(3 * s)))
    return "".join(out)


def track(cx, cy, w, h, s):
    """A tank tread seen from the side, with road wheels and a fender."""
    x0 = cx - w / 2
    out = ['<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#belt)" stroke="#0b1020" stroke-width="%s"/>'
           % (f(x0), f(cy - h / 2), f(w), f(h), f(h / 2), f(2 * s))]
    # tread teeth on the outside
    n = int(w / (13 * s))
    for i in range(1, n):
        x = x0 + i * w / n
        if x0 + h * 0.35 < x < x0 + w - h * 0.35:
            for yy in (cy - h / 2 - 1 * s, cy + h / 2 - 5 * s):
                out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="#46536f"/>'
                           % (f(x - 3.5 * s), f(yy), f(7 * s), f(6 * s), f(1.5 * s)))
    inner_h = h * 0.62
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="#1a2133"/>'
               % (f(x0 + 8 * s), f(cy - inner_h / 2), f(w - 16 * s), f(inner_h), f(inner_h / 2)))
    k = 4
    rr = inner_h * 0.42
    for i in range(k):
        x = x0 + h / 2 + i * (w - h) / (k - 1)
        out.append('<circle cx="%s" cy="%s" r="%s" fill="url(#shell)" stroke="%s" stroke-width="%s"/>'
                   % (f(x), f(cy), f(rr), OUTLINE, f(1.5 * s)))
        out.append('<circle cx="%s" cy="%s" r="%s" fill="url(#orangeBall)"/>' % (f(x), f(cy), f(rr * 0.38)))
    return "".join(out)


def leg(doc, hx, hy, kx, ky, fx, fy, s, foot_dir=1):
    w = 30 * s
    foot = ('<path d="M%s %s Q%s %s %s %s L%s %s Q%s %s %s %s Z" fill="url(#shell)" stroke="%s" stroke-width="%s"/>'
            % (f(fx - 30 * s), f(fy + 14 * s), f(fx - 30 * s), f(fy - 14 * s), f(fx + 2 * s), f(fy - 14 * s),
               f(fx + 10 * s), f(fy - 14 * s), f(fx + 38 * s), f(fy - 4 * s), f(fx + 38 * s), f(fy + 14 * s),
               OUTLINE, f(2 * s)))
    if foot_dir < 0:
        foot = '<g transform="translate(%s 0) scale(-1 1)">%s</g>' % (f(2 * fx), foot)
    sole = ('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="%s"/>'
            % (f(fx - 32 * s), f(fy + 10 * s), f(72 * s), f(7 * s), f(3.5 * s), ORANGE))
    if foot_dir < 0:
        sole = ('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="%s"/>'
                % (f(fx - 40 * s), f(fy + 10 * s), f(72 * s), f(7 * s), f(3.5 * s), ORANGE))
    return "".join([
        capsule(doc, hx, hy, kx, ky, w, sw=2 * s),
        capsule(doc, kx, ky, fx, fy - 6 * s, w * 0.9, sw=2 * s),
        joint(kx, ky, w * 0.6, 2 * s),
        foot, sole,
        joint(hx, hy, w * 0.7, 2 * s),
    ])


def laser_turret(x, y, s, beam=160, ang=-18):
    """Shoulder-mounted laser pointing at ang degrees (0 = right)."""
    out = ['<g transform="translate(%s %s) rotate(%s)">' % (f(x), f(y), f(ang))]
    bl = beam * s
    out.append('<path d="M%s %s L%s %s L%s %s L%s %s Z" fill="url(#beamGrad)" filter="url(#glow)"/>'
               % (f(62 * s), f(-4 * s), f(62 * s + bl), f(-9 * s), f(62 * s + bl), f(9 * s), f(62 * s), f(4 * s)))
    out.append('<rect x="%s" y="%s" width="%s" height="%s" fill="url(#beamCore)"/>'
               % (f(62 * s), f(-1.5 * s), f(bl * 0.9), f(3 * s)))
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#jointAcross)" stroke="#4f5a6d" '
               'stroke-width="%s"/>' % (f(26 * s), f(-9 * s), f(36 * s), f(18 * s), f(5 * s), f(1.5 * s)))
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#shellV)" stroke="%s" stroke-width="%s"/>'
               % (f(-30 * s), f(-20 * s), f(62 * s), f(40 * s), f(14 * s), OUTLINE, f(2 * s)))
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="%s"/>'
               % (f(-20 * s), f(-6 * s), f(36 * s), f(12 * s), f(6 * s), ORANGE))
    out.append('<circle cx="%s" cy="0" r="%s" fill="%s" filter="url(#glow)"/>' % (f(62 * s), f(6 * s), CORAL))
    out.append('<circle cx="%s" cy="0" r="%s" fill="#ffe3e4"/>' % (f(62 * s), f(2.5 * s)))
    out.append('</g>')
    return "".join(out)


def laser_paints(doc):
    lin(doc, "beamGrad", [(0, CORAL, 0.95), (0.7, CORAL, 0.45), (1, CORAL, 0)], x1=0, y1=0, x2=1, y2=0)
    lin(doc, "beamCore", [(0, "#fff4f4", 1), (1, "#ffd0d2", 0)], x1=0, y1=0, x2=1, y2=0)


def floor_shadow(cx, cy, rx, ry, opacity=0.55):
    return ('<ellipse cx="%s" cy="%s" rx="%s" ry="%s" fill="#02060f" opacity="%s" filter="url(#softShadow)"/>'
            % (f(cx), f(cy), f(rx), f(ry), f(opacity)))


# ---------------------------------------------------------------------------
# The three builds.  Each draws with its ground point at (cx, gy).
# ---------------------------------------------------------------------------

def build_rover(doc, cx, gy, s, wave=False, mood="smile"):
    """Build A: a compact body riding on two big wheels."""
    wr = 58 * s
    wy = gy - wr
    tw, th = 190 * s, 150 * s
    ttop = wy - th + 18 * s
    out = [floor_shadow(cx, gy - 2 * s, 150 * s, 14 * s)]
    # axle strut behind the wheels
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#jointAcross)" stroke="#4f5a6d" '
               'stroke-width="%s"/>' % (f(cx - 110 * s), f(wy - 12 * s), f(220 * s), f(24 * s), f(10 * s), f(2 * s)))
    hy = ttop - 18 * s - 75 * s + 6 * s
    if wave:
        # the waving arm goes behind the body, raised high
        out.append(arm(doc, cx + tw / 2 - 6 * s, ttop + 28 * s, cx + tw / 2 + 58 * s, ttop - 20 * s,
                       cx + tw / 2 + 70 * s, ttop - 92 * s, s, 22 * s))
    out.append(torso(doc, cx, ttop, tw, th, s))
    out.append(wheel(cx - 92 * s, wy, wr, s))
    out.append(wheel(cx + 92 * s, wy, wr, s))
    # resting arms hang in front of the wheels, hands clear of the tyres
    sides = (-1,) if wave else (-1, 1)
    for side in sides:
        out.append(arm(doc, cx + side * (tw / 2 - 6 * s), ttop + 28 * s, cx + side * (tw / 2 + 36 * s),
                       ttop + 64 * s, cx + side * (tw / 2 + 60 * s), ttop + 96 * s, s))
    out.append(neck(cx, ttop - 18 * s, s, 24))
    out.append(head(doc, cx, hy, s, mood=mood, tilt=-4 if wave else 0, antenna_lean=8 if wave else 0))
    return "".join(out)


def build_walker(doc, cx, gy, s, mood="smile"):
    """Build B: tall, on two legs, arms out in a friendly pose."""
    out = [floor_shadow(cx, gy - 2 * s, 120 * s, 12 * s)]
    fy = gy - 17 * s
    hip_y = fy - 150 * s
    tw, th = 170 * s, 150 * s
    ttop = hip_y - th + 20 * s
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#jointAcross)" stroke="#4f5a6d" '
               'stroke-width="%s"/>' % (f(cx - 60 * s), f(hip_y - 22 * s), f(120 * s), f(36 * s), f(14 * s), f(2 * s)))
    out.append(leg(doc, cx - 40 * s, hip_y, cx - 50 * s, hip_y + 76 * s, cx - 46 * s, fy, s, -1))
    out.append(leg(doc, cx + 40 * s, hip_y, cx + 50 * s, hip_y + 76 * s, cx + 46 * s, fy, s, 1))
    out.append(arm(doc, cx - tw / 2 + 4 * s, ttop + 26 * s, cx - tw / 2 - 52 * s, ttop + 60 * s,
                   cx - tw / 2 - 70 * s, ttop + 4 * s, s))
    out.append(arm(doc, cx + tw / 2 - 4 * s, ttop + 26 * s, cx + tw / 2 + 48 * s, ttop + 72 * s,
                   cx + tw / 2 + 62 * s, ttop + 126 * s, s))
    out.append(torso(doc, cx, ttop, tw, th, s))
    out.append(neck(cx, ttop - 18 * s, s, 24))
    out.append(head(doc, cx, ttop - 18 * s - 69 * s, s * 0.92, mood=mood))
    return "".join(out)


def build_tank(doc, cx, gy, s, mood="smile", beam=150):
    """Build C: on tracks, with a laser turret on the shoulder."""
    out = [floor_shadow(cx, gy - 2 * s, 160 * s, 13 * s)]
    th_ = 64 * s
    ty = gy - th_ / 2
    tw, bh = 200 * s, 130 * s
    btop = ty - th_ / 2 - bh + 26 * s
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#jointAcross)" stroke="#4f5a6d" '
               'stroke-width="%s"/>' % (f(cx - 80 * s), f(ty - th_ / 2 - 16 * s), f(160 * s), f(28 * s), f(8 * s),
                                        f(2 * s)))
    out.append(arm(doc, cx - tw / 2 + 6 * s, btop + 28 * s, cx - tw / 2 - 32 * s, btop + 76 * s,
                   cx - tw / 2 - 30 * s, btop + 124 * s, s))
    out.append(torso(doc, cx, btop, tw, bh, s))
    out.append(track(cx, ty, 270 * s, th_, s))
    # fender over the track
    out.append('<path d="M%s %s Q%s %s %s %s H%s Q%s %s %s %s Z" fill="url(#shellV)" stroke="%s" stroke-width="%s"/>'
               % (f(cx - 140 * s), f(ty - th_ / 2 + 8 * s), f(cx - 140 * s), f(ty - th_ / 2 - 10 * s),
                  f(cx - 118 * s), f(ty - th_ / 2 - 10 * s), f(cx + 118 * s), f(cx + 140 * s),
                  f(ty - th_ / 2 - 10 * s), f(cx + 140 * s), f(ty - th_ / 2 + 8 * s), OUTLINE, f(2 * s)))
    out.append(neck(cx, btop - 18 * s, s, 24))
    out.append(head(doc, cx, btop - 18 * s - 69 * s, s * 0.95, mood=mood))
    # turret on the right shoulder, then the near arm
    out.append(joint(cx + tw / 2 - 8 * s, btop + 10 * s, 20 * s, 2 * s))
    out.append(laser_turret(cx + tw / 2 + 2 * s, btop - 8 * s, s, beam=beam, ang=-14))
    out.append(arm(doc, cx + tw / 2 - 6 * s, btop + 40 * s, cx + tw / 2 + 34 * s, btop + 82 * s,
                   cx + tw / 2 + 34 * s, btop + 128 * s, s))
    return "".join(out)


def all_robot_paints(doc):
    robot_paints(doc)
    laser_paints(doc)
    blur_filter(doc, "softShadow", 6)


# ---------------------------------------------------------------------------
# Small shapes: digits for badges, bells, confetti, stars
# ---------------------------------------------------------------------------

DIGITS = {
    1: "M-4 -7 L2 -11 V11",
    2: "M-7 -5 Q-6 -11 0 -11 Q7 -11 7 -5 Q7 0 0 4 L-7 11 H8",
    3: "M-7 -9 Q-3 -12 1 -11 Q7 -10 7 -5 Q7 0 0 0 Q8 0 8 5.5 Q8 11 0 11 Q-5 11 -8 8",
}


def digit(n, x, y, size, color, sw):
    k = size / 22.0
    return ('<path d="%s" transform="translate(%s %s) scale(%s)" fill="none" stroke="%s" stroke-width="%s" '
            'stroke-linecap="round" stroke-linejoin="round"/>' % (DIGITS[n], f(x), f(y), f(k), color, f(sw / k)))


def hand_bell(x, y, s, ang=-20):
    """A ringing hand bell, the middle of its handle at (x, y)."""
    out = ['<g transform="translate(%s %s) rotate(%s) scale(%s) translate(0 18)">' % (f(x), f(y), f(ang), f(s))]
    out.append('<rect x="-7" y="-34" width="14" height="34" rx="6" fill="%s" stroke="#7a3a00" stroke-width="1.5"/>'
               % ORANGE_DARK)
    out.append('<path d="M-8 0 Q-30 6 -32 40 Q-34 58 -44 64 H44 Q34 58 32 40 Q30 6 8 0 Z" fill="url(#bellGold)" '
               'stroke="#a86a00" stroke-width="2.5" stroke-linejoin="round"/>')
    out.append('<rect x="-48" y="60" width="96" height="11" rx="5.5" fill="%s" stroke="#a86a00" stroke-width="2"/>'
               % "#f2b41c")
    out.append('<path d="M-16 12 Q-24 30 -22 48" fill="none" stroke="#fff6cc" stroke-width="5" stroke-linecap="round" '
               'opacity="0.85"/>')
    out.append('<circle cx="0" cy="76" r="8" fill="%s" stroke="#a86a00" stroke-width="2"/>' % ORANGE)
    # ring waves
    for side in (-1, 1):
        for i, r in enumerate((58, 74)):
            out.append('<path d="M%s %s Q%s %s %s %s" fill="none" stroke="%s" stroke-width="4" stroke-linecap="round" '
                       'opacity="%s"/>' % (f(side * r), f(10), f(side * (r + 12)), f(36), f(side * r), f(62),
                                           YELLOW, f(0.9 - i * 0.35)))
    out.append('</g>')
    return "".join(out)


def confetti(rng, boxes, count, avoid, colors=(ORANGE, ORANGE_LIGHT, CYAN, GREEN, CORAL, YELLOW, "#ffffff")):
    out = []
    placed = 0
    tries = 0
    while placed < count and tries < count * 40:
        tries += 1
        bx0, by0, bx1, by1 = boxes[rng.randrange(len(boxes))]
        x = rng.uniform(bx0, bx1)
        y = rng.uniform(by0, by1)
        if any(a0 - 8 <= x <= a1 + 8 and b0 - 8 <= y <= b1 + 8 for a0, b0, a1, b1 in avoid):
            continue
        c = rng.choice(colors)
        kind = rng.random()
        rot = rng.uniform(0, 180)
        if kind < 0.45:
            w, h = rng.uniform(7, 13), rng.uniform(3.5, 6)
            out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="1.2" fill="%s" transform="rotate(%s %s %s)"/>'
                       % (f(x - w / 2), f(y - h / 2), f(w), f(h), c, f(rot), f(x), f(y)))
        elif kind < 0.75:
            out.append('<circle cx="%s" cy="%s" r="%s" fill="%s"/>' % (f(x), f(y), f(rng.uniform(2.5, 4.5)), c))
        else:
            L = rng.uniform(14, 24)
            out.append('<path d="M%s %s q%s %s %s %s q%s %s %s %s" fill="none" stroke="%s" stroke-width="3" '
                       'stroke-linecap="round" transform="rotate(%s %s %s)"/>'
                       % (f(x - L / 2), f(y), f(L / 4), f(-6), f(L / 2), 0, f(L / 4), f(6), f(L / 2), 0, c,
                          f(rot), f(x), f(y)))
        placed += 1
    return "".join(out)


def stars(rng, count, area, avoid, max_r=1.5):
    out = []
    x0, y0, x1, y1 = area
    placed, tries = 0, 0
    while placed < count and tries < count * 50:
        tries += 1
        x, y = rng.uniform(x0, x1), rng.uniform(y0, y1)
        if any(a0 - 6 <= x <= a1 + 6 and b0 - 6 <= y <= b1 + 6 for a0, b0, a1, b1 in avoid):
            continue
        r = rng.uniform(0.5, max_r)
        op = rng.uniform(0.18, 0.55)
        out.append('<circle cx="%s" cy="%s" r="%s" fill="#d6e6ff" opacity="%s"/>' % (f(x), f(y), f(r), f(op)))
        if rng.random() < 0.08:
            L = rng.uniform(4, 7)
            out.append('<path d="M%s %s h%s M%s %s v%s" stroke="%s" stroke-width="1" stroke-linecap="round" opacity="%s"/>'
                       % (f(x - L), f(y), f(2 * L), f(x), f(y - L), f(2 * L), CYAN_GLOW, f(op * 0.8)))
        placed += 1
    return "".join(out)


# ---------------------------------------------------------------------------
# Backgrounds
# ---------------------------------------------------------------------------

def sky(doc, glow_cx=512, glow_cy=300, glow_r=620):
    lin(doc, "sky", [(0, NAVY_DEEP), (0.45, NAVY), (1, "#0f1d3b")])
    rad(doc, "skyGlow", [(0, NAVY_LIGHT, 0.9), (0.55, NAVY_LIGHT, 0.35), (1, NAVY_LIGHT, 0)],
        cx=glow_cx, cy=glow_cy, r=glow_r, units="userSpaceOnUse")
    rad(doc, "vignette", [(0, "#000000", 0), (0.62, "#000000", 0), (1, "#02050d", 0.6)],
        cx=512, cy=384, r=700, units="userSpaceOnUse")
    doc.add('<rect width="1024" height="768" fill="url(#sky)"/>')
    doc.add('<rect width="1024" height="768" fill="url(#skyGlow)"/>')


def ambient(doc):
    """Low light from below and a couple of out-of-focus glints: depth without clutter."""
    rad(doc, "horizon", [(0, CYAN, 0.16), (0.5, CYAN, 0.05), (1, CYAN, 0)])
    doc.add('<ellipse cx="512" cy="790" rx="640" ry="150" fill="url(#horizon)"/>')
    rad(doc, "bokeh", [(0, CYAN_GLOW, 0.12), (1, CYAN_GLOW, 0)])
    for x, y, r in ((990, 250, 60), (30, 720, 70), (1000, 600, 40)):
        doc.add('<circle cx="%s" cy="%s" r="%s" fill="url(#bokeh)"/>' % (f(x), f(y), f(r)))


def vignette(doc):
    doc.add('<rect width="1024" height="768" fill="url(#vignette)"/>')


def panel(doc, x, y, w, h, r=22, fill=PANEL, opacity=1, rim=PANEL_RIM, shadow=True):
    lin(doc, "panelFill", [(0, "#1a3059"), (0.25, PANEL), (1, "#13234a")])
    shadow_filter(doc, "panelShadow", 10, 8, 0.55)
    sh = ' filter="url(#panelShadow)"' if shadow else ""
    doc.add('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#panelFill)" fill-opacity="%s" '
            'stroke="%s" stroke-width="1"%s/>' % (f(x + 0.5), f(y + 0.5), f(w - 1), f(h - 1), f(r), f(opacity), rim, sh))
    # a faint inner highlight line along the top edge
    doc.add('<path d="M%s %s H%s" stroke="#ffffff" stroke-opacity="0.07" stroke-width="1.5" stroke-linecap="round"/>'
            % (f(x + r), f(y + 2.5), f(x + w - r)))


def tray(doc, x, y, w, h, r=16):
    """A recessed strip where silver buttons sit."""
    lin(doc, "trayFill", [(0, "#081226"), (1, "#0f1c3a")])
    doc.add('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#trayFill)" fill-opacity="0.85" '
            'stroke="%s" stroke-opacity="0.8" stroke-width="1"/>' % (f(x + 0.5), f(y + 0.5), f(w - 1), f(h - 1), f(r),
                                                                      PANEL_RIM))
    doc.add('<path d="M%s %s H%s" stroke="#000000" stroke-opacity="0.35" stroke-width="2" stroke-linecap="round"/>'
            % (f(x + r), f(y + 2), f(x + w - r)))


def grid(doc, x, y, w, h, step=28, opacity=0.07, r=14):
    cid = doc.uid("gridClip")
    doc.add('<clipPath id="%s"><rect x="%s" y="%s" width="%s" height="%s" rx="%s"/></clipPath>'
            % (cid, f(x), f(y), f(w), f(h), f(r)))
    lines = []
    gx = x + (w % step) / 2
    while gx <= x + w:
        lines.append("M%s %s V%s" % (f(gx), f(y), f(y + h)))
        gx += step
    gy = y + (h % step) / 2
    while gy <= y + h:
        lines.append("M%s %s H%s" % (f(x), f(gy), f(x + w)))
        gy += step
    doc.add('<g clip-path="url(#%s)"><rect x="%s" y="%s" width="%s" height="%s" fill="#0a1531" fill-opacity="0.55"/>'
            '<path d="%s" stroke="%s" stroke-opacity="%s" stroke-width="1"/></g>'
            % (cid, f(x), f(y), f(w), f(h), " ".join(lines), CYAN, f(opacity)))
    doc.add('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="none" stroke="%s" stroke-opacity="0.5"/>'
            % (f(x + 0.5), f(y + 0.5), f(w - 1), f(h - 1), f(r), PANEL_RIM))


def speech_card(doc, x, y, w, h, tail_x, tail_y, r=20, side="left"):
    """A soft card for the help text, with a little tail toward the mascot."""
    lin(doc, "cardFill", [(0, "#142a52", 0.9), (1, "#0f1f40", 0.9)])
    if side == "left":
        ty0, ty1 = y + h * 0.48, y + h * 0.66
        d = ("M%s %s H%s Q%s %s %s %s V%s Q%s %s %s %s H%s Q%s %s %s %s V%s L%s %s L%s %s V%s Q%s %s %s %s Z" % (
            f(x + r), f(y), f(x + w - r), f(x + w), f(y), f(x + w), f(y + r),
            f(y + h - r), f(x + w), f(y + h), f(x + w - r), f(y + h),
            f(x + r), f(x), f(y + h), f(x), f(y + h - r),
            f(ty1), f(tail_x), f(tail_y), f(x), f(ty0), f(y + r), f(x), f(y), f(x + r), f(y)))
    else:
        ty0, ty1 = y + h * 0.3, y + h * 0.5
        d = ("M%s %s H%s Q%s %s %s %s V%s L%s %s L%s %s V%s Q%s %s %s %s H%s Q%s %s %s %s V%s Q%s %s %s %s Z" % (
            f(x + r), f(y), f(x + w - r), f(x + w), f(y), f(x + w), f(y + r),
            f(ty0), f(tail_x), f(tail_y), f(x + w), f(ty1),
            f(y + h - r), f(x + w), f(y + h), f(x + w - r), f(y + h),
            f(x + r), f(x), f(y + h), f(x), f(y + h - r),
            f(y + r), f(x), f(y), f(x + r), f(y)))
    shadow_filter(doc, "cardShadow", 8, 6, 0.5)
    doc.add('<path d="%s" fill="url(#cardFill)" stroke="%s" stroke-width="1.2" stroke-linejoin="round" '
            'filter="url(#cardShadow)"/>' % (d, PANEL_RIM))


def mascot_badge(doc, cx, cy, s):
    """Just the head, for the corner of the work screens."""
    doc.add('<circle cx="%s" cy="%s" r="%s" fill="%s" opacity="0.35" filter="url(#haloBlur)"/>'
            % (f(cx), f(cy), f(95 * s), CYAN))
    doc.add('<g filter="url(#robotShadow)">%s</g>' % head(doc, cx, cy, s, mood="smile", tilt=-6, antenna_lean=6))


def header_rule(doc, x0, x1, y):
    lin(doc, "ruleGrad", [(0, ORANGE, 0.85), (0.5, ORANGE, 0.35), (1, ORANGE, 0)], x1=0, y1=0, x2=1, y2=0)
    doc.add('<rect x="%s" y="%s" width="%s" height="2" rx="1" fill="url(#ruleGrad)"/>' % (f(x0), f(y), f(x1 - x0)))


def background_common_parts(doc):
    all_robot_paints(doc)
    blur_filter(doc, "haloBlur", 28)
    shadow_filter(doc, "robotShadow", 6, 6, 0.5)


def gen_common_bg():
    doc = Doc(1024, 768)
    background_common_parts(doc)
    sky(doc, 260, 140, 700)
    rng = random.Random(11)
    avoid = [(50, 30, 470, 230), (480, 80, 960, 170), (76, 270, 476, 684), (494, 254, 958, 694), (690, 696, 950, 766)]
    doc.add(stars(rng, 90, (0, 0, 1024, 768), avoid))
    ambient(doc)
    vignette(doc)
    speech_card(doc, 226, 46, 240, 178, 206, 150)
    mascot_badge(doc, 138, 140, 0.5)
    header_rule(doc, 490, 950, 176)
    panel(doc, 72, 278, 410, 400)
    panel(doc, 498, 258, 456, 432)
    tray(doc, 700, 699, 244, 64)
    return doc


def gen_scenario_bg():
    doc = Doc(1024, 768)
    background_common_parts(doc)
    sky(doc, 260, 140, 700)
    rng = random.Random(23)
    avoid = [(50, 30, 470, 250), (470, 70, 960, 140), (76, 270, 476, 684), (478, 178, 962, 700), (500, 696, 820, 766)]
    doc.add(stars(rng, 90, (0, 0, 1024, 768), avoid))
    ambient(doc)
    vignette(doc)
    speech_card(doc, 226, 56, 242, 170, 206, 150)
    mascot_badge(doc, 138, 146, 0.5)
    header_rule(doc, 488, 950, 150)
    panel(doc, 84, 276, 384, 400)
    # one workspace card: the tab bar on top, the editing area below
    panel(doc, 484, 182, 472, 510)
    lin(doc, "tabBar", [(0, "#0b1730"), (1, "#0e1c3a")])
    doc.add('<rect x="492" y="190" width="456" height="80" rx="16" fill="url(#tabBar)" fill-opacity="0.9" '
            'stroke="%s" stroke-opacity="0.7"/>' % PANEL_RIM)
    grid(doc, 506, 280, 436, 400, step=28, opacity=0.08, r=14)
    tray(doc, 504, 700, 310, 64)
    return doc


def gen_mainpage_bg():
    doc = Doc(1024, 768)
    background_common_parts(doc)
    lin(doc, "sky", [(0, NAVY_DEEP), (0.5, NAVY), (1, "#10204a")])
    rad(doc, "skyGlow", [(0, "#2a4b92", 0.9), (0.35, "#223f7c", 0.6), (0.7, NAVY_LIGHT, 0.25), (1, NAVY_LIGHT, 0)],
        cx=300, cy=540, r=600, units="userSpaceOnUse")
    rad(doc, "vignette", [(0, "#000000", 0), (0.62, "#000000", 0), (1, "#02050d", 0.6)],
        cx=512, cy=384, r=700, units="userSpaceOnUse")
    doc.add('<rect width="1024" height="768" fill="url(#sky)"/>')
    doc.add('<rect width="1024" height="768" fill="url(#skyGlow)"/>')
    rng = random.Random(5)
    avoid = [(40, 25, 100, 80), (580, 150, 884, 540), (670, 690, 790, 760)]
    doc.add(stars(rng, 130, (0, 0, 1024, 700), avoid, max_r=1.7))
    # a friendly ringed planet peeking in at the top right
    rad(doc, "planet", [(0, "#3a63b0"), (0.65, "#1f3c7a"), (1, "#152b5c")], cx=0.35, cy=0.3, r=0.8)
    ring = ('<g transform="translate(955 96) rotate(-16)" fill="none" stroke="%s" stroke-linecap="round">'
            '<path d="M-190 0 A190 30 0 0 1 190 0" stroke-opacity="%s" stroke-width="%s"/></g>')
    doc.add(ring % (CYAN, "0.18", "5"))
    doc.add('<circle cx="955" cy="96" r="112" fill="url(#planet)" opacity="0.75"/>')
    doc.add('<path d="M880 60 Q930 20 990 34" fill="none" stroke="#ffffff" stroke-opacity="0.12" stroke-width="10" '
            'stroke-linecap="round"/>')
    doc.add('<circle cx="905" cy="140" r="12" fill="#0f2450" opacity="0.35"/>'
            '<circle cx="950" cy="168" r="7" fill="#0f2450" opacity="0.35"/>')
    doc.add(ring.replace('A190 30 0 0 1 190 0', 'A190 30 0 0 0 190 0') % (CYAN, "0.35", "5"))
    # one shooting star for a bit of life in the empty sky
    lin(doc, "streak", [(0, "#ffffff", 0), (1, "#ffffff", 0.7)], x1=0, y1=0, x2=1, y2=0)
    doc.add('<g transform="translate(455 118) rotate(152)"><rect x="0" y="-1" width="130" height="2" rx="1" '
            'fill="url(#streak)"/><circle cx="130" cy="0" r="2.2" fill="#ffffff" filter="url(#glow)"/></g>')
    # floor: a soft glow and perspective lines where the robot rolls in
    rad(doc, "floorGlow", [(0, CYAN, 0.28), (0.5, CYAN, 0.08), (1, CYAN, 0)],
        cx=298, cy=768, r=360, units="userSpaceOnUse", extra=' gradientTransform="translate(298 768) scale(1 0.32) translate(-298 -768)"')
    doc.add('<rect x="0" y="600" width="1024" height="168" fill="url(#floorGlow)"/>')
    lines = []
    vx, vy = 298, 560
    for i in range(-9, 12):
        bx = 298 + i * 120
        lines.append("M%s %s L%s %s" % (f(vx + (bx - vx) * 0.55), f(vy + (768 - vy) * 0.55), f(bx), "768"))
    for yy in (676, 700, 730, 766):
        lines.append("M0 %s H1024" % f(yy))
    lin(doc, "floorFade", [(0, "#ffffff", 0), (1, "#ffffff", 1)])
    doc.define("floorMask", '<mask id="floorMask"><rect x="0" y="650" width="1024" height="118" fill="url(#floorFade)"/></mask>')
    doc.add('<path d="%s" stroke="%s" stroke-opacity="0.1" stroke-width="1.2" mask="url(#floorMask)"/>'
            % (" ".join(lines), CYAN))
    vignette(doc)
    # the menu's own card
    panel(doc, 586, 150, 292, 386, r=26, opacity=0.8, shadow=False)
    tray(doc, 672, 696, 120, 60)
    return doc


# ---------------------------------------------------------------------------
# Illustrations
# ---------------------------------------------------------------------------

def gen_logo_main():
    doc = Doc(596, 584)
    all_robot_paints(doc)
    shadow_filter(doc, "robotShadow", 7, 8, 0.5)
    doc.add('<g filter="url(#robotShadow)">%s</g>' % build_rover(doc, 298, 500, 1.18, wave=True, mood="smile"))
    return doc


def stage(doc, w, h, key):
    """A dark rounded stage with a spotlight cone and a floor pool of light."""
    rad(doc, "stageBg", [(0, "#1e3a72"), (0.55, "#14284f"), (1, "#0a1430")], cx=0.5, cy=0.35, r=0.75)
    lin(doc, "cone", [(0, "#e8f6ff", 0.2), (1, "#e8f6ff", 0.03)])
    rad(doc, "pool", [(0, CYAN, 0.35), (0.6, CYAN, 0.1), (1, CYAN, 0)])
    doc.define("stageClip", '<clipPath id="stageClip"><rect x="1" y="1" width="%s" height="%s" rx="24"/></clipPath>'
               % (f(w - 2), f(h - 2)))
    doc.add('<g clip-path="url(#stageClip)">')
    doc.add('<rect width="%s" height="%s" fill="url(#stageBg)"/>' % (f(w), f(h)))
    rng = random.Random(key)
    doc.add(stars(rng, 26, (10, 10, w - 10, h * 0.6), [(w * 0.3, 0, w * 0.7, h)], 1.2))
    doc.add('<path d="M%s 0 H%s L%s %s H%s Z" fill="url(#cone)" filter="url(#coneBlur)"/>'
            % (f(w * 0.42), f(w * 0.58), f(w * 0.86), f(h - 40), f(w * 0.14)))
    doc.add('<ellipse cx="%s" cy="%s" rx="%s" ry="%s" fill="url(#pool)"/>' % (f(w / 2), f(h - 40), f(w * 0.42), f(28)))
    lin(doc, "stageFloor", [(0, "#0a1430", 0), (1, "#050b1c", 0.6)])
    doc.add('<rect x="0" y="%s" width="%s" height="%s" fill="url(#stageFloor)"/>' % (f(h - 60), f(w), f(60)))
    doc.add('</g>')
    doc.add('<rect x="1" y="1" width="%s" height="%s" rx="24" fill="none" stroke="%s" stroke-width="1.5"/>'
            % (f(w - 2), f(h - 2), PANEL_RIM))


def gen_pim(kind):
    doc = Doc(380, 340)
    all_robot_paints(doc)
    blur_filter(doc, "coneBlur", 6)
    shadow_filter(doc, "robotShadow", 5, 5, 0.5)
    stage(doc, 380, 340, {"A": 1, "B": 2, "C": 3}[kind])
    doc.add('<g clip-path="url(#stageClip)"><g filter="url(#robotShadow)">')
    if kind == "A":
        doc.add(build_rover(doc, 190, 304, 0.72))
    elif kind == "B":
        doc.add(build_walker(doc, 190, 310, 0.57))
    else:
        doc.add(build_tank(doc, 175, 306, 0.66, beam=190))
    doc.add('</g></g>')
    return doc


def robot_portrait(doc, kind, cx, gy, s):
    if kind == 1:
        return build_rover(doc, cx, gy, s * 0.86)
    if kind == 2:
        return build_walker(doc, cx, gy, s * 0.78)
    return build_tank(doc, cx, gy, s * 0.92, beam=90)


TILE_LOOKS = {
    # fill top, fill bottom, rim, rim width
    "normal": ("#2d4a7a", "#223a63", "#3d5d93", 1.2),
    "enter": ("#3f6fb5", "#2f5596", CYAN, 2),
    "selected": ("#ff9a2e", "#e06d00", "#ffc078", 2),
}


def gen_lazer(kind, look):
    doc = Doc(105, 105)
    all_robot_paints(doc)
    top, bottom, rim, rw = TILE_LOOKS[look]
    lin(doc, "tile", [(0, top), (1, bottom)])
    shadow_filter(doc, "tileShadow", 2.5, 2.5, 0.5)
    if look == "enter":
        doc.add('<rect x="3" y="3" width="99" height="99" rx="20" fill="none" stroke="%s" stroke-width="5" '
                'opacity="0.55" filter="url(#tileGlow)"/>' % CYAN)
        blur_filter(doc, "tileGlow", 2)
    if look == "selected":
        inset_filter(doc, "pressed", 3, 2.5, 0.6)
        doc.add('<rect x="6" y="7" width="93" height="92" rx="18" fill="url(#tile)" stroke="%s" stroke-width="%s" '
                'filter="url(#pressed)"/>' % (rim, f(rw)))
    else:
        doc.add('<rect x="6" y="5" width="93" height="92" rx="18" fill="url(#tile)" stroke="%s" stroke-width="%s" '
                'filter="url(#tileShadow)"/>' % (rim, f(rw)))
        doc.add('<path d="M22 8 H83 Q96 8 96 20" fill="none" stroke="#ffffff" stroke-opacity="0.28" stroke-width="2" '
                'stroke-linecap="round"/>')
    # little stage inside the tile
    dy = 2 if look == "selected" else 0
    rad(doc, "miniStage", [(0, "#1e3a72"), (1, "#0b1632")], cx=0.5, cy=0.3, r=0.8)
    doc.add('<rect x="13" y="%s" width="79" height="78" rx="13" fill="url(#miniStage)" stroke="#0a1228" '
            'stroke-width="1"/>' % f(12 + dy))
    doc.define("miniClip", '<clipPath id="miniClip"><rect x="13" y="%s" width="79" height="78" rx="13"/></clipPath>'
               % f(12 + dy))
    rad(doc, "miniPool", [(0, CYAN, 0.4), (1, CYAN, 0)])
    doc.add('<g clip-path="url(#miniClip)">')
    doc.add('<ellipse cx="52.5" cy="%s" rx="34" ry="7" fill="url(#miniPool)"/>' % f(84 + dy))
    doc.add(robot_portrait(doc, kind, 52.5 if kind != 3 else 50, 86 + dy, 0.2))
    doc.add('</g>')
    # number badge
    bx, by = 84, 86 + dy
    badge_fill = ORANGE if look != "selected" else "#ffffff"
    badge_ink = "#ffffff" if look != "selected" else ORANGE_DARK
    doc.add('<circle cx="%s" cy="%s" r="12" fill="%s" stroke="%s" stroke-width="2" filter="url(#tileShadow)"/>'
            % (f(bx), f(by), badge_fill, "#0c1730" if look != "selected" else ORANGE_DARK))
    doc.add(digit(kind, bx, by, 13, badge_ink, 2.6))
    return doc


def gen_confirmation():
    doc = Doc(1024, 768)
    background_common_parts(doc)
    sky(doc, 700, 380, 620)
    rng = random.Random(77)
    bubble = (268, 280, 452, 420)
    title = (480, 84, 770, 165)
    doc.add(stars(rng, 70, (0, 0, 1024, 768), [bubble, title, (520, 170, 980, 768)]))
    # rays of light behind the robot
    rays = []
    cx, cy = 720, 380
    for i in range(14):
        a0 = i * 2 * math.pi / 14
        a1 = a0 + 0.16
        rays.append("M%s %s L%s %s L%s %s Z" % (f(cx), f(cy), f(cx + math.cos(a0) * 700), f(cy + math.sin(a0) * 700),
                                                f(cx + math.cos(a1) * 700), f(cy + math.sin(a1) * 700)))
    rad(doc, "rayFade", [(0, "#ffffff", 0.09), (0.6, "#ffffff", 0.03), (1, "#ffffff", 0)],
        cx=cx, cy=cy, r=560, units="userSpaceOnUse")
    doc.add('<path d="%s" fill="url(#rayFade)"/>' % " ".join(rays))
    doc.add('<circle cx="720" cy="420" r="240" fill="%s" opacity="0.18" filter="url(#haloBlur)"/>' % CYAN)
    # floor glow
    rad(doc, "floorGlow", [(0, CYAN, 0.3), (0.6, CYAN, 0.08), (1, CYAN, 0)])
    doc.add('<ellipse cx="720" cy="740" rx="330" ry="56" fill="url(#floorGlow)"/>')
    vignette(doc)
    # balloons on the left
    for bx, by, c, c2 in ((92, 250, ORANGE, ORANGE_LIGHT), (178, 190, CYAN, CYAN_GLOW), (150, 340, GREEN, "#8ff0bb")):
        gid = doc.uid("balloon")
        rad(doc, gid, [(0, "#ffffff", 0.9), (0.25, c2), (1, c)], cx=0.38, cy=0.3, r=0.75)
        doc.add('<path d="M%s %s Q%s %s %s %s" fill="none" stroke="#cfd8e6" stroke-opacity="0.6" stroke-width="1.5"/>'
                % (f(bx), f(by + 58), f(bx - 22), f(by + 150), f(bx + 6), f(by + 260)))
        doc.add('<ellipse cx="%s" cy="%s" rx="42" ry="52" fill="url(#%s)" filter="url(#robotShadow)"/>' % (f(bx), f(by), gid))
        doc.add('<path d="M%s %s l-6 9 h12 z" fill="%s"/>' % (f(bx), f(by + 50), c))
    # the robot, arms up, bell ringing
    s = 1.05
    doc.add('<g filter="url(#robotShadow)">')
    doc.add(celebrating_robot(doc, 720, 742, s))
    doc.add('</g>')
    doc.add(confetti(rng, [(0, 0, 1024, 768)], 135,
                     [bubble, title, (560, 190, 880, 720), (440, 380, 600, 560), (452, 290, 520, 345), (40, 150, 230, 420), (0, 690, 1024, 768)]))
    # speech bubble for the message, tail toward the robot
    lin(doc, "bubbleFill", [(0, "#132a55"), (1, "#0d1d3e")])
    shadow_filter(doc, "bubbleShadow", 8, 6, 0.55)
    x0, y0, x1, y1 = bubble
    r = 22
    d = ("M%s %s H%s Q%s %s %s %s V%s L%s %s L%s %s V%s Q%s %s %s %s H%s Q%s %s %s %s V%s Q%s %s %s %s Z" % (
        f(x0 + r), f(y0), f(x1 - r), f(x1), f(y0), f(x1), f(y0 + r),
        f(y0 + 34), f(x1 + 60), f(y0 + 30), f(x1), f(y0 + 60),
        f(y1 - r), f(x1), f(y1), f(x1 - r), f(y1),
        f(x0 + r), f(x0), f(y1), f(x0), f(y1 - r),
        f(y0 + r), f(x0), f(y0), f(x0 + r), f(y0)))
    doc.add('<path d="%s" fill="url(#bubbleFill)" stroke="%s" stroke-width="2.5" stroke-linejoin="round" '
            'filter="url(#bubbleShadow)"/>' % (d, ORANGE))
    header_rule(doc, 490, 940, 170)
    return doc


def celebrating_robot(doc, cx, gy, s):
    """The rover with both arms up, one ringing a bell."""
    wr = 58 * s
    wy = gy - wr
    tw, th = 190 * s, 150 * s
    ttop = wy - th + 18 * s
    out = [floor_shadow(cx, gy - 2 * s, 150 * s, 14 * s)]
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#jointAcross)" stroke="#4f5a6d" '
               'stroke-width="%s"/>' % (f(cx - 110 * s), f(wy - 12 * s), f(220 * s), f(24 * s), f(10 * s), f(2 * s)))
    # right arm (viewer's right) up, waving
    out.append(arm(doc, cx + tw / 2 - 6 * s, ttop + 28 * s, cx + tw / 2 + 64 * s, ttop - 16 * s,
                   cx + tw / 2 + 84 * s, ttop - 96 * s, s, 22 * s))
    # left arm up holding the bell
    lhx, lhy = cx - tw / 2 - 86 * s, ttop - 100 * s
    out.append(arm(doc, cx - tw / 2 + 6 * s, ttop + 28 * s, cx - tw / 2 - 64 * s, ttop - 14 * s,
                   lhx, lhy, s, 22 * s))
    out.append(hand_bell(lhx, lhy, 1.05 * s, ang=30))
    out.append(hand(lhx, lhy, 22 * s, -120, s))
    out.append(torso(doc, cx, ttop, tw, th, s))
    out.append(wheel(cx - 92 * s, wy, wr, s))
    out.append(wheel(cx + 92 * s, wy, wr, s))
    out.append(neck(cx, ttop - 18 * s, s, 24))
    out.append(head(doc, cx, ttop - 87 * s, s, mood="joy", tilt=5, antenna_lean=-10))
    return "".join(out)


# ---------------------------------------------------------------------------
# Main-menu tiles
# ---------------------------------------------------------------------------

MENU_LOOKS = {
    # badge top, badge bottom, rim colour, rim width, led colour, led on
    "normal": ("#2d4a7a", "#223a63", "#3d5d93", 1.2, JOINT, False),
    "focused": ("#3f6fb5", "#2f5596", CYAN, 2, CYAN, True),
    "selected": ("#ff9a2e", "#e06d00", ORANGE_LIGHT, 2, ORANGE, True),
}


def icon_bricks(cx, cy):
    out = []
    layers = [(-6, 18, SHELL, SHELL_SHADE, JOINT), (6, 1, CYAN, "#1d9cc4", "#ffffff"),
             (-2, -16, ORANGE, ORANGE_DARK, "#ffffff")]
    for dx, dy, c1, c2, stud in layers:
        x, y = cx + dx - 26, cy + dy - 9
        out.append('<path d="M%s %s h10 v-3 h10 v3 h22 a5 5 0 0 1 5 5 v10 a5 5 0 0 1 -5 5 h-22 v3 h-10 v-3 h-10 '
                   'a5 5 0 0 1 -5 -5 v-10 a5 5 0 0 1 5 -5 z" fill="%s" stroke="#0b1020" stroke-width="1.5" '
                   'stroke-linejoin="round"/>' % (f(x + 5), f(y), c1))
        out.append('<path d="M%s %s h37" stroke="#ffffff" stroke-opacity="0.45" stroke-width="2" stroke-linecap="round"/>'
                   % (f(x + 6), f(y + 3)))
        out.append('<path d="M%s %s h37" stroke="%s" stroke-opacity="0.8" stroke-width="2" stroke-linecap="round"/>'
                   % (f(x + 6), f(y + 15.5), c2))
        out.append('<circle cx="%s" cy="%s" r="2.3" fill="%s" opacity="0.9"/>' % (f(x + 42), f(y + 9), stud))
    return "".join(out)


def icon_clock(cx, cy):
    out = []
    for side in (-1, 1):
        bx, by = cx + side * 17, cy - 20
        out.append('<path d="M%s %s a13 13 0 0 1 %s %s z" fill="url(#bellGold)" stroke="#a86a00" stroke-width="1.5" '
                   'transform="rotate(%s %s %s)"/>' % (f(bx - 12), f(by + 4), f(24), 0, f(side * 32), f(bx), f(by)))
    for side in (-1, 1):
        out.append('<path d="M%s %s l%s 9" stroke="%s" stroke-width="4" stroke-linecap="round"/>'
                   % (f(cx + side * 14), f(cy + 18), f(side * 5), JOINT))
    out.append('<circle cx="%s" cy="%s" r="23" fill="url(#orangeBall)" stroke="%s" stroke-width="1.5"/>'
               % (f(cx), f(cy + 2), ORANGE_DARK))
    out.append('<circle cx="%s" cy="%s" r="17.5" fill="url(#shell)" stroke="#b65500" stroke-width="1"/>'
               % (f(cx), f(cy + 2)))
    for i in range(12):
        a = i * math.pi / 6
        r0 = 13.5 if i % 3 else 12
        out.append('<path d="M%s %s L%s %s" stroke="%s" stroke-width="%s" stroke-linecap="round"/>'
                   % (f(cx + math.cos(a) * r0), f(cy + 2 + math.sin(a) * r0), f(cx + math.cos(a) * 15.5),
                      f(cy + 2 + math.sin(a) * 15.5), VISOR, "1.8" if i % 3 == 0 else "1"))
    out.append('<path d="M%s %s L%s %s M%s %s L%s %s" stroke="%s" stroke-width="2.6" stroke-linecap="round"/>'
               % (f(cx), f(cy + 2), f(cx), f(cy - 9), f(cx), f(cy + 2), f(cx + 8), f(cy + 6), VISOR))
    out.append('<circle cx="%s" cy="%s" r="2.4" fill="%s"/>' % (f(cx), f(cy + 2), ORANGE))
    out.append('<rect x="%s" y="%s" width="6" height="5" rx="1.5" fill="%s"/>' % (f(cx - 3), f(cy - 24), JOINT))
    return "".join(out)


def icon_usb(cx, cy):
    out = []
    # two round arrows circling the plug
    for a0, a1, col in ((200, 330, CYAN), (20, 150, ORANGE)):
        r = 27
        x0, y0 = cx + r * math.cos(math.radians(a0)), cy + r * math.sin(math.radians(a0))
        x1, y1 = cx + r * math.cos(math.radians(a1)), cy + r * math.sin(math.radians(a1))
        out.append('<path d="M%s %s A%s %s 0 0 1 %s %s" fill="none" stroke="%s" stroke-width="4.5" '
                   'stroke-linecap="round"/>' % (f(x0), f(y0), r, r, f(x1), f(y1), col))
        t = math.radians(a1)
        tx, ty = -math.sin(t), math.cos(t)  # direction of travel
        nx, ny = math.cos(t), math.sin(t)
        tip = (x1 + tx * 8, y1 + ty * 8)
        p1 = (x1 + nx * 7, y1 + ny * 7)
        p2 = (x1 - nx * 7, y1 - ny * 7)
        out.append('<path d="M%s %s L%s %s L%s %s Z" fill="%s" stroke="%s" stroke-width="1.5" stroke-linejoin="round"/>'
                   % (f(tip[0]), f(tip[1]), f(p1[0]), f(p1[1]), f(p2[0]), f(p2[1]), col, col))
    # the plug
    out.append('<rect x="%s" y="%s" width="18" height="14" rx="2" fill="url(#jointAcross)" stroke="#0b1020" '
               'stroke-width="1.2"/>' % (f(cx - 9), f(cy - 19)))
    out.append('<rect x="%s" y="%s" width="4" height="4" fill="%s"/><rect x="%s" y="%s" width="4" height="4" fill="%s"/>'
               % (f(cx - 6), f(cy - 15), VISOR, f(cx + 2), f(cy - 15), VISOR))
    out.append('<rect x="%s" y="%s" width="24" height="22" rx="6" fill="url(#shell)" stroke="#0b1020" '
               'stroke-width="1.2"/>' % (f(cx - 12), f(cy - 6)))
    out.append('<rect x="%s" y="%s" width="8" height="10" rx="2" fill="%s"/>' % (f(cx - 4), f(cy + 16), JOINT))
    out.append('<circle cx="%s" cy="%s" r="3" fill="%s" filter="url(#glow)"/>' % (f(cx), f(cy + 4), GREEN))
    return "".join(out)


def gen_menu_tile(kind, look):
    doc = Doc(250, 93)
    robot_paints(doc)
    top, bottom, rim, rw, led, led_on = MENU_LOOKS[look]
    lin(doc, "badge", [(0, top), (1, bottom)])
    if look == "selected":
        lin(doc, "body", [(0, "#3a2412"), (1, "#1f150e")])
    else:
        lin(doc, "body", [(0, "#16294f"), (1, "#0e1b38")])
    shadow_filter(doc, "tileShadow", 3, 3, 0.55)
    dy = 1.5 if look == "selected" else 0
    if look == "focused":
        blur_filter(doc, "rimGlow", 3)
        doc.add('<rect x="4" y="4" width="242" height="84" rx="22" fill="none" stroke="%s" stroke-width="4" '
                'opacity="0.7" filter="url(#rimGlow)"/>' % CYAN)
    body_filter = "tileShadow"
    if look == "selected":
        inset_filter(doc, "pressed", 3, 2.5, 0.75)
        body_filter = "pressed"
    doc.add('<rect x="6" y="%s" width="238" height="80" rx="20" fill="url(#body)" stroke="%s" stroke-width="%s" '
            'filter="url(#%s)"/>' % (f(5 + dy), rim, f(rw), body_filter))
    if look != "selected":
        doc.add('<path d="M30 %s H222" stroke="#ffffff" stroke-opacity="0.12" stroke-width="1.5" stroke-linecap="round"/>'
                % f(8 + dy))
    # the icon's round badge
    doc.add('<circle cx="46" cy="%s" r="34" fill="url(#badge)" stroke="%s" stroke-width="%s" filter="url(#tileShadow)"/>'
            % (f(45.5 + dy), rim if look != "normal" else "#4a6ca6", f(rw)))
    rad(doc, "well", [(0, "#22407a"), (0.7, "#14284f"), (1, "#0c1834")], cx=0.45, cy=0.35, r=0.7)
    doc.add('<circle cx="46" cy="%s" r="28" fill="url(#well)" stroke="#0a1430" stroke-width="1"/>' % f(45.5 + dy))
    doc.add('<path d="M16 %s A31 31 0 0 1 56 %s" fill="none" stroke="#ffffff" stroke-opacity="0.3" stroke-width="2" '
            'stroke-linecap="round"/>' % (f(36 + dy), f(16 + dy)))
    icon = {"command": icon_bricks, "clock": icon_clock, "usb": icon_usb}[kind](46, 45.5 + dy)
    if kind == "command":
        icon = '<g transform="translate(46 %s) scale(0.74) translate(-46 %s)">%s</g>' % (f(45.5 + dy), f(-45.5 - dy), icon)
    doc.add('<g filter="url(#iconShadow)">%s</g>' % icon)
    shadow_filter(doc, "iconShadow", 1.5, 1.5, 0.5)
    # a faint accent line above the caption, and three status lights at the right
    accent = {"normal": PANEL_RIM, "focused": CYAN, "selected": ORANGE}[look]
    doc.add('<rect x="92" y="%s" width="40" height="3" rx="1.5" fill="%s" opacity="0.9"/>' % (f(40 + dy), accent))
    for i in range(3):
        x = 206 + i * 11
        on = led_on and i == 2 or (led_on and look == "selected")
        doc.add('<circle cx="%s" cy="%s" r="3" fill="%s"%s/>'
                % (f(x), f(24 + dy), led if on else "#2e3d5c", ' filter="url(#glow)"' if on else ""))
    return doc


# ---------------------------------------------------------------------------

def outputs():
    yield "logo_main", gen_logo_main()
    for k in "ABC":
        yield "pim-" + k, gen_pim(k)
    yield "Pim_confirmation", gen_confirmation()
    yield "mainpage_bg", gen_mainpage_bg()
    yield "common_bg", gen_common_bg()
    yield "scenario_bg", gen_scenario_bg()
    for kind in ("command", "clock", "usb"):
        for look in ("normal", "focused", "selected"):
            yield "%s_%s_menus" % (kind, look), gen_menu_tile(kind, look)
    for look, tag in (("normal", "normal"), ("enter", "enter"), ("selected", "selected")):
        for n in (1, 2, 3):
            yield "Lazer_%s_%d" % (tag, n), gen_lazer(n, look)


def main(argv):
    only = set(argv[1:])
    os.makedirs(OUT_DIR, exist_ok=True)
    count = 0
    for name, doc in outputs():
        if only and name not in only:
            continue
        with open(os.path.join(OUT_DIR, name + ".svg"), "w", encoding="utf-8") as fh:
            fh.write(doc.text())
        count += 1
    print("wrote %d svg files to %s" % (count, os.path.normpath(OUT_DIR)))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))

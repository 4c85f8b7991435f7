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
import random
from functools import partial

from svgkit import (BLACK, CORAL, CYAN, CYAN_GLOW, FOCUS_BOTTOM, FOCUS_TOP, GREEN, JOINT,
                    LIT_BOTTOM, LIT_TOP, NAVY, NAVY_DEEP, NAVY_LIGHT, ORANGE, ORANGE_DARK,
                    ORANGE_LIGHT, ORANGE_PALE, OUTLINE, PANEL, PANEL_RIM, SHELL, SHELL_SHADE,
                    SLATE_BOTTOM, SLATE_TOP, VISOR, WELL_RIM, WHITE, YELLOW, Svg, fmt, write_all)

# These pictures were laid out to a hundredth of a pixel; a finer rounding would shift their
# anti-aliased edges.
f = partial(fmt, places=2)


def robot_paints(svg):
    """Gradients every robot part uses; ids are fixed so parts can share them."""
    svg.radial([(0, WHITE), (0.5, SHELL), (1, SHELL_SHADE)], cx=0.38, cy=0.28, r=0.85, name="shell")
    svg.linear([(0, WHITE), (0.45, SHELL), (1, SHELL_SHADE)], name="shellV")
    svg.linear([(0, SHELL_SHADE), (0.35, WHITE), (0.6, SHELL), (1, "#aab6c8")], name="shellAcross")
    svg.radial([(0, "#b9c3d2"), (0.6, JOINT), (1, "#5f6b80")], cx=0.38, cy=0.32, r=0.75, name="joint")
    svg.linear([(0, "#5f6b80"), (0.4, "#aeb8c8"), (1, "#66728a")], name="jointAcross")
    svg.linear([(0, "#2a3654"), (0.55, VISOR), (1, "#0d1322")], name="visor")
    svg.radial([(0, ORANGE_PALE), (0.35, ORANGE_LIGHT), (0.8, ORANGE), (1, ORANGE_DARK)],
               cx=0.4, cy=0.35, r=0.7, name="orangeBall")
    svg.radial([(0, "#e6fbff"), (0.35, CYAN_GLOW), (1, CYAN)], cx=0.45, cy=0.35, r=0.75, name="cyanEye")
    svg.radial([(0, "#3a4660"), (0.75, "#232c40"), (1, "#141a28")], cx=0.45, cy=0.4, r=0.6, name="tyre")
    svg.linear([(0, "#364260"), (0.5, "#222b3f"), (1, "#141a28")], name="belt")
    svg.linear([(0, "#fff1b0"), (0.4, YELLOW), (1, "#d89a10")], x2=1, y2=1, name="bellGold")
    svg.glow("glow", 3.5, 0.95)
    svg.glow("glowBig", 8, 0.9)


# ---------------------------------------------------------------------------
# Robot parts.  All take a scale s; sizes are given for s = 1.
# ---------------------------------------------------------------------------

def capsule(svg, x1, y1, x2, y2, w, fill="url(#shellAcross)", stroke=OUTLINE, sw=2):
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


def arm(svg, sx, sy, ex, ey, hx, hy, s, hand_r=None):
    """Shoulder -> elbow -> hand, drawn back to front."""
    w = 24 * s
    hr = hand_r if hand_r else 19 * s
    ang = math.degrees(math.atan2(hy - ey, hx - ex))
    return "".join([
        capsule(svg, sx, sy, ex, ey, w, sw=2 * s),
        capsule(svg, ex, ey, hx, hy, w * 0.92, sw=2 * s),
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


def head(svg, cx, cy, s, mood="smile", tilt=0, antenna_lean=0):
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


def torso(svg, cx, top, w, h, s, core=True):
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


def leg(svg, hx, hy, kx, ky, fx, fy, s, foot_dir=1):
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
        capsule(svg, hx, hy, kx, ky, w, sw=2 * s),
        capsule(svg, kx, ky, fx, fy - 6 * s, w * 0.9, sw=2 * s),
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


def laser_paints(svg):
    svg.linear([(0, CORAL, 0.95), (0.7, CORAL, 0.45), (1, CORAL, 0)], x2=1, y2=0, name="beamGrad")
    svg.linear([(0, "#fff4f4", 1), (1, "#ffd0d2", 0)], x2=1, y2=0, name="beamCore")


def floor_shadow(cx, cy, rx, ry, opacity=0.55):
    return ('<ellipse cx="%s" cy="%s" rx="%s" ry="%s" fill="#02060f" opacity="%s" filter="url(#softShadow)"/>'
            % (f(cx), f(cy), f(rx), f(ry), f(opacity)))


# ---------------------------------------------------------------------------
# The three builds.  Each draws with its ground point at (cx, gy).
# ---------------------------------------------------------------------------

def build_rover(svg, cx, gy, s, pose="rest", mood="smile"):
    """Build A: a compact body riding on two big wheels.  pose: "rest", "wave" (one arm raised
    high behind the body) or "cheer" (both arms up, a bell ringing in the left hand)."""
    wr = 58 * s
    wy = gy - wr
    tw, th = 190 * s, 150 * s
    ttop = wy - th + 18 * s
    out = [floor_shadow(cx, gy - 2 * s, 150 * s, 14 * s)]
    # axle strut behind the wheels
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#jointAcross)" stroke="#4f5a6d" '
               'stroke-width="%s"/>' % (f(cx - 110 * s), f(wy - 12 * s), f(220 * s), f(24 * s), f(10 * s), f(2 * s)))
    if pose == "wave":
        out.append(arm(svg, cx + tw / 2 - 6 * s, ttop + 28 * s, cx + tw / 2 + 58 * s, ttop - 20 * s,
                       cx + tw / 2 + 70 * s, ttop - 92 * s, s, 22 * s))
    elif pose == "cheer":
        # right arm (viewer's right) up, waving
        out.append(arm(svg, cx + tw / 2 - 6 * s, ttop + 28 * s, cx + tw / 2 + 64 * s, ttop - 16 * s,
                       cx + tw / 2 + 84 * s, ttop - 96 * s, s, 22 * s))
        # left arm up holding the bell
        lhx, lhy = cx - tw / 2 - 86 * s, ttop - 100 * s
        out.append(arm(svg, cx - tw / 2 + 6 * s, ttop + 28 * s, cx - tw / 2 - 64 * s, ttop - 14 * s,
                       lhx, lhy, s, 22 * s))
        out.append(hand_bell(lhx, lhy, 1.05 * s, ang=30))
        out.append(hand(lhx, lhy, 22 * s, -120, s))
    out.append(torso(svg, cx, ttop, tw, th, s))
    out.append(wheel(cx - 92 * s, wy, wr, s))
    out.append(wheel(cx + 92 * s, wy, wr, s))
    # resting arms hang in front of the wheels, hands clear of the tyres
    sides = {"rest": (-1, 1), "wave": (-1,), "cheer": ()}[pose]
    for side in sides:
        out.append(arm(svg, cx + side * (tw / 2 - 6 * s), ttop + 28 * s, cx + side * (tw / 2 + 36 * s),
                       ttop + 64 * s, cx + side * (tw / 2 + 60 * s), ttop + 96 * s, s))
    out.append(neck(cx, ttop - 18 * s, s, 24))
    tilt, lean = {"rest": (0, 0), "wave": (-4, 8), "cheer": (5, -10)}[pose]
    out.append(head(svg, cx, ttop - 87 * s, s, mood=mood, tilt=tilt, antenna_lean=lean))
    return "".join(out)


def build_walker(svg, cx, gy, s, mood="smile"):
    """Build B: tall, on two legs, arms out in a friendly pose."""
    out = [floor_shadow(cx, gy - 2 * s, 120 * s, 12 * s)]
    fy = gy - 17 * s
    hip_y = fy - 150 * s
    tw, th = 170 * s, 150 * s
    ttop = hip_y - th + 20 * s
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#jointAcross)" stroke="#4f5a6d" '
               'stroke-width="%s"/>' % (f(cx - 60 * s), f(hip_y - 22 * s), f(120 * s), f(36 * s), f(14 * s), f(2 * s)))
    out.append(leg(svg, cx - 40 * s, hip_y, cx - 50 * s, hip_y + 76 * s, cx - 46 * s, fy, s, -1))
    out.append(leg(svg, cx + 40 * s, hip_y, cx + 50 * s, hip_y + 76 * s, cx + 46 * s, fy, s, 1))
    out.append(arm(svg, cx - tw / 2 + 4 * s, ttop + 26 * s, cx - tw / 2 - 52 * s, ttop + 60 * s,
                   cx - tw / 2 - 70 * s, ttop + 4 * s, s))
    out.append(arm(svg, cx + tw / 2 - 4 * s, ttop + 26 * s, cx + tw / 2 + 48 * s, ttop + 72 * s,
                   cx + tw / 2 + 62 * s, ttop + 126 * s, s))
    out.append(torso(svg, cx, ttop, tw, th, s))
    out.append(neck(cx, ttop - 18 * s, s, 24))
    out.append(head(svg, cx, ttop - 18 * s - 69 * s, s * 0.92, mood=mood))
    return "".join(out)


def build_tank(svg, cx, gy, s, mood="smile", beam=150):
    """Build C: on tracks, with a laser turret on the shoulder."""
    out = [floor_shadow(cx, gy - 2 * s, 160 * s, 13 * s)]
    th_ = 64 * s
    ty = gy - th_ / 2
    tw, bh = 200 * s, 130 * s
    btop = ty - th_ / 2 - bh + 26 * s
    out.append('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#jointAcross)" stroke="#4f5a6d" '
               'stroke-width="%s"/>' % (f(cx - 80 * s), f(ty - th_ / 2 - 16 * s), f(160 * s), f(28 * s), f(8 * s),
                                        f(2 * s)))
    out.append(arm(svg, cx - tw / 2 + 6 * s, btop + 28 * s, cx - tw / 2 - 32 * s, btop + 76 * s,
                   cx - tw / 2 - 30 * s, btop + 124 * s, s))
    out.append(torso(svg, cx, btop, tw, bh, s))
    out.append(track(cx, ty, 270 * s, th_, s))
    # fender over the track
    out.append('<path d="M%s %s Q%s %s %s %s H%s Q%s %s %s %s Z" fill="url(#shellV)" stroke="%s" stroke-width="%s"/>'
               % (f(cx - 140 * s), f(ty - th_ / 2 + 8 * s), f(cx - 140 * s), f(ty - th_ / 2 - 10 * s),
                  f(cx - 118 * s), f(ty - th_ / 2 - 10 * s), f(cx + 118 * s), f(cx + 140 * s),
                  f(ty - th_ / 2 - 10 * s), f(cx + 140 * s), f(ty - th_ / 2 + 8 * s), OUTLINE, f(2 * s)))
    out.append(neck(cx, btop - 18 * s, s, 24))
    out.append(head(svg, cx, btop - 18 * s - 69 * s, s * 0.95, mood=mood))
    # turret on the right shoulder, then the near arm
    out.append(joint(cx + tw / 2 - 8 * s, btop + 10 * s, 20 * s, 2 * s))
    out.append(laser_turret(cx + tw / 2 + 2 * s, btop - 8 * s, s, beam=beam, ang=-14))
    out.append(arm(svg, cx + tw / 2 - 6 * s, btop + 40 * s, cx + tw / 2 + 34 * s, btop + 82 * s,
                   cx + tw / 2 + 34 * s, btop + 128 * s, s))
    return "".join(out)


def all_robot_paints(svg):
    robot_paints(svg)
    laser_paints(svg)
    svg.soft_blur("softShadow", 6)


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


def confetti(rng, boxes, count, avoid, colors=(ORANGE, ORANGE_LIGHT, CYAN, GREEN, CORAL, YELLOW, WHITE)):
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

NIGHT = [(0, NAVY_DEEP), (0.45, NAVY), (1, "#0f1d3b")]
NIGHT_GLOW = [(0, NAVY_LIGHT, 0.9), (0.55, NAVY_LIGHT, 0.35), (1, NAVY_LIGHT, 0)]


def sky(svg, glow_cx, glow_cy, glow_r, night=NIGHT, glow=NIGHT_GLOW):
    svg.linear(night, name="sky")
    svg.radial(glow, cx=glow_cx, cy=glow_cy, r=glow_r, units="userSpaceOnUse", name="skyGlow")
    svg.radial([(0, BLACK, 0), (0.62, BLACK, 0), (1, "#02050d", 0.6)],
               cx=512, cy=384, r=700, units="userSpaceOnUse", name="vignette")
    svg.add('<rect width="1024" height="768" fill="url(#sky)"/>')
    svg.add('<rect width="1024" height="768" fill="url(#skyGlow)"/>')


def ambient(svg):
    """Low light from below and a couple of out-of-focus glints: depth without clutter."""
    svg.radial([(0, CYAN, 0.16), (0.5, CYAN, 0.05), (1, CYAN, 0)], name="horizon")
    svg.add('<ellipse cx="512" cy="790" rx="640" ry="150" fill="url(#horizon)"/>')
    svg.radial([(0, CYAN_GLOW, 0.12), (1, CYAN_GLOW, 0)], name="bokeh")
    for x, y, r in ((990, 250, 60), (30, 720, 70), (1000, 600, 40)):
        svg.add('<circle cx="%s" cy="%s" r="%s" fill="url(#bokeh)"/>' % (f(x), f(y), f(r)))


def vignette(svg):
    svg.add('<rect width="1024" height="768" fill="url(#vignette)"/>')


def panel(svg, x, y, w, h, r=22, fill=PANEL, opacity=1, rim=PANEL_RIM, shadow=True):
    svg.linear([(0, "#1a3059"), (0.25, PANEL), (1, "#13234a")], name="panelFill")
    svg.drop_shadow("panelShadow", 10, 8, 0.55)
    sh = ' filter="url(#panelShadow)"' if shadow else ""
    svg.add('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#panelFill)" fill-opacity="%s" '
            'stroke="%s" stroke-width="1"%s/>' % (f(x + 0.5), f(y + 0.5), f(w - 1), f(h - 1), f(r), f(opacity), rim, sh))
    # a faint inner highlight line along the top edge
    svg.add('<path d="M%s %s H%s" stroke="#ffffff" stroke-opacity="0.07" stroke-width="1.5" stroke-linecap="round"/>'
            % (f(x + r), f(y + 2.5), f(x + w - r)))


def tray(svg, x, y, w, h, r=16):
    """A recessed strip where silver buttons sit."""
    svg.linear([(0, "#081226"), (1, "#0f1c3a")], name="trayFill")
    svg.add('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="url(#trayFill)" fill-opacity="0.85" '
            'stroke="%s" stroke-opacity="0.8" stroke-width="1"/>' % (f(x + 0.5), f(y + 0.5), f(w - 1), f(h - 1), f(r),
                                                                      PANEL_RIM))
    svg.add('<path d="M%s %s H%s" stroke="#000000" stroke-opacity="0.35" stroke-width="2" stroke-linecap="round"/>'
            % (f(x + r), f(y + 2), f(x + w - r)))


def grid(svg, x, y, w, h, step=28, opacity=0.07, r=14):
    cid = svg.uid("gridClip")
    svg.add('<clipPath id="%s"><rect x="%s" y="%s" width="%s" height="%s" rx="%s"/></clipPath>'
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
    svg.add('<g clip-path="url(#%s)"><rect x="%s" y="%s" width="%s" height="%s" fill="#0a1531" fill-opacity="0.55"/>'
            '<path d="%s" stroke="%s" stroke-opacity="%s" stroke-width="1"/></g>'
            % (cid, f(x), f(y), f(w), f(h), " ".join(lines), CYAN, f(opacity)))
    svg.add('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="none" stroke="%s" stroke-opacity="0.5"/>'
            % (f(x + 0.5), f(y + 0.5), f(w - 1), f(h - 1), f(r), PANEL_RIM))


def tailed_card(x, y, w, h, r, side, ty0, ty1, tip):
    """Outline of a rounded card with a pointed tail out of its left or right edge: the tail's
    base runs from ty0 down to ty1 on that edge, its point is at tip."""
    x1, y1 = x + w, y + h
    tail = "L%s %s L%s %s" % (f(tip[0]), f(tip[1]), f(x1 if side == "right" else x),
                              f(ty1 if side == "right" else ty0))
    parts = ["M%s %s H%s Q%s %s %s %s" % (f(x + r), f(y), f(x1 - r), f(x1), f(y), f(x1), f(y + r))]
    if side == "right":
        parts.append("V%s %s" % (f(ty0), tail))
    parts.append("V%s Q%s %s %s %s H%s Q%s %s %s %s" % (f(y1 - r), f(x1), f(y1), f(x1 - r), f(y1),
                                                          f(x + r), f(x), f(y1), f(x), f(y1 - r)))
    if side == "left":
        parts.append("V%s %s" % (f(ty1), tail))
    parts.append("V%s Q%s %s %s %s Z" % (f(y + r), f(x), f(y), f(x + r), f(y)))
    return " ".join(parts)


def speech_card(svg, x, y, w, h, tip, r=20):
    """A soft card for the help text, with a little tail toward the mascot on its left."""
    svg.linear([(0, "#142a52", 0.9), (1, "#0f1f40", 0.9)], name="cardFill")
    d = tailed_card(x, y, w, h, r, "left", y + h * 0.48, y + h * 0.66, tip)
    svg.drop_shadow("cardShadow", 8, 6, 0.5)
    svg.add('<path d="%s" fill="url(#cardFill)" stroke="%s" stroke-width="1.2" stroke-linejoin="round" '
            'filter="url(#cardShadow)"/>' % (d, PANEL_RIM))


def mascot_badge(svg, cx, cy, s):
    """Just the head, for the corner of the work screens."""
    svg.add('<circle cx="%s" cy="%s" r="%s" fill="%s" opacity="0.35" filter="url(#haloBlur)"/>'
            % (f(cx), f(cy), f(95 * s), CYAN))
    svg.add('<g filter="url(#robotShadow)">%s</g>' % head(svg, cx, cy, s, mood="smile", tilt=-6, antenna_lean=6))


def header_rule(svg, x0, x1, y):
    svg.linear([(0, ORANGE, 0.85), (0.5, ORANGE, 0.35), (1, ORANGE, 0)], x2=1, y2=0, name="ruleGrad")
    svg.add('<rect x="%s" y="%s" width="%s" height="2" rx="1" fill="url(#ruleGrad)"/>' % (f(x0), f(y), f(x1 - x0)))


def background_common_parts(svg):
    all_robot_paints(svg)
    svg.soft_blur("haloBlur", 28)
    svg.drop_shadow("robotShadow", 6, 6, 0.5)


# The work screens differ only in where things sit: the seed of their stars and the places the
# stars keep clear of, the help card (x, y, w, h), the mascot's height and the orange rule under
# the title (x0, x1, y).
WORK_SCREENS = {
    "common_bg": (11, [(50, 30, 470, 230), (480, 80, 960, 170), (76, 270, 476, 684), (494, 254, 958, 694),
                       (690, 696, 950, 766)], (226, 46, 240, 178), 140, (490, 950, 176)),
    "scenario_bg": (23, [(50, 30, 470, 250), (470, 70, 960, 140), (76, 270, 476, 684), (478, 178, 962, 700),
                         (500, 696, 820, 766)], (226, 56, 242, 170), 146, (488, 950, 150)),
}


def work_screen(name):
    """What the work screens share: the night sky, the mascot in the corner with its help card
    and the rule under the title."""
    seed, avoid, card, badge_y, rule = WORK_SCREENS[name]
    svg = Svg(1024, 768, name)
    background_common_parts(svg)
    sky(svg, 260, 140, 700)
    svg.add(stars(random.Random(seed), 90, (0, 0, 1024, 768), avoid))
    ambient(svg)
    vignette(svg)
    speech_card(svg, *card, (206, 150))
    mascot_badge(svg, 138, badge_y, 0.5)
    header_rule(svg, *rule)
    return svg


def gen_common_bg():
    svg = work_screen("common_bg")
    panel(svg, 72, 278, 410, 400)
    panel(svg, 498, 258, 456, 432)
    tray(svg, 700, 699, 244, 64)
    return svg


def gen_scenario_bg():
    svg = work_screen("scenario_bg")
    panel(svg, 84, 276, 384, 400)
    # one workspace card: the tab bar on top, the editing area below
    panel(svg, 484, 182, 472, 510)
    svg.linear([(0, "#0b1730"), (1, "#0e1c3a")], name="tabBar")
    svg.add('<rect x="492" y="190" width="456" height="80" rx="16" fill="url(#tabBar)" fill-opacity="0.9" '
            'stroke="%s" stroke-opacity="0.7"/>' % PANEL_RIM)
    grid(svg, 506, 280, 436, 400, step=28, opacity=0.08, r=14)
    tray(svg, 504, 700, 310, 64)
    return svg


def gen_mainpage_bg():
    svg = Svg(1024, 768, "mainpage_bg")
    background_common_parts(svg)
    sky(svg, 300, 540, 600, night=[(0, NAVY_DEEP), (0.5, NAVY), (1, "#10204a")],
        glow=[(0, "#2a4b92", 0.9), (0.35, "#223f7c", 0.6), (0.7, NAVY_LIGHT, 0.25), (1, NAVY_LIGHT, 0)])
    rng = random.Random(5)
    avoid = [(40, 25, 100, 80), (580, 150, 884, 540), (670, 690, 790, 760)]
    svg.add(stars(rng, 130, (0, 0, 1024, 700), avoid, max_r=1.7))
    # a friendly ringed planet peeking in at the top right
    svg.radial([(0, "#3a63b0"), (0.65, "#1f3c7a"), (1, "#152b5c")], cx=0.35, cy=0.3, r=0.8, name="planet")
    ring = ('<g transform="translate(955 96) rotate(-16)" fill="none" stroke="%s" stroke-linecap="round">'
            '<path d="M-190 0 A190 30 0 0 1 190 0" stroke-opacity="%s" stroke-width="%s"/></g>')
    svg.add(ring % (CYAN, "0.18", "5"))
    svg.add('<circle cx="955" cy="96" r="112" fill="url(#planet)" opacity="0.75"/>')
    svg.add('<path d="M880 60 Q930 20 990 34" fill="none" stroke="#ffffff" stroke-opacity="0.12" stroke-width="10" '
            'stroke-linecap="round"/>')
    svg.add('<circle cx="905" cy="140" r="12" fill="#0f2450" opacity="0.35"/>'
            '<circle cx="950" cy="168" r="7" fill="#0f2450" opacity="0.35"/>')
    svg.add(ring.replace('A190 30 0 0 1 190 0', 'A190 30 0 0 0 190 0') % (CYAN, "0.35", "5"))
    # one shooting star for a bit of life in the empty sky
    svg.linear([(0, WHITE, 0), (1, WHITE, 0.7)], x2=1, y2=0, name="streak")
    svg.add('<g transform="translate(455 118) rotate(152)"><rect x="0" y="-1" width="130" height="2" rx="1" '
            'fill="url(#streak)"/><circle cx="130" cy="0" r="2.2" fill="#ffffff" filter="url(#glow)"/></g>')
    # floor: a soft glow and perspective lines where the robot rolls in
    svg.radial([(0, CYAN, 0.28), (0.5, CYAN, 0.08), (1, CYAN, 0)],
               cx=298, cy=768, r=360, units="userSpaceOnUse",
               transform="translate(298 768) scale(1 0.32) translate(-298 -768)", name="floorGlow")
    svg.add('<rect x="0" y="600" width="1024" height="168" fill="url(#floorGlow)"/>')
    lines = []
    vx, vy = 298, 560
    for i in range(-9, 12):
        bx = 298 + i * 120
        lines.append("M%s %s L%s %s" % (f(vx + (bx - vx) * 0.55), f(vy + (768 - vy) * 0.55), f(bx), "768"))
    for yy in (676, 700, 730, 766):
        lines.append("M0 %s H1024" % f(yy))
    svg.linear([(0, WHITE, 0), (1, WHITE, 1)], name="floorFade")
    svg.define("floorMask", '<mask id="floorMask"><rect x="0" y="650" width="1024" height="118" fill="url(#floorFade)"/></mask>')
    svg.add('<path d="%s" stroke="%s" stroke-opacity="0.1" stroke-width="1.2" mask="url(#floorMask)"/>'
            % (" ".join(lines), CYAN))
    vignette(svg)
    # the menu's own card
    panel(svg, 586, 150, 292, 386, r=26, opacity=0.8, shadow=False)
    tray(svg, 672, 696, 120, 60)
    return svg


# ---------------------------------------------------------------------------
# Illustrations
# ---------------------------------------------------------------------------

def gen_logo_main():
    svg = Svg(596, 584, "logo_main")
    all_robot_paints(svg)
    svg.drop_shadow("robotShadow", 7, 8, 0.5)
    svg.add('<g filter="url(#robotShadow)">%s</g>' % build_rover(svg, 298, 500, 1.18, pose="wave"))
    return svg


def stage(svg, w, h, key):
    """A dark rounded stage with a spotlight cone and a floor pool of light."""
    svg.radial([(0, "#1e3a72"), (0.55, "#14284f"), (1, "#0a1430")], cx=0.5, cy=0.35, r=0.75, name="stageBg")
    svg.linear([(0, "#e8f6ff", 0.2), (1, "#e8f6ff", 0.03)], name="cone")
    svg.radial([(0, CYAN, 0.35), (0.6, CYAN, 0.1), (1, CYAN, 0)], name="pool")
    svg.define("stageClip", '<clipPath id="stageClip"><rect x="1" y="1" width="%s" height="%s" rx="24"/></clipPath>'
               % (f(w - 2), f(h - 2)))
    svg.add('<g clip-path="url(#stageClip)">')
    svg.add('<rect width="%s" height="%s" fill="url(#stageBg)"/>' % (f(w), f(h)))
    rng = random.Random(key)
    svg.add(stars(rng, 26, (10, 10, w - 10, h * 0.6), [(w * 0.3, 0, w * 0.7, h)], 1.2))
    svg.add('<path d="M%s 0 H%s L%s %s H%s Z" fill="url(#cone)" filter="url(#coneBlur)"/>'
            % (f(w * 0.42), f(w * 0.58), f(w * 0.86), f(h - 40), f(w * 0.14)))
    svg.add('<ellipse cx="%s" cy="%s" rx="%s" ry="%s" fill="url(#pool)"/>' % (f(w / 2), f(h - 40), f(w * 0.42), f(28)))
    svg.linear([(0, "#0a1430", 0), (1, "#050b1c", 0.6)], name="stageFloor")
    svg.add('<rect x="0" y="%s" width="%s" height="%s" fill="url(#stageFloor)"/>' % (f(h - 60), f(w), f(60)))
    svg.add('</g>')
    svg.add('<rect x="1" y="1" width="%s" height="%s" rx="24" fill="none" stroke="%s" stroke-width="1.5"/>'
            % (f(w - 2), f(h - 2), PANEL_RIM))


def gen_pim(kind):
    svg = Svg(380, 340, f"pim-{kind}")
    all_robot_paints(svg)
    svg.soft_blur("coneBlur", 6)
    svg.drop_shadow("robotShadow", 5, 5, 0.5)
    stage(svg, 380, 340, {"A": 1, "B": 2, "C": 3}[kind])
    svg.add('<g clip-path="url(#stageClip)"><g filter="url(#robotShadow)">')
    if kind == "A":
        svg.add(build_rover(svg, 190, 304, 0.72))
    elif kind == "B":
        svg.add(build_walker(svg, 190, 310, 0.57))
    else:
        svg.add(build_tank(svg, 175, 306, 0.66, beam=190))
    svg.add('</g></g>')
    return svg


def robot_portrait(svg, kind, cx, gy, s):
    if kind == 1:
        return build_rover(svg, cx, gy, s * 0.86)
    if kind == 2:
        return build_walker(svg, cx, gy, s * 0.78)
    return build_tank(svg, cx, gy, s * 0.92, beam=90)


TILE_LOOKS = {
    # fill top, fill bottom, rim, rim width
    "normal": (SLATE_TOP, SLATE_BOTTOM, "#3d5d93", 1.2),
    "enter": (FOCUS_TOP, FOCUS_BOTTOM, CYAN, 2),
    "selected": (LIT_TOP, LIT_BOTTOM, "#ffc078", 2),
}


def gen_lazer(kind, look):
    svg = Svg(105, 105, f"Lazer_{look}_{kind}")
    all_robot_paints(svg)
    top, bottom, rim, rw = TILE_LOOKS[look]
    svg.linear([(0, top), (1, bottom)], name="tile")
    svg.drop_shadow("tileShadow", 2.5, 2.5, 0.5)
    if look == "enter":
        svg.add('<rect x="3" y="3" width="99" height="99" rx="20" fill="none" stroke="%s" stroke-width="5" '
                'opacity="0.55" filter="url(#tileGlow)"/>' % CYAN)
        svg.soft_blur("tileGlow", 2)
    if look == "selected":
        svg.inset("pressed", 3, 2.5, 0.6)
        svg.add('<rect x="6" y="7" width="93" height="92" rx="18" fill="url(#tile)" stroke="%s" stroke-width="%s" '
                'filter="url(#pressed)"/>' % (rim, f(rw)))
    else:
        svg.add('<rect x="6" y="5" width="93" height="92" rx="18" fill="url(#tile)" stroke="%s" stroke-width="%s" '
                'filter="url(#tileShadow)"/>' % (rim, f(rw)))
        svg.add('<path d="M22 8 H83 Q96 8 96 20" fill="none" stroke="#ffffff" stroke-opacity="0.28" stroke-width="2" '
                'stroke-linecap="round"/>')
    # little stage inside the tile
    dy = 2 if look == "selected" else 0
    svg.radial([(0, "#1e3a72"), (1, "#0b1632")], cx=0.5, cy=0.3, r=0.8, name="miniStage")
    svg.add('<rect x="13" y="%s" width="79" height="78" rx="13" fill="url(#miniStage)" stroke="%s" '
            'stroke-width="1"/>' % (f(12 + dy), WELL_RIM))
    svg.define("miniClip", '<clipPath id="miniClip"><rect x="13" y="%s" width="79" height="78" rx="13"/></clipPath>'
               % f(12 + dy))
    svg.radial([(0, CYAN, 0.4), (1, CYAN, 0)], name="miniPool")
    svg.add('<g clip-path="url(#miniClip)">')
    svg.add('<ellipse cx="52.5" cy="%s" rx="34" ry="7" fill="url(#miniPool)"/>' % f(84 + dy))
    svg.add(robot_portrait(svg, kind, 52.5 if kind != 3 else 50, 86 + dy, 0.2))
    svg.add('</g>')
    # number badge
    bx, by = 84, 86 + dy
    badge_fill = ORANGE if look != "selected" else WHITE
    badge_ink = WHITE if look != "selected" else ORANGE_DARK
    svg.add('<circle cx="%s" cy="%s" r="12" fill="%s" stroke="%s" stroke-width="2" filter="url(#tileShadow)"/>'
            % (f(bx), f(by), badge_fill, NAVY_DEEP if look != "selected" else ORANGE_DARK))
    svg.add(digit(kind, bx, by, 13, badge_ink, 2.6))
    return svg


def gen_confirmation():
    svg = Svg(1024, 768, "Pim_confirmation")
    background_common_parts(svg)
    sky(svg, 700, 380, 620)
    rng = random.Random(77)
    bubble = (268, 280, 452, 420)
    title = (480, 84, 770, 165)
    svg.add(stars(rng, 70, (0, 0, 1024, 768), [bubble, title, (520, 170, 980, 768)]))
    # rays of light behind the robot
    rays = []
    cx, cy = 720, 380
    for i in range(14):
        a0 = i * 2 * math.pi / 14
        a1 = a0 + 0.16
        rays.append("M%s %s L%s %s L%s %s Z" % (f(cx), f(cy), f(cx + math.cos(a0) * 700), f(cy + math.sin(a0) * 700),
                                                f(cx + math.cos(a1) * 700), f(cy + math.sin(a1) * 700)))
    svg.radial([(0, WHITE, 0.09), (0.6, WHITE, 0.03), (1, WHITE, 0)],
               cx=cx, cy=cy, r=560, units="userSpaceOnUse", name="rayFade")
    svg.add('<path d="%s" fill="url(#rayFade)"/>' % " ".join(rays))
    svg.add('<circle cx="720" cy="420" r="240" fill="%s" opacity="0.18" filter="url(#haloBlur)"/>' % CYAN)
    # floor glow
    svg.radial([(0, CYAN, 0.3), (0.6, CYAN, 0.08), (1, CYAN, 0)], name="floorGlow")
    svg.add('<ellipse cx="720" cy="740" rx="330" ry="56" fill="url(#floorGlow)"/>')
    vignette(svg)
    # balloons on the left
    for bx, by, c, c2 in ((92, 250, ORANGE, ORANGE_LIGHT), (178, 190, CYAN, CYAN_GLOW), (150, 340, GREEN, "#8ff0bb")):
        gid = svg.uid("balloon")
        svg.radial([(0, WHITE, 0.9), (0.25, c2), (1, c)], cx=0.38, cy=0.3, r=0.75, name=gid)
        svg.add('<path d="M%s %s Q%s %s %s %s" fill="none" stroke="#cfd8e6" stroke-opacity="0.6" stroke-width="1.5"/>'
                % (f(bx), f(by + 58), f(bx - 22), f(by + 150), f(bx + 6), f(by + 260)))
        svg.add('<ellipse cx="%s" cy="%s" rx="42" ry="52" fill="url(#%s)" filter="url(#robotShadow)"/>' % (f(bx), f(by), gid))
        svg.add('<path d="M%s %s l-6 9 h12 z" fill="%s"/>' % (f(bx), f(by + 50), c))
    # the robot, arms up, bell ringing
    svg.add('<g filter="url(#robotShadow)">', build_rover(svg, 720, 742, 1.05, pose="cheer", mood="joy"), '</g>')
    svg.add(confetti(rng, [(0, 0, 1024, 768)], 135,
                     [bubble, title, (560, 190, 880, 720), (440, 380, 600, 560), (452, 290, 520, 345), (40, 150, 230, 420), (0, 690, 1024, 768)]))
    # speech bubble for the message, tail toward the robot
    svg.linear([(0, "#132a55"), (1, "#0d1d3e")], name="bubbleFill")
    svg.drop_shadow("bubbleShadow", 8, 6, 0.55)
    x0, y0, x1, y1 = bubble
    d = tailed_card(x0, y0, x1 - x0, y1 - y0, 22, "right", y0 + 34, y0 + 60, (x1 + 60, y0 + 30))
    svg.add('<path d="%s" fill="url(#bubbleFill)" stroke="%s" stroke-width="2.5" stroke-linejoin="round" '
            'filter="url(#bubbleShadow)"/>' % (d, ORANGE))
    header_rule(svg, 490, 940, 170)
    return svg


# ---------------------------------------------------------------------------
# Main-menu tiles
# ---------------------------------------------------------------------------

MENU_LOOKS = {
    # badge top, badge bottom, rim colour, rim width, led colour, led on
    "normal": (SLATE_TOP, SLATE_BOTTOM, "#3d5d93", 1.2, JOINT, False),
    "focused": (FOCUS_TOP, FOCUS_BOTTOM, CYAN, 2, CYAN, True),
    "selected": (LIT_TOP, LIT_BOTTOM, ORANGE_LIGHT, 2, ORANGE, True),
}


def icon_bricks(cx, cy):
    out = []
    layers = [(-6, 18, SHELL, SHELL_SHADE, JOINT), (6, 1, CYAN, "#1d9cc4", WHITE),
             (-2, -16, ORANGE, ORANGE_DARK, WHITE)]
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
    svg = Svg(250, 93, f"{kind}_{look}_menus")
    robot_paints(svg)
    top, bottom, rim, rw, led, led_on = MENU_LOOKS[look]
    svg.linear([(0, top), (1, bottom)], name="badge")
    if look == "selected":
        svg.linear([(0, "#3a2412"), (1, "#1f150e")], name="body")
    else:
        svg.linear([(0, "#16294f"), (1, "#0e1b38")], name="body")
    svg.drop_shadow("tileShadow", 3, 3, 0.55)
    dy = 1.5 if look == "selected" else 0
    if look == "focused":
        svg.soft_blur("rimGlow", 3)
        svg.add('<rect x="4" y="4" width="242" height="84" rx="22" fill="none" stroke="%s" stroke-width="4" '
                'opacity="0.7" filter="url(#rimGlow)"/>' % CYAN)
    body_filter = "tileShadow"
    if look == "selected":
        svg.inset("pressed", 3, 2.5, 0.75)
        body_filter = "pressed"
    svg.add('<rect x="6" y="%s" width="238" height="80" rx="20" fill="url(#body)" stroke="%s" stroke-width="%s" '
            'filter="url(#%s)"/>' % (f(5 + dy), rim, f(rw), body_filter))
    if look != "selected":
        svg.add('<path d="M30 %s H222" stroke="#ffffff" stroke-opacity="0.12" stroke-width="1.5" stroke-linecap="round"/>'
                % f(8 + dy))
    # the icon's round badge
    svg.add('<circle cx="46" cy="%s" r="34" fill="url(#badge)" stroke="%s" stroke-width="%s" filter="url(#tileShadow)"/>'
            % (f(45.5 + dy), rim if look != "normal" else "#4a6ca6", f(rw)))
    svg.radial([(0, "#22407a"), (0.7, "#14284f"), (1, "#0c1834")], cx=0.45, cy=0.35, r=0.7, name="well")
    svg.add('<circle cx="46" cy="%s" r="28" fill="url(#well)" stroke="#0a1430" stroke-width="1"/>' % f(45.5 + dy))
    svg.add('<path d="M16 %s A31 31 0 0 1 56 %s" fill="none" stroke="#ffffff" stroke-opacity="0.3" stroke-width="2" '
            'stroke-linecap="round"/>' % (f(36 + dy), f(16 + dy)))
    icon = {"command": icon_bricks, "clock": icon_clock, "usb": icon_usb}[kind](46, 45.5 + dy)
    if kind == "command":
        icon = '<g transform="translate(46 %s) scale(0.74) translate(-46 %s)">%s</g>' % (f(45.5 + dy), f(-45.5 - dy), icon)
    svg.add('<g filter="url(#iconShadow)">%s</g>' % icon)
    svg.drop_shadow("iconShadow", 1.5, 1.5, 0.5)
    # a faint accent line above the caption, and three status lights at the right
    accent = {"normal": PANEL_RIM, "focused": CYAN, "selected": ORANGE}[look]
    svg.add('<rect x="92" y="%s" width="40" height="3" rx="1.5" fill="%s" opacity="0.9"/>' % (f(40 + dy), accent))
    for i in range(3):
        x = 206 + i * 11
        on = led_on and i == 2 or (led_on and look == "selected")
        svg.add('<circle cx="%s" cy="%s" r="3" fill="%s"%s/>'
                % (f(x), f(24 + dy), led if on else "#2e3d5c", ' filter="url(#glow)"' if on else ""))
    return svg


# ---------------------------------------------------------------------------

def pictures():
    pics = [gen_logo_main(), *(gen_pim(k) for k in "ABC"), gen_confirmation(), gen_mainpage_bg(),
            gen_common_bg(), gen_scenario_bg()]
    pics += [gen_menu_tile(kind, look) for kind in ("command", "clock", "usb")
             for look in ("normal", "focused", "selected")]
    pics += [gen_lazer(n, look) for look in ("normal", "enter", "selected") for n in (1, 2, 3)]
    return {svg.title: svg for svg in pics}


if __name__ == "__main__":
    write_all(pictures())

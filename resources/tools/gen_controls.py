#!/usr/bin/env python3
"""Writes the control artwork (buttons, bars, the text well) to resources/svg/.

Run by hand after changing a look: python3 resources/tools/gen_controls.py
The build only renders the committed SVGs; it never runs this script.

Every family comes from one template, so the looks of a family (normal, over, selected, off,
marked) stay consistent across sizes:
  pill()        glossy rounded buttons, blue family and silver family, whole or split in halves
  small_button  the 48x25 list buttons with a glyph
  question      the round help button
  select_strip  the scroll strip with arrow ends
  list_bar      the highlight of the chosen name row
  text_well     the panel behind a text field or a date picker
  link_bar      the short joints between timeline items
"""

from svgkit import (BLACK, CORAL, CYAN, FOCUS_BOTTOM, FOCUS_TOP, GREEN, LIT_BOTTOM, LIT_TOP,
                    NAVY, NAVY_DEEP, NAVY_LIGHT, ORANGE, ORANGE_DARK, ORANGE_LIGHT, ORANGE_PALE,
                    PANEL, PANEL_RIM, SLATE_BOTTOM, SLATE_RIM, SLATE_TOP, WELL_RIM, WHITE, Svg, el,
                    group, pel, rrect_path, write_all)

# Looks shared by every button family.  "top"/"bottom" are the body gradient ends.
LOOKS = {
    "normal": dict(top=SLATE_TOP, bottom=SLATE_BOTTOM, rim=SLATE_RIM, rim_w=1, gloss=0.10,
                   highlight=0.30, shadow=0.50, glow=None, inset=0, lift=0),
    "over": dict(top=FOCUS_TOP, bottom=FOCUS_BOTTOM, rim=CYAN, rim_w=2, gloss=0.12,
                 highlight=0.35, shadow=0.50, glow=CYAN, inset=0, lift=0),
    "selected": dict(top=LIT_TOP, bottom=LIT_BOTTOM, rim="#a34d00", rim_w=1, gloss=0.0,
                     highlight=0.0, shadow=0.25, glow=None, inset=0.40, lift=1),
    "disabled": dict(top="#3a4558", bottom="#2c3545", rim="#465166", rim_w=1, gloss=0.0,
                     highlight=0.0, shadow=0.0, glow=None, inset=0, lift=1),
    "marked": dict(top="#0f2c4f", bottom="#12335a", rim=ORANGE, rim_w=2, gloss=0.0,
                   highlight=0.0, shadow=0.30, glow=None, inset=0.70, lift=0),
    "silver": dict(top="#e9edf2", bottom="#b9c2ce", rim="#8d98a8", rim_w=1, gloss=0.35,
                   highlight=0.9, shadow=0.45, glow=None, inset=0, lift=0),
    "silver_over": dict(top="#f8fafc", bottom="#d2d9e3", rim=ORANGE, rim_w=2, gloss=0.35,
                        highlight=0.9, shadow=0.45, glow=ORANGE_LIGHT, inset=0, lift=0),
}


def pill(svg, x, y, w, h, r, look, corners=None, visible=None):
    """A glossy button body.

    corners: radii (tl, tr, br, bl); defaults to r everywhere.
    visible: (x, y, w, h, (tl, tr, br, bl)) of the part that shows when the body runs past the
    canvas (the split halves): the rim and glow follow that outline, the body the full one.
    """
    lk = LOOKS[look]
    c = corners or (r, r, r, r)
    y += lk["lift"]
    body = rrect_path(x, y, w, h, *c)
    if visible:
        vx, vy, vw, vh, vc = visible
        outline = rrect_path(vx, vy + lk["lift"], vw, vh, *vc)
    else:
        outline = body

    # Soft drop shadow, a little below the body.
    if lk["shadow"]:
        svg.shadow(body, lk["shadow"], 1.2, 1.6)
    # Outer glow of the over looks.
    if lk["glow"]:
        svg.path(outline, fill="none", stroke=lk["glow"], stroke_width=3, stroke_opacity=0.75,
                 filter=svg.blur(1.1))

    svg.path(body, fill=svg.linear([(0, lk["top"]), (1, lk["bottom"])]))

    clip = svg.clip(body)
    inner = []
    # Gloss: a faint sheen over the upper part, kept gentle so captions stay calm.
    if lk["gloss"]:
        sheen = svg.linear([(0, WHITE, lk["gloss"]), (1, WHITE, 0)])
        inner.append(el("rect", x=x - 40, y=y, width=w + 80, height=h * 0.5, fill=sheen))
    # Thin light line just inside the top edge.
    if lk["highlight"]:
        line = svg.linear([(0, WHITE, lk["highlight"]), (0.35, WHITE, 0)], y1=y, y2=y + h,
                          units="userSpaceOnUse")
        inner.append(pel(rrect_path(x + 1, y + 1, w - 2, h - 2, *[max(0, k - 1) for k in c]),
                         fill="none", stroke=line, stroke_width=1))
    # Pressed-in looks: a blurred dark rim pushed down inside the body.
    if lk["inset"]:
        inner.append(pel(body, fill="none", stroke=BLACK, stroke_width=5,
                         stroke_opacity=lk["inset"], filter=svg.blur(1.6), transform="translate(0,1.8)"))
    if inner:
        svg.add(group(inner, clip_path=clip))

    if lk["rim_w"] == 2:
        # A 2 px rim drawn inside the outline, so it never leaves the canvas.
        inset = 1
        vx, vy, vw, vh, vc = visible if visible else (x, y - lk["lift"], w, h, c)
        svg.path(rrect_path(vx + inset, vy + lk["lift"] + inset, vw - 2 * inset, vh - 2 * inset,
                            *[max(0, k - inset) for k in vc]),
                 fill="none", stroke=lk["rim"], stroke_width=2)
    else:
        svg.path(body, fill="none", stroke=lk["rim"], stroke_width=1)
    return body


def top_light(svg, x, y, w, h, r, strength, reach):
    """The thin light line just inside a dark panel's rim, strongest along the top and gone
    `reach` of the way down."""
    svg.path(rrect_path(x + 1, y + 1, w - 2, h - 2, r - 1), fill="none",
             stroke=svg.linear([(0, WHITE, strength), (reach, WHITE, 0)]), stroke_width=1)


# --- blue button family (Btn01 111, Btn02 180, Btn03 326 wide; all 46 high) -----------------

def blue_button(name, width, look):
    svg = Svg(width, 46, name)
    x, y, w, h, r = 3, 2, width - 6, 36, 14
    pill(svg, x, y, w, h, r, look)
    if look == "marked":
        # The mark: an orange light strip low inside the pill.  Captions run almost the full
        # width (long sound names end near the right rim), so the mark keeps below their
        # descenders and leaves the whole caption band free.
        sx, sw, sy, sh = x + 22, w - 44, y + h - 6.5, 2.6
        svg.add(el("rect", x=sx - 1, y=sy - 0.4, width=sw + 2, height=sh + 0.8, rx=1.7,
                   fill=ORANGE, fill_opacity=0.55, filter=svg.blur(1.1)))
        svg.add(el("rect", x=sx, y=sy, width=sw, height=sh, rx=sh / 2,
                   fill=svg.linear([(0, ORANGE_DARK), (0.18, ORANGE), (0.5, ORANGE_LIGHT),
                                    (0.82, ORANGE), (1, ORANGE_DARK)], x2=1, y2=0)))
        # A bright filament along its upper edge, as on a lit diffuser.
        svg.add(el("rect", x=sx + 6, y=sy + 0.5, width=sw - 12, height=0.9, rx=0.45,
                   fill=svg.linear([(0, ORANGE_PALE, 0), (0.5, "#ffe7c7", 0.95), (1, ORANGE_PALE, 0)],
                                   x2=1, y2=0)))
    return svg


# --- silver family (85x40 whole; 93x40 split halves that sit side by side) -----------------

SILVER_Y, SILVER_H, SILVER_R = 3, 32, 13


def silver_button(name, look):
    svg = Svg(85, 40, name)
    pill(svg, 3, SILVER_Y, 79, SILVER_H, SILVER_R, look)
    return svg


def silver_half(name, side, look):
    """Left and right halves of one long pill; the right half lies 91 px further and on top."""
    svg = Svg(93, 40, name)
    r = SILVER_R
    if side == "left":
        # Body runs past the right edge so its shadow does not fade at the join.
        pill(svg, 3, SILVER_Y, 120, SILVER_H, r, look, corners=(r, r, r, r),
             visible=(3, SILVER_Y, 88, SILVER_H, (r, 0, 0, r)))
    else:
        pill(svg, -30, SILVER_Y, 120, SILVER_H, r, look, corners=(r, r, r, r),
             visible=(0, SILVER_Y, 90, SILVER_H, (0, r, r, 0)))
        if look == "silver":
            # The seam: a groove over the left half's end, then a light edge.
            svg.add(el("rect", x=0, y=SILVER_Y + 0.5, width=1, height=SILVER_H - 1, fill="#8d98a8"))
            svg.add(el("rect", x=1, y=SILVER_Y + 1, width=1, height=SILVER_H - 2, fill=WHITE,
                       fill_opacity=0.75))
        # Replay glyph: a ring that turns back on itself around a small play triangle.
        cx, cy = 45.5, SILVER_Y + SILVER_H / 2
        ink = "#4a5568" if look == "silver" else ORANGE_DARK
        svg.path(f"M{cx + 5.6},{cy - 3.2} A6.5,6.5 0 1 0 {cx + 6.4},{cy + 1.2}", fill="none",
                 stroke=ink, stroke_width=2, stroke_linecap="round")
        svg.path(f"M{cx + 7.6},{cy - 7.4} L{cx + 6.6},{cy - 1.6} L{cx + 1.4},{cy - 3.6} Z",
                 fill=ink, stroke=ink, stroke_width=0.8, stroke_linejoin="round")
        svg.path(f"M{cx - 2},{cy - 3} L{cx + 2.6},{cy} L{cx - 2},{cy + 3} Z", fill=ink,
                 stroke=ink, stroke_width=0.8, stroke_linejoin="round")
    return svg


# --- small list buttons (48x25) ---------------------------------------------------------------

def small_button(name, glyph, focus):
    svg = Svg(48, 25, name)
    x, y, w, h, r = 2.5, 2.5, 43, 18, 9
    look = "over" if focus else "normal"
    if focus and glyph in ("x", "go"):
        # Focus lights the whole button in the glyph's own colour.
        lk = dict(LOOKS["over"])
        lk.update(top="#ff8286", bottom="#e2454b") if glyph == "x" else lk.update(
            top="#5fe89d", bottom="#23b565")
        LOOKS["_tmp"] = lk
        look = "_tmp"
    pill(svg, x, y, w, h, r, look)
    LOOKS.pop("_tmp", None)
    cx, cy = 24, y + h / 2
    if glyph in ("up", "down"):
        d = -1 if glyph == "up" else 1
        tri = (f"M{cx - 6},{cy - 2.8 * d} L{cx + 6},{cy - 2.8 * d} L{cx},{cy + 3.6 * d} Z")
        svg.path(tri, fill=BLACK, fill_opacity=0.35, transform="translate(0,1)", filter=svg.blur(0.6))
        svg.path(tri, fill=WHITE, stroke=WHITE, stroke_width=1.4, stroke_linejoin="round")
    elif glyph == "x":
        ink = WHITE if focus else CORAL
        d = f"M{cx - 4},{cy - 4} L{cx + 4},{cy + 4} M{cx + 4},{cy - 4} L{cx - 4},{cy + 4}"
        svg.path(d, fill="none", stroke=BLACK, stroke_opacity=0.35, stroke_width=3,
                 stroke_linecap="round", transform="translate(0,1)", filter=svg.blur(0.6))
        svg.path(d, fill="none", stroke=ink, stroke_width=2.8, stroke_linecap="round")
    elif glyph == "go":
        ink = WHITE if focus else GREEN
        gx, ox, rx, ry = cx - 5.2, cx + 5.2, 3.9, 4.6
        # G: an open ring from the upper right round to the right middle, then the bar inward.
        g = (f"M{gx + 3.0},{cy - 3.3} A{rx},{ry} 0 1 0 {gx + rx},{cy + 0.6} "
             f"L{gx + rx},{cy + 0.6} L{gx + 0.6},{cy + 0.6}")
        o = (f"M{ox - rx},{cy} A{rx},{ry} 0 1 0 {ox + rx},{cy} A{rx},{ry} 0 1 0 {ox - rx},{cy} Z")
        for d in (g, o):
            svg.path(d, fill="none", stroke=BLACK, stroke_opacity=0.35, stroke_width=2.4,
                     transform="translate(0,1)", filter=svg.blur(0.6))
        for d in (g, o):
            svg.path(d, fill="none", stroke=ink, stroke_width=2.1, stroke_linecap="round",
                     stroke_linejoin="round")
    return svg


# --- help button (29x28) -----------------------------------------------------------------------

def question(name, over):
    svg = Svg(29, 28, name)
    cx, cy, r = 14.5, 13.2, 11
    lk = LOOKS["over" if over else "normal"]
    svg.add(el("circle", cx=cx, cy=cy + 1.5, r=r, fill=BLACK, fill_opacity=0.5, filter=svg.blur(1.1)))
    if over:
        svg.add(el("circle", cx=cx, cy=cy, r=r, fill="none", stroke=CYAN, stroke_width=3,
                   stroke_opacity=0.75, filter=svg.blur(1.0)))
    svg.add(el("circle", cx=cx, cy=cy, r=r,
               fill=svg.radial([(0, lk["top"]), (1, lk["bottom"])], cx=0.45, cy=0.3, r=0.75)))
    svg.add(el("ellipse", cx=cx, cy=cy - 5.2, rx=7.4, ry=4.6,
               fill=svg.linear([(0, WHITE, 0.32), (1, WHITE, 0)])))
    if over:
        svg.add(el("circle", cx=cx, cy=cy, r=r - 1, fill="none", stroke=CYAN, stroke_width=2))
    else:
        svg.add(el("circle", cx=cx, cy=cy, r=r, fill="none", stroke=lk["rim"], stroke_width=1))
    # The glyph: a hook and a dot.
    hook = (f"M{cx - 3.4},{cy - 3.2} C{cx - 3.4},{cy - 7.2} {cx + 3.6},{cy - 7.4} {cx + 3.6},{cy - 3.4} "
            f"C{cx + 3.6},{cy - 0.6} {cx},{cy - 0.4} {cx},{cy + 2.4}")
    ink = WHITE if over else "#ffb565"
    svg.path(hook, fill="none", stroke=BLACK, stroke_opacity=0.35, stroke_width=2.6,
             stroke_linecap="round", transform="translate(0,0.8)", filter=svg.blur(0.5))
    svg.path(hook, fill="none", stroke=ink, stroke_width=2.3, stroke_linecap="round")
    svg.add(el("circle", cx=cx, cy=cy + 6.3, r=1.55, fill=ink))
    return svg


# --- scroll strip with arrow ends (344x44) -----------------------------------------------------

def select_strip(name, focus):
    svg = Svg(344, 44, name)
    x, y, w, h = 3, 4, 338, 34
    r = h / 2
    body = rrect_path(x, y, w, h, r)
    svg.shadow(body, 0.5, 1.4, 1.8)
    if focus:
        svg.path(body, fill="none", stroke=CYAN, stroke_width=3, stroke_opacity=0.7, filter=svg.blur(1.2))
    svg.path(body, fill=svg.linear([(0, NAVY_LIGHT), (1, NAVY)]))
    top_light(svg, x, y, w, h, r, 0.22, 0.4)
    if focus:
        svg.path(rrect_path(x + 1, y + 1, w - 2, h - 2, r - 1), fill="none", stroke=CYAN, stroke_width=2)
    else:
        svg.path(body, fill="none", stroke=PANEL_RIM, stroke_width=1)

    # Groove between the arrow ends, with tick dots.
    gx, gw, gy, gh = 44, 256, y + h / 2 - 5, 10
    groove = rrect_path(gx, gy, gw, gh, 5)
    svg.path(groove, fill=NAVY_DEEP)
    svg.add(group([pel(groove, fill="none", stroke=BLACK, stroke_width=3, stroke_opacity=0.6,
                       filter=svg.blur(1.0), transform="translate(0,1.2)")], clip_path=svg.clip(groove)))
    svg.path(groove, fill="none", stroke=PANEL_RIM, stroke_width=1, stroke_opacity=0.8)
    for i in range(1, 16):
        svg.add(el("circle", cx=gx + i * gw / 16, cy=gy + gh / 2, r=1, fill=PANEL_RIM))
    # The thumb.
    tx, tw = gx + 2, 64
    thumb_look = "over" if focus else "normal"
    lk = LOOKS[thumb_look]
    thumb = rrect_path(tx, gy + 1, tw, gh - 2, 4)
    svg.path(thumb, fill=svg.linear([(0, lk["top"]), (1, lk["bottom"])]))
    svg.path(thumb, fill="none", stroke=CYAN if focus else "#4b6ea6", stroke_width=1)
    for k in (-4, 0, 4):
        svg.add(el("rect", x=tx + tw / 2 + k - 0.5, y=gy + 3, width=1, height=gh - 6, fill=WHITE,
                   fill_opacity=0.5))

    # Arrow ends: round buttons pointing outward.
    for cx, d in ((x + r, -1), (x + w - r, 1)):
        cy, cr = y + h / 2, r - 4
        svg.add(el("circle", cx=cx, cy=cy + 1.2, r=cr, fill=BLACK, fill_opacity=0.45,
                   filter=svg.blur(0.9)))
        svg.add(el("circle", cx=cx, cy=cy, r=cr,
                   fill=svg.radial([(0, lk["top"]), (1, lk["bottom"])], cx=0.45, cy=0.3, r=0.75)))
        svg.add(el("ellipse", cx=cx, cy=cy - cr * 0.45, rx=cr * 0.68, ry=cr * 0.42,
                   fill=svg.linear([(0, WHITE, 0.3), (1, WHITE, 0)])))
        svg.add(el("circle", cx=cx, cy=cy, r=cr - (1 if focus else 0.5), fill="none",
                   stroke=CYAN if focus else lk["rim"], stroke_width=2 if focus else 1))
        tri = f"M{cx + 4.5 * d},{cy} L{cx - 3 * d},{cy - 5.5} L{cx - 3 * d},{cy + 5.5} Z"
        svg.path(tri, fill=ORANGE_LIGHT if not focus else WHITE,
                 stroke=ORANGE_LIGHT if not focus else WHITE, stroke_width=1.4, stroke_linejoin="round")
    return svg


# --- list highlight (414x39), caption in white from (12, 8) ------------------------------------

def list_bar(name):
    svg = Svg(414, 39, name)
    x, y, w, h, r = 2, 2.5, 410, 33, 10
    body = rrect_path(x, y, w, h, r)
    svg.shadow(body, 0.45, 1.2, 1.5)
    svg.path(body, fill="none", stroke=CYAN, stroke_width=3, stroke_opacity=0.35, filter=svg.blur(1.2))
    svg.path(body, fill=svg.linear([(0, "#24457d"), (0.55, "#2c5291"), (1, "#1f3c6e")], x2=1, y2=0))
    svg.add(group([el("rect", x=x, y=y, width=w, height=h * 0.5,
                      fill=svg.linear([(0, WHITE, 0.10), (1, WHITE, 0)]))], clip_path=svg.clip(body)))
    top_light(svg, x, y, w, h, r, 0.3, 0.35)
    svg.path(body, fill="none", stroke=CYAN, stroke_width=1, stroke_opacity=0.85)
    # Orange marker at the left edge, before the caption.
    svg.path(rrect_path(x + 3, y + 6, 4, h - 12, 2),
             fill=svg.linear([(0, ORANGE_LIGHT), (1, ORANGE_DARK)]))
    # A chevron at the right end says "this row".
    cx, cy = x + w - 16, y + h / 2
    svg.path(f"M{cx - 3},{cy - 6} L{cx + 3},{cy} L{cx - 3},{cy + 6}", fill="none", stroke=ORANGE,
             stroke_width=2.4, stroke_linecap="round", stroke_linejoin="round")
    svg.path(f"M{cx - 10},{cy - 6} L{cx - 4},{cy} L{cx - 10},{cy + 6}", fill="none", stroke=ORANGE,
             stroke_opacity=0.45, stroke_width=2.4, stroke_linecap="round", stroke_linejoin="round")
    return svg


# --- text well (227x72): a name field at (17, 35, 193, 20) or a picker at (18, 0, 195, 50) -----

def text_well(name):
    svg = Svg(227, 72, name)
    x, y, w, h, r = 2, 2, 223, 66, 11
    body = rrect_path(x, y, w, h, r)
    svg.shadow(body, 0.5, 1.4, 1.8)
    svg.path(body, fill=svg.linear([(0, NAVY_LIGHT), (1, PANEL)]))
    top_light(svg, x, y, w, h, r, 0.25, 0.3)
    svg.path(body, fill="none", stroke=PANEL_RIM, stroke_width=1)
    # One tall well for both fields it backs: the name line sits low in it, the picker's
    # digits and arrow buttons fill most of it.  Nothing else is drawn above the well, since
    # the picker is transparent from the panel's top edge down.
    wx, wy, ww, wh, wr = 11, 10, 205, 52, 10
    well = rrect_path(wx, wy, ww, wh, wr)
    svg.path(well, fill=svg.linear([(0, "#dfe6ef"), (0.35, "#f4f7fb"), (1, WHITE)]))
    svg.add(group([pel(well, fill="none", stroke=NAVY_DEEP, stroke_width=4, stroke_opacity=0.45,
                       filter=svg.blur(1.3), transform="translate(0,1.6)")], clip_path=svg.clip(well)))
    svg.path(well, fill="none", stroke=WELL_RIM, stroke_width=1)
    svg.path(rrect_path(wx - 1, wy - 1, ww + 2, wh + 2, wr + 1), fill="none", stroke=CYAN, stroke_width=1,
             stroke_opacity=0.35)
    return svg


# --- timeline link bars --------------------------------------------------------------------------

def link_bar(name, horizontal):
    w, h = (14, 3) if horizontal else (3, 14)
    svg = Svg(w, h, name)
    stops = [(0, "#ffc37a"), (0.45, ORANGE), (1, ORANGE_DARK)]
    fill = svg.linear(stops) if horizontal else svg.linear(stops, x2=1, y2=0)
    svg.add(el("rect", x=0, y=0, width=w, height=h, fill=fill))
    return svg


def pictures():
    pics = {}

    def put(svg):
        pics[svg.title] = svg

    for n, width in (("01", 111), ("02", 180), ("03", 326)):
        for look in ("normal", "over", "selected", "disabled"):
            if n == "03" and look == "disabled":
                continue
            put(blue_button(f"but_{look}_Btn{n}", width, look))
    put(blue_button("but_disabled_Btn01_1", 111, "marked"))

    put(silver_button("but_common_BtnSilver", "silver"))
    put(silver_button("but_common_over_BtnSilver", "silver_over"))
    for side in ("left", "right"):
        put(silver_half(f"but_common_long_{side}_BtnSilver", side, "silver"))
        put(silver_half(f"but_common_long_{side}_over_BtnSilver", side, "silver_over"))

    put(question("but_question", False))
    put(question("but_question_over", True))

    put(small_button("Btn_X_up", "x", False))
    put(small_button("Btn_X_move", "x", True))
    put(small_button("Btn_Go_up", "go", False))
    put(small_button("Btn_Go_focus", "go", True))
    for d in ("Up", "Down"):
        put(small_button(f"ButtonSelectBar{d}_common", d.lower(), False))
        put(small_button(f"ButtonSelectBar{d}_focus", d.lower(), True))

    put(select_strip("SelectBarArrow_common", False))
    put(select_strip("SelectBarArrow_focus", True))
    put(list_bar("long bar"))
    put(text_well("textbox"))
    put(link_bar("smallbarH", True))
    put(link_bar("smallbarV", False))
    return pics


if __name__ == "__main__":
    write_all(pictures())

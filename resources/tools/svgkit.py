"""The drawing kit and the palette every artwork generator shares (standard library only).

Every picture is one Svg: width, height and viewBox equal the picture's pixel size, so the
build can render 1x and 2x from the same file.  Elements are plain strings: el(), pel() and
group() build them, Svg.add() and Svg.path() put them in the picture.
"""

import os

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
SVG_DIR = os.path.join(ROOT, "svg")
MANIFEST = os.path.join(ROOT, "pictures.tsv")

# --- palette -------------------------------------------------------------------------------------

NAVY_DEEP = "#0c1730"
NAVY = "#132446"
NAVY_LIGHT = "#1b3163"
PANEL = "#16284d"
PANEL_RIM = "#2e4a80"
WELL_RIM = "#0a1228"          # hairline round a sunken well
ORANGE = "#ff8000"
ORANGE_LIGHT = "#ffa640"
ORANGE_DARK = "#c85f00"
ORANGE_PALE = "#ffd9a8"       # the hot centre of an orange light
CYAN = "#36d6ff"
CYAN_GLOW = "#8feaff"
GREEN = "#3ddc84"
CORAL = "#ff5a5f"
YELLOW = "#ffd23f"
WHITE = "#ffffff"
BLACK = "#000000"

# The robot's own materials.
SHELL = "#eef2f7"
SHELL_SHADE = "#c5d0de"
JOINT = "#8a97ab"
VISOR = "#1a2236"
OUTLINE = "#66748c"

# The three faces of every button and tile, as the top and bottom of the body's gradient:
# slate at rest, brighter blue under the pointer or with focus, orange when chosen.
SLATE_TOP = "#2d4a7a"
SLATE_BOTTOM = "#223a63"
SLATE_RIM = "#15284a"
FOCUS_TOP = "#3f6fb5"
FOCUS_BOTTOM = "#2f5596"
LIT_TOP = "#ff9a2e"
LIT_BOTTOM = "#e06d00"


# --- numbers and elements ------------------------------------------------------------------------

def fmt(v, places=3):
    """Numbers without trailing noise, so the SVG files stay readable and diff well."""
    if isinstance(v, str):
        return v
    s = f"{v:.{places}f}".rstrip("0").rstrip(".")
    return "0" if s in ("-0", "") else s


def attrs(**kw):
    """Keyword arguments as SVG attributes: stroke_width -> stroke-width, class_ -> class."""
    out = []
    for k, v in kw.items():
        if v is None:
            continue
        out.append(f'{k.rstrip("_").replace("_", "-")}="{fmt(v)}"')
    return " ".join(out)


def el(tag, **kw):
    return f"<{tag} {attrs(**kw)}/>"


def pel(d, **kw):
    return f'<path d="{d}" {attrs(**kw)}/>'


def group(elements, **kw):
    return f"<g {attrs(**kw)}>" + "".join(elements) + "</g>"


def rrect_path(x, y, w, h, tl, tr=None, br=None, bl=None):
    """Closed path of a rectangle with its own radius on each corner (clockwise from top left)."""
    tr = tl if tr is None else tr
    br = tl if br is None else br
    bl = tl if bl is None else bl
    f = fmt
    parts = [f"M{f(x + tl)},{f(y)}", f"H{f(x + w - tr)}"]
    if tr:
        parts.append(f"A{f(tr)},{f(tr)} 0 0 1 {f(x + w)},{f(y + tr)}")
    parts.append(f"V{f(y + h - br)}")
    if br:
        parts.append(f"A{f(br)},{f(br)} 0 0 1 {f(x + w - br)},{f(y + h)}")
    parts.append(f"H{f(x + bl)}")
    if bl:
        parts.append(f"A{f(bl)},{f(bl)} 0 0 1 {f(x)},{f(y + h - bl)}")
    parts.append(f"V{f(y + tl)}")
    if tl:
        parts.append(f"A{f(tl)},{f(tl)} 0 0 1 {f(x + tl)},{f(y)}")
    parts.append("Z")
    return " ".join(parts)


def circle_path(cx, cy, r):
    """A circle as a path, for shapes that must be a path (clips, outlines)."""
    f = fmt
    return (f"M{f(cx - r)},{f(cy)} A{f(r)},{f(r)} 0 1 1 {f(cx + r)},{f(cy)} "
            f"A{f(r)},{f(r)} 0 1 1 {f(cx - r)},{f(cy)} Z")


# --- the picture -----------------------------------------------------------------------------------

class Svg:
    """One picture: collects <defs> and body elements, hands out unique ids.

    Paint servers and filters come back as "url(#id)".  Without a name they get a fresh id;
    a named one is defined once however often it is asked for, so the parts of a picture can
    each ask for the paints they use and refer to them by name in their markup.
    """

    def __init__(self, width, height, title):
        self.w, self.h, self.title = width, height, title
        self.defs, self.body = [], []
        self._names = set()
        self._n = 0

    def uid(self, prefix):
        self._n += 1
        return f"{prefix}{self._n}"

    def define(self, name, markup):
        if name not in self._names:
            self._names.add(name)
            self.defs.append(markup)
        return f"url(#{name})"

    # --- paint servers ------------------------------------------------------------------------
    @staticmethod
    def _stops(stops):
        """stops: [(offset, colour) or (offset, colour, opacity)]."""
        out = []
        for st in stops:
            op = st[2] if len(st) > 2 else 1
            out.append(f'<stop offset="{fmt(st[0])}" stop-color="{st[1]}"'
                       + (f' stop-opacity="{fmt(op)}"' if op != 1 else "") + "/>")
        return "".join(out)

    def linear(self, stops, x1=0, y1=0, x2=0, y2=1, units=None, name=None):
        """Vertical by default."""
        gid = name or self.uid("g")
        u = f' gradientUnits="{units}"' if units else ""
        return self.define(gid, f'<linearGradient id="{gid}" x1="{fmt(x1)}" y1="{fmt(y1)}" '
                                f'x2="{fmt(x2)}" y2="{fmt(y2)}"{u}>{self._stops(stops)}</linearGradient>')

    def radial(self, stops, cx=0.5, cy=0.5, r=0.5, units=None, transform=None, name=None):
        gid = name or self.uid("r")
        u = f' gradientUnits="{units}"' if units else ""
        t = f' gradientTransform="{transform}"' if transform else ""
        return self.define(gid, f'<radialGradient id="{gid}" cx="{fmt(cx)}" cy="{fmt(cy)}" '
                                f'r="{fmt(r)}"{u}{t}>{self._stops(stops)}</radialGradient>')

    # --- filters --------------------------------------------------------------------------------
    def _filter(self, fid, region, primitives, srgb=True):
        space = ' color-interpolation-filters="sRGB"' if srgb else ""
        return self.define(fid, f'<filter id="{fid}" {region}{space}>{primitives}</filter>')

    @staticmethod
    def _box(x, y, w, h):
        """A filter region relative to the filtered shape's bounding box, in percent."""
        return f'x="{x}%" y="{y}%" width="{w}%" height="{h}%"'

    def blur(self, sd):
        """Blur over the whole canvas, so nothing is cut at a shape's bounding box."""
        region = (f'filterUnits="userSpaceOnUse" x="-8" y="-8" width="{self.w + 16}" '
                  f'height="{self.h + 16}"')
        return self._filter(self.uid("f"), region, f'<feGaussianBlur stdDeviation="{fmt(sd)}"/>')

    def soft_blur(self, name, sd):
        """Blur within twice the shape's box, mixed in linear RGB: the halos and pools of light
        in the illustrations."""
        return self._filter(name, self._box(-50, -50, 200, 200),
                            f'<feGaussianBlur stdDeviation="{fmt(sd)}"/>', srgb=False)

    def drop_shadow(self, name, blur, dy, opacity):
        """The shape over a soft dark copy of itself, dy lower."""
        return self._filter(name, self._box(-30, -30, 160, 170), (
            f'<feGaussianBlur in="SourceAlpha" stdDeviation="{fmt(blur)}"/>'
            f'<feOffset dy="{fmt(dy)}" result="o"/>'
            f'<feFlood flood-color="#040914" flood-opacity="{fmt(opacity)}"/>'
            '<feComposite in2="o" operator="in"/>'
            '<feMerge><feMergeNode/><feMergeNode in="SourceGraphic"/></feMerge>'))

    def glow(self, name, blur, opacity):
        """The shape over a blurred copy of itself, so it seems to shine."""
        return self._filter(name, self._box(-100, -100, 300, 300), (
            f'<feGaussianBlur in="SourceGraphic" stdDeviation="{fmt(blur)}" result="b"/>'
            f'<feComponentTransfer in="b" result="c"><feFuncA type="linear" slope="{fmt(opacity)}"/>'
            '</feComponentTransfer>'
            '<feMerge><feMergeNode in="c"/><feMergeNode in="SourceGraphic"/></feMerge>'))

    def inset(self, name, blur, dy, opacity):
        """Inner shadow: darkens the inside edge along the top, a pressed-in look."""
        return self._filter(name, self._box(-10, -10, 120, 120), (
            '<feComponentTransfer in="SourceAlpha" result="inv"><feFuncA type="table" '
            'tableValues="1 0"/></feComponentTransfer>'
            f'<feGaussianBlur in="inv" stdDeviation="{fmt(blur)}"/>'
            f'<feOffset dy="{fmt(dy)}" result="sh"/>'
            f'<feFlood flood-color="#2a0f00" flood-opacity="{fmt(opacity)}"/>'
            '<feComposite in2="sh" operator="in"/>'
            '<feComposite in2="SourceAlpha" operator="in" result="inner"/>'
            '<feMerge><feMergeNode in="SourceGraphic"/><feMergeNode in="inner"/></feMerge>'))

    def shadow(self, d, opacity, sd, dy):
        """A shape's soft shadow: a blurred black copy of it, dy lower; drawn before the shape."""
        self.path(d, fill=BLACK, fill_opacity=opacity, filter=self.blur(sd),
                  transform=f"translate(0,{fmt(dy)})")

    def clip(self, d):
        cid = self.uid("c")
        return self.define(cid, f'<clipPath id="{cid}"><path d="{d}"/></clipPath>')

    # --- body -------------------------------------------------------------------------------------
    def add(self, *elements):
        self.body.extend(elements)

    def path(self, d, **kw):
        self.add(pel(d, **kw))

    def text(self):
        lines = [f'<svg xmlns="http://www.w3.org/2000/svg" version="1.1" width="{self.w}" '
                 f'height="{self.h}" viewBox="0 0 {self.w} {self.h}">',
                 f"<title>{self.title}</title>"]
        if self.defs:
            lines.append("<defs>")
            lines.extend("  " + d for d in self.defs)
            lines.append("</defs>")
        lines.extend(self.body)
        lines.append("</svg>")
        return "\n".join(lines) + "\n"


# --- output ----------------------------------------------------------------------------------------

def svg_file_name(picture_name):
    """Manifest names may hold spaces; their vector sources use underscores instead."""
    return picture_name.replace(" ", "_") + ".svg"


def read_manifest(path):
    """{name: (width, height)} from the picture manifest (tab separated, header first)."""
    out = {}
    with open(path, encoding="utf-8") as f:
        header = f.readline().rstrip("\n").split("\t")
        col = {k: i for i, k in enumerate(header)}
        for line in f:
            if not line.strip():
                continue
            cells = line.rstrip("\n").split("\t")
            out[cells[col["name"]]] = (int(cells[col["width"]]), int(cells[col["height"]]))
    return out


def write_all(pictures):
    """Writes each Svg (keyed by its manifest name) to resources/svg after checking its size
    against the manifest, and says how many changed."""
    manifest = read_manifest(MANIFEST)
    os.makedirs(SVG_DIR, exist_ok=True)
    changed = 0
    for name, svg in pictures.items():
        if name not in manifest:
            raise SystemExit(f"{name}: not in the manifest")
        if (svg.w, svg.h) != manifest[name]:
            raise SystemExit(f"{name}: drawn at {svg.w}x{svg.h}, manifest says "
                             f"{manifest[name][0]}x{manifest[name][1]}")
        path = os.path.join(SVG_DIR, svg_file_name(name))
        text = svg.text()
        # Unchanged files keep their time stamp, so the build renders only what changed.
        if os.path.exists(path):
            with open(path, encoding="utf-8") as f:
                if f.read() == text:
                    continue
        with open(path, "w", encoding="utf-8") as f:
            f.write(text)
        changed += 1
    print(f"{len(pictures)} pictures, {changed} changed, in {SVG_DIR}")

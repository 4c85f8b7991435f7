"""Small helpers for writing the control artwork as SVG 1.1 (standard library only).

Every picture is one Svg: width, height and viewBox equal the picture's pixel size, so the
build can render 1x and 2x from the same file.
"""

import os


def fmt(v):
    """Numbers without trailing noise, so the SVG files stay readable and diff well."""
    if isinstance(v, str):
        return v
    s = f"{v:.3f}".rstrip("0").rstrip(".")
    return "0" if s in ("-0", "") else s


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


def attrs(**kw):
    out = []
    for k, v in kw.items():
        if v is None:
            continue
        out.append(f'{k.rstrip("_").replace("_", "-")}="{fmt(v)}"')
    return " ".join(out)


class Svg:
    """One picture: collects <defs> and body elements, hands out unique ids."""

    def __init__(self, width, height, title):
        self.w = width
        self.h = height
        self.title = title
        self.defs = []
        self.body = []
        self._n = 0

    def uid(self, prefix):
        self._n += 1
        return f"{prefix}{self._n}"

    # --- paint servers and effects -------------------------------------------------
    def linear(self, stops, x1=0, y1=0, x2=0, y2=1, units=None):
        """stops: [(offset, colour) or (offset, colour, opacity)]; vertical by default."""
        gid = self.uid("g")
        s = []
        for st in stops:
            off, col = st[0], st[1]
            op = st[2] if len(st) > 2 else 1
            s.append(f'<stop offset="{fmt(off)}" stop-color="{col}"'
                     + (f' stop-opacity="{fmt(op)}"' if op != 1 else "") + "/>")
        u = f' gradientUnits="{units}"' if units else ""
        self.defs.append(
            f'<linearGradient id="{gid}" x1="{fmt(x1)}" y1="{fmt(y1)}" x2="{fmt(x2)}" y2="{fmt(y2)}"{u}>'
            + "".join(s) + "</linearGradient>")
        return f"url(#{gid})"

    def radial(self, stops, cx=0.5, cy=0.5, r=0.5, fx=None, fy=None, units=None):
        gid = self.uid("r")
        s = []
        for st in stops:
            off, col = st[0], st[1]
            op = st[2] if len(st) > 2 else 1
            s.append(f'<stop offset="{fmt(off)}" stop-color="{col}"'
                     + (f' stop-opacity="{fmt(op)}"' if op != 1 else "") + "/>")
        extra = ""
        if fx is not None:
            extra += f' fx="{fmt(fx)}" fy="{fmt(fy)}"'
        u = f' gradientUnits="{units}"' if units else ""
        self.defs.append(
            f'<radialGradient id="{gid}" cx="{fmt(cx)}" cy="{fmt(cy)}" r="{fmt(r)}"{extra}{u}>'
            + "".join(s) + "</radialGradient>")
        return f"url(#{gid})"

    def blur(self, sd):
        """Gaussian blur whose region is the whole canvas, so nothing is cut at the shape's box."""
        fid = self.uid("f")
        self.defs.append(
            f'<filter id="{fid}" filterUnits="userSpaceOnUse" x="-4" y="-4" '
            f'width="{self.w + 8}" height="{self.h + 8}" color-interpolation-filters="sRGB">'
            f'<feGaussianBlur stdDeviation="{fmt(sd)}"/></filter>')
        return f"url(#{fid})"

    def clip(self, d):
        cid = self.uid("c")
        self.defs.append(f'<clipPath id="{cid}"><path d="{d}"/></clipPath>')
        return f"url(#{cid})"

    # --- body ---------------------------------------------------------------------
    def add(self, element):
        self.body.append(element)

    def path(self, d, **kw):
        self.add(f'<path d="{d}" {attrs(**kw)}/>')

    def group(self, elements, **kw):
        self.add(f"<g {attrs(**kw)}>" + "".join(elements) + "</g>")

    def text(self):
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" version="1.1" width="{self.w}" '
                f'height="{self.h}" viewBox="0 0 {self.w} {self.h}">')
        lines = [head, f"<title>{self.title}</title>"]
        if self.defs:
            lines.append("<defs>")
            lines.extend("  " + d for d in self.defs)
            lines.append("</defs>")
        lines.extend(self.body)
        lines.append("</svg>")
        return "\n".join(lines) + "\n"


def el(tag, **kw):
    return f"<{tag} {attrs(**kw)}/>"


def pel(d, **kw):
    return f'<path d="{d}" {attrs(**kw)}/>'


def svg_file_name(picture_name):
    """Manifest names may hold spaces; their vector sources use underscores instead."""
    return picture_name.replace(" ", "_") + ".svg"


def read_manifest(path):
    """{name: (type, width, height)} from the picture manifest (tab separated, header first)."""
    out = {}
    with open(path, encoding="utf-8") as f:
        header = f.readline().rstrip("\n").split("\t")
        col = {k: i for i, k in enumerate(header)}
        for line in f:
            line = line.rstrip("\n")
            if not line.strip():
                continue
            cells = line.split("\t")
            out[cells[col["name"]]] = (cells[col["type"]], int(cells[col["width"]]),
                                       int(cells[col["height"]]))
    return out


def write_all(pictures, manifest_path, out_dir):
    """Writes each Svg after checking its size against the manifest; returns the paths changed."""
    manifest = read_manifest(manifest_path)
    os.makedirs(out_dir, exist_ok=True)
    written = []
    for name, svg in pictures.items():
        if name not in manifest:
            raise SystemExit(f"{name}: not in the manifest")
        _, w, h = manifest[name]
        if (svg.w, svg.h) != (w, h):
            raise SystemExit(f"{name}: drawn at {svg.w}x{svg.h}, manifest says {w}x{h}")
        path = os.path.join(out_dir, svg_file_name(name))
        text = svg.text()
        # Unchanged files keep their time stamp, so the build renders only what changed.
        if os.path.exists(path):
            with open(path, encoding="utf-8") as f:
                if f.read() == text:
                    continue
        with open(path, "w", encoding="utf-8") as f:
            f.write(text)
        written.append(path)
    return written

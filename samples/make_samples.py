#!/usr/bin/env python3
"""Writes the sample project: a synthetic lake core of four bore holes, some 70 m deep.

Python 3 standard library only. The random generator has a fixed seed, so every run
writes the same bytes. Usage:

    python3 make_samples.py [folder]

The folder defaults to the one this script lives in. Every file ends its rows with
CR LF and has no blank line after the last row.
"""

import math
import os
import random
import sys

SEED = 20250314
HOLES = "ABCD"
# Header cells of the correlation model: the letter in brackets names the hole.
HEADER_TITLES = {"A": "Bore hole A (A)", "B": "Core 6 (B)", "C": "Core 7 (C)", "D": "Bore hole D (D)"}
LONG_TITLES = {"A": "Bore hole A", "B": "Core 6", "C": "Core 7", "D": "Bore hole D"}

MODEL_FILE = "correlation_model_20250314.csv"
MODEL_VERSION_TEXT = "14 Mar. 2025"  # the version date that the model's file name gives
EVENT_FILE = "event_layers_20250320.csv"
AGE_FILE = "age_depth_model_20250402.csv"
VARVE_FILE = "varve_counts_20250325.csv"
DUO_MODEL_FILE = "duo_correlation_model_20250610.csv"
DUO_EVENT_FILE = "duo_event_layers_20250612.csv"
# The parallel set's holes: E and F hold sections, G and H were not drilled.
DUO_HEADER_TITLES = {"E": "Bore hole E (E)", "F": "Core 9 (F)", "G": "Bore hole G (G)", "H": "Bore hole H (H)"}
# The Duo's sections: the composite depth of each top, every section 150 cm long
# and straight in its PSP; F is offset by half a section.
DUO_SECTION_LENGTH = 150.0
DUO_SECTION_STEP = 152.0
DUO_FIRST_TOP = {"E": 0.0, "F": 75.0}
DUO_DEPTH = 1450.0
# The Duo's composite scale against the master's, at its tie points.
DUO_SCALE, DUO_OFFSET = 0.97, 5.0
PREFIX = "'"
EOL = "\r\n"

# Where each hole starts (composite depth, drilling depth) and the deepest composite depth it reaches.
HOLE_PLAN = {"A": (0.0, 0.0, 7000.0), "B": (48.6, 46.0, 7040.0), "C": (97.3, 95.0, 6960.0), "D": (23.1, 22.0, 4600.0)}
# A stretch that no hole recovered: the composite has a gap here.
GAP_TOP, GAP_BOTTOM = 3826.0, 3847.5
# The top of the varve counted stretch, the first and last marker of the varve record, its base.
VARVE_STRETCH = (20.0, 1440.0)
VARVE_RECORD = (35.0, 1420.0)
VARVE_RATE = 0.105  # cm a year, on the event free scale
AGE_AT_SURFACE = -70  # coring in 2020 CE


def num(x, digits=1):
    """Shortest decimal text with at most `digits` decimals: no trailing zeros, never "-0"."""
    text = f"{x:.{digits}f}"
    if "." in text:
        text = text.rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def csv_line(fields):
    return ",".join(fields) + EOL


def quoted(text):
    return '"' + text + '"' if "," in text else text


# ---------------------------------------------------------------------------
# Sections and the composite scale
# ---------------------------------------------------------------------------


class Section:
    """A core section: composite depth runs nearly linear in PSP, with a gentle bow."""

    def __init__(self, hole, number, top_cd, length, stretch, bow, drill_top):
        self.hole = hole
        self.number = number
        self.name = f"{number:02d}"
        self.top_cd = top_cd
        self.length = length
        self.stretch = stretch
        self.bow = bow
        self.drill_top = drill_top

    def cd(self, psp):
        return self.top_cd + self.stretch * psp + self.bow * math.sin(math.pi * psp / self.length)

    @property
    def bottom_cd(self):
        return self.cd(self.length)

    def psp(self, cd):
        lo, hi = 0.0, self.length
        for _ in range(60):
            mid = (lo + hi) / 2
            if self.cd(mid) < cd:
                lo = mid
            else:
                hi = mid
        return (lo + hi) / 2

    def holds(self, cd, margin=0.0):
        """True if the composite depth lies in the section at least `margin` cm of PSP from its ends."""
        if not self.top_cd <= cd <= self.bottom_cd:
            return False
        p = self.psp(cd)
        return margin <= p <= self.length - margin


def make_sections(rng):
    sections = {}
    for hole in HOLES:
        top, drill, end = HOLE_PLAN[hole]
        gap_margin = rng.uniform(2.0, 12.0)
        found = []
        while True:
            stretch = round(rng.uniform(0.97, 1.05), 3)
            length = round(rng.uniform(100.0, 200.0), 1)
            room = (GAP_TOP - gap_margin - top) / stretch
            fitted = top < GAP_TOP and room <= 200.0
            if fitted:
                length = round(room, 1)
            elif top < GAP_TOP and room <= 400.0:
                length = round(room / 2, 1)
            if top + 100.0 * stretch > end:
                break
            length = min(length, round((end - top) / stretch, 1))
            if length < 100.0:
                break
            bow = round(rng.uniform(-2.5, 2.5), 1)
            section = Section(hole, len(found) + 1, round(top, 1), length, stretch, bow, round(drill, 1))
            found.append(section)
            bottom = section.bottom_cd
            if fitted:
                next_top = GAP_BOTTOM + rng.uniform(0.5, 6.0)
                loss = (next_top - bottom) * 0.9
            else:
                loss = rng.uniform(0.0, 6.0)
                next_top = bottom + loss * rng.uniform(0.9, 1.2) + rng.uniform(0.5, 4.0)
            top = round(next_top, 1)
            drill = drill + length + loss
        sections[hole] = found
    return sections


def section_at(sections, hole, cd, margin=0.0):
    for section in sections[hole]:
        if section.holds(cd, margin):
            return section
    return None


class Row:
    """One row of the correlation model: a horizon and where it lies in each bore hole."""

    def __init__(self, kind, z, holes, cd=None):
        self.kind = kind  # top, bottom, tie, lamina, pin, gap, void
        self.z = z  # composite depth of the horizon
        self.key = z  # place in the file
        self.holes = holes  # hole -> (section, psp)
        self.cd = cd  # composite depth text of the tie, None for no tie
        self.splice = None
        self.labels = {}
        self.name = None  # a tie's name in the splice column


def tie_row(sections, z, margin=2.0):
    holes = {}
    for hole in HOLES:
        section = section_at(sections, hole, z, margin)
        if section is not None:
            holes[hole] = (section, round(section.psp(z), 1))
    return Row("tie", z, holes, num(z)) if holes else None


def make_ties(rng, sections):
    ties = []
    ends = [e for h in HOLES for s in sections[h] for e in (s.top_cd, s.bottom_cd)]
    z = 4.0
    while z < 7100.0:
        z += rng.uniform(8.0, 22.0)
        row = tie_row(sections, round(z, 1))
        if row is None or any(abs(e - row.z) < 1.0 for e in ends):
            continue
        if len(row.holes) >= 3 and rng.random() < 0.2:
            del row.holes[rng.choice(sorted(row.holes))]
        ties.append(row)
    return ties


def section_rows(sections):
    rows = []
    for hole in HOLES:
        for section in sections[hole]:
            top = Row("top", section.top_cd, {hole: (section, 0.0)}, num(section.top_cd))
            top.labels[hole] = f"{hole}-{section.name}-top"
            bottom = Row("bottom", section.bottom_cd, {hole: (section, section.length)})
            bottom.labels[hole] = f"{hole}-{section.name}-bottom"
            rows += [top, bottom]
    return rows


def make_splice(cd_rows):
    """The hole that carries the composite. A switch happens at a tie row that both holes
    share; that row still names the upper hole and the next row names the lower one."""
    current = "A"
    for i, row in enumerate(cd_rows):
        after_gap = i > 0 and cd_rows[i - 1].z < GAP_TOP < row.z
        if after_gap or current not in row.holes and not any(
            s.holds(row.z) for s in SECTIONS[current]
        ):
            current = max(row.holes, key=lambda h: row.holes[h][0].bottom_cd)
        row.splice = current
        if current not in row.holes or i + 1 == len(cd_rows):
            continue
        following = cd_rows[i + 1]
        reach = row.holes[current][0].bottom_cd
        if following.z < reach - 2.0 or following.z > GAP_TOP > row.z:
            continue
        others = [h for h in row.holes if h != current and row.holes[h][0].bottom_cd > reach]
        if others:
            current = max(others, key=lambda h: row.holes[h][0].bottom_cd)


def stable_stretch(cd_rows, sections, z_from, z_to, clear=None):
    """The splice hole and its section if that hole carries the whole stretch with room to
    spare, else None. With `clear`, no section of any hole may end that near the stretch."""
    inside = [r for r in cd_rows if z_from - 30.0 <= r.z <= z_to + 30.0]
    if not inside or len({r.splice for r in inside}) != 1:
        return None
    hole = inside[0].splice
    section = section_at(sections, hole, z_from, 3.0)
    if section is None or not section.holds(z_to, 3.0):
        return None
    if clear is not None:
        for h in HOLES:
            for s in sections[h]:
                if any(z_from - clear <= end <= z_to + clear for end in (s.top_cd, s.bottom_cd)):
                    return None
    return hole, section


# ---------------------------------------------------------------------------
# The correlation model
# ---------------------------------------------------------------------------

SECTIONS = {}
# Tie names in the splice column: the tephra's description and its thickness in PSP cm.
TEPHRA_NAMES = {"T-3": ("Tephra T-3", 2.4), "LST": ("Laacher Tephra", 8.3), "Y-5": ("Y-5 tephra", 4.1),
                "T-8": ("Tephra T-8", 1.1)}


def build_model(rng):
    """Returns the rows in file order and the special places: voids, named ties."""
    SECTIONS.update(make_sections(rng))
    ties = make_ties(rng, SECTIONS)
    fixed = section_rows(SECTIONS)

    def cd_rows():
        return sorted([r for r in ties] + [r for r in fixed if r.kind == "top"], key=lambda r: r.z)

    make_splice(cd_rows())

    # Voids in the spliced core: a tie just above and just below, nothing else between.
    voids = []
    for target, thickness in ((1478.0, 6.4), (5127.0, 8.2)):
        z = target
        while True:
            found = stable_stretch(cd_rows(), SECTIONS, z - 2.0, z + thickness + 2.0, clear=3.0)
            if found:
                break
            z += 5.0
        hole, section = found
        top, bottom = round(z, 1), round(z + thickness, 1)
        ties[:] = [t for t in ties if not top - 15.0 <= t.z <= bottom + 15.0]
        above, below = tie_row(SECTIONS, round(top - 1.5, 1)), tie_row(SECTIONS, round(bottom + 1.5, 1))
        ties += [above, below]
        voids.append((hole, section, top, bottom, above, below))
        make_splice(cd_rows())

    # Tephras whose upper boundary is a named tie in the splice column.
    named = {}
    for name, target in (("T-3", 823.0), ("LST", 1252.0), ("Y-5", 3004.0), ("T-8", 5206.0)):
        z = target
        while not stable_stretch(cd_rows(), SECTIONS, z - 6.0, z + 6.0):
            z += 3.0
        z = round(z, 1)
        ties[:] = [t for t in ties if not z - 4.0 <= t.z <= z + 4.0]
        row = tie_row(SECTIONS, z)
        row.name = name
        ties.append(row)
        named[name] = row
        make_splice(cd_rows())

    ordered = cd_rows()
    for row in ordered:
        if row.name:
            row.splice = row.name

    # Laminae seen in one hole only, and pins.
    keep_out = [(v[4].z - 0.5, v[5].z + 0.5) for v in voids]
    laminae = []
    for hole in HOLES:
        for section in SECTIONS[hole]:
            taken = [p for t in ties for s, p in t.holes.values() if s is section]
            chosen = []
            for _ in range(rng.randint(4, 9)):
                for _attempt in range(20):
                    psp = round(rng.uniform(1.0, section.length - 1.0), 1)
                    z = section.cd(psp)
                    if all(abs(psp - p) >= 0.5 for p in taken + chosen) and not any(
                        a <= z <= b for a, b in keep_out
                    ):
                        chosen.append(psp)
                        break
            for j, psp in enumerate(sorted(chosen), start=1):
                row = Row("lamina", section.cd(psp), {hole: (section, psp)})
                row.labels[hole] = f"{hole}-{section.name}-L{j}"
                laminae.append(row)
    for n, share in enumerate((0.02, 0.19, 0.4, 0.6, 0.8, 0.97), start=1):
        row = laminae[int(share * len(laminae))]
        row.kind = "pin"
        (hole,) = row.holes
        row.labels[hole] = ("pin " if n == 6 else "Pin ") + str(n)

    # Labels of the ties: a running number, or the tephra's name.
    numbered = [row for row in ordered if row.kind == "tie"]
    for n, row in enumerate(numbered, start=1):
        for hole in row.holes:
            row.labels[hole] = TEPHRA_NAMES[row.name][0] if row.name else f"T{n:04d}"

    rows = fixed + ties + laminae
    # The gap row stands right before the first section top below the gap.
    first_below = min((r for r in fixed if r.kind == "top" and r.z > GAP_TOP), key=lambda r: r.z)
    gap = Row("gap", GAP_TOP, {}, None)
    gap.cd = num(max(r.z for r in fixed if r.kind == "bottom" and r.z < GAP_TOP) + 0.05)
    gap.splice = "Gap"
    gap.key = first_below.z - 0.001
    rows.append(gap)
    for hole, section, top, bottom, above, below in voids:
        void = Row("void", top, {}, num(top))
        void.splice = "Void"
        void.key = below.z - 0.001
        rows.append(void)

    rank = {"bottom": 0, "gap": 1, "void": 1, "tie": 2, "lamina": 2, "pin": 2, "top": 3}
    rows.sort(key=lambda r: (r.key, rank[r.kind]))
    check_order(rows)
    return rows, voids, named


def check_order(rows):
    for hole in HOLES:
        last = (0, -1.0)
        for row in rows:
            if hole in row.holes:
                section, psp = row.holes[hole]
                here = (section.number, psp)
                assert here > last, (hole, here, last)
                last = here


def star_cells(rng, rows):
    """A few values that the file marks as unsure: a star before or after the number."""
    laminae = [r for r in rows if r.kind == "lamina"]
    stars = {}
    for n in range(6):
        row = laminae[rng.randrange(len(laminae))]
        (hole,) = row.holes
        stars[(id(row), hole)] = ("psp" if n < 3 else "drill", "before" if n % 2 else "after")
    return stars


def model_text(rows, stars):
    header = ["Splice"]
    for hole in HOLES:
        header += [HEADER_TITLES[hole], "PSP (cm)", "Drilling depth (cm)"]
    header.append("Composite depth (cm)")
    lines = [csv_line(PREFIX + c for c in header)]
    for row in rows:
        if row.cd is not None:
            first, last = row.splice, row.cd
        elif row.kind == "bottom":
            first, last = "", ""
        else:
            first, last = "---", "---"
        cells = [first]
        for hole in HOLES:
            if hole in row.holes:
                section, psp = row.holes[hole]
                values = {"psp": num(psp), "drill": num(section.drill_top + psp)}
                star = stars.get((id(row), hole))
                if star:
                    item, side = star
                    values[item] = "*" + values[item] if side == "before" else values[item] + "*"
                cells += [row.labels[hole], values["psp"], values["drill"]]
            else:
                cells += ["", "9999", "9999"]
        cells.append(last)
        lines.append(csv_line(PREFIX + c for c in cells))
    return "".join(lines)


# ---------------------------------------------------------------------------
# Conversions on the written model, as the program makes them
# ---------------------------------------------------------------------------


class Model:
    """The model as read back from its text: cells without prefix, stars made 9999."""

    def __init__(self, text):
        lines = text.split(EOL)[:-1]
        self.cells = []
        for line in lines:
            fields = [f[1:].strip() for f in line.split(",")]
            for i in range(1, 13):
                if fields[i].startswith("*") or fields[i].endswith("*"):
                    fields[i] = "9999"
            for i in (0, 13):
                if fields[i] in ("", "---"):
                    fields[i] = "9999"
            self.cells.append(fields)
        self.tops = {h: {} for h in HOLES}
        for r, fields in enumerate(self.cells[1:], start=1):
            for k, hole in enumerate(HOLES):
                label = fields[1 + 3 * k]
                if label[-3:] in ("top", "Top"):
                    self.tops[hole][label.split("-")[1]] = r

    def psp(self, hole, r):
        return float(self.cells[r][2 + 3 * HOLES.index(hole)])

    def label(self, hole, r):
        return self.cells[r][1 + 3 * HOLES.index(hole)]

    def cd(self, r):
        return float(self.cells[r][13])

    def composite(self, hole, section, psp):
        """Composite depth of a position by the proportional method."""
        top = self.tops[hole][section]
        last, previous, count = 0, 0, 0
        if self.cd(top) != 9999:
            last, count = top, 1
        for r in range(top + 1, len(self.cells)):
            p, c = self.psp(hole, r), self.cd(r)
            if p != 9999 and c != 9999 and p != 0:
                previous, last, count = last, r, count + 1
            if self.psp(hole, last) >= psp and c != 9999 and previous != 0:
                break
            if self.label(hole, r)[-3:] in ("tom", "Bot"):
                break
        if count == 1:
            return self.cd(last) + psp - self.psp(hole, last)
        a, b = previous, last
        return self.cd(a) + (psp - self.psp(hole, a)) * (self.cd(b) - self.cd(a)) / (
            self.psp(hole, b) - self.psp(hole, a)
        )


def merged(layers):
    """Union of overlapping layers, sorted by top."""
    out = []
    for top, bottom in sorted(layers):
        if out and out[-1][1] > top:
            out[-1][1] = max(out[-1][1], bottom)
        else:
            out.append([top, bottom])
    return out


def efd_of(cd, layers):
    above = 0.0
    for top, bottom in layers:
        if bottom < cd:
            above += bottom - top
        elif top < cd:
            above += cd - top
    return cd - above


# ---------------------------------------------------------------------------
# Event layers
# ---------------------------------------------------------------------------

# Approximate composite depth, thickness in cm, description.
EVENT_PLAN = [
    (96.0, 1.8, "Flood layer"),
    (214.0, 0.6, "Tephra T-1"),
    (566.0, 2.1, "Flood layer"),
    (1012.0, 11.6, "Turbidite"),
    (1353.0, 3.3, "Turbidite, graded"),
    (1966.0, 5.2, "Flood layer"),
    (2318.0, 14.8, "Mass movement deposit"),
    (2604.0, 0.3, "Tephra T-5"),
    (3196.0, 7.4, "Turbidite"),
    (3552.0, 2.6, "Flood layer"),
    (4088.0, 9.9, "Turbidite"),
    (4301.0, 1.7, "Tephra T-7"),
    (4742.0, 23.5, "Turbidite"),
    (5560.0, 4.4, "Flood layer"),
    (5893.0, 12.7, "Turbidite"),
    (6104.0, 2.2, "Tephra T-9"),
    (6420.0, 38.0, "Slump"),
    (6788.0, 6.1, "Turbidite"),
]


def splice_hole_at(rows, z):
    hole = "A"
    for row in rows:
        if row.cd is not None and row.z <= z and row.splice in HOLES:
            hole = row.splice
    return hole


def place(rows, z, thickness, hole=None, margin=1.5):
    """Hole, section and the two PSPs of a layer near z in the splice hole (or the hole given)."""
    while True:
        h = hole or splice_hole_at(rows, z)
        section = section_at(SECTIONS, h, z, margin)
        if section is not None and section.holds(z + thickness, margin):
            top = round(section.psp(z), 1)
            return h, section, top, round(top + thickness / section.stretch, 1)
        z += 2.5


def other_hole_at(z, thickness, besides):
    for hole in HOLES:
        if hole != besides:
            section = section_at(SECTIONS, hole, z, 2.0)
            if section is not None and section.holds(z + thickness + 1.0, 2.0):
                return hole
    raise AssertionError("no second hole at %s" % z)


def make_events(rows, model, voids, named):
    events = []  # (hole, section name, top psp, bottom psp, description)

    def add(h, section, top, bottom, text):
        events.append((h, section.name, top, bottom, text))

    for z, thickness, text in EVENT_PLAN:
        add(*place(rows, z, thickness), text)
    # The same turbidite logged in two holes: the two entries overlap and fuse.
    h, section, top, bottom = place(rows, 331.0, 4.5)
    add(h, section, top, bottom, "Turbidite")
    z = section.cd(top) + 0.8
    other = other_hole_at(z, 4.5, h)
    add(*place(rows, z, 4.5, hole=other), "Turbidite")
    # A tephra that reaches into the top of the turbidite beneath it.
    h, section, top, bottom = place(rows, 452.0, 7.4)
    add(h, section, top, round(top + 1.6, 1), "Tephra T-2")
    add(h, section, round(top + 1.2, 1), bottom, "Turbidite")
    # Two layers that touch: they stay two.
    h, section, top, bottom = place(rows, 1718.0, 11.0)
    add(h, section, top, round(top + 5.0, 1), "Flood layer")
    add(h, section, round(top + 5.0, 1), bottom, "Turbidite")
    # A flood layer logged inside a slump: it vanishes into it.
    h, section, top, bottom = place(rows, 2103.0, 85.0)
    add(h, section, top, bottom, "Slump")
    add(h, section, round(top + 31.4, 1), round(top + 34.9, 1), "Flood layer")
    # Tephras on named ties: their top is the tie.
    for name, row in named.items():
        h = splice_hole_at(rows, row.z)
        section, top = row.holes[h]
        text, thickness = TEPHRA_NAMES[name]
        add(h, section, top, round(top + thickness, 1), text)
    for hole, section, top, bottom, _above, _below in voids:
        add(hole, section, round(section.psp(top), 1), round(section.psp(bottom), 1), "Void")
    # No boundary may fall on a rounding tie of its composite depth at four decimals: a PSP
    # read as a single or as a double would then round to different depths.
    for i, (hole, section, top, bottom, text) in enumerate(events):
        while on_tie(model.composite(hole, section, top)):
            top = round(top + 0.1, 1)
        while on_tie(model.composite(hole, section, bottom)):
            bottom = round(bottom + 0.1, 1)
        events[i] = (hole, section, top, bottom, text)
    order = sorted(range(len(events)), key=lambda i: SECTION_BY[(events[i][0], events[i][1])].cd(events[i][2]))
    return [events[i] for i in order]


def on_tie(cd):
    fraction = cd * 1e4 - math.floor(cd * 1e4)
    return abs(fraction - 0.5) < 0.01


SECTION_BY = {}


def event_text(events):
    lines = [csv_line(["Bore hole", "Section", "Top (PSP cm)", "Bottom (PSP cm)", "Description"])]
    for hole, section, top, bottom, text in events:
        lines.append(csv_line([hole, section, num(top), num(bottom), quoted(text)]))
    return "".join(lines)


# ---------------------------------------------------------------------------
# Ages: varve counts and the age-depth model
# ---------------------------------------------------------------------------


def make_varves(rng, efd, layers):
    """Markers with the running count of varves, counted from the first marker."""
    markers = []
    z = VARVE_RECORD[0]
    while z <= VARVE_RECORD[1] + 0.01:
        inside = any(top - 0.3 <= z <= bottom + 0.3 for top, bottom in layers)
        if not inside:
            markers.append(round(z, 1))
        z += rng.uniform(2.5, 6.0)
    if markers[-1] != VARVE_RECORD[1]:
        markers.append(VARVE_RECORD[1])
    counts = [0]
    for upper, lower in zip(markers, markers[1:]):
        rate = VARVE_RATE * math.exp(rng.gauss(0.0, 0.25))
        counts.append(counts[-1] + max(1, round((efd(lower) - efd(upper)) / rate)))
    return markers, counts


def varve_text(markers, counts):
    lines = [csv_line(["Composite depth (cm)", "Varve count"])]
    for z, n in zip(markers, counts):
        lines.append(csv_line([num(z), str(n)]))
    return "".join(lines)


# Rows of the age-depth model below the varves: approximate composite depth (or the
# tephra whose top is dated), class, kind of date.
AGE_PLAN = [
    (1523.0, "C2", "14C"),
    (1804.0, "C3", "14C"),
    (2157.0, "C2", "14C"),
    ("T-5", "C1", "tephra"),
    (2948.0, "C3", "14C"),
    (3297.0, "C4", "OSL"),
    (3611.0, "C2", "14C"),
    (4052.0, "C3", "14C"),
    ("T-7", "C1", "tephra"),
    (4688.0, "C5", "pollen"),
    (5101.0, "C4", "OSL"),
    (5614.0, "C3", "14C"),
    (6077.0, "C4", "OSL"),
    (6512.0, "C5", "pollen"),
    (6943.0, "C4", "OSL"),
]
# Reference rows (class R): approximate composite depth (or named tie), label, how many
# years the date misses the true age, remark.
REFERENCE_PLAN = [
    (842.0, "Poz-80417", 1400, "reworked plant remains"),
    ("LST", "Laacher See Tephra", 0, "literature age"),
    (2291.0, "Poz-80488", 2600, "bulk sediment, hard water effect"),
    (4467.0, "Beta-612207", -3100, "root intrusion"),
]


def age_below_varves(efd_value, base_efd, base_age):
    """Ages below the varves: the accumulation rate slows with depth."""
    x = efd_value - base_efd
    return base_age + 6.0 * x + 0.0004 * x * x


def make_age_model(rng, rows, model, efd, layers, markers, counts, tephra_tops):
    age_at_first = AGE_AT_SURFACE + round(efd(markers[0]) / VARVE_RATE)

    def varve_age(z):
        for (z1, n1), (z2, n2) in zip(zip(markers, counts), zip(markers[1:], counts[1:])):
            if z1 <= z <= z2:
                return age_at_first + n1 + (n2 - n1) * (efd(z) - efd(z1)) / (efd(z2) - efd(z1))
        if z < markers[0]:
            return age_at_first - (efd(markers[0]) - efd(z)) / VARVE_RATE
        return age_at_first + counts[-1] + (efd(z) - efd(markers[-1])) / VARVE_RATE

    def dated_sample(z):
        """A sample in the splice near z, clear of every event layer."""
        while True:
            h, section, psp, _ = place(rows, z, 1.0)
            cd = model.composite(h, section.name, psp)
            if not any(top - 2.0 <= cd <= bottom + 2.0 for top, bottom in layers):
                return h, section, psp, cd
            z += 5.0

    base_efd = efd(VARVE_STRETCH[1])
    base_age = varve_age(VARVE_STRETCH[1])

    def true_age(z):
        return varve_age(z) if z <= VARVE_STRETCH[1] else age_below_varves(efd(z), base_efd, base_age)

    header = ["Label", "Bore hole", "Section", "PSP (cm)", f"Composite depth ({MODEL_VERSION_TEXT})",
              "Plus error (95.4 %)", "Age", "Minus error (95.4 %)", "Class", "Unit", "Remark"]
    out = [header]
    out.append(["Core top", "---", "---", "---", "0", "0", str(AGE_AT_SURFACE), "0", "C1", "varve yr BP",
                "year of coring 2020 CE"])
    # Varve ages: the stretch's ends and every tenth marker between.
    varve_rows = [VARVE_STRETCH[0]] + markers[12:-5:25] + [VARVE_STRETCH[1]]
    for n, z in enumerate(varve_rows, start=1):
        age = round(varve_age(z))
        counted = age - AGE_AT_SURFACE
        out.append([f"Varve V-{n:02d}", "---", "---", "---", num(z), str(round(0.025 * counted + 4)), str(age),
                    str(round(0.012 * counted + 2)), "V", "varve yr BP", "varve count"])
    references = []
    for z, label, offset, remark in REFERENCE_PLAN:
        if isinstance(z, str):
            z = float(tephra_tops[z])
            references.append((z, [label, "---", "---", "---", num(z), "40", "13006", "40", "R", "cal yr BP", remark]))
            continue
        h, section, psp, cd = dated_sample(z)
        age = round(true_age(cd) + offset, -1)
        references.append((cd, [label, h, section.name, num(psp), num(cd), str(round(age * 0.02 + 30)), num(age),
                                str(round(age * 0.018 + 30)), "R", "cal yr BP", remark]))
    lab = 80500
    for z, cls, kind in AGE_PLAN:
        if isinstance(z, str):
            cd = float(tephra_tops[z])
            age = round(true_age(cd) + rng.uniform(-60, 60), -1)
            error = round(age * 0.012, -1)
            row = [f"Tephra {z}", "---", "---", "---", tephra_tops[z], num(error), num(age), num(error), cls, "cal yr BP",
                   "tephra, Ar/Ar age"]
        else:
            h, section, psp, cd = dated_sample(z)
            age = round(true_age(cd) * rng.uniform(0.985, 1.015), -1)
            spread = {"C2": 0.012, "C3": 0.02, "C4": 0.08, "C5": 0.12}[cls]
            plus, minus = round(age * spread * rng.uniform(0.9, 1.3), -1), round(age * spread * rng.uniform(0.7, 1.0), -1)
            if kind == "14C":
                lab += rng.randint(7, 60)
                label, remark = f"Poz-{lab}", "AMS 14C, IntCal20"
            elif kind == "OSL":
                label, remark = f"OSL-{rng.randint(10, 99)}", "OSL, quartz"
            else:
                label, remark = f"Pollen zone {rng.choice('PQRSTUV')}", "pollen stratigraphy"
            if kind == "pollen":
                row = [label, "---", "---", "---", num(round(cd)), num(plus), num(age), num(minus), cls, "cal yr BP",
                       remark]
            else:
                row = [label, h, section.name, num(psp), num(cd), num(plus), num(age), num(minus), cls, "cal yr BP",
                       remark]
        out.append(row)
    # Reference rows go where their depth puts them.
    for cd, row in sorted(references, key=lambda x: x[0]):
        for i in range(1, len(out)):
            if float(out[i][4]) > cd:
                out.insert(i, row)
                break
    return "".join(csv_line(quoted(c) for c in r) for r in out)


# ---------------------------------------------------------------------------
# Files to convert
# ---------------------------------------------------------------------------


def positions_text():
    rows = [["Sample", "Bore hole", "Section", "PSP (cm)"]]
    # Hole, section and the share of the section's length; 1.08 lies below the section's bottom.
    picks = [("A", "05", 0.41), ("B", "03", 0.12), ("A", "12", 0.93), ("C", "08", 0.55), ("D", "20", 0.27),
             ("B", "17", 0.71), ("A", "05", 1.08), ("C", "21", 0.07), ("A", "29", 0.6), ("B", "31", 0.33),
             ("D", "09", 0.84), ("C", "40", 0.47), ("A", "40", 0.1), ("B", "11", None)]
    for n, (hole, section, share) in enumerate(picks, start=1):
        psp = 9999 if share is None else round(share * SECTION_BY[(hole, section)].length, 1)
        hole_text = LONG_TITLES[hole] if n % 3 == 0 else hole
        section_text = section.lstrip("0") if n % 4 == 1 else section
        rows.append([f"LC20-{n:03d}", hole_text, section_text, num(psp)])
    return "".join(csv_line(r) for r in rows)


def values_text(header, values, prefix):
    rows = [["Sample", header]]
    for n, value in enumerate(values, start=1):
        rows.append([f"{prefix}-{n:03d}", value])
    return "".join(csv_line(r) for r in rows)


# ---------------------------------------------------------------------------
# Proxy records
# ---------------------------------------------------------------------------


def smooth_noise(rng, n, scale, corr=0.9):
    out, v = [], 0.0
    for _ in range(n):
        v = corr * v + rng.gauss(0.0, scale)
        out.append(v)
    return out


def proxy_l1(rng, layers):
    """XRF core scanning on composite depth, every 5 cm: position and four element counts."""
    depths = [z * 5.0 for z in range(0, 1401)]
    noise = [smooth_noise(rng, len(depths), s) for s in (120.0, 400.0, 300.0, 20.0)]
    lines = [csv_line(["Composite depth (cm)", "Ti (cps)", "Ca (cps)", "Fe (cps)", "Mn (cps)"])]
    for i, z in enumerate(depths):
        event = any(t <= z <= b for t, b in layers)
        ti = 2100 + 600 * math.sin(z / 610.0) + noise[0][i] + (900 if event else 0)
        ca = 5200 + 2500 * math.cos(z / 930.0) + noise[1][i] - (1500 if event else 0)
        fe = 3400 + 700 * math.sin(z / 410.0 + 1.0) + noise[2][i]
        mn = 180 + 60 * math.sin(z / 250.0) + noise[3][i]
        values = [str(max(1, round(v))) for v in (ti, ca, fe, mn)]
        if i in (311, 312):
            values[3] = "-9999"  # a scan gap: no Mn value
        lines.append(csv_line([num(z)] + values))
    return "".join(lines)


def proxy_l2(rng, ages):
    """Pollen percentages by sample on an age axis in years before 1950."""
    lines = [csv_line(["Sample", "Age (cal yr BP)", "Pinus (%)", "Betula (%)", "Quercus (%)", "Poaceae (%)",
                       "Arboreal pollen (%)"])]
    for n, age in enumerate(ages, start=1):
        warm = 0.5 + 0.5 * math.cos(age / 9000.0)
        pinus = 20 + 25 * warm + rng.uniform(-4, 4)
        betula = 8 + 10 * (1 - warm) + rng.uniform(-2, 2)
        quercus = 1 + 14 * warm + rng.uniform(0, 2)
        poaceae = 6 + 30 * (1 - warm) + rng.uniform(-3, 3)
        ap = min(98.0, pinus + betula + quercus + 10)
        values = [num(v) for v in (pinus, betula, quercus, poaceae, ap)]
        lines.append(csv_line([f"PO-{n:03d}", str(age)] + values))
    return "".join(lines)


def proxy_l3(rng):
    """Core logging of bore hole A by section and PSP, every 4 cm."""
    lines = [csv_line(["Bore hole", "Section", "PSP (cm)", "Magnetic susceptibility (10^-5 SI)",
                       "Gamma density (kg/m3)"])]
    for section in SECTIONS["A"]:
        psp = 2.0
        while psp <= section.length - 2.0:
            z = section.cd(psp)
            ms = 12 + 9 * math.sin(z / 300.0) + rng.uniform(-1.5, 1.5)
            density = 1380 + 0.03 * z + 40 * math.sin(z / 170.0) + rng.uniform(-8, 8)
            lines.append(csv_line(["A", str(section.number), num(psp), num(ms), num(density, 0)]))
            psp += 4.0
    return "".join(lines)


def proxy_l4(rng, rows):
    """Grain size of discrete samples in the splice, by label, hole, section and PSP."""
    lines = [csv_line(["Sample", "Bore hole", "Section", "PSP (cm)", "Clay (%)", "Silt (%)", "Sand (%)",
                       "Median (um)"])]
    z, n = 30.0, 0
    while z < 6950.0:
        hole, section, psp, _ = place(rows, z, 1.0, margin=1.0)
        n += 1
        clay = 30 + 12 * math.sin(z / 500.0) + rng.uniform(-3, 3)
        sand = 3 + 4 * (1 + math.sin(z / 777.0)) + rng.uniform(0, 2)
        silt = 100 - clay - sand
        median = 4 + 0.12 * silt + 0.8 * sand + rng.uniform(-1, 1)
        lines.append(csv_line([f"GS-{n:03d}", hole, str(section.number), num(psp), num(clay), num(silt), num(sand),
                               num(median)]))
        z += rng.uniform(35.0, 60.0)
    return "".join(lines)


# ---------------------------------------------------------------------------
# A core photo, written as a baseline JPEG
# ---------------------------------------------------------------------------


def zigzag_order():
    order = sorted(((x + y, y if (x + y) % 2 else x, x, y) for y in range(8) for x in range(8)))
    return [y * 8 + x for _, _, x, y in order]


ZIGZAG = zigzag_order()
LUMA_Q = [16, 11, 10, 16, 24, 40, 51, 61, 12, 12, 14, 19, 26, 58, 60, 55, 14, 13, 16, 24, 40, 57, 69, 56,
          14, 17, 22, 29, 51, 87, 80, 62, 18, 22, 37, 56, 68, 109, 103, 77, 24, 35, 55, 64, 81, 104, 113, 92,
          49, 64, 78, 87, 103, 121, 120, 101, 72, 92, 95, 98, 112, 100, 103, 99]
CHROMA_Q = [17, 18, 24, 47, 99, 99, 99, 99, 18, 21, 26, 66, 99, 99, 99, 99, 24, 26, 56, 99, 99, 99, 99, 99,
            47, 66, 99, 99, 99, 99, 99, 99] + [99] * 32


def scaled_table(table, quality):
    scale = 5000 / quality if quality < 50 else 200 - 2 * quality
    return [min(255, max(1, (q * scale + 50) // 100)) for q in table]


# Fixed-length codes: every DC category gets 4 bits, every AC symbol 8 bits. Any
# complete-enough prefix code is valid JPEG, and this one needs no frequency pass.
DC_SYMBOLS = list(range(12))
AC_SYMBOLS = [0x00, 0xF0] + [(run << 4) | size for run in range(16) for size in range(1, 11)]


def code_table(symbols, length):
    return {s: (i, length) for i, s in enumerate(symbols)}


DC_CODES = code_table(DC_SYMBOLS, 4)
AC_CODES = code_table(AC_SYMBOLS, 8)
DCT = [[(math.sqrt(0.5) if u == 0 else 1.0) * 0.5 * math.cos((2 * x + 1) * u * math.pi / 16) for x in range(8)]
       for u in range(8)]


class BitWriter:
    def __init__(self):
        self.out = bytearray()
        self.acc = 0
        self.bits = 0

    def put(self, value, length):
        self.acc = (self.acc << length) | (value & ((1 << length) - 1))
        self.bits += length
        while self.bits >= 8:
            byte = (self.acc >> (self.bits - 8)) & 0xFF
            self.out.append(byte)
            if byte == 0xFF:
                self.out.append(0x00)
            self.bits -= 8
        self.acc &= (1 << self.bits) - 1

    def flush(self):
        if self.bits:
            self.put((1 << (8 - self.bits)) - 1, 8 - self.bits)


def magnitude(v):
    size = abs(v).bit_length()
    return size, (v if v >= 0 else v + (1 << size) - 1)


def encode_block(block, table, previous_dc, writer):
    rows = [[sum(DCT[u][x] * block[y * 8 + x] for x in range(8)) for u in range(8)] for y in range(8)]
    coefficients = [sum(DCT[v][y] * rows[y][u] for y in range(8)) for v in range(8) for u in range(8)]
    quantised = [int(round(coefficients[i] / table[i])) for i in range(64)]
    zz = [quantised[i] for i in ZIGZAG]
    size, bits = magnitude(zz[0] - previous_dc)
    writer.put(*DC_CODES[size])
    writer.put(bits, size)
    run = 0
    for v in zz[1:]:
        if v == 0:
            run += 1
            continue
        while run > 15:
            writer.put(*AC_CODES[0xF0])
            run -= 16
        size, bits = magnitude(v)
        writer.put(*AC_CODES[(run << 4) | size])
        writer.put(bits, size)
        run = 0
    if run:
        writer.put(*AC_CODES[0x00])
    return zz[0]


def jpeg_bytes(width, height, pixels, quality=85):
    """Baseline JPEG of an RGB picture, three components, no subsampling."""
    luma, chroma = scaled_table(LUMA_Q, quality), scaled_table(CHROMA_Q, quality)
    planes = [[], [], []]
    for r, g, b in pixels:
        planes[0].append(0.299 * r + 0.587 * g + 0.114 * b - 128)
        planes[1].append(-0.168736 * r - 0.331264 * g + 0.5 * b)
        planes[2].append(0.5 * r - 0.418688 * g - 0.081312 * b)
    writer = BitWriter()
    previous = [0, 0, 0]
    for by in range(0, height, 8):
        for bx in range(0, width, 8):
            for c, table in ((0, luma), (1, chroma), (2, chroma)):
                block = [planes[c][min(by + y, height - 1) * width + min(bx + x, width - 1)]
                         for y in range(8) for x in range(8)]
                previous[c] = encode_block(block, table, previous[c], writer)
    writer.flush()

    def segment(marker, payload):
        return bytes([0xFF, marker]) + (len(payload) + 2).to_bytes(2, "big") + payload

    def huffman(table_class, symbols, length):
        counts = [0] * 16
        counts[length - 1] = len(symbols)
        return bytes([table_class]) + bytes(counts) + bytes(symbols)

    out = bytearray(b"\xff\xd8")
    out += segment(0xE0, b"JFIF\x00\x01\x01\x00\x00\x01\x00\x01\x00\x00")
    out += segment(0xDB, bytes([0]) + bytes(luma[i] for i in ZIGZAG) + bytes([1]) + bytes(chroma[i] for i in ZIGZAG))
    out += segment(0xC0, bytes([8]) + height.to_bytes(2, "big") + width.to_bytes(2, "big")
                   + bytes([3, 1, 0x11, 0, 2, 0x11, 1, 3, 0x11, 1]))
    out += segment(0xC4, huffman(0x00, DC_SYMBOLS, 4) + huffman(0x10, AC_SYMBOLS, 8))
    out += segment(0xDA, bytes([3, 1, 0x00, 2, 0x00, 3, 0x00, 0, 63, 0]))
    out += writer.out + b"\xff\xd9"
    return bytes(out)


def core_photo(rng, section, layers):
    """A split core half on a grey tray, with a centimetre ruler on the left."""
    scale = 4  # pixels per cm of PSP
    width, margin = 120, 16
    height = int(section.length * scale) + 2 * margin
    lamina = [rng.uniform(-1, 1) for _ in range(int(section.length * 10) + 2)]
    pixels = []
    for y in range(height):
        psp = (y - margin) / scale
        z = section.cd(max(0.0, psp))
        in_event = any(t <= z <= b for t, b in layers)
        base = lamina[min(len(lamina) - 1, max(0, int(psp * 10)))] if 0 <= psp <= section.length else 0
        for x in range(width):
            if x < 22:
                tick = 0 <= psp <= section.length and abs(psp - round(psp)) * scale < 0.5
                long_tick = tick and round(psp) % 10 == 0
                if tick and (x >= 12 or long_tick):
                    pixels.append((20, 20, 20))
                else:
                    pixels.append((235, 232, 222))
            elif x < 28 or x > width - 6 or not 0 <= psp <= section.length:
                pixels.append((92, 94, 98))
            else:
                shade = 18 * base + 6 * math.sin(psp * 2.1) + rng.uniform(-4, 4)
                if in_event:
                    pixels.append((int(178 + shade), int(172 + shade), int(160 + shade)))
                else:
                    pixels.append((int(104 + shade), int(84 + shade * 0.9), int(62 + shade * 0.7)))
    return jpeg_bytes(width, height, [tuple(max(0, min(255, v)) for v in p) for p in pixels])


# ---------------------------------------------------------------------------


def write(folder, name, data):
    path = os.path.join(folder, name)
    mode = "wb" if isinstance(data, bytes) else "w"
    with open(path, mode, **({} if mode == "wb" else {"encoding": "ascii", "newline": ""})) as f:
        f.write(data)


# ---------------------------------------------------------------------------
# The Duo: a parallel set of holes tied to the master's bore hole A
# ---------------------------------------------------------------------------


def duo_sections():
    """(hole, name, top composite depth) of every section of E and F."""
    found = []
    for hole, top in DUO_FIRST_TOP.items():
        number = 1
        while top + DUO_SECTION_LENGTH <= DUO_DEPTH + DUO_SECTION_LENGTH / 2:
            found.append((hole, f"{number:02d}", top))
            top += DUO_SECTION_STEP
            number += 1
    return found


def duo_holes_at(sections, z, margin=1.0):
    """Hole -> (section name, PSP) of the Duo's sections that hold composite depth z."""
    holes = {}
    for hole, name, top in sections:
        if top + margin <= z <= top + DUO_SECTION_LENGTH - margin:
            holes[hole] = (name, round(z - top, 1))
    return holes


def duo_model_text(rows, stars):
    """Every fourth tie of the master's bore hole A down to 14 m becomes a tie of the Duo,
    at 0.97 times its composite depth plus 5 cm; the Duo's sections give the rest."""
    sections = duo_sections()
    master_ties = [r for r in rows if r.kind == "tie" and "A" in r.holes and r.cd is not None
                   and 20.0 <= r.z <= 1380.0 and (id(r), "A") not in stars]
    lines = []
    for n, row in enumerate(master_ties[::4]):
        section, psp = row.holes["A"]
        z = round(DUO_SCALE * row.z + DUO_OFFSET, 1)
        holes = duo_holes_at(sections, z)
        if holes:
            lines.append((z, 1, f"DT{n + 1:03d}", holes, num(z), ["T", "A", section.name, num(psp)]))
    for hole, name, top in sections:
        lines.append((top, 0, f"{hole}-{name}-top", {hole: (name, 0.0)}, num(top), ["---"] * 4))
        lines.append((top + DUO_SECTION_LENGTH, 2, f"{hole}-{name}-bottom", {hole: (name, DUO_SECTION_LENGTH)},
                      "", ["---"] * 4))
    lines.sort(key=lambda line: (line[0], line[1]))

    header = ["Splice"]
    for hole in "EFGH":
        header += [DUO_HEADER_TITLES[hole], "PSP (cm)", "Drilling depth (cm)"]
    header += ["Composite depth (cm)", "Master row (Ostra A-D)", "Master bore hole", "Master section", "Master PSP (cm)"]
    text = [csv_line(PREFIX + c for c in header)]
    for _, kind, label, holes, cd, master in lines:
        # E carries the composite wherever it holds the horizon.
        cells = ["" if kind == 2 else "E" if "E" in holes else "F"]
        for hole in "EFGH":
            if hole in holes:
                name, psp = holes[hole]
                top = next(t for h, s, t in sections if h == hole and s == name)
                cells += [label, num(psp), num(top + psp + 3.0)]
            else:
                cells += ["", "9999", "9999"]
        cells.append(cd)
        cells += master
        text.append(csv_line(PREFIX + c for c in cells))
    return "".join(text)


def duo_event_text():
    events = [("E", "02", 40.0, 43.5, "Tephra T-1"), ("F", "04", 60.0, 66.0, "Turbidite"),
              ("E", "08", 100.0, 102.5, "Flood layer")]
    return event_text(events)


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.dirname(os.path.abspath(__file__))
    rng = random.Random(SEED)
    rows, voids, named = build_model(rng)
    for hole in HOLES:
        for section in SECTIONS[hole]:
            SECTION_BY[(hole, section.name)] = section
    stars = star_cells(rng, rows)
    text = model_text(rows, stars)
    write(folder, MODEL_FILE, text)
    model = Model(text)

    events = make_events(rows, model, voids, named)
    write(folder, EVENT_FILE, event_text(events))
    layers = merged((model.composite(h, s, t), model.composite(h, s, b)) for h, s, t, b, _ in events)

    def efd(z):
        return efd_of(z, layers)

    markers, counts = make_varves(rng, efd, layers)
    write(folder, VARVE_FILE, varve_text(markers, counts))
    tephra_tops = {name: row.cd for name, row in named.items()}
    for h, s, t, b, text_ in events:
        if text_ in ("Tephra T-5", "Tephra T-7"):
            # Just above the layer's top, so that the date lies outside the layer.
            tephra_tops[text_[-3:]] = num(math.floor(model.composite(h, s, t) * 100) / 100, 2)
    write(folder, AGE_FILE, make_age_model(rng, rows, model, efd, layers, markers, counts, tephra_tops))

    write(folder, "positions.csv", positions_text())
    write(folder, "values_composite_depth.csv", values_text(
        "Composite depth (cm)", ["245.3", "612.7", "1130.5", "1489.6", "1650.4", "9999", "2876.1", "3402.9", "4460",
                                 "5213.3", "6120.8", "6890.4"], "CD"))
    write(folder, "values_event_free_depth.csv", values_text(
        "Event free depth (cm)", ["150.2", "488.4", "1020.7", "1500", "2390.9", "3333.3", "4100.6", "5050.5",
                                  "6200.1"], "EFD"))
    write(folder, "values_age.csv", values_text(
        "Age (cal yr BP)", ["1250", "5320", "11040", "14980", "21500", "-9999", "30210", "38800", "45600"], "AGE"))

    write(folder, "xrf_scan_for_OL.csv", proxy_l1(rng, layers))
    pollen_ages = sorted({round(rng.uniform(200, 48000), -1) for _ in range(64)})
    write(folder, "pollen_percentages.csv", proxy_l2(rng, [int(a) for a in pollen_ages]))
    write(folder, "core_logging_bore_hole_A.csv", proxy_l3(rng))
    write(folder, "grain_size_samples.csv", proxy_l4(rng, rows))
    write(folder, "core_photo_A-05.jpg", core_photo(rng, SECTION_BY[("A", "05")], layers))

    write(folder, DUO_MODEL_FILE, duo_model_text(rows, stars))
    write(folder, DUO_EVENT_FILE, duo_event_text())
    write(folder, "duo_positions.csv", "".join(csv_line(r) for r in [
        ["Sample", "Bore hole", "Section", "PSP (cm)"], ["DU-001", "E", "02", "75.5"],
        ["DU-002", "Core 9", "03", "12.25"], ["DU-003", "A", "05", "76.1"], ["DU-004", "E", "01", "9999"],
        ["DU-005", "X", "01", "5"]]))
    write(folder, "duo_values_composite_depth.csv", values_text(
        "Composite depth (cm)", ["120.5", "640", "1333.3", "9999"], "DCD"))


if __name__ == "__main__":
    main()

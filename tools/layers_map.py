"""Draws the map of the layers from the table of docs/architecture.md.

Usage: layers_map.py ARCHITECTURE.md MAP.svg         writes the map
       layers_map.py --check ARCHITECTURE.md MAP.svg  fails where the map is not the table's

A layer stands above all that it may include. A line leads down to each of these that no other line leads to
already by a detour.
"""

import html
import pathlib
import re
import sys

BOX = (172, 34)
GAP = (22, 62)
EDGE = 24
GROUPS = (  # by the first that fits: the ground of the box
    (re.compile(r"^app$"), "#f6d7a8"),
    (re.compile(r"^ui|windows$"), "#bfe3f7"),
    (re.compile(r"^(analysis|nineki|compass|reports)"), "#c9efd0"),
    (re.compile(r"^(catalogues|profiles|locations)$"), "#ecd3ea"),
    (re.compile(r""), "#e9e3d6"),
)


# Where a layer stands from left to right; one that is missing here stands at the left edge.
COLUMN = {
    "core": 2.2,
    "store": 0.9, "reports/surface": 2.1, "ui/platform": 3.3, "ui/widgets": 4.5,
    "locations": 0, "catalogues": 1.3, "reports/pages": 2.5, "core/windows": 4.9,
    "compass": -0.25, "profiles": 1.3,
    "nineki": 1.75, "analysis": 0.75, "compass/windows": 3.2,
    "reports/windows": 2.4,
    "profiles/windows": 2.3, "nineki/windows": 3.4,
    "ui": 2.8, "app": 2.8,
}
LEFT = min(COLUMN.values())


def table(text):
    rows = re.findall(r"^\| `src/([^`]+)` \|[^|]*\|([^|]*)\|$", text, re.MULTILINE)
    return {name: set(re.findall(r"`([^`]+)`", includes)) for name, includes in rows}


def below(layers, name):
    """All that a layer reaches, on any way."""
    reached = set()
    for other in layers[name]:
        reached |= {other} | below(layers, other)
    return reached


def direct(layers, name):
    return {one for one in layers[name] if not any(one in below(layers, other) for other in layers[name])}


def height(layers, name):
    return 1 + max((height(layers, other) for other in layers[name]), default=-1)


def arrange(layers):
    """The rows of the map from the bottom."""
    rows = []
    for name in layers:
        level = height(layers, name)
        rows += [[] for _ in range(level + 1 - len(rows))]
        rows[level].append(name)
    return rows


def draw(layers):
    rows = arrange(layers)
    width = 2 * EDGE + (max(COLUMN.values()) - LEFT + 1) * (BOX[0] + GAP[0]) - GAP[0]
    full = 2 * EDGE + len(rows) * (BOX[1] + GAP[1]) - GAP[1]

    def corner(name):
        level = next(number for number, row in enumerate(rows) if name in row)
        x = EDGE + (COLUMN.get(name, 0) - LEFT) * (BOX[0] + GAP[0])
        return x, full - EDGE - BOX[1] - level * (BOX[1] + GAP[1])

    lines = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width:g} {full:g}" '
        f'width="{width:g}" height="{full:g}" font-family="Arial, Liberation Sans, sans-serif" font-size="14">',
        "<title>The layers of the program, each above all that it may include</title>",
        f'<rect width="{width:g}" height="{full:g}" fill="#ffffff"/>',
        '<g fill="none" stroke="#6b7280" stroke-width="1.2">',
    ]
    for name in layers:
        x, y = corner(name)
        for other in sorted(direct(layers, name)):
            left, top = corner(other)
            start, end = (x + BOX[0] / 2, y + BOX[1]), (left + BOX[0] / 2, top)
            bend = (end[1] - start[1]) / 2
            lines.append(
                f"<path d=\"M{start[0]:g} {start[1]:g}C{start[0]:g} {start[1] + bend:g} "
                f"{end[0]:g} {end[1] - bend:g} {end[0]:g} {end[1]:g}\"/>"
            )
    lines += ["</g>", '<g stroke="#1e1e1e" stroke-width="1">']
    for name in layers:
        x, y = corner(name)
        ground = next(color for pattern, color in GROUPS if pattern.search(name))
        lines.append(
            f'<rect x="{x:g}" y="{y:g}" width="{BOX[0]}" height="{BOX[1]}" rx="6" fill="{ground}"/>'
        )
    lines += ["</g>", '<g fill="#1e1e1e" text-anchor="middle">']
    for name in layers:
        x, y = corner(name)
        lines.append(f'<text x="{x + BOX[0] / 2:g}" y="{y + BOX[1] / 2 + 5:g}">{html.escape(name)}</text>')
    return "\n".join(lines + ["</g>", "</svg>"]) + "\n"


def main():
    check = sys.argv[1] == "--check"
    source, target = map(pathlib.Path, sys.argv[-2:])
    layers = table(source.read_text("utf-8"))
    assert len(layers) > 10, f"only {len(layers)} layers in {source}"
    picture = draw(layers)
    if check:
        assert target.read_text("utf-8") == picture, f"{target} is not the map of {source}: run ./dev pictures"
    else:
        target.write_text(picture, "utf-8")


main()

# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws a chart of lines as SVG: growth over the size of the list, and over the round-trip time."""
import dataclasses
import html
import math

WIDTH, HEIGHT = 720, 420
LEFT, RIGHT, TOP, BOTTOM = 84, 40, 16, 52
LEGEND = 22
COLOURS = ("#0b57a4", "#b3261e", "#1b6e3c", "#7a3fa0", "#8a5a00")
MARKS = ("circle", "square")


@dataclasses.dataclass(frozen=True)
class Chart:
    name: str
    title: str
    x: str
    y: str
    grows_tenfold: bool  # the scale of x is logarithmic; that of y always is
    note: str


CHARTS = (
    Chart("list", "Over the size of the list", "recipients in the list", "milliseconds of the processor", True,
          "What reads or writes every row grows with the rows; a tick, once the order of the run is made, does not."),
    Chart("line", "Over the round-trip time", "round-trip time, milliseconds", "messages a second", False,
          "Over one connection. The send window waits for each reply and then for the pause, 200 ms at least."),
)


def tidy(value):
    return f"{value:,.0f}" if value >= 1 else f"{value:g}"


def decades(values):
    """Powers of ten around the values; at least one decade."""
    low, high = math.floor(math.log10(min(values))), math.ceil(math.log10(max(values)))
    return [10.0 ** power for power in range(low, max(high, low + 1) + 1)]


class Scale:
    """From a value to a place between two edges."""

    def __init__(self, ticks, begin, end, logarithmic):
        self.ticks = ticks
        self.form = math.log10 if logarithmic else float
        low, high = self.form(ticks[0]), self.form(ticks[-1])
        self.at = lambda value: begin + (self.form(value) - low) / (high - low) * (end - begin)


def text(x, y, words, anchor="middle", more=""):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}"{more}>{html.escape(words)}</text>'


def mark(kind, x, y, colour):
    if kind == "circle":
        return f'<circle cx="{x:.1f}" cy="{y:.1f}" r="4" fill="{colour}"/>'
    return f'<rect x="{x - 4:.1f}" y="{y - 4:.1f}" width="8" height="8" fill="{colour}"/>'


def svg(chart, lines):
    """`lines`: name to points (x, y)."""
    xs = sorted({x for points in lines.values() for x, _ in points})
    top = TOP + LEGEND * len(lines)
    height = HEIGHT + LEGEND * len(lines)
    across = Scale(decades(xs) if chart.grows_tenfold else xs, LEFT, WIDTH - RIGHT, chart.grows_tenfold)
    upwards = Scale(decades([y for points in lines.values() for _, y in points]), height - BOTTOM, top, True)
    drawn = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" width="{WIDTH}" height="{height}" '
             'font-family="sans-serif" font-size="13" fill="#202020">', f"<title>{html.escape(chart.title)}</title>",
             f'<rect width="{WIDTH}" height="{height}" fill="#ffffff"/>']
    for y in upwards.ticks:
        drawn.append(f'<path d="M{LEFT} {upwards.at(y):.1f}H{WIDTH - RIGHT}" stroke="#d0d0d0"/>')
        drawn.append(text(LEFT - 8, upwards.at(y) + 4, tidy(y), "end"))
    for x in across.ticks:
        drawn.append(f'<path d="M{across.at(x):.1f} {top}V{height - BOTTOM}" stroke="#e8e8e8"/>')
        drawn.append(text(across.at(x), height - BOTTOM + 20, tidy(x)))
    middle = (top + height - BOTTOM) / 2
    drawn.append(text((LEFT + WIDTH - RIGHT) / 2, height - 12, chart.x))
    drawn.append(text(18, middle, chart.y, more=f' transform="rotate(-90 18 {middle:.1f})"'))
    for number, (name, points) in enumerate(lines.items()):
        colour, kind = COLOURS[number % len(COLOURS)], MARKS[number % len(MARKS)]
        places = [(across.at(x), upwards.at(y)) for x, y in points]
        drawn.append(f'<polyline points="{" ".join(f"{x:.1f},{y:.1f}" for x, y in places)}" fill="none" stroke="{colour}" '
                     'stroke-width="2"/>')
        drawn += [mark(kind, x, y, colour) for x, y in places]
        legend = TOP + LEGEND * number
        drawn.append(mark(kind, LEFT + 6, legend, colour))
        drawn.append(text(LEFT + 18, legend + 4, name, "start"))
    return "\n".join([*drawn, "</svg>", ""])

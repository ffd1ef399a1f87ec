# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes docs/performance.md and its charts from the runs that were kept. docs/benchmarks.md says what a measure means."""
import chart
import kept

HEAD = """# Performance

Written by `./run bench`, not by hand. [benchmarks.md](benchmarks.md) says what each benchmark does and what it compares with.

A ratio compares with the peer in the same run. Value, comparison and ratio are those of the run whose ratio is the median; the
spread is the least and the greatest ratio of all runs. A load is how many processes wanted a processor, on average over the minute
before a run. Where it is above zero other work took part: the more of it, the less the figures on the clock say of a calm machine.
Processor time and ratios suffer less.
"""


def number(value):
    """With three digits at least, and as many as it takes before the point."""
    if value >= 100:
        return f"{value:,.0f}"
    return f"{value:.1f}" if value >= 10 else f"{value:.2f}"


def span(values, form):
    least, most = form(min(values)), form(max(values))
    return least if least == most else f"{least} to {most}"


def counted(runs):
    return "1 run" if runs == 1 else f"{runs} runs"


def machines(results):
    """A table of each machine that took part: mostly one."""
    different = []
    for found in results.values():
        machine = found["conditions"]["machine"]
        if machine not in different:
            different.append(machine)
    for machine in different:
        yield "\n| " + " | ".join(machine) + " |\n|" + "---|" * len(machine) + "\n"
        yield "| " + " | ".join(str(value).replace("|", "/") for value in machine.values()) + " |\n"


def row(one):
    met = "yes" if one["runsMet"] == one["runs"] else "no" if not one["runsMet"] else f"in {one['runsMet']} of {one['runs']}"
    cells = [one["name"], f"{number(one['value'])} {one['unit']}", one["peer"], f"{one['ratio']:.2f}",
             span(one["ratios"], lambda ratio: f"{ratio:.2f}"), f"at {'least' if one['atLeast'] else 'most'} {one['goal']:.2f}", met,
             str(one["runs"])]
    return "| " + " | ".join(cell.replace("|", "/") for cell in cells) + " |\n"


def section(name, found):
    loads = [run["load"] for run in found["runs"]]
    yield f"\n## {name}\n\n{counted(len(found['runs']))} of commit {found['conditions']['sources']}, load {span(loads, number)}.\n\n"
    yield "| Measure | Value | Compared with | Ratio | Spread | Goal | Met | Runs |\n|---|---|---|---|---|---|---|---|\n"
    for one in kept.measures(found["runs"]):
        yield row(one)


def write(docs, results, missing=()):
    """`missing`: names of benchmarks of which no run is kept."""
    text = [HEAD, *machines(results)]
    for each in chart.CHARTS:
        lines = {}
        for found in results.values():
            lines.update(kept.lines(found["runs"], each.name))
        if lines:
            file = f"performance-{each.name}.svg"
            (docs / file).write_text(chart.svg(each, lines), encoding="utf-8")
            text.append(f"\n## {each.title}\n\n![{each.title}]({file})\n\n{each.note}\n")
    for name, found in results.items():
        text += section(name, found)
    if missing:
        text.append(f"\n## Not measured\n\nNo run is kept of: {', '.join(missing)}.\n")
    (docs / "performance.md").write_text("".join(text), encoding="utf-8")

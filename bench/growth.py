"""growth.py MEASURED PICTURE: judges and draws how the figures of the benchmarks grow.

Reads the lines that the benchmarks print. A figure may grow with the number of entries n as
n log n does, and where the plain pass over the same data grows faster, because the data no longer
fits the processor's caches, as that does. The exit status is 1 when one grows faster.
"""
import collections
import itertools
import math
import re
import sys

# For the caches, and for the sample's doublets, which grow as n * n does: each has to be marked. A
# figure of n * n would be at 190, one of n * sqrt(n) at 10.
TOLERANCE = 8

LINE = re.compile(r"(?P<name>[a-z]\S*) +(?P<size>\d+) +(?P<time>[\d.]+) +(?P<plain>[\d.]+) +[\d.a-z]+ ")
MEMORY = re.compile(r"memory of (?P<size>\d+) entries:.* growth (?P<bytes>\d+) bytes")

DRAWN = ("load", "fill", "key stroke", "search", "doublets", "start", "memory")
WIDTH, HEIGHT = 890, 460
COLOURS = {"light": ["#2a78d6", "#d95926", "#199e70", "#b07a00", "#4a3aa7", "#d03b3b", "#c2487f"],
           "dark": ["#5b9bea", "#f08a5d", "#3fc795", "#e0ad3a", "#a49bf0", "#f07f7f", "#ea8db4"]}


def read(lines):
    """The figures by name, {"fill": {3000: 0.4, ...}}, in milliseconds, memory in megabytes; and
    those of the plain passes."""
    figures, passes = collections.defaultdict(dict), collections.defaultdict(dict)
    for line in lines:
        if found := LINE.match(line):
            figures[found["name"]][int(found["size"])] = float(found["time"])
            passes[found["name"]][int(found["size"])] = float(found["plain"])
        elif found := MEMORY.match(line):
            # The sample's own separator lines count as a few entries more.
            figures["memory"][round(int(found["size"]), -3)] = int(found["bytes"]) / 1e6
    return {name: values for name, values in figures.items() if len(values) > 1}, passes


def guide(size):
    return size * math.log(size)


def excess(values, passes):
    """How many times what it may a figure has grown between any two sizes, at the worst."""
    def grown(few, more):
        allowed = guide(more) / guide(few)
        if passes:
            allowed = max(allowed, passes[more] / passes[few])
        return values[more] / values[few] / allowed
    return max(itertools.starmap(grown, itertools.combinations(sorted(values), 2)))


def slowest_of_kind(figures):
    """Of all cases of one kind, such as search/rare and search/ten, the slowest at each size."""
    kinds = {name: {} for name in DRAWN}
    for name, values in figures.items():
        kind = kinds.get(name.split("/")[0].replace("_", " "), {})
        for size, value in values.items():
            kind[size] = max(value, kind.get(size, 0))
    return {name: values for name, values in kinds.items() if values}


class Panel:
    """A field with logarithmic axes, and the lines in it."""

    def __init__(self, left, width, unit, kinds, sizes):
        self.left, self.width, self.unit = left, width, unit
        self.top, self.height = 56, HEIGHT - 110
        self.kinds = kinds
        self.sizes = sizes
        values = [value for values in kinds.values() for value in values.values()]
        self.low = math.floor(math.log10(min(values)))
        self.high = math.ceil(math.log10(max(values)))

    def x(self, size):
        first, last = (math.log10(size) for size in (self.sizes[0], self.sizes[-1]))
        return self.left + self.width * (math.log10(size) - first) / (last - first)

    def y(self, value):
        part = (math.log10(value) - self.low) / (self.high - self.low)
        return self.top + self.height * (1 - part)

    def line(self, values, style):
        points = " ".join(f"{self.x(s):.1f},{self.y(v):.1f}" for s, v in sorted(values.items()))
        return f'<polyline class="{style}" points="{points}"/>'

    def axes(self):
        for power in range(self.low, self.high + 1):
            y = self.y(10 ** power)
            yield f'<path class="grid" d="M{self.left} {y:.1f}h{self.width}"/>'
            yield text(self.left - 8, y + 4, f"{10 ** power:,g}", "end")
        for size in self.sizes:
            yield text(self.x(size), self.top + self.height + 20, short(size), "middle")
        yield text(self.left - 40, self.top - 24, self.unit, "start")
        yield text(self.left + self.width / 2, self.top + self.height + 42, "entries", "middle")

    def guides(self):
        """n log n from each power of ten on."""
        first, last = self.sizes[0], self.sizes[-1]
        rise = guide(last) / guide(first)
        for power in range(self.low, self.high + 1):
            ends = {size: 10 ** power * guide(size) / guide(first) for size in self.sizes}
            if 10 ** power * rise <= 10 ** self.high:
                yield self.line(ends, "guide")

    def labels(self, first_colour):
        """Each line's name after its end, apart from each other."""
        ends = sorted((self.y(values[max(values)]), name) for name, values in self.kinds.items())
        order = list(self.kinds)
        floor = self.top
        for y, name in ends:
            floor = max(y, floor)
            colour = first_colour + order.index(name)
            yield text(self.left + self.width + 8, floor + 4, name, "start", f"name c{colour}")
            floor += 15

    def draw(self, first_colour):
        yield from self.axes()
        yield from self.guides()
        for number, values in enumerate(self.kinds.values()):
            style = f"c{first_colour + number}"
            yield self.line(values, f"figure {style}")
            for size, value in values.items():
                yield (f'<circle class="{style}" cx="{self.x(size):.1f}" '
                       f'cy="{self.y(value):.1f}" r="3"/>')
        yield from self.labels(first_colour)


def text(x, y, words, anchor, style="note"):
    return f'<text class="{style}" x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}">{words}</text>'


def short(size):
    return f"{size // 1000} k" if size < 1000000 else f"{size // 1000000} M"


def style(scheme, ink, quiet, paper):
    colours = "".join(f".c{i}{{stroke:{colour};fill:{colour}}}" for i, colour
                      in enumerate(COLOURS[scheme]))
    return (f".paper{{fill:{paper}}}.note{{fill:{ink}}}.grid{{stroke:{quiet}}}"
            f".guide{{stroke:{ink};opacity:.35}}{colours}")


def picture(kinds):
    memory = {name: values for name, values in kinds.items() if name == "memory"}
    times = {name: values for name, values in kinds.items() if name != "memory"}
    sizes = sorted({size for values in kinds.values() for size in values})
    return "\n".join([
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" role="img">',
        "<title>Time and memory against the number of entries; dashed: n log n</title>",
        "<style>text{font:12px sans-serif}.name{stroke:none!important;font-weight:bold}"
        "polyline{fill:none!important}.figure{stroke-width:2}.guide{stroke-dasharray:2 5}",
        style("light", "#333", "#ddd", "#fff"),
        f"@media(prefers-color-scheme:dark){{{style('dark', '#ddd', '#3a3f47', '#161b22')}}}",
        "</style>", f'<rect class="paper" width="{WIDTH}" height="{HEIGHT}"/>',
        text(60, 18, "Dashed: n log n", "start"),
        *Panel(60, 410, "ms", times, sizes).draw(0),
        *Panel(620, 190, "MB", memory, sizes).draw(len(times)), "</svg>\n"])


def main(measured, drawn):
    with open(measured, encoding="utf-8") as file:
        figures, passes = read(file)
    worst = 0
    for name, values in figures.items():
        grown = excess(values, passes.get(name))
        worst = max(worst, grown)
        print(f"{name:30}{grown:8.2f} of {TOLERANCE}{'  OVER' if grown > TOLERANCE else ''}")
    with open(drawn, "w", encoding="utf-8") as file:
        file.write(picture(slowest_of_kind(figures)))
    return 1 if worst > TOLERANCE else 0


sys.exit(main(*sys.argv[1:3]))

"""The growth of one piece of work as an SVG: both axes by powers of ten, one line a series."""
import html
import math
import re

from figures import time_text

WIDTH, HEIGHT = 640, 360
LEFT, RIGHT, TOP, BOTTOM = 76, 190, 36, 48
COLOURS = ("#0b61a4", "#c4451c", "#2f7d32", "#7a3e9d", "#8a6d00", "#555555")


class Axes:
    """Where sizes and times stand in the drawing."""

    def __init__(self, sizes, times):
        self.sizes = sizes
        self.low = math.floor(math.log10(min(times)))
        self.high = max(math.ceil(math.log10(max(times))), self.low + 1)

    def x(self, size):
        first, last = math.log10(self.sizes[0]), math.log10(self.sizes[-1])
        return LEFT + (math.log10(size) - first) / (last - first) * (WIDTH - LEFT - RIGHT)

    def y(self, time):
        share = (math.log10(time) - self.low) / (self.high - self.low)
        return HEIGHT - BOTTOM - share * (HEIGHT - TOP - BOTTOM)


def text(x, y, words, anchor="start", extra=""):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}"{extra}>{html.escape(words)}</text>'


def line(x1, y1, x2, y2, style):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" {style}/>'


def grid(axes):
    parts = []
    for power in range(axes.low, axes.high + 1):
        y = axes.y(10 ** power)
        parts.append(line(LEFT, y, WIDTH - RIGHT, y, 'stroke="#dddddd"'))
        parts.append(text(LEFT - 8, y + 4, re.sub(r"\.0+ ", " ", time_text(10 ** power)), "end"))
    for size in axes.sizes:
        x = axes.x(size)
        parts.append(line(x, TOP, x, HEIGHT - BOTTOM, 'stroke="#dddddd"'))
        parts.append(text(x, HEIGHT - BOTTOM + 18, f"{size:,}", "middle"))
    return parts


def linear(axes, size, time):
    """The way of a work that grows as its size does, from a first point on, as far as the drawing goes."""
    end = min(axes.sizes[-1], size * 10 ** axes.high / time)
    style = 'stroke="#999999" stroke-dasharray="4 4"'
    return line(axes.x(size), axes.y(time), axes.x(end), axes.y(time * end / size), style)


def apart(heights, distance=30):
    """The same heights, moved down as far as it takes to keep them apart."""
    placed = {}
    last = -math.inf
    for name, height in sorted(heights.items(), key=lambda each: each[1]):
        last = placed[name] = max(height, last + distance)
    return placed


def draw(title, unit, series):
    """`series` is what figures.growth gives; the library's own comes first."""
    names = sorted(series, key=lambda name: name != "ours")
    sizes = max((series[name]["sizes"] for name in names), key=len)
    axes = Axes(sizes, [time for name in names for time in series[name]["medians"]])
    parts = grid(axes)
    first = series[names[0]]
    parts.append(linear(axes, first["sizes"][0], first["medians"][0]))
    labels = apart({name: axes.y(series[name]["medians"][-1]) for name in names})
    for name, colour in zip(names, COLOURS):
        points = [(axes.x(size), axes.y(time)) for size, time in zip(series[name]["sizes"], series[name]["medians"])]
        way = " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
        parts.append(f'<polyline points="{way}" fill="none" stroke="{colour}" stroke-width="2"/>')
        parts += [f'<circle cx="{x:.1f}" cy="{y:.1f}" r="3.5" fill="{colour}"/>' for x, y in points]
        x, y = WIDTH - RIGHT + 12, labels[name]
        parts.append(text(x, y, "the library" if name == "ours" else name, extra=f' fill="{colour}" font-weight="bold"'))
        exponent = f'{time_text(series[name]["medians"][-1])}, n^{series[name]["exponent"]:.2f}'
        parts.append(text(x, y + 14, exponent, extra=f' fill="{colour}"'))
    parts.append(text(LEFT, 20, title, extra=' font-weight="bold" font-size="13"'))
    parts.append(text((LEFT + WIDTH - RIGHT) / 2, HEIGHT - 10, unit, "middle"))
    return (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" width="{WIDTH}" height="{HEIGHT}" '
            'font-family="sans-serif" font-size="12" fill="#222222">\n'
            f'<rect width="{WIDTH}" height="{HEIGHT}" fill="#ffffff"/>\n' + "\n".join(parts) + "\n</svg>\n")

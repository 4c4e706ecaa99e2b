"""tags.py TABLE CHART: reads a table of `quilltags export --to csv` and draws how many tags of each
granularity are absolute and how many relative, as a chart in SVG."""

import collections
import csv
import sys
from html import escape

with open(sys.argv[1], encoding="utf-8", newline="") as table:
    tags = list(csv.DictReader(table))

counts = collections.Counter((tag["granularity"] or "none", tag["mode"] or "none") for tag in tags)
rows = sorted({granularity for granularity, _ in counts})
shades = {"absolute": "#333333", "relative": "#999999", "none": "#dddddd"}
unit = 300 / max([sum(counts[row, mode] for mode in shades) for row in rows], default=1)

bars = []
for y, row in enumerate(rows):
    x = 100.0
    bars.append(f'<text x="90" y="{24 * y + 40}" text-anchor="end">{escape(row)}</text>')
    for mode, shade in shades.items():
        count = counts[row, mode]
        if not count:
            continue
        print(row, mode, count)
        bars.append(f'<rect x="{x:.1f}" y="{24 * y + 26}" width="{count * unit:.1f}" height="18" '
                    f'fill="{shade}"><title>{escape(row)}, {mode}: {count}</title></rect>')
        x += count * unit

with open(sys.argv[2], "w", encoding="utf-8") as chart:
    chart.write('<svg xmlns="http://www.w3.org/2000/svg" width="420" '
                f'height="{24 * len(rows) + 40}" font-family="sans-serif" font-size="13">\n'
                '<rect width="100%" height="100%" fill="white"/>\n'
                '<text x="100" y="16">tags by granularity: absolute dark, relative light</text>\n'
                + "\n".join(bars) + "\n</svg>\n")

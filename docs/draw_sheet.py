#!/usr/bin/env python3
"""Draws a worksheet as a picture: its calculated values, and the formula of one cell in a bar.

docs/draw_sheet.py TOOL FILE.csv CELL > docs/sheet.svg
"""

import csv
import io
import subprocess
import sys
from html import escape

ROW = 28
CHARACTER = 8.43  # of the monospace font at 14 pixels
PADDING = 12
HEAD = 40  # the column of row numbers
BAR = 36

STYLE = """
  text { font: 14px ui-monospace, 'DejaVu Sans Mono', Menlo, Consolas, monospace; fill: #1f2328; }
  .head { fill: #59636e; }
  .label { font-family: system-ui, 'DejaVu Sans', Helvetica, Arial, sans-serif; }
  .paper { fill: #ffffff; } .shade { fill: #f3f5f7; }
  .line { stroke: #d1d9e0; } .frame { fill: none; stroke: #d1d9e0; }
  .chosen { fill: #1a7f3714; stroke: #1a7f37; stroke-width: 2; }
  .name { fill: #1a7f37; font-weight: 600; }
"""


def rows_of(text):
    return [row for row in csv.reader(io.StringIO(text)) if row]


def calculated(tool, file):
    settings = ["--decimal", ".", "--thousands", ",", "--currency", "$", "--digits", "100"]
    run = subprocess.run([tool, "sheet", file, "-o", "-", *settings], capture_output=True, text=True,
                         check=True)
    # What would be read back as something else is written with an apostrophe in front.
    return [[cell.removeprefix("'") for cell in row] for row in rows_of(run.stdout)]


def text(x, y, content, kind, anchor="start"):
    return f'<text class="{kind}" x="{x:g}" y="{y:g}" text-anchor="{anchor}">{escape(content)}</text>'


def line(x1, y1, x2, y2):
    return f'<line class="line" x1="{x1:g}" y1="{y1:g}" x2="{x2:g}" y2="{y2:g}"/>'


def drawing(values, formula, cell):
    column, row = ord(cell[0]) - ord("A"), int(cell[1:]) - 1
    widths = [max(len(row[place]) for row in values) * CHARACTER + 2 * PADDING
              for place in range(len(values[0]))]
    lefts = [HEAD + sum(widths[:place]) for place in range(len(widths) + 1)]
    width, top = lefts[-1], BAR + ROW
    height = top + len(values) * ROW
    yield (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width:g} {height:g}" '
           f'width="{width:g}" height="{height:g}" role="img">')
    yield f"<title>A calculated worksheet</title><style>{STYLE}</style>"
    yield f'<rect class="paper" width="{width:g}" height="{height:g}" rx="6"/>'
    yield f'<rect class="shade" y="{BAR}" width="{width:g}" height="{ROW}"/>'
    yield f'<rect class="shade" y="{top}" width="{HEAD}" height="{height - top}"/>'
    yield text(PADDING, BAR / 2 + 5, cell, "name")
    yield text(HEAD + PADDING, BAR / 2 + 5, formula, "formula")
    for place, left in enumerate(lefts[:-1]):
        yield text(left + widths[place] / 2, BAR + ROW / 2 + 5, chr(ord("A") + place), "head", "middle")
        yield line(left, BAR, left, height)
    for place, cells in enumerate(values):
        y = top + place * ROW
        yield line(0, y, width, y)
        yield text(HEAD / 2, y + ROW / 2 + 5, str(place + 1), "head", "middle")
        yield text(lefts[0] + PADDING, y + ROW / 2 + 5, cells[0], "label")
        for value, right in zip(cells[1:], lefts[2:]):
            yield text(right - PADDING, y + ROW / 2 + 5, value, "value", "end")
    yield line(0, BAR, width, BAR)
    yield (f'<rect class="chosen" x="{lefts[column]:g}" y="{top + row * ROW}" '
           f'width="{widths[column]:g}" height="{ROW}"/>')
    yield f'<rect class="frame" x="0.5" y="0.5" width="{width - 1:g}" height="{height - 1:g}" rx="6"/>'
    yield "</svg>"


def main():
    tool, file, cell = sys.argv[1:]
    with open(file, encoding="utf-8") as sheet:
        typed = rows_of(sheet.read())
    formula = typed[int(cell[1:]) - 1][ord(cell[0]) - ord("A")]
    print("\n".join(drawing(calculated(tool, file), formula, cell)))


if __name__ == "__main__":
    main()

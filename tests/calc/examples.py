"""The example worksheets as documents of the office. Run by itself, it writes them anew."""

import csv
import re
import subprocess
import tempfile
import pathlib

import office
from sheets import cell
from cases import column_name

EXAMPLES = office.SOURCE / "examples"
TOOL = office.SOURCE / "build/release/apps/quorvex/quorvex"
NUMBER = re.compile(r"-?\d+(\.\d+)?(E[+-]?\d+)?")
BOLD = 150.0


def rows_of(path):
    with open(path, encoding="utf-8", newline="") as file:
        return list(csv.reader(file))


def calculated(sheet):
    """The cells of an example as the tool calculates them."""
    with tempfile.TemporaryDirectory() as folder:
        output = pathlib.Path(folder) / "output.csv"
        subprocess.run([TOOL, "sheet", sheet, "-o", output], check=True, stdout=subprocess.DEVNULL)
        return rows_of(output)


def item(rows, row, column):
    return rows[row][column] if row < len(rows) and column < len(rows[row]) else ""


def formula(text):
    """A formula of the tool as one of the office, which parts arguments by semicolons."""
    parts = text.split('"')
    parts[::2] = (re.sub(r"\b(TRUE|FALSE)\b", r"\1()", part.replace(" ", "").replace(",", ";"))
                  for part in parts[::2])
    return '"'.join(parts)


def fits_a_float(text):
    digits = re.sub(r"E.*|\D", "", text).lstrip("0")
    return NUMBER.fullmatch(text) and len(digits) <= 15


def overflow(source, results, row, column):
    """How many rows below a formula its array fills."""
    count = 1
    while not item(source, row + count, column) and item(results, row + count, column):
        count += 1
    return count


def put(sheet, address, text, height):
    place = sheet.getCellRangeByName(address).getCellByPosition(0, 0)
    if text.startswith("=") and height > 1:
        column, row = re.fullmatch(r"([A-Z]+)(\d+)", address).groups()
        area = sheet.getCellRangeByName(f"{address}:{column}{int(row) + height - 1}")
        area.setArrayFormula(formula(text))
    elif text.startswith("="):
        place.setFormula(formula(text))
    elif fits_a_float(text):
        place.setValue(float(text))
    else:
        place.setString(text.removeprefix("'").removeprefix("# "))


def dress(sheet, source):
    columns = sheet.Columns
    for place in range(max(map(len, source))):
        columns.getByIndex(place).OptimalWidth = True
    columns.getByIndex(0).Width = 7000
    for number, row in enumerate(source, 1):
        if row and row[0].startswith("# "):
            sheet.getCellRangeByName(f"A{number}").CharHeight = 9
    if source[0][:2] == ["Figure", "Value"]:
        sheet.getCellRangeByName("A1:D1").CharWeight = BOLD


def fill(document, path):
    """Puts an example into a document."""
    source, results = rows_of(path), calculated(path)
    sheet = document.Sheets.getByIndex(0)
    for row, texts in enumerate(source):
        for column, text in enumerate(texts):
            if text:
                put(sheet, f"{column_name(column)}{row + 1}", text,
                    overflow(source, results, row, column))
    dress(sheet, source)


def formula_cells(path):
    for row, texts in enumerate(rows_of(path), 1):
        for column, text in enumerate(texts):
            if text.startswith("="):
                yield f"{column_name(column)}{row}"


def shown(document, path):
    """The formulas of an example, and what they give."""
    return {address: (cell(document, address).getFormula(), cell(document, address).getString())
            for address in formula_cells(path)}


def all_examples():
    return sorted(EXAMPLES.glob("*.csv"))


def main():
    with office.Office() as running:
        for path in all_examples():
            document = running.open()
            fill(document, path)
            document.storeToURL(path.with_suffix(".ods").as_uri(),
                                office.properties(FilterName="calc8"))
            document.close(True)


if __name__ == "__main__":
    main()

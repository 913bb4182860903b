"""The golden cases as formulas, under the locales that they are written for."""

import collections
import json
import re
import unittest

import cases
import office

VECTORS = office.SOURCE / "tests/vectors"
# The folder of the cases, and a language whose separators and currency they have.
LOCALES = {".": "C", "comma": "de_DE.UTF-8", "apostrophe": "de_CH.UTF-8"}


def written_in(language, line):
    """A case as the office of that language writes its numbers."""
    if not language.startswith("de_CH"):
        return line
    # It groups by the apostrophe of typewriters, where the cases have that of print.
    if "'" in line or re.search(r"(?<!\d)’|’(?!\d)", line):
        raise cases.CannotHold("an apostrophe here groups digits, and there it doesn't")
    return line.replace("’", "'")


class Sheet:
    """Formulas of cases, one below the other, beside the values that they refer to."""

    def __init__(self, told):
        self.told = told
        self.values = cases.Values()
        self.placed = []  # place, case, formula, row
        self.height = 0
        self.left_out = collections.defaultdict(list)

    def add(self, place, line, language):
        mark = len(self.values.rows)
        try:
            case = json.loads(written_in(language, line))
            text = cases.formula(case, self.told, self.values)
        except cases.CannotHold as reason:
            del self.values.rows[mark:]
            self.left_out[str(reason)].append(place)
            return
        self.placed.append((place, case, text, self.height))
        self.height += cases.shape(case)[0]

    def calculate(self, document):
        sheets = document.Sheets
        sheets.insertNewByName("Values", 1)
        data = self.values.data()
        sheets.getByName("Values").getCellRangeByPosition(
            0, 0, len(data[0]) - 1, len(data) - 1).setDataArray(data)
        sheet = sheets.getByIndex(0)
        for _, case, text, row in self.placed:
            rows, columns = cases.shape(case)
            if rows * columns > 1:
                area = sheet.getCellRangeByPosition(0, row, columns - 1, row + rows - 1)
                area.setArrayFormula(text)
            else:
                sheet.getCellByPosition(0, row).setFormula(text)
        return sheet

    def differences(self, sheet):
        width = max(cases.shape(case)[1] for _, case, _, _ in self.placed)
        found = sheet.getCellRangeByPosition(0, 0, width - 1, self.height - 1).getDataArray()
        for place, case, text, row in self.placed:
            wanted = cases.expectation(case)
            if isinstance(wanted, int):
                answer = sheet.getCellByPosition(0, row).getError()
            else:
                answer = [list(line[:len(wanted[0])]) for line in found[row:row + len(wanted)]]
            if answer != wanted:
                error = sheet.getCellByPosition(0, row).getError()
                yield (f"{place}: {text} gives {str(answer)[:200]} (error {error}), "
                       f"not {str(wanted)[:200]}: {str(case)[:300]}")


class Vectors(unittest.TestCase):
    def test_hold_in_sheets(self):
        held, left_out, called = 0, collections.Counter(), set()
        told = cases.functions()
        for name, language in LOCALES.items():
            with self.subTest(locale=language), office.Office(language=language) as running:
                sheet = Sheet(told)
                for place, line in cases.golden_lines(VECTORS / name):
                    sheet.add(place, line, language)
                document = running.open()
                differences = list(sheet.differences(sheet.calculate(document)))
                document.close(True)
                held += len(sheet.placed)
                called.update(case["call"].upper() for _, case, _, _ in sheet.placed)
                left_out.update({why: len(places) for why, places in sheet.left_out.items()})
                self.assertEqual(differences, [], "\n".join(differences[:20]))
        print(f"\n  {held} golden cases hold in sheets, {sum(left_out.values())} can't be held:")
        for why, count in left_out.most_common():
            print(f"  {count:5} {why}")
        self.assertGreater(held, 3 * sum(left_out.values()))
        # The add-in's message aside, which a calculation must not open.
        self.assertEqual(set(told) - called, set())


if __name__ == "__main__":
    unittest.main()

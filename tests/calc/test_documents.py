"""Documents that are saved, and opened where the extension is and where it isn't."""

import pathlib
import tempfile
import unittest

import office
from sheets import cell, fill, shown

FILTERS = {"ods": "calc8", "xlsx": "Calc MS Excel 2007 XML"}
LONG = "12345678901234567890123456789012345678901234567890"
CONTENTS = {
    "A1": LONG, "A2": "0.5", "A3": "3",
    "B1": "=QVXADD(A1;A2)",
    "B2": "=QVXADD(A1;A2;;TRUE())",
    "B3": '=QVXSUM2(A1:A3;1;"format:thousands")',
    "B4": "=QVXPI(50)",
    "B5": "=LEN(QVXMULTIPLY(A1;A1))",
}
SORTED = "=QVXSORT(A1:A3;TRUE())"
SORTED_CELLS = ("C1", "C2", "C3")
EVERY_CELL = [*CONTENTS, *SORTED_CELLS]
# What an office without the extension calculates anew when it opens a document, whatever it is told:
# arrays, and in .ods what another function makes a number of.
FORGOTTEN = {*SORTED_CELLS, "B5"}


def values(document):
    return {address: shown(document, address) for address in EVERY_CELL}


def formulas(document):
    found = {address: cell(document, address).getFormula() for address in CONTENTS}
    found["C1"] = document.Sheets.getByIndex(0).getCellRangeByName("C1:C3").getArrayFormula()
    return found


def save(document, path):
    document.storeToURL(path.as_uri(), office.properties(FilterName=FILTERS[path.suffix[1:]]))


class Documents(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        folder = pathlib.Path(folder.name)
        cls.first = {kind: folder / f"first.{kind}" for kind in FILTERS}
        cls.passed_on = {kind: folder / f"passed-on.{kind}" for kind in FILTERS}
        with office.Office() as running:
            document = running.open()
            fill(document, **CONTENTS)
            document.Sheets.getByIndex(0).getCellRangeByName("C1:C3").setArrayFormula(SORTED)
            cls.values, cls.formulas = values(document), formulas(document)
            for path in cls.first.values():
                save(document, path)
            document.close(True)

    def reload(self, running, path, recalculate):
        document = running.open(path.as_uri())
        if recalculate:
            document.calculateAll()
        found = values(document), formulas(document)
        document.close(True)
        return found

    def test_gives_what_it_should(self):
        self.assertEqual(self.values["B1"], (LONG + ".5", 0))
        self.assertEqual(self.values["B2"][0].count(","), 16)
        self.assertEqual([self.values[address][0] for address in SORTED_CELLS], [LONG, "3", "0.5"])

    def test_comes_back_whole(self):
        with office.Office() as running:
            for kind, path in self.first.items():
                for recalculate in (False, True):
                    with self.subTest(kind=kind, recalculate=recalculate):
                        found = self.reload(running, path, recalculate)
                        self.assertEqual(found, (self.values, self.formulas))

    def test_keeps_its_values_without_the_extension_and_its_formulas_for_later(self):
        with office.Office(extended=False) as running:
            for kind, path in self.first.items():
                with self.subTest(kind=kind, extended=False):
                    document = running.open(path.as_uri())
                    kept = values(document)
                    for address in set(EVERY_CELL) - FORGOTTEN:
                        self.assertEqual(kept[address], self.values[address])
                    self.assertIn("qvxadd", cell(document, "B1").getFormula().lower())
                    save(document, self.passed_on[kind])
                    document.close(True)
        with office.Office() as running:
            for kind, path in self.passed_on.items():
                with self.subTest(kind=kind, extended=True):
                    found = self.reload(running, path, recalculate=True)
                    self.assertEqual(found, (self.values, self.formulas))


if __name__ == "__main__":
    unittest.main()

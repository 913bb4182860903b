"""Long calculations, large results, little memory, many calls: the office outlives them all."""

import contextlib
import pathlib
import tempfile
import threading
import time
import unittest

import office
from sheets import answers, cell, fill

VALUE, NO_CONVERGENCE = 519, 523
# Longer than anybody waits.
ENDLESS = ['=QVXROOT("2";"1234567.1";;;;;1000000)', "=QVXSQRT(2;;;;100000000)",
           '=QVXPOWER("1."&REPT("0";20)&"3";"9999999999999999";;;;;50000000)']


def home_with(seconds):
    """The home of a user who has set a time limit."""
    home = tempfile.mkdtemp(prefix="quorvex-limit-")
    folder = pathlib.Path(home) / "config/quorvex"
    folder.mkdir(parents=True)
    (folder / "settings").write_text(f"Quorvex/Calc/TimeLimit = {seconds}\n", encoding="ascii")
    return home


class Endurance(unittest.TestCase):
    def test_a_calculation_ends_at_its_time_limit(self):
        with office.Office(home=home_with(1)) as running:
            document = running.open()
            for formula in ENDLESS:
                with self.subTest(formula=formula):
                    begin = time.monotonic()
                    fill(document, A1=formula)
                    self.assertEqual(cell(document, "A1").getError(), NO_CONVERGENCE)
                    self.assertLess(time.monotonic() - begin, 5)
            self.assertEqual(answers(document, "=QVXADD(1;2)"), ["3"])

    def test_an_office_closes_while_it_calculates(self):
        with office.Office(home=home_with(2)) as running:
            document = running.open()
            waiting = threading.Thread(target=self.calculate, args=(document,), daemon=True)
            waiting.start()
            time.sleep(0.5)
            self.assertEqual(running.close(), 0)
            waiting.join(10)
            self.assertFalse(waiting.is_alive())

    @staticmethod
    def calculate(document):
        with contextlib.suppress(Exception):  # the office goes meanwhile
            answers(document, ENDLESS[0])

    def test_a_result_too_long_for_a_cell_is_an_error(self):
        with office.Office() as running:
            document = running.open()
            fill(document, A1="1E+300000000")
            self.assertEqual(answers(document, "=QVXADD(A1;1;;;;;400000000)"), [VALUE])
            self.assertTrue(running.is_alive())
            # What a cell takes, it gets.
            self.assertEqual(answers(document, '=LEN(QVXADD("1E+3000000";1;;;;;4000000))'),
                             ["3000001"])

    def test_a_lack_of_memory_is_an_error(self):
        limits = ["prlimit", f"--as={2 << 30}"]
        with office.Office(limits=limits) as running:
            document = running.open()
            fill(document, A1="1E+200000000", B1="=QVXADD(A1;1;;;;;400000000)",
                 B2="=QVXSUM2(A1;1)")
            for address in ("B1", "B2"):
                self.assertEqual(cell(document, address).getError(), VALUE)
            self.assertEqual(answers(document, "=QVXADD(1;2)"), ["3"])

    def test_calls_leave_no_memory_behind(self):
        rows = 1000
        with office.Office() as running:
            document = running.open()
            sheet = document.Sheets.getByIndex(0)
            sheet.getCellRangeByName(f"A1:B{rows}").setDataArray(
                tuple((str(10**49 + row), f"{row}.5") for row in range(rows)))
            for column, formula in (("C", "=QVXADD(A1;B1;;TRUE())"), ("D", "=QVXSUM2(A1:B1;C1)"),
                                    ("E", '=QVXADD("x";A1)'), ("F", "=QVXSUM(1)")):
                cell(document, f"{column}1").setFormula(formula)
                sheet.getCellRangeByName(f"{column}1:{column}{rows}").fillAuto(0, 1)
            for _ in range(10):  # until all that is kept has been made
                document.calculateAll()
            before = running.resident_bytes()
            for _ in range(25):  # 100,000 calls
                document.calculateAll()
            self.assertLess(running.resident_bytes() - before, 4 << 20)


if __name__ == "__main__":
    unittest.main()

"""What goes wrong in a sheet goes wrong in its cell alone."""

import time
import unittest

import office
from sheets import answers, fill, shown

DIVISION_BY_ZERO, NOT_AVAILABLE, VALUE = 532, 32767, 519
BAD_ARGUMENTS, IN_ARRAY, TOO_MANY_TOKENS = 504, 504, 512
LAST_ROW = 1048576

# A formula, and its text or the code of its error.
ANSWERS = [
    # Tokens are text and pass.
    ('=QVXADD("#NUM!";1)', "#NUM!"),
    ("=QVXDIVIDE(1;0)", "#DIV/0!"),
    ('=QVXADD("no number";1)', "#VALUE!"),
    # A failed call is an error of the cell.
    ("=QVXSUM(5)", VALUE),
    ('=QVXADD(1;1;;"maybe")', "#VALUE!"),
    # Errors pass by functions.
    ("=QVXADD(A1;1)", DIVISION_BY_ZERO),
    ("=QVXSUM2(A1:A3)", IN_ARRAY),
    ("=QVXISERROR(NA())", NOT_AVAILABLE),
    ('=QVXADD(IFERROR(A1;"#DIV/0!");1)', "#DIV/0!"),
    # An empty cell alone is 0, and within a range blank.
    ("=QVXADD(A9;1)", "1"),
    ("=QVXCOUNT(A9;1)", "2"),
    ("=QVXCOUNT(A9:A9;1)", "1"),
    # Truth values.
    ("=QVXADD(1000;1;;TRUE())", "1,001"),
    ("=QVXADD(1000;1;;FALSE())", "1001"),
    ("=QVXADD(1000;1;;1=1)", "1,001"),
    ("=QVXADD(1000;1;;B1)", "1,001"),
    ("=QVXROUND(QVXPOISSON(1;2;TRUE());6)", "0.406006"),
    ("=QVXADD(1000;1;;;;TRUE())", "1.001E+3"),
    # What is no plain range.
    ("=QVXSUM2(A2~A3)", BAD_ARGUMENTS),
    ("=QVXSUM2($Sheet1.A2:$Second.A3)", "5"),
    ("=QVXADD(1;2;3;4;5;6;7;8;9;10)", BAD_ARGUMENTS),
    ("=QVXADD(A2:A3;1)", "#VALUE!"),
    (f"=QVXSUM2({';'.join(['1'] * 255)})", "255"),
    (f"=QVXSUM2({';'.join(['1'] * 256)})", TOO_MANY_TOKENS),
    ("=QVXSUM2(B:B)", "1"),
    ("=QVXCOUNT(A2:C2;1:1)", IN_ARRAY),
    ('=QVXSUM2({1;2|"3";4};"x")', "10"),
    ("=QVXSUM2()", "0"),
    # A number that arrives as a float has its 15 digits.
    ("=QVXADD(12345678901234567890;0)", "12345678901234600000"),
    ("=QVXADD(0.1+0.2;0)", "0.3"),
]


class BadInput(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.office = office.Office()
        cls.addClassCleanup(cls.office.close)

    def setUp(self):
        self.document = self.office.open()
        self.document.Sheets.insertNewByName("Second", 1)
        fill(self.document, A1="=1/0", A2="2", A3="3", B1="=TRUE()")

    def tearDown(self):
        self.document.close(True)

    def test_gets_an_answer_in_its_cell(self):
        for (formula, wanted), answer in zip(
                ANSWERS, answers(self.document, *(formula for formula, _ in ANSWERS))):
            with self.subTest(formula=formula[:60]):
                self.assertEqual(answer, wanted)

    def test_does_not_reach_another_document(self):
        other = self.office.open()
        fill(self.document, C1="1", C2="=QVXADD(C1;1)")
        fill(other, C1="10", C2="=QVXADD(C1;1)")
        fill(self.document, C1="100")
        self.assertEqual([shown(each, "C2") for each in (self.document, other)],
                         [("101", 0), ("11", 0)])
        other.close(True)

    def test_a_whole_column_takes_seconds_and_no_more(self):
        sheet = self.document.Sheets.getByIndex(0)
        sheet.getCellRangeByName(f"E1:E{LAST_ROW}").setDataArray((("1",),) * LAST_ROW)
        begin = time.monotonic()
        self.assertEqual(answers(self.document, "=QVXSUM2(E:E)", "=QVXCOUNT(E:E)"),
                         [str(LAST_ROW)] * 2)
        self.assertLess(time.monotonic() - begin, 60)



if __name__ == "__main__":
    unittest.main()

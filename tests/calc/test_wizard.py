"""What the function wizard is told: asked of the office, compared with the function reference."""

import re
import unittest

import office

# A heading of the reference, and its line of arguments.
SIGNATURE = re.compile(r"^`(qvx\w+)\((.*)\)`$", re.MULTILINE)
ALL_ARE_THE_LIST = "numlist"


def described():
    with office.Office() as running:
        found = {}
        functions = running.make("com.sun.star.sheet.FunctionDescriptions")
        for place in range(functions.getCount()):
            told = {item.Name: item.Value for item in functions.getByIndex(place)}
            if told["Name"].upper().startswith("QVX"):
                found[told["Name"].upper()] = told
        return found


class Wizard(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.told = described()
        reference = (office.SOURCE / "docs/functions.md").read_text(encoding="utf-8")
        cls.signatures = {
            name.upper(): [item.strip(" []") for item in arguments.split(",") if item]
            for name, arguments in SIGNATURE.findall(reference)}

    def test_knows_every_function(self):
        self.assertEqual(set(self.told) - set(self.signatures), set())
        # All that is registered, but for two that belong to another host's workbook.
        self.assertEqual(len(self.told), 77 - 2)

    def test_tells_of_each_function_and_argument(self):
        for name, told in self.told.items():
            with self.subTest(function=name):
                self.assertEqual(told["Category"], 11)  # that of functions that are added
                self.assertGreater(len(told["Description"]), 20)
                arguments = [argument.Name for argument in told["Arguments"] or ()]
                wanted = self.signatures[name]
                if wanted[:1] == [ALL_ARE_THE_LIST] and len(arguments) == 1:
                    wanted = wanted[:1]
                self.assertEqual(arguments, wanted)
                self.assertTrue(all(argument.Description for argument in told["Arguments"] or ()))


if __name__ == "__main__":
    unittest.main()

"""The documents in examples/: as the worksheets beside them, calculated as the tool does."""

import re
import unittest

import examples
import office


class Examples(unittest.TestCase):
    def test_are_what_their_worksheets_are(self):
        with office.Office() as running:
            for path in examples.all_examples():
                with self.subTest(example=path.stem):
                    fresh = running.open()
                    examples.fill(fresh, path)
                    wanted = examples.shown(fresh, path)
                    fresh.close(True)
                    kept = running.open(path.with_suffix(".ods").as_uri(), ReadOnly=True)
                    self.assertEqual(examples.shown(kept, path), wanted)
                    kept.close(True)
                    results = examples.calculated(path)
                    for address, (_, text) in wanted.items():
                        column, row = re.fullmatch(r"([A-Z])(\d+)", address).groups()
                        self.assertEqual(
                            text, examples.item(results, int(row) - 1, ord(column) - ord("A")),
                            address)


if __name__ == "__main__":
    unittest.main()

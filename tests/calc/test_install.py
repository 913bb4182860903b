"""The extension as users install it, remove it, and put it back."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

import office
from sheets import fill, shown

IDENTIFIER = "quorvex.calc"
NO_SUCH_NAME = 525
# Nobody installs for a single user as root, which the office refuses.
NOBODY = 65534


class Install(unittest.TestCase):
    def setUp(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="quorvex-install-"))
        self.addCleanup(shutil.rmtree, self.home, ignore_errors=True)
        self.extension = self.home / "quorvex.oxt"
        shutil.copy(office.EXTENSION, self.extension)
        self.document = self.home / "sheet.ods"

    def manage(self, *arguments):
        as_user = []
        if os.geteuid() == 0:
            subprocess.run(["chown", "-R", f"{NOBODY}:{NOBODY}", self.home], check=True)
            as_user = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
        done = subprocess.run(
            [*as_user, "unopkg", *arguments, f"-env:UserInstallation=file://{self.home}/profile"],
            env=dict(os.environ, HOME=str(self.home), XDG_CONFIG_HOME=str(self.home / "config")),
            capture_output=True, text=True, timeout=120, check=False)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        return done.stdout

    def in_sheet(self, act):
        with office.Office(extended=False, home=self.home) as running:
            document = running.open(
                self.document.as_uri() if self.document.exists() else "private:factory/scalc")
            found = act(document)
            document.storeAsURL(self.document.as_uri(), office.properties(FilterName="calc8"))
            document.close(True)
            return found

    @staticmethod
    def write(document):
        fill(document, A1="99999999999999999999.5", A2="=QVXADD(A1;1)")
        return shown(document, "A2")

    @staticmethod
    def calculate(document):
        document.calculateAll()
        return shown(document, "A2")

    def test_comes_goes_and_comes_back(self):
        right = ("100000000000000000000.5", 0)
        self.manage("add", "--suppress-license", str(self.extension))
        self.assertIn(IDENTIFIER, self.manage("list"))
        self.assertEqual(self.in_sheet(self.write), right)
        self.manage("remove", IDENTIFIER)
        self.assertNotIn(IDENTIFIER, self.manage("list"))
        self.assertEqual(self.in_sheet(self.calculate), ("#NAME?", NO_SUCH_NAME))
        self.manage("add", "--suppress-license", str(self.extension))
        self.assertEqual(self.in_sheet(self.calculate), right)


if __name__ == "__main__":
    unittest.main()

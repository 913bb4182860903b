"""The dialogs, on a display that nobody sees, driven through what screen readers use."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import tempfile
import threading
import time
import unittest

import office
from com.sun.star.accessibility.AccessibleRole import (
    ALERT, LABEL, PUSH_BUTTON, STATIC, TEXT)
from com.sun.star.awt import KeyEvent
from sheets import cell, fill, shown

LARGEST = "2147483648"
MAIN_TEXT = (
    "You can customize that default maximum number of significant digits here. The number you enter "
    "here will be used in Quorvex functions where you have omitted the maximum_significant_digits "
    "parameter.")
QUESTION = (
    "Recalculate Quorvex formulas now?\n\nCaution:\nRecalculating here will only recalculate Quorvex "
    "formulas in worksheet cells and defined names. To recalculate Quorvex formulas anywhere else, "
    "close and reopen the workbook.")


@contextlib.contextmanager
def display(size="1280x960"):
    """The name of a display in memory."""
    read, write = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{size}x24", "-nolisten", "tcp"],
        pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(write)
    try:
        with os.fdopen(read) as told:
            yield f":{told.readline().strip()}"
    finally:
        server.terminate()
        server.wait()


def tree(accessible):
    """Everything in a window, from the top."""
    context = accessible.getAccessibleContext()
    yield context
    for place in range(min(context.getAccessibleChildCount(), 50)):
        yield from tree(context.getAccessibleChild(place))


class Window:
    def __init__(self, window):
        self.peer = window
        self.items = list(tree(window))
        self.title = self.items[0].getAccessibleName()

    def is_message(self):
        return self.items[0].getAccessibleRole() == ALERT

    def names(self, role):
        return [item.getAccessibleName() for item in self.items
                if item.getAccessibleRole() == role]

    def box(self):
        """The first box that takes text."""
        return next(item for item in self.items if item.getAccessibleRole() == TEXT)

    def press(self, name):
        next(item for item in self.items if item.getAccessibleRole() == PUSH_BUTTON
             and item.getAccessibleName() == name).doAccessibleAction(0)


class Driver:
    """Opens entries of the menu, and finds the dialogs that come up."""

    def __init__(self, running, document):
        self.toolkit = running.make("com.sun.star.awt.Toolkit")
        self.dispatcher = running.make("com.sun.star.frame.DispatchHelper")
        self.frame = document.CurrentController.Frame
        self.waiting = []

    def background(self, call, *arguments):
        """What opens a dialog comes back only when that is closed."""
        thread = threading.Thread(target=call, args=arguments, daemon=True)
        thread.start()
        self.waiting.append(thread)

    def choose(self, entry):
        self.background(self.dispatcher.executeDispatch, self.frame,
                        f"service:quorvex.calc.Menu?{entry}", "", 0, ())

    def windows(self):
        for place in range(self.toolkit.getTopWindowCount()):
            with contextlib.suppress(Exception):  # some close while they are looked at
                yield Window(self.toolkit.getTopWindow(place))

    def window(self, title, is_message=False, patience=40):
        end = time.monotonic() + patience
        while time.monotonic() < end:
            for window in self.windows():
                if (window.title, window.is_message()) == (title, is_message):
                    return window
            time.sleep(0.1)
        raise AssertionError(f"no {title!r} among {[each.title for each in self.windows()]}")

    def type_keys(self, window, text):
        for sign in text:
            key = KeyEvent(KeyChar=sign)
            key.Source = window.peer
            self.toolkit.keyPress(key)
            self.toolkit.keyRelease(key)

    def settle_last(self):
        thread = self.waiting.pop()
        thread.join(40)
        assert not thread.is_alive(), "a dialog stays open"

    def settle(self):
        while self.waiting:
            self.settle_last()


class Dialogs(unittest.TestCase):
    def setUp(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="quorvex-dialogs-"))
        self.addCleanup(shutil.rmtree, self.home, ignore_errors=True)
        screen = self.enterContext(display())
        self.office = self.enterContext(office.Office(display=screen, home=self.home))
        self.document = self.office.open(Hidden=False)
        self.driver = Driver(self.office, self.document)

    def tearDown(self):
        if self.driver.waiting:  # a dialog that stays open would keep the office
            self.office.kill()
        else:
            self.document.close(True)

    def stored(self, key):
        lines = (self.home / "config/quorvex/settings").read_text().splitlines()
        found = dict(line.split(" = ") for line in lines if " = " in line)
        return found.get(f"Quorvex/{key}")

    def expect_message(self, title, text):
        window = self.driver.window(title, is_message=True)
        self.assertIn(text, " ".join(window.names(STATIC)))
        return window

    def expect_box(self, box, text, caret=None):
        end = time.monotonic() + 5
        while time.monotonic() < end and box.getText() != text:
            time.sleep(0.05)
        self.assertEqual(box.getText(), text)
        if caret is not None:
            self.assertEqual(box.getCaretPosition(), caret)

    def test_max_sd_is_checked_at_each_change_and_stored(self):
        self.driver.choose("max-sd")
        dialog = self.driver.window("Set Default Max SD")
        self.assertEqual(dialog.names(LABEL), [MAIN_TEXT, "Default Maximum Significant Digits"])
        self.assertEqual(dialog.names(PUSH_BUTTON), ["OK", "Cancel"])
        box = dialog.box()
        self.assertEqual((box.getText(), box.getCaretPosition()), ("100", 3))
        # Where the caret is put, what is typed there, and then: the message, the text, the caret.
        for at, typed, message, text, caret in [
                (3, "5", None, "1005", 4),
                (1, "a", "Enter digits (0-9) only.", "1005", 1),
                (4, "-", "Enter digits (0-9) only.", "1005", 4),
                (4, "000000000", f"{LARGEST} significant digits.", LARGEST, len(LARGEST)),
                (0, "0", None, "0" + LARGEST, 1)]:
            with self.subTest(typed=typed, at=at):
                box.setCaretPosition(at)
                self.driver.type_keys(dialog, typed)
                if message:
                    self.expect_message("Quorvex", message).press("OK")
                self.expect_box(box, text, caret)
        # The same for what is pasted over all.
        for pasted, message, text in [
                ("250", None, "250"), ("2a50", "Enter digits (0-9) only.", "250"),
                ("99999999999", f"{LARGEST} significant digits.", LARGEST),
                (LARGEST, None, LARGEST), ("", None, ""), ("-1", "Enter digits", ""),
                ("30", None, "30")]:
            with self.subTest(pasted=pasted):
                self.driver.background(box.setText, pasted)
                if message:
                    self.expect_message("Quorvex", message).press("OK")
                self.driver.settle_last()
                self.expect_box(box, text)
        dialog.press("Cancel")
        self.driver.settle()
        self.assertEqual(self.stored("Options/MaxSD"), "100")

    def test_ok_stores_and_recalculates_if_the_user_wants(self):
        other = self.office.open()
        for document in (self.document, other):
            fill(document, A1="=QVXDIVIDE(1;7)", A2='="no formula of ours"', C1="=QVXDIVIDE(1;6)")
        sheet = self.document.Sheets.getByIndex(0)
        sheet.getCellRangeByName("B1:B2").setArrayFormula("=QVXSORT({1|2};TRUE())&LEN(QVXPI())")
        other.Sheets.getByIndex(0).protect("")
        digits = lambda document, address: len(cell(document, address).getString())
        self.assertEqual(digits(other, "A1"), 103)
        for answer, typed, here in (("No", "20", 103), ("Yes", "10", 13)):
            self.driver.choose("max-sd")
            dialog = self.driver.window("Set Default Max SD")
            dialog.box().setText(typed)
            self.driver.background(dialog.press, "OK")
            self.expect_message("Set Default Max SD", QUESTION).press(answer)
            self.driver.settle()
            self.assertEqual(self.stored("Options/MaxSD"), typed)
            self.assertEqual(digits(self.document, "A1"), here)
            self.assertEqual(digits(other, "A1"), 103)  # its sheet is protected
        self.assertEqual(shown(self.document, "B2")[0], "111")  # recalculated as a whole
        other.close(True)

    def test_about_opens_max_sd_and_shows_the_new_limit(self):
        self.driver.choose("about")
        about = self.driver.window("About Quorvex 3.1")
        self.assertEqual(about.names(PUSH_BUTTON), ["Set Default Max SD", "OK"])
        self.assertIn("Default Max SD:\n100", about.names(LABEL))
        self.driver.background(about.press, "Set Default Max SD")
        dialog = self.driver.window("Set Default Max SD")
        dialog.box().setText("70")
        self.driver.background(dialog.press, "OK")
        self.expect_message("Set Default Max SD", "Recalculate").press("No")
        about = self.driver.window("About Quorvex 3.1")
        self.assertIn("Default Max SD:\n70", about.names(LABEL))
        about.press("OK")
        self.driver.settle()

    def test_the_time_limit_is_asked_and_stored(self):
        self.driver.choose("time-limit")
        dialog = self.driver.window("Set Time Limit")
        self.assertEqual(dialog.box().getText(), "30")
        dialog.box().setText("soon")
        self.driver.background(dialog.press, "OK")
        self.expect_message("Quorvex", "Enter a count of seconds").press("OK")
        dialog.box().setText("2.5")
        dialog.press("OK")
        self.driver.settle()
        self.assertEqual(self.stored("Calc/TimeLimit"), "2.5")


if __name__ == "__main__":
    unittest.main()

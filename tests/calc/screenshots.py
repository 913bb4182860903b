"""Takes the pictures of docs/calc.md on a display in memory (`import` of ImageMagick needed)."""

import pathlib
import shutil
import subprocess
import time

import office
from sheets import cell
from test_dialogs import Driver, display


def take(screen, name):
    time.sleep(2)  # until all is drawn
    subprocess.run(["import", "-display", screen, "-window", "root", "+dither", "-colors", "64",
                    "-strip",
                    office.SOURCE / "docs" / name], check=True)


def main():
    with display("1180x620") as screen, office.Office(display=screen) as running:
        example = shutil.copy(office.SOURCE / "examples/at-a-glance.ods", running.home)
        document = running.open(pathlib.Path(example).as_uri(), Hidden=False)
        frame = document.CurrentController.Frame
        frame.ContainerWindow.setPosSize(0, 0, 1180, 620, 15)
        dispatcher = running.make("com.sun.star.frame.DispatchHelper")
        dispatcher.executeDispatch(frame, ".uno:Sidebar", "", 0, office.properties(Sidebar=False))
        document.CurrentController.select(cell(document, "B4"))
        take(screen, "calc-sheet.png")
        cell(document, "B12").setFormula("=QVXROOT(2;12;;;;;40)")
        document.CurrentController.select(cell(document, "B12"))
        Driver(running, document).background(
            dispatcher.executeDispatch, frame, ".uno:FunctionDialog", "", 0, ())
        take(screen, "calc-wizard.png")
        running.kill()


if __name__ == "__main__":
    main()

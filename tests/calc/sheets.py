"""Short ways to fill and read sheets."""


def cell(document, address, sheet=0):
    return document.Sheets.getByIndex(sheet).getCellRangeByName(address).getCellByPosition(0, 0)


def fill(document, **contents):
    """Puts text into cells, and formulas where the text begins with '='."""
    for address, content in contents.items():
        if content.startswith("="):
            cell(document, address).setFormula(content)
        else:
            cell(document, address).setString(content)


def shown(document, address):
    """What the user sees in the cell, and the code of its error, 0 for none."""
    found = cell(document, address)
    return found.getString(), found.getError()


def answers(document, *formulas):
    """What the formulas give, one after the other, in cells of column Z."""
    for row, formula in enumerate(formulas, 1):
        cell(document, f"Z{row}").setFormula(formula)
    found = [cell(document, f"Z{row}") for row in range(1, len(formulas) + 1)]
    return [item.getError() or item.getString() for item in found]

"""Golden cases as formulas of a sheet."""

import collections
import pathlib
import xml.etree.ElementTree as ElementTree

import office

OOR = "{http://openoffice.org/2001/registry}"

# What each failed call becomes in a cell, by its number: codes of the office's errors.
VALUE, NUMBER, NO_CONVERGENCE = 519, 503, 523
ERROR_OF_FAILURE = {5: VALUE, 6: NUMBER, 7: VALUE, 9: VALUE, 13: VALUE, 16: NO_CONVERGENCE}


class CannotHold(Exception):
    """Why a sheet can't hold a case."""


Parameter = collections.namedtuple("Parameter", "name help")
Function = collections.namedtuple("Function", "name description parameters")


def functions():
    """What the extension's configuration tells of its functions, by their names in capitals."""
    def text(node, name):
        value = node.find(f"prop[@{OOR}name='{name}']/value")
        return "" if value is None else value.text or ""

    tree = ElementTree.parse(office.bundle() / "quorvex/CalcAddIns.xcu")
    told = {}
    for node in tree.iter("node"):
        parameters = node.find(f"node[@{OOR}name='Parameters']")
        if parameters is None:
            continue
        told[node.get(OOR + "name").upper()] = Function(
            node.get(OOR + "name"), text(node, "Description"),
            [Parameter(text(item, "DisplayName"), text(item, "Description"))
             for item in parameters])
    return told


def is_truth_value(parameter):
    """Users read of TRUE where an argument takes it."""
    return "TRUE" in parameter.help or parameter.name == "preserve_decimal_place"


def column_name(index):
    letters = ""
    while index >= 0:
        index, letter = index // 26 - 1, index % 26
        letters = chr(ord("A") + letter) + letters
    return letters


class Values:
    """Cells of a sheet for arguments, a block below the other."""

    def __init__(self):
        self.rows = []

    def put(self, block):
        first = len(self.rows) + 1
        self.rows.extend(block)
        return f"$Values.A{first}", f"$Values.{column_name(len(block[0]) - 1)}{len(self.rows)}"

    def cell(self, value):
        return self.put([[value]])[0]

    def block(self, value):
        return ":".join(self.put(value))

    def data(self):
        width = max(map(len, self.rows))
        # Empty text leaves a cell empty; the office doesn't survive being given nothing.
        blanked = (["" if item is None else item for item in row] for row in self.rows)
        return tuple(tuple(row) + ("",) * (width - len(row)) for row in blanked)


def plain(value):
    """A value that a cell can hold by itself."""
    if isinstance(value, bool):
        raise CannotHold("truth values arrive as numbers")
    if isinstance(value, dict):
        kind = next(iter(value))
        raise CannotHold({
            "error": "an error in a cell never reaches a function",
            "missing": "nothing is missing within a range",
            "array": "a range holds no arrays",
            "list": "a list holds no lists"}[kind])
    if isinstance(value, str) and any(ord(sign) < 32 and sign not in "\n\t" for sign in value):
        raise CannotHold("a cell holds no control characters")
    if isinstance(value, int):
        if int(float(value)) != value:
            raise CannotHold("a cell holds no number of so many digits")
        return float(value)
    return value


def in_block(value):
    value = plain(value)
    if value == "":
        raise CannotHold("empty text in a range arrives as a blank")
    return value


def argument(value, parameter, values):
    """The text of an argument in a formula."""
    if isinstance(value, dict) and "missing" in value:
        return ""
    if isinstance(value, dict) and "array" in value:
        block = value["array"]
        if not block or not block[0]:
            raise CannotHold("a range is never empty")
        if len(block) == 1 and len(block[0]) == 1:
            raise CannotHold("a range of one cell is that cell")
        return values.block([[in_block(item) for item in row] for row in block])
    takes_truth = parameter is not None and is_truth_value(parameter)
    if isinstance(value, bool) and takes_truth:
        return "TRUE()" if value else "FALSE()"
    if takes_truth and not isinstance(value, (str, dict)) and value in (0, 1):
        raise CannotHold("1 and 0 are TRUE and FALSE")
    if value is None:
        return ":".join([values.cell(None)] * 2)  # a lone empty cell would arrive as 0
    if value == "":
        return '""'
    return values.cell(plain(value))


def arguments_by_place(case, function):
    given = list(case.get("args", []))
    named = dict(case.get("named", {}))
    for place, parameter in enumerate(function.parameters):
        if parameter.name in named:
            given += [{"missing": True}] * (place + 1 - len(given))
            given[place] = named.pop(parameter.name)
    if named:
        raise CannotHold("the size of the caller's block is not for a formula to tell")
    return given


def formula(case, functions_told, values):
    function = functions_told.get(case["call"].upper())
    if function is None:
        raise CannotHold("it is no function of worksheets")
    given = arguments_by_place(case, function)
    if len(function.parameters) == 1 and function.parameters[0].name == "numlist":
        if len(given) != 1 or not isinstance(given[0], dict) or "list" not in given[0]:
            raise CannotHold("a formula's arguments are a list")
        texts = [argument(item, None, values) for item in given[0]["list"]]
    else:
        texts = [argument(item, parameter, values)
                 for item, parameter in zip(given, function.parameters)]
        while texts and texts[-1] == "":
            texts.pop()
    if texts == [""]:
        raise CannotHold("a list of nothing but one omitted argument is an empty list")
    return f"={function.name}({';'.join(texts)})"


def shape(case):
    """The rows and columns that the answer takes."""
    value = case["expect"].get("value")
    if isinstance(value, dict) and "array" in value:
        return len(value["array"]), len(value["array"][0])
    return 1, 1


def expected(value):
    """What a cell holds for a value: text or a float."""
    if value is None:
        return ""
    if isinstance(value, (bool, int)):
        return float(value)
    return value


def expectation(case):
    """The cells that are expected, row by row, or the code of an error."""
    answer = case["expect"]
    if "number" in answer:
        return ERROR_OF_FAILURE[answer["number"]]
    value = answer["value"]
    if isinstance(value, dict):
        return [[expected(item) for item in row] for row in value["array"]]
    return [[expected(value)]]


def golden_lines(folder):
    """The golden cases of a folder, each with its place."""
    for file in sorted(pathlib.Path(folder).glob("*.jsonl")):
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            yield f"{file.name}:{number}", line

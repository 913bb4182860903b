"""The same elementary functions through mpmath on Python's own integers, `bc -l` and decimal, as JSON."""

import decimal
import json
import math
import os
import subprocess
import sys
import time

# mpmath takes a faster library for its integers where it finds one.
os.environ["MPMATH_NOGMPY"] = "1"

import mpmath  # noqa: E402

# Newer versions refuse to read and write longer integers.
if hasattr(sys, "set_int_max_str_digits"):
    sys.set_int_max_str_digits(0)

DIGITS = [30, 100, 300, 1000, 3000, 10_000]
FACTORIALS = [1000, 9273]
# What bc takes seconds for is left out.
BC_FUNCTIONS = {"sin": "s", "atan": "a", "ln": "l", "exp": "e"}
BC_DIGITS = [30, 100, 300, 1000]
MPMATH_FUNCTIONS = {
    "sin": mpmath.sin,
    "tan": mpmath.tan,
    "atan": mpmath.atan,
    "ln": mpmath.log,
    "exp": mpmath.exp,
}


def argument(digits):
    """20 / 7 with so many digits."""
    return "2." + ("857142" * digits)[: digits - 1]


def nanoseconds(call, repetitions):
    """The median of a few runs of at least a tenth of a second each, in time of the processor."""
    runs = []
    for _ in range(repetitions):
        count = 1
        while True:
            begin = time.process_time()
            for _ in range(count):
                call()
            spent = time.process_time() - begin
            if spent > 0.1:
                break
            count *= 4
        runs.append(spent / count * 1e9)
    return sorted(runs)[len(runs) // 2]


def bc_seconds(script):
    before = os.times()
    subprocess.run(
        ["bc", "-l"],
        input=script,
        stdout=subprocess.DEVNULL,
        check=True,
        text=True,
        env={**os.environ, "BC_LINE_LENGTH": "0"},
    )
    after = os.times()
    return (
        after.children_user
        - before.children_user
        + after.children_system
        - before.children_system
    )


def bc_nanoseconds(function, digits, repetitions):
    """One process calculates and prints many times; a process that does nothing is taken off."""
    runs = []
    for _ in range(repetitions):
        count = 1
        while True:
            loop = f"scale={digits}\nfor (i = 0; i < {count}; i++) {function}({argument(digits)})\n"
            spent = bc_seconds(loop) - bc_seconds("")
            if spent > 0.1:
                break
            count *= 4
        runs.append(spent / count * 1e9)
    return sorted(runs)[len(runs) // 2]


def factorial(number):
    """By halves, as is best for decimals."""

    def product(first, last):
        if last - first < 4:
            return decimal.Decimal(math.prod(range(first, last + 1)))
        middle = (first + last) // 2
        return product(first, middle) * product(middle + 1, last)

    return str(product(1, number))


def main():
    repetitions = int(sys.argv[1]) if len(sys.argv) > 1 else 5
    if mpmath.libmp.BACKEND != "python":
        sys.exit("mpmath doesn't use Python's own integers.")
    times = {}
    for name, function in MPMATH_FUNCTIONS.items():
        for digits in DIGITS:
            mpmath.mp.dps = digits
            number = argument(digits)
            times[f"mpmath/{name}/{digits}"] = nanoseconds(
                lambda: mpmath.nstr(function(mpmath.mpf(number)), digits), repetitions
            )
            if name in BC_FUNCTIONS and digits in BC_DIGITS:
                times[f"bc/{name}/{digits}"] = bc_nanoseconds(
                    BC_FUNCTIONS[name], digits, repetitions
                )
    decimal.setcontext(decimal.Context(prec=40_000, Emax=decimal.MAX_EMAX))
    for number in FACTORIALS:
        times[f"decimal/fact/{number}"] = nanoseconds(lambda: factorial(number), repetitions)
    json.dump(times, sys.stdout)


if __name__ == "__main__":
    main()

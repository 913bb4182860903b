#!/usr/bin/env python3
"""Writes calls with long operands, as lines of `batch`: enough of each length for every way in which
digits are multiplied and divided, and functions with hundreds of digits. Always the same lines."""
import json
import random

LENGTHS = [1, 9, 18, 19, 37, 80, 150, 300, 600, 720, 721, 1500, 3000, 7000, 15000, 40000]
chosen = random.Random(1)


def number(length):
    """Digits at random, or long runs of nines and zeros, where carries go far."""
    if chosen.random() < 0.3:
        text = "".join(chosen.choice(("9", "0")) * chosen.randint(1, length) for _ in range(8))
        return "9" + text[:length - 1]
    return chosen.choice("123456789") + "".join(chosen.choices("0123456789", k=length - 1))


def ask(name, *arguments, **named):
    print(json.dumps({"call": "qvx" + name, "args": arguments, "named": named}))


def main():
    for a in LENGTHS:
        for b in LENGTHS:
            ask("MULTIPLY", number(a), number(b), maximum_significant_digits=a + b)
            if a <= 7000 and b <= 7000:
                ask("DIVIDE", number(a), number(b), maximum_significant_digits=max(a, b))
                ask("MOD", number(a), number(b))
                ask("ADD", number(a), "-" + number(b), maximum_significant_digits=a + b)
    for a in LENGTHS:
        whole = number(a)
        ask("MULTIPLY", whole, whole, maximum_significant_digits=2 * a)
    ask("MULTIPLY", number(300000), number(280000), maximum_significant_digits=580000)
    for digits in (20, 90, 300, 800):
        for _ in range(4):
            small = "0." + number(digits)
            for name in ("SIN", "ATAN", "ASIN", "TAN"):
                ask(name, small, maxSD=digits)
            for name in ("LN", "EXP"):
                ask(name, "1" + small, maximum_significant_digits=digits)
            ask("SQRT", number(digits), maxSD=digits)
            ask("ROOT", number(digits), "7", maximum_significant_digits=digits)
            ask("POWER", small, "-13", maximum_significant_digits=digits)
            ask("FACT", str(digits + chosen.randint(0, 99)), maximum_significant_digits=digits)


if __name__ == "__main__":
    main()

"""The same operations and lists through Python's decimal, as JSON."""

import collections
import decimal
import json
import math
import random
import sys
import time

SIZES = [10, 30, 100, 1000, 10_000, 100_000, 1_000_000]
PRODUCT_SIZES = [10, 30, 100, 300, 1000, 3000, 10_000, 32_767, 100_000, 1_000_000]
REMAINDER_SIZES = [30, 100, 1000, 10_000, 100_000]
POWER_SIZES = (30, 100, 300, 1000, 10_000)
ROOT_SIZES = [30, 100, 1000, 10_000]
ROOT_DEGREE = 7
DIVISOR_SIZES = [100, 1000]

decimal.setcontext(
    decimal.Context(prec=decimal.MAX_PREC, Emax=decimal.MAX_EMAX, Emin=decimal.MIN_EMIN)
)

OPERATIONS = {
    "add": lambda a, b: str(decimal.Decimal(a) + decimal.Decimal(b)),
    "subtract": lambda a, b: str(decimal.Decimal(a) - decimal.Decimal(b)),
    "isgreater": lambda a, b: decimal.Decimal(a) > decimal.Decimal(b),
}

PRODUCTS = {
    "product": lambda a, b: str(decimal.Decimal(a) * decimal.Decimal(b)),
    "by a tenth": lambda a, b: str(decimal.Decimal(a) * decimal.Decimal(b)),
    "square": lambda a, b: str((x := decimal.Decimal(a)) * x),
}


def product_by_halves(numbers):
    factors = [decimal.Decimal(text) for text in numbers]
    while len(factors) > 1:
        pairs = [a * b for a, b in zip(factors[::2], factors[1::2])]
        factors = pairs + factors[len(pairs) * 2 :]
    return str(factors[0])


LISTS = {
    "sum": (100_000, lambda numbers, _: str(sum(map(decimal.Decimal, numbers)))),
    "mixed sum": (100_000, lambda numbers, _: str(sum(map(decimal.Decimal, numbers)))),
    "max": (100_000, lambda numbers, _: str(max(map(decimal.Decimal, numbers)))),
    "product": (1000, lambda numbers, _: product_by_halves(numbers)),
}


def counts(numbers):
    found = collections.Counter(map(decimal.Decimal, numbers))
    return [(str(count), str(number)) for number, count in found.most_common()]


ORDERS = {
    "sort": ((10_000, 100_000), 1, lambda numbers, _: sorted(numbers, key=decimal.Decimal)),
    "mode": (
        (5000, 10_000),
        2,
        lambda numbers, _: str(
            collections.Counter(map(decimal.Decimal, numbers)).most_common(1)[0][0]
        ),
    ),
    "mode table": ((5000, 10_000), 2, lambda numbers, _: counts(numbers)),
}


def digits(count, seed, first):
    source = random.Random(seed)
    return first + "".join(source.choices("0123456789", k=count - 1))


def root(context, text, degree):
    return str(context.power(decimal.Decimal(text), context.divide(1, degree)))


def nanoseconds(call, a, b, repetitions):
    """The median of a few runs of at least a tenth of a second each."""
    runs = []
    for _ in range(repetitions):
        count = 1
        while True:
            begin = time.process_time()
            for _ in range(count):
                call(a, b)
            spent = time.process_time() - begin
            if spent > 0.1:
                break
            count *= 4
        runs.append(spent / count * 1e9)
    return sorted(runs)[len(runs) // 2]


def main():
    repetitions = int(sys.argv[1]) if len(sys.argv) > 1 else 5
    times = {}
    for name, call in OPERATIONS.items():
        for size in SIZES:
            a, b = digits(size, 1, "7"), digits(size, 2, "3")
            times[f"{name}/{size}"] = nanoseconds(call, a, b, repetitions)
    for name, call in PRODUCTS.items():
        for size in PRODUCT_SIZES:
            second = size // 10 if name == "by a tenth" else size
            a, b = digits(size, 1, "7"), digits(second, 2, "3")
            times[f"{name}/{size}"] = nanoseconds(call, a, b, repetitions)
    for size in PRODUCT_SIZES:
        context = decimal.Context(prec=size, Emax=decimal.MAX_EMAX, Emin=decimal.MIN_EMIN)
        times[f"divide/{size}"] = nanoseconds(
            lambda a, b: str(context.divide(decimal.Decimal(a), decimal.Decimal(b))),
            digits(size, 1, "7"),
            digits(size, 2, "3"),
            repetitions,
        )
    for size in REMAINDER_SIZES:
        for divisor, length in (("20", 20), ("half", size // 2)):
            times[f"mod by {divisor}/{size}"] = nanoseconds(
                lambda a, b: str(decimal.Decimal(a) % decimal.Decimal(b)),
                digits(size, 1, "7"),
                digits(length, 2, "3"),
                repetitions,
            )
    for size in POWER_SIZES:
        context = decimal.Context(prec=size, Emax=decimal.MAX_EMAX, Emin=decimal.MIN_EMIN)
        times[f"power/{size}"] = nanoseconds(
            lambda a, b: str(context.power(decimal.Decimal(a), b)),
            "1.0" + digits(size - 2, 1, "7"),
            1000,
            repetitions,
        )
    for size in ROOT_SIZES:
        context = decimal.Context(prec=size, Emax=decimal.MAX_EMAX, Emin=decimal.MIN_EMIN)
        times[f"sqrt/{size}"] = nanoseconds(
            lambda a, _: str(context.sqrt(decimal.Decimal(a))), "2", None, repetitions
        )
        times[f"sqrtn/{size}"] = nanoseconds(
            lambda a, _: str(context.sqrt(decimal.Decimal(a))),
            digits(size, 1, "7"),
            None,
            repetitions,
        )
        if size <= 1000:  # by its logarithm; at 10,000 digits a call takes seconds
            times[f"root/{size}"] = nanoseconds(
                lambda a, b: root(context, a, b), "2", ROOT_DEGREE, repetitions
            )
    for size in DIVISOR_SIZES:
        times[f"gcd/{size}"] = nanoseconds(
            lambda a, b: str(math.gcd(int(a), int(b))),
            digits(size, 1, "7"),
            digits(size, 2, "3"),
            repetitions,
        )
    for name, (count, call) in LISTS.items():
        numbers = [digits(50, seed, "3") for seed in range(count)]
        if name == "mixed sum":
            numbers[1::2] = ["-" + number for number in numbers[1::2]]
        times[f"list/{name}/{count}"] = nanoseconds(call, numbers, None, repetitions)
    for name, (sizes, times_each, call) in ORDERS.items():
        for count in sizes:
            numbers = [digits(50, seed % (count // times_each), "3") for seed in range(count)]
            times[f"order/{name}/{count}"] = nanoseconds(call, numbers, None, repetitions)
    json.dump(times, sys.stdout)


if __name__ == "__main__":
    main()

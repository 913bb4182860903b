"""Writes the measured times as a Markdown table, ratios first."""

import json
import sys


def unit(nanoseconds):
    for name, size in (("ns", 1), ("us", 1e3), ("ms", 1e6)):
        if nanoseconds < 1000 * size or name == "ms":
            return f"{nanoseconds / size:.3g} {name}"


def order(run):
    call, size = run[0].rsplit("/", 1)
    return call, int(size)


def print_calls(times, peer):
    print("| call | digits | GMP / ours | decimal / ours | ours | GMP | decimal |")
    print("|---|---:|---:|---:|---:|---:|---:|")
    for name, ours in sorted(times.items(), key=order):
        library, call, size = name.split("/")
        if library != "Quorvex":
            continue
        gmp, dec = times[f"Gmp/{call}/{size}"], peer[f"{call}/{size}"]
        print(
            f"| qvx{call.upper()} | {int(size):,} | {gmp / ours:.1f} | {dec / ours:.1f} "
            f"| {unit(ours)} | {unit(gmp)} | {unit(dec)} |"
        )


def print_products(times, peer):
    """Products by the library's one routine, against the best of the peers."""
    print("| `Multiply` | digits | best peer / ours | ours | GMP | FLINT | decimal |")
    print("|---|---:|---:|---:|---:|---:|---:|")
    for shape in ("product", "by a tenth", "square"):
        for size in sizes(times, f"Multiply/{shape}"):
            print_product(times, peer, shape, size)


def print_product(times, peer, shape, size):
    ours = times[f"Multiply/{shape}/{size}"]
    peers = [times[f"Gmp/{shape}/{size}"], times[f"Flint/{shape}/{size}"]]
    peers.append(peer[f"{shape}/{size}"])
    print(
        f"| {shape} | {int(size):,} | {min(peers) / ours:.1f} | {unit(ours)} "
        f"| {' | '.join(unit(time) for time in peers)} |"
    )


KINDS = {"avx512": "AVX-512", "avx2": "AVX2", "portable": "portable"}


def print_kinds(times, peer):
    """The same products with all kinds of instructions that the machine has."""
    kinds = [kind for kind in KINDS if sizes(times, f"Kind/{kind}")]
    print(f"| digits | {' | '.join(KINDS[kind] for kind in kinds)} | best peer |")
    print(f"|---:|{'---:|' * len(kinds)}---:|")
    for size in sizes(times, "Kind/portable"):
        spent = [times[f"Kind/{kind}/{size}"] for kind in kinds]
        spent.append(min(times[f"Gmp/product/{size}"], times[f"Flint/product/{size}"],
                         peer[f"product/{size}"]))
        print(f"| {int(size):,} | {' | '.join(unit(time) for time in spent)} |")


def print_quotients(times, peer):
    """Whole calls, to as many digits as the operands have, against the best of the peers."""
    print("| call | digits | best peer / ours | ours | GMP | MPFR | decimal |")
    print("|---|---:|---:|---:|---:|---:|---:|")
    for size in sizes(times, "Call/divide"):
        ours = times[f"Call/divide/{size}"]
        peers = [times[f"Gmp/divide/{size}"], times[f"Mpfr/divide/{size}"], peer[f"divide/{size}"]]
        print(
            f"| qvxDIVIDE | {int(size):,} | {min(peers) / ours:.1f} | {unit(ours)} "
            f"| {' | '.join(unit(time) for time in peers)} |"
        )


def print_remainders(times, peer):
    """Whole calls by a divisor of twenty digits, and by one of half the dividend's digits."""
    print("| divisor | digits | best peer / ours | ours | three operations | GMP | decimal |")
    print("|---|---:|---:|---:|---:|---:|---:|")
    for divisor in ("20", "half"):
        for size in sizes(times, f"Call/mod by {divisor}"):
            call = f"mod by {divisor}/{size}"
            ours, peers = times[f"Call/{call}"], [times[f"Gmp/{call}"], peer[call]]
            spent = [ours, times[f"Operations/{call}"], *peers]
            print(
                f"| {divisor} | {int(size):,} | {min(peers) / ours:.1f} "
                f"| {' | '.join(unit(time) for time in spent)} |"
            )


def print_powers(times, peer):
    """Whole calls of the power of 1000, and the longest pi."""
    print("| call | digits | best peer / ours | ours | MPFR | decimal |")
    print("|---|---:|---:|---:|---:|---:|")
    for size in sizes(times, "Call/power"):
        ours = times[f"Call/power/{size}"]
        mpfr, dec = times[f"Mpfr/power/{size}"], peer.get(f"power/{size}")
        best = mpfr if dec is None else min(mpfr, dec)
        print(
            f"| qvxPOWER | {int(size):,} | {best / ours:.1f} | {unit(ours)} | {unit(mpfr)} "
            f"| {'' if dec is None else unit(dec)} |"
        )
    for size in sizes(times, "Call/pi"):
        print(f"| qvxPi | {int(size):,} | | {unit(times[f'Call/pi/{size}'])} | | |")


def print_roots(times, peer):
    """Whole calls of roots, and of common divisors, which the last peer takes of its int."""
    print("| call | digits | best peer / ours | ours | MPFR, GMP | Python |")
    print("|---|---:|---:|---:|---:|---:|")
    calls = {
        "sqrt": ("qvxSQRT(2)", "Mpfr"),
        "sqrtn": ("qvxSQRT", "Mpfr"),
        "root": ("qvxROOT", "Mpfr"),
        "gcd": ("qvxGCD", "Gmp"),
    }
    for name, (call, library) in calls.items():
        for size in sizes(times, f"Call/{name}"):
            ours, native = times[f"Call/{name}/{size}"], times[f"{library}/{name}/{size}"]
            dec = peer.get(f"{name}/{size}")
            best = native if dec is None else min(native, dec)
            print(
                f"| {call} | {int(size):,} | {best / ours:.2f} | {unit(ours)} | {unit(native)} "
                f"| {'' if dec is None else unit(dec)} |"
            )


ELEMENTARY_CALLS = {
    "sin": "qvxSIN",
    "tan": "qvxTAN",
    "atan": "qvxATAN",
    "ln": "qvxLN",
    "exp": "qvxEXP",
}


def print_elementary(times, peer):
    """Whole calls of functions of 20 / 7; bc answers to as many decimals."""
    print("| call | digits | mpmath / ours | bc / ours | MPFR / ours | ours | mpmath | bc | MPFR |")
    print("|---|---:|---:|---:|---:|---:|---:|---:|---:|")
    for name, call in ELEMENTARY_CALLS.items():
        for size in sizes(times, f"Elementary/{name}"):
            ours, mpfr = times[f"Elementary/{name}/{size}"], times[f"Mpfr/{name}/{size}"]
            peers = [peer[f"mpmath/{name}/{size}"], peer.get(f"bc/{name}/{size}"), mpfr]
            ratios = ["" if time is None else f"{time / ours:.2f}" for time in peers]
            spent = ["" if time is None else unit(time) for time in peers]
            print(
                f"| {call} | {int(size):,} | {' | '.join(ratios)} | {unit(ours)} "
                f"| {' | '.join(spent)} |"
            )


def print_factorials(times, peer):
    """Whole calls with all digits, and a sum of probabilities at the default limit."""
    print("| call | GMP / ours | decimal / ours | ours | GMP | decimal |")
    print("|---|---:|---:|---:|---:|---:|")
    for size in sizes(times, "Elementary/fact"):
        ours, gmp = times[f"Elementary/fact/{size}"], times[f"Gmp/fact/{size}"]
        dec = peer[f"decimal/fact/{size}"]
        print(
            f"| qvxFACT({size}) | {gmp / ours:.2f} | {dec / ours:.2f} "
            f"| {unit(ours)} | {unit(gmp)} | {unit(dec)} |"
        )
    for size in sizes(times, "Elementary/poisson"):
        spent = unit(times[f"Elementary/poisson/{size}"])
        print(f"| qvxPOISSON({size}, 100, TRUE) | | | {spent} | | |")


LIST_CALLS = {"sum": "qvxSUM2", "mixed sum": "qvxSUM2", "max": "qvxMAX", "product": "qvxPRODUCT"}


def print_lists(times, peer):
    """Whole calls over a column of fifty-digit numbers."""
    print("| call | numbers | GMP / ours | decimal / ours | ours | GMP | decimal |")
    print("|---|---:|---:|---:|---:|---:|---:|")
    for name, call in LIST_CALLS.items():
        for count in sizes(times, f"List/{name}"):
            ours, gmp = times[f"List/{name}/{count}"], times[f"Gmp list/{name}/{count}"]
            dec = peer[f"list/{name}/{count}"]
            signs = ", both signs" if name == "mixed sum" else ""
            print(
                f"| {call}{signs} | {int(count):,} | {gmp / ours:.1f} | {dec / ours:.1f} "
                f"| {unit(ours)} | {unit(gmp)} | {unit(dec)} |"
            )


def print_order(times, peer):
    """Whole calls over a column of fifty-digit numbers, and over a text of so many bytes."""
    print("| call | cells | best peer / ours | ours | GMP | decimal |")
    print("|---|---:|---:|---:|---:|---:|")
    for name, call in {"sort": "qvxSORT", "mode": "qvxMODE", "mode table": "qvxMODE, table"}.items():
        for count in sizes(times, f"Order/{name}"):
            ours, dec = times[f"Order/{name}/{count}"], peer[f"order/{name}/{count}"]
            gmp = times.get(f"Gmp list/{name}/{count}")
            best = dec if gmp is None else min(gmp, dec)
            print(
                f"| {call} | {int(count):,} | {best / ours:.1f} | {unit(ours)} "
                f"| {'' if gmp is None else unit(gmp)} | {unit(dec)} |"
            )
    print()
    print("| call | bytes | ours |")
    print("|---|---:|---:|")
    for name in ("exclude", "excludenotnum", "extract", "extractnum"):
        for count in sizes(times, f"Order/{name}"):
            print(f"| qvx{name.upper()} | {int(count):,} | {unit(times[f'Order/{name}/{count}'])} |")


def print_overhead(times):
    """What the whole call costs beside the bare product."""
    print("| digits | qvxMULTIPLY / `Multiply` | qvxDIVIDE / `Multiply` |")
    print("|---:|---:|---:|")
    for size in sizes(times, "Multiply/product"):
        bare = times[f"Multiply/product/{size}"]
        multiply, divide = times[f"Call/multiply/{size}"], times[f"Call/divide/{size}"]
        print(f"| {int(size):,} | {multiply / bare:.2f} | {divide / bare:.2f} |")


MILLION_CALLS = (
    ("qvxADD", "Quorvex/add", {"GMP": "Gmp/add"}),
    ("qvxMULTIPLY", "Call/multiply", {"GMP": "Gmp/product", "FLINT": "Flint/product"}),
    ("qvxDIVIDE", "Call/divide", {"GMP": "Gmp/divide", "MPFR": "Mpfr/divide"}),
)


def print_million(times, peer):
    """Time and peak memory of whole calls on a million digits."""
    print("| a million digits | | peer / ours | time | memory |")
    print("|---|---|---:|---:|---:|")
    for call, ours, others in MILLION_CALLS:
        for library, name in {"ours": ours, **others}.items():
            time, memory = times[f"{name}/1000000"], peer[f"memory/{name}"] / 1e6
            ratio = "" if name == ours else f"{time / times[f'{ours}/1000000']:.1f}"
            print(f"| {call} | {library} | {ratio} | {unit(time)} | {memory:.1f} MB |")


def sizes(times, name):
    found = (run.rsplit("/", 1) for run in times)
    return sorted((size for call, size in found if call == name), key=int)


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        native = json.load(file)
    peer = {}
    for path in sys.argv[2:]:
        with open(path, encoding="utf-8") as file:
            peer.update(json.load(file))
    times = {
        run["run_name"]: run["cpu_time"]
        for run in native["benchmarks"]
        if run.get("aggregate_name") == "median"
    }
    print_calls(times, peer)
    print()
    print_products(times, peer)
    print()
    print_kinds(times, peer)
    print()
    print_quotients(times, peer)
    print()
    print_remainders(times, peer)
    print()
    print_powers(times, peer)
    print()
    print_roots(times, peer)
    print()
    print_elementary(times, peer)
    print()
    print_factorials(times, peer)
    print()
    print_lists(times, peer)
    print()
    print_order(times, peer)
    print()
    print_overhead(times)
    print()
    print_million(times, peer)


if __name__ == "__main__":
    main()

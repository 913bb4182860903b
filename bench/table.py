"""Writes the measured times as a Markdown table, ratios first."""

import json
import sys


def unit(nanoseconds):
    for name, size in (("ns", 1), ("us", 1e3), ("ms", 1e6)):
        if nanoseconds < 1000 * size or name == "ms":
            return f"{nanoseconds / size:.3g} {name}"


def print_calls(times, peer):
    print("| call | digits | GMP / ours | decimal / ours | ours | GMP | decimal |")
    print("|---|---:|---:|---:|---:|---:|---:|")
    for name, ours in times.items():
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
    shapes = ["product", "by a tenth", "square"]
    ours_only = [name.split("/")[1:] for name in times if name.startswith("Multiply/")]
    for shape, size in sorted(ours_only, key=lambda row: (shapes.index(row[0]), int(row[1]))):
        ours = times[f"Multiply/{shape}/{size}"]
        peers = [times[f"Gmp/{shape}/{size}"], times[f"Flint/{shape}/{size}"]]
        peers.append(peer[f"{shape}/{size}"])
        print(
            f"| {shape} | {int(size):,} | {min(peers) / ours:.1f} | {unit(ours)} "
            f"| {' | '.join(unit(time) for time in peers)} |"
        )


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        native = json.load(file)
    with open(sys.argv[2], encoding="utf-8") as file:
        peer = json.load(file)
    times = {
        run["run_name"]: run["real_time"]
        for run in native["benchmarks"]
        if run.get("aggregate_name") == "median"
    }
    print_calls(times, peer)
    print()
    print_products(times, peer)


if __name__ == "__main__":
    main()

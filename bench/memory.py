"""Writes the peak memory of calls on a million digits, in bytes, beyond what the same call on ten
digits needs: each is a process of its own."""

import json
import subprocess
import sys

CALLS = (
    "Quorvex/add",
    "Gmp/add",
    "Call/multiply",
    "Gmp/product",
    "Flint/product",
    "Call/divide",
    "Gmp/divide",
    "Mpfr/divide",
)


def peak(program, benchmark):
    """The most memory in use while the program runs one benchmark, in bytes. A child of this
    process would be charged with the memory of this one; GNU time has none to speak of."""
    command = ["time", "--format=%M", program, f"--benchmark_filter=^{benchmark}$"]
    run = subprocess.run(
        [*command, "--benchmark_min_time=0.001"], capture_output=True, check=True, text=True
    )
    return int(run.stderr.splitlines()[-1]) * 1024


def main():
    program = sys.argv[1]
    json.dump(
        {
            f"memory/{call}": peak(program, f"{call}/1000000") - peak(program, f"{call}/10")
            for call in CALLS
        },
        sys.stdout,
    )


if __name__ == "__main__":
    main()

"""Time and memory of a sheet of 100,000 products and their sum, by operators and by calls.

bench/sheet.py TOOL [ROWS]
"""
import os
import random
import subprocess
import sys
import tempfile
import time

FORMS = {
    "=A2*B2": lambda row: f"=A{row}*B{row}",
    "=qvxMULTIPLY(A2,B2)": lambda row: f'"=qvxMULTIPLY(A{row},B{row})"',
    "=IF(A2>B2,A2*2,B2-A2%)": lambda row: f'"=IF(A{row}>B{row},A{row}*2,B{row}-A{row}%)"',
}


def write_sheet(path, rows, formula):
    numbers = random.Random(1)
    with open(path, "w", encoding="utf-8") as sheet:
        sheet.write("price,count,product\n")
        for row in range(2, rows + 2):
            price, count = numbers.randrange(10**11) / 100, numbers.randrange(10**9) / 1000
            sheet.write(f"{price},{count},{formula(row)}\n")
        sheet.write(f',,"=qvxSUM2(C2:C{rows + 1})"\n')


def measure(tool, sheet, output):
    """Seconds on the clock, seconds of the processor, peak memory in MB."""
    start = time.monotonic()
    process = subprocess.Popen([tool, "sheet", sheet, "-o", output])
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        sys.exit(f"{tool} failed")
    return time.monotonic() - start, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024


def main(tool, rows=100_000):
    print("| formula | elapsed | processor | peak memory |\n|---|---:|---:|---:|")
    with tempfile.TemporaryDirectory() as folder:
        for name, formula in FORMS.items():
            sheet = os.path.join(folder, "sheet.csv")
            write_sheet(sheet, int(rows), formula)
            runs = [measure(tool, sheet, os.path.join(folder, "out.csv")) for _ in range(3)]
            elapsed, processor, memory = (sorted(each)[1] for each in zip(*runs))
            print(f"| `{name}` | {elapsed:.2f} s | {processor:.2f} s | {memory:.0f} MB |")


if __name__ == "__main__":
    main(*sys.argv[1:])

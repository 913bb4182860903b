#!/usr/bin/env python3
"""Replays the golden lines through `batch` of the tool that the arguments start."""
import json
import pathlib
import subprocess
import sys

VECTORS = pathlib.Path(__file__).resolve().parent / "vectors"


def plain(value):
    """A value as a text that tells kinds and the order of fields apart, and 1.0 not from 1."""
    def number(text):
        value = float(text)
        return int(value) if value.is_integer() else value
    return json.dumps(json.loads(value, parse_float=number), ensure_ascii=False)


def agrees(expected, answer):
    if "number" in expected and "failure" not in expected:
        return "failure" in answer and expected["number"] == answer["number"]
    return plain(json.dumps(expected)) == plain(json.dumps(answer))


def options_of(file):
    settings = file.parent / "locale.json"
    locale = json.loads(settings.read_text("utf-8")) if settings.exists() else {
        "decimal": ".", "thousands": ",", "currency": "$", "currency_side": "before"}
    return [word for name, value in locale.items()
            for word in ("--" + name.replace("_", "-"), value)]


def wrong_answers(tool, file):
    lines = file.read_bytes()
    run = subprocess.run([*tool, "batch", *options_of(file)], input=lines, capture_output=True,
                         check=False)
    requests = [json.loads(line) for line in lines.splitlines()]
    answers = run.stdout.decode("utf-8").splitlines()
    if len(answers) != len(requests):
        yield f"{len(answers)} answers to {len(requests)} requests: {run.stderr.decode()}"
    for number, (request, text) in enumerate(zip(requests, answers), 1):
        answer = json.loads(text)
        answer.pop("id", None)
        if not agrees(request["expect"], answer):
            yield f"line {number}: {str(request)[:300]}\n  answer: {text[:300]}"


def main():
    files = sorted(VECTORS.rglob("*.jsonl"))
    lines = sum(len(file.read_bytes().splitlines()) for file in files)
    wrong = [f"{file.relative_to(VECTORS)}: {what}" for file in files
             for what in wrong_answers(sys.argv[1:], file)]
    print(*wrong, sep="\n")
    print(f"{len(wrong)} wrong answers to {lines} lines in {len(files)} files")
    return 1 if wrong or not lines else 0


if __name__ == "__main__":
    sys.exit(main())

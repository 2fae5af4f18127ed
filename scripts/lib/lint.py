"""clang-tidy over the files named on standard input: lint.py SECONDS JOBS, 0 seconds for no limit.

A file that passed is not read again until it, a header of ours below it, or .clang-tidy changes.
What time didn't suffice for is told in one line and is no fault; the next run begins with it.
"""

import concurrent.futures
import hashlib
import json
import os
import re
import subprocess
import sys
import time

FOLDER = "build/lint"
PASSED = f"{FOLDER}/passed"
TIDY = "clang-tidy-16"


def read(path):
    with open(path, "rb") as file:
        return file.read()


def with_headers(path, seen):
    """The file and all headers of ours that it leads to, into `seen`."""
    if path in seen or not os.path.isfile(path):
        return seen
    seen.add(path)
    for name in re.findall(rb'#include "([^"]+)"', read(path)):
        for folder in ("src/", ""):
            with_headers(folder + name.decode(), seen)
    return seen


def key(path):
    """Names a file together with everything of ours that its lint depends on."""
    digest = hashlib.sha1(read(".clang-tidy") + path.encode())
    for part in sorted(with_headers(path, set())):
        digest.update(read(part))
    return digest.hexdigest()


def lint(path, end):
    """clang-tidy's own words and status; (None, "") when the time is up."""
    left = end - time.monotonic()
    if left <= 0:
        return None, ""
    try:
        done = subprocess.run([TIDY, "--quiet", "-p", FOLDER, path], timeout=left,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
    except subprocess.TimeoutExpired:
        return None, ""
    return done.returncode, done.stdout.decode()


def main():
    seconds, jobs = int(sys.argv[1]), int(sys.argv[2])
    end = time.monotonic() + (seconds or 24 * 3600)
    built = {command["file"] for command in json.loads(read(f"{FOLDER}/compile_commands.json"))}
    os.makedirs(PASSED, exist_ok=True)
    keys = {path: key(path) for path in sys.stdin.read().split() if os.path.abspath(path) in built}
    # What passed lately is skipped; the rest in an order that differs from change to change.
    todo = sorted((mark, path) for path, mark in keys.items() if not os.path.exists(f"{PASSED}/{mark}"))
    left_out, bad = [], 0
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        results = pool.map(lambda item: lint(item[1], end), todo)
        for (mark, path), (status, text) in zip(todo, results):
            if status is None:
                left_out.append(path)
            elif status == 0:
                open(f"{PASSED}/{mark}", "w").close()
            else:
                bad += 1
                print(text.rstrip() or f"{path}: {TIDY} ended with status {status}", flush=True)
    if left_out:
        print(f"lint: time is up, left out {len(left_out)} of {len(keys)}: {' '.join(left_out)}")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())

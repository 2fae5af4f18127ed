"""The measurements of scripts/bench, which builds first and starts this on one core."""

import glob
import json
import os
import select
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

BUILD = "build/release"
CLI = f"{BUILD}/kavro-cli"
BARE = f"{BUILD}/bare_convert"
WINDOW = f"{BUILD}/kavro"
PAINT = f"{BUILD}/window_paint"
RUNS = 30
WINDOW_RUNS = 10
LINES = 9999
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


class Row:
    """One measured value: seconds for times, else the number in the unit's own measure."""

    def __init__(self, name, value, unit, note=""):
        self.name, self.value, self.unit, self.note = name, value, unit, note

    def in_unit(self, unit):
        if unit == self.unit or unit not in NANOSECONDS:
            return self.value
        return self.value * NANOSECONDS[self.unit] / NANOSECONDS[unit]


def code(ms):
    return "%02d:%02d:%02d,%03d" % (ms // 3600000, ms // 60000 % 60, ms // 1000 % 60, ms % 1000)


def write_subrip(path, count):
    """A film's worth of subtitles; every third has two text lines."""
    words = "we never thought that it could end like this before the lights went out".split()
    with open(path, "w", encoding="utf-8", newline="\r\n") as file:
        for i in range(count):
            start = 1000 + i * 700
            first = " ".join(words[(i + k) % len(words)] for k in range(4 + i % 4))
            text = [first.capitalize()] + (["- " + words[i % 14] + " é?"] if i % 3 == 0 else [])
            file.write(f"{i + 1}\n{code(start)} --> {code(start + 600)}\n" + "\n".join(text) + "\n\n")


def slowest_formats(costs):
    """For load and write the format that costs most a subtitle, beside SubRip."""
    rows = []
    for act in ("load", "write"):
        own = {name: cost for name, cost in costs.items() if name.startswith(act + "_")
               and not name.endswith("_1000")}
        if own:
            slowest = max(own, key=own.get)
            rows.append(Row(f"{act}_ratio", own[slowest] / own[f"{act}_subrip"], "x",
                            f"{slowest} to {act}_subrip, a subtitle"))
    return rows


def micro():
    """The Google Benchmark programs, the median of their repetitions."""
    rows, costs = [], {}
    for program in sorted(glob.glob(f"{BUILD}/*_bench")):
        out = subprocess.run(
            [program, "--benchmark_format=json", "--benchmark_repetitions=9",
             "--benchmark_min_time=0.05", "--benchmark_report_aggregates_only=true",
             # A slow moment of the machine falls on all of them, not on one.
             "--benchmark_enable_random_interleaving=true"],
            env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}, stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL, check=True).stdout
        for found in json.loads(out)["benchmarks"]:
            if found.get("aggregate_name") == "median":
                name = found["run_name"].removeprefix("BM_").removesuffix("/real_time")
                rows.append(Row(name, found["real_time"], found["time_unit"]))
                if "items_per_second" in found:
                    costs[name] = 1 / found["items_per_second"]
    return rows + slowest_formats(costs)


def timed(command):
    """Seconds of one run of a command that has to end well."""
    quiet = [(os.POSIX_SPAWN_OPEN, fd, os.devnull, os.O_WRONLY, 0) for fd in (1, 2)]
    begun = time.perf_counter()
    pid = os.posix_spawn(command[0], command, os.environ, file_actions=quiet)
    status = os.waitpid(pid, 0)[1]
    took = time.perf_counter() - begun
    if status != 0:
        sys.exit(f"status {os.waitstatus_to_exitcode(status)} of {' '.join(command)[:200]}")
    return took


def memory(command):
    """Peak resident memory of a command in MiB. A process counts its parent's peak up to the exec
    as its own, so a small program starts it."""
    out = subprocess.run(["/usr/bin/time", "-f", "%M", *command], check=True,
                         stdout=subprocess.DEVNULL, stderr=subprocess.PIPE).stderr.decode()
    return int(out.split()[-1]) / 1024


def interleaved(commands, runs, clear):
    """The median seconds of each command, one run of each in turn after one of each to warm up."""
    times = [[] for _ in commands]
    for run in range(runs + 1):
        for command, took in zip(commands, times):
            clear()
            seconds = timed(command)
            if run > 0:
                took.append(seconds)
    return [statistics.median(took) for took in times]


def processes(folder):
    """kavro-cli convert as a whole process, beside a bare program that does that and no more."""
    if not os.path.exists(BARE) or not os.path.exists(CLI):
        return [Row("convert_ratio", None, "x", "not built")]
    film, out = f"{folder}/film.srt", f"{folder}/out"
    write_subrip(film, LINES)
    parts = []
    for i in range(100):
        parts.append(f"{folder}/part{i:02}.srt")
        write_subrip(parts[-1], 1000)

    def clear():
        shutil.rmtree(out, ignore_errors=True)
        os.mkdir(out)

    one = [CLI, "convert", film, "-o", f"{out}/film.sub", "--to", "12"]
    yardstick = [BARE, film, f"{out}/film.sub"]
    many = [CLI, "convert", *parts, "--out-dir", out, "--to", "12"]
    ours, theirs, batch = interleaved([one, yardstick, many], RUNS, clear)
    clear()
    return [
        Row("convert", ours * 1e3, "ms"),
        Row("bare_convert", theirs * 1e3, "ms"),
        Row("convert_ratio", ours / theirs, "x", "convert to bare_convert"),
        Row("convert_memory", memory(one), "MiB"),
        Row("bare_memory", memory(yardstick), "MiB"),
        Row("convert_100", batch * 1e3, "ms", "100 files of 1,000 lines in one call"),
        Row("convert_100_ratio", batch / 100000 / (ours / LINES), "x", "cost a line to convert's"),
    ]


def start_screen(size):
    """An Xvfb on the first free display number, and that display's name."""
    read, write = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", f"{size}x24",
                               "-nolisten", "tcp"], pass_fds=[write], stderr=subprocess.DEVNULL,
                              preexec_fn=lambda: os.sched_setaffinity(0, range(os.cpu_count())))
    os.close(write)
    with os.fdopen(read) as number:
        return server, ":" + number.readline().strip()


def settled(process, seconds):
    """Waits for the line "settled <ms>" of a program; False when it doesn't come."""
    end, text = time.monotonic() + seconds, b""
    while time.monotonic() < end and process.poll() is None:
        if select.select([process.stderr], [], [], 0.5)[0]:
            text += os.read(process.stderr.fileno(), 4096)
            if b"settled " in text and text.endswith(b"\n"):
                return True
    return False


def resident(pid):
    with open(f"/proc/{pid}/status", encoding="ascii") as file:
        return next(int(line.split()[1]) for line in file if line.startswith("VmRSS")) / 1024


def painted(film, env):
    """How long the window takes to paint a key, as the program for it prints."""
    if not os.path.exists(PAINT):
        return []
    out = subprocess.run([PAINT, film], check=True, env=env, stdout=subprocess.PIPE).stdout.decode()
    return [Row(name, float(ms), "ms") for name, ms in (line.split() for line in out.splitlines())]


def window(folder):
    """From the start of the window with a film to the settled picture, and its memory then."""
    if not os.path.exists(WINDOW):
        return [Row("window_settled", None, "ms", "not built")]
    film = f"{folder}/film.srt"
    write_subrip(film, LINES)
    server, display = start_screen("1280x800")
    env = {**os.environ, "DISPLAY": display, "QT_QPA_PLATFORM": "xcb", "KAVRO_TRACE_START": "1",
           "KAVRO_HOME": f"{folder}/home"}
    env.pop("WAYLAND_DISPLAY", None)
    times, sizes = [], []
    try:
        # The first run fills the application folder and isn't counted.
        for run in range(WINDOW_RUNS + 1):
            begun = time.perf_counter()
            process = subprocess.Popen([WINDOW, film], env=env, stderr=subprocess.PIPE)
            came = settled(process, 30)
            took = time.perf_counter() - begun
            size = resident(process.pid) if came else 0
            process.kill()
            process.wait()
            process.stderr.close()
            if not came:
                return [Row("window_settled", None, "ms", "no line \"settled\" came")]
            if run > 0:
                times.append(took * 1e3)
                sizes.append(size)
        paints = painted(film, env)
    finally:
        server.terminate()
        server.wait()
    return [Row("window_settled", statistics.median(times), "ms"),
            Row("window_memory", statistics.median(sizes), "MiB"), *paints]


def read_goals():
    with open("bench/goals.txt", encoding="utf-8") as file:
        rows = [line.split() for line in file if line.strip() and not line.startswith("#")]
    return {name: (float(most), unit) for name, most, unit in rows}


def table(rows):
    """Prints each goal with its measure, then what has no goal; False when a goal is missed."""
    measured = {row.name: row for row in rows}
    goals = read_goals()
    good = True
    print(f"{'':24}{'median':>10}{'goal':>10}  unit")
    for name in [*goals, *(name for name in measured if name not in goals)]:
        most, unit = goals.get(name, (None, measured[name].unit if name in measured else ""))
        row = measured.get(name)
        value = row.in_unit(unit) if row and row.value is not None else None
        verdict = ""
        if value is None:
            verdict = row.note if row else "not measured"
        elif most is not None and value > most:
            verdict, good = "MISSED", False
        note = row.note if row and value is not None else ""
        print(f"{name:24}{'-' if value is None else f'{value:.2f}':>10}"
              f"{'' if most is None else f'{most:g}':>10}  {unit:5}{verdict}  {note}".rstrip())
    return good


def main():
    # In memory: a disk that still writes what came before slows those down that make many files.
    memory_disk = "/dev/shm"
    with tempfile.TemporaryDirectory(
            prefix="kavro-bench-", dir=memory_disk if os.path.isdir(memory_disk) else None) as folder:
        rows = micro() + processes(folder)
        if "--no-window" not in sys.argv[1:]:
            rows += window(folder)
    return 0 if table(rows) else 1


if __name__ == "__main__":
    sys.exit(main())

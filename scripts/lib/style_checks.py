"""The style checks that read text: style_checks.py CHECK prints "file:line: fault" lines.

Status 1 when there is a fault. scripts/style-allow.txt holds the exceptions: check, file pattern.
"""

import fnmatch
import os
import re
import subprocess
import sys
from collections import namedtuple

Fault = namedtuple("Fault", "path line text")

# Which folders of src/ a folder may include besides itself, nearest first.
CORE = ["controls"]
FORMATS = CORE + ["core"]
ROOMS = ["tools", "partition", "media", "calculator", "macro", "online", "collection"]
APP = FORMATS + ["formats"] + ROOMS + ["diagnose"]
MAY_INCLUDE = {
    "controls": [],
    "core": CORE,
    "formats": FORMATS,
    **{room: FORMATS + ["formats"] for room in ROOMS},
    "diagnose": FORMATS + ["formats", "tools"],
    "app": APP,
    "cli": APP + ["app"],
    "ui": APP + ["app"],
}
LONGEST_FILE = 450


def tracked(*patterns):
    out = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", "-z", "--", *patterns],
                         check=True, capture_output=True).stdout.decode()
    return sorted({path for path in out.split("\0") if path and os.path.isfile(path)})


def lines(path):
    with open(path, "rb") as file:
        data = file.read()
    if b"\0" in data:
        return []
    return list(enumerate(data.decode("utf-8", "replace").splitlines(), 1))


def includes_of(path):
    """(line, name, True for quotes) of each include of a file."""
    for number, line in lines(path):
        found = re.match(r'\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)', line)
        if found:
            yield number, found[1] or found[2], found[1] is not None


def sources(*folders):
    return tracked(*[f"{folder}/*.{end}" for folder in folders for end in ("cpp", "h")])


def folder_of(path):
    return path.split("/")[1]


def includes():
    """An include that points upward, or isn't written from src."""
    for path in sources("src"):
        folder = folder_of(path)
        if folder not in MAY_INCLUDE:
            yield Fault(path, 1, f"no folder {folder} in the table of scripts/lib/style_checks.py")
            continue
        for number, name, quoted in includes_of(path):
            if not quoted or name.endswith(".moc") or name.startswith("moc_"):
                continue
            other = name.split("/")[0]
            if not os.path.isfile(f"src/{name}"):
                yield Fault(path, number, f'"{name}" is not written from src')
            elif other != folder and other not in MAY_INCLUDE[folder]:
                yield Fault(path, number, f"{folder} must not include {other}")


def circle(graph):
    """A list of nodes that leads back to its first, or None. graph: node -> set of nodes."""
    state, trail = {}, []

    def walk(node):
        state[node] = "open"
        trail.append(node)
        for other in sorted(graph.get(node, ())):
            if state.get(other) == "open":
                return trail[trail.index(other):] + [other]
            if other not in state:
                found = walk(other)
                if found:
                    return found
        trail.pop()
        state[node] = "done"
        return None

    for node in sorted(graph):
        if node not in state:
            found = walk(node)
            if found:
                return found
    return None


def circles():
    """Folders, or headers, that include one another in a ring."""
    headers, folders = {}, {}
    for path in sources("src"):
        for _, name, quoted in includes_of(path):
            if not quoted or not os.path.isfile(f"src/{name}"):
                continue
            if path.endswith(".h"):
                headers.setdefault(path, set()).add(f"src/{name}")
            if folder_of(path) != name.split("/")[0]:
                folders.setdefault(folder_of(path), set()).add(name.split("/")[0])
    for graph in (folders, headers):
        found = circle(graph)
        if found:
            yield Fault(found[0], 1, "a circle: " + " -> ".join(found))


def qt():
    """A Qt include below the window layer that isn't QtCore's."""
    at = subprocess.run(["pkg-config", "--variable=includedir", "Qt6Core"],
                        check=True, capture_output=True).stdout.decode().strip()
    for path in sources("src", "tests"):
        if folder_of(path) == "ui":
            continue
        for number, name, quoted in includes_of(path):
            if quoted or not re.match(r"Q[A-Zt]", name):
                continue
            if not os.path.isfile(f"{at}/QtCore/{name.removeprefix('QtCore/')}"):
                yield Fault(path, number, f"<{name}> is not of QtCore")


def control_classes():
    """The classes of src/controls that are controls or forms."""
    bases = {}
    for path in sources("src/controls"):
        for _, line in lines(path):
            found = re.match(r"class (\w+) (?:final )?: public (\w+)", line)
            if found:
                bases[found[1]] = found[2]
    known = {"Control", "Form", "DropList"}
    while True:
        more = {name for name, base in bases.items() if base in known} - known
        if not more:
            return known
        known |= more


def ids():
    """A control whose member isn't called as it registers, or a name in other letters."""
    kinds = "|".join(sorted(control_classes()))
    declared = re.compile(
        rf"^\s*(?:(?:kavro::)?ControlArray<\s*(?:{kinds})\s*,[^>]*>|(?:{kinds}))\s+(\w+)\s*[;{{(]")
    members = set()
    files = sources("src")
    for path in files:
        if path.endswith(".h"):
            members |= {found[1] for _, line in lines(path) if (found := declared.match(line))}
    registered = re.compile(r'\b(\w+)\s*[({]\s*(?:[\w.>*-]+(?:\(\))?\s*,\s*)?u?"(\w+)"(?:_s)?')
    for path in files:
        for number, line in lines(path):
            for member, name in registered.findall(line):
                if member in members and member != name:
                    yield Fault(path, number, f'{member} registers as "{name}"')
    by_lower = {name.lower(): name for name in members if len(name) > 4}
    for path in files:
        for number, line in lines(path):
            for name in re.findall(r'u"(?:frm\w+\.)?(\w+)(?:\(\d+\))?"_s', line):
                known = by_lower.get(name.lower())
                if known and known != name and name not in members:
                    yield Fault(path, number, f'"{name}" is spelled {known} elsewhere')


def untested():
    """A header that has no test of its name and that no test leads to within the header's folder."""
    def quoted(path):
        return {name for _, name, quotes in includes_of(path) if quotes}

    headers = {path.removeprefix("src/") for path in sources("src") if path.endswith(".h")}
    reached = {name for path in sources("tests") for name in quoted(path)} & headers
    reached |= {name for name in headers
                if os.path.isfile(f"tests/{name.removesuffix('.h')}_test.cpp")}
    todo = sorted(reached)
    while todo:
        name = todo.pop()
        for path in (f"src/{name}", f"src/{name.removesuffix('.h')}.cpp"):
            if os.path.isfile(path):
                more = {other for other in quoted(path) & headers - reached
                        if other.split("/")[0] == name.split("/")[0]}
                reached |= more
                todo += more
    for name in sorted(headers - reached):
        yield Fault(f"src/{name}", 1, "no test leads to this header")


def grep(pattern, text):
    for path in tracked():
        if not re.search(r"\.(svg|png|wav|lng)$", path):
            for number, line in lines(path):
                if pattern.search(line):
                    yield Fault(path, number, f"{text}: {line.strip()[:100]}")


def paths():
    """An absolute path of someone's machine."""
    return grep(re.compile(r"(^|[^a-zA-Z0-9_.])/(work|root|home|farm)/[a-z]"), "a machine's path")


def mentions():
    """A pointer to a text that a reader of this tree does not have."""
    return grep(re.compile(r"\bParts? [0-9]+\.[0-9]|\bspec\.md\b|\b(the|per|as) spec(ification)?\b"
                           r"|\bissues? #?[0-9]"), "points outside this tree")


def length():
    """A file that may hold two subjects."""
    for path in tracked("*.cpp", "*.h"):
        count = len(lines(path))
        if count > LONGEST_FILE:
            yield Fault(path, count, f"{count} lines, {LONGEST_FILE} are the most")


CHECKS = (includes, circles, qt, ids, untested, paths, mentions, length)


def allowed(check):
    with open("scripts/style-allow.txt", encoding="utf-8") as file:
        rows = [line.split(None, 2) for line in file if line.strip() and not line.startswith("#")]
    return [row[1] for row in rows if row[0] == check]


def main():
    check = {function.__name__: function for function in CHECKS}.get(sys.argv[1])
    if check is None:
        sys.exit(f"no such check: {sys.argv[1]}")
    patterns = allowed(sys.argv[1])
    found = [fault for fault in check()
             if not any(fnmatch.fnmatch(fault.path, pattern) for pattern in patterns)]
    for fault in found:
        print(f"{fault.path}:{fault.line}: {fault.text} [{sys.argv[1]}]")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Breaks the sources in small ways, one at a time, and reports which breaks no test notices.

  scripts/mutate.py [--seed N] [--count N] [--files PATTERN...] [--through COMMAND]

A break turns a comparison, moves a boundary or a constant by one, swaps an operator, or drops a statement or swaps two.
Everything is built and run in build/mutation, on a copy of the sources; results.tsv there holds one line for each break
that was tried, and a break that it holds is not tried again, so a run that was ended goes on where it was. What no test
notices is listed at the end, with the share of those noticed. A break that does not compile counts for nothing, nor does
one of which an optimizing compiler makes the same object code (trivial compiler equivalence, Papadakis et al. 2015).
"""

import argparse
import glob
import hashlib
import json
import os
import re
import resource
import shlex
import shutil
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
WORK = os.path.join(ROOT, "build", "mutation")
SOURCES = os.path.join(WORK, "source")
BUILD = os.path.join(WORK, "build")
RESULTS = os.path.join(WORK, "results.tsv")

# The libraries' own checks stay on: a step past a list is noticed here as it is by the sanitizers' build.
FLAGS = "-O0 -w -D_GLIBCXX_ASSERTIONS -DQT_FORCE_ASSERTS"

# Sources, the programs that test them, and which of their tests do.
ROOMS = [
    ("Plugins/uiPluginRxMap/**/*", ["plugin-tests", "plugin-map-tests", "plugin-dialog-tests", "rxmap-hostile"]),
    ("Simulator/bePluginRxMap/geometry/*/*", ["backend-tests"]),
    ("Simulator/Machine/control/*", ["machine-tests"]),
]
SLOW = "rxmap-hostile"

SWAPS = [
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "), (r" == ", " != "), (r" != ", " == "),
    (r" < ", " > "), (r" > ", " < "), (r" <= ", " >= "), (r" >= ", " <= "),
    (r" && ", " || "), (r" \|\| ", " && "), (r" \+ ", " - "), (r" - ", " + "), (r" \* ", " / "), (r" / ", " * "),
    (r" \+= ", " -= "), (r"\+\+", "--"), (r"\btrue\b", "false"), (r"\bfalse\b", "true"), (r"(?<=[(\s])!(?=\w)", ""),
]
NUMBER = re.compile(r"(?<![\w.\"])(\d+)(\.\d+)?(?![\w.]*[\"\w])")
STATEMENT = re.compile(r"^\s+(?!return|delete|const |auto |static |using |case |break|else|\w+ \w+;)[\w:>.*()\[\]-]+"
                       r"(\(.*\)| [-+|&]?= .*);$")
ASSIGNMENT = re.compile(r"^\s+([\w.\[\]]+) [-+|&]?= ([^(]*(q?M(?:in|ax)\([\w., ]*\))?);$", re.IGNORECASE)
# A change that only costs time or memory breaks nothing: no test could tell.
UNSEEN = re.compile(r"\.reserve\(|constexpr .*(fanOut|pointsWorthListing|fewVertices|longestRun|nodeSize|edgesPerSlab|pays)\b")


# The results of breaks that do not count.
NO_BREAK = "does not compile"
EQUIVALENT = "compiles to the same"

ORIGINALS = {}


def original(path):
    """The text of a source as it was when this run began, whatever is edited meanwhile."""
    if path not in ORIGINALS:
        with open(os.path.join(ROOT, path)) as file:
            ORIGINALS[path] = file.read()
    return ORIGINALS[path]


def mutants_of(path):
    """(line from 1, what is done, new text of the line or lines) of each break of a file."""
    lines = original(path).split("\n")
    for number, line in enumerate(lines, 1):
        code = line.split("//")[0]
        if not code.strip() or code.lstrip().startswith(("#", "*", "/*", "template", "Q_", "class ", "struct ")):
            continue
        if UNSEEN.search(code):
            continue
        quoted = [match.span() for match in re.finditer(r'"(?:\\.|[^"\\])*"', code)]
        for pattern, new in SWAPS:
            for match in re.finditer(pattern, code):
                if not any(start < match.start() < end for start, end in quoted):
                    yield number, f"{match.group().strip()} becomes {new.strip() or 'nothing'} at {match.start()}", [
                        line[:match.start()] + new + line[match.end():]]
        for match in NUMBER.finditer(code):
            if not any(start < match.start() < end for start, end in quoted):
                value = match.group()
                new = str(float(value) + 1.0) if "." in value else str(int(value) + 1)
                yield number, f"{value} becomes {new} at {match.start()}", [
                    line[:match.start()] + new + line[match.end():]]
        if STATEMENT.match(code):
            yield number, "dropped", [re.match(r"\s*", line).group() + ";"]
            after = lines[number].split("//")[0] if number < len(lines) else ""
            if STATEMENT.match(after) and are_steps(code.rstrip(), after.rstrip()):
                yield number, "swapped with the next", [lines[number], line]


def are_steps(one, other):
    """False for two assignments of which neither reads or sets what the other sets: their order is none."""
    first, second = ASSIGNMENT.match(one), ASSIGNMENT.match(other)
    return not first or not second or first[1] in other or second[1] in one


def all_mutants(patterns):
    found = []
    for pattern in patterns:
        for path in sorted(glob.glob(os.path.join(ROOT, pattern), recursive=True)):
            if path.endswith((".cpp", ".h")):
                relative = os.path.relpath(path, ROOT)
                found += [(relative, *mutant) for mutant in mutants_of(relative)]
    return found


def room_of(path):
    for pattern, programs in ROOMS:
        if path.startswith(pattern.split("*")[0]):
            return programs
    sys.exit(f"{path}: no room of tests is known for it")


def limit_memory():
    """A loop that a break leaves without an end must not take the machine along."""
    resource.setrlimit(resource.RLIMIT_AS, (6 << 30, 6 << 30))


class Bench:
    """The copy of the sources, its build and its tests."""

    def __init__(self, through):
        self.through = through.split()
        self.tests = []
        self.commands = {}
        self.headers = {}
        self.unbroken = {}

    def run(self, command, seconds):
        try:
            done = subprocess.run(self.through + command, cwd=BUILD, timeout=seconds, stdout=subprocess.PIPE,
                                  stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, preexec_fn=limit_memory)
        except subprocess.TimeoutExpired:
            return False, "time out"
        return done.returncode == 0, done.stdout.decode(errors="replace")

    def prepare(self, programs):
        os.makedirs(BUILD, exist_ok=True)
        listed = subprocess.check_output(["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, text=True)
        names = set(listed.split("\n"))
        for folder, _, files in os.walk(SOURCES):
            for file in files:
                if os.path.relpath(os.path.join(folder, file), SOURCES) not in names:
                    os.remove(os.path.join(folder, file))
        for name in names:
            source, target = os.path.join(ROOT, name), os.path.join(SOURCES, name)
            if os.path.isfile(source) and not same(source, target):
                os.makedirs(os.path.dirname(target), exist_ok=True)
                shutil.copyfile(source, target)
                shutil.copymode(source, target)
        configured, output = self.run(["cmake", "-S", SOURCES, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
                                       f"-DCMAKE_CXX_FLAGS_RELEASE={FLAGS}", "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache",
                                       "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON"], 600)
        if not configured:
            sys.exit(output)
        if not self.build(programs):
            sys.exit("the sources do not build")
        with open(os.path.join(BUILD, "compile_commands.json")) as file:
            self.commands = {os.path.relpath(entry["file"], SOURCES): entry["command"] for entry in json.load(file)}
        self.headers = self.included()
        self.tests = json.loads(subprocess.check_output(["ctest", "--show-only=json-v1"], cwd=BUILD))["tests"]

    def included(self):
        """The files that each source under test includes, as the last build noted them."""
        noted = subprocess.check_output(["ninja", "-t", "deps"], cwd=BUILD, text=True)
        found = {}
        for block in noted.split("\n\n"):
            paths = [os.path.relpath(os.path.join(BUILD, line.strip()), SOURCES) for line in block.split("\n")[1:]]
            if paths and paths[0] in self.commands and not paths[0].startswith("Tests/"):
                found[paths[0]] = set(paths[1:])
        return found

    def build(self, programs):
        return not programs or self.run(["ninja", "-j2"] + programs, 3000)[0]

    def users_of(self, path):
        """The sources of what is broken that a break in this one reaches: itself, or those that include it."""
        if path in self.commands:
            return [path]
        return sorted(source for source, headers in self.headers.items() if path in headers)

    def object_of(self, path):
        """The optimized object code of a source as it is now; nothing where it does not compile."""
        target = os.path.join(BUILD, "optimized.o")
        command = re.sub(r" -o \S+ ", f" -o {target} ", self.commands[path].replace(" -O0 ", " -O2 "))
        compiled, _ = self.run(shlex.split(command), 600)
        return contents(target) if compiled else None

    def unbroken_of(self, path):
        """The same of a source before anything was broken."""
        if path not in self.unbroken:
            self.unbroken[path] = self.object_of(path)
        return self.unbroken[path]

    def tests_of(self, programs):
        """The tests of these programs: program by test."""
        found = {test["name"]: os.path.basename(test["command"][0]) for test in self.tests if test.get("command")}
        return {name: program for name, program in found.items() if program in programs}

    def failing(self, names, seconds=120):
        """The first tests that fail; empty when all pass."""
        if not names:
            return ""
        pattern = "^(" + "|".join(names) + ")$"
        passed, output = self.run(["ctest", "-j2", "--stop-on-failure", "--timeout", str(seconds), "-R", pattern], 3000)
        failed = re.findall(r"\d+ - (\S+) \(", output)
        return "" if passed else ",".join(failed) or "time out"


def contents(path):
    with open(path, "rb") as file:
        return file.read()


def same(one, other):
    return os.path.isfile(other) and contents(one) == contents(other)


def write(path, text):
    with open(os.path.join(SOURCES, path), "w") as file:
        file.write(text)


def key_of(mutant):
    """What names a break in the results."""
    path, number, what, _ = mutant
    source = original(path).split("\n")[number - 1].strip()
    return f"{path}:{number}\t{what}\t{source}"


def apply(mutant):
    path, number, _, new = mutant
    lines = original(path).split("\n")
    lines[number - 1:number - 1 + len(new)] = new
    write(path, "\n".join(lines))


def is_equivalent(bench, mutant):
    """Whether a break makes no difference to the object code of any source that it reaches."""
    users = bench.users_of(mutant[0])
    for user in users:
        write(mutant[0], original(mutant[0]))
        unbroken = bench.unbroken_of(user)
        apply(mutant)
        if not unbroken or bench.object_of(user) != unbroken:
            return False
    return bool(users)


def verdict(bench, mutant, programs):
    """What becomes of one break."""
    stem = os.path.splitext(os.path.basename(mutant[0]))[0]
    # The source's own tests first, those that take minutes last.
    tests = bench.tests_of(programs)
    near = {name for name in tests if stem in name}
    slow = {name for name, program in tests.items() if program == SLOW} - near
    try:
        if is_equivalent(bench, mutant):
            return EQUIVALENT
        apply(mutant)
        for part in [near, tests.keys() - near - slow, slow]:
            if not bench.build(sorted({tests[name] for name in part})):
                return NO_BREAK
            failed = bench.failing(part)
            if failed:
                return "noticed by " + failed
        return "survived"
    finally:
        write(mutant[0], original(mutant[0]))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--seed", type=int, default=1, help="by which breaks are drawn")
    parser.add_argument("--count", type=int, default=300, help="of breaks that compile")
    parser.add_argument("--files", nargs="+", default=[pattern for pattern, _ in ROOMS])
    parser.add_argument("--through", default="", help="command that each build and run is started with")
    options = parser.parse_args()

    mutants = all_mutants(options.files)
    mutants.sort(key=lambda mutant: hashlib.sha1(f"{options.seed} {key_of(mutant)}".encode()).digest())
    programs = sorted({program for mutant in mutants for program in room_of(mutant[0])})
    bench = Bench(options.through)
    bench.prepare(programs)
    known = {}
    if os.path.exists(RESULTS):
        known = dict(line.rstrip("\n").rsplit("\t", 1) for line in open(RESULTS))
    elif failed := bench.failing(bench.tests_of(programs), 600):
        sys.exit(f"before anything is broken this fails: {failed}")

    tried = []
    for mutant in mutants:
        if len(tried) == options.count:
            break
        key = key_of(mutant)
        if key not in known:
            known[key] = verdict(bench, mutant, room_of(mutant[0]))
            with open(RESULTS, "a") as file:
                file.write(f"{key}\t{known[key]}\n")
            print(f"{key}\t{known[key]}", flush=True)
        if known[key] not in (NO_BREAK, EQUIVALENT):
            tried.append(key)
    survivors = [key for key in tried if known[key] == "survived"]
    for key in survivors:
        print("survived:", key)
    if tried:
        print(f"{len(mutants)} breaks possible, {len(tried)} tried, {len(tried) - len(survivors)} noticed "
              f"({100.0 * (len(tried) - len(survivors)) / len(tried):.1f} %)")


if __name__ == "__main__":
    main()

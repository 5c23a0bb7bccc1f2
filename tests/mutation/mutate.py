"""Changes one condition or constant of the sources at a time and asks the fast tests whether they notice.

mutate.py TREE BUILD RESULT COUNT SEED: TREE is a clone that may be changed, BUILD its configured build folder. Writes a line
for each mutant into RESULT, and prints how many were noticed by what, and the survivors. The same seed chooses the same
mutants as long as the sources stay.
mutate.py TREE BUILD RESULT --again EARLIER: only the survivors that the file EARLIER tells, wherever their lines stand now.
"""

import collections
import hashlib
import os
import random
import re
import resource
import subprocess
import sys
import time
from pathlib import Path

# The sources that decide what bytes are, and the test programs that are asked, the nearest first.
OF_DATA = ["data_tests", "cli_tests", "channels_fast_tests", "link_tests", "service_fast_tests", "print_fast_tests",
           "tuning_report_tests", "simulator_tests", "cli_radio_tests", "fuzz_data_file", "fuzz_channel_sheet", "fuzz_assignments"]
OF_LINK = ["link_tests", "cli_radio_tests", "fuzz_clone_read", "fuzz_clone_write"]
OF_SERVICE = ["service_fast_tests", "cli_radio_tests", "tuning_report_tests", "fuzz_entry", "fuzz_test_mode", "fuzz_tuning"]
SOURCES = {
    "src/data/*.cpp": OF_DATA,
    "src/link/Clone*.cpp": OF_LINK,
    "src/link/P*.cpp": OF_LINK,
    "src/link/RadioPort.cpp": OF_LINK + OF_SERVICE,
    "src/service/*Engine.cpp": OF_SERVICE,
    "src/service/*Exchange.cpp": OF_SERVICE,
    "src/service/LinkedValues.cpp": OF_SERVICE,
    "src/service/FrequencyPoints.cpp": OF_SERVICE,
    "src/service/TestChannels.cpp": OF_SERVICE,
    "src/service/RadioInformation.cpp": OF_SERVICE,
}
SWAPS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&", "+": "-", "-": "+",
         "true": "false", "false": "true"}

# What a test program may use: a mutant may turn for ever, or take all memory.
PROCESSOR_SECONDS = 30
BYTES = 4 << 30
SECONDS = 600

# Operators stand between blanks, which brackets of templates do not.
OPERATOR = re.compile(r"(?<= )(<=|>=|==|!=|&&|\|\||<|>|\+|-)(?= )|\b(true|false)\b")
NUMBER = re.compile(r"(?<![\w.'])(0x[0-9A-Fa-f]+|\d+)(?![\w.'])")
NOT_CODE = re.compile(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])*\'|//.*')
PASSED_OVER = re.compile(r"^\s*(#|//|/\*|\*|static_assert|namespace|using )|operator")

SURVIVED, NOT_COMPILED, SAME_PROGRAM = "SURVIVED", "does not compile", "the compiler makes the same program of it"
TOLD = re.compile(rf"{SURVIVED}: (?P<path>[^:]+):(?P<line>\d+):(?P<column>\d+): (?P<swap>.+?)    (?P<text>.*)")


class Mutant:
    def __init__(self, path, line, begin, end, text):
        self.path, self.line, self.begin, self.end, self.text = path, line, begin, end, text

    def describe(self, tree):
        old = (tree / self.path).read_text().splitlines()[self.line]
        return (f"{self.path}:{self.line + 1}:{self.begin + 1}: {old[self.begin:self.end]} -> {self.text}"
                f"    {old.strip()}")

    def apply(self, tree):
        """Returns what the file held before."""
        path = tree / self.path
        before = path.read_text()
        lines = before.splitlines(keepends=True)
        old = lines[self.line]
        lines[self.line] = old[: self.begin] + self.text + old[self.end:]
        path.write_text("".join(lines))
        return before


def mutants_of(tree, path):
    found = []
    for number, line in enumerate((tree / path).read_text().splitlines()):
        if PASSED_OVER.search(line):
            continue
        code = NOT_CODE.sub(lambda match: " " * len(match.group()), line)
        for match in OPERATOR.finditer(code):
            found.append(Mutant(path, number, match.start(), match.end(), SWAPS[match.group()]))
        for match in NUMBER.finditer(code):
            text = match.group()
            larger = f"0x{int(text, 16) + 1:X}" if text.startswith("0x") else str(int(text) + 1)
            found.append(Mutant(path, number, match.start(), match.end(), larger))
    return found


def tests_of_sources(tree):
    tests = {}
    for pattern, programs in SOURCES.items():
        for path in sorted(tree.glob(pattern)):
            tests[str(path.relative_to(tree))] = programs
    return tests


def survivors_of(tree, mutants, earlier):
    """The mutants that EARLIER tells as survivors: each the nearest one with the same line's text, place in it and swap."""
    found = []
    for told in filter(None, map(TOLD.match, earlier.read_text().splitlines())):
        def same(mutant):
            other = TOLD.match(f"{SURVIVED}: {mutant.describe(tree)}")
            return all(other[part] == told[part] for part in ("path", "column", "swap", "text"))
        candidates = [mutant for mutant in mutants if mutant.path == told["path"] and same(mutant)]
        if candidates:
            found.append(min(candidates, key=lambda mutant: abs(mutant.line + 1 - int(told["line"]))))
        else:
            print(f"no longer there: {told[0]}")
    return found


class Tests:
    """The test programs of a build folder."""

    def __init__(self, tree, build):
        self.tree, self.build, self.unchanged = tree, build, {}
        self.environment = os.environ | {"QT_QPA_PLATFORM": "offscreen", "GTEST_FAIL_FAST": "1", "GTEST_BRIEF": "1"}

    def program(self, test):
        return self.build / ("fuzz" if test.startswith("fuzz_") else "tests") / test

    def make(self, tests):
        command = ["cmake", "--build", self.build, "--target", *tests]
        return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False).returncode == 0

    def digest(self, test):
        return hashlib.sha256(self.program(test).read_bytes()).digest()

    def run(self, test):
        """None where the test has passed, else how it ended."""
        command = [self.program(test)]
        if test.startswith("fuzz_"):
            command += [self.tree / "fuzz" / kind / test.removeprefix("fuzz_") for kind in ("seeds", "found")]

        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (PROCESSOR_SECONDS, PROCESSOR_SECONDS))
            resource.setrlimit(resource.RLIMIT_AS, (BYTES, BYTES))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        try:
            status = subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=SECONDS,
                                    check=False, env=self.environment, preexec_fn=limit).returncode
        except subprocess.TimeoutExpired:
            status = -9
        if status == 0:
            return None
        return f"{test}, which did not end" if status in (-9, -24) else test

    def fault_of_unchanged(self, tests):
        """The first test that does not pass on the sources as they are; keeps what the programs are."""
        if not self.make(tests):
            return "the compiler"
        for test in tests:
            self.unchanged[test] = self.digest(test)
            if fault := self.run(test):
                return fault
        return None

    def verdict(self, tests):
        same = True
        for test in tests:
            if not self.make([test]):
                return NOT_COMPILED
            if self.digest(test) == self.unchanged[test]:
                continue # the linker takes nothing of the source into it, or the compiler makes the same of it
            same = False
            if killer := self.run(test):
                return f"killed by {killer}"
        return SAME_PROGRAM if same else SURVIVED


def main():
    tree, build, result = (Path(argument) for argument in sys.argv[1:4])
    tests_of = tests_of_sources(tree)
    mutants = [mutant for path in tests_of for mutant in mutants_of(tree, path)]
    print(f"{len(mutants)} places in {len(tests_of)} sources", flush=True)
    if sys.argv[4] == "--again":
        mutants = survivors_of(tree, mutants, Path(sys.argv[5]))
        count = len(mutants)
    else:
        count = int(sys.argv[4])
        random.Random(int(sys.argv[5])).shuffle(mutants)
    tests = Tests(tree, build)
    needed = dict.fromkeys(test for mutant in mutants for test in tests_of[mutant.path])
    if fault := tests.fault_of_unchanged(list(needed)):
        sys.exit(f"The sources as they are do not pass: {fault}")

    # Those of a source one after the other, so that it is compiled once for each; who does not compile is replaced.
    counts, begin = collections.Counter(), time.time()
    with result.open("w") as lines:
        while mutants and (missing := count - counts.total() + counts[NOT_COMPILED]):
            batch, mutants = mutants[:missing], mutants[missing:]
            for mutant in sorted(batch, key=lambda one: (one.path, one.line, one.begin)):
                description = mutant.describe(tree)
                before = mutant.apply(tree)
                verdict = tests.verdict(tests_of[mutant.path])
                (tree / mutant.path).write_text(before)
                print(f"{verdict}: {description}", file=lines, flush=True)
                counts[verdict] += 1
    for verdict, number in counts.most_common():
        print(f"{number:4} {verdict}")
    print(f"{time.time() - begin:.0f} s. Survivors:")
    print("".join(line for line in result.read_text().splitlines(True) if line.startswith(SURVIVED)), end="")


if __name__ == "__main__":
    main()

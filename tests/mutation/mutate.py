"""Changes one condition or constant of the sources at a time and asks the fast tests whether they notice.

mutate.py TREE BUILD COUNT SEED: TREE is a clone that may be changed, BUILD its configured build folder. Prints a line for
each mutant and the survivors at the end. The same seed chooses the same mutants as long as the sources stay.
"""

import random
import re
import subprocess
import sys
import time
from pathlib import Path

# The sources that decide what bytes are, and the test programs that are asked, the nearest first.
ALL_TESTS = ["data_tests", "link_tests", "service_fast_tests", "cli_radio_tests", "cli_tests", "print_fast_tests",
             "channels_fast_tests"]
SOURCES = {
    "src/data/*.cpp": ["data_tests", "cli_tests", "print_fast_tests", "channels_fast_tests", "link_tests",
                       "service_fast_tests"],
    "src/link/Clone*.cpp": ["link_tests", "cli_radio_tests"],
    "src/link/P*.cpp": ["link_tests", "cli_radio_tests"],
    "src/link/RadioPort.cpp": ["link_tests", "cli_radio_tests", "service_fast_tests"],
    "src/service/*Engine.cpp": ["service_fast_tests"],
    "src/service/*Exchange.cpp": ["service_fast_tests", "cli_radio_tests"],
    "src/service/LinkedValues.cpp": ["service_fast_tests"],
    "src/service/FrequencyPoints.cpp": ["service_fast_tests"],
    "src/service/TestFrame.cpp": ["service_fast_tests"],
    "src/service/TestChannels.cpp": ["service_fast_tests"],
    "src/service/RadioInformation.cpp": ["service_fast_tests", "cli_radio_tests"],
}
SWAPS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&", "+": "-", "-": "+",
         "true": "false", "false": "true"}
SECONDS_FOR_A_TEST = 60

# Operators stand between blanks, which brackets of templates do not.
OPERATOR = re.compile(r"(?<= )(<=|>=|==|!=|&&|\|\||<|>|\+|-)(?= )|\b(true|false)\b")
NUMBER = re.compile(r"(?<![\w.'])(0x[0-9A-Fa-f]+|\d+)(?![\w.'])")
NOT_CODE = re.compile(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])*\'|//.*')
PASSED_OVER = re.compile(r"^\s*(#|//|/\*|\*|static_assert|namespace|using )|operator")


class Mutant:
    def __init__(self, path, line, begin, end, text):
        self.path, self.line, self.begin, self.end, self.text = path, line, begin, end, text

    def describe(self, tree):
        old = (tree / self.path).read_text().splitlines()[self.line]
        return f"{self.path}:{self.line + 1}: {old[self.begin:self.end]} -> {self.text}    {old.strip()}"

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


def run(command, seconds):
    """The exit status; None where the time was up."""
    try:
        return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=seconds,
                              check=False).returncode
    except subprocess.TimeoutExpired:
        return None


def verdict(build, tests):
    for test in tests:
        if run(["cmake", "--build", build, "--target", test], None) != 0:
            return "does not compile"
        status = run([build / "tests" / test, "--gtest_brief=1"], SECONDS_FOR_A_TEST)
        if status is None:
            return f"killed by {test}, which did not end"
        if status != 0:
            return f"killed by {test}"
    return "SURVIVED"


def main():
    tree, build, count, seed = Path(sys.argv[1]), Path(sys.argv[2]), int(sys.argv[3]), int(sys.argv[4])
    mutants, tests_of = [], {}
    for pattern, tests in SOURCES.items():
        for path in sorted(tree.glob(pattern)):
            name = str(path.relative_to(tree))
            tests_of[name] = tests
            mutants += mutants_of(tree, name)
    print(f"{len(mutants)} places in {len(tests_of)} sources")
    if verdict(build, ALL_TESTS) != "SURVIVED":
        sys.exit("The tests fail on the sources as they are.")
    random.Random(seed).shuffle(mutants)
    counts, survivors, begin = {}, [], time.time()
    for mutant in mutants:
        if sum(counts.values()) - counts.get("does not compile", 0) >= count:
            break
        description = mutant.describe(tree)
        before = mutant.apply(tree)
        result = verdict(build, tests_of[mutant.path])
        (tree / mutant.path).write_text(before)
        print(f"{result}: {description}", flush=True)
        kind = result.split(" by ")[0]
        counts[kind] = counts.get(kind, 0) + 1
        if kind == "SURVIVED":
            survivors.append(description)
    print(f"\n{counts} in {time.time() - begin:.0f} s; survivors:", *survivors, sep="\n")


if __name__ == "__main__":
    main()

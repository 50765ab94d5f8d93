"""The loop behind scripts/mutate: TREE BUILD COUNT SEED.

A mutation replaces one token by another of its kind: a comparison, a sign, a constant, true and
false, and and or, a negation. One that does not compile is replaced by another; one that makes a
test fail, crash or take more than a minute is killed.
"""

import pathlib
import random
import re
import subprocess
import sys

# Never changed: comments, strings, characters, preprocessor lines.
SKIPPED = re.compile(
    r"""//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|(?<!\w)'(?:\\.|[^'\\\n])+'"""
    r"""|^[ \t]*\#(?:\\\n|[^\n])*""",
    re.DOTALL | re.MULTILINE,
)
# The formatter puts spaces around binary operators, and none inside template brackets.
TOKEN = re.compile(
    r"(?<= )(?:==|!=|<=|>=|<|>|&&|\|\||\+=|-=|[-+*/%])(?=[ \n])"
    r"|\+\+|--|\b(?:true|false)\b|(?<![\w.'])\d+(?![\w.'])|!(?=[\w(])"
)
OTHERS = {
    "==": ["!="], "!=": ["=="], "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="],
    ">=": [">", "<"], "&&": ["||"], "||": ["&&"], "+": ["-"], "-": ["+"], "*": ["/"],
    "/": ["*"], "%": ["/"], "+=": ["-="], "-=": ["+="], "++": ["--"], "--": ["++"],
    "true": ["false"], "false": ["true"], "!": [""],
}  # fmt: skip


def tokens(file):
    """The places of a file that may change, as (file, start, token)."""
    text = file.read_text()
    blank = SKIPPED.sub(lambda skipped: re.sub(r"[^\n]", " ", skipped[0]), text)
    return [(file, found.start(), found[0]) for found in TOKEN.finditer(blank)]


def runs(*command):
    return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0


# Tests that no mutation concerns.
UNCONCERNED = "core_alone|install|includes|catalogues|desktop_file|metainfo|fuzz_.*"


def main():
    tree, build = map(pathlib.Path, sys.argv[1:3])
    count, seed = map(int, sys.argv[3:5])
    targets = subprocess.run(
        ["ninja", "-C", build, "-t", "targets", "all"], capture_output=True, text=True, check=True
    ).stdout
    rooms = sorted(set(re.findall(r"^test_(\w+): ", targets, re.MULTILINE)))

    def builds():
        return runs("ninja", "-C", build)

    def pass_all(*choice):
        return runs("ctest", "--test-dir", build, *choice, "-j2", "--timeout", "120", "--stop-on-failure")

    def passes(file):
        """Runs the tests of the file's own room first, because they kill most mutants."""
        parts = file.relative_to(tree).parts
        own = "app" if "window" in parts else [part for part in (*rooms, *parts) if part in rooms][-1]
        return pass_all("-R", f"^{own}$") and pass_all("-E", f"^({UNCONCERNED}|{own})$")

    if not builds() or not pass_all("-E", f"^({UNCONCERNED})$"):
        sys.exit("The tests must pass before the first mutation.")
    chance = random.Random(seed)
    # Headers are left out: each change rebuilds half the program, and few hold any logic.
    places = [place for file in sorted((tree / "src").rglob("*.cpp")) for place in tokens(file)]
    chance.shuffle(places)
    tried = killed = 0
    for file, start, token in places:
        if tried == count:
            break
        other = chance.choice(OTHERS.get(token) or [str(int(token) + 1), str(int(token) - 1)])
        text = file.read_text()
        file.write_text(text[:start] + other + text[start + len(token) :])
        compiled = builds()
        survives = compiled and passes(file)
        file.write_text(text)
        tried += compiled
        killed += compiled and not survives
        print(f"\r{tried} tried, {killed} killed ", end="", file=sys.stderr, flush=True)
        if survives:
            number = text.count("\n", 0, start)
            column = start - text.rfind("\n", 0, start)
            print(
                f"{file.relative_to(tree)}:{number + 1}:{column}: {token} -> {other or 'nothing'}\n"
                f"    {text.splitlines()[number].strip()}",
                flush=True,
            )
    print(f"{tried} mutants from seed {seed}: {killed} killed, {tried - killed} survived, of {len(places)} places")


main()

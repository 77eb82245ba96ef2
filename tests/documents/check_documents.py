"""Checks the documents: that links, anchors and pictures lead somewhere, and that every command runs.

Usage: check_documents.py links ROOT
       check_documents.py commands ROOT TRANSCRIPT

A command in a fenced block is run here, or the table says where it runs; one that is in neither fails.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

# What takes too long, needs a display or root, or is this very run: the file that runs it, and the words in it.
RUN_ELSEWHERE = {
    "./dev test": (".ci/run", "./dev test"),
    "./dev lint": (".ci/run", "./dev lint"),
    # The verb formats the sources where they stand; lint runs the same program over the same files.
    "./dev format": ("dev", "sources | xargs clang-format -i"),
    "./dev run": (".ci/run", "./dev run"),
    # A part of it: all of it takes two minutes.
    "./dev bench": (".ci/run", "./dev bench --benchmark_filter=Load"),
}
# What would take minutes here, with the part of it that shows that it would start.
TRIED = {
    "./dev coverage": ["cmake", "--list-presets=test"],
}


def documents(root):
    files = [root / "README.md", root / "CHANGELOG.md", root / "data/README.md", *root.glob("docs/**/*.md")]
    assert len(files) > 8, files
    return files


def without_code(text):
    return re.sub(r"```.*?```|`[^`\n]*`", "", text, flags=re.DOTALL)


def anchors(text):
    """The anchors of a document's headings, as the usual viewers make them."""
    found = set()
    for heading in re.findall(r"^#+ (.*)$", re.sub(r"```.*?```", "", text, flags=re.DOTALL), re.MULTILINE):
        found.add(re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-"))
    return found


def check_links(root):
    wrong = []
    count = 0
    for file in documents(root):
        for target in re.findall(r"\]\(([^)\s]+)\)", without_code(file.read_text("utf-8"))):
            count += 1
            if re.match(r"https?://", target):
                continue
            path, _, anchor = target.partition("#")
            leads_to = (file.parent / path).resolve() if path else file
            if not leads_to.exists():
                wrong.append(f"{file}: {target} is not there")
            elif anchor and anchor not in anchors(leads_to.read_text("utf-8")):
                wrong.append(f"{file}: {target} has no such heading")
        for path in re.findall(r"`((?:src|tests|tools|data|docs|packaging|\.ci)/[\w./]*)`", file.read_text("utf-8")):
            count += 1
            if not (root / path).exists():
                wrong.append(f"{file}: {path} is not there")
    assert count > 60, f"only {count} links"
    assert not wrong, "\n".join(wrong)
    print(count, "links and paths")


def commands(root):
    """The lines of all fenced blocks that are no program text, without their comments."""
    for file in documents(root):
        for language, block in re.findall(r"^```(\w*)\n(.*?)^```$", file.read_text("utf-8"), re.DOTALL | re.MULTILINE):
            if language in ("", "sh"):
                for line in block.splitlines():
                    command = re.sub(r"\s+#.*", "", line).strip()
                    if command:
                        yield file, command


def verbs_in_help(root):
    text = subprocess.run([root / "dev", "help"], check=True, capture_output=True, encoding="utf-8").stdout
    return set(re.findall(r"^\./dev (\w+)", text, re.MULTILINE))


def check_test_run(command, root):
    """A run of the tests like this one, in some other way: its preset, its test and its variables are there."""
    variables, _, arguments = command.partition("./dev test")
    for name, value in re.findall(r"(\w+)=(\w+)", variables):
        if name == "TALIVANE_PRESET":
            presets = subprocess.run(
                ["cmake", "--list-presets=test"], cwd=root, check=True, capture_output=True, encoding="utf-8"
            ).stdout
            assert f'"{value}"' in presets, f"{command}: there is no preset {value}"
        else:
            assert mentioned(root, name), f"{command}: no test reads {name}"
    wanted = re.search(r"-R (\w+)", arguments)
    assert not wanted or mentioned(root, wanted[1]), f"{command}: there is no such test"


def mentioned(root, word):
    return any(word in file.read_text("utf-8") for file in root.glob("tests/**/*.[ch]*"))


def run(command, root, transcript, folder):
    """Runs a command as the document means it; a verb that would build first goes to what it has built."""
    words = command.split()
    if command in TRIED:
        words = TRIED[command]
    elif words[:2] == ["./dev", "transcript"]:
        for source in (root / "data", root / "data/sample"):
            for file in source.glob("*.xml"):
                shutil.copy(file, folder)
        assert words[2] == "run", "the sample household stands in run/"
        words[:3] = [transcript, folder]
    elif words[0] == "xmllint":
        words = [word.replace("path/to", "data") for word in words]
    elif words[:2] != ["./dev", "help"]:
        return False
    output = subprocess.run(words, cwd=root, check=True, capture_output=True, encoding="utf-8")
    assert command != "./dev coverage" or '"coverage"' in output.stdout, "there is no preset coverage"
    return bool(output.stdout or output.stderr)


def check_commands(root, transcript):
    verbs = verbs_in_help(root)
    found = list(commands(root))
    assert len(found) >= 8, found
    for file, command in found:
        elsewhere = RUN_ELSEWHERE.get(command)
        if elsewhere is not None:
            place, words = elsewhere
            assert words in (root / place).read_text("utf-8"), f"{command}: {place} does not run it"
        elif re.match(r"(\w+=\w+ )*\./dev test\b", command):
            check_test_run(command, root)
        else:
            with tempfile.TemporaryDirectory() as folder:
                assert run(command, root, transcript, pathlib.Path(folder)), f"{file}: nothing runs {command}"
        print(command)
    unused = (set(RUN_ELSEWHERE) | set(TRIED)) - {command for _, command in found}
    assert not unused, f"no document holds {unused}"
    for file in documents(root):
        for verb in re.findall(r"`(?:\w+=\w+ )?\./dev (\w+)", file.read_text("utf-8")):
            assert verb in verbs, f"{file}: there is no verb {verb}"


def main():
    root = pathlib.Path(sys.argv[2]).resolve()
    if sys.argv[1] == "links":
        check_links(root)
    else:
        check_commands(root, sys.argv[3])


main()

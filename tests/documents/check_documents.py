"""Checks the documents: that links, anchors and pictures lead somewhere, and that every command runs.

Usage: check_documents.py links ROOT
       check_documents.py commands ROOT TRANSCRIPT

A command in a fenced block is a line of .ci/run or is run here; one that is neither fails. The verbs that stand
in running text are run by .ci/run or here as well.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile


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


def commands_of_ci(root):
    """The lines of .ci/run from the variables on, without what only has to do with the machine that runs them."""
    for line in (root / ".ci/run").read_text("utf-8").splitlines():
        command = re.sub(r"^env( -u \w+)* |\s*>.*$", "", line.strip())
        if re.match(r"(\w+=\w+ )*\./dev\b", command):
            yield command


def run(command, root, transcript, folder):
    """Runs a command as the document means it; a verb that would build first goes to what it has built."""
    words = command.split()
    if words[:2] == ["./dev", "transcript"]:
        for source in (root / "data", root / "data/sample"):
            for file in source.glob("*.xml"):
                shutil.copy(file, folder)
        assert words[2] == "run", "the sample household stands in run/"
        words[:3] = [transcript, folder]
    elif words[0] == "xmllint":
        words = [word.replace("path/to", "data") for word in words]
    else:
        return False
    output = subprocess.run(words, cwd=root, check=True, capture_output=True, encoding="utf-8")
    return bool(output.stdout or output.stderr)


def check_commands(root, transcript):
    run_in_ci = set(commands_of_ci(root))
    found = list(commands(root))
    assert len(found) >= 8, found
    for file, command in found:
        if command not in run_in_ci:
            with tempfile.TemporaryDirectory() as folder:
                assert run(command, root, transcript, pathlib.Path(folder)), f"{file}: nothing runs {command}"
        print(command)
    verbs_in_ci = {re.search(r"\./dev (\w+)", command)[1] for command in run_in_ci}
    verbs = verbs_in_help(root)
    assert verbs - {"help"} == verbs_in_ci, f"not run by .ci/run: {verbs - verbs_in_ci}"
    for file in documents(root):
        for command in re.findall(r"`((?:\w+=\w+ )*\./dev [^`]*)`", file.read_text("utf-8")):
            verb = re.fullmatch(r"\./dev (\w+)(?: [A-Z]+)?", command)
            known = verb[1] in verbs if verb else command in run_in_ci
            assert known, f"{file}: nothing runs {command}"


def main():
    root = pathlib.Path(sys.argv[2]).resolve()
    if sys.argv[1] == "links":
        check_links(root)
    else:
        check_commands(root, sys.argv[3])


main()

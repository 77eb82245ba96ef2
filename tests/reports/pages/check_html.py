"""Reads the HTML of sample reports with html5lib, which stops at the first departure from HTML5, and
compares the texts in it with those that were written.

Usage: check_html.py PROGRAM, where PROGRAM writes NAME.html and NAME.json files into the folder it is given.
Or:    check_html.py REPORTS TRANSCRIPT DATA, where REPORTS writes the room reports of the sample household in
       DATA as HTML, and TRANSCRIPT prints the same builder's calls. Then once more with markup and scripts in
       every field that a user types: the tags must be the same, as all of it is text.
"""

import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree
import xml.sax.saxutils

import html5lib

HTML = "{http://www.w3.org/1999/xhtml}"
SVG = "{http://www.w3.org/2000/svg}"
BLOCKS = {HTML + name for name in ("p", "h1", "h2", "h3")} | {SVG + "text"}
RUNNING = {HTML + "header", HTML + "footer"}
FORBIDDEN = re.compile("[\x00-\x08\x0b\x0c\x0e-\x1f\x7f-\x9f\ud800-\udfff\ufdd0-\ufdef\ufffe\uffff]")


def text_of(element):
    """The element's text, with a line break as a line feed."""
    text = "\n" if element.tag == HTML + "br" else element.text or ""
    return text + "".join(text_of(child) + (child.tail or "") for child in element)


def blocks_of(element):
    """The texts of paragraphs, headings and letters, without headers and footers, in order."""
    if element.tag in BLOCKS:
        yield text_of(element)
    elif element.tag not in RUNNING:
        for child in element:
            yield from blocks_of(child)


def as_shown(text):
    """A written text as a file can hold it. An empty paragraph holds the line break that gives it its line."""
    text = re.sub("\r\n|\r|\u2028|\u2029", "\n", text)
    return FORBIDDEN.sub("\ufffd", text) or "\n"


def compare(page, texts):
    """Compares a file's texts with the written ones and gives its body, as HTML's own parser reads it."""
    source = page.read_bytes()
    document = html5lib.HTMLParser(strict=True).parse(source, transport_encoding="utf-8")
    as_xml = xml.etree.ElementTree.fromstring(source)
    written = [as_shown(text) for text in texts]
    for tree in (document, as_xml):
        found = list(blocks_of(tree.find(HTML + "body")))
        assert len(found) == len(written), f"{page.name}: {len(found)} texts, {len(written)} written"
        for number, (left, right) in enumerate(zip(found, written)):
            assert left == right, f"{page.name}, text {number}: {left!r} was written as {right!r}"
        assert not list(tree.iter(HTML + "script")), f"{page.name}: a script"
    print(page.name, len(written), "texts")
    return document.find(HTML + "body")


def check_samples(program, folder):
    subprocess.run([program, folder], check=True)
    pages = sorted(folder.glob("*.html"))
    assert len(pages) == 4, pages
    for page in pages:
        expected = json.loads(page.with_suffix(".json").read_text("utf-8"))
        body = compare(page, expected["texts"])
        assert len(body.findall(HTML + "section")) == expected["pages"], f"{page.name}: pages"


# What a user types letter by letter; everything else is chosen from lists or held to be a number.
TYPED = {"Profiles": "PROFILENAME", "Locations": "DESCRIPTION", "Floors": "DESCRIPTION", "Rooms": "DESCRIPTION"}
MARKUP = """</h1></p></svg><script>x()</script><img src="http://host.invalid/i" onerror='x()'><!--]]>&lt;b&gt;"""


def tags_of(body):
    """Every tag with its attributes; their values but for the drawings' names, which quote what was typed."""
    return [
        (tag.tag, sorted((name, value) for name, value in tag.attrib.items() if name != "aria-label"))
        for tag in body.iter()
    ]


def type_markup(folder):
    """Lets each name of the records begin with markup; the rest of it stays, as rooms are told apart by it."""
    typed = xml.sax.saxutils.escape(MARKUP, {'"': "&quot;"})
    for file, field in TYPED.items():
        path = folder / f"{file}.xml"
        records = path.read_text("utf-8")
        records, count = re.subn(rf'(<z:row\b[^>]*\s{field}=")', lambda found: found[1] + typed, records)
        assert count > 0, f"{file}: no {field}"
        path.write_text(records, "utf-8")


def check_household(reports, transcript, data, folder):
    for source in (data, data / "sample"):
        for file in source.glob("*.xml"):
            shutil.copy(file, folder)
    plain = write_and_compare(reports, transcript, folder, folder / "plain")
    type_markup(folder)
    typed = write_and_compare(reports, transcript, folder, folder / "typed")
    assert MARKUP in text_of(typed), "what was typed is not in the report"
    for before, after in zip(tags_of(plain), tags_of(typed)):
        assert before == after, f"{before} became {after}"
    assert len(tags_of(typed)) == len(tags_of(plain))


def write_and_compare(reports, transcript, folder, out):
    subprocess.run([reports, folder, out], check=True)
    (page,) = out.glob("*.html")
    calls = subprocess.run(
        [transcript, folder, "rooms", "1", "1"], check=True, capture_output=True, encoding="utf-8"
    ).stdout.splitlines()
    texts = [call["args"][0] for call in map(json.loads, calls) if call["op"] in ("Write", "TextBox")]
    assert len(texts) > 100, f"only {len(texts)} texts in the transcript"
    return compare(page, texts)


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        if len(sys.argv) == 2:
            check_samples(sys.argv[1], folder)
        else:
            check_household(sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3]), folder)


main()

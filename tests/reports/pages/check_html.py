"""Reads the HTML of sample reports with html5lib, which stops at the first departure from HTML5, and
compares the texts in it with those that were written.

Usage: check_html.py PROGRAM, where PROGRAM writes NAME.html and NAME.json files into the folder it is given.
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

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


def check(page):
    expected = json.loads(page.with_suffix(".json").read_text("utf-8"))
    source = page.read_bytes()
    document = html5lib.HTMLParser(strict=True).parse(source, transport_encoding="utf-8")
    as_xml = xml.etree.ElementTree.fromstring(source)
    for tree in (document, as_xml):
        body = tree.find(HTML + "body")
        found = list(blocks_of(body))
        written = [as_shown(text) for text in expected["texts"]]
        assert len(found) == len(written), f"{page.name}: {len(found)} texts, {len(written)} written"
        for number, (left, right) in enumerate(zip(found, written)):
            assert left == right, f"{page.name}, text {number}: {left!r} was written as {right!r}"
        assert len(body.findall(HTML + "section")) == expected["pages"], f"{page.name}: pages"
        assert not list(tree.iter(HTML + "script")), f"{page.name}: a script"
    return len(expected["texts"])


def main():
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([sys.argv[1], folder], check=True)
        pages = sorted(pathlib.Path(folder).glob("*.html"))
        assert len(pages) == 4, pages
        for page in pages:
            print(page.name, check(page), "texts")


main()

#!/usr/bin/env python3
"""Follows every link of the made guide, and holds what scripts/guide says of faults that are planted in its pages."""
import json
import re
import shutil
import subprocess
import tempfile
import unittest
from html.parser import HTMLParser
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
SOURCE = ROOT / "docs/guide"
CODES = sorted(path.name for path in SOURCE.iterdir() if path.is_dir())
# Kinds of places of language-places.tsv where an option, or what holds options, has its caption.
CAPTIONS = re.compile(r"dip|row|sub|heading|wide|line|title|tab")


def make(target, source=SOURCE):
    """Exit code and findings."""
    run = subprocess.run([ROOT / "scripts/guide", "--html", "--source", source, target], capture_output=True, text=True)
    return run.returncode, [line[7:] for line in run.stderr.splitlines() if ".md: " in line]


def copy(folder):
    """Pages to plant faults in: English and a translation."""
    source = Path(folder, "source")
    for code in ("en", "de"):
        shutil.copytree(SOURCE / code, source / code)
    shutil.copy(SOURCE / "guide.css", source)
    return source


class Reader(HTMLParser):
    """What a page leads to, what it shows, and where it can be linked to."""

    def __init__(self, path):
        super().__init__()
        self.targets, self.anchors, self.captions = [], set(), set()
        self.caption = None
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        found = dict(attributes)
        self.targets += [found[name] for name in ("href", "src") if name in found]
        if "id" in found:
            self.anchors.add(found["id"])
        if tag == "em":
            self.caption = ""

    def handle_endtag(self, tag):
        if tag == "em":
            self.captions.add(self.caption)
            self.caption = None

    def handle_data(self, data):
        if self.caption is not None:
            self.caption += data


class Guide(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.temporary = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.temporary.cleanup)
        cls.folder = Path(cls.temporary.name, "guide")
        made = make(cls.folder)
        assert made == (0, []), made
        cls.pages = {path: Reader(path) for path in cls.folder.rglob("*.html")}

    def test_every_link_and_picture_is_there(self):
        for path, page in self.pages.items():
            for target in page.targets:
                with self.subTest(page=str(path.relative_to(self.folder)), target=target):
                    self.assertNotRegex(target, r"^\w+:|^/")
                    file, _, anchor = target.partition("#")
                    led = (path.parent / file).resolve() if file else path
                    self.assertTrue(led.is_relative_to(self.folder.resolve()) and led.is_file())
                    if anchor:
                        self.assertIn(anchor, self.pages[Path(self.folder, led.relative_to(self.folder.resolve()))].anchors)

    def test_languages_have_the_same_entries(self):
        for code in CODES:
            for path in (self.folder / "en").glob("options*.html"):
                with self.subTest(code=code, page=path.name):
                    headings = re.compile(r'<h([1-6]) id="([^"]*)"><em>')
                    entries = [headings.findall(page.read_text(encoding="utf-8"))
                               for page in (path, self.folder / code / path.name)]
                    self.assertEqual(entries[0], entries[1])

    def test_every_option_is_told_of(self):
        english = json.loads((ROOT / "resources/language/English.json").read_text(encoding="utf-8"))
        told = set().union(*(page.captions for path, page in self.pages.items() if path.parent.name == "en"))
        rows = (ROOT / "scripts/lint.d/language-places.tsv").read_text(encoding="utf-8").splitlines()
        for key, kind, where in (row.split("\t") for row in rows if not row.startswith("#")):
            if CAPTIONS.fullmatch(kind) and not where.startswith("Reserved"):
                with self.subTest(key=key):
                    self.assertIn(" ".join(english[key].split()), told)

    def test_faults_are_found(self):
        faults = (
            ("en/marks.md", "*Installation*", "*Instalation*", "the tool has no text 'Instalation' in this language"),
            ("en/marks.md", "*Installation*", "*{{Instalation}}*", "{{Instalation}} is no key of a language file"),
            ("en/marks.md", "*Installation*", "*Installation", "an asterisk begins no caption, or ends none"),
            ("en/new-system.md", "(marks.md)", "(mark.md)", "the link to mark.md leads nowhere"),
            ("en/new-system.md", "(marks.md)", "(marks.md#nowhere)", "the link to marks.md#nowhere leads nowhere"),
            ("en/new-system.md", "(marks.md)", "(https://example.org)", "the link to https://example.org leads nowhere"),
            ("en/new-system.md", "pictures/product.png", "pictures/produkt.png", "there is no picture pictures/produkt.png"),
            ("de/marks.md", "{{Installation}}", "Installation error", "the tool has no text 'Installation error'"),
        )
        for file, text, fault, told in faults:
            with self.subTest(fault=fault):
                code, findings = self.planted(file, text, fault)
                self.assertEqual(code, 1)
                self.assertTrue(any(file in finding and told in finding for finding in findings), findings)

    def planted(self, file, text, fault):
        with tempfile.TemporaryDirectory() as folder:
            source = copy(folder)
            page = source / file
            content = page.read_text(encoding="utf-8")
            self.assertIn(text, content)
            page.write_text(content.replace(text, fault, 1), encoding="utf-8")
            return make(Path(folder, "target"), source)

    def test_a_missing_page_is_found(self):
        with tempfile.TemporaryDirectory() as folder:
            source = copy(folder)
            (source / "en/marks.md").unlink()
            code, findings = make(Path(folder, "target"), source)
            self.assertEqual(code, 1)
            self.assertIn("en/marks.md: is missing", findings)

    def test_a_picture_of_the_language_goes_before_that_of_english(self):
        with tempfile.TemporaryDirectory() as folder:
            source, target = copy(folder), Path(folder, "target")
            (source / "de/pictures").mkdir(exist_ok=True)
            for name in ("start.png", "complete.png"):
                (source / "de/pictures" / name).unlink(missing_ok=True)
            shutil.copy(source / "en/pictures/start.png", source / "de/pictures")
            self.assertEqual(make(target, source), (0, []))
            self.assertIn("pictures/start.png", Reader(target / "de/index.html").targets)
            self.assertIn("../en/pictures/complete.png", Reader(target / "de/new-system.html").targets)


if __name__ == "__main__":
    unittest.main()

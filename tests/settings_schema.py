#!/usr/bin/env python3
"""Holds docs/settings-file.schema.json against documents and against the sources.

Usage: settings_schema.py FOLDER, where the test of journeys has left the documents that it saved.
"""
import copy
import json
import re
import sys
import unittest
from pathlib import Path

from jsonschema import Draft7Validator

ROOT = Path(__file__).resolve().parents[1]
SCHEMA = json.loads((ROOT / "docs/settings-file.schema.json").read_text(encoding="utf-8"))
VALIDATOR = Draft7Validator(SCHEMA)
DEFAULTS = {name: json.loads((ROOT / f"resources/defaultsettings/KV5_AWHP_DATA_{name}.json").read_text(encoding="utf-8"))
            for name in ("R32", "R410")}


def shared_paths():
    """Constant -> path, of those that more than one place asks for."""
    text = (ROOT / "document/paths.h").read_text(encoding="utf-8")
    for space, constants in re.findall(r"namespace (\w+) \{(.*?)\} // namespace", text, re.S):
        for name, path in re.findall(r'(\w+) =\s*("[^"]+");', constants):
            yield f"{space}::{name}", path


def source(path, shared=()):
    """A source with its constants of text put in, so that a row shows its path."""
    text = path.read_text(encoding="utf-8")
    for name, value in shared:
        text = re.sub(rf"\b{name}\b", value, text)
    for name, value in re.findall(r'constexpr (?:auto|const char \*) ?(\w+) = ("[^"]+");', text):
        text = re.sub(rf'(?<![\w.":]){name}\b(?! =)', lambda _, value=value: value, text)
    return text


SHARED = list(shared_paths())
SOURCES = "".join(source(path, SHARED) for folder in ("pages", "rules") for end in ("cpp", "h")
                  for path in sorted((ROOT / folder).rglob(f"*.{end}")))
PASSED = True  # the schema's word for a key that passes through


def schema_leaves(schema=SCHEMA, prefix=""):
    """Path -> subschema of every named key that isn't a group with named keys."""
    for name, sub in schema["properties"].items():
        if sub is not PASSED and "properties" in sub:
            yield from schema_leaves(sub, f"{prefix}{name}.")
        else:
            yield prefix + name, sub


def document_leaves(value, prefix=""):
    for name, member in value.items():
        if isinstance(member, dict) and member:
            yield from document_leaves(member, f"{prefix}{name}.")
        else:
            yield prefix + name, member


LEAVES = dict(schema_leaves())
# What pages read or write.
USED = {path: sub for path, sub in LEAVES.items() if sub is not PASSED and sub.get("type") != "object"}
WRITTEN = {path for path, sub in USED.items() if "readOnly" not in sub}


def edited(document, path, value, remove=False):
    document = copy.deepcopy(document)
    group = document
    *groups, name = path.split(".")
    for each in groups:
        group = group.setdefault(each, {})
    if remove:
        del group[name]
    else:
        group[name] = value
    return document


def accepts(path, value):
    return Draft7Validator({**USED[path], "definitions": SCHEMA["definitions"]}).is_valid(value)


class Documents(unittest.TestCase):
    saved = []

    def good(self, document, name):
        errors = [f"{name}: {error.json_path}: {error.message}" for error in VALIDATOR.iter_errors(document)]
        self.assertEqual(errors, [])

    def test_schema_is_one(self):
        Draft7Validator.check_schema(SCHEMA)

    def test_defaults(self):
        for name, document in DEFAULTS.items():
            self.good(document, name)

    def test_every_default_key_is_named(self):
        whole = [path for path, sub in LEAVES.items() if sub is not PASSED and sub.get("type") == "object"]
        for path, _ in document_leaves(DEFAULTS["R32"]):
            self.assertTrue(path in LEAVES or path.split(".")[0] in whole, path)

    def test_saved(self):
        self.assertGreaterEqual(len(self.saved), 6, "run tst_journeys first")
        for path in self.saved:
            document = json.loads(path.read_text(encoding="utf-8"))
            self.good(document, path.name)
            # Whatever differs from both default documents is described as written, or is no key of theirs.
            defaults = [dict(document_leaves(each)) for each in DEFAULTS.values()]
            for key, value in document_leaves(document):
                if key in defaults[0] and value not in [each[key] for each in defaults]:
                    self.assertIn(key, WRITTEN, path.name)

    def test_unknown_keys_pass(self):
        for path in ("maker", "IduFuncList.isNew", "OperInfo.extra", "SettingInfo.user.extra",
                     "SettingInfo.installation.smartGrid.extra"):
            for value in ("text", 4.5, None, {"deep": [1, {}]}):
                self.good(edited(DEFAULTS["R32"], path, value), path)

    def test_passed_keys_take_anything(self):
        for path in [path for path, sub in LEAVES.items() if sub is PASSED]:
            self.good(edited(DEFAULTS["R410"], path, ["anything"]), path)

    def test_right_documents(self):
        values = json.loads((ROOT / "tests/data/schema/right.json").read_text(encoding="utf-8"))
        for path, each in values.items():
            self.assertIn(path, WRITTEN)
            for value in each:
                self.good(edited(DEFAULTS["R32"], path, value), path)
        # One list of words or numbers is there for each way in which a page works out what it writes. What has come since the
        # table of default documents has its page's test.
        table = (ROOT / "tests/data/default_document.tsv").read_text(encoding="utf-8").splitlines()
        numbers = {path for path in WRITTEN & {row.split("\t")[0] for row in table} if "minimum" in str(USED[path])}
        alike = re.compile(r"seasonalAutoOption|interface[23]$|start.min$")
        self.assertEqual({path for path in numbers - values.keys() if not alike.search(path)}, set())

    def test_wrong_documents(self):
        edits = json.loads((ROOT / "tests/data/schema/wrong.json").read_text(encoding="utf-8"))
        for edit in edits:
            for name, default in DEFAULTS.items():
                wrong = edited(default, edit["path"], edit.get("value"), edit.get("remove", False))
                places = [error.json_path for error in VALIDATOR.iter_errors(wrong)]
                parent = "$." + edit["path"] if not edit.get("remove") else "$" + "".join(
                    "." + each for each in edit["path"].split(".")[:-1])
                self.assertEqual(places, [parent], f"{name} with {edit}")


class Sources(unittest.TestCase):
    """What the pages name, the schema describes, and the other way round."""

    def test_every_path_is_described(self):
        paths = set(re.findall(r'"((?:SettingInfo|IduFuncList|ExtSysInfo)\.[\w.]*\w)"', SOURCES))
        self.assertGreater(len(paths), 150)
        for path in paths - USED.keys():
            begun = [each for each in USED if each.startswith(path)]
            self.assertTrue(begun, f"{path} is used by a page and not described")

    def test_every_description_is_used(self):
        texts = set(re.findall(r'"([^"\n]*)"', SOURCES))
        for path in USED:
            name = path.split(".")[-1]
            self.assertTrue(any(text == name or text.endswith("." + name) for text in texts),
                            f"{path} is described and no page names it")

    def test_every_word_is_accepted(self):
        words = re.findall(r'"((?:SettingInfo|IduFuncList)\.[\w.]+)",\s*"(\w+)"\}', SOURCES)
        for path, options in re.findall(r'\{"([\w.]+)",\s*\{((?:\{ui->\w+,\s*"\w+"\}[,\s]*)+)\}', SOURCES):
            words += [(path, word) for word in re.findall(r'"(\w+)"', options)]
        words += re.findall(r'(?:save|change)\("([\w.]+)",\s*QStringLiteral\("(\w+)"\)\)', SOURCES)
        self.assertGreater(len(words), 100)
        for path, word in words:
            self.assertIn(path, WRITTEN)
            self.assertTrue(accepts(path, word), f"{path}: {word}")


if __name__ == "__main__":
    Documents.saved = sorted(Path(sys.argv.pop(1)).glob("*.json"))
    unittest.main()

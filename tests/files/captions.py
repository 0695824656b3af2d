#!/usr/bin/env python3
"""Holds the table of calora-files against the forms and the language: each control exists, each caption is one of its page."""
import json
import re
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SOURCE = re.sub(r'"\s*\n\s*"', "", (ROOT / "files/settings.cpp").read_text(encoding="utf-8"))
ROWS = re.findall(r'\{"([\w.]+)",\s*"(\w+)/([^"]+)",\s*"([^"]+)",\s*Form::\w+(?:,\s*(\w+|"[^"]*"))?', SOURCE)
CONSTANTS = dict(re.findall(r'constexpr auto (\w+) = ("[^"]*");', SOURCE))
ENGLISH = json.loads((ROOT / "resources/language/English.json").read_text(encoding="utf-8-sig"))
# Captions that stand in lists: items for no choice, units, and what two circuits rename.
IN_LISTS = {"Hour", "Minute", "Year", "Month", "UserDay", "AIR_WATER", "ConstantWaterTemp", "SeasonalAirTemp",
            "SeasonalWaterTemp"}


def form(page):
    root = ElementTree.parse(ROOT / f"forms/{page.lower()}.ui").getroot()
    captions = {each.get("comment") for each in root.iter("string") if each.get("comment")}
    # Where the page itself captions its form.
    for source in ROOT.glob(f"pages/*/{page.lower()}*.cpp"):
        captions |= set(re.findall(r'"(\w+)"', source.read_text(encoding="utf-8")))
    return {each.get("name") for each in root.iter("widget")}, captions


class Captions(unittest.TestCase):
    def test_rows_are_read(self):
        self.assertEqual(len(ROWS), SOURCE.count("Form::"))
        self.assertGreater(len(ROWS), 150)

    def test_controls_and_captions_are_of_the_form(self):
        for path, page, controls, captions, _ in ROWS:
            names, keys = form(page)
            for control in controls.split():
                self.assertIn(control, names, path)
            for caption in captions.split("/"):
                self.assertTrue(caption in keys or caption in IN_LISTS, f"{path}: {caption} is no caption of {page}")

    def test_every_key_is_of_the_language(self):
        for path, _, _, captions, texts in ROWS:
            keys = captions.split("/")
            texts = CONSTANTS.get(texts, texts).strip('"')
            for pair in texts.split():
                word = pair.rsplit("=", 1)[-1]
                keys += [word] if not word.startswith("#") else word.split("+")[1:]
            for key in keys:
                self.assertIn(key, ENGLISH, path)

    def test_every_control_has_its_row(self):
        """What a page writes by a control has a row, unless it follows from another value."""
        schema = json.loads((ROOT / "docs/settings-file.schema.json").read_text(encoding="utf-8"))

        def written(rules, prefix=""):
            for name, rule in rules["properties"].items():
                if rule is not True and "properties" in rule:
                    yield from written(rule, f"{prefix}{name}.")
                elif rule is not True and rule.get("type") != "object" and not rule.get("readOnly"):
                    yield prefix + name

        told = {row[0] for row in ROWS}
        missing = {path for path in written(schema) if path not in told and not path.startswith("IduFuncList.")}
        # The half of the day goes with its hour, the sensor with the control method.
        self.assertEqual(missing, {"SettingInfo.func.silentTimer.start.ampm", "SettingInfo.func.silentTimer.end.ampm",
                                   "SettingInfo.installation.sensorDefine.remote_sensor"})


if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
"""Plants faults in the English language file and holds what scripts/lint-language says of each."""
import json
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
ENGLISH = (ROOT / "resources/language/English.json").read_bytes()


class LintLanguage(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def lint(self, content, name="Test.json", options=()):
        """Exit code and findings."""
        path = Path(self.folder.name, name)
        path.write_bytes(content)
        run = subprocess.run([ROOT / "scripts/lint-language", *options, path], capture_output=True, text=True)
        return run.returncode, [line for line in run.stderr.splitlines() if line.startswith(f"{name}: ")]

    def planted(self, **texts):
        """English with other texts; None takes the key out."""
        english = json.loads(ENGLISH)
        english.update(texts)
        return json.dumps({key: text for key, text in english.items() if text is not None}, ensure_ascii=False).encode()

    def names(self, fault, content, name="Test.json", options=()):
        """Holds that the fault is found, and no other."""
        code, findings = self.lint(content, name, options)
        self.assertEqual(code, 1)
        self.assertEqual(len(findings), 1, findings)
        self.assertIn(fault, findings[0])

    def test_english_is_good(self):
        self.assertEqual(self.lint(ENGLISH, "English.json", ["--delivered"]), (0, []))

    def test_order_and_line_ends_matter_to_delivered_files_only(self):
        english = json.loads(ENGLISH)
        as_saved_by_the_editor = json.dumps(english, indent=4, sort_keys=True).encode()
        self.assertEqual(self.lint(as_saved_by_the_editor), (0, []))
        self.names("the keys are in another order", as_saved_by_the_editor, options=["--delivered"])
        self.names("isn't in the form of English.json", ENGLISH.replace(b"\r\n", b"\n"), options=["--delivered"])
        self.names("isn't in the form of English.json", b"\xef\xbb\xbf" + ENGLISH, options=["--delivered"])

    def test_seconds_have_one_text(self):
        self.names("OperationSecond is 'sec' and not 's'", self.planted(OperationSecond="sec"))

    def test_stored_texts_differ(self):
        self.names("choosing it for STEP2 in Defrost mode", self.planted(STEP2="Step 2", ControlMode="Step 2"))
        self.names("choosing it for WATER in Control method would store 'AIR'", self.planted(WATER="Air"))
        self.names("choosing it for RemoteController in Air temp. sensor location would store 'RMC'",
                   self.planted(RMC="Remote controller"))
        self.names("in Temp. control method the choice Inlet would be taken for Outlet",
                   self.planted(Inlet="Outlet", ENTRANCE="Entrance", EXIT="Exit"))
        self.names("in Priority of the boost heater the choice Cycle_Heater would be taken for Cycle",
                   self.planted(Cycle_Heater="Heat pump"))

    def test_shown_texts_differ(self):
        self.names("nobody could tell the items of Schedule apart", self.planted(THU="Tue"))
        self.names("an edit of Off would go to NotUse", self.planted(Off="Not use"))

    def test_pairs_of_english_may_be_equal(self):
        self.assertEqual(self.lint(self.planted(Both="A", HeatingCooling="A", EXIT="O", Outlet="O")), (0, []))

    def test_keys_are_those_of_english(self):
        self.names("Save is missing", self.planted(Save=None))
        self.names("240s is no key", self.planted(**{"240s": "soon"}))
        self.names("Save is there 2 times", ENGLISH.replace(b"}", b', "Save": "Keep"}'))

    def test_values_are_texts(self):
        self.names("Hour is empty", self.planted(Hour=""))
        self.names("Open is a list and not a text", self.planted(Open=["Open"]))
        self.names("Open is an object and not a text", self.planted(Open={"text": "Open"}))
        self.names("Open is a number and not a text", self.planted(Open=5))

    def test_numbers_stay_numbers(self):
        self.names("Month is a number", self.planted(Month="12"))
        self.names("Hour holds a digit", self.planted(Hour="h24"))
        self.names("STEP1 doesn't hold the number 1", self.planted(STEP1="Stufe 7"))

    def test_texts_fit(self):
        self.names("WATER has 2 lines", self.planted(WATER="Wa\nter"))
        self.names("'Kalenderjahr' has 12 characters", self.planted(Year="Kalenderjahr"))
        self.names("has 24 characters", self.planted(Cycle_Heater="Heat pump + boost heater"))
        self.names("has 32 characters", self.planted(SingleEmergencyStop="Emergency stop of this unit only"))
        self.assertEqual(self.lint(self.planted(Cycle_Heater="Heat pump, boost heater",
                                                SingleEmergencyStop="Emergency stop, this unit only")), (0, []))
        self.names("has 18 characters", self.planted(Thermostat="Raumthermostatwerk"))
        self.names("has a blank at an end", self.planted(Both="Both "))
        self.assertEqual(self.lint(self.planted(day=" dni")), (0, []))
        self.assertEqual(self.lint(self.planted(Both="Heat & <cool>")), (0, []))

    def test_names_stay(self):
        self.names("it is a name", ENGLISH.replace(b'"Calora"', b'"Kalora"'), options=["--delivered"])

    def test_unusable_files(self):
        self.names("is not JSON", ENGLISH[:500])
        self.names("is no object", b'["New"]')
        self.names("is not UTF-8", b'{"New": "\xff"}')
        self.names("doesn't end in '.json'", ENGLISH, "Test.JSON")
        self.names("has '.json' in its name", ENGLISH, "Test.json.json")
        self.names("letters and accents apart", ENGLISH, "C\u030cestina.json", ["--delivered"])


unittest.main()

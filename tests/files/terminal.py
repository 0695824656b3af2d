#!/usr/bin/env python3
"""Holds what calora-files shows on a terminal while it checks many files, and that nobody else sees it.

Usage: terminal.py PROGRAM
"""
import os
import pty
import subprocess
import sys
import unittest
from pathlib import Path

PLANT = str(Path(__file__).resolve().parents[2] / "resources/defaultsettings/KV5_AWHP_DATA_R32.json")
PROGRAM = sys.argv.pop(1)


def shown(files):
    """What a terminal gets that shows the messages alone, and the output."""
    master, slave = pty.openpty()
    run = subprocess.run([PROGRAM, "check", "--no-pages", *[PLANT] * files], stdout=subprocess.PIPE, stderr=slave, check=True)
    os.close(slave)
    text = b""
    try:
        while chunk := os.read(master, 65536):
            text += chunk
    except OSError:  # the end, on Linux
        pass
    os.close(master)
    return text.decode(), run.stdout.decode()


class Terminal(unittest.TestCase):
    def test_many_files_show_how_far_it_is(self):
        text, output = shown(30)
        self.assertIn("\r1 of 30 ", text)
        self.assertIn("\r30 of 30 ", text)
        self.assertTrue(text.endswith("\r\033[K"), "the line is cleared")
        self.assertNotIn(" of 30", output)

    def test_few_files_show_nothing(self):
        self.assertEqual(shown(5)[0], "")

    def test_what_is_no_terminal_gets_nothing(self):
        run = subprocess.run([PROGRAM, "check", "--no-pages", *[PLANT] * 30], capture_output=True, check=True)
        self.assertEqual(run.stderr, b"")


if __name__ == "__main__":
    unittest.main()

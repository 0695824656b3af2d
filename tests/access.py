#!/usr/bin/python3
"""Reads the tool as a screen reader does, over AT-SPI: starts the executable, goes through every page and the windows
above it by what the bus offers, in English and in German, and holds what each part says of itself.

usage: access.py EXECUTABLE, on a display with a bus of its own (scripts/with-display --accessible)
"""
import json
import re
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import pyatspi
from gi.repository import GLib

# English names for which no language has a text; all else that is spoken comes from the language in force.
WITHOUT_KEY = {
    "Minimize", "Maximize", "Restore", "Close",  # buttons of the window
    "Current step",
    "Circuit board", *(f"Switch {bank}{number}" for bank in "ABC" for number in range(1, 9)),  # drawn on step 2
    "New", "Load", "Edit",  # the popup of languages
    "Search text", "Search", "Texts", "Clear", "Open Folder", "Save",  # the editor
    "Calora configurator",
}
SPEAKING = {"push button", "radio button", "check box", "combo box", "text", "page tab", "label", "image", "list",
            "list item"}
RENAMED = {"combo box", "page tab", "panel", "push button"}
# Without a form or a text of their own: Qt's parts of a scroll area, reached by no key.
MUTE = {"scroll bar"}
DEADLINE = 20

findings = []


def expect(holds, text):
    if not holds:
        findings.append(text)


class Lost(Exception):
    """The way through the window goes no further."""


class Node:
    """A part of the window that is shown, read once, with what it says and what lies in it."""

    def __init__(self, source, parent=None):
        self.source, self.parent = source, parent
        self.role, self.name, self.description = source.getRoleName(), source.name, source.description
        self.states = {state.value_nick for state in source.getState().getStates()}
        self.value = source.queryText().getText(0, -1) if self.role in ("text", "combo box") else None
        children = [source[index] for index in range(source.childCount)] if "showing" in self.states else []
        self.children = [Node(child, self) for child in children if child and child.getState().contains(pyatspi.STATE_SHOWING)]

    def __iter__(self):
        yield self
        for child in self.children:
            yield from child

    def find(self, role, name):
        return next((node for node in self if (node.role, node.name) == (role, name)), None)

    def labels(self):
        return [child.name for child in self.children if child.role == "label"]

    def press(self):
        self.source.queryAction().doAction(0)

    def __str__(self):
        return f"{self.role} {self.name!r}"


class Tool:
    """A run of the tool, from a copy of its folder, which starts in English."""

    def __init__(self, executable, folder):
        shutil.copytree(executable.parent, folder, symlinks=False)
        (folder / "language" / "language.ini").write_text("English", encoding="utf-8")
        self.process = subprocess.Popen([folder / executable.name], stderr=subprocess.DEVNULL)
        self.source = self.wait("the application", self.application)
        self.tree = None  # as read last

    def application(self):
        desktop = pyatspi.Registry.getDesktop(0)
        own = [each for each in desktop if each and each.get_process_id() == self.process.pid]
        return own[0] if own and own[0].childCount else None

    @staticmethod
    def wait(what, found):
        end = time.monotonic() + DEADLINE
        while time.monotonic() < end:
            try:
                if result := found():
                    return result
            except Exception:  # parts come and go while they are read
                pass
            time.sleep(0.05)
        raise Lost(f"{what} isn't there")

    def read(self, role, name, *states):
        """The tree once it holds a part of that role and name, in those states."""
        def look():
            self.tree = Node(self.source)
            found = self.tree.find(role, name)
            return self.tree if found and set(states) <= found.states else None
        return self.wait(f"{role} {name!r}", look)

    def press_within(self, group, radio):
        next(node for node in self.tree.find("panel", group).children if node.name == radio).press()

    def press(self, role, name, *then):
        """Presses a part of what was read last, and reads the tree once it holds that other one."""
        self.tree.find(role, name).press()
        return self.read(*then) if then else self.tree

    def end(self):
        """Closes the window, as a person would."""
        def closed():
            if self.process.poll() is None:
                [node for node in Node(self.source) if (node.role, node.name) == ("push button", "Close")][-1].press()
            return self.process.poll() is not None
        self.wait("the end", closed)
        expect(self.process.returncode == 0, f"end: the tool ends with {self.process.returncode}")


def spoken(text):
    """In one line; a word that a hyphen breaks is one word."""
    return " ".join(re.sub("(?<=[a-zäöüß])-\n(?=[a-zäöüß])", "", text).split())


def words_of(folder, language):
    texts = json.loads((folder / "language" / f"{language}.json").read_text(encoding="utf-8"))
    return {key: spoken(text) for key, text in texts.items()}


def is_made_of(text, words):
    """Whether the text is some of the words one after the other."""
    rest = {text}
    seen = set()
    while rest:
        text = rest.pop().lstrip(", ")
        if not text:
            return True
        if text not in seen:
            seen.add(text)
            rest.update(text[len(word):] for word in words
                        if word and text.startswith(word) and text[len(word):][:1] in ("", " ", ","))
    return False


def hold(stop, tree, texts):
    """What holds of every part of every page."""
    shown = {node.name for node in tree if node.role == "label"}
    words = set(texts.values()) | WITHOUT_KEY | shown
    for node in tree:
        where = f"{stop}: {node}"
        if node.role in SPEAKING or ("focusable" in node.states and node.role not in MUTE):
            expect(node.name, f"{where} says nothing, in {node.parent}")
        if node.role not in ("label", "application", "dialog", "text"):
            expect(is_made_of(node.name, words), f"{where} isn't called by texts of the language")
            expect(is_made_of(node.description, words), f"{where} is told by {node.description!r}")
        if node.role == "radio button":
            expect(node.parent.name and node.parent.name in node.parent.labels(), f"{where} has no group with its caption")
        if node.role == "combo box":
            expect(node.value, f"{where} shows nothing")
            expect(any(label and node.name.startswith(label) for label in node.parent.labels()),
                   f"{where} isn't called by its caption")
            expect({"expandable"} <= node.states, f"{where} doesn't say that it opens")
        if node.role == "text" and "editable" in node.states:
            expect(spoken(node.name) in {*node.parent.labels(), "Search text"}, f"{where} isn't called by its caption")
        if node.role == "page tab":
            above = node.parent
            while above and above.role != "page tab list":
                above = above.parent
            expect(above, f"{where} lies in no list of tabs")


def has(stop, tree, role, name, states=(), without=(), value=None, description=None):
    node = tree.find(role, name)
    where = f"{stop}: {role} {name!r}"
    if node is None:
        findings.append(f"{where} isn't there")
        return
    expect(set(states) <= node.states and not set(without) & node.states, f"{where} is {sorted(node.states)}")
    expect(value is None or node.value == value, f"{where} shows {node.value!r}, not {value!r}")
    expect(description is None or node.description == description, f"{where} is told by {node.description!r}")


def marks(tree):
    return [node.description for node in tree if node.role == "image" and node.description]


def do(node, action):
    """An action of a part that offers more than one."""
    actions = node.source.queryAction()
    names = [actions.getName(index) for index in range(actions.nActions)]
    expect(action in names, f"{node} offers {names}, not {action}")
    actions.doAction(names.index(action))


def choose_next(tool, stop, box, item):
    """Opens a list as a screen reader does, and takes the item below the one that is shown, by keys."""
    has(stop, tool.tree, "combo box", box, ["collapsed"])
    do(tool.tree.find("combo box", box), "ShowMenu")
    tree = tool.read("list item", item)
    has(stop, tree, "combo box", box, ["expanded"])
    own = tree.find("combo box", box)
    expect(own.find("list item", item), f"{stop}: the list of {box} isn't its child")
    text = own.source.queryText()
    expect((text.caretOffset, text.getNSelections(), text.getText(0, 2), text.getAttributes(0)[1:]) ==
           (0, 0, own.value[:2], [0, len(own.value)]), f"{stop}: {box} says {own.value!r} as another text")
    subprocess.run(["xdotool", "key", "Down", "Return"], check=True)
    tree = tool.read("combo box", box, "collapsed")
    has(stop, tree, "combo box", box, value=item)
    return tree


def walk(tool, texts):
    """Every page of a new document, by its names in the language in force."""
    text = texts.__getitem__
    stop = text("Language") + " "
    tool.press("push button", text("New"), "radio button", text("MediumTemperature"))
    tool.press("radio button", text("MediumTemperature"))
    tree = tool.press("radio button", text("R32"), "label", "R32")
    hold(stop + "product", tree, texts)
    complete, open_ = text("CompleteMessage"), text("ErrorMessage")
    has(stop + "product", tree, "radio button", text("R32"), ["checked"])
    has(stop + "product", tree, "radio button", text("R410A"), without=["checked"])
    tabs = ", ".join(text(key) for key in ("Function", "User", "Installation"))
    has(stop + "product", tree, "push button", text("ProductSelection"), description=f"Current step, {complete}")
    has(stop + "product", tree, "push button", text("DipSwitchSettingStatus"),
        description=f"{open_}, {text('DipSwitchSettingStatus')}")
    has(stop + "product", tree, "push button", text("Setting"), description=f"{open_}, {tabs}")
    has(stop + "product", tree, "push button", text("Validation"), description=open_)
    expect(tabs in marks(tree), f"{stop}product: no mark tells {tabs!r}, but {marks(tree)}")

    tree = tool.press("push button", text("DipSwitchSettingStatus"), "panel", text("DipSwitchGuide"))
    hold(stop + "switches", tree, texts)
    tool.press_within(text("DomesticHotWaterTank"), text("Use"))
    tree = tool.read("check box", "Switch A3", "checked")
    has(stop + "switches", tree, "push button", text("ProductSelection"), description=complete)
    has(stop + "switches", tree, "push button", text("DipSwitchSettingStatus"), description=f"Current step, {complete}")
    has(stop + "switches", tree, "check box", "Switch A3", ["checked"], description=text("On"))
    has(stop + "switches", tree, "check box", "Switch A1", without=["checked"], description=text("Off"))
    has(stop + "switches", tree, "text", text("PulseSpecWHM1"), ["editable"], value="1000")

    tree = tool.press("push button", text("Setting"), "panel", text("LockTitle"))
    hold(stop + "function", tree, texts)
    has(stop + "function", tree, "page tab", text("Function"), ["selected"], description="")
    has(stop + "function", tree, "page tab", text("User"), without=["selected"], description=text("User"))
    has(stop + "function", tree, "page tab", text("Service"), without=["selected"], description=text("Service"))
    has(stop + "function", tree, "combo box", f"{text('SilentModeStartTime')} {text('Hour')}", value="22")

    tree = tool.press("page tab", text("User"), "panel", text("DisplayTheme"))
    hold(stop + "user", tree, texts)
    has(stop + "user", tree, "page tab", text("User"), ["selected"], description=text("Date"))
    has(stop + "user", tree, "page tab", text("Function"), without=["selected"])
    has(stop + "user", tree, "combo box", f"{text('Date')} {text('Month')}", ["collapsed"], value=text("Month"))
    has(stop + "user", tree, "combo box", text("BRIGHTNESS"), value="10%")
    tree = choose_next(tool, stop + "user", text("BRIGHTNESS"), "20%")
    has(stop + "user", tree, "push button", text("Setting"),
        description=f"Current step, {open_}, {text('Date')}, {text('Installation')}")

    tree = tool.press("page tab", text("Service"), "text", text("Telephone"))
    hold(stop + "service", tree, texts)
    has(stop + "service", tree, "page tab", text("Service"), ["selected"], description="")

    sections = [text(key) for key in ("SystemSetting", "Cool", "Heat", "Automode", "DomesticHotWater")]
    tree = tool.press("page tab", text("Installation"), "push button", sections[0])
    hold(stop + "installation", tree, texts)
    for name in sections:
        has(stop + "installation", tree, "push button", name, ["expandable"], ["expanded"])
        tree.find("push button", name).press()
    tree = tool.read("panel", sections[-1])
    hold(stop + "sections", tree, texts)
    for name in sections:
        has(stop + "sections", tree, "push button", name, ["expandable", "expanded"])
    has(stop + "sections", tree, "combo box", f"{text('IndoorAirTempRange')} {text('Max')}", value="21°C")
    for name in sections:
        tree.find("push button", name).press()
    tool.press("page tab", text("Function"), "panel", text("LockTitle"))

    tree = tool.press("push button", text("Validation"), "label", open_)
    hold(stop + "result", tree, texts)
    has(stop + "result", tree, "push button", text("Validation"), description=f"Current step, {open_}")


def read_editor(tool, texts):
    tree = tool.press("combo box", texts["Language"], "list", texts["Language"])
    popup = tree.find("list", texts["Language"]).parent
    next(node for node in popup if node.role == "push button" and node.name == "New").press()
    tree = tool.read("list", "Texts")
    editor = next(child for child in tree.children if child.find("list", "Texts"))
    hold("editor", editor, texts)
    rows = editor.find("list", "Texts").children
    expect(len(rows) > 5, f"editor: {len(rows)} rows are shown")
    for row in rows:
        fields = [(node.role, spoken(node.name), node.value and spoken(node.value)) for node in row if node.role in ("text", "push button")]
        expect(fields == [("text", row.name, row.name), ("push button", "Clear", None)], f"editor: {row} holds {fields}")
    editor.find("push button", "Close").press()


def speak(tool, texts, language):
    """Takes a language in the popup, by its row."""
    tree = tool.press("combo box", texts["Language"], "list item", language)
    hold("popup", tree, texts)
    has("popup", tree, "combo box", texts["Language"], ["expanded"])
    rows = [node.name for node in tree.find("list", texts["Language"]).children]
    expect({"English", "Deutsch"} <= set(rows), f"popup: its rows are {rows}")
    renamed = set()

    def listen(event):
        renamed.add(event.source.getRoleName())

    # A screen reader keeps the names that it has read.
    pyatspi.Registry.registerEventListener(listen, "object:property-change:accessible-name")
    tree.find("list item", language).press()
    end = time.monotonic() + DEADLINE
    while not RENAMED <= renamed and time.monotonic() < end:
        GLib.MainContext.default().iteration(False)
        time.sleep(0.01)
    pyatspi.Registry.deregisterEventListener(listen, "object:property-change:accessible-name")
    expect(RENAMED <= renamed, f"popup: the new language is told of {sorted(renamed)} only")


def main():
    with tempfile.TemporaryDirectory() as place:
        folder = Path(place) / "calora"
        tool = Tool(Path(sys.argv[1]), folder)
        try:
            english, german = words_of(folder, "English"), words_of(folder, "Deutsch")
            start = tool.read("push button", "New")
            hold("start", start, english)
            for name in ("Minimize", "Maximize", "Close"):
                has("start", start, "push button", name, description="")  # a tool tip would be one, in English
            expect(len([node for node in start if node.name == "Open"]) == 2, "start: Open isn't there twice")
            walk(tool, english)
            speak(tool, english, "Deutsch")
            hold("changed", tool.read("push button", german["ProductSelection"]), german)
            walk(tool, german)
            read_editor(tool, german)
            tool.end()
        except Lost as end:
            findings.append(str(end))
        finally:
            tool.process.kill()
            tool.process.wait()
    sys.exit("\n".join(findings) or 0)


main()

#!/usr/bin/env python3
"""Checks the form descriptions: names, layouts, geometry, tab order, buddies and texts."""
import re
import xml.etree.ElementTree as ET
from pathlib import Path

from tree import ROOT, allowed, finish, own_files

GIVEN = allowed(Path(__file__).with_name("forms-names.txt"))

# A designer's names: the kind with a number, or the bare kind where the name should tell which one of many.
NUMBERED = re.compile(r"^[A-Za-z]+_\d+$")
BARE = {"label", "pushButton", "radioButton", "checkBox", "comboBox", "spinBox", "toolButton", "widget"}

# Containers that place their children themselves.
PLACING = {"PageStack", "QScrollArea", "PageArea", "QStackedWidget", "QTabWidget", "QToolBox", "QSplitter", "QMainWindow", "QDockWidget"}

FOCUSED = {"ContactLine", "ImageButton", "LanguageBox", "QCheckBox", "QComboBox", "QLineEdit", "QPushButton", "QSpinBox",
           "QDateEdit", "PlainPushButton", "PlainRadioButton", "QTimeEdit", "TabButton", "ValueList"}


def is_left_over(name):
    return name not in GIVEN and (name in BARE or bool(NUMBERED.match(name)))


def check_names(root):
    seen = set()
    for element in root.iter():
        if element.tag not in ("widget", "layout", "spacer", "action", "buttongroup"):
            continue
        name = element.get("name")
        if not name:
            if element.tag == "widget":
                yield f"a {element.get('class')} has no name"
            continue
        if name in seen:
            yield f"{name} is there twice"
        seen.add(name)
        if is_left_over(name):
            yield f"{name} says nothing: name it after its purpose"


def check_layouts(root):
    for widget in root.iter("widget"):
        if widget.get("class") not in PLACING and widget.findall("widget"):
            yield f"{widget.get('name')} has children but no layout"
        if widget is not root.find("widget") and widget.find("property[@name='geometry']") is not None:
            yield f"{widget.get('name')} has a geometry of its own: leave it to the layout"


def focused(root):
    """Names of the widgets that take the focus, in the order of the file, which is Qt's own tab order."""
    return [widget.get("name") for widget in root.iter("widget")
            if widget.get("class") in FOCUSED
            and widget.findtext("property[@name='focusPolicy']/enum") != "Qt::NoFocus"]


def check_tab_order(root):
    """Tab stops, where there are any, are complete; otherwise the file stands in reading order."""
    stops = [stop.text for stop in root.iter("tabstop")]
    names = {widget.get("name") for widget in root.iter("widget")}
    yield from (f"tab stop {stop} is not in the form" for stop in stops if stop not in names)
    yield from (f"tab stop {stop} is there twice" for stop in set(stops) if stops.count(stop) > 1)
    if stops:
        yield from (f"{name} is missing among the tab stops" for name in focused(root) if name not in stops)
        return
    for layout in root.iter("layout"):
        if layout.get("class") != "QGridLayout":
            continue
        places = [(int(item.get("row", 0)), int(item.get("column", 0)))
                  for item in layout.findall("item") if focused(item)]
        if places != sorted(places):
            yield f"the controls in {layout.get('name') or 'a grid'} don't stand in reading order, row by row"


def check_buddies(root):
    names = {widget.get("name") for widget in root.iter("widget")}
    for widget in root.iter("widget"):
        buddy = widget.findtext("property[@name='buddy']/cstring")
        if buddy is not None and buddy not in names:
            yield f"{widget.get('name')} has a buddy {buddy} that is not in the form"


def check_texts(root):
    """A text either has the key of a language or stays as it is in each of them."""
    for text in root.iter("string"):
        if (text.get("comment") is None) == (text.get("notr") is None):
            yield f"the text {text.text!r} needs a key as its comment, or notr"


def check(path):
    try:
        root = ET.parse(ROOT / path).getroot()
    except ET.ParseError as error:
        return [f"not well-formed: {error}"]
    return [finding for rule in (check_names, check_layouts, check_tab_order, check_buddies, check_texts) for finding in rule(root)]


finish("forms", [f"{path}: {finding}" for path in own_files("forms/*.ui") for finding in check(path)])

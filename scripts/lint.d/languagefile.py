"""What a language file must hold so that the tool shows it well and turns shown texts back into what it stores.

docs/language-files.md tells the same for people, with the reasons."""
import json
import re
import unicodedata
from functools import cache
from pathlib import Path

from tree import ROOT

FOLDER = ROOT / "resources/language"
ENGLISH = FOLDER / "English.json"
PLACES = Path(__file__).with_name("language-places.tsv")

# Lists whose item is turned into its key by a search for the text; the key is stored.
STORED_BY_KEY = {
    "Control method": ["WATER", "AIR", "AIR_WATER"],
    "Air temp. sensor location": ["IDU", "RemoteController"],
    "Defrost mode, Night-time power and Hysteresis (TH on/off)": ["STEP0", "STEP1", "STEP2", "STEP3"],
}
# Lists that are held against the texts of their keys, the first one first.
STORED_BY_TEXT = {
    "Temp. control method": ["Outlet", "Inlet"],
    "Priority of the boost heater": ["Cycle", "Cycle_Heater"],
}
# Lists stored by index, and radios side by side: only the reader could mistake one for the other.
SHOWN_TOGETHER = {
    "Programmable digital input": ["NotUse", "SimpleOperation", "SimpleDryContact", "SingleEmergencyStop",
                                   "MultiEmergencyStop"],
    "Dry contact installation": ["Auto", "NOTINSTALL", "INSTALL"],
    "Mode of the boiler": ["Manual", "Auto"],
    "Schedule": ["SUN", "MON", "TUE", "WED", "THU", "FRI", "SAT"],
    "Smart grid's mode": ["STEP0", "STEP1", "STEP2"],
}
# Never asked for by text, or both asked for and told apart: equal in English too.
MAY_BE_EQUAL = [{"Both", "HeatingCooling"}, {"Address", "ModbusAddress"}, {"EXIT", "Outlet"}, {"ENTRANCE", "Inlet"}]
PLACEHOLDERS = {"Year": "year", "Month": "month", "UserDay": "day"}
SUFFIXES = ["OperationSecond", "OperationMinute", "Hour", "day"]
UNTRANSLATED = ["AWHP", "Aquabox", "R32", "R410A", "B0", "B1"]

# Kind of place: characters a line, lines. Measured in the smallest window: the room in pixels by the width that a letter has
# in nine of ten delivered texts, a little more than the mean. tst_languages holds these texts against the pixels themselves.
FITS = {
    "sentence": (60, 2), "button": (11, 1), "word": (14, 1), "step": (16, 2), "tab": (16, 1), "title": (85, 1),
    "heading": (35, 2), "wide": (110, 2), "row": (36, 2), "sub": (33, 2), "line": (110, 1), "dip": (45, 2), "unit": (40, 1),
    "small": (5, 1), "radio1": (60, 1), "radio2": (37, 1), "radio3": (21, 1), "radio3long": (30, 1), "dipradio": (50, 1),
    "list78": (10, 1), "list108": (15, 1), "list158": (23, 1), "list218": (30, 1), "suffix": (9, 1),
}
LONGEST_DIP_WORD = 17  # its column breaks lines at blanks by itself


@cache
def english():
    return json.loads(ENGLISH.read_text(encoding="utf-8"))


@cache
def places():
    """Key -> kind of place: that of its line, or the narrowest of the kinds that its widget in a form may be of."""
    forms = "".join(path.read_text(encoding="utf-8") for path in sorted((ROOT / "forms").glob("*.ui")))
    widgets = re.findall(r'<widget class="Plain(Label|RadioButton)"[^>]*>(?:(?!<widget).)*?<string comment="([^"]+)"', forms, re.S)
    found = {key: {"Label": "sub", "RadioButton": "radio3"}[widget] for widget, key in widgets}
    lines = PLACES.read_text(encoding="utf-8").splitlines()
    told = {key: kind for key, kind, _ in (line.split("\t") for line in lines if not line.startswith("#"))}
    return {key: kind for key, kind in found.items() if key in english()} | told


def findings_in(path, delivered=False):
    """What is wrong with a file and what would come of it, a sentence each. `delivered` asks for the form of the files of
    this repository too: names, order and line ends don't matter to the tool."""
    path = Path(path)
    pairs, problem = read(path)
    if problem:
        return [problem]
    texts = dict(pairs)
    found = named(path) + keys(pairs)
    sound = {}
    for key in english():
        if key in texts:
            wrong = value(key, texts[key])
            found += wrong
            if not wrong:
                sound[key] = texts[key]
    found += stored(sound) + equal(sound) + [line for key in sound for line in shown(key, sound[key])]
    return found + (form(path, texts, sound) if delivered else [])


def read(path):
    """(pairs, None), or (None, why the tool couldn't use the file)."""
    empty = "the tool would show no text at all"
    try:
        pairs = json.loads(path.read_bytes().decode("utf-8-sig"), object_pairs_hook=Pairs)
    except OSError as error:
        return None, f"can't be read: {error.strerror}"
    except UnicodeDecodeError:
        return None, f"is not UTF-8: {empty}"
    except ValueError as error:
        return None, f"is not JSON ({error}): {empty}"
    if not isinstance(pairs, Pairs):
        return None, f"is no object of keys and texts: {empty}"
    return pairs, None


class Pairs(list):
    """The members of an object, doubled ones included."""


def named(path):
    if path.suffix != ".json":
        return [f"{path.name!r} doesn't end in '.json': the tool looks for the whole name followed by '.json'"]
    if ".json" in path.stem:
        return [f"{path.name!r} has '.json' in its name: the tool drops it and looks for another file"]
    return []


def keys(pairs):
    names = [key for key, _ in pairs]
    found = [f"{key} is missing: its place stays empty" for key in english() if key not in names]
    found += [f"{key} is no key: a stored value of that name would be looked up as its text"
              for key in dict.fromkeys(names) if key not in english()]
    return found + [f"{key} is there {names.count(key)} times: only the last one counts"
                    for key in dict.fromkeys(names) if names.count(key) > 1]


def value(key, text):
    if not isinstance(text, str):
        kind = {list: "a list", Pairs: "an object", type(None): "null", bool: "true or false"}.get(type(text), "a number")
        return [f"{key} is {kind} and not a text: its place stays empty"]
    if not text:
        return [f"{key} is empty: its place stays empty, and a list item without a text is found by no stored value"]
    return []


def stored(texts):
    """Texts that the tool reads back for what they are."""
    found = []
    if texts.get("OperationSecond", "s") != "s":
        found.append(f"OperationSecond is {texts['OperationSecond']!r} and not 's': a stored valve closing time is looked up with"
                     " 's' behind its number, so each one would show as 60 seconds, and be stored so while the section is open")
    for key in SUFFIXES:
        if re.search(r"\d", texts.get(key, "")):
            found.append(f"{key} holds a digit: it stands right behind a number and would change it")
    for key, what in PLACEHOLDERS.items():
        if re.fullmatch(r"\s*[+-]?\d+\s*", texts.get(key, "")):
            found.append(f"{key} is a number: in its list of numbers it stands for no {what} chosen")
    for number in range(5):
        text = texts.get(f"STEP{number}", str(number))
        if re.findall(r"\d+", text) != [str(number)]:
            found.append(f"STEP{number} doesn't hold the number {number} and no other: its reader would take it for another step")
    return found


def equal(texts):
    """Keys that share a text: a search for it ends at the first of them."""
    sharers = {}
    for key in sorted(texts):  # as the tool searches: by code, so A-Z, then _, then a-z
        sharers.setdefault(texts[key], []).append(key)
    found = []
    for text, names in sharers.items():
        if len(names) > 1 and set(names) not in MAY_BE_EQUAL:
            found.append(f"{' and '.join(names)} have the same text {text!r}: {consequence(names)}")
    return found


def consequence(names):
    first = names[0]
    for control, items in STORED_BY_KEY.items():
        wrong = [key for key in names[1:] if key in items]
        if wrong:
            return f"choosing it for {wrong[0]} in {control} would store {first!r}"
    for control, items in STORED_BY_TEXT.items():
        both = [key for key in items if key in names]
        if len(both) > 1:
            return f"in {control} the choice {both[1]} would be taken for {both[0]}"
    for control, items in SHOWN_TOGETHER.items():
        if len([key for key in items if key in names]) > 1:
            return f"nobody could tell the items of {control} apart"
    return f"the language editor finds rows by their text, so an edit of {names[-1]} would go to {first}"


def shown(key, text):
    """What wouldn't look right in the place of the key."""
    kind = places()[key]
    found = []
    if any(unicodedata.category(letter) == "Cc" and letter != "\n" for letter in text):
        found.append(f"{key} holds a tab or another control character")
    bare = text[1:] if kind == "suffix" and text.startswith(" ") else text
    if bare != bare.strip() or "  " in bare:
        found.append(f"{key} has a blank at an end or two in a row: nobody would see it")
    return found + fits(key, kind, text)


def fits(key, kind, text):
    width, count = FITS[kind]
    lines = [line.strip() for line in text.split("\n")]
    if len(lines) > count:
        return [f"{key} has {len(lines)} lines: there is room for {count}"]
    parts = text.split() if kind == "dip" else lines
    limit = LONGEST_DIP_WORD if kind == "dip" else width
    found = [f"{key}: {part!r} has {len(part)} characters and would be cut off: there is room for {limit}"
             for part in parts if len(part) > limit]
    if kind == "dip" and len(text) > width:
        found.append(f"{key} has {len(text)} characters: there is room for {width}")
    return found


def form(path, texts, sound):
    found = [f"{key} is {sound[key]!r}: it is a name and stays {text!r}"
             for key, text in english().items() if key in UNTRANSLATED and sound.get(key, text) != text]
    if path.name != unicodedata.normalize("NFC", path.name):
        found.append("the file's name has letters and accents apart (not NFC)")
    if any(text != unicodedata.normalize("NFC", text) for text in sound.values()):
        found.append("a text has letters and accents apart (not NFC)")
    if not found and list(texts) == list(english()) and path.read_bytes() != rendered(texts):
        found.append("isn't in the form of English.json: UTF-8 without byte order mark, CR LF, two blanks, a pair a line")
    if set(texts) == set(english()) and list(texts) != list(english()):
        found.append("the keys are in another order than in English.json")
    return found


def rendered(texts):
    """The bytes of a delivered file."""
    def quoted(text):
        return json.dumps(text, ensure_ascii=False)
    pairs = ",\r\n".join(f"  {quoted(key)}: {quoted(text)}" for key, text in texts.items())
    return f"{{\r\n{pairs}\r\n}}\r\n".encode()

#!/usr/bin/env python3
"""Checks the pictures: each that is asked for is there, each that is there is asked for and is what its drawing gives."""
import re
import struct
import subprocess
import tempfile
import zlib
from pathlib import Path

from tree import ROOT, finish, own_files

IMAGES = ROOT / "resources/images"
SOURCES = ("app/*", "document/*", "languages/*", "pages/*", "rules/*", "widgets/*", "forms/*", "resources/style/*")
ASKED = re.compile(r":/images/([\w%.]+)")
PLACEHOLDER = re.compile(r"%\d")  # of QString::arg

# Another release of the renderer may round an edge otherwise: levels of 255.
TOLERANCE = 8

CHANNELS = {0: 1, 2: 3, 4: 2, 6: 4}  # of a PNG's colour types


def check_names():
    """A name with a placeholder stands for a family: at least one picture of it is there."""
    there = {path.name for path in IMAGES.iterdir()}
    unused = set(there)
    for path in own_files(*SOURCES):
        for name in sorted(set(ASKED.findall((ROOT / path).read_text(encoding="utf-8")))):
            pattern = re.compile(r"\w+".join(map(re.escape, PLACEHOLDER.split(name))) + "$")
            matching = {picture for picture in there if pattern.match(picture)}
            if not matching:
                yield f"{path}: no picture {name}"
            unused -= matching
    yield from (f"nothing uses {name}" for name in sorted(unused))


def png_pixels(data):
    """Width, height and RGBA bytes; of a kind that the renderer doesn't write, the file as it is."""
    width, height, bits, colour, _, _, interlaced = struct.unpack(">IIBBBBB", data[16:29])
    if bits != 8 or colour not in CHANNELS or interlaced:
        return width, height, data
    channels = CHANNELS[colour]
    packed, at = b"", 8
    while at < len(data):
        length, kind = struct.unpack(">I4s", data[at:at + 8])
        packed += data[at + 8:at + 8 + length] if kind == b"IDAT" else b""
        at += length + 12
    raw, stride = zlib.decompress(packed), width * channels
    above, pixels = bytearray(stride), bytearray()
    for row in range(height):
        start = row * (stride + 1)
        above = unfilter(raw[start], bytearray(raw[start + 1:start + 1 + stride]), above, channels)
        for at in range(0, stride, channels):
            pixel = above[at:at + channels]
            alpha = pixel[-1] if channels in (2, 4) else 255
            colours = pixel[:3] if channels >= 3 else pixel[:1] * 3
            # What is transparent has no colour.
            pixels += bytes(level * alpha // 255 for level in colours) + bytes([alpha])
    return width, height, pixels


def unfilter(kind, line, above, step):
    for at, value in enumerate(line):
        left, up = line[at - step] if at >= step else 0, above[at]
        corner = above[at - step] if at >= step else 0
        guess = left + up - corner
        nearest = min((left, up, corner), key=lambda level: abs(guess - level))
        line[at] = (value + (0, left, up, (left + up) // 2, nearest)[kind]) & 255
    return line


def frames(data):
    """What an image file holds: a PNG is one frame; an icon has frames of raw pixels and PNG frames."""
    if data[:4] == b"\x89PNG":
        return [png_pixels(data)]
    count, found = struct.unpack("<H", data[4:6])[0], []
    for index in range(count):
        length, offset = struct.unpack("<II", data[6 + 16 * index + 8:6 + 16 * index + 16])
        frame = data[offset:offset + length]
        found.append(png_pixels(frame) if frame[:4] == b"\x89PNG" else (length, 1, frame))
    return found


def alike(first, second):
    if first == second:
        return True
    ours, others = frames(first), frames(second)
    return len(ours) == len(others) and all(
        one[:2] == other[:2] and len(one[2]) == len(other[2])
        and all(abs(a - b) <= TOLERANCE for a, b in zip(one[2], other[2])) for one, other in zip(ours, others))


def check_drawings():
    with tempfile.TemporaryDirectory() as folder:
        done = subprocess.run([ROOT / "scripts/images", folder], capture_output=True, text=True, check=False)
        if done.returncode:
            yield f"scripts/images fails: {done.stdout}{done.stderr}".rstrip()
            return
        rendered = {path.name: path for path in Path(folder).iterdir()}
        for path in sorted(IMAGES.iterdir()):
            if path.name not in rendered:
                yield f"scripts/images doesn't make {path.name}"
            elif not alike(path.read_bytes(), rendered.pop(path.name).read_bytes()):
                yield f"{path.name} differs from its drawing: run scripts/images"
        yield from (f"{name} is missing: run scripts/images" for name in sorted(rendered))


finish("images", [*check_names(), *check_drawings()])

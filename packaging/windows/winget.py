#!/usr/bin/env python3
"""Writes the manifests with which winget finds an installer, into a zip beside it. Usage: winget.py INSTALLER VERSION HOMEPAGE

A manifest that winget/schema.json doesn't allow ends it."""
import hashlib
import json
import os
import re
import sys
import time
import zipfile
from pathlib import Path

import jsonschema
import yaml

IDENTIFIER = "Calora.Configurator"
TEMPLATES = Path(__file__).with_name("winget")


def main(installer, version, homepage):
    installer = Path(installer)
    stamp = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))
    values = {"identifier": IDENTIFIER, "version": version, "homepage": homepage, "file": installer.name,
              "date": time.strftime("%Y-%m-%d", stamp), "sha256": hashlib.sha256(installer.read_bytes()).hexdigest().upper()}
    schema = json.loads((TEMPLATES / "schema.json").read_text(encoding="utf-8"))
    name = re.sub("-setup$", "-winget.zip", installer.stem)
    with zipfile.ZipFile(installer.with_name(name), "w", zipfile.ZIP_DEFLATED) as target:
        for template in sorted(TEMPLATES.glob("*.yaml.in")):
            text = re.sub("@(.*?)@", lambda match: values[match[1]], template.read_text(encoding="utf-8"))
            jsonschema.Draft7Validator(schema).validate(yaml.safe_load(text))
            part = template.name.removesuffix(".in")
            entry = zipfile.ZipInfo(IDENTIFIER + ("." if part != "version.yaml" else "") + part.removeprefix("version"), stamp[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = 0o100644 << 16
            target.writestr(entry, text)


main(*sys.argv[1:])

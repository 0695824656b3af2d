#!/usr/bin/env python3
"""Writes the parts list of a release in CycloneDX, version 1.5. Usage: sbom.py FOLDER VERSION TARGET.json

FOLDER has the packages. What the archives contain, their own licences/README.txt tells: packaging/licences.py wrote it from
Debian's package data. What the Debian package needs besides, its control file tells. A list that the schema of
packaging/parts doesn't allow ends it."""
import hashlib
import json
import os
import re
import subprocess
import sys
import tarfile
import time
import uuid
import zipfile
from pathlib import Path

import jsonschema

SCHEMAS = Path(__file__).resolve().parents[2] / "packaging/parts"
PACKAGES = (".gz", ".deb", ".zip", ".exe")
ENTRY = re.compile(r"^(\S+) (\S+)\n    files:    (.*)\n    source:   (\S+) (\S+)\n    licences: (.*)$", re.M)


def licences(package):
    """The text of licences/README.txt in an archive, empty if there is none."""
    if package.name.endswith(".tar.gz"):
        with tarfile.open(package) as archive:
            name = next(name for name in archive.getnames() if name.endswith("/licences/README.txt"))
            return archive.extractfile(name).read().decode()
    if package.suffix == ".zip":
        with zipfile.ZipFile(package) as archive:
            return "".join(archive.read(name).decode() for name in archive.namelist() if name.endswith("/licences/README.txt"))
    return ""


def part(match):
    name, version, files, source, source_version, names = match.groups()
    return {
        "type": "library", "bom-ref": f"deb:{name}@{version}", "name": name, "version": version, "supplier": {"name": "Debian"},
        "licenses": [{"license": {"name": licence}} for licence in names.split("; ")],
        "purl": f"pkg:deb/debian/{name}@{version.replace(':', '%3A').replace('+', '%2B')}?distro=bookworm",
        "properties": [{"name": "files", "value": files}, {"name": "source", "value": f"{source} {source_version}"}],
    }


def control(package, field):
    return subprocess.run(["dpkg-deb", "-f", package, field], check=True, capture_output=True, text=True).stdout.strip()


def delivered(package):
    content = package.read_bytes()
    entry = {"type": "file", "bom-ref": package.name, "name": package.name,
             "hashes": [{"alg": "SHA-256", "content": hashlib.sha256(content).hexdigest()}]}
    if package.suffix == ".deb":
        entry["properties"] = [{"name": "depends", "value": name} for name in control(package, "Depends").split(", ")]
    return entry


def document(folder, version):
    packages = sorted(path for path in folder.iterdir() if path.suffix in PACKAGES)
    parts, needs = {}, []
    for package in packages:
        found = [part(match) for match in ENTRY.finditer(licences(package))]
        parts.update({entry["bom-ref"]: entry for entry in found})
        needs.append({"ref": package.name, "dependsOn": sorted(entry["bom-ref"] for entry in found)})
        if package.name.endswith("-setup.exe"):  # holds what the zip of the same name holds
            needs[-1]["dependsOn"] = [package.name.replace("-setup.exe", ".zip")]
    files = [delivered(package) for package in packages]
    stamp = time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"])))
    return {
        "bomFormat": "CycloneDX", "specVersion": "1.5", "version": 1,
        "serialNumber": uuid.uuid5(uuid.NAMESPACE_URL, json.dumps(files)).urn,
        "metadata": {"timestamp": stamp, "component": {
            "type": "application", "bom-ref": "calora-configurator", "name": "calora-configurator", "version": version,
            "licenses": [{"license": {"name": "proprietary"}}]}},
        "components": files + [parts[ref] for ref in sorted(parts)],
        "dependencies": [{"ref": "calora-configurator", "dependsOn": [package.name for package in packages]}, *needs],
    }


def no_further_items(_validator, further, instance, schema):
    """Debian's own sorts the items for its message, which objects don't let it."""
    if further is False and isinstance(schema.get("items"), list) and len(instance) > len(schema["items"]):
        yield jsonschema.ValidationError(f"{len(instance)} items are too many")


def check(made):
    schemas = {name: json.loads((SCHEMAS / f"{name}.schema.json").read_text(encoding="utf-8"))
               for name in ("bom-1.5", "spdx", "jsf-0.82")}
    store = {schema["$id"]: schema for schema in schemas.values()}
    resolver = jsonschema.RefResolver.from_schema(schemas["bom-1.5"], store=store)
    validator = jsonschema.validators.extend(jsonschema.Draft7Validator, {"additionalItems": no_further_items})
    validator(schemas["bom-1.5"], resolver=resolver).validate(made)


def main(folder, version, target):
    made = document(Path(folder), version)
    check(made)
    libraries = sum(component["type"] == "library" for component in made["components"])
    if not libraries:
        sys.exit("sbom: no archive tells what it contains")
    Path(target).write_text(json.dumps(made, indent=1, ensure_ascii=False) + "\n", encoding="utf-8")
    print(f"sbom: {libraries} parts", file=sys.stderr)


main(*sys.argv[1:])

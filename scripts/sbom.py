#!/usr/bin/env python3
"""Writes a list of what the programs are linked with, by version, as an SPDX 2.3 document (JSON) on the standard output:
sbom.py FOLDER-OF-PROGRAMS PROGRAM... Only what a program names itself is listed, not what its libraries need in turn. Needs
readelf, the dynamic loader's cache, and dpkg to know the packages; a library of no package stands under its own name."""
import datetime
import json
import os
import pathlib
import re
import subprocess
import sys


# Used by their headers: they are in the programs themselves.
COMPILED_IN = {"libhwy-dev": ("velara-studio", "velara-batch", "velara-batch-all")}


def said(*command):
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout


def linked(program):
    """The names of the libraries that a program asks for."""
    return re.findall(r"\(NEEDED\).*\[(.+?)\]", said("readelf", "-d", program))


def packageOf(path):
    """(name, version, architecture) of the Debian package that a file comes from, or None. Files under /lib may be known under /usr/lib."""
    for each in {path, os.path.realpath(path), "/usr" + path}:
        owner = said("dpkg-query", "-S", each).split(": ")[0].split(",")[0]
        if owner:
            return tuple(said("dpkg-query", "-W", "-f", "${Package} ${Version} ${Architecture}", owner).split())
    return None


def identifier(name):
    return "SPDXRef-" + re.sub(r"[^A-Za-z0-9.-]", "-", name)


def main():
    folder, programs = pathlib.Path(sys.argv[1]), sys.argv[2:]
    cached = re.findall(r"^\s(\S+) .*=> (\S+)$", said("/sbin/ldconfig", "-p"), re.MULTILINE)
    paths = dict(reversed(cached))  # of several the machine's own comes first
    version = re.search(r"VERSION ([\d.]+)", (pathlib.Path(__file__).parent.parent / "CMakeLists.txt").read_text().split("project(")[1])[1]
    packages, relationships, known = [], [], {}
    for program in programs:
        packages.append({"SPDXID": identifier(program), "name": program, "versionInfo": version,
                         "downloadLocation": "NOASSERTION", "filesAnalyzed": False, "primaryPackagePurpose": "APPLICATION"})
        relationships.append({"spdxElementId": "SPDXRef-DOCUMENT", "relationshipType": "DESCRIBES",
                              "relatedSpdxElement": identifier(program)})
        for library in linked(folder / program):
            if library not in known:
                known[library] = packageOf(paths[library]) if library in paths else None
                name, number, machine = known[library] or (library, "NOASSERTION", "")
                entry = {"SPDXID": identifier(library), "name": name, "versionInfo": number, "downloadLocation": "NOASSERTION",
                         "filesAnalyzed": False, "comment": library, "primaryPackagePurpose": "LIBRARY"}
                if known[library]:
                    entry["externalRefs"] = [{"referenceCategory": "PACKAGE-MANAGER", "referenceType": "purl",
                                              "referenceLocator": f"pkg:deb/debian/{name}@{number}?arch={machine}"}]
                packages.append(entry)
            relationships.append({"spdxElementId": identifier(program), "relationshipType": "DYNAMIC_LINK",
                                  "relatedSpdxElement": identifier(library)})
    for package, users in COMPILED_IN.items():
        packages.append({"SPDXID": identifier(package), "name": package, "downloadLocation": "NOASSERTION", "filesAnalyzed": False,
                         "versionInfo": said("dpkg-query", "-W", "-f", "${Version}", package) or "NOASSERTION",
                         "primaryPackagePurpose": "LIBRARY"})
        relationships += [{"spdxElementId": identifier(program), "relationshipType": "STATIC_LINK",
                           "relatedSpdxElement": identifier(package)} for program in programs if program in users]
    if not known:
        sys.exit("sbom.py: no program names a library")
    stamp = datetime.datetime.now(datetime.timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")
    json.dump({"spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT", "name": f"velara-studio-{version}",
               "documentNamespace": f"https://velara.example/sbom/{version}/{stamp}",
               "creationInfo": {"created": stamp, "creators": ["Tool: scripts/sbom.py"]},
               "packages": packages, "relationships": relationships}, sys.stdout, indent=1)
    print()


main()

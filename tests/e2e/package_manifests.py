#!/usr/bin/env python3
"""The winget and Scoop manifests that scripts/package writes: each parses, is of its kind and
schema, and names the package file it was made beside, by its download address and its SHA-256.
Usage: package_manifests.py WIN_BUILD_TREE WORK_FOLDER"""
import hashlib
import json
import pathlib
import subprocess
import sys
import zipfile

import yaml

root = pathlib.Path(__file__).resolve().parents[2]
build, work = sys.argv[1], pathlib.Path(sys.argv[2])
version = "1.2.3"
subprocess.run([root / "scripts/package", "--from", build, "--version", version, "--out", work],
               check=True, stdout=subprocess.DEVNULL)

conf = dict(line.split("=", 1) for line in (root / "packaging/release.conf").read_text().splitlines()
            if line and not line.startswith("#"))
failures = []


def check(what, actual, expected):
    if actual != expected:
        failures.append(f"{what}: {actual!r}, expected {expected!r}")


def url(file):
    return conf["download_url"].replace("{version}", version).replace("{file}", file)


def sha256(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


winget = work / f"winget/manifests/v/Veltaro/Quorin/{version}"
manifests = {kind: yaml.safe_load((winget / f"Veltaro.Quorin{suffix}.yaml").read_text())
             for kind, suffix in [("version", ""), ("installer", ".installer"),
                                  ("defaultLocale", ".locale.en-US")]}
for kind, manifest in manifests.items():
    check(f"{kind} ManifestType", manifest["ManifestType"], kind)
    check(f"{kind} ManifestVersion", manifest["ManifestVersion"], "1.6.0")
    check(f"{kind} PackageIdentifier", manifest["PackageIdentifier"], "Veltaro.Quorin")
    check(f"{kind} PackageVersion", manifest["PackageVersion"], version)
installer = manifests["installer"]
check("winget InstallerType and Scope", (installer["InstallerType"], installer["Scope"]),
      ("msi", "user"))
scoop = json.loads((work / "quorin.json").read_text())
check("Scoop version", scoop["version"], version)
package = scoop["architecture"]["64bit"]
with zipfile.ZipFile(work / f"quorin-{version}-win64.zip") as archive:
    check("Scoop bin in the zip", f"{package['extract_dir']}/{scoop['bin']}" in archive.namelist(),
          True)
check("Scoop shortcut", scoop["shortcuts"], [[scoop["bin"], "Quorin"]])

# Each manifest's download, named by address and hash.
for what, address, digest, file in [
        ("winget", installer["Installers"][0]["InstallerUrl"],
         installer["Installers"][0]["InstallerSha256"].lower(), f"quorin-{version}-win64.msi"),
        ("Scoop", package["url"], package["hash"], f"quorin-{version}-win64.zip")]:
    check(f"{what} address", address, url(file))
    check(f"{what} SHA-256", digest, sha256(work / file))

for failure in failures:
    print("FAIL:", failure, file=sys.stderr)
sys.exit(1 if failures else 0)

"""Where the tests find things."""

import json
import os
import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
SITE = ROOT / "build" / "site"
TOOL = ROOT / "build" / "release" / "bin" / "tintvert"
LIBRARY = ("-I" + str(ROOT / "include"), "-L" + str(ROOT / "build/release/lib"), "-Wl,-rpath," + str(ROOT / "build/release/lib"))


def ask(*arguments):
    return json.loads(subprocess.run([TOOL, *arguments, "--json"], check=True, capture_output=True).stdout)


def layouts():
    return ask("layouts")["layouts"]


def compiler():
    return os.environ.get("CXX", "g++")

"""The data of the site: the catalogue from the tool's JSON, and the comparisons with peers from docs/peers.md."""

import json
import re
import subprocess
from dataclasses import dataclass

EXAMPLE = "1920x1080"


@dataclass
class Row:
    """A row of a table in docs/ that names routines."""

    section: str
    cells: list


def ask(tool, *arguments):
    return json.loads(subprocess.run([tool, *arguments, "--json"], check=True, capture_output=True).stdout)


def routines(tool):
    """In the order of the catalogue; `call` is the output of `explain` for a frame of the example's size."""
    names = [routine["name"] for routine in ask(tool, "list")["routines"]]
    return [ask(tool, "show", name)["routine"] | {"call": ask(tool, "explain", name, "--size", EXAMPLE)} for name in names]


def layouts(tool):
    return ask(tool, "layouts")["layouts"]


def chapters(all_routines):
    names = {}
    for routine in all_routines:
        names.setdefault(routine["chapter"], []).append(routine)
    return names


def table_rows(text):
    """The rows of the tables below the headings of a page."""
    section = ""
    for line in text.splitlines():
        if line.startswith("## "):
            section = line[3:]
        elif line.startswith("| ") and not line.startswith("| Routines |"):
            yield Row(section, [cell.strip() for cell in line.strip("|").split("|")])


def peers(text, known):
    """Rows by routine; a row without names continues the row above."""
    result, last = {}, []
    for row in table_rows(text):
        if row.cells[0]:
            last = [name for name in re.findall(r"`([^`]+)`", row.cells[0]) if name in known]
        for name in last:
            result.setdefault(name, []).append(row)
    return result

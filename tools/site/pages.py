#!/usr/bin/env python3
"""Writes the pages of the site, in Markdown, from docs/ and the tool's JSON.

pages.py TOOL REPOSITORY OUTPUT
"""

import pathlib
import shutil
import sys
from html import escape

import drawing
import facts
from markdown import Links, documentation, from_root

CHAPTERS = {
    "frame": "Frame",
    "ycbcr8": "8-bit YCbCr",
    "decode": "Decoding",
    "ycbcr10": "10-bit YCbCr",
    "rgb": "RGB",
    "field": "Fields and frames",
    "hdr": "HDR",
}

# The routines by the length that a line of v210 has for them when no stride is given; tests/site/ calls them.
V210_LINES = {
    "of48": (
        "tntvt_rgb32_v210",
        "tntvt_YCbCr10Packed_to_v210",
        "tntvt_v210_frame_to_rtp_4175",
        "tntvt_yuv422_10_rgb24",
        "tntvt_yuv422_10_rgb32",
    ),
    "of64": ("tntvt_2vuy_v210", "tntvt_yuv422_8_yuv422_10"),
    "unrounded": ("tntvt_v210_2vuy", "tntvt_yuv422_10_yuv422_8"),
}

BY_THE_TOOL = """, as `tintvert layouts` prints it. This page is made by
`tintvert layouts --markdown`."""
BY_THE_SITE = """, drawn from the catalogue. Point at a bit to see what it
is; in the [explorer](explorer.md) touch it or use the arrow keys."""

NAMES = """# Names elsewhere

The layouts by the names that they have in other software. Where there is no name the cell is empty.

| Layout | FFmpeg | GStreamer | FourCC | libyuv | What it is |
|---|---|---|---|---|---|
"""


class Site:
    def __init__(self, tool, repository, output):
        self.repository, self.output = repository, output
        self.routines, self.layouts = facts.routines(tool), facts.layouts(tool)
        self.drawings = {layout["name"]: drawing.draw(layout) for layout in self.layouts}
        known = {routine["name"] for routine in self.routines}
        self.peers = facts.peers(self.doc("peers"), known)
        self.names = known

    def doc(self, name):
        return (self.repository / "docs" / f"{name}.md").read_text()

    def links(self, root=""):
        return Links(self.names, [layout["name"] for layout in self.layouts], root)

    def write(self, name, text):
        path = self.output / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    # The pages of docs/, and those in the root of the repository.

    def copy_docs(self):
        for page in (self.repository / "docs").iterdir():
            if page.suffix == ".md":
                self.write(page.name, self.links().page(page.read_text()))
            elif page.is_file():
                shutil.copy(page, self.output)
        self.write("contributing.md", from_root((self.repository / "CONTRIBUTING.md").read_text()))
        self.write("changes.md", from_root((self.repository / "CHANGELOG.md").read_text()))

    # What is made from the catalogue.

    def write_layouts(self):
        links = self.links()
        text = self.doc("layouts").split("\n## ")[0].strip()
        text = links.page(text.replace(BY_THE_TOOL, BY_THE_SITE))
        for layout in self.layouts:
            name = layout["name"]
            text += f"\n\n({anchor(name)})=\n## {name}\n\n{links.mark(layout['summary'], name)}.\n\n"
            text += self.layout_body(layout, links) + "\n\n" + self.users(name, links)
        self.write("layouts.md", text)

    def layout_body(self, layout, links):
        drawn = self.drawings[layout["name"]]
        if not drawn:
            return f"```text\n{layout['picture']}```"
        note = links.mark(layout["note"]) + "\n\n" if layout["note"] else ""
        return f'{drawn}\n\n{note}<p><a href="explorer.html#{anchor(layout["name"])}">Look at it bit by bit</a></p>'

    def users(self, layout, links):
        lines = []
        for verb, side in (("Read by", "reads"), ("Written by", "writes")):
            names = [links.code(routine["name"]) for routine in self.routines if routine[side] == layout]
            if names:
                lines.append(f"{verb} {', '.join(names)}.")
        if not lines:
            return ""
        return "<details><summary>Routines</summary>\n\n" + "\n\n".join(lines) + "\n\n</details>"

    def write_names(self):
        links = self.links()
        text = NAMES
        for layout in self.layouts:
            others = " | ".join(layout[who] for who in ("ffmpeg", "gstreamer", "fourcc", "libyuv"))
            text += f"| {links.code(layout['name'])} | {others} | {links.mark(layout['summary'], layout['name'])} |\n"
        self.write("names.md", text)

    def write_explorer(self):
        drawn = [layout for layout in self.layouts if self.drawings[layout["name"]]]
        options = "".join(f'<option value="{anchor(layout["name"])}">{layout["name"]}</option>' for layout in drawn)
        choices = "".join(
            f'<section class="choice" id="{anchor(layout["name"])}"><p><strong>{layout["name"]}</strong>: '
            f'{escape(layout["summary"])}.</p>{self.drawings[layout["name"]]}</section>'
            for layout in drawn
        )
        text = page("explorer").replace("@options@", options).replace("@choices@", choices)
        presets = "".join(f'<button type="button">{width}</button>' for width in (100, 720, 1280, 1920, 2048, 3840))
        text = text.replace("@presets@", presets)
        for kind, names in V210_LINES.items():
            text = text.replace(f"@{kind}@", ", ".join(self.links().code(name) for name in names))
        self.write("explorer.md", text)

    def write_routines(self):
        chapters = facts.chapters(self.routines)
        index = "# Routines\n\n" f"{len(self.routines)} routines in {len(chapters)} chapters.\n\n"
        index += "| Chapter | Header | Routines |\n|---|---|---|\n"
        for chapter, own in chapters.items():
            index += f"| [{CHAPTERS.get(chapter, chapter)}]({chapter}.md) | `tintvert/{chapter}.h` | {len(own)} |\n"
            self.write(f"routines/{chapter}.md", self.chapter_page(chapter, own))
            for routine in own:
                self.write(f"routines/{routine['name']}.md", self.routine_page(routine))
        self.write("routines/index.md", index + toctree(chapters))

    def chapter_page(self, chapter, own):
        links = self.links("../")
        text = f"# {CHAPTERS.get(chapter, chapter)}\n\n`#include <tintvert/{chapter}.h>`\n\n"
        text += "| Routine | Reads | Writes | What it does |\n|---|---|---|---|\n"
        for routine in own:
            sides = [links.code(routine[side]) if routine[side] else "" for side in ("reads", "writes")]
            text += f"| {links.code(routine['name'])} | {' | '.join(sides)} | {links.mark(routine['summary'])} |\n"
        return text + toctree(routine["name"] for routine in own)

    def routine_page(self, routine):
        name, links = routine["name"], self.links("../")
        parts = [
            f"# `{name}`",
            links.mark(routine["summary"], name),
            f"The same as {links.code(routine['alias_of'])}." if routine["alias_of"] else "",
            f"```c\n{wrapped(routine['prototype'])}\n```",
            self.sides(routine),
            documentation(routine["documentation"], links, name),
            companions(routine),
            arguments(routine),
            extents(routine),
            quirks(routine, links),
            self.peers_of(routine, links),
            example(routine),
        ]
        return "\n\n".join(filter(None, parts)) + "\n"

    def sides(self, routine):
        """What is read and what is written, side by side."""
        sides = ""
        for side in ("reads", "writes"):
            name = routine[side]
            if name in self.drawings:
                link = f'<a href="../layouts.html#{anchor(name)}"><code>{name}</code></a>'
                sides += f'<div class="side"><p>{side} {link}</p>{self.drawings[name]}</div>'
            elif name:
                sides += f'<div class="side"><p>{side} <code>{name}</code></p></div>'
        return f'<div class="sides">{sides}</div>' if sides else ""

    def peers_of(self, routine, links):
        rows = self.peers.get(routine["name"], [])
        if not rows:
            return "## Peers\n\nNot compared with other software; [Peers](../peers.md) lists what is."
        lines = "".join(
            f"| {row.section} | {row.cells[1]} | {links.mark(row.cells[2], routine['name'])} |\n" for row in rows
        )
        text = f"## Peers\n\n| | Peer | What was compared |\n|---|---|---|\n{lines}\n[How it was measured](../peers.md)"
        peer = routine["call"]["peer"]
        return text + f"\n\n```sh\n{peer['command']}\n```" if peer else text

    def write_index(self):
        readme = (self.repository / "README.md").read_text()
        introduction = readme.split("\n", 2)[2].split("\n\n```")[0].strip()
        text = page("index").replace("@introduction@", introduction)
        text = text.replace("@routines@", str(len(self.routines))).replace("@layouts@", str(len(self.layouts)))
        placed = text.splitlines()
        rest = sorted(other.stem for other in self.output.glob("*.md") if other.stem not in placed)
        self.write("index.md", text.replace("@rest@", "\n".join(rest)))


def page(name):
    return (pathlib.Path(__file__).parent / "pages" / f"{name}.md").read_text()


def anchor(layout):
    return f"layout-{layout.lower()}".replace("_", "-")


def toctree(names):
    return "\n```{toctree}\n:hidden:\n\n" + "\n".join(names) + "\n```\n"


def wrapped(prototype):
    """One argument a line where they do not fit into one."""
    if len(prototype) < 90:
        return prototype
    head, rest = prototype.split("(", 1)
    return f"{head}(\n    " + ",\n    ".join(rest.split(", "))


def arguments(routine):
    rows = [f"| `{one['name']}` | {one['meaning']} |" for one in routine["arguments"] if one["name"] != "ignored"]
    return "## Arguments\n\n| | |\n|---|---|\n" + "\n".join(rows) if rows else ""


def companions(routine):
    names = ", ".join(f"`{name}`" for name in routine["companions"])
    return f"It calls {names} of the [companions](../architecture.md#the-companions)." if names else ""


def span(bounds):
    return f"{bounds[0]:,} to {bounds[1] - 1:,}".replace(",", " ") if bounds else ""


def extents(routine):
    """The bytes of each buffer in the example."""
    call = routine["call"]
    title = f"## Extents of a {facts.EXAMPLE.replace('x', ' x ')} frame\n\n"
    buffers = [one for one in call["buffers"] if one["read"] or one["written"]]
    if not buffers:
        return title + "It accesses no buffer of the caller."
    numbers = ", ".join(f"`{name}` {value}" for name, value in call["arguments"].items())
    given = f", with {numbers}" if numbers else ""
    rows = "".join(
        f"| `{one['name']}` | {span(one['picture'])} | {span(one['read'])} | {span(one['written'])} |\n"
        for one in buffers
    )
    return (
        f"{title}First and last byte, counted from the pointer{given}.\n\n"
        f"| | Picture | Read | Written |\n|---|---|---|---|\n{rows}"
    )


def quirks(routine, links):
    rows = routine["call"]["quirks"]
    lines = [f"- `{row['name']}`: {links.mark(row['what'], routine['name'])}" for row in rows]
    title = "## Quirks\n\n"
    return title + "\n".join(lines) + "\n\n[What these names are](../quirks.md)" if lines else ""


def example(routine):
    return f"## As a program\n\n```c\n{routine['call']['call']}```"


def main():
    tool, repository, output = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
    shutil.rmtree(output, ignore_errors=True)
    output.mkdir(parents=True)
    site = Site(tool, repository, output)
    site.copy_docs()
    site.write_layouts()
    site.write_names()
    site.write_explorer()
    site.write_routines()
    site.write_index()


if __name__ == "__main__":
    main()

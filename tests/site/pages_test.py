"""The pages have the contents of the catalogue, the headers and docs/, and no link is broken."""

import pathlib
import re
import subprocess
import tempfile
import unittest

from links import Folder
from place import ROOT, SITE, ask, layouts


def plain(text):
    return " ".join(text.replace("`", "").split())


class Links(unittest.TestCase):
    def test_the_checker_sees_what_is_broken(self):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "index.html").write_text(
                '<a href="two.html#here">whole</a><a href="two.html#there">no such place</a><a href="no.html">no page</a>'
                '<a href="/two.html">from the root</a><a href="https://example.org/">elsewhere</a>'
                '<script src="https://example.org/x.js"></script><link rel="stylesheet" href="a.css"><img src="no.png">'
            )
            (folder / "two.html").write_text('<p id="here"></p>')
            (folder / "three.html").write_text("<p>alone</p>")
            (folder / "a.css").write_text("@import url(/no.css); p { background: url('https://example.org/p.png') }")
            pages = Folder(folder)
            found = [link for _, link in pages.broken()]
            bad = ["two.html#there", "no.html", "/two.html", "https://example.org/x.js", "no.png", "/no.css"]
            self.assertEqual(sorted(found), sorted(bad + ["https://example.org/p.png"]))
            self.assertEqual(pages.unreached(), ["three.html"])

    def test_all_are_whole_and_nothing_is_fetched_from_elsewhere(self):
        self.assertEqual(Folder(SITE).broken(), [])

    def test_names_in_the_docs_lead_to_their_pages(self):
        page = (SITE / "quirks.html").read_text()
        self.assertIn('href="routines/tntvt_v210_2vuy.html"', page)

    def test_every_page_is_reached(self):
        self.assertEqual(Folder(SITE).unreached(), ["search.html"])


class Routines(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Folder(SITE)
        cls.routines = [ask("show", routine["name"])["routine"] for routine in ask("list")["routines"]]

    def text(self, name):
        return self.folder.pages[SITE / "routines" / f"{name}.html"].text()

    def test_each_page_says_what_the_header_says(self):
        for routine in self.routines:
            for paragraph in routine["documentation"].split("\n\n"):
                self.assertIn(plain(paragraph), plain(self.text(routine["name"])), routine["name"])

    def test_each_page_holds_arguments_and_extents(self):
        for routine in self.routines:
            text = self.text(routine["name"])
            for argument in routine["arguments"]:
                if argument["name"] != "ignored":
                    self.assertIn(f"{argument['name']} {argument['meaning']}", text)
            for buffer in ask("explain", routine["name"], "--size", "1920x1080")["buffers"]:
                for side in filter(None, (buffer["read"], buffer["written"])):
                    self.assertIn(f"{side[0]:,} to {side[1] - 1:,}".replace(",", " "), text, routine["name"])

    def test_every_quirk_is_on_a_page_of_a_routine(self):
        pages = " ".join(self.text(routine["name"]) for routine in self.routines)
        for name in re.findall(r"^\| (keeps_\w+)", (ROOT / "docs/quirks.md").read_text(), re.MULTILINE):
            if name != "keeps_line_feed_before_carriage_return":  # of the failure report, which is no routine
                self.assertIn(name, pages)
        self.assertIn("keeps_double_length_lines", self.text("tntvt_v210_2vuy"))
        self.assertIn("keeps_place_in_line", self.text("tntvt_v210_frame_to_rtp_4175"))
        self.assertNotIn("keeps_", self.text("tntvt_rgba32_argb32"))

    def test_second_names_and_companions(self):
        self.assertIn("The same as tntvt_yuv2_2vuy.", self.text("tntvt_yuvu_2vuy"))
        self.assertNotIn("The same as", self.text("tntvt_yuv2_2vuy"))
        self.assertIn("It calls CopyMemoryFast of the companions.", self.text("tntvt_copy_interleaved"))

    def test_peers(self):
        self.assertIn("Byte for byte GStreamer all samples", self.text("tntvt_2vuy_v210"))
        self.assertIn("Within one code zimg, truncated", self.text("argb_to_v210"))
        self.assertIn("Byte for byte FFmpeg all samples, after clamping", self.text("tntvt_YCbCr10Packed_to_v210"))
        self.assertIn("Not compared with other software", self.text("tntvt_deinterlace_rgb"))


class Layouts(unittest.TestCase):
    def test_each_has_a_picture_and_its_names(self):
        text = (SITE / "layouts.html").read_text()
        names = Folder(SITE).pages[SITE / "names.html"].text()
        for layout in layouts():
            own = text.split(f'id="layout-{layout["name"].lower()}"'.replace("_", "-"))[1].split("<h2>")[1]
            self.assertEqual(own.count("<svg"), len(layout["forms"]), layout["name"])
            row = " ".join(filter(None, (layout[who] for who in ("name", "ffmpeg", "gstreamer", "fourcc", "libyuv"))))
            self.assertIn(row, names)


class FirstConversion(unittest.TestCase):
    def test_its_commands_do_what_it_says(self):
        text = (ROOT / "docs/first-conversion.md").read_text()
        blocks = re.findall(r"```(\w+)\n(.*?)```", text, re.DOTALL)
        script = "set -euo pipefail\n"
        for language, block in blocks:
            script += block if language == "sh" else f"cat > build/first/first.c <<'END'\n{block}END\n"
        own = ROOT / "build/first/own.v210"
        own.unlink(missing_ok=True)
        result = subprocess.run(["bash", "-c", script], cwd=ROOT, capture_output=True, text=True)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(own.stat().st_size, 2560 * 540)


if __name__ == "__main__":
    unittest.main()

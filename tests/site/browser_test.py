"""The pages in headless Chromium: no console output, and the explorer shows what it should."""

import pathlib
import random
import re
import subprocess
import tempfile
import unittest

from selenium import webdriver
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.chrome.service import Service

from place import LIBRARY, SITE, compiler, layouts


def start():
    options = webdriver.ChromeOptions()
    for argument in ("--headless", "--no-sandbox", "--disable-gpu", "--window-size=1280,1000"):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    return webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)


class Browser(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.driver = start()
        cls.addClassCleanup(cls.driver.quit)

    def open(self, path):
        self.driver.get((SITE / path).as_uri() if isinstance(path, str) else path.as_uri())

    def find(self, selector):
        return self.driver.find_element(By.CSS_SELECTOR, selector)

    def console(self):
        return [entry["message"] for entry in self.driver.get_log("browser")]


class Console(Browser):
    def test_a_fault_would_be_seen(self):
        with tempfile.NamedTemporaryFile("w", suffix=".html") as page:
            page.write("<script>throw new Error('on purpose')</script><img src='missing.png'>")
            page.flush()
            self.open(pathlib.Path(page.name))
            messages = " ".join(self.console())
            self.assertIn("on purpose", messages)
            self.assertIn("missing.png", messages)

    def test_no_page_says_anything(self):
        for page in sorted(SITE.rglob("*.html")):
            self.open(page)
            self.assertEqual(self.console(), [], page)

    def test_no_page_is_wider_than_a_telephone(self):
        self.addCleanup(self.driver.execute_cdp_cmd, "Emulation.clearDeviceMetricsOverride", {})
        telephone = {"width": 360, "height": 740, "deviceScaleFactor": 2, "mobile": True}
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", telephone)
        pages = ("index", "explorer", "layouts", "names", "peers", "quirks", "routines/rgb", "routines/tntvt_v210_2vuy")
        for page in pages:
            self.open(page + ".html")
            self.assertEqual(self.driver.execute_script("return document.documentElement.scrollWidth"), 360, page)

    def test_search_finds_a_routine(self):
        self.open("index.html")
        self.find("input[name=q]").send_keys("tntvt_v210_2vuy", Keys.ENTER)
        self.driver.implicitly_wait(10)
        self.addCleanup(self.driver.implicitly_wait, 0)
        self.assertIn("tntvt_v210_2vuy", self.find("#search-results li a").text)


# All texts of the explorer for every bit of a layout: [section, plane, view, byte, bit of it, words, code].
ALL_BITS = """
const texts = [];
for (const section of document.querySelectorAll('.choice'))
  Array.from(section.querySelectorAll('.plane')).forEach((plane, p) => {
    for (const bit of plane.querySelectorAll('.bit')) {
      bit.dispatchEvent(new PointerEvent('pointerover', {bubbles: true}));
      const panel = document.getElementById('chosen-bit');
      texts.push([section.id, p, bit.dataset.view, Number(bit.dataset.b), Number(bit.dataset.k),
                 panel.querySelector('p').textContent, panel.querySelector('code').textContent]);
    }
  });
return texts;
"""


def sample_at(plane, byte, bit):
    """The sample that owns a bit of a byte, and which bit of it that is."""
    size = plane["word_bytes"]
    place = byte % size if plane["byte_order"] == "little" else size - 1 - byte % size
    for sample in plane["samples"]:
        i = place * 8 + bit - sample["low_bit"]
        if sample["word"] == byte // size and 0 <= i < sample["bits"]:
            return sample, i
    return None, None


def value_of(plane, sample, unit):
    """The sample in the bytes of a unit, as an unsigned number."""
    size = plane["word_bytes"]
    word = int.from_bytes(unit[sample["word"] * size : (sample["word"] + 1) * size], plane["byte_order"])
    return word >> sample["low_bit"] & ((1 << sample["bits"]) - 1)


class Explorer(Browser):
    def setUp(self):
        self.open("explorer.html")

    def choose(self, layout):
        self.find(f"#layout option[value=layout-{layout}]").click()

    def bit(self, byte, bit, view="memory"):
        return self.find(f'.chosen .bit[data-b="{byte}"][data-k="{bit}"][data-view={view}]')

    def description(self):
        return self.find("#chosen-bit").text

    def test_begins_with_v210_and_goes_where_a_link_says(self):
        self.assertEqual(self.find(".chosen").get_attribute("id"), "layout-v210")
        self.driver.get((SITE / "explorer.html").as_uri() + "#layout-rgb12")
        self.assertEqual([one.get_attribute("id") for one in self.driver.find_elements(By.CSS_SELECTOR, ".chosen")], ["layout-rgb12"])
        self.assertEqual(self.find("#layout").get_attribute("value"), "layout-rgb12")

    def test_choosing_shows_one_layout(self):
        self.choose("2vuy")
        shown = [one.get_attribute("id") for one in self.driver.find_elements(By.CSS_SELECTOR, ".choice") if one.is_displayed()]
        self.assertEqual(shown, ["layout-2vuy"])

    def test_the_pointer_over_a_bit_shows_its_sample(self):
        ActionChains(self.driver).move_to_element(self.bit(5, 0)).perform()
        self.assertEqual(
            self.description(),
            "Bit 0 of byte b5 is bit 8 of Y1: 10-bit luma of pixel 1, bits 0 to 9 of word 1.\nY1 = b[4] | (b[5] & 3) << 8",
        )
        self.assertEqual(len(self.driver.find_elements(By.CSS_SELECTOR, ".bit.on")), 20)  # ten bits, drawn twice
        self.assertEqual(len(self.driver.find_elements(By.CSS_SELECTOR, ".bit.at")), 2)
        ActionChains(self.driver).move_to_element(self.bit(3, 7, "word")).perform()
        self.assertEqual(self.description(), "Bit 7 of byte b3: unused.")

    def test_touch_and_keys(self):
        self.choose("2vuy")
        self.bit(1, 7).click()
        self.assertIn("bit 7 of Y0", self.description())
        self.find(".chosen svg").send_keys(Keys.ARROW_LEFT)
        self.assertIn("bit 0 of Cb: 8-bit Cb of pixels 0 and 1", self.description())

    def test_every_bit_of_every_layout(self):
        texts = {tuple(row[:5]): row[5:] for row in self.driver.execute_script(ALL_BITS)}
        rows = iter(self.driver.execute_script("return Array.from(document.querySelectorAll('.choice'), one => one.id)"))
        random.seed(210)
        expressions = []
        for layout in filter(lambda one: one["forms"], layouts()):
            section = next(rows)
            planes = [plane for form in layout["forms"] for plane in form["planes"]]
            for p, plane in enumerate(planes):
                for place in range(plane["unit_bytes"] * 8):
                    byte, bit = divmod(place, 8)
                    words, code = texts.pop((section, p, "memory", byte, bit))
                    self.check_words(words, byte, bit, plane)
                    if code:
                        expressions.append((code.split(" = ")[1], plane, sample_at(plane, byte, bit)[0]))
                    double = plane["word_bytes"] > 1 and plane["byte_order"] == "little"
                    if double:
                        self.assertEqual(texts.pop((section, p, "word", byte, bit)), [words, code])
        self.assertEqual(texts, {})
        self.check_values(expressions)

    def check_words(self, words, byte, bit, plane):
        sample, i = sample_at(plane, byte, bit)
        if sample is None:
            self.assertEqual(words, f"Bit {bit} of byte b{byte}: unused.")
            return
        pattern = rf"Bit {bit} of byte b{byte} is bit {i} of {sample['component']}\d?: {sample['bits']}-bit .*"
        self.assertRegex(words, pattern)
        self.assertEqual("two's complement" in words, sample["signed"])

    def check_values(self, expressions):
        units = [[random.randrange(256) for _ in range(16)] for _ in expressions]
        values = self.driver.execute_script(
            "return arguments[0].map((code, n) => Function('b', 'return ' + code)(arguments[1][n]))",
            [code for code, _, _ in expressions],
            units,
        )
        self.assertGreater(len(values), 1000)
        for (code, plane, sample), unit, value in zip(expressions, units, values):
            self.assertEqual(value, value_of(plane, sample, bytes(unit)), code)


ALL_WIDTHS = """
const slider = document.getElementById('width'), lengths = [];
for (let width = 1; width <= 4096; ++width) {
  slider.value = width;
  slider.dispatchEvent(new Event('input'));
  lengths.push(['of48', 'of64', 'unrounded'].map((id) => Number(document.querySelector(`#${id} output`).textContent)));
}
return lengths;
"""


class Lengths(Browser):
    def setUp(self):
        self.open("explorer.html")

    def lengths(self):
        return [int(self.find(f"#{one} output").text) for one in ("of48", "of64", "unrounded")]

    def bars(self):
        script = "return ['of48', 'of64', 'unrounded'].map(id => document.querySelector(`#${id} .track`).style.getPropertyValue('--length'))"
        return self.driver.execute_script(script)

    def test_the_slider_moves_numbers_and_bars(self):
        self.assertEqual(self.lengths(), [3456, 3456, 3413])
        before = self.bars()
        self.find("#width").send_keys(Keys.ARROW_RIGHT)
        self.assertEqual(self.lengths(), [3456, 3456, 3416])
        self.assertEqual(self.find("#width-number").get_attribute("value"), "1281")
        self.assertEqual(self.bars()[:2], before[:2])
        self.assertNotEqual(self.bars()[2], before[2])
        ActionChains(self.driver).drag_and_drop_by_offset(self.find("#width"), 150, 0).perform()
        self.assertNotEqual(self.find("#width-number").get_attribute("value"), "1281")

    def test_the_number_and_the_buttons_move_the_slider(self):
        number = self.find("#width-number")
        number.clear()
        number.send_keys("100", Keys.ENTER)
        self.assertEqual(self.find("#width").get_attribute("value"), "100")
        self.assertEqual(self.lengths(), [384, 320, 266])
        self.find(".presets button:nth-child(4)").click()
        self.assertEqual(self.lengths(), [5120, 5120, 5120])

    def test_the_numbers_are_those_of_the_library(self):
        kinds = {}
        for row in self.driver.find_elements(By.CSS_SELECTOR, "#line-lengths-of-v210 table tbody tr"):
            text, names = [cell.text for cell in row.find_elements(By.CSS_SELECTOR, "td")]
            kind = {"1": 0, "u": 1, "t": 2}[text[0]]
            kinds |= {name: kind for name in names.split(", ")}
        shown = self.driver.execute_script(ALL_WIDTHS)
        source = pathlib.Path(__file__).with_name("v210_lines.cpp")
        with tempfile.TemporaryDirectory() as folder:
            program = pathlib.Path(folder) / "v210_lines"
            subprocess.run([compiler(), "-std=c++20", "-O2", source, "-o", program, *LIBRARY, "-ltintvert"], check=True)
            lines = subprocess.run([program], check=True, capture_output=True, text=True).stdout
        called = set()
        for name, width, length in re.findall(r"(\w+) (\d+) (\d+)", lines):
            self.assertEqual(shown[int(width) - 1][kinds[name]], int(length), f"{name} at {width}")
            called.add(name)
        self.assertEqual(called, set(kinds))


if __name__ == "__main__":
    unittest.main()

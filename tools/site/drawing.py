"""A layout as SVG, from the samples in the tool's JSON: bits of little-endian words from the highest to the lowest,
and bytes in memory order. Every bit is a <rect> with data about its field, for explorer.js."""

from html import escape

CELL, HEIGHT, GAP, HEAD, LEFT = 15, 38, 8, 16, 54


class Bit:
    """Bit `k` of byte `b` of a unit: bit `i` of its field `s`."""

    def __init__(self, plane, s, i):
        field = plane["fields"][s]
        size, place = plane["word_bytes"], field["low_bit"] + i
        byte = place // 8
        if plane["byte_order"] == "big":
            byte = size - 1 - byte
        self.s, self.i, self.b, self.k = s, i, field["word"] * size + byte, place % 8


def with_unused(plane):
    """The samples of a plane and the bits between them, in each word from the highest down."""
    fields = []
    for word in range(plane["unit_bytes"] // plane["word_bytes"]):
        top = plane["word_bytes"] * 8
        own = [sample for sample in plane["samples"] if sample["word"] == word]
        end = {"word": word, "low_bit": 0, "bits": 0, "component": None}
        for sample in sorted(own, key=lambda one: -one["low_bit"]) + [end]:
            above = sample["low_bit"] + sample["bits"]
            if top > above:
                fields.append({"word": word, "low_bit": above, "bits": top - above, "component": None})
            if sample["component"]:
                fields.append(sample)
            top = sample["low_bit"]
    return {**plane, "fields": fields}


def count(plane, field):
    return sum(other["component"] == field["component"] for other in plane["samples"])


def label(plane, field):
    """The component, with its pixel where the unit has several samples of it."""
    if not field["component"]:
        return ""
    return field["component"] + (str(field["pixel"]) if count(plane, field) > 1 else "")


def what(plane, field):
    """A field in words."""
    if not field["component"]:
        return "unused"
    names = {"Y": "luma", "R": "red", "G": "green", "B": "blue", "A": "alpha"}
    name = names.get(field["component"], field["component"])
    across, down = plane["pixels_across"], plane["pixels_down"]
    shared = across // count(plane, field)
    owner = ""
    if down > 1:
        owner = f" of {across} x {down} pixels"
    elif shared > 1:
        owner = f" of pixels {field['pixel']} and {field['pixel'] + 1}"
    elif across > 1:
        owner = f" of pixel {field['pixel']}"
    sign = ", two's complement" if field["signed"] else ""
    place = ""
    if plane["word_bytes"] > 1 and plane["byte_order"] == "little":
        place = f", bits {field['low_bit']} to {field['low_bit'] + field['bits'] - 1} of word {field['word']}"
    return f"{field['bits']}-bit {name}{owner}{sign}{place}"


def runs(bits):
    """Neighbouring bits of one field, in one piece."""
    pieces = []
    for bit in bits:
        if pieces and pieces[-1][-1].s == bit.s and pieces[-1][-1].i == bit.i + 1:
            pieces[-1].append(bit)
        else:
            pieces.append([bit])
    return pieces


def draw_bits(plane, bits, x, y, view):
    parts = []
    for piece in runs(bits):
        field = plane["fields"][piece[0].s]
        kind = field["component"] or "none"
        for at, bit in enumerate(piece):
            left = x + at * CELL
            parts.append(
                f'<rect class="bit c-{kind}" x="{left}" y="{y}" width="{CELL}" height="{HEIGHT}" '
                f'data-s="{bit.s}" data-i="{bit.i}" data-b="{bit.b}" data-k="{bit.k}" data-view="{view}"/>'
            )
            if field["component"]:
                parts.append(f'<text class="number" x="{left + CELL / 2}" y="{y + HEIGHT - 6}">{bit.i}</text>')
        width = len(piece) * CELL
        parts.append(f'<rect class="run" x="{x}" y="{y}" width="{width}" height="{HEIGHT}"/>')
        if field["component"]:
            name = escape(label(plane, field))
            small = " small" if width < 8 * len(name) + 4 else ""
            parts.append(f'<text class="name{small}" x="{x + width / 2}" y="{y + 18}">{name}</text>')
        x += width
    return parts


def draw_words(plane, y):
    """Each word in a line, its highest bit on the left."""
    parts = []
    for word in range(plane["unit_bytes"] // plane["word_bytes"]):
        bits = [
            Bit(plane, s, i)
            for s, field in enumerate(plane["fields"])
            if field["word"] == word
            for i in reversed(range(field["bits"]))
        ]
        parts.append(f'<text class="side" x="0" y="{y + HEIGHT / 2 + 4}">word {word}</text>')
        parts += draw_bits(plane, bits, LEFT, y, "word")
        y += HEIGHT + 6
    return parts, y, LEFT + plane["word_bytes"] * 8 * CELL


def bytes_a_row(plane):
    size = plane["word_bytes"]
    return size if size > 2 else min(plane["unit_bytes"], 4)


def draw_bytes(plane, x, y):
    """Bytes from the lowest address, bit 7 of each on the left."""
    unit, row = plane["unit_bytes"], bytes_a_row(plane)
    parts, right, in_bytes = [], 0, [[] for _ in range(unit)]
    for s, field in enumerate(plane["fields"]):
        for i in range(field["bits"]):
            bit = Bit(plane, s, i)
            in_bytes[bit.b].append(bit)
    for b, bits in enumerate(in_bytes):
        left = x + b % row * (8 * CELL + GAP)
        top = y + b // row * (HEAD + HEIGHT + 8)
        parts.append(f'<text class="head" x="{left + 4 * CELL}" y="{top + 11}">b{b}</text>')
        parts += draw_bits(plane, sorted(bits, key=lambda bit: -bit.k), left, top + HEAD, "memory")
        right = max(right, left + 8 * CELL)
    return parts, y + (unit + row - 1) // row * (HEAD + HEIGHT + 8), right


def title_of(plane, number):
    return f"plane {number}" + {0: "", 1: ", even lines", 2: ", odd lines"}[plane["field"]]


def caption(plane):
    across, down = plane["pixels_across"], plane["pixels_down"]
    return f"a byte for {across} x {down} pixels" if across * down > 1 else "a byte for each pixel"


def draw_plane(plane, x, y, title):
    """Returns the parts, and the right and the lower end."""
    parts, right = [], 0
    if title:
        parts.append(f'<text class="title" x="{x}" y="{y + 12}">{escape(title)}</text>')
        y += 20
    if plane["word_bytes"] > 1 and plane["byte_order"] == "little":
        drawn, y, right = draw_words(plane, y)
        parts += drawn
        y += 6
        x = LEFT
    drawn, y, end = draw_bytes(plane, x, y)
    fields = "|".join(f"{label(plane, field)};{what(plane, field)}" for field in plane["fields"])
    return [f'<g class="plane" data-fields="{escape(fields, quote=True)}">', *parts, *drawn, "</g>"], max(right, end), y


def draw_form(layout, form):
    """One SVG; planes of a byte are side by side, three in a row."""
    planes = [with_unused(plane) for plane in form["planes"]]
    parts, x, y, right, bottom = [], 0, 0, 0, 0
    for number, plane in enumerate(planes):
        alone = len(planes) == 1
        title = "" if alone else title_of(plane, number)
        if number % 3 == 0:
            x, y = 0, bottom + (0 if alone or number == 0 else 10)
        drawn, end, low = draw_plane(plane, x, y, title)
        if not alone:
            drawn.append(f'<text class="caption" x="{x}" y="{low + 6}">{escape(caption(plane))}</text>')
            low += 12
        parts += drawn
        x, right, bottom = x + 8 * CELL + 44, max(right, end), max(bottom, low)
    name = layout["name"] + (f" ({form['form']})" if form["form"] else "")
    return (
        f'<svg class="layout" viewBox="0 0 {right + 1} {bottom + 2}" width="{right + 1}" height="{bottom + 2}" '
        f'role="img" aria-label="The bits of {escape(name)}" tabindex="0">{"".join(parts)}</svg>'
    )


def draw(layout):
    """All arrangements of a layout; nothing for a coded one."""
    drawn = []
    for form in layout["forms"]:
        if form["form"]:
            drawn.append(f'<p class="form">{escape(form["form"])}</p>')
        drawn.append(draw_form(layout, form))
    return f'<div class="diagram">{"".join(drawn)}</div>' if drawn else ""

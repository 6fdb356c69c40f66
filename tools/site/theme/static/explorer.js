// Descriptions of bits, and the line lengths of v210 by width.
"use strict";

const all = (from, selector) => Array.from(from.querySelectorAll(selector));
const number = (bit, name) => Number(bit.dataset[name]);

function fieldOf(bit) {
  const [label, words] = bit.closest(".plane").dataset.fields.split("|")[number(bit, "s")].split(";");
  return { label, words };
}

const bitsOfField = (bit) => all(bit.closest(".plane"), `.bit[data-s="${bit.dataset.s}"]`);

// The expression that computes the sample: each byte masked and shifted into place.
function expression(bit) {
  const bytes = new Map();
  for (const one of bitsOfField(bit)) {
    if (one.dataset.view !== "memory") continue;
    const part = bytes.get(number(one, "b")) || { k: 8, i: 64, count: 0 };
    part.k = Math.min(part.k, number(one, "k"));
    part.i = Math.min(part.i, number(one, "i"));
    part.count += 1;
    bytes.set(number(one, "b"), part);
  }
  const parts = Array.from(bytes, ([byte, part]) => ({ byte, ...part })).sort((one, other) => one.i - other.i);
  return parts
    .map(({ byte, k, i, count }) => {
      const topmost = k + count === 8;
      let text = `b[${byte}]`;
      if (k > 0) text += ` >> ${k}`;
      if (!topmost) text = `${k > 0 ? `(${text})` : text} & ${2 ** count - 1}`;
      if (i > 0) text = `(${text}) << ${i}`;
      return parts.length > 1 && i === 0 && text !== `b[${byte}]` ? `(${text})` : text;
    })
    .join(" | ")
    .replace(/\((b\[\d+\])\)/g, "$1");
}

function paragraphs(bit) {
  const { label, words } = fieldOf(bit);
  const place = `Bit ${bit.dataset.k} of byte b${bit.dataset.b}`;
  if (!label) return [`${place}: ${words}.`];
  return [`${place} is bit ${bit.dataset.i} of ${label}: ${words}.`, `${label} = ${expression(bit)}`];
}

// The panel of the explorer, or the title of the picture where there is none.
function describe(bit) {
  all(document, ".bit.on, .bit.at").forEach((other) => other.classList.remove("on", "at"));
  const same = `[data-b="${bit.dataset.b}"][data-k="${bit.dataset.k}"]`;
  bitsOfField(bit).forEach((one) => one.classList.add("on"));
  all(bit.closest(".plane"), `.bit${same}`).forEach((one) => one.classList.add("at"));
  const [first, second] = paragraphs(bit);
  const panel = document.getElementById("chosen-bit");
  if (!panel) {
    bit.replaceChildren(Object.assign(document.createElementNS("http://www.w3.org/2000/svg", "title"), { textContent: first }));
    return;
  }
  const text = Object.assign(document.createElement("p"), { textContent: first });
  const code = Object.assign(document.createElement("code"), { textContent: second || "" });
  panel.replaceChildren(text, code);
}

function walk(event) {
  const steps = { ArrowRight: 1, ArrowLeft: -1 };
  const bits = all(event.currentTarget, '.bit[data-view="memory"]');
  if (!(event.key in steps) || bits.length === 0) return;
  event.preventDefault();
  const at = bits.findIndex((bit) => bit.classList.contains("at"));
  describe(bits[at < 0 ? 0 : (at + steps[event.key] + bits.length) % bits.length]);
}

function wake(picture) {
  for (const kind of ["pointerover", "click"])
    picture.addEventListener(kind, (event) => event.target.matches(".bit") && describe(event.target));
  picture.addEventListener("keydown", walk);
}

function choose(id) {
  const choice = document.getElementById(id);
  if (!choice || !choice.matches(".choice")) return;
  all(document, ".choice").forEach((one) => one.classList.toggle("chosen", one === choice));
  document.getElementById("layout").value = id;
  const hint = Object.assign(document.createElement("p"), { className: "hint", textContent: "No bit is chosen." });
  document.getElementById("chosen-bit").replaceChildren(hint);
}

function startExplorer(select) {
  select.addEventListener("change", () => {
    choose(select.value);
    history.replaceState(null, "", `#${select.value}`);
  });
  window.addEventListener("hashchange", () => choose(location.hash.slice(1)));
  choose("layout-v210");
  choose(location.hash.slice(1));
}

function lineLengths(width) {
  const tight = Math.floor((width * 16) / 6);
  return { of48: Math.floor((width + 47) / 48) * 128, of64: Math.floor((tight + 63) / 64) * 64, unrounded: tight };
}

// The ends of the three lines, 512 bytes wide: all differences are there.
function drawLengths(width) {
  const lengths = lineLengths(width);
  const pixels = Math.ceil(width / 6) * 16;
  const from = Math.max(0, Math.floor(lengths.unrounded / 128) * 128 - 128);
  const percent = (byte) => `${Math.min(100, Math.max(0, ((byte - from) / 512) * 100))}%`;
  for (const [id, length] of Object.entries(lengths)) {
    const bar = document.getElementById(id);
    bar.querySelector("output").textContent = length;
    const track = bar.querySelector(".track");
    track.style.setProperty("--length", percent(length));
    track.style.setProperty("--pixels", percent(Math.min(pixels, length)));
    track.style.setProperty("--overrun", percent(Math.max(pixels, length)));
  }
  const surplus = pixels - lengths.unrounded;
  const overrun = surplus > 0 ? ` The last of them ends ${surplus} bytes past the end of the truncated line.` : "";
  document.getElementById("pixels-end").textContent =
    `Drawn: bytes ${from} to ${from + 511}. ${pixels / 16} groups of six pixels take ${pixels} bytes.${overrun}`;
}

function startLengths(slider) {
  const field = document.getElementById("width-number");
  const set = (width) => {
    slider.value = width;
    field.value = slider.value;
    drawLengths(Number(slider.value));
  };
  slider.addEventListener("input", () => set(slider.value));
  field.addEventListener("change", () => field.value && set(field.value));
  all(document, ".presets button").forEach((one) => one.addEventListener("click", () => set(one.textContent)));
  set(slider.value);
}

document.addEventListener("DOMContentLoaded", () => {
  all(document, "svg.layout").forEach(wake);
  const select = document.getElementById("layout");
  if (select) startExplorer(select);
  const slider = document.getElementById("width");
  if (slider) startLengths(slider);
});

// What the tests ask of the page: run in it by the browser's driver.

const letters = (text) => text.replace(/10/g, "T").replace(/[^AKQJT2-9]/g, "");

// The position that is seen, in the shape of "positions.json".
function seenPosition() {
  const hands = ["N", "E", "S", "W"].map((seat) =>
    [...document.querySelectorAll(`.hand.${seat} li > span:last-child`)].map((span) =>
      letters(span.textContent)).join("."));
  const trick = ["N", "E", "S", "W"].map((seat) => {
    const card = document.querySelector(`.felt .card.${seat}`);
    return card ? card.querySelector("[role=img]").className + letters(card.textContent) : "";
  });
  const tricks = /NS\s(\d+).*EW\s(\d+)/.exec(document.querySelector(".felt p").textContent);
  return [hands, trick, [Number(tricks[1]), Number(tricks[2])]];
}

const button = (name) => document.querySelector(`button[aria-label="${name}"]`);

// The positions from the first to the last card, and those on the way back.
function steppedThrough() {
  if (!button("Next card")) return null;
  const there = [seenPosition()];
  while (button("Next card").getAttribute("aria-disabled") === "false") {
    button("Next card").click();
    there.push(seenPosition());
  }
  const back = [seenPosition()];
  while (button("Previous card").getAttribute("aria-disabled") === "false") {
    button("Previous card").click();
    back.unshift(seenPosition());
  }
  return [there, back];
}

// Contrast of two colours (WCAG 2.2, "contrast ratio"), 1 to 21.
function contrast(a, b) {
  const luminance = (colour) => {
    const [red, green, blue] = colour.map((part) => {
      const share = part / 255;
      return share <= 0.04045 ? share / 12.92 : ((share + 0.055) / 1.055) ** 2.4;
    });
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
  };
  const [low, high] = [luminance(a), luminance(b)].sort((x, y) => x - y);
  return (high + 0.05) / (low + 0.05);
}

const numbersOf = (colour) => colour.match(/[\d.]+/g).map(Number);

// The first colour from the element upwards that is not transparent.
function paperUnder(element) {
  for (let at = element; at; at = at.parentElement) {
    const colour = numbersOf(getComputedStyle(at).backgroundColor);
    if (colour.length < 4 || colour[3] > 0) return colour.slice(0, 3);
  }
  return numbersOf(getComputedStyle(document.documentElement).backgroundColor).slice(0, 3);
}

// Texts that stand out too little: [text, ratio].
function faintTexts() {
  const faint = [];
  const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  for (let node = walker.nextNode(); node; node = walker.nextNode()) {
    const element = node.parentElement;
    if (!node.textContent.trim() || !element.checkVisibility() ||
      ["SCRIPT", "STYLE", "NOSCRIPT"].includes(element.tagName)) continue;
    const colour = numbersOf(getComputedStyle(element).color).slice(0, 3);
    const ratio = contrast(colour, paperUnder(element));
    if (ratio < 4.5) faint.push([node.textContent, element.className, ratio]);
  }
  return faint;
}

// Controls without a name, tables with cells that no header names, headings that skip a level.
function namelessParts() {
  const parts = [];
  for (const control of document.querySelectorAll("a[href], button, input")) {
    const name = control.getAttribute("aria-label") || control.textContent.trim() ||
      (control.labels && control.labels.length && control.labels[0].textContent.trim());
    if (!name) parts.push(control.outerHTML);
  }
  for (const head of document.querySelectorAll("th")) {
    if (!head.scope || !(head.textContent.trim() || head.querySelector("[aria-label]"))) {
      parts.push(head.outerHTML);
    }
  }
  for (const table of document.querySelectorAll("table")) {
    if (!table.caption || !table.caption.textContent) parts.push(table.outerHTML.slice(0, 99));
  }
  let level = 1;
  for (const heading of document.querySelectorAll("main h2, main h3, main h4")) {
    const own = Number(heading.tagName[1]);
    if (own > level + 1) parts.push(heading.outerHTML);
    level = own;
  }
  return parts;
}

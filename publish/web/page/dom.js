// Elements, and the signs of bridge as elements. Every text becomes a text node: none is read as HTML.

const kSeats = ["North", "East", "South", "West"];
const kSuitNames = { S: "spades", H: "hearts", D: "diamonds", C: "clubs" };
const kSuitSigns = { S: "\u2660", H: "\u2665", D: "\u2666", C: "\u2663" };
const kTextForm = "\uFE0E"; // after a sign: to be drawn as text, not as a picture
const kRankNames = { A: "ace", K: "king", Q: "queen", J: "jack", T: "ten" };

const byId = (id) => document.getElementById(id);

// make("td", {class: "number"}, "12", node...): what is null or undefined is left out.
function make(tag, attributes, ...children) {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes || {})) {
    if (value !== undefined && value !== null) element.setAttribute(name, value);
  }
  element.append(...children.flat(Infinity).filter((child) => child !== undefined && child !== null));
  return element;
}

// The sign of a suit in its colour, which a screen reader reads by its name.
function suitSign(letter) {
  return make("span", { class: letter, role: "img", "aria-label": kSuitNames[letter] },
    kSuitSigns[letter] + kTextForm);
}

// "4Sx" and "Par 4S= NS +420" with the signs of the suits.
function withSuits(text) {
  return text.split(/(?<=[1-7])([SHDC])/).map((part, i) => (i % 2 ? suitSign(part) : part));
}

// The card "SK".
function cardSigns(card) {
  return [suitSign(card[0]), rankText(card[1])];
}

const rankText = (letter) => (letter === "T" ? "10" : letter);
const cardName = (card) =>
  `${kRankNames[card[1]] || card[1]} of ${kSuitNames[card[0]]}`;

// A number with a true minus sign.
const signed = (number) => String(number).replace("-", "\u2212");
const withPlus = (number) => (number > 0 ? "+" : "") + signed(number);
const fixed = (number, places) => signed(number.toFixed(places));
const resultText = (result) => (result === 0 ? "=" : withPlus(result));

// A head of a table: columns as text, or [text, class].
function tableHead(columns) {
  return make("thead", null, make("tr", null, columns.map((column) => {
    const [content, kind] = Array.isArray(column) ? column : [column];
    return make("th", { scope: "col", class: kind }, content);
  })));
}

// Text for eyes that is read otherwise: "13" as "13 points".
const readAs = (shown, read) => [
  make("span", { "aria-hidden": "true" }, shown),
  make("span", { class: "hidden" }, read),
];

// The play of one table, card by card. Who leads to each trick is in the data: nothing is worked out
// here but what lies where after so many cards.

const kSeatLetters = "NESW";

// The play of a table, ready to be stepped through.
function playOf(board, table) {
  const cards = (table.play || "").match(/../g) || [];
  const leaders = [...(table.leaders || "")].map((letter) => kSeatLetters.indexOf(letter));
  return {
    board,
    table,
    cards,
    leaders,
    hands: table.hands || board.hands,
    given: [...(table.given || "")].map((digit) => parseInt(digit, 16)),
    shown: 0,
    seatOf: (at) => (leaders[Math.floor(at / 4)] + (at % 4)) % 4,
  };
}

// What lies where after `play.shown` cards. A complete trick lies on the table until the next card.
function positionOf(play) {
  const { cards, leaders, shown } = play;
  const hands = play.hands.map(suitsOf);
  for (let at = 0; at < shown; ++at) {
    const suit = kSuitOrder.indexOf(cards[at][0]);
    const hand = hands[play.seatOf(at)];
    hand[suit] = hand[suit].replace(cards[at][1], "");
  }
  const complete = shown > 0 && shown % 4 === 0;
  const trickBegin = complete ? shown - 4 : shown - (shown % 4);
  const trick = Array(4).fill(null);
  for (let at = trickBegin; at < shown; ++at) trick[play.seatOf(at)] = cards[at];
  const won = [0, 0];
  for (let done = 1; done <= Math.floor(shown / 4); ++done) ++won[leaders[done] % 2];
  const winner = complete ? leaders[shown / 4] : -1;
  return {
    hands,
    trick,
    won,
    winner,
    trickNumber: Math.floor(trickBegin / 4) + 1,
    last: shown > 0 ? play.seatOf(shown - 1) : -1,
    turn: shown < cards.length ? play.seatOf(shown) : -1,
  };
}

function cardNode(card, seat, marked, given) {
  return make("div", { class: `card ${kSeatLetters[seat]}${marked ? " marked" : ""}` },
    make("span", { class: card[0] }, rankText(card[1])), make("span", null, suitSign(card[0])),
    given ? make("span", { class: "given" }, readAs(`\u2212${given}`, givenText(given))) : null);
}

const givenText = (given) => `gives ${given} trick${given === 1 ? "" : "s"} away`;

// What the card that lies in a seat gave away; 0 where that is not known.
function givenIn(play, seat) {
  for (let at = play.shown - 1; at >= Math.max(0, play.shown - 4); --at) {
    if (play.seatOf(at) === seat) return play.given[at] || 0;
  }
  return 0;
}

// The cards that gave tricks away, each as a button that goes there.
function mistakesNode(play) {
  if (play.given.length === 0) return null;
  const mistakes = play.given.flatMap((given, at) => (given > 0 ? [at] : []));
  if (mistakes.length === 0) {
    return make("p", { class: "muted" }, "Double-dummy, no card gave a trick away");
  }
  return make("p", { id: "mistakes" }, "Tricks given away, double-dummy: ", mistakes.map((at) => {
    const button = make("button", { type: "button", class: "control" },
      `${kSeats[play.seatOf(at)]}\u00a0`,
      cardSigns(play.cards[at]), readAs(`\u00a0\u2212${play.given[at]}`, ` ${givenText(play.given[at])}`));
    button.addEventListener("click", () => stepTo(at + 1));
    return [button, " "];
  }));
}

function tricksText(play, position) {
  const tricks = `NS\u00a0${position.won[0]} \u00b7 EW\u00a0${position.won[1]}`;
  if (play.shown === 0) return `Before the lead \u00b7 ${tricks}`;
  const winner = position.winner >= 0 ? ` \u00b7 ${kSeats[position.winner]} wins` : "";
  return `Trick ${position.trickNumber} \u00b7 ${tricks}${winner}`;
}

// What a screen reader says after a step.
function stepNews(play, position) {
  if (play.shown === 0) return "Before the opening lead";
  const card = play.cards[play.shown - 1];
  const news = [`Card ${play.shown}: ${kSeats[position.last]} plays the ${cardName(card)}.`];
  const given = play.given[play.shown - 1];
  if (given) news.push(`It ${givenText(given)}.`);
  if (position.winner >= 0) {
    news.push(`${kSeats[position.winner]} wins trick ${position.trickNumber}.`,
      `North-South ${position.won[0]}, East-West ${position.won[1]}.`);
  }
  if (play.shown === play.cards.length && play.table.end) news.push(`${play.table.end}.`);
  return news.join(" ");
}

function feltNode(play, position) {
  const marked = position.winner >= 0 ? position.winner : position.last;
  const felt = make("div", { class: "felt" }, position.trick.map((card, seat) =>
    card && cardNode(card, seat, seat === marked, givenIn(play, seat))),
  make("p", null, tricksText(play, position)));
  onSwipe(felt, stepBy);
  felt.addEventListener("click", () => stepBy(1));
  return felt;
}

function handsOf(play, position) {
  return position.hands.map((suits, seat) => handNode(seat, suits, {
    name: playerIn(play.table, seat),
    turn: seat === position.turn,
  }));
}

// A finger moved to the left brings the next card, to the right the one before.
function onSwipe(element, step) {
  const kEnough = 40; // pixels
  let begin = null;
  element.addEventListener("touchstart", (event) => {
    begin = event.touches.length === 1 ? event.touches[0] : null;
  }, { passive: true });
  element.addEventListener("touchend", (event) => {
    const end = event.changedTouches[0];
    const x = begin ? end.clientX - begin.clientX : 0;
    const y = begin ? end.clientY - begin.clientY : 0;
    begin = null;
    if (Math.abs(x) < kEnough || Math.abs(x) < Math.abs(y)) return;
    event.preventDefault(); // no click beside
    step(x < 0 ? 1 : -1);
  });
}

// The play that is shown; null when there is none.
let playing = null;

const kSteps = [
  ["\u00ab", "Before the first card", () => stepTo(0), (play) => play.shown === 0],
  ["\u2039", "Previous card", () => stepBy(-1), (play) => play.shown === 0],
  null,
  ["\u203a", "Next card", () => stepBy(1), (play) => play.shown === play.cards.length],
  ["\u00bb", "Last card", () => stepTo(playing.cards.length),
    (play) => play.shown === play.cards.length],
];

function stepsNode() {
  return make("div", { id: "steps", class: "screen" }, kSteps.map((step) => {
    if (!step) return make("output", { id: "place", "aria-live": "off" });
    const button = make("button", { type: "button", class: "control", "aria-label": step[1] },
      step[0]);
    button.addEventListener("click", step[2]);
    return button;
  }));
}

// Buttons stay where they are, so that one keeps the focus while it is pressed again and again.
function showPosition() {
  const position = positionOf(playing);
  const view = document.querySelector(".playing");
  view.querySelectorAll(".hand, .felt").forEach((node) => node.remove());
  view.prepend(...handsOf(playing, position));
  view.prepend(feltNode(playing, position));
  const steps = byId("steps");
  byId("place").textContent = `card ${playing.shown} of ${playing.cards.length}`;
  [...steps.querySelectorAll("button")].forEach((button, at) => {
    const [, , , isOver] = kSteps.filter((step) => step)[at];
    button.setAttribute("aria-disabled", String(isOver(playing)));
  });
  const end = playing.shown === playing.cards.length ? playing.table.end : "";
  byId("end").textContent = end || "";
  return position;
}

function stepTo(shown) {
  const kept = Math.max(0, Math.min(shown, playing.cards.length));
  if (kept === playing.shown) return;
  playing.shown = kept;
  byId("said").textContent = stepNews(playing, showPosition());
}
const stepBy = (cards) => stepTo(playing.shown + cards);

function playNode(board, table) {
  playing = playOf(board, table);
  if (playing.cards.length === 0) {
    playing = null;
    return make("div", null, diagramNode({ ...board, hands: table.hands || board.hands,
      points: table.hands ? undefined : board.points }, table),
    make("p", { class: "muted" }, "The play was not recorded"));
  }
  return make("div", null, make("div", { class: "playing" }, stepsNode()),
    make("p", { id: "end", class: "muted" }), mistakesNode(playing));
}

// A deal round its compass, an auction, and the makeable tricks.

const kSuitOrder = "SHDC";

// The cards of a hand by suits, "AKT" each.
const suitsOf = (hand) => hand.split(".");

function handNode(seat, suits, { name, points, turn }) {
  // What does not fit is cut at the end: a long name, but not whose turn it is.
  const title = make("h3", null, kSeats[seat], turn ? " \u00b7 to play" : null,
    name ? ` \u00b7 ${name}` : null);
  if (points !== undefined) {
    title.append(" ", make("span", { class: "muted" }, readAs(points, `${points} points`)));
  }
  const rows = suits.map((ranks, suit) => make("li", null, suitSign(kSuitOrder[suit]),
    make("span", null, ranks ? [...ranks].map(rankText).join(" ") : readAs("\u2013", "none"))));
  return make("section", { class: `hand ${kSeats[seat][0]}${turn ? " turn" : ""}` }, title,
    make("ul", null, rows));
}

// Who is vulnerable is in the words beside the board's number as well.
function compassNode(board) {
  const marks = kSeats.map((seat, i) => {
    const vulnerable = board.vulnerable & (i % 2 ? 2 : 1);
    return make("i", { class: seat[0] + (vulnerable ? " vul" : "") }, seat[0]);
  });
  return make("div", { class: "compass", "aria-hidden": "true" }, marks,
    make("b", null, String(board.number)));
}

// `table` gives the names where there is only one.
function diagramNode(board, table) {
  const hands = kSeats.map((_, seat) => handNode(seat, suitsOf(board.hands[seat]), {
    name: table && playerIn(table, seat),
    points: board.points && board.points[seat],
  }));
  return make("div", { class: "diagram" }, hands.slice(0, 1), hands[3], compassNode(board),
    hands[1], hands[2]);
}

function callNode(call) {
  if (call === "Pass") return make("span", { class: "pass" }, call);
  if (call === "Dbl" || call === "Rdbl") return make("span", { class: "double" }, call);
  return make("span", null, withSuits(call));
}

const kColumns = [3, 0, 1, 2]; // West first

// Nothing where there are no calls.
function auctionNode(calls, dealer) {
  if (!calls) return null;
  const before = kColumns.indexOf(dealer);
  const cells = [...Array(before).fill(null), ...calls];
  const rows = [];
  for (let at = 0; at < cells.length; at += 4) {
    const row = cells.slice(at, at + 4).concat(Array(4).fill(null)).slice(0, 4);
    rows.push(make("tr", null, row.map((call) => make("td", null, call && callNode(call)))));
  }
  return make("table", { class: "auction centre" }, make("caption", null, "Auction"),
    tableHead(kColumns.map((seat) => kSeats[seat])), make("tbody", null, rows));
}

const kTableSeats = ["North", "South", "East", "West"];

function makeableNode(board) {
  if (!board.tricks) return null;
  const order = [4, 0, 1, 2, 3]; // no-trump first
  const rows = board.tricks.map((row, seat) => make("tr", null,
    make("th", { scope: "row" }, kTableSeats[seat]),
    order.map((strain) => make("td", null, String(row[strain])))));
  return make("div", null, make("table", { class: "centre makeable" },
    make("caption", null, "Makeable double-dummy"),
    tableHead([make("span", { class: "hidden" }, "Declarer"), "NT",
      ...[..."SHDC"].map(suitSign)]),
    make("tbody", null, rows)),
    board.par ? make("p", { class: "muted" }, withSuits(board.par)) : null);
}

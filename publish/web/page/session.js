// The session that the page shows, and what is looked up in it.

const session = JSON.parse(byId("data").textContent);
const boards = session.boards;

// The position of a board by its number; -1 when there is none.
const boardAt = (number) => boards.findIndex((board) => board.number === number);

// The entrant whom the reader has chosen, as a position in session.entrants; -1 for nobody.
let own = -1;

const isOf = (entrant, pair) => pair >= 0 && session.entrants[entrant].pairs.includes(pair);
// Where an entrant has sat at a table: 0 North-South, 1 East-West, -1 nowhere.
function sideOf(entrant, table) {
  return entrant < 0 ? -1 : table.pairs.findIndex((pair) => isOf(entrant, pair));
}

// The tables at which an entrant has played a board.
const tablesOf = (entrant, board) => board.tables.filter((table) => sideOf(entrant, table) >= 0);

// "Anna & Bo", or the number where names are not known or not published.
function pairText(pair) {
  if (pair < 0) return "\u2013";
  const { number, names } = session.pairs[pair];
  return names || `Pair ${number}`;
}

// The name of the player in a seat, where the pair has two; else nothing.
function playerIn(table, seat) {
  const pair = table.pairs[seat % 2];
  const names = pair < 0 ? [] : session.pairs[pair].names.split(" & ");
  return names.length === 2 ? names[seat < 2 ? 0 : 1] : "";
}

// A contract with its declarer and result: "4♠ S +1".
function contractNodes(table, longSeat) {
  if (!table.contract) return [];
  const nodes = withSuits(table.contract);
  if (table.declarer === undefined) return nodes;
  const seat = kSeats[table.declarer];
  nodes.push(longSeat ? ` by ${seat}` : readAs(` ${seat[0]}`, ` by ${seat}`));
  if (table.result !== undefined) nodes.push(` ${resultText(table.result)}`);
  return nodes.flat();
}

// The score of one side of a table; the ruling where there is one.
function scoreText(table, side) {
  if (table.score === undefined) return table.ruling || "";
  return withPlus(side === 1 ? -table.score : table.score);
}

const percentOf = (table, side) => (table.percent ? table.percent[side] : null);
const pointsOf = (table, side) => (table.points ? table.points[side] : null);
// Percentages, or IMPs where the session has no match points.
const hasPercent = boards.some((board) => board.tables.some((table) => table.percent));
const comparisonHead = hasPercent ? "%" : session.scoring;
function comparison(table, side) {
  const number = hasPercent ? percentOf(table, side) : pointsOf(table, side);
  if (number === null) return "";
  return hasPercent ? fixed(number, 1) : withPlus(Math.round(number * 100) / 100);
}

const dealerText = (board) =>
  `${kSeats[board.dealer]} deals \u00b7 ` +
  ["nobody vulnerable", "North-South vulnerable", "East-West vulnerable", "all vulnerable"][
    board.vulnerable];

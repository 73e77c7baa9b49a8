// What is shown in rows: the boards beside the page, a traveller, the ranking, the reader's boards.

const playLink = (board, at) =>
  make("a", { href: `#b${board.number}t${at + 1}`, "aria-label": `Play of table ${at + 1}` },
    "\u25b8", make("span", { class: "wide" }, " play"));

// A row's table can be looked at when it has an auction or a play.
const canBeShown = (table) => table.play !== undefined || table.calls !== undefined;

function pairCell(pair, kind, width = "") {
  const names = pairText(pair);
  const number = pair >= 0 && session.pairs[pair].names ? session.pairs[pair].number : "";
  const content = [number ? `${number} ` : null, names];
  return kind === "th" ? make("th", { scope: "row", class: "names" }, content)
    : make("td", { class: `names ${width}` }, content);
}

function travellerRow(board, table, at) {
  const mine = sideOf(own, table) >= 0;
  return make("tr", { class: mine ? "ownrow" : undefined },
    pairCell(table.pairs[0], "th"), pairCell(table.pairs[1], "td"),
    make("td", { class: "contract" }, contractNodes(table),
      mine ? make("span", { class: "hidden" }, " (my table)") : null),
    make("td", { class: "wide" }, table.lead ? cardSigns(table.lead) : null),
    make("td", { class: "number wide" }, table.taken === undefined ? null : String(table.taken)),
    make("td", { class: "number" }, scoreText(table, 0)),
    make("td", { class: "number" }, comparison(table, 0)),
    session.report ? parCells(table) : null,
    make("td", { class: "play" }, canBeShown(table) ? playLink(board, at) : null));
}

function travellerNode(board) {
  if (board.tables.length === 0) return null;
  const rows = board.tables.map((table, at) => travellerRow(board, table, at));
  const head = tableHead(["North-South", "East-West", "Contract", ["Lead", "wide"],
    ["Tricks", "number wide"], ["Score", "number"], [comparisonHead, "number"],
    ...(session.report ? [["To par", "number wide"], ["Par beaten by", "wide"]] : []),
    [make("span", { class: "hidden" }, "Play"), "play"]]);
  return make("section", { class: "results scroll" }, make("table", null,
    make("caption", null, "Results"), head, make("tbody", null, rows)));
}

// What stands beside a board in the list.
function summaryNodes(board) {
  if (own >= 0) {
    const table = tablesOf(own, board)[0];
    if (!table) return [];
    const side = sideOf(own, table);
    const percent = percentOf(table, side);
    const share = hasPercent && percent !== null ? `${Math.round(percent)}%`
      : comparison(table, side);
    return [contractNodes({ ...table, result: undefined }), ` ${scoreText(table, side)}`,
      share ? make("b", { class: "share" }, ` ${share}`) : null];
  }
  if (board.tables.length === 1) {
    const table = board.tables[0];
    return [contractNodes(table), ` ${scoreText(table, 0)}`];
  }
  // "Par 4S=, 4H= by West EW +620" in short: "4S= EW +620".
  return board.par
    ? withSuits(board.par.replace(/^Par /, "").replace(/(, .*?)?( by \w+)? (?=(NS|EW) )/, " ")) : [];
}

function listNote() {
  if (own >= 0) return `Contract, my score and ${comparisonHead}`;
  return boards.some((board) => board.tables.length === 1) ? "" : "Par of each board";
}

function showList(current) {
  byId("list-note").textContent = listNote();
  byId("list").replaceChildren(...boards.map((board) => make("li", null,
    make("a", { href: `#b${board.number}`, "aria-current": board === current ? "page" : undefined },
      make("span", { class: "hidden" }, "Board "), make("b", null, String(board.number)),
      make("span", { class: "sum" }, summaryNodes(board))))));
}

function rankingRow(row, percentages, numbers) {
  const mine = own >= 0 && row.entrant === own;
  const name = row.names || (row.number ? `Pair ${row.number}` : "\u2013");
  return make("tr", { class: mine ? "ownrow" : undefined },
    make("td", { class: "number" }, row.place),
    numbers ? make("td", { class: "number" }, row.number) : null,
    make("th", { scope: "row", class: "names" },
      row.entrant >= 0 ? make("a", { href: `#p${row.entrant + 1}` }, name) : name),
    make("td", { class: "number wide" }, String(row.boards)),
    make("td", { class: `number${percentages ? " wide" : ""}` },
      percentages ? signed(row.total) : withPlus(row.total)),
    percentages ? make("td", { class: "number" }, fixed(row.percentage, 2)) : null);
}

function rankingNode() {
  const ranking = session.ranking;
  if (!ranking) return make("p", null, "There are no results to rank.");
  const percentages = ranking.unit === "%";
  const numbers = ranking.tables.some((table) => table.rows.some((row) => row.number));
  const columns = [["Place", "number"], ...(numbers ? [["No.", "number"]] : []), "Names",
    ["Boards", "number wide"],
    percentages ? ["Match points", "number wide"] : [ranking.unit, "number"]];
  if (percentages) columns.push(["%", "number"]);
  const tables = ranking.tables.map((table) => make("section", { class: "scroll" },
    make("table", { class: "ranking" },
      make("caption", table.heading ? null : { class: "hidden" }, table.heading || "Ranking"),
      tableHead(columns),
      make("tbody", null, table.rows.map((row) => rankingRow(row, percentages, numbers))))));
  return make("div", { class: "beside" }, tables,
    ranking.notes.map((note) => make("p", { class: "muted" }, note)));
}

function ownRow(board, table) {
  const side = sideOf(own, table);
  const at = board.tables.indexOf(table);
  return make("tr", null,
    make("th", { scope: "row" }, make("a", { href: `#b${board.number}` }, String(board.number))),
    make("td", { class: "wide" }, ["NS", "EW"][side]),
    pairCell(table.pairs[1 - side], "td", "wide"),
    make("td", { class: "contract" }, contractNodes(table)),
    make("td", { class: "number" }, scoreText(table, side)),
    make("td", { class: "number" }, comparison(table, side)),
    make("td", { class: "play" }, canBeShown(table) ? playLink(board, at) : null));
}

// The boards of the chosen entrant, with its place where it is ranked.
function ownNode() {
  const rows = boards.flatMap((board) => tablesOf(own, board).map((table) => ownRow(board, table)));
  const head = tableHead(["Board", ["Side", "wide"], ["Opponents", "wide"], "Contract", ["Score", "number"],
    [comparisonHead, "number"], [make("span", { class: "hidden" }, "Play"), "play"]]);
  return make("section", { class: "scroll" }, make("table", null,
    make("caption", { class: "hidden" }, "My boards"), head, make("tbody", null, rows)));
}

// "Place 3 of 12 · 54.17%", or nothing.
function ownPlace() {
  for (const table of session.ranking ? session.ranking.tables : []) {
    const row = table.rows.find((each) => each.entrant === own);
    if (!row) continue;
    const total = session.ranking.unit === "%" ? `${fixed(row.percentage, 2)}%`
      : `${withPlus(row.total)} IMPs`;
    return `Place ${row.place} of ${table.rows.length} \u00b7 ${total}`;
  }
  return "";
}

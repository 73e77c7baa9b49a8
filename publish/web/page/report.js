// The report of the session: its plays and contracts double-dummy.

const kSideNames = ["NS", "EW"];

// What a table has against par, and who beat it and why.
function parCells(table) {
  const beaten = table.why ? `${kSideNames[table.against > 0 ? 0 : 1]}: ${table.why}` : null;
  return [
    make("td", { class: "number wide" },
      table.against === undefined ? null : withPlus(table.against)),
    make("td", { class: "wide" }, beaten),
  ];
}

function reportRow(row, numbers) {
  const mine = own >= 0 && row.entrant === own;
  const name = row.names || (row.number ? `Pair ${row.number}` : "\u2013");
  return make("tr", { class: mine ? "ownrow" : undefined },
    numbers ? make("td", { class: "number" }, row.number) : null,
    make("th", { scope: "row", class: "names" },
      row.entrant >= 0 ? make("a", { href: `#p${row.entrant + 1}` }, name) : name),
    row.cells.map((cell) => make("td", { class: "number" }, signed(cell))));
}

function reportNode() {
  const { columns, tables, notes } = session.report;
  const numbers = tables.some((table) => table.rows.some((row) => row.number));
  const head = () => tableHead([...(numbers ? [["No.", "number"]] : []), "Names",
    ...columns.map(({ heading, meaning }) => [make("abbr", { title: meaning }, heading), "number"])]);
  const sections = tables.map((table) => make("section", { class: "scroll" },
    make("table", { class: "report" },
      make("caption", table.heading ? null : { class: "hidden" }, table.heading || "Report"),
      head(), make("tbody", null, table.rows.map((row) => reportRow(row, numbers))))));
  return make("div", null, sections,
    make("dl", { class: "muted meanings" }, columns.map(({ heading, meaning }) =>
      [make("dt", null, heading), make("dd", null, meaning)])),
    notes.map((note) => make("p", { class: "muted" }, note)));
}

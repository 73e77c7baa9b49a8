// What is shown at which address: "#b7" a board, "#b7t3" its third table, "#ranking",
// "#report", "#p3" the boards of an entrant, "#boards" the list where there is no room for it beside
// the page.

const kTitle = document.title;

const addressOf = (board, at) => `#b${board.number}${at >= 0 ? `t${at + 1}` : ""}`;

// What the address names; the first board where it names nothing that there is.
function placeOf(address) {
  if (address === "#ranking") return { kind: "ranking" };
  if (address === "#report" && session.report) return { kind: "report" };
  if (address === "#boards") return { kind: "list", board: boards[0] };
  const entrant = /^#p(\d+)$/.exec(address);
  if (entrant && session.entrants[entrant[1] - 1]) return { kind: "own", entrant: entrant[1] - 1 };
  const named = /^#b(\d+)(?:t(\d+))?$/.exec(address);
  const board = boards[named ? Math.max(0, boardAt(Number(named[1]))) : 0];
  const at = named && board.number === Number(named[1]) && named[2] ? named[2] - 1 : -1;
  return board.tables[at] ? { kind: "table", board, at } : { kind: "board", board };
}

let place = null;

function boardView(board) {
  const only = board.tables.length === 1 ? board.tables[0] : null;
  const calls = auctionNode(board.calls, board.dealer);
  const contract = board.contract ? make("p", { class: "contract" }, "Contract ",
    contractNodes({ contract: board.contract, declarer: board.declarer }, true)) : null;
  return make("div", { id: "board-view" }, diagramNode(board, only),
    make("div", { class: "beside" }, make("div", null, calls, contract), makeableNode(board)),
    board.notes ? make("p", { class: "notes" }, board.notes) : null, travellerNode(board));
}

// The other tables of the board, and the way back to it.
function tableLinks(board, at) {
  const link = (to, text) => (board.tables[to]
    ? make("a", { href: addressOf(board, to) }, text) : null);
  return make("p", { class: "tables screen" },
    make("a", { href: addressOf(board, -1) }, `All of board ${board.number}`),
    link(at - 1, `\u2039 table ${at}`), link(at + 1, `table ${at + 2} \u203a`));
}

function resultNode(table) {
  const result = [contractNodes(table, true)];
  const score = scoreText(table, 0);
  if (score) result.push(` \u00b7 NS ${score}`);
  const share = comparison(table, 0);
  if (share) result.push(` \u00b7 ${share}${hasPercent ? "%" : ` ${session.scoring}`}`);
  return make("p", { class: "result" }, result);
}

function tableView(board, at) {
  const table = board.tables[at];
  return make("div", { id: "table-view" }, playNode(board, table),
    make("div", { class: "beside" }, resultNode(table), auctionNode(table.calls, board.dealer),
      makeableNode(board), tableLinks(board, at)));
}

const kViews = {
  board: ({ board }) => [`Board ${board.number}`, [dealerText(board)], boardView(board)],
  list: ({ board }) => kViews.board({ board }),
  table: ({ board, at }) => [`Board ${board.number} \u00b7 table ${at + 1}`,
    [contractNodes(board.tables[at], true), " \u00b7 ",
      board.tables[at].pairs.map(pairText).join(" v ")], tableView(board, at)],
  ranking: () => ["Ranking", [], rankingNode()],
  report: () => ["Report", ["Double-dummy: every card seen"], reportNode()],
  own: ({ entrant }) => [session.entrants[entrant].label, [ownPlace()], ownNode()],
};

// The address of the board `step` places on: of the same view, and of the reader's own table of it.
function boardAddress(step) {
  const at = place.board ? boards.indexOf(place.board) + step : 0;
  if (!boards[at]) return null;
  if (place.kind !== "table") return addressOf(boards[at], -1);
  const table = own >= 0 ? tablesOf(own, boards[at])[0] : boards[at].tables[place.at];
  const shown = table && canBeShown(table) ? boards[at].tables.indexOf(table) : -1;
  return addressOf(boards[at], shown);
}

function setStep(id, step) {
  const link = byId(id);
  const address = boardAddress(step);
  link.hidden = !place.board;
  if (address) link.href = address;
  else link.removeAttribute("href");
  link.setAttribute("aria-disabled", String(!address));
}

// Shows what the address names. The focus stays where it is unless that has gone.
function show() {
  place = placeOf(location.hash);
  playing = null;
  if (place.kind === "own") choose(place.entrant);
  const [heading, beside, view] = kViews[place.kind](place);
  byId("heading").replaceChildren(heading);
  byId("subheading").replaceChildren(...beside.flat(2));
  byId("view").replaceChildren(view);
  document.title = `${heading} \u00b7 ${kTitle}`;
  byId("page").className = place.kind === "list" ? "list" : "";
  setStep("previous", -1);
  setStep("next", 1);
  if (playing) showPosition();
  showList(place.board);
}

function onAddress() {
  const focused = document.activeElement;
  const address = focused && focused.closest("#list") && focused.getAttribute("href");
  show();
  window.scrollTo(0, 0);
  byId("said").textContent = byId("heading").textContent;
  const again = address && document.querySelector(`#list a[href="${address}"]`);
  if (again && again.offsetParent) again.focus();
  else if (document.activeElement === document.body) byId("heading").focus();
}

// Makes an entrant, or nobody, the reader's own.
function choose(entrant) {
  own = entrant;
  byId("own").value = entrant >= 0 ? session.entrants[entrant].label : "";
  byId("own-note").replaceChildren(...(entrant >= 0 ? [ownLink(entrant)] : []));
  byId("to-own").href = entrant >= 0 ? `#p${entrant + 1}` : "#boards";
}

const ownLink = (entrant) => make("a", { href: `#p${entrant + 1}` }, "My boards");

// The entrant of this label, or the only one that has the text in it; -1 for none.
function entrantNamed(text) {
  const wanted = text.trim().toLowerCase();
  const labels = session.entrants.map((entrant) => entrant.label.toLowerCase());
  const exact = labels.indexOf(wanted);
  if (exact >= 0 || !wanted) return exact;
  const found = labels.flatMap((label, at) => (label.includes(wanted) ? [at] : []));
  return found.length === 1 ? found[0] : -1;
}

function onOwn() {
  const text = byId("own").value;
  const entrant = entrantNamed(text);
  if (entrant >= 0) {
    location.hash = `#p${entrant + 1}`;
    choose(entrant);
    return;
  }
  own = -1;
  byId("own-note").textContent = text.trim() ? "Nobody, or more than one, is called so" : "";
  byId("to-own").href = "#boards";
  if (place.kind === "own") location.hash = "";
  else show();
}

function follow(id) {
  if (byId(id).hasAttribute("href") && !byId(id).hidden) location.hash = byId(id).hash;
}

const kKeys = {
  ArrowRight: () => (playing ? stepBy(1) : follow("next")),
  ArrowLeft: () => (playing ? stepBy(-1) : follow("previous")),
  Home: () => playing && stepTo(0),
  End: () => playing && stepTo(playing.cards.length),
  "]": () => follow("next"),
  j: () => follow("next"),
  "[": () => follow("previous"),
  k: () => follow("previous"),
};

function onKey(event) {
  const typing = event.target.closest && event.target.closest("input");
  if (typing || event.ctrlKey || event.altKey || event.metaKey || !kKeys[event.key]) return;
  if ((event.key === "Home" || event.key === "End") && !playing) return;
  event.preventDefault();
  kKeys[event.key]();
}

function start() {
  byId("entrants").append(...session.entrants.map((entrant) =>
    make("option", { value: entrant.label })));
  const hasResults = session.entrants.length > 0;
  byId("chooser").hidden = !hasResults;
  byId("to-own").hidden = !hasResults;
  byId("to-ranking").hidden = !session.ranking;
  byId("to-report").hidden = !session.report;
  byId("own").addEventListener("change", onOwn);
  byId("to-own").addEventListener("click", (event) => {
    if (own >= 0) return;
    event.preventDefault();
    byId("own").focus();
  });
  byId("print").addEventListener("click", () => window.print());
  document.addEventListener("keydown", onKey);
  window.addEventListener("hashchange", onAddress);
  byId("page").hidden = false;
  show();
}

start();

"""The web page of a session in a real browser; started by scripts/test-web."""

import csv
import functools
import http.server
import io
import json
import os
import pathlib
import subprocess
import tempfile
import threading
import time
import unittest

from browser import Browser

HERE = pathlib.Path(__file__).resolve().parent
CLI = os.environ["TRICKLET_CLI"]
SESSIONS = os.environ["TRICKLET_WEB_SESSIONS"]
LIMIT = 120  # seconds for one command
NAMES = ("Club", "Odd", "Deals", "Evening")
PROBES = (HERE / "page_script.js").read_text(encoding="utf-8")


def command(*words):
    subprocess.run(words, check=True, timeout=LIMIT, stdout=subprocess.DEVNULL)


def positions_alike(expected, seen):
    """Where two lists of positions begin to differ; nothing when they do not."""
    for at, (wanted, found) in enumerate(zip(expected, seen)):
        if wanted != found:
            return f"after {at} cards: {found} instead of {wanted}"
    return None if len(expected) == len(seen) else f"{len(seen)} instead of {len(expected)}"


class Quiet(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *_):
        pass


class Pages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = cls.enterClassContext(tempfile.TemporaryDirectory(prefix="tricklet-web-"))
        cls.home = pathlib.Path(cls.folder)
        command(SESSIONS, str(cls.home))
        cls.expected = json.loads((cls.home / "positions.json").read_text(encoding="utf-8"))
        for name in NAMES:
            cls.publish(name, name)
        cls.publish("Club", "Reviewed", "--report")
        cls.browser = cls.enterClassContext(Browser())
        handler = functools.partial(Quiet, directory=cls.folder)
        cls.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
        cls.addClassCleanup(cls.server.server_close)
        cls.addClassCleanup(cls.server.shutdown)
        threading.Thread(target=cls.server.serve_forever, daemon=True).start()

    @classmethod
    def publish(cls, library, to, *options):
        command(CLI, "--root", cls.folder, "--library", library, "--quiet", "publish",
                str(cls.home / "site" / to), *options)

    @classmethod
    def answer(cls, library, *words):
        """What the command line prints."""
        return subprocess.run([CLI, "--root", cls.folder, "--library", library, "--quiet", *words],
                              check=True, timeout=LIMIT, capture_output=True, text=True).stdout

    def setUp(self):
        self.browser.size(1024, 768)
        self.browser.dark(False)
        self.browser.log()

    def address(self, name, over_http=False):
        page = f"site/{name}/index.html"
        if over_http:
            return f"http://127.0.0.1:{self.server.server_address[1]}/{page}"
        return (self.home / page).as_uri()

    def open(self, name, place="", over_http=False):
        self.browser.open("about:blank")  # else another place of the page would not load it
        self.browser.open(self.address(name, over_http) + place)

    def go(self, place):
        """To another place of the page, as by a link."""
        self.browser.run("location.hash = arguments[0]", place)
        self.wait_for("return location.hash === arguments[0]", place)

    def wait_for(self, condition, *arguments):
        end = time.monotonic() + 10
        while not self.browser.run(condition, *arguments):
            self.assertLess(time.monotonic(), end, condition)
            time.sleep(0.02)

    def probe(self, call):
        return self.browser.run(PROBES + "\nreturn " + call)

    def text(self, selector):
        return self.browser.run("return document.querySelector(arguments[0])?.innerText", selector)

    def check_quiet(self):
        """Nothing has come into the console, and nothing was asked of the network but the page."""
        self.assertEqual(self.browser.log(), [])
        self.assertEqual(self.browser.run(
            "return performance.getEntriesByType('resource').map((each) => each.name)"
            ".filter((name) => !name.startsWith('data:'))"), [])

    def check_every_table(self, name, over_http):
        self.open(name, over_http=over_http)
        boards = self.browser.run(
            "return JSON.parse(document.getElementById('data').textContent).boards"
            ".map((board) => [board.number, board.tables.length])")
        seen = {}
        for number, tables in boards:
            for table in range(1, tables + 1):
                self.go(f"#b{number}t{table}")
                self.wait_for("return document.getElementById('heading').innerText ==="
                              " arguments[0]", f"Board {number} · table {table}")
                stepped = self.probe("steppedThrough()")
                if stepped:
                    seen[f"{number}.{table}"] = stepped
        expected = self.expected[name]
        # A play without a legal card is none to be stepped through.
        self.assertEqual(sorted(key for key, all in expected.items() if len(all) > 1), sorted(seen))
        self.assertGreater(sum(len(there) for there, _ in seen.values()), 500)
        for key, (there, back) in seen.items():
            self.assertIsNone(positions_alike(expected[key], there), f"{name} {key}")
            self.assertIsNone(positions_alike(expected[key], back), f"{name} {key} back")
        self.check_quiet()

    def test_every_table_is_stepped_as_the_engine_does(self):
        self.check_every_table("Club", False)

    def test_broken_records_are_stepped_as_far_as_the_engine_does(self):
        self.check_every_table("Odd", True)

    def place_with_play(self):
        return "#b" + next(key for key, all in self.expected["Club"].items()
                           if len(all) == 53).replace(".", "t")

    def test_keys_step_cards_and_boards(self):
        self.open("Club", self.place_with_play())
        place = functools.partial(self.text, "#place")
        for keys, shown in ((["ArrowRight"] * 5, 5), (["ArrowLeft"], 4), (["End"], 52),
                            (["ArrowRight"], 52), (["Home"], 0)):
            self.browser.press(*keys)
            self.assertEqual(place(), f"card {shown} of 52")
        self.open("Club", "#b2")
        for key, board in (("]", 3), ("j", 4), ("ArrowRight", 5), ("[", 4), ("k", 3),
                           ("ArrowLeft", 2)):
            self.browser.press(key)
            self.wait_for("return location.hash === arguments[0]", f"#b{board}")
            self.wait_for("return document.getElementById('heading').innerText === arguments[0]",
                          f"Board {board}")
        self.check_quiet()

    def test_swipes_and_buttons_step_cards(self):
        self.open("Club", self.place_with_play())
        x, y = self.browser.run("const box = document.querySelector('.felt')"
                                ".getBoundingClientRect(); return [Math.round(box.x + 20),"
                                " Math.round(box.y + 20)]")
        for begin, end, shown in ((x + 90, x, 1), (x + 90, x, 2), (x, x + 90, 1)):
            self.browser.touch((begin, y), (end, y))
            self.wait_for("return document.getElementById('place').innerText === arguments[0]",
                          f"card {shown} of 52")
        self.browser.run("document.querySelector('[aria-label=\"Next card\"]').focus()")
        self.browser.press("Enter", "Enter")
        self.assertEqual(self.text("#place"), "card 3 of 52")
        self.assertEqual(self.browser.run("return document.activeElement.ariaLabel"), "Next card")
        self.assertRegex(self.text("#said"), r"^Card 3: (North|East|South|West) plays the ")

    def test_addresses_lead_to_boards_and_back(self):
        self.open("Club", "#b3t2")
        self.assertEqual(self.text("#heading"), "Board 3 · table 2")
        for place, heading in (("#b5", "Board 5"), ("#ranking", "Ranking"), ("#b999", "Board 1")):
            self.go(place)
            self.wait_for("return document.getElementById('heading').innerText === arguments[0]",
                          heading)
            self.assertIn(heading, self.browser.run("return document.title"))
        for heading in ("Ranking", "Board 5", "Board 3 · table 2"):
            self.browser.back()
            self.wait_for("return document.getElementById('heading').innerText === arguments[0]",
                          heading)
        self.check_quiet()

    def test_foreign_texts_stay_texts(self):
        for place in ("", "#b1t1", "#b4", "#ranking", "#p1"):
            self.open("Odd", place)
            self.assertEqual(self.browser.run(
                "return document.querySelectorAll('img, #page b[onload], iframe, #page i:not("
                ".compass i)').length"), 0)
            self.assertIsNone(self.browser.run("return window.broken"))
            self.check_quiet()
        self.open("Odd")
        shown = self.text("body")
        for text in ("</script><b onload=window.broken=1>1", "<img src=x onerror=window.broken=1>",
                     "&amp; \"'`${window.broken=1}", "محمد 王小明"):
            self.assertIn(text, shown)

    def test_nothing_else_runs_or_is_fetched(self):
        self.open("Club", over_http=True)
        self.browser.run("""
            const script = document.createElement("script");
            script.textContent = "window.injected = 1";
            document.body.append(script);
            const button = document.createElement("button");
            button.setAttribute("onclick", "window.injected = 2");
            document.body.append(button);
            button.click();
            const image = document.createElement("img");
            image.src = location.origin + "/picture.png";
            document.body.append(image);""")
        self.assertIsNone(self.browser.run("return window.injected"))
        self.wait_for("return true")
        refused = [line for line in self.browser.log() if "Content Security Policy" in line]
        self.assertEqual(len(refused), 3, refused)

    def test_it_fits_a_phone_and_a_projector(self):
        for width in (320, 360, 768, 1024, 1920):
            self.browser.size(width, 740)
            for name, places in (("Club", ("", "#b2t1", "#b2t2", "#boards", "#ranking", "#p1")),
                                 ("Odd", ("", "#b1t1", "#ranking", "#p1")), ("Deals", ("",)),
                                 ("Reviewed", ("", "#b2t1", "#report"))):
                for place in places:
                    self.open(name, place)
                    over = self.browser.run(
                        "return document.documentElement.scrollWidth - innerWidth")
                    self.assertLessEqual(over, 0, f"{name}{place} at {width}")

    def test_the_report_has_the_figures_of_the_command_line(self):
        rows = list(csv.DictReader(io.StringIO(self.answer("Club", "report", "--csv"))))
        self.open("Reviewed", "#report")
        shown = self.browser.run("""return [...document.querySelectorAll("table.report tbody tr")]
            .map((row) => [...row.cells].map((cell) => cell.innerText.replace("\u2212", "-")))""")
        self.assertEqual([row[0] for row in shown], [row["Number"] for row in rows])
        self.assertEqual([row[3] for row in shown], [row["Points against par, mean"] for row in rows])
        self.assertEqual([row[6] for row in shown],
                         [row["Tricks given away as declarer, per play"] for row in rows])
        self.check_quiet()
        self.open("Club")
        self.assertTrue(self.browser.run("return document.getElementById('to-report').hidden"))

    def test_cards_that_gave_tricks_away_are_marked(self):
        place = self.place_with_play()
        board, table = place[2:].split("t")
        cards = [line.split("\t") for line in
                 self.answer("Club", "review", board, "--table", table).splitlines()
                 if line.count("\t") == 4]
        mistakes = [(int(number), int(given)) for number, _, _, _, given in cards if given != "0"]
        self.assertTrue(mistakes)
        self.open("Reviewed", place)
        self.assertEqual(self.browser.run("return document.querySelectorAll('#mistakes button')"
                                          ".length"), len(mistakes))
        for at, (number, given) in enumerate(mistakes):
            self.browser.run("document.querySelectorAll('#mistakes button')[arguments[0]].click()", at)
            self.assertEqual(self.text("#place"), f"card {number} of 52")
            self.assertIn(f"It gives {given} trick", self.text("#said"))
            self.assertTrue(self.text(".card.given, .card .given").startswith("\u2212"))
        self.check_quiet()

    def test_every_text_stands_out(self):
        for dark in (False, True):
            self.browser.dark(dark)
            for place in ("", "#p1", "#b1", self.place_with_play(), "#ranking"):
                self.open("Club", "#p1")
                self.go(place)  # with the reader's own rows marked
                self.browser.press("End")
                self.assertEqual(self.probe("faintTexts()"), [], f"{place} dark {dark}")
            for place in ("#report", "#b1", self.place_with_play()):
                self.open("Reviewed", place)
                self.assertEqual(self.probe("faintTexts()"), [], f"reviewed {place} dark {dark}")

    def test_every_part_has_a_name(self):
        for place in ("", "#p1", self.place_with_play(), "#ranking"):
            self.open("Club", place)
            self.assertEqual(self.probe("namelessParts()"), [], place)
        for place in ("#report", self.place_with_play()):
            self.open("Reviewed", place)
            self.assertEqual(self.probe("namelessParts()"), [], place)
            self.assertEqual(self.browser.run("return document.documentElement.lang"), "en")

    def test_my_boards_are_found_by_number_and_name(self):
        self.open("Club")
        for typed, heading in (("East Player7", "7 East Player7 & West Player7"),
                               ("3 North", "3 North Player3 & South Player3")):
            self.browser.run("const own = document.getElementById('own'); own.value ="
                             " arguments[0]; own.dispatchEvent(new Event('change'))", typed)
            self.wait_for("return document.getElementById('heading').innerText === arguments[0]",
                          heading)
            rows = self.browser.run("return document.querySelectorAll('#view tbody tr').length")
            self.assertEqual(rows, 8)
        self.go("#b4")
        self.wait_for("return document.querySelectorAll('.ownrow').length === 1")
        self.assertIn("3 North Player3", self.text(".ownrow"))

    def test_names_are_held_back(self):
        for kind, shown in (("initials", "N.P. & S.P."), ("none", "Pair 3")):
            self.publish("Club", kind, "--names", kind)
            folder = self.home / "site" / kind
            bytes_of_all = b"".join(path.read_bytes() for path in folder.iterdir())
            for pair in range(1, 11):
                self.assertNotIn(f"Player{pair}".encode(), bytes_of_all)
            self.open(kind, "#b1")
            self.assertIn(shown, self.text("body"))
            self.check_quiet()

    def test_deals_alone_have_no_results(self):
        self.open("Deals")
        for selector in ("#chooser", "#to-ranking", "#to-own", ".results"):
            self.assertFalse(self.browser.run(
                "return document.querySelector(arguments[0])?.checkVisibility()", selector))
        self.assertIn("Makeable double-dummy", self.text("main"))
        self.check_quiet()

    def test_paper_has_no_buttons(self):
        self.browser.devtools("Emulation.setEmulatedMedia", media="print")
        try:
            self.open("Club", "#b1")
            for selector, shown in (("#session", True), ("#list", False), ("#print", False),
                                    (".step", False), (".results", True), (".diagram", True),
                                    ("td.play", False)):
                self.assertEqual(self.browser.run(
                    "return document.querySelector(arguments[0]).checkVisibility()", selector),
                    shown, selector)
        finally:
            self.browser.devtools("Emulation.setEmulatedMedia", media="")

    def test_without_script_the_boards_are_linked(self):
        self.browser.devtools("Emulation.setScriptExecutionDisabled", value=True)
        try:
            self.open("Club")
            tree = self.browser.devtools("Accessibility.getFullAXTree")["nodes"]
            links = [node["name"]["value"] for node in tree
                     if node.get("role", {}).get("value") == "link"]
            self.assertEqual(links, ["boards.pbn"])
        finally:
            self.browser.devtools("Emulation.setScriptExecutionDisabled", value=False)

    def test_a_whole_evening_is_small_and_quick(self):
        size = (self.home / "site/Evening/index.html").stat().st_size
        self.assertLess(size, 1_000_000)
        times = []
        for _ in range(5):
            self.open("Evening")
            self.wait_for("return performance.getEntriesByName('first-contentful-paint').length")
            times.append(self.browser.run(
                "return performance.getEntriesByName('first-contentful-paint')[0].startTime"))
        print(f"36 boards at 15 tables: {size} bytes, first board shown after {min(times):.0f} ms")
        self.assertLess(min(times), 200, times)


if __name__ == "__main__":
    unittest.main(verbosity=2)

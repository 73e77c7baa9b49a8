"""A browser without a screen, worked by WebDriver (https://www.w3.org/TR/webdriver2/)."""

import base64
import json
import pathlib
import shutil
import socket
import subprocess
import tempfile
import time
import urllib.error
import urllib.request

START_LIMIT = 30  # seconds until the driver answers
CALL_LIMIT = 60  # seconds for one call of it
BACKSPACE = "\ue003"
KEYS = {"Home": "\ue011", "End": "\ue010", "ArrowLeft": "\ue012", "ArrowRight": "\ue014",
        "Tab": "\ue004", "Enter": "\ue007"}
FLAGS = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
         "--disable-background-networking", "--disable-component-update", "--disable-sync",
         "--hide-scrollbars"]


class Failure(Exception):
    """The browser has refused something."""


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class Browser:
    """One window; `with Browser() as browser` ends it and its driver."""

    def __init__(self, flags=()):
        self.profile = tempfile.mkdtemp(prefix="tricklet-browser-")
        self.address = f"http://127.0.0.1:{free_port()}"
        self.driver = subprocess.Popen(
            ["chromedriver", "--port=" + self.address.rsplit(":", 1)[1]],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            self._wait_for_driver()
            self.session = self._begin(flags)
        except BaseException:
            self._end_driver()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        try:
            self._call("DELETE", "/session/" + self.session)
        except (OSError, Failure):
            pass
        self._end_driver()

    def _end_driver(self):
        self.driver.terminate()
        try:
            self.driver.wait(10)
        except subprocess.TimeoutExpired:
            self.driver.kill()
            self.driver.wait()
        shutil.rmtree(self.profile, ignore_errors=True)

    def _wait_for_driver(self):
        end = time.monotonic() + START_LIMIT
        while True:
            try:
                if self._call("GET", "/status")["ready"]:
                    return
            except (OSError, Failure):
                pass
            if time.monotonic() > end or self.driver.poll() is not None:
                raise Failure("chromedriver does not answer")
            time.sleep(0.1)

    def _begin(self, flags):
        options = {"args": [*FLAGS, f"--user-data-dir={self.profile}", *flags]}
        wanted = {"browserName": "chrome", "goog:chromeOptions": options,
                  "goog:loggingPrefs": {"browser": "ALL"}}
        return self._call("POST", "/session",
                          {"capabilities": {"alwaysMatch": wanted}})["sessionId"]

    def _call(self, method, path, body=None):
        data = None if body is None else json.dumps(body).encode()
        request = urllib.request.Request(self.address + path, data, method=method,
                                         headers={"Content-Type": "application/json"})
        try:
            with urllib.request.urlopen(request, timeout=CALL_LIMIT) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as error:
            raise Failure(json.load(error)["value"]["message"]) from error

    def _post(self, path, **body):
        return self._call("POST", f"/session/{self.session}/{path}", body)

    def open(self, address):
        self._post("url", url=address)

    def back(self):
        self._post("back")

    def run(self, script, *arguments):
        """The value of a script's `return`."""
        return self._post("execute/sync", script=script, args=list(arguments))

    def press(self, *keys):
        """Presses keys one after the other, by their names."""
        actions = []
        for key in keys:
            value = KEYS.get(key, key)
            actions += [{"type": "keyDown", "value": value}, {"type": "keyUp", "value": value}]
        self._post("actions", actions=[{"type": "key", "id": "keys", "actions": actions}])

    def touch(self, begin, end):
        """Moves a finger from one place (x, y) in the window to another."""
        def move(place):
            return {"type": "pointerMove", "duration": 50, "x": place[0], "y": place[1]}
        self._post("actions", actions=[{
            "type": "pointer", "id": "finger", "parameters": {"pointerType": "touch"},
            "actions": [move(begin), {"type": "pointerDown"}, move(end), {"type": "pointerUp"}]}])

    def devtools(self, command, **parameters):
        return self._post("goog/cdp/execute", cmd=command, params=parameters)

    def size(self, width, height, scale=1):
        self.devtools("Emulation.setDeviceMetricsOverride", width=width, height=height,
                      deviceScaleFactor=scale, mobile=False)

    def dark(self, dark):
        value = "dark" if dark else "light"
        self.devtools("Emulation.setEmulatedMedia",
                      features=[{"name": "prefers-color-scheme", "value": value}])

    def picture(self, path, whole=False):
        data = self.devtools("Page.captureScreenshot", format="png",
                             captureBeyondViewport=whole)["data"]
        pathlib.Path(path).write_bytes(base64.b64decode(data))

    def log(self):
        """What has come into the console since the last call."""
        return [entry["message"] for entry in self._post("se/log", type="browser")]

"""A browser to test with: WebDriver is HTTP and JSON, so Python's standard library is enough."""

import json
import os
import shutil
import subprocess
import time
import urllib.error
import urllib.request

KEYS = {"Enter": "\ue007", "Escape": "\ue00c", "ArrowLeft": "\ue012", "ArrowUp": "\ue013", "ArrowRight": "\ue014",
        "ArrowDown": "\ue015", "Shift": "\ue008"}
ELEMENT = "element-6066-11e4-a52e-4f735466cecf"


def programs():
    """The paths of Chromium and its driver; each None if it is missing."""
    return shutil.which("chromium"), shutil.which("chromedriver")


class Failure(AssertionError):
    """What was waited for did not come."""


def wait_for(what, condition, seconds=20):
    """Waits until a condition gives something true, which it returns."""
    end = time.monotonic() + seconds
    while True:
        last = condition()
        if last:
            return last
        if time.monotonic() > end:
            raise Failure(f"{what}: not within {seconds} s")
        time.sleep(0.02)


class Browser:
    """A browser without a screen. Its first tab is open."""

    def __init__(self, folder):
        chromium, driver = programs()
        self.folder = folder
        # A profile, caches and crash reports belong to the test.
        environment = {**os.environ, "HOME": folder, "XDG_CONFIG_HOME": folder, "XDG_CACHE_HOME": folder}
        self.log = open(os.path.join(folder, "driver.log"), "w+b")
        self.process = subprocess.Popen([driver, "--port=0"], stdout=self.log, stderr=subprocess.STDOUT, env=environment)
        try:
            self._start(chromium)
        except BaseException:
            self.process.terminate()
            raise

    def _start(self, chromium):
        self.address = f"http://127.0.0.1:{wait_for('the driver', self._port)}/session"
        options = {
            "binary": chromium,
            "args": ["--headless=new", "--no-sandbox", "--disable-gpu", "--no-first-run", "--disable-dev-shm-usage",
                     "--disable-background-networking", "--disable-component-update",
                     f"--user-data-dir={os.path.join(self.folder, 'profile')}"],
        }
        capabilities = {"browserName": "chrome", "goog:chromeOptions": options,
                        "goog:loggingPrefs": {"browser": "ALL"}}
        session = self._call("POST", "", {"capabilities": {"alwaysMatch": capabilities}})
        self.address += "/" + session["sessionId"]
        self.command("Emulation.setDeviceMetricsOverride", width=1280, height=720, deviceScaleFactor=1, mobile=False)
        self.command("Browser.setDownloadBehavior", behavior="allow", downloadPath=self.folder)

    def _port(self):
        self.log.seek(0)
        text = self.log.read().decode()
        return text.split("on port ")[-1].split(".")[0] if "successfully on port" in text else None

    def _call(self, method, path, body=None):
        data = None if method == "GET" else json.dumps(body or {}).encode()
        request = urllib.request.Request(self.address + path, data, {"Content-Type": "application/json"},
                                         method=method)
        try:
            with urllib.request.urlopen(request, timeout=60) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as error:
            value = json.load(error)["value"]
            raise Failure(f"{path}: {value['error']}: {value['message'].splitlines()[0]}") from None

    def close(self):
        try:
            self._call("DELETE", "")
        finally:
            self.process.terminate()
            self.process.wait()
            self.log.close()

    def command(self, name, **parameters):
        """A command of the browser's own protocol."""
        return self._call("POST", "/goog/cdp/execute", {"cmd": name, "params": parameters})

    def open(self, address):
        self._call("POST", "/url", {"url": address})

    def new_tab(self, address):
        """Opens a tab, which hides the others. @return its name"""
        handle = self._call("POST", "/window/new", {"type": "tab"})["handle"]
        self.switch_to(handle)
        self.open(address)
        return handle

    def tab(self):
        return self._call("GET", "/window")

    def switch_to(self, handle):
        self._call("POST", "/window", {"handle": handle})

    def script(self, code, *arguments):
        """Runs a function's body in the page."""
        return self._call("POST", "/execute/sync", {"script": code, "args": list(arguments)})

    def find(self, selector):
        return self._call("POST", "/element", {"using": "css selector", "value": selector})[ELEMENT]

    def text(self, selector):
        return self.script("return document.querySelector(arguments[0])?.textContent ?? null", selector)

    def value(self, selector):
        return self.script("return document.querySelector(arguments[0])?.value ?? null", selector)

    def choose_file(self, selector, path):
        self._call("POST", f"/element/{self.find(selector)}/value", {"text": path})

    def minimize(self):
        """Hides the tab."""
        self._call("POST", "/window/minimize")

    def restore(self):
        self._call("POST", "/window/maximize")

    def close_tab(self):
        self._call("DELETE", "/window")

    def is_shown(self, selector):
        return self.script("return document.querySelector(arguments[0])?.checkVisibility() ?? false", selector)

    def click(self, selector):
        self.script("document.querySelector(arguments[0]).scrollIntoView({ block: 'center' })", selector)
        self._call("POST", f"/element/{self.find(selector)}/click")

    def type(self, selector, text, *keys):
        """Replaces what a field holds, then presses keys."""
        self.script("document.querySelector(arguments[0]).select()", selector)
        self.press(selector, text, *keys)

    def press(self, selector, *keys):
        typed = "".join(KEYS.get(key, key) for key in keys)
        self._call("POST", f"/element/{self.find(selector)}/value", {"text": typed})

    def drag(self, selector, right, down):
        """Drags the middle of an element with the mouse."""
        def move(x, y, origin):
            return {"type": "pointerMove", "duration": 20, "x": x, "y": y, "origin": origin}
        actions = [move(0, 0, {ELEMENT: self.find(selector)}), {"type": "pointerDown", "button": 0},
                   move(right // 2, down // 2, "pointer"), move(right - right // 2, down - down // 2, "pointer"),
                   {"type": "pointerUp", "button": 0}]
        self._call("POST", "/actions", {"actions": [
            {"type": "pointer", "id": "mouse", "parameters": {"pointerType": "mouse"}, "actions": actions}]})

    def messages(self):
        """What the console of the browser has shown since the last call."""
        return [f"{entry['level']} {entry['message']}" for entry in self._call("POST", "/se/log", {"type": "browser"})]

"""A page in Chromium without a window, driven through the pipe of its debugging protocol."""

import json
import os
import shutil
import signal
import subprocess
import tempfile
import time

PATIENCE = 30  # seconds


class Browser:
    """One browser with one tab. It notes each request, each dialog and each complaint of a page."""

    def __init__(self, width, height):
        self.folder = tempfile.mkdtemp(prefix="play-test-")
        self.requests, self.dialogs, self.complaints = [], [], []
        self._last, self._answers, self._rest, self._session = 0, {}, b"", None
        read_commands, self._commands = os.pipe()
        self._events, write_events = os.pipe()
        # It reads from descriptor 3 and writes to 4.
        arguments = ["chromium", "--headless=new", "--no-sandbox", "--disable-gpu", "--no-first-run",
                     "--disable-dev-shm-usage", "--disable-extensions", "--remote-debugging-pipe",
                     "--disable-background-networking", "--disable-component-update",
                     f"--user-data-dir={self.folder}/profile", f"--window-size={width},{height}",
                     "about:blank"]
        self._process = subprocess.Popen(
            ["bash", "-c", f'exec "$@" 3<&{read_commands} 4>&{write_events}', "bash", *arguments],
            pass_fds=(read_commands, write_events), start_new_session=True,
            env={**os.environ, "HOME": self.folder}, stderr=subprocess.DEVNULL)
        os.close(read_commands)
        os.close(write_events)
        pages = self.call("Target.getTargets")["targetInfos"]
        page = next(info["targetId"] for info in pages if info["type"] == "page")
        self._session = self.call("Target.attachToTarget", targetId=page, flatten=True)["sessionId"]
        for domain in ("Page", "Network", "Runtime", "Log"):
            self.call(domain + ".enable")
        self.resize(width, height)
        self.call("Emulation.setTouchEmulationEnabled", enabled=True)
        self.call("Browser.setDownloadBehavior", behavior="allow", downloadPath=self.folder)

    def close(self):
        os.killpg(self._process.pid, signal.SIGKILL)
        self._process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def resize(self, width, height):
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height,
                  deviceScaleFactor=1, mobile=True)

    def call(self, method, **parameters):
        self._last += 1
        message = {"id": self._last, "method": method, "params": parameters}
        if self._session:
            message["sessionId"] = self._session
        os.write(self._commands, json.dumps(message).encode() + b"\0")
        while self._last not in self._answers:
            self._hear()
        answer = self._answers.pop(self._last)
        if "error" in answer:
            raise RuntimeError(f"{method}: {answer['error']}")
        return answer["result"]

    def _hear(self):
        while b"\0" not in self._rest:
            piece = os.read(self._events, 1 << 20)
            if not piece:
                raise RuntimeError("the browser has ended")
            self._rest += piece
        text, self._rest = self._rest.split(b"\0", 1)
        message = json.loads(text)
        if "id" in message:
            self._answers[message["id"]] = message
            return
        method, parameters = message["method"], message.get("params", {})
        if method == "Network.requestWillBeSent":
            self.requests.append(parameters["request"]["url"])
        elif method == "Page.javascriptDialogOpening":
            self.dialogs.append(parameters["message"])
        elif method == "Log.entryAdded":
            self.complaints.append(parameters["entry"]["text"])
        elif method == "Runtime.exceptionThrown":
            self.complaints.append(json.dumps(parameters["exceptionDetails"]))
        elif method == "Runtime.consoleAPICalled" and parameters["type"] == "error":
            self.complaints.append(json.dumps(parameters["args"]))

    def open(self, file):
        self.call("Page.navigate", url="file://" + file)
        self.wait_for("document.readyState === 'complete' && location.protocol === 'file:'")

    def reload(self):
        self.run("window.isOld = true")
        self.call("Page.reload")
        self.wait_for("!window.isOld && document.readyState === 'complete'")

    def run(self, script):
        """The value of an expression."""
        answer = self.call("Runtime.evaluate", expression=script, returnByValue=True,
                           allowUnsafeEvalBlockedByCSP=False)
        if "exceptionDetails" in answer:
            raise RuntimeError(f"{script}: {answer['exceptionDetails']}")
        return answer["result"].get("value")

    def becomes(self, condition, seconds):
        """Whether it is true within so many seconds."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            try:
                if self.run(condition):
                    return True
            except RuntimeError:
                pass  # between two pages
            time.sleep(0.02)
        return False

    def wait_for(self, condition):
        if not self.becomes(condition, PATIENCE):
            raise AssertionError("never true: " + condition)

    def tap_at(self, *points):
        """A finger that goes from point to point, once the page has been painted as it is scrolled now: what a
        finger meets is found by what is on the screen."""
        self.call("Runtime.evaluate", awaitPromise=True, expression="new Promise("
                  "done => requestAnimationFrame(() => requestAnimationFrame(done)))")
        for i, (x, y) in enumerate(points):
            self.call("Input.dispatchTouchEvent", type="touchMove" if i else "touchStart",
                      touchPoints=[{"x": x, "y": y}])
        self.call("Input.dispatchTouchEvent", type="touchEnd", touchPoints=[])

    def middle_of(self, element):
        """Of what an expression finds, once it has been scrolled to."""
        return self.run(f"(() => {{ const e = {element}; e.scrollIntoView({{block: 'center'}});"
                        " const r = e.getBoundingClientRect();"
                        " return [r.x + r.width / 2, r.y + r.height / 2]; })()")

    def tap(self, element):
        self.tap_at(self.middle_of(element))

    def press(self, key, code, number, shift=False, control=False):
        for kind in ("keyDown", "keyUp"):
            self.call("Input.dispatchKeyEvent", type=kind, key=key, code=code, windowsVirtualKeyCode=number,
                      modifiers=control * 2 + shift * 8,
                      text=key if len(key) == 1 and not control else "")

    def choose_file(self, selector, file):
        root = self.call("DOM.getDocument")["root"]["nodeId"]
        node = self.call("DOM.querySelector", nodeId=root, selector=selector)["nodeId"]
        self.call("DOM.setFileInputFiles", files=[file], nodeId=node)

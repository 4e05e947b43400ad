"""A client of the control panel: the program, requests and events. Python's standard library only."""

import base64
import http.client
import json
import os
import re
import signal
import socket
import struct
import subprocess
import time

TIMEOUT = 60  # seconds, for anything that is waited for


class Program:
    """A program that runs until the end of the block."""

    def __init__(self, *command):
        self.process = subprocess.Popen(command, stdout=subprocess.PIPE, text=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.stop()

    def line(self):
        return self.process.stdout.readline()

    def stop(self, number=signal.SIGTERM):
        if self.process.poll() is None:
            self.process.send_signal(number)
        self.process.wait(TIMEOUT)
        self.process.stdout.close()
        return self.process.returncode


class Panel(Program):
    """`qdv12host panel`, and requests to it."""

    def __init__(self, host, camera, *options):
        super().__init__(host, "panel", camera, *options)
        self.url = self.line().strip()
        found = re.fullmatch(r"http://127\.0\.0\.1:(\d+)/#token=([0-9a-f]{32})", self.url)
        assert found, f"the panel did not start: {self.url!r}"
        self.port, self.token = int(found[1]), found[2]
        assert f"ssh -L {self.port}:127.0.0.1:{self.port} HOST" in self.line()

    def request(self, method, path, body=None, headers=None):
        """The status and the content of an answer; JSON is decoded."""
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=TIMEOUT)
        connection.request(method, path, body if body is None or isinstance(body, str) else json.dumps(body),
                           {"Authorization": f"Bearer {self.token}"} if headers is None else headers)
        answer = connection.getresponse()
        content = answer.read()
        connection.close()
        is_json = answer.getheader("Content-Type", "").startswith("application/json")
        return answer.status, json.loads(content) if is_json else content

    def get(self, path):
        status, content = self.request("GET", path)
        assert status == 200, (path, status, content)
        return content

    def value(self, function):
        return self.get(f"/api/functions/{function}")["value"]

    def set(self, function, value, **more):
        return self.request("PUT", f"/api/functions/{function}", {"value": value, **more})


class Events:
    """The WebSocket of a panel."""

    def __init__(self, panel, token=None):
        self.socket = socket.create_connection(("127.0.0.1", panel.port), TIMEOUT)
        key = base64.b64encode(os.urandom(16)).decode()
        self.socket.sendall((f"GET /api/events HTTP/1.1\r\nHost: 127.0.0.1:{panel.port}\r\nConnection: Upgrade\r\n"
                             f"Upgrade: websocket\r\nSec-WebSocket-Version: 13\r\nSec-WebSocket-Key: {key}\r\n\r\n"
                             ).encode())
        self.received = self.socket.makefile("rb")
        status = self.received.readline()
        assert b" 101 " in status, status
        while self.received.readline() != b"\r\n":
            pass
        self.send({"token": panel.token if token is None else token})

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.received.close()
        self.socket.close()

    def send(self, message):
        content = (message if isinstance(message, str) else json.dumps(message)).encode()
        mask = os.urandom(4)
        size = struct.pack("!BB", 0x81, 0x80 | len(content)) if len(content) < 126 else struct.pack(
            "!BBH", 0x81, 0xFE, len(content))
        self.socket.sendall(size + mask + bytes(byte ^ mask[i % 4] for i, byte in enumerate(content)))

    def show(self, *functions, picture=None, trace=False, visible=True):
        self.send({"type": "view", "visible": visible, "functions": functions, "picture": picture, "trace": trace})

    def message(self):
        """The next message: JSON as an object, binary as bytes."""
        while True:
            first, size = self.received.read(2)
            if size == 126:
                size, = struct.unpack("!H", self.received.read(2))
            elif size == 127:
                size, = struct.unpack("!Q", self.received.read(8))
            content = self.received.read(size)
            kind = first & 15
            if kind == 9:
                self.socket.sendall(b"\x8a\x80\0\0\0\0")
            elif kind in (1, 2):
                return json.loads(content) if kind == 1 else content
            elif kind == 8:
                raise EOFError(struct.unpack("!H", content[:2])[0])

    def until(self, wanted):
        """The first message for which wanted() is true."""
        end = time.monotonic() + TIMEOUT
        while time.monotonic() < end:
            message = self.message()
            if isinstance(message, bytes):
                self.send({"type": "shown"})
            elif wanted(message):
                return message
        raise AssertionError("the message did not come")

    def value(self, function, wanted):
        """Waits until the function has a value for which wanted() is true."""
        def is_it(message):
            values = message.get("values", {})
            return message["type"] == "values" and function in values and wanted(values[function])
        return self.until(is_it)["values"][function]

    def picture(self):
        """The next picture: its description, and the JPEG. Asks for another one."""
        description = self.until(lambda message: message["type"] == "picture")
        jpeg = self.message()
        self.send({"type": "shown"})
        return description, jpeg

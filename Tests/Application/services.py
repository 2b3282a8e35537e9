"""What a desktop has beside its windows: a tray, notifications, a file manager, a portal. Some of them lie."""

import json
import pathlib
import queue
import socket
import subprocess
import threading

import session as sessions
from session import wait_until

FOLDER = pathlib.Path(__file__).parent
NOTIFICATIONS = FOLDER.parent / "DesktopSupport/Programs/test-notification-service"
DESKTOP_SERVICE = FOLDER / "test-desktop-service"
TRAY = FOLDER / "test-status-notifier-host"


class Service:
    """A program of a test that takes a name on the bus, says "ready", and then tells what it is asked, line by line."""

    def __init__(self, session, *command):
        self._process = sessions.start(["/usr/bin/python3", "-B", *command], session.environment, stdout=subprocess.PIPE,
                                       text=True)
        self._lines = queue.SimpleQueue()
        self._heard = []
        self._reader = threading.Thread(target=self._read, args=(self._process.stdout,), daemon=True)
        self._reader.start()
        try:
            assert self.line() == "ready", f"{command} could not be started"
        except BaseException:
            self.end()
            raise

    def _read(self, stream):
        for line in stream:
            self._lines.put(line.strip())

    def line(self):
        """The next one."""
        return self._lines.get(timeout=sessions.LIMIT)

    def heard(self):
        """Everything that it was told so far."""
        while not self._lines.empty():
            self._heard.append(json.loads(self._lines.get()))
        return list(self._heard)

    def wait_to_hear(self, count=1):
        return wait_until(lambda: len(self.heard()) >= count and self.heard(), lambda: f"{count} calls, heard {self.heard()}")

    def end(self):
        """Once is enough, and twice does no harm."""
        sessions.end(self._process, keep_pipes=True)
        self._reader.join()
        self._process.stdout.close()


class FalseBus:
    """Takes connections as a bus does, and then is "silent" or "lies"."""

    def __init__(self, address, behaviour):
        self._lies = behaviour == "lies"
        self._taken = []
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.bind(str(address))
        self._socket.listen(64)
        threading.Thread(target=self._serve, daemon=True).start()

    def _serve(self):
        try:
            while True:
                connection, _ = self._socket.accept()
                self._taken.append(connection)
                if self._lies:
                    connection.sendall(b"OK and \xff\xfe nothing more\r\n" * 50)
        except OSError:
            return

    def was_asked(self):
        return bool(self._taken)

    def close(self):
        self._socket.shutdown(socket.SHUT_RDWR)
        for each in (self._socket, *self._taken):
            each.close()

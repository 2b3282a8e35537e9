"""A desktop session of its own: a display with a window manager, buses, and what a test adds (a tray, notifications)."""

import ctypes
import os
import pathlib
import signal
import subprocess
import time

from gi.repository import Gio, GLib

from picture import Picture

_PR_SET_PDEATHSIG = 1
# A slow machine under load; a condition that holds is seen at once.
LIMIT = int(os.environ.get("KARVELLO_TEST_LIMIT", 60))


def wait_until(condition, what, limit=None):
    """The first true value of `condition`, which is asked again and again."""
    limit = limit or LIMIT
    end = time.monotonic() + limit
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"waited {limit} s in vain: {what() if callable(what) else what}")
        time.sleep(0.03)


def _end_with_parent():
    ctypes.CDLL(None).prctl(_PR_SET_PDEATHSIG, signal.SIGKILL)


def start(command, environment, **options):
    """A process that ends with this one, however that ends."""
    return subprocess.Popen([str(word) for word in command], env=environment, preexec_fn=_end_with_parent,
                            stdin=subprocess.DEVNULL, **options)


def end(process, keep_pipes=False):
    """By its own number, and only if it is still ours."""
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()
    for pipe in (process.stdout, process.stderr):
        if pipe and not keep_pipes:
            pipe.close()


class Session:
    """What is in `environment` is all that a program needs to take part."""

    def __init__(self, folder, display=(1400, 1000)):
        self.folder = pathlib.Path(folder)
        self._display_size = display
        self._processes = []
        self._log = open(self.folder / "session.log", "wb")
        try:
            self._begin()
        except BaseException:
            print((self.folder / "session.log").read_text(errors="replace"), flush=True)
            self.close()
            raise

    def _begin(self):
        runtime = self.folder / "run"
        runtime.mkdir(mode=0o700)
        self.environment = {
            "PATH": os.environ["PATH"], "LANG": "C.UTF-8", "TZ": "UTC",
            "HOME": str(self.folder), "XDG_RUNTIME_DIR": str(runtime),
            "QT_QUICK_BACKEND": "software", "QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }
        self.environment["DISPLAY"] = self._start_display()
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_bus()
        # It starts the bus of the assistants, and tells of it on the session bus and on the display.
        self.run("/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1", "--screen-reader=1")
        manager = self.run("openbox", "--sm-disable", "--config-file", self._window_manager_settings())
        self.session_bus = connected(self.environment["DBUS_SESSION_BUS_ADDRESS"])
        wait_until(lambda: owner_of(self.session_bus, "org.a11y.Bus"), "the bus of the assistants")
        self.accessibility_address = self.session_bus.call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None, Gio.DBusCallFlags.NONE, 30_000,
            None).unpack()[0]
        self.accessibility_bus = connected(self.accessibility_address)
        wait_until(lambda: self.output("xdotool", "get_num_desktops").strip() == "1",
                   lambda: f"a window manager; it runs: {manager.poll() is None}")

    def run(self, *command, **variables):
        """A program that ends with the session at the latest."""
        process = start(command, {**self.environment, **variables}, stdout=self._log, stderr=self._log)
        self._processes.append(process)
        return process

    def output(self, *command):
        return subprocess.run([str(word) for word in command], env=self.environment, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, stdin=subprocess.DEVNULL, text=True, timeout=LIMIT).stdout

    def press(self, *keys):
        """As from a keyboard, to whatever has the focus."""
        self.output("xdotool", "key", "--clearmodifiers", *keys)

    def click(self, x, y, button=1):
        """As with a mouse."""
        self.output("xdotool", "mousemove", x, y, "click", button)

    def place(self, window):
        """On the screen: x, y, width, height; nothing of a window that has gone."""
        shape = dict(line.split("=") for line in
                     self.output("xdotool", "getwindowgeometry", "--shell", window).split())
        return [int(shape[name]) for name in ("X", "Y", "WIDTH", "HEIGHT")] if shape else None

    def picture(self, window):
        """A window as it is on the screen."""
        return Picture.of_screen(self.folder / "Xvfb_screen0").part(*self.place(window))

    def close(self):
        for process in reversed(self._processes):
            end(process)
        self._log.close()

    def _start_display(self):
        """The number comes from our process number: servers that look for a free one can take the same at the same time.

        Without -noreset the display begins anew when its last client goes, and takes along who just comes."""
        reading, writing = os.pipe()
        number = 100 + os.getpid() % 50_000
        width, height = self._display_size
        self._processes.append(start(
            ["Xvfb", f":{number}", "-displayfd", writing, "-screen", "0", f"{width}x{height}x24", "-nolisten", "tcp", "-noreset", "-fbdir",
             self.folder],
            self.environment, stdout=self._log, stderr=self._log, pass_fds=[writing]))
        os.close(writing)
        with open(reading) as pipe:
            assert pipe.readline().strip() == str(number), "no display could be started"
        return f":{number}"

    def _start_bus(self):
        configuration = self.folder / "session.conf"
        configuration.write_text(
            f"<busconfig><type>session</type><listen>unix:path={self.folder}/session.socket</listen>"
            "<policy context='default'><allow send_destination='*' eavesdrop='true'/><allow eavesdrop='true'/>"
            "<allow own='*'/></policy></busconfig>")
        process = start(["dbus-daemon", "--nofork", "--nopidfile", "--print-address=1", f"--config-file={configuration}"],
                        self.environment, stdout=subprocess.PIPE, stderr=self._log, text=True)
        self._processes.append(process)
        return process.stdout.readline().strip()

    def _window_manager_settings(self):
        """Two keys of its own, which close a window and have it fill the screen; and a window that opens gets the focus."""
        file = self.folder / "openbox.xml"
        file.write_text("<openbox_config xmlns='http://openbox.org/3.4/rc'><focus><focusNew>yes</focusNew></focus>"
                        "<theme><keepBorder>no</keepBorder></theme>"
                        "<desktops><number>1</number></desktops>"
                        "<keyboard><keybind key='A-F4'><action name='Close'/></keybind>"
                        "<keybind key='A-F10'><action name='ToggleMaximize'/></keybind></keyboard>"
                        # xdotool tells the place of a window wrongly by its frame.
                        "<applications><application class='*'><decor>no</decor></application></applications></openbox_config>")
        return file


def connected(address):
    flags = Gio.DBusConnectionFlags
    return Gio.DBusConnection.new_for_address_sync(
        address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)


def owner_of(bus, name):
    try:
        return bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetNameOwner",
                             GLib.Variant("(s)", (name,)), None, Gio.DBusCallFlags.NONE, 10_000, None).unpack()[0]
    except GLib.Error:
        return None

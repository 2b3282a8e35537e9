"""Figures to read, which no test can hold a machine to."""

import pathlib
import time

from case import ApplicationTest
from session import wait_until


class Figures(ApplicationTest):
    SECONDS = 5

    def memory(self, application):
        status = pathlib.Path(f"/proc/{application.process.pid}/status").read_text()
        return int(status.split("VmRSS:")[1].split()[0]) / 1024

    def processor_seconds(self, application):
        fields = pathlib.Path(f"/proc/{application.process.pid}/stat").read_text().rpartition(")")[2].split()
        return (int(fields[11]) + int(fields[12])) / 100

    def idle(self, application):
        """How much of one processor it takes, in percent."""
        before, begun = self.processor_seconds(application), time.monotonic()
        time.sleep(self.SECONDS)
        return 100 * (self.processor_seconds(application) - before) / (time.monotonic() - begun)

    def test_how_much_it_takes(self):
        host = self.start_tray()
        application = self.start_after_first_run()
        shown = time.monotonic() - application.started
        application.shown.wait_for("Live Dashboard", "heading")
        ready = time.monotonic() - application.started
        print(f"window after {shown:.2f} s, read by an assistant after {ready:.2f} s, {self.memory(application):.0f} MiB")
        print(f"idle with its window: {self.idle(application):.1f} percent of a processor")
        host.line()
        application.hide()
        print(f"idle in the tray: {self.idle(application):.1f} percent of a processor, {self.memory(application):.0f} MiB")
        self.assertTrue(application.is_running())

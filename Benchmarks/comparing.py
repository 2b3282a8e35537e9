"""What the comparing scripts share: runs in turn, their tables, the cold cache."""

import os
import pathlib
import platform
import statistics
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
DROP_CACHES = pathlib.Path("/proc/sys/vm/drop_caches")


class Measurement:
    def __init__(self, line):
        status, seconds, user, system, kib = line.split()
        self.status = int(status)
        self.seconds = float(seconds)
        self.processor = float(user) + float(system)
        self.mebibytes = int(kib) / 1024


def measure(programs, command):
    result = subprocess.run([programs / "karvello-measure", *command], capture_output=True, text=True, check=True)
    measurement = Measurement(result.stdout)
    if measurement.status != 0:
        sys.exit(f"exit status {measurement.status} of: {' '.join(command)}\n{result.stderr}")
    return measurement


def rounds(programs, contenders, count, before_each=None):
    """Each round runs every contender once; each begins with another one."""
    names = list(contenders)
    measured = {name: [] for name in names}
    for number in range(count):
        for step in range(len(names)):
            name = names[(number + step) % len(names)]
            if before_each:
                before_each()
            measured[name].append(measure(programs, contenders[name]))
    return measured


def print_table(title, measured):
    """The first contender is what the others are set in relation to, run by run."""
    base = next(iter(measured.values()))
    print(f"\n{title}, medians of {len(base)} rounds")
    print(f"  {'command':<26} {'seconds':>9} {'spread':>7} {'cpu s':>8} {'peak MiB':>9} {'time ratio':>11}")
    for name, runs in measured.items():
        seconds = [run.seconds for run in runs]
        median = statistics.median(seconds)
        ratio = statistics.median(run.seconds / other.seconds for run, other in zip(runs, base))
        print(f"  {name:<26} {median:9.4f} {(max(seconds) - min(seconds)) / median:7.0%}"
              f" {statistics.median(run.processor for run in runs):8.3f} {max(run.mebibytes for run in runs):9.1f}"
              f" {ratio:10.2f}x")


def can_drop_caches():
    return os.access(DROP_CACHES, os.W_OK)


def drop_caches():
    os.sync()
    DROP_CACHES.write_text("3\n")


def machine():
    model = next((line.split(":", 1)[1].strip() for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines()
                  if line.startswith("model name")), platform.machine())
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    return f"{model}, {len(os.sched_getaffinity(0))} processors, {memory:.0f} GiB, Linux {platform.release()}"

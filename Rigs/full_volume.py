"""Cleans on a volume that has no byte or no inode left. It is a file system of memory, in a namespace of its own."""

import json
import os
import pathlib
import subprocess
import sys
import tempfile
import time

import scene

SECONDS = 2
SHORTAGES = {"bytes": "size=2m", "inodes": "size=64m,nr_inodes=200"}


def fill(folder, shortage):
    """Takes all that the volume has left."""
    count = 0
    try:
        while True:
            with open(folder / f"fill-{count}", "wb", buffering=0) as file:
                count += 1
                size = 65536
                while shortage == "bytes" and size > 0:
                    try:
                        file.write(b"x" * size)
                    except OSError:
                        size //= 2
                if shortage == "bytes" and size == 0:
                    return
    except OSError:
        return


def offences_of(program, shortage, mover):
    """What is wrong after cleans on the full volume, one sentence each. To be run where mounting is possible."""
    volume = pathlib.Path(tempfile.mkdtemp(prefix="karvello-rig-volume-"))
    subprocess.run(["mount", "-t", "tmpfs", "-o", SHORTAGES[shortage] + ",mode=700", "tmpfs", volume], check=True)
    try:
        home = scene.Home(program, below=volume)
        home.add("file", "old")
        code, lines = home.run("clean")
        if code != 0:
            raise RuntimeError(f"the scene could not be set: {lines}")
        log = home.log.read_bytes()
        for kind in ("file", "folder"):
            home.add(kind, kind)
        fill(home.path / "data", shortage)
        begin = time.monotonic()
        code, lines = home.run("clean", "--mover", mover)
        seconds = time.monotonic() - begin
        found = []
        if seconds > SECONDS:
            found.append(f"it took {seconds:.1f} s")
        refused = [line for line in lines if line[0] == "failed" and "out of space" in line[2]]
        if code != 3 or len(refused) != 2:
            found.append(f"not refused in words: {code} {lines}")
        for name in ("file", "folder"):
            if not os.path.lexists(home.caches / name):
                found.append(f"{name} has left its place")
        if home.log.read_bytes() != log:
            found.append("the log has changed")
        found += [f"the record {path.name} is empty" for path in home.empty_records()] + home.offences()
        if not found:
            for path in (home.path / "data").glob("fill-*"):
                path.unlink()
            code, lines = home.run("clean")
            if code != 0 or home.offences():
                found.append(f"with room again: {code} {lines} {home.offences()}")
        return found
    finally:
        subprocess.run(["umount", "-l", volume], check=False)
        volume.rmdir()


def run(program, mode):
    command = ["unshare", "--user", "--map-root-user", "--mount", sys.executable, "-B", __file__, program]
    done = subprocess.run(command, capture_output=True, text=True, timeout=120)
    if done.returncode == 1 and "unshare" in done.stderr and not done.stdout:
        raise scene.Unavailable(f"this system makes no namespaces: {done.stderr.strip()}")
    if done.returncode != 0:
        raise RuntimeError(done.stderr)
    results = json.loads(done.stdout)
    for shortage in SHORTAGES:
        found = results[f"{shortage} product"]
        yield f"no {shortage} left: {len(found)} offences", found
    naive = sum(1 for shortage in SHORTAGES if results[f"{shortage} naive"])
    yield f"naive: caught on {naive} of {len(SHORTAGES)} volumes", None
    yield sum(len(results[f"{shortage} product"]) for shortage in SHORTAGES), naive


if __name__ == "__main__":
    print(json.dumps({f"{shortage} {mover}": offences_of(sys.argv[1], shortage, mover)
                      for shortage in SHORTAGES for mover in ("product", "naive")}))

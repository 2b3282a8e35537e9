"""The file systems that races run on: the default one and memory; in full, others in images where root can mount them."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import tempfile

IMAGE_BYTES = 512 * 1024 * 1024
MADE_BY = {"ext4": ("mkfs.ext4", "-q"), "xfs": ("mkfs.xfs", "-q"), "btrfs": ("mkfs.btrfs", "-q")}
MEMORY = "/dev/shm"


def _type_of(path):
    return subprocess.run(["stat", "-f", "-c", "%T", path], capture_output=True, text=True, check=True).stdout.strip()


def _ordinary():
    below = tempfile.gettempdir()
    found = [(f"{_type_of(below)} ({below})", below)]
    if os.path.isdir(MEMORY) and os.access(MEMORY, os.W_OK) and _type_of(MEMORY) == "tmpfs":
        return found + [("tmpfs", MEMORY)], []
    return found, [f"tmpfs: {MEMORY} is none"]


@contextlib.contextmanager
def quick():
    """The file systems, as pairs of a name and a folder, and what could not be had, each with its reason."""
    yield _ordinary()


@contextlib.contextmanager
def full():
    found, missing = _ordinary()
    with contextlib.ExitStack() as stack:
        folder = pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory(prefix="karvello-rig-images-")))
        for name, command in MADE_BY.items():
            if os.geteuid() != 0 or not shutil.which(command[0]):
                missing.append(f"{name}: it takes root and {command[0]}")
                continue
            image, target = folder / f"{name}.img", folder / name
            with open(image, "wb") as file:
                file.truncate(IMAGE_BYTES)
            target.mkdir()
            made = subprocess.run([*command, image], capture_output=True, text=True)
            mounted = made if made.returncode else subprocess.run(
                ["mount", "-o", "loop", image, target], capture_output=True, text=True)
            if mounted.returncode != 0:
                missing.append(f"{name}: {mounted.stderr.strip()}")
                continue
            stack.callback(subprocess.run, ["umount", "-l", target], check=False)
            found.append((f"{name} in an image", str(target)))
        yield found, missing

"""Disks and machines of other kinds, which nobody sees but this process and those that it starts from then on: small disks,
folders that take no writes, other figures of the kernel."""

import ctypes
import os
import unittest

_LIBRARY = ctypes.CDLL(None, use_errno=True)
_NEW_MOUNTS, _NEW_USER = 0x00020000, 0x10000000
_READ_ONLY, _REMOUNT, _BIND, _RECURSIVE, _PRIVATE = 0x1, 0x20, 0x1000, 0x4000, 0x40000
_DETACH = 2


def begin():
    """Before anything else that a test suite does: a process of more than one thread cannot leave its user any more."""
    user, group = os.getuid(), os.getgid()
    if _LIBRARY.unshare(_NEW_MOUNTS) != 0:
        if _LIBRARY.unshare(_NEW_USER | _NEW_MOUNTS) != 0:
            raise unittest.SkipTest(f"this user may make no mounts of their own: {os.strerror(ctypes.get_errno())}")
        for file, text in (("setgroups", "deny"), ("uid_map", f"{user} {user} 1"), ("gid_map", f"{group} {group} 1")):
            with open(f"/proc/self/{file}", "w") as stream:
                stream.write(text)
    _mount("none", "/", None, _RECURSIVE | _PRIVATE)


def put_small_disk(folder, size):
    """Over a folder: an empty disk with room for so many bytes."""
    _mount("tmpfs", folder, "tmpfs", 0, f"size={size}")


def make_read_only(folder):
    _mount(folder, folder, None, _BIND)
    _mount("none", folder, None, _REMOUNT | _BIND | _READ_ONLY)


def put_over(place, other):
    """`other` is what is found at this place."""
    _mount(other, place, None, _BIND)


def take_away(place):
    if _LIBRARY.umount2(os.fsencode(place), _DETACH) != 0:
        raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()), str(place))


def _mount(source, place, kind, flags, data=None):
    words = [os.fsencode(word) if word is not None else None for word in (source, place, kind)]
    if _LIBRARY.mount(*words, ctypes.c_ulong(flags), data.encode() if data else None) != 0:
        raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()), str(place))


class MountsOfTheirOwn:
    """For the cases of a suite that makes mounts; each goes with its test."""

    @classmethod
    def setUpClass(cls):
        begin()
        super().setUpClass()

    def put(self, mount, place, *more):
        mount(place, *more)
        self.addCleanup(take_away, place)

    def fill_disk(self, size=20_000_000, free=1_500_000):
        """The home on a disk with no more room than that."""
        self.put(put_small_disk, self.home.folder, size)
        self.home.add("ballast", size - free)

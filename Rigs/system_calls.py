"""Kills a clean or a restore at each of its system calls, or makes each of them fail.

strace runs the program: it counts the calls of each name for each thread, which is how a call is found again. What is
attacked lies between two calls of getppid(2).
"""

import collections
import concurrent.futures
import itertools
import os
import re
import shutil
import subprocess

import scene

STRACE = ("strace", "-f", "-qq")
ERRORS = ("EIO", "ENOSPC", "EDQUOT", "EACCES", "EPERM", "EROFS", "EMFILE", "EINTR", "EXDEV", "ENOENT", "ELOOP",
          "ENOSYS", "EOPNOTSUPP")
# Calls that do not reach a file, and one that has done its work before it fails.
NOT_OF_FILES = ("mmap", "munmap", "mprotect", "brk", "futex", "getppid", "geteuid", "getrandom", "exit_group", "close",
                "clock_nanosleep", "rt_sigprocmask")
# A file and a folder go through the services; links are refused there, so the mover is asked itself.
ACTIONS = {"file": ("clean", "restore"), "folder": ("clean", "restore"), "link": ("trash", "putback")}
# What a refusal says whose item is in the Trash, or back, all the same.
MOVED_ALL_THE_SAME = re.compile("another item had taken its place|could not be verified|Could not verify", re.IGNORECASE)


def prepared(program, kind, action):
    home = scene.Home(program)
    home.add(kind)
    if action in ("restore", "putback"):
        code, lines = home.run(ACTIONS[kind][0])
        if code != 0:
            raise RuntimeError(f"the scene of {action} could not be set: {lines}")
    return home


def attacked_calls(program, kind, action, mover):
    """How often each call is made, as pairs of its name and the numbers of its calls."""
    with prepared(program, kind, action) as home:
        log = home.path / "calls"
        code, lines = home.run(action, "--mover", mover, prefix=(*STRACE, "-o", log))
        if code != 0:
            raise RuntimeError(f"{action} of a {kind} fails without an attack: {lines}")
        calls = re.findall(r"^(\d+) +(\w+)\(", log.read_text(errors="replace"), re.MULTILINE)
    if len({thread for thread, _ in calls}) != 1:
        raise RuntimeError("the program has several threads: their calls must be counted apart")
    seen = collections.Counter()
    marks = 0
    attacked = []
    for _, name in calls:
        seen[name] += 1
        if name == "getppid":
            marks += 1
        elif marks == 1:
            attacked.append((name, seen[name]))
    if marks != 2:
        raise RuntimeError(f"{marks} marks instead of two")
    return attacked


def killed(program, kind, action, mover, call):
    """What is wrong after a kill on entering the call."""
    name, number = call
    with prepared(program, kind, action) as home:
        log = home.path / "calls"
        code, _ = home.run(action, "--mover", mover, prefix=(
            *STRACE, "-o", log, "-e", f"trace={name}", "-e", f"inject={name}:signal=SIGKILL:when={number}"))
        if code != -9 and code != 137:
            return [f"the kill did not strike (code {code})"]
        offences = [f"the record {path.name} is empty" for path in home.empty_records()]
        code, _ = home.run("start")
        if code != 0:
            offences.append(f"the next start fails ({code})")
        offences += home.offences()
        if os.path.lexists(home.caches / "item") and not offences:
            code, lines = home.run(ACTIONS[kind][0])
            if code != 0:
                offences.append(f"the next clean fails: {lines}")
            offences += home.offences()
        return offences


def failed(program, kind, action, mover, call, error, duration):
    """What is wrong after the call failed, once or from then on."""
    name, number = call
    with prepared(program, kind, action) as home:
        log = home.path / "calls"
        old_log = home.log.read_bytes() if home.log.exists() else None
        code, lines = home.run(action, "--mover", mover, prefix=(
            *STRACE, "-o", log, "-e", f"trace={name}", "-e", f"inject={name}:error={error}:when={number}{duration}"))
        if "(INJECTED)" not in log.read_text(errors="replace"):
            return ["the error did not strike"]
        offences = [f"the record {path.name} is empty" for path in home.empty_records()]
        if code not in (0, 3):
            offences.append(f"the program ended with {code}")
        is_in_place = os.path.lexists(home.caches / "item")
        is_done = is_in_place == (action in ("restore", "putback"))
        reasons = [line[-1] for line in lines if line[0] == "failed"]
        if code == 0 and not is_done:
            offences.append("the report says that it was done")
        elif code == 3 and is_done and reasons and not any(map(MOVED_ALL_THE_SAME.search, reasons)):
            offences.append(f"the report says that it was refused: {reasons}")
        home.run("start")
        return offences + home.offences(old_log)


def in_parallel(function, jobs):
    with concurrent.futures.ThreadPoolExecutor(max(2, os.cpu_count() or 2)) as pool:
        return list(pool.map(lambda job: (job, function(*job)), jobs))


def require_strace():
    if not shutil.which("strace"):
        raise scene.Unavailable("strace is missing (scripts/install-packages test)")
    probe = subprocess.run((*STRACE, "-o", "/dev/null", "-e", "trace=getppid", "true"), capture_output=True, text=True)
    if probe.returncode != 0:
        raise scene.Unavailable(f"this system lets no program be traced: {probe.stderr.strip()}")


def run_kills(program, mode):
    """Yields a line for each scene; the last tells how the naive mover fared."""
    require_strace()
    scenes = [(kind, action) for kind in scene.KINDS for action in ACTIONS[kind]]
    offences = 0
    for kind, action in scenes:
        calls = attacked_calls(program, kind, action, "product")
        bad = [(job[-1], found) for job, found in
               in_parallel(killed, [(program, kind, action, "product", call) for call in calls]) if found]
        offences += len(bad)
        yield f"{action} of a {kind}: killed at {len(calls)} calls, {len(bad)} unsound", bad[:5]
    jobs = [(program, "file", "clean", "naive", call) for call in attacked_calls(program, "file", "clean", "naive")]
    naive = sum(1 for _, found in in_parallel(killed, jobs) if found)
    yield f"naive: killed at {len(jobs)} calls, {naive} unsound", None
    yield offences, naive


def run_errors(program, mode):
    require_strace()
    scenes = [(kind, action) for kind in scene.KINDS for action in ACTIONS[kind]]
    every = list(itertools.product(ERRORS, ("", "+")))
    turn = itertools.cycle(every)
    offences = 0
    for kind, action in scenes:
        calls = [call for call in attacked_calls(program, kind, action, "product") if call[0] not in NOT_OF_FILES]
        if mode == "full":
            pairs = list(itertools.product(calls, every))
        else:
            # Each call fails in a few ways; across the scenes every error meets every kind of call.
            pairs = [(call, next(turn)) for call in calls for _ in range(3)]
        jobs = [(program, kind, action, "product", call, *error) for call, error in pairs]
        bad = [(job[-3:], found) for job, found in in_parallel(failed, jobs) if found]
        offences += len(bad)
        yield f"{action} of a {kind}: {len(calls)} calls, {len(jobs)} failures, {len(bad)} unsound", bad[:5]
    calls = [call for call in attacked_calls(program, "file", "clean", "naive") if call[0] not in NOT_OF_FILES]
    jobs = [(program, "file", "clean", "naive", call, "ENOSPC", "") for call in calls]
    naive = sum(1 for _, found in in_parallel(failed, jobs) if found)
    yield f"naive: {len(jobs)} failures, {naive} unsound", None
    yield offences, naive

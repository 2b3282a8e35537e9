"""rigs.py [--bin FOLDER] quick|full [RIG...]: runs the rigs and prints what each counted.

A rig has done its work only if the product stood and the naive mover, which it runs too, was caught. The exit code is 1
if a rig did not, and 77 if nothing else is wrong but that this system keeps a rig from its work; it says why.
"""

import argparse
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time

import desktops
import full_volume
import scene
import system_calls
import volumes

SKIPPED = 77
NAIVE_ATTEMPTS = 20_000
# On a busy machine the attacker may not get to strike between the two steps. Then the attempts prove nothing, and are
# made again for so many seconds.
PATIENCE = 120


def counts(line):
    return {name: int(value) for name, value in re.findall(r"(\w+)=(\d+)", line)}


def races(folder, program, attacks, quick, full, needed):
    """A rig of races: `attacks` on each file system, the attempts shared among them."""
    def run(_, mode):
        astray = 0
        caught = []
        file_systems = volumes.quick() if mode == "quick" else volumes.full()
        with file_systems as (found, missing):
            for reason in missing:
                yield f"not run on {reason}", None
            each = (quick if mode == "quick" else full) // (len(attacks) * len(found))
            for name, path in found:
                for attack in attacks:
                    def attempt(mover, attempts):
                        words = [folder / program, "--below", path, "--mover", mover, "--attempts", str(attempts)]
                        words += ["--attack", attack] if attack else []
                        done = subprocess.run(words, capture_output=True, text=True)
                        if done.returncode not in (0, 1):
                            raise RuntimeError(f"{attack} on {name}: {done.stderr}")
                        return counts(done.stdout)
                    deadline = time.monotonic() + PATIENCE
                    while True:
                        product = attempt("product", each)
                        naive = attempt("naive", NAIVE_ATTEMPTS)
                        astray += product["astray"]
                        raced = all(product[count] > 0 for count in needed) and naive["astray"] > 0
                        if raced or astray or time.monotonic() > deadline:
                            break
                    if not raced and not astray:
                        raise scene.Unavailable(f"the attacker of {attack} on {name} did not get to strike in "
                                                f"{PATIENCE} s: {product}, naive {naive}")
                    caught.append(naive["astray"] > 0)
                    told = " ".join(f"{count}={value}" for count, value in product.items())
                    yield (f"{attack or 'made anew'} on {name}: {told}; naive "
                           + (f"caught after {naive['attempts']}" if caught[-1] else "NOT CAUGHT")), None
        yield astray, all(caught)
    return run


def identities(folder):
    """Numbers of files are given again only by some file systems: where they are not, nothing is proved."""
    def run(_, mode):
        attempts = 20_000
        program = folder / "karvello-rig-identities"
        below = tempfile.gettempdir()
        results = []
        for mover in ("product", "naive"):
            done = subprocess.run([program, "--below", below, "--mover", mover, "--attempts", str(attempts)],
                                  capture_output=True, text=True)
            if done.returncode not in (0, 1):
                raise RuntimeError(done.stderr)
            results.append(counts(done.stdout))
        product, naive = results
        if product["same_number"] == 0:
            raise scene.Unavailable(f"the file system of {below} never gives the number of a file again")
        yield (f"{product['attempts']} files made anew, {product['same_number']} with the same number, "
               f"{product['astray']} accepted; naive accepted {naive['astray']}"), None
        yield product["astray"], naive["astray"]
    return run


def all_rigs(folder):
    clean = "karvello-rig-clean-races"
    return {
        "clean-races": races(folder, clean, ("link", "folder", "leaf"), 300_000, 12_000_000, ("strikes", "moved", "refused")),
        "restore-races": races(folder, "karvello-rig-restore-races", ("link", "occupied", "leaf"), 200_000, 4_000_000,
                               ("strikes", "restored", "refused")),
        "rollback": races(folder, clean, ("rollback",), 100_000, 1_000_000, ("strikes", "left_in_trash", "refused")),
        "identities": identities(folder),
        "kills": system_calls.run_kills,
        "errors": system_calls.run_errors,
        "full-volume": full_volume.run,
        "desktops": desktops.run,
    }


def run(name, rig, program, mode):
    """Whether the rig did its work: "passed", "failed" or "skipped"."""
    begin = time.monotonic()
    print(f"{name}:", flush=True)
    try:
        offences, naive = None, None
        for line, details in rig(program, mode):
            if isinstance(line, str):
                print(f"  {line}", flush=True)
                for detail in details or ():
                    print(f"    {detail}", flush=True)
            else:
                offences, naive = line, details
    except scene.Unavailable as reason:
        print(f"  SKIPPED: {reason}", flush=True)
        return "skipped"
    except (RuntimeError, subprocess.SubprocessError, OSError) as error:
        print(f"  NOT DONE: {error}", flush=True)
        return "failed"
    verdict = "failed" if offences else "passed" if naive else "not done: the naive mover was not caught"
    print(f"  {verdict}, {time.monotonic() - begin:.0f} s", flush=True)
    return "passed" if verdict == "passed" else "failed"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--bin", type=pathlib.Path, default=pathlib.Path("build/dev/bin"))
    parser.add_argument("mode", choices=("quick", "full"))
    parser.add_argument("rig", nargs="*")
    arguments = parser.parse_args()
    folder = arguments.bin.resolve()
    rigs = all_rigs(folder)
    unknown = [name for name in arguments.rig if name not in rigs]
    if unknown:
        parser.error(f"no such rig: {', '.join(unknown)} (there are {', '.join(rigs)})")
    # The rigs' own homes only: nothing they start may know the real one.
    os.environ["HOME"] = "/nonexistent"
    for variable in ("XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"):
        os.environ.pop(variable, None)
    results = [run(name, rigs[name], folder / "karvello-rig-move", arguments.mode)
               for name in arguments.rig or rigs]
    print(", ".join(f"{results.count(result)} {result}" for result in ("passed", "failed", "skipped")))
    if "failed" in results:
        return 1
    return SKIPPED if "skipped" in results else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs Brisko and the programs that people use for the same work side by side, whole programs in one run, in turn, and
prints the ratio of Brisko's median to that of the fastest of the others beside the limit that it is held to. What they
found is compared too, so that nobody is fast by finding less.

Ends with 0 when everything could be run and agreed, missed limits included (--strict makes those 1), else with 1."""

import argparse
import json
import os
import shutil
import statistics
import subprocess
import sys
import tempfile

import trees
import window
import works

HERE = os.path.dirname(os.path.abspath(__file__))
TOP = os.path.dirname(HERE)
MARK = ".brisko-bench"  # tells a scratch folder of ours from any other
DROP_CACHES = "/proc/sys/vm/drop_caches"
HOPELESS = 5  # times slower than the fastest of the others in the first run: such a one is not asked again


class Trouble(Exception):
    """Something could not be run, or the programs did not find the same."""


def say(words):
    print(words, file=sys.stderr, flush=True)


class Scratch:
    """The folder that everything happens in. Nothing outside of it is written, and no real home is seen."""

    def __init__(self, path, need, keep):
        self.path, self.keep, self.aside = os.path.realpath(path), keep, 0
        if os.path.lexists(path):
            if not os.path.exists(os.path.join(path, MARK)):
                raise Trouble(f"{path} exists and was not made by this script.")
            shutil.rmtree(path)
        os.makedirs(path, mode=0o700)
        with open(os.path.join(path, MARK), "x", encoding="ascii"):
            pass
        free = shutil.disk_usage(path).free
        say(f"Works in {path}; needs about {need / 1e9:.1f} GB there, {free / 1e9:.1f} GB are free.")
        if free < need * 1.1:
            self.remove()
            raise Trouble("That is too little. Another place can be named with --scratch.")

    def folder(self, *names):
        return os.path.join(self.path, *names)

    def remove(self):
        if not self.keep:
            shutil.rmtree(self.path)

    def put_aside(self, path):
        """Out of the way, but not removed before the end: ext4 makes new files slowly for minutes after it has removed
        many, which would be added to everybody's time."""
        if os.path.lexists(path):
            os.makedirs(self.folder("aside"), exist_ok=True)
            self.aside += 1
            os.rename(path, self.folder("aside", str(self.aside)))

    def home(self, contender):
        """The home of one contender, as the environment of a run. Each keeps its own, as people do: what a first start
        writes down belongs to the round that warms up. Its Trash is empty every time."""
        home = self.folder("home of " + contender)
        places = {"HOME": home, "XDG_DATA_HOME": f"{home}/.local/share", "XDG_CONFIG_HOME": f"{home}/.config",
                  "XDG_CACHE_HOME": f"{home}/.cache", "XDG_STATE_HOME": f"{home}/.local/state",
                  "XDG_RUNTIME_DIR": f"{home}/.run", "TMPDIR": f"{home}/.tmp"}
        for place in places.values():
            os.makedirs(place, mode=0o700, exist_ok=True)
        self.put_aside(os.path.join(places["XDG_DATA_HOME"], "Trash"))
        return {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "TZ": "UTC", **places}


class Runner:
    def __init__(self, scratch, rounds, settles):
        self.scratch, self.rounds, self.settles = scratch, rounds, settles
        self.output = scratch.folder("output")

    def launch(self, command):
        """Runs a command to its end; answers what it took and what it printed."""
        launcher = [sys.executable, "-I", "-S", os.path.join(HERE, "launch.py"), self.output, *command]
        answer = subprocess.run(launcher, env=self.environment, cwd=self.scratch.path, stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, check=True)
        with open(self.output, "rb") as file:
            return json.loads(answer.stdout), file.read()

    def errors(self):
        with open(self.output + ".errors", encoding="utf-8", errors="replace") as file:
            return file.read(2_000).strip()

    def once(self, work, contender, tree, cold):
        """One run; answers its figures and what was found."""
        self.environment = self.scratch.home(contender.name)
        if work.consumes:
            copy = self.scratch.folder("copy")
            self.scratch.put_aside(copy)
            subprocess.run(["cp", "-a", tree, copy], check=True)
            tree = copy
        if self.settles:
            os.sync()  # what was written before is not paid for in the run
        if cold:
            with open(DROP_CACHES, "w", encoding="ascii") as file:
                file.write("3")
        figures, output = self.launch(contender.command(tree))
        if figures["status"] not in contender.statuses:
            raise Trouble(f"{contender.name} ended with {figures['status']}: {self.errors()}")
        return figures, contender.found(works.Run(output, tree, self.environment["XDG_DATA_HOME"]))

    def compare(self, work, tree, cold):
        """Everybody in turn; answers each one's runs by name. The first round warms up and is not counted."""
        first, found = {}, {}
        for contender in work.contenders:
            first[contender.name], found[contender.name] = self.once(work, contender, tree, cold)
        self.agree(work, found)
        others = work.contenders[1:]
        fastest = min(first[other.name]["seconds"] for other in others)
        hopeless = [other for other in others if first[other.name]["seconds"] > HOPELESS * fastest]
        runs = {contender.name: [first[contender.name]] if contender in hopeless else []
                for contender in work.contenders}
        for _ in range(self.rounds):
            for contender in work.contenders:
                if contender in hopeless:
                    continue
                figures, what = self.once(work, contender, tree, cold)
                if what != found[contender.name]:
                    raise Trouble(f"{contender.name} found something else in another run.")
                runs[contender.name].append(figures)
        return runs

    def agree(self, work, found):
        ours = found[work.contenders[0].name]
        for name, theirs in found.items():
            a, b = (ours, theirs) if isinstance(theirs, type(ours)) else (work.reduced(ours), work.reduced(theirs))
            if a != b:
                raise Trouble(f"{name} and {work.contenders[0].name} did not find the same: {describe(b)} and "
                              f"{describe(a)}.")
        if not ours:
            raise Trouble("Nothing was found at all.")


def describe(found):
    return f"{len(found)} results" if isinstance(found, frozenset) else str(found)


class Table:
    """The lines of the report; remembers whether a limit was missed."""

    def __init__(self):
        self.missed = 0
        print(f"{'work':<36} {'Brisko':>10} {'others':<58} {'ratio':>6} {'limit':>6}", flush=True)

    def race(self, title, runs, limit):
        median = {name: statistics.median(run["seconds"] for run in figures) for name, figures in runs.items()}
        ours, *others = median.values()
        ratio = ours / min(others)
        words = ", ".join(f"{name} {seconds(median[name])}" + ("*" if len(runs[name]) == 1 else "")
                          for name in list(runs)[1:])
        self.line(title, seconds(ours), words, f"{ratio:.2f}", f"{limit:.2f}", ratio <= limit)

    def counted(self, title, value, words, ratio, limit=1):
        self.line(title, value, words, f"{ratio:.2f}", f"{limit:.2f}", ratio <= limit)

    def line(self, title, ours, others, ratio, limit, kept):
        self.missed += not kept
        print(f"{title:<36} {ours:>10} {others:<58} {ratio:>6} {limit:>6} {'' if kept else 'MISSED'}".rstrip(),
              flush=True)


def seconds(value):
    return f"{value * 1000:.0f} ms" if value < 10 else f"{value:.1f} s"


def can_drop_caches():
    return os.access(DROP_CACHES, os.W_OK)


def make_tree(scratch, work, scale):
    say(f"Making the tree for {work.title}…")
    tree = scratch.folder("tree " + work.make.__name__)
    if not os.path.exists(tree):
        os.mkdir(tree)
        work.make(tree, scale)
    return tree


def race(work, tree, runner, table, cold_too):
    contenders = [contender for contender in work.contenders if works.installed(contender)]
    for contender in work.contenders:
        if contender not in contenders:
            say(f"{contender.name} is not installed and stays out.")
    if len(contenders) < 2 or contenders[0] is not work.contenders[0]:
        raise Trouble(f"{work.title}: there is nobody to compare.")
    work.contenders = contenders
    warm = ", warm" if work.cold_limit else ""
    table.race(work.title + warm, runner.compare(work, tree, cold=False), work.limit)
    if work.cold_limit and cold_too:
        table.race(work.title + ", cold", runner.compare(work, tree, cold=True), work.cold_limit)


def files_in_shared_sizes(tree):
    sizes = {}
    for folder, _, names in os.walk(tree):
        for name in names:
            sizes.setdefault(os.lstat(os.path.join(folder, name)).st_size, []).append(name)
    return {name for names in sizes.values() if len(names) > 1 for name in names}


def counters(work, tree, runner, table, helpers):
    """Bytes given to SHA-256 as the engine counts them, and opens of candidates as the kernel sees them."""
    runner.environment = runner.scratch.home(work.contenders[0].name)
    figures, output = runner.launch([os.path.join(helpers, "bench_duplicates"), tree])
    if figures["status"] != 0:
        raise Trouble(f"bench_duplicates ended with {figures['status']}: {runner.errors()}")
    said = json.loads(output)
    table.counted(f"{work.title}: bytes hashed", f"{said['bytesHashed'] / 1e6:.1f} MB",
                  f"one file of each group: {said['groupBytes'] / 1e6:.1f} MB",
                  said["bytesHashed"] / said["groupBytes"], 1.25)

    candidates = files_in_shared_sizes(tree)
    if shutil.which("strace") is None:
        say("strace is not installed: opens are counted by the engine alone.")
        opens, who = said["opens"], "counted by the engine"
    else:
        opens, who = traced_opens(tree, runner, candidates, work.contenders[0].command(tree)), "counted by strace"
    table.counted(f"{work.title}: opens", f"{opens}", f"files in shared sizes: {len(candidates)} ({who})",
                  opens / len(candidates), 1.05)


def traced_opens(tree, runner, candidates, command):
    """How often the kernel opened a file of the candidates' names, which are unique in these trees."""
    trace = runner.scratch.folder("trace")
    figures, _ = runner.launch(["strace", "-f", "-qq", "--trace=open,openat,openat2", "-s", "4096", "-o", trace,
                                *command])
    if figures["status"] != 0:
        raise Trouble(f"strace ended with {figures['status']}: {runner.errors()}")
    opens = 0
    with open(trace, encoding="utf-8", errors="replace") as lines:
        for line in lines:
            # An interrupted call is resumed on a line without its name, and so counted once.
            parts = line.split('"')
            opens += len(parts) >= 3 and os.path.basename(parts[1]) in candidates
    os.remove(trace)
    return opens


def memory(work, tree, runner, table, scale):
    """The largest resident size against 24 MiB and 1 KiB a file."""
    files = sum(len(names) for _, _, names in os.walk(tree))
    resident = peak(work, tree, runner)
    allowed = 24 * 1024 + files
    table.line(f"{work.title}: memory", f"{resident / 1024:.1f} MiB", f"24 MiB + 1 KiB for each of {files} files",
               f"{resident / allowed:.2f}", "1.00", resident <= allowed)
    if work.name == "large":
        # The same files at an eighth of their size take the same memory.
        smaller = runner.scratch.folder("tree smaller")
        os.mkdir(smaller)
        trees.large_files(smaller, scale, scale.large_file // 8)
        little = peak(work, smaller, runner)
        table.counted("the same, files of 1/8 the size", f"{little / 1024:.1f} MiB", "flat in file size",
                      resident / little, 1.10)


def peak(work, tree, runner):
    return max(runner.once(work, work.contenders[0], tree, cold=False)[0]["resident"] for _ in range(3))


SCROLLED = {"large-files": ("long list of large files", trees.many_large, trees.many_large_space),
            "duplicates": ("long list of duplicates", trees.many_copies, trees.many_copies_space)}
WINDOWS = ("window", "scrolling")  # works of the window, with nobody to compare
MOST_OF_A_FRAME = 50  # milliseconds


def scrolling(arguments, scale, scratch, table):
    """What a frame takes while a long list is scrolled, with its rows made from a scan of a tree of that many files."""
    reason = window.missing()
    if reason:
        say(f"Scrolling is not measured: {reason}.")
        return
    for kind, (title, make, _) in SCROLLED.items():
        say(f"Making the tree for the {title}…")
        tree = scratch.folder("tree " + kind)
        os.mkdir(tree)
        make(tree, scale)
        with window.Drawn() as desktop:
            said = scrolled(arguments, scratch, desktop, kind, tree)
        shutil.rmtree(tree)
        if said["rows"] < scale.rows:
            raise Trouble(f"The {title} has {said['rows']} rows.")
        table.counted(f"{title}: worst frame", f"{said['worst']:.1f} ms",
                      f"at most {MOST_OF_A_FRAME} ms; {said['rows']:,} rows, median {said['median']:.1f} ms",
                      said["worst"] / MOST_OF_A_FRAME)


def scrolled(arguments, scratch, desktop, kind, tree):
    environment = {**desktop.environment, **scratch.home("brisko"), "QT_QPA_PLATFORM": "xcb"}
    # Once for each home a driver that draws without a graphics card compiles its shaders, in the middle of a frame.
    return [scroll(arguments, environment, kind, tree) for _ in range(2)][-1]


def scroll(arguments, environment, kind, tree):
    answer = subprocess.run([os.path.join(arguments.helpers, "bench_scrolling"), kind, tree], env=environment,
                            stdin=subprocess.DEVNULL, capture_output=True, check=False)
    if answer.returncode != 0:
        raise Trouble(f"bench_scrolling ended with {answer.returncode}: {answer.stderr.decode(errors='replace')}")
    return json.loads(answer.stdout)


def parse_arguments():
    names = [*(work.name for work in works.all_works("", "", trees.FULL)), *WINDOWS]
    parser = argparse.ArgumentParser(prog="bench", description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    programs = os.path.join(TOP, "build", "release", "bin")
    parser.add_argument("--brisko", default=os.path.join(programs, "brisko"), help="the program to measure")
    parser.add_argument("--helpers", default=programs, help="the folder of the bench_ programs")
    default = os.path.join(tempfile.gettempdir(), "brisko-bench-" + str(os.getuid()))
    parser.add_argument("--scratch", default=default, help=f"where the trees are made, default {default}")
    parser.add_argument("--keep", action="store_true", help="leave the trees in place")
    parser.add_argument("--only", action="append", choices=names, metavar="WORK",
                        help="one work, may be given again: " + ", ".join(names))
    parser.add_argument("--quick", action="store_true", help="small trees, to try the script; the figures mean nothing")
    parser.add_argument("--rounds", type=int, default=5, help="counted runs of each, default 5")
    parser.add_argument("--warm-only", action="store_true", help="leave the page cache of this machine alone")
    parser.add_argument("--strict", action="store_true", help="end with 1 when a limit is missed")
    return parser.parse_args()


def wanted(arguments, name):
    return not arguments.only or name in arguments.only


def measure(arguments, chosen, scratch):
    scale = trees.QUICK if arguments.quick else trees.FULL
    runner = Runner(scratch, arguments.rounds, settles=not arguments.quick)
    cold = not arguments.warm_only and can_drop_caches()
    if not cold:
        say("The page cache is left alone: no cold runs.")
    table = Table()
    for work in chosen:
        tree = make_tree(scratch, work, scale)
        race(work, tree, runner, table, cold)
        if work.name in ("small", "large"):
            counters(work, tree, runner, table, arguments.helpers)
            memory(work, tree, runner, table, scale)
        # The walk's tree serves the sizes as well.
        if not any(other.make is work.make for other in chosen[chosen.index(work) + 1:]):
            shutil.rmtree(tree)
    if chosen:
        print(f"* ran once: more than {HOPELESS} times slower than the fastest of the others")
    if wanted(arguments, "scrolling"):
        scrolling(arguments, scale, scratch, table)
    if wanted(arguments, "window"):
        window.measure(os.path.abspath(arguments.brisko), arguments.rounds, arguments.quick, table, say)
    if table.missed:
        print(f"{table.missed} limits missed")
    return table.missed


def main():
    arguments = parse_arguments()
    scale = trees.QUICK if arguments.quick else trees.FULL
    chosen = [work for work in works.all_works(os.path.abspath(arguments.brisko), os.path.abspath(arguments.helpers),
                                               scale)
              if wanted(arguments, work.name)]
    # What is consumed stays until the end: the tree, and a copy a run.
    stays = sum(work.space(scale) * (1 + len(work.contenders) * (1 + arguments.rounds))
                for work in chosen if work.consumes)
    spaces = [work.space for work in chosen if not work.consumes]
    if wanted(arguments, "scrolling"):
        spaces += [space for _, _, space in SCROLLED.values()]
    need = stays + max((space(scale) for space in spaces), default=0)
    try:
        scratch = Scratch(arguments.scratch, need, arguments.keep)
        try:
            missed = measure(arguments, chosen, scratch)
        finally:
            scratch.remove()
    except (Trouble, window.Unwatched, AssertionError, OSError, subprocess.CalledProcessError) as trouble:
        print(f"bench: {trouble}", file=sys.stderr)
        return 1
    return 1 if missed and arguments.strict else 0


if __name__ == "__main__":
    sys.exit(main())

# SPDX-License-Identifier: MIT
"""What is measured: each work, who does it, how each is told to do the same, and how what they found is read."""

import json
import os
import re
import shutil
import urllib.parse
from dataclasses import dataclass, field
from typing import Callable, Optional

import trees


@dataclass(frozen=True)
class Run:
    """What is left of a run: what it printed, the tree it worked on, and the data folder of its home."""
    output: bytes
    tree: str
    data: str


@dataclass
class Contender:
    name: str
    # The command line for a tree; what it printed becomes a value that is equal for all who found the same.
    command: Callable[[str], list]
    found: Callable[[Run], object]
    statuses: tuple = (0,)

    @property
    def program(self):
        return self.command("")[0]


@dataclass
class Work:
    name: str
    title: str
    make: Callable
    space: Callable
    limit: float
    contenders: list
    cold_limit: Optional[float] = None
    # What a contender can tell in full is compared in full, else by this.
    reduced: Callable = field(default=lambda value: value)
    # Whether a run uses its tree up: each gets a fresh copy then, and a home of its own.
    consumes: bool = False


def brisko_path(url):
    return urllib.parse.unquote_to_bytes(url.removeprefix("file://"))


# -- duplicates


def groups_of_brisko(run):
    groups = json.loads(run.output)["groups"]
    return frozenset(frozenset(brisko_path(file["url"]) for file in group["files"]) for group in groups)


def groups_of_lines(run):
    """Groups of one path a line, with an empty line between them."""
    groups = (frozenset(group.splitlines()) for group in run.output.strip(b"\n").split(b"\n\n"))
    return frozenset(group for group in groups if len(group) > 1)


def count_of_rdfind(run):
    return int(re.search(rb"you have (\d+) files that are not unique", run.output).group(1))


def duplicates(brisko):
    return [
        Contender("brisko", lambda tree: [brisko, "scan", "duplicates", "--folder", tree, "--json"], groups_of_brisko),
        Contender("jdupes", lambda tree: ["jdupes", "-q", "-r", tree], groups_of_lines),
        Contender("fdupes", lambda tree: ["fdupes", "-q", "-r", tree], groups_of_lines),
        Contender("rdfind", lambda tree: ["rdfind", "-dryrun", "true", "-makeresultsfile", "false", tree],
                  count_of_rdfind),
        Contender("rmlint", lambda tree: ["rmlint", "--types=duplicates", "--no-with-color", "--size=4096",
                                          "--output=fdupes:stdout", tree], groups_of_lines),
    ]


def count_in_groups(groups):
    return groups if isinstance(groups, int) else sum(len(group) for group in groups)


# -- large files


def files_of_brisko(run):
    return frozenset(brisko_path(file["url"]) for file in json.loads(run.output)["files"])


def files_of_lines(run):
    return frozenset(run.output.splitlines())


def find_rule(tree):
    """Brisko's rule in the words of find: hidden entries, Library folders and bundles are passed by whole."""
    names = [".*", "Library", *("*" + ending for ending in trees.BUNDLES)]
    passed = [word for name in names for word in ("-o", "-name", name)][1:]
    return [tree, "-mindepth", "1", "(", *passed, ")", "-prune", "-o", "-type", "f", "-size", f"+{trees.LARGE - 1}c",
            "-print"]


def large_files(brisko):
    left_out = [word for name in ["Library", *("*" + ending for ending in trees.BUNDLES)]
                for word in ("--exclude", name)]
    return [
        Contender("brisko", lambda tree: [brisko, "scan", "large-files", "--folder", tree, "--json"], files_of_brisko),
        Contender("find", lambda tree: ["find", *find_rule(tree)], files_of_lines),
        Contender("bfs", lambda tree: ["bfs", *find_rule(tree)], files_of_lines),
        Contender("fd", lambda tree: ["fdfind", "--no-ignore", "--case-sensitive", "--type", "f", "--size",
                                      f"+{trees.LARGE}b", *left_out, ".", tree], files_of_lines),
    ]


# -- sizes of a tree


def bytes_on_disk(run):
    return int(run.output.split()[0])


def bytes_of_du(run):
    """du counts the folders themselves too, which are no content."""
    folders = sum(os.lstat(folder).st_blocks * 512 for folder, _, _ in os.walk(run.tree))
    return int(run.output.split()[0]) - folders


def sizes(helper):
    return [
        Contender("brisko (bench_measure)", lambda tree: [helper, tree], bytes_on_disk),
        Contender("du", lambda tree: ["du", "--summarize", "--block-size=1", "--count-links", tree], bytes_of_du),
        Contender("find", lambda tree: ["sh", "-c", 'find "$1" ! -type d -printf "%b\\n" | '
                                        "awk '{ blocks += $1 } END { printf \"%d\\n\", blocks * 512 }'", "sh", tree],
                  bytes_on_disk),
    ]


# -- to the Trash


def trashed(run):
    """What lies in the Trash of the run's home, and what was left behind."""
    trash = os.path.join(run.data, "Trash")
    left = sum(len(files) for _, _, files in os.walk(run.tree))
    return len(os.listdir(os.path.join(trash, "files"))), len(os.listdir(os.path.join(trash, "info"))), left


def to_trash(brisko):
    each = 'find "$1" -type f -print0 | xargs -0 '
    return [
        Contender("brisko", lambda tree: [brisko, "remove", "large-files", "--folder", tree, "--min-size", "1",
                                          "--all", "--yes"], trashed),
        Contender("gio trash", lambda tree: ["sh", "-c", each + "gio trash --", "sh", tree], trashed),
        Contender("trash-put", lambda tree: ["sh", "-c", each + "trash-put --", "sh", tree], trashed),
    ]


def all_works(brisko, helpers, scale):
    measure = os.path.join(helpers, "bench_measure")
    return [
        # First, because removing the trees of the others would slow them down.
        Work("trash", f"{scale.trash_files:,} files to the Trash", trees.trash_files, trees.trash_files_space, 0.50, to_trash(brisko),
             consumes=True),
        Work("names", f"{scale.same_names:,} of one name to the Trash", trees.same_names, trees.same_names_space, 0.50,
             to_trash(brisko), consumes=True),
        Work("small", "duplicates, small files", trees.small_files, trees.small_files_space, 0.70, duplicates(brisko),
             cold_limit=0.75, reduced=count_in_groups),
        Work("large", "duplicates, large files", trees.large_files, trees.large_files_space, 0.75, duplicates(brisko),
             cold_limit=0.75, reduced=count_in_groups),
        Work("walk", "large-file walk", trees.walk_tree, trees.walk_tree_space, 0.65, large_files(brisko),
             cold_limit=0.50),
        Work("sizes", "sizes of a tree", trees.walk_tree, trees.walk_tree_space, 0.65, sizes(measure)),
    ]


def installed(contender):
    program = contender.program
    # What a shell runs is named after the contender.
    return shutil.which(contender.name.split()[0] if program == "sh" else program) is not None

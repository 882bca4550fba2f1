# SPDX-License-Identifier: MIT
"""The trees that the programs are measured on. Each is made from a seed: the same everywhere, every time."""

import os
import random
from dataclasses import dataclass

KIB = 1024
MIB = 1024 * KIB
BLOCK = 4 * KIB  # what the smallest file takes on disk, about everywhere
LARGE = 100 * MIB  # what the large-file walk looks for
BUNDLES = (".photoslibrary", ".photolibrary", ".imovielibrary", ".theater", ".musiclibrary", ".aplibrary",
           ".fcpbundle", ".migratedphotolibrary", ".coverartlibrary", ".app", ".bundle", ".framework", ".xpc")


@dataclass(frozen=True)
class Scale:
    """How much is made: for figures that mean something, or to try the script itself."""
    small_files: int
    large_file: int  # bytes
    large_sets: int
    walk_files: int
    trash_files: int
    same_names: int
    rows: int  # of a long list


FULL = Scale(small_files=60_000, large_file=128 * MIB, large_sets=4, walk_files=400_000, trash_files=20_000,
             same_names=3_000, rows=100_000)
QUICK = Scale(small_files=400, large_file=2 * MIB, large_sets=1, walk_files=3_000, trash_files=120, same_names=40,
              rows=900)


def write(path, content):
    with open(path, "xb") as file:
        file.write(content)


def small_files(root, scale):
    """Files of 4 to 64 KiB, 30 % of them copies, 2 % more differing from another in their last byte alone."""
    chance = random.Random("small files")
    originals = []
    for number in range(scale.small_files):
        if number % 500 == 0:
            folder = os.path.join(root, f"album {number // 5000}", f"day {number // 500}")
            os.makedirs(folder)
        path = os.path.join(folder, f"picture {number:06}.jpg")
        kind = chance.random()
        if originals and kind < 0.32:
            with open(chance.choice(originals), "rb") as file:
                content = file.read()
            if kind >= 0.30:
                content = content[:-1] + bytes([content[-1] ^ 1])
        else:
            content = chance.randbytes(int(4 * KIB * 16 ** chance.random()))
            originals.append(path)
        write(path, content)


def small_files_space(scale):
    return scale.small_files * 24 * KIB


def large_files(root, scale, size=None):
    """Pairs of one size: some equal, some that differ at the beginning, some in their last byte."""
    chance = random.Random("large files")
    size = size or scale.large_file
    for kind, place in (("equal", None), ("early", 10), ("late", -1)):
        for number in range(scale.large_sets):
            # Each pair has a size of its own, so that each is a question of its own.
            length = size + 4 * KIB * (("equal", "early", "late").index(kind) * scale.large_sets + number)
            blocks = [chance.randbytes(min(MIB, length - start)) for start in range(0, length, MIB)]
            write(os.path.join(root, f"{kind} {number} a.mkv"), b"".join(blocks))
            if place is not None:
                block = bytearray(blocks[0 if place >= 0 else -1])
                block[place] ^= 1
                blocks[0 if place >= 0 else -1] = bytes(block)
            write(os.path.join(root, f"{kind} {number} b.mkv"), b"".join(blocks))


def large_files_space(scale):
    return 6 * scale.large_sets * (scale.large_file + 48 * KIB)


def walk_tree(root, scale):
    """A home of many folders with some of each thing that a walk must pass by: hidden folders, Library folders,
    bundles, links. Large files are sparse; every fourth of the others takes a block."""
    chance = random.Random("walk")
    folders = [root]
    made = 0
    while made < scale.walk_files:
        parent = chance.choice(folders[-400:]) if chance.random() < 0.7 else chance.choice(folders)
        kind = chance.random()
        name = f"folder {len(folders):05}"
        if kind < 0.04:
            name = f".hidden {len(folders):05}"
        elif kind < 0.05:
            name = "Library"
        elif kind < 0.07:
            name += chance.choice(BUNDLES)
        folder = os.path.join(parent, name)
        # A path stays well below what every tool can hold.
        if len(folder) > 1_000 or os.path.lexists(folder):
            continue
        os.mkdir(folder)
        folders.append(folder)
        count = min(chance.randrange(60), scale.walk_files - made)
        for number in range(count):
            fill_walk_file(os.path.join(folder, f"file {made + number:06}.dat"), chance)
        made += count
        if chance.random() < 0.05:
            os.symlink(chance.choice(folders), os.path.join(folder, "link to a folder"))
        if chance.random() < 0.05 and count:
            os.symlink(f"file {made - 1:06}.dat", os.path.join(folder, "link to a file"))


def fill_walk_file(path, chance):
    descriptor = os.open(path, os.O_WRONLY | os.O_CREAT | os.O_EXCL | os.O_CLOEXEC, 0o644)
    try:
        kind = chance.random()
        if kind < 0.002:
            os.ftruncate(descriptor, LARGE + chance.randrange(-2, 3) * chance.choice((1, 1, MIB)))
        elif kind < 0.252:
            os.write(descriptor, b"content")
            os.ftruncate(descriptor, chance.randrange(7, 200_000))
        else:
            os.ftruncate(descriptor, chance.randrange(200_000))
    finally:
        os.close(descriptor)


def walk_tree_space(scale):
    return scale.walk_files * 2 * KIB


def trash_files(root, scale):
    """Files of all names, in a few folders."""
    chance = random.Random("trash")
    for number in range(scale.trash_files):
        if number % 1_000 == 0:
            folder = os.path.join(root, f"folder {number // 1_000}")
            os.mkdir(folder)
        write(os.path.join(folder, f"file {number:06}.txt"), chance.randbytes(200))


def trash_files_space(scale):
    return scale.trash_files * 3 * BLOCK  # with a record each


def same_names(root, scale):
    """Files of one name, each in a folder of its own."""
    for number in range(scale.same_names):
        folder = os.path.join(root, f"folder {number:05}")
        os.mkdir(folder)
        write(os.path.join(folder, "report.pdf"), f"report {number}".encode())


def same_names_space(scale):
    return scale.same_names * 4 * BLOCK


def many_large(root, scale):
    """As many files as a long list has rows, large and without content."""
    for number in range(scale.rows):
        if number % 500 == 0:
            folder = os.path.join(root, f"folder {number // 500:03}")
            os.mkdir(folder)
        descriptor = os.open(os.path.join(folder, f"recording {number:06}.mov"), os.O_WRONLY | os.O_CREAT | os.O_EXCL)
        os.ftruncate(descriptor, LARGE + number * 7_919 % scale.rows)
        os.close(descriptor)


def many_large_space(scale):
    return scale.rows * KIB


def many_copies(root, scale):
    """Groups of two to four equal files, whose heads and files make as many rows as a long list has."""
    group = rows = 0
    while rows < scale.rows:
        if group % 200 == 0:
            folder = os.path.join(root, f"folder {group // 200:03}")
            os.mkdir(folder)
        content = f"{group:08}".encode() * (600 + group % 5)
        copies = 2 + group % 3
        for copy in range(copies):
            write(os.path.join(folder, f"picture {group:06} copy {copy}.jpg"), content)
        group, rows = group + 1, rows + 1 + copies


def many_copies_space(scale):
    return scale.rows * 2 * BLOCK

# SPDX-License-Identifier: MIT
"""start.py STAMP PROGRAM [ARGUMENT...]: notes the time in a file and becomes the program, which so keeps its process
number, and whose start is known to whoever watches the screen."""

import os
import sys
import time

stamp, *command = sys.argv[1:]
with open(stamp + ".new", "x", encoding="ascii") as file:
    file.write(repr(time.monotonic()))
os.rename(stamp + ".new", stamp)
os.execvp(command[0], command)

# SPDX-License-Identifier: MIT
"""launch.py OUTPUT PROGRAM [ARGUMENT...]: runs a program with its output in a file, and prints as JSON how long it took
(seconds), its largest resident size (KiB) and its exit status.

A process of its own, because a child's largest size begins with that of the process that started it: this one is small.
"""

import json
import os
import sys
import time

output, *command = sys.argv[1:]
actions = [(os.POSIX_SPAWN_OPEN, 0, "/dev/null", os.O_RDONLY, 0),
           (os.POSIX_SPAWN_OPEN, 1, output, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600),
           (os.POSIX_SPAWN_OPEN, 2, output + ".errors", os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600)]
started = time.perf_counter()
child = os.posix_spawnp(command[0], command, os.environ, file_actions=actions)
_, status, usage = os.wait4(child, 0)
seconds = time.perf_counter() - started
print(json.dumps({"seconds": seconds, "resident": usage.ru_maxrss, "status": os.waitstatus_to_exitcode(status)}))

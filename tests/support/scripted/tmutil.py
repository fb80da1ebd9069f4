#!/usr/bin/python3
# A tmutil that plays a script. The script "script.json" lies in the folder that this program is called by (a link to
# it will do); "progress" there counts the calls made, "problems" collects what should not have happened.

import fcntl
import json
import os
import signal
import sys
import time

folder = os.path.dirname(sys.argv[0])


def next_call():
    # Calls that overlap get different numbers, counted from 0.
    with open(folder + "/progress", "a+") as progress:
        fcntl.flock(progress, fcntl.LOCK_EX)
        progress.seek(0)
        call = int(progress.read() or 0)
        progress.truncate(0)
        progress.write(str(call + 1))
    return call


def play(output=b"", fault=None, delay=0, status=0):
    time.sleep(delay)
    if fault in ("half", "crash"):
        output = output[:len(output) // 2]
    sys.stdout.buffer.write(b"\xff\xfe" + output if fault == "notUtf8" else output)
    sys.stdout.buffer.flush()
    while fault == "endless":
        sys.stdout.buffer.write(b"x" * 65536)
    while fault == "hang":
        signal.pause()
    if fault == "crash":
        os.kill(os.getpid(), signal.SIGTERM)
    return status


with open(folder + "/script.json", "rb") as script:
    calls = json.load(script, strict=False)  # as the played launcher reads it
number = next_call()
if number >= len(calls) or calls[number].pop("expect") != sys.argv[1:]:
    with open(folder + "/problems", "a") as problems:
        print("unexpected call:", *sys.argv[1:], file=problems)
    sys.exit(99)
call = calls[number]
sys.exit(play(call.pop("output", "").encode(), **call))

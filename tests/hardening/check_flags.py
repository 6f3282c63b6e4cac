"""Checks that each source below a folder is compiled with all of these flags, and none takes one back.

    check_flags.py COMPILE_COMMANDS.json FOLDER FLAG,FLAG...
"""
import json
import shlex
import sys

TAKEN_BACK = {"-fno-stack-protector", "-fcf-protection=none", "-fno-stack-clash-protection"}


def main(commands, folder, flags):
    wanted = set(flags.split(","))
    with open(commands) as file:
        sources = [each for each in json.load(file) if each["file"].startswith(folder)]
    faults = 0
    for source in sources:
        given = set(shlex.split(source["command"]))
        for flag in sorted((wanted - given) | (given & TAKEN_BACK)):
            faults += 1
            print(f"{source['file']}: {flag}")
    print(f"{len(sources)} sources, {len(wanted)} flags, {faults} faults")
    return 1 if faults or not sources else 0


sys.exit(main(*sys.argv[1:]))

#!/usr/bin/env python3
"""Manual pages and shell completions know the options that the programs have, and no others."""

import re
import subprocess
import unittest

import programs
from programs import BUILD, PROGRAMS, SOURCE

OPTION = re.compile(r"(?<![\w/-])--?[a-z][a-z-]*")
COMMANDS = ("place", "units", "source", "window", "sky", "symbol")


def help_of(program, *command):
    return programs.run(BUILD / "bin" / program, *command, "--help")


def options_of(program, *command):
    return set(OPTION.findall(help_of(program, *command)))


def scenarios():
    return re.findall(r"^  ([a-z-]+) ", help_of("zephyrix-feedd").split("Scenarios:\n")[1], re.M)


def manual(program):
    text = (SOURCE / "packaging/man" / f"{program}.1").read_text(encoding="utf-8")
    return text.replace("\\-", "-")


def completion(shell, program):
    name = {"bash": program, "zsh": f"_{program}", "fish": f"{program}.fish"}[shell]
    return (SOURCE / "packaging/completions" / shell / name).read_text(encoding="utf-8")


def bash_offers(program, *words):
    """What bash offers behind these words."""
    path = SOURCE / "packaging/completions/bash" / program
    function = "_" + program.replace("-", "_")
    script = f'. "{path}"; COMP_WORDS=("$@" ""); COMP_CWORD=$#; {function}; ' \
             'printf "%s\\n" "${COMPREPLY[@]}"'
    return programs.run("bash", "-euc", script, "bash", program, *words).split()


class ManualPages(unittest.TestCase):
    def test_name_the_options_of_help(self):
        for program in PROGRAMS:
            with self.subTest(program):
                sections = re.split(r"^\.SH ", manual(program), flags=re.M)
                told = {option for section in sections
                        if section.startswith(("SYNOPSIS", "OPTIONS", "COMMANDS"))
                        for option in OPTION.findall(section)}
                self.assertEqual(told, options_of(program))

    def test_name_commands_and_scenarios(self):
        for command in COMMANDS:
            self.assertIn(f"\n.SS {command}\n", manual("zephyrix"))
        told = re.findall(r"^\.B ([a-z-]+)$", manual("zephyrix-feedd").split(".SH SCENARIOS")[1]
                          .split(".SH")[0], re.M)
        self.assertEqual(told, scenarios())

    def test_are_well_formed(self):
        for program in PROGRAMS:
            page = SOURCE / "packaging/man" / f"{program}.1"
            told = subprocess.run(["groff", "-man", "-ww", "-z", page], capture_output=True,
                                  check=True)
            self.assertEqual(told.stderr, b"")


class Completions(unittest.TestCase):
    def test_bash_offers_the_options_of_each_command(self):
        for program in ("zephyrix-panel", "zephyrix-feedd"):
            self.assertEqual(set(bash_offers(program)), options_of(program))
        self.assertEqual(set(bash_offers("zephyrix")), {*COMMANDS, "--help", "--version"})
        for command in COMMANDS:
            with self.subTest(command):
                lines = [(command,)] + [(command, verb) for verb in bash_offers("zephyrix", command)
                                        if not verb.startswith("-")]
                offered = {word for line in lines for word in bash_offers("zephyrix", *line)
                           if word.startswith("-")}
                self.assertEqual(offered, options_of("zephyrix", command) | {"--help"})

    def test_zsh_and_fish_know_the_options(self):
        for program in PROGRAMS:
            with self.subTest(program):
                zsh = re.findall(r"(--?[a-z-]+)\[", completion("zsh", program))
                self.assertEqual(set(zsh), options_of(program))
                fish = re.findall(r"(?m)^complete .* -([ls]) ([a-z-]+)", completion("fish", program))
                self.assertEqual({("--" if kind == "l" else "-") + name for kind, name in fish},
                                 options_of(program))

    def test_commands_are_those_of_help(self):
        told = re.findall(r"^  ([a-z]+) ", help_of("zephyrix").split("\nOptions:")[0], re.M)
        self.assertEqual(tuple(dict.fromkeys(told)), COMMANDS)
        for shell in ("zsh", "fish"):
            for command in COMMANDS:
                self.assertIn(command, completion(shell, "zephyrix"))

    def test_the_units_offered_are_taken(self):
        for quantity in ("temperature", "wind", "precipitation", "pressure"):
            units = bash_offers("zephyrix", "units", quantity)
            for unit in units:
                programs.run(BUILD / "bin/zephyrix", "units", quantity, unit)
            for shell in ("zsh", "fish"):
                self.assertIn(" ".join(units), completion(shell, "zephyrix"))
            self.assertIn(", ".join(units), manual("zephyrix"))

    def test_the_scenarios_offered_are_those_of_help(self):
        self.assertEqual(bash_offers("zephyrix-feedd", "--scenario"), scenarios())
        for shell in ("zsh", "fish"):
            words = re.sub(r"\s+\\?\s*", " ", completion(shell, "zephyrix-feedd"))
            self.assertIn(" ".join(scenarios()), words)


if __name__ == "__main__":
    unittest.main()

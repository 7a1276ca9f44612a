"""Runs the program as its users do and takes its text apart."""

import ctypes
import os
import re
import subprocess
import sys
import tempfile
import unittest

PROGRAM = None
# A sanitizer takes time, memory, addresses and descriptors of its own.
SANITIZED = "ASAN_OPTIONS" in os.environ


class Run:
    """One run to its end; options are those of subprocess.run."""

    def __init__(self, keys, folder, given="", **options):
        if "stdin" not in options:
            options["input"] = given
        done = subprocess.run(
            [os.path.basename(PROGRAM)] + keys,
            executable=PROGRAM,
            cwd=folder,
            text=True,
            timeout=300,
            **{"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **options},
        )
        self.status = done.returncode
        self.text = done.stdout
        self.errors = done.stderr

    def lines(self, beginning):
        return [line for line in self.text.splitlines() if line.startswith(beginning)]

    def results(self):
        """(result, function) of each test that ran."""
        return re.findall(r"^\| -(\w+) +(\S+)", self.text, re.M)

    def figures(self):
        """Clocks per element, in order of measurement."""
        return [float(x) for x in re.findall(r"perf=.*= *(\S+) clocks", self.text)]

    def summary(self, name):
        return re.search(r"^\| \.*-?" + re.escape(name) + r" +: (\S+)", self.text, re.M).group(1)


class ZebTest(unittest.TestCase):
    """Each test has an empty working folder of its own."""

    def setUp(self):
        self._folder = tempfile.TemporaryDirectory()
        self.folder = self._folder.name

    def tearDown(self):
        self._folder.cleanup()

    def run_zeb(self, *keys, given="", **options):
        return Run(list(keys), self.folder, given, **options)

    def path(self, name):
        return os.path.join(self.folder, name)

    def read(self, name):
        with open(self.path(name)) as file:
            return file.read()

    def write(self, name, text):
        with open(self.path(name), "w") as file:
            file.write(text)


def masked(text):
    """Text without what differs from run to run: times, figures, the host."""
    text = re.sub(r"\w{3} \w{3} [ \d]\d \d\d:\d\d:\d\d \d{4}", "<time>", text)
    text = re.sub(r"\d\d:\d\d:\d\d", "<span>", text)
    text = re.sub(r"  acc=.*clocks", "<figure>", text)
    text = re.sub(r"^(\| )?(CPU|OS|Computer|Library)\b.*", r"<\2>", text, flags=re.M)
    return text


def main():
    # Run by root, the program would take a processor for itself for the seconds that it estimates the frequency.
    ctypes.CDLL(None).prctl(24, 23, 0, 0, 0)  # PR_CAPBSET_DROP, CAP_SYS_NICE
    global PROGRAM
    PROGRAM = os.path.abspath(sys.argv.pop(1))
    unittest.main(module="__main__")

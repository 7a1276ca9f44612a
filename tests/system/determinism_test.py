"""Test data are the same bits in each run, alone or among others, in 32 and 64 bits, and so is what comes out."""

import os
import re

import zebrun
from zebrun import Run, ZebTest

KEYS = ["-B", "-LDATA", "-dImageSize=18x6", "-dMethod=Manual", "-dNumLoops=1"]
# A few of each class, and of each element type.
MIXED = ["-fRGBToLUV", "-fYUVToRGB", "-fColorTwist", "-fGamma", "-fJoin", "-fReduce", "-fCFA", "-fDemosaic"]


def bits(program):
    """Of an ELF file's words."""
    with open(program, "rb") as file:
        return 32 * file.read(5)[4]


def dumps(run):
    """Function -> all lines of its data, before and after the calls."""
    found = {}
    for text in re.split(r"^\| Function  : ", run.text, flags=re.M)[1:]:
        lines = re.findall(r"^(?:={8} Object.*|(?=.*\d)[-+.\de infa]+)$", text, re.M)
        found.setdefault(text.split()[0], []).append(lines)
    return found


class Determinism(ZebTest):
    def setUp(self):
        super().setUp()
        self.first = dumps(self.run_zeb(*KEYS, *MIXED))

    def test_two_runs_dump_the_same(self):
        self.assertGreater(len(self.first), 100)
        self.assertGreater(min(len(lines) for one in self.first.values() for lines in one), 10)
        self.assertEqual(dumps(self.run_zeb(*KEYS, *MIXED)), self.first)

    def test_a_test_alone_dumps_what_it_dumps_among_others(self):
        for name in list(self.first)[:: len(self.first) // 4]:
            self.assertEqual(dumps(self.run_zeb(*KEYS, "-f=" + name)), {name: self.first[name]})

    def test_32_bits_dump_what_64_bits_dump(self):
        here = zebrun.PROGRAM
        other = os.path.join(os.path.dirname(here), "../..", "release" if bits(here) == 32 else "m32", "bin/zeb_qorcc")
        if not os.path.exists(other):
            self.skipTest("there is no build of the other width")
        self.assertEqual(bits(here) + bits(other), 96)
        zebrun.PROGRAM = other
        try:
            self.assertEqual(dumps(Run(KEYS + MIXED, self.folder)), self.first)
        finally:
            zebrun.PROGRAM = here


if __name__ == "__main__":
    zebrun.main()

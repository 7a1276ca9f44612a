"""Test data are the same bits in each run, alone or among others, in each build, and so is what comes out."""

import os
import re

import zebrun
from zebrun import Run, ZebTest

KEYS = ["-B", "-LDATA", "-dImageSize=18x6", "-dMethod=Manual", "-dNumLoops=1"]


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
        self.first = dumps(self.run_zeb(*KEYS, "-fqori"))

    def test_two_runs_dump_the_same(self):
        self.assertEqual(len(self.first), 483)
        self.assertGreater(min(len(lines) for one in self.first.values() for lines in one), 10)
        self.assertEqual(dumps(self.run_zeb(*KEYS, "-fqori")), self.first)

    def test_a_test_alone_dumps_what_it_dumps_among_others(self):
        for name in list(self.first)[:: len(self.first) // 4]:
            self.assertEqual(dumps(self.run_zeb(*KEYS, "-f=" + name)), {name: self.first[name]})

    def test_each_build_dumps_what_the_release_dumps(self):
        here = zebrun.PROGRAM
        release = os.path.abspath(os.path.join(os.path.dirname(here), "../../release/bin/zeb_qorcc"))
        if here == release or not os.path.exists(release):
            self.skipTest("there are no two builds to compare")
        zebrun.PROGRAM = release
        try:
            self.assertEqual(dumps(Run(KEYS + ["-fqori"], self.folder)), self.first, "is the release up to date?")
        finally:
            zebrun.PROGRAM = here


if __name__ == "__main__":
    zebrun.main()

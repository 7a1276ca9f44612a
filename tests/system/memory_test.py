"""Memory over all tests, and what memcheck says of a short run of each."""

import re
import shutil
import subprocess
import unittest

import zebrun
from zebrun import SANITIZED, ZebTest

QUICK = ["-B", "-fqori", "-dMethod=Manual", "-dNumLoops=1"]


def resident(process):
    """Kilobytes, 0 when the process has ended."""
    try:
        with open(f"/proc/{process.pid}/status") as file:
            found = re.search(r"^VmRSS:\s+(\d+)", file.read(), re.M)
    except FileNotFoundError:
        found = None
    return int(found.group(1)) if found else 0


@unittest.skipIf(SANITIZED, "memory is the sanitizer's")
class Memory(ZebTest):
    def test_all_tests_three_times_over_need_no_more_than_the_first(self):
        # A run starts a test once; all that it does in between is done three times.
        child = subprocess.Popen(
            [zebrun.PROGRAM, *QUICK, "-LPERF", "-d", "ImageSize=64x64; 64x64; 64x64"],
            stdout=subprocess.PIPE,
            text=True,
        )
        ends, figures = [], 0
        for line in child.stdout:
            figures += "perf=" in line
            if line.startswith("| -"):
                ends.append(resident(child))
        child.stdout.close()
        self.assertEqual((child.wait(), len(ends), figures % 3), (0, 489, 0))
        self.assertGreater(figures, 3 * 489)
        self.assertGreater(ends[0], 0)
        self.assertLess(max(ends) - ends[0], 1024)

    @unittest.skipUnless(shutil.which("valgrind"), "valgrind isn't installed")
    def test_memcheck_finds_nothing_in_any_test(self):
        done = subprocess.run(
            ["valgrind", "-q", "--error-exitcode=99", "--leak-check=no", zebrun.PROGRAM, *QUICK]
            + ["-LPERF", "-d", "ImageSize=7x5; 70x4", f"-r{self.folder}/table.csv"],
            text=True,
            capture_output=True,
        )
        if "a function redirection\n" in done.stderr:
            self.skipTest("valgrind needs the symbols of this loader")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertEqual(done.stdout.count("\n| -OK"), 489)


if __name__ == "__main__":
    zebrun.main()

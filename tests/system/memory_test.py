"""Memory over all tests, and what memcheck says of a short run of every class."""

import re
import shutil
import subprocess
import unittest

import zebrun
from zebrun import SANITIZED, ZebTest

QUICK = ["-dMethod=Manual", "-dNumLoops=1"]


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
        for _ in range(3):
            child = subprocess.Popen(
                [zebrun.PROGRAM, "-B", *QUICK, "-fqori", "-dImageSize=64x64"],
                cwd=self.folder,
                stdout=subprocess.PIPE,
                text=True,
            )
            sizes = []
            for line in child.stdout:
                if line.startswith("| -"):
                    sizes.append(resident(child))
            child.stdout.close()
            self.assertEqual(child.wait(), 0)
            self.assertEqual(len(sizes), 489)
            self.assertGreater(sizes[0], 0)
            self.assertLess(max(sizes) - sizes[0], 1024)

    @unittest.skipUnless(shutil.which("valgrind"), "valgrind isn't installed")
    def test_memcheck_finds_nothing_in_any_class(self):
        listed = self.run_zeb("-B", "-e").text
        first = dict((name, function) for function, name in reversed(re.findall(r"\t(qori\S+)\t(\w+)", listed)))
        self.assertEqual(len(first), 9)
        keys = ["-B", "-LPERF", *QUICK, "-d", "ImageSize=7x5; 16x16", "-rtable.csv"]
        done = subprocess.run(
            ["valgrind", "-q", "--error-exitcode=99", "--leak-check=no", zebrun.PROGRAM, *keys]
            + ["-f=" + function for function in first.values()],
            cwd=self.folder,
            text=True,
            capture_output=True,
        )
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertEqual(done.stdout.count("\n| -OK"), 9)


if __name__ == "__main__":
    zebrun.main()

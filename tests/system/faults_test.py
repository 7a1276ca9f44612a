"""Full disks, closed outputs, few descriptors, little memory, signals: no run hangs, no written line is lost."""

import os
import re
import resource
import signal
import subprocess
import time

import zebrun
from zebrun import SANITIZED, ZebTest

ONE = "-f=qoriRGBToYCbCr_8u_C3R"
QUICK = ["-dImageSize=16x16", "-dMethod=Manual", "-dNumLoops=1"]


def limited(kind, value, ignored=None):
    def prepare():
        resource.setrlimit(kind, (value, value))
        if ignored:
            signal.signal(ignored, signal.SIG_IGN)

    return prepare


class Faults(ZebTest):
    def run_under(self, *keys, prepare=None, **options):
        options = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **options}
        return subprocess.run(
            ["zeb_qorcc", "-B", *keys],
            executable=zebrun.PROGRAM,
            cwd=self.folder,
            text=True,
            timeout=120,
            preexec_fn=prepare,
            **options,
        )

    def assert_whole_lines(self, name):
        text = self.read(name)
        self.assertTrue(text.endswith("\n"), (name, text[-200:]))
        return text

    def test_a_full_disk_is_told_and_costs_no_other_file(self):
        for keys in (["-o/dev/full", "-rgood.csv"], ["-r/dev/full", "-ogood.txt"], ["-u/dev/full", "-ogood.txt"]):
            done = self.run_under(ONE, *QUICK, *keys)
            self.assertEqual(done.returncode, 0)
            self.assertIn("zeb: /dev/full: not written to its end (No space left on device)\n", done.stderr)
            self.assertIn("RGBToYCbCr", self.assert_whole_lines(keys[1][2:]))

    def test_a_console_that_takes_nothing_does_not_stop_the_files(self):
        with open("/dev/full", "w") as full:
            done = self.run_under(ONE, *QUICK, "-rfull.csv", stdout=full)
        self.assertEqual(done.returncode, 0)
        done = self.run_under(ONE, *QUICK, "-rclosed.csv", prepare=lambda: os.close(1), stdout=None)
        self.assertEqual(done.returncode, 0)
        for name in ("full.csv", "closed.csv"):
            self.assertIn("RGBToYCbCr", self.assert_whole_lines(name))

    def test_a_disk_that_fills_leaves_whole_lines(self):
        self.write("table.csv", "no line end")
        limit = limited(resource.RLIMIT_FSIZE, 4096, signal.SIGXFSZ)
        done = self.run_under("-fRGBTo", *QUICK, "-Rtable.csv", prepare=limit)
        self.assertIn("table.csv: not written to its end (File too large)", done.stderr)
        self.assertEqual(done.returncode, 0)
        text = self.assert_whole_lines("table.csv")
        self.assertTrue(text.startswith("no line end"))
        self.assertTrue(3800 < len(text) <= 4096, len(text))
        self.assertEqual(len({line.count(",") for line in text.splitlines()[-15:]}), 1)

    def test_a_file_system_that_fills_leaves_whole_lines_and_the_old_ini_file(self):
        script = """
            mount -t tmpfs -o size=12k none "$PWD" 2>/dev/null && cd "$PWD" || exit 77
            printf "[old]\nkey=1\n" >keep.ini
            "$0" -B -fqori -Q -qnames.csv >/dev/null
            cat names.csv
            rm names.csv
            "$0" -B -fqori -Ikeep.ini | grep Can.t
            cat *
        """
        path = os.path.dirname(zebrun.PROGRAM) + ":" + os.environ["PATH"]
        command = ["unshare", "-rm", "sh", "-c", script, "zeb_qorcc"]
        done = subprocess.run(
            command, cwd=self.folder, env={**os.environ, "PATH": path}, capture_output=True, text=True, timeout=120
        )
        if done.returncode in (1, 77):
            self.skipTest("nothing may be mounted here")
        names, told, kept = re.split("(.*Can't.*\n)", done.stdout)
        self.assertIn("names.csv: not written to its end (No space left on device)", done.stderr)
        self.assertTrue(8000 < len(names) <= 8192 and names.endswith("\n"), (len(names), names[-99:]))
        self.assertEqual((told, kept), ("-- Can't write file keep.ini\n", "[old]\nkey=1\n"))

    def test_a_folder_of_somebody_else_ends_the_run_before_it_begins(self):
        def leave_root():
            if os.getuid() == 0:
                os.setgid(65534)
                os.setuid(65534)

        os.chmod(self.folder, 0o555)
        for key in ("-ox.txt", "-rx.csv", "-ux.csv", "-qx.csv", "-Ix.ini"):
            try:
                done = self.run_under(ONE, *QUICK, key, prepare=leave_root)
            except PermissionError:
                self.skipTest("nobody may start the program here")
            self.assertIn(f"-- Can't open file {key[2:]} to write: \n", done.stdout)
            self.assertNotIn("ZEB Summary", done.stdout)

    def test_an_ini_file_keeps_its_text_when_rewriting_fails(self):
        old = "[old]\nkey=1\n"  # the new text is more than 2000 bytes; the second run is killed half-way
        for ignored, status in ((signal.SIGXFSZ, 0), (None, -signal.SIGXFSZ)):
            self.write("keep.ini", old)
            limit = limited(resource.RLIMIT_FSIZE, 512, ignored)
            done = self.run_under("-fRGBTo", "-Ikeep.ini", prepare=limit)
            self.assertEqual(done.returncode, status)
            self.assertEqual(self.read("keep.ini"), old)
            self.assertEqual("-- Can't write file" in done.stdout, status == 0)
        done = self.run_under("-fRGBTo", "-Ikeep.ini")
        self.assertIn("[qoriRGBToYCbCr_8u_C3R]", self.assert_whole_lines("keep.ini"))

    def test_files_that_can_not_be_opened_end_the_run_before_it_begins(self):
        done = self.run_under(ONE, *QUICK, "-rno/such/folder.csv")
        self.assertIn("-- Can't open file", done.stdout)
        if SANITIZED:
            return
        # The streams and one more: the second file finds no descriptor.
        limit = limited(resource.RLIMIT_NOFILE, 4)
        done = self.run_under(ONE, *QUICK, "-ofirst.txt", "-rsecond.csv", prepare=limit)
        self.assertIn("second.csv to write", done.stdout)

    def test_an_empty_environment_is_enough(self):
        done = self.run_under(ONE, *QUICK, env={k: v for k, v in os.environ.items() if k.endswith("SAN_OPTIONS")})
        self.assertEqual(done.returncode, 0)
        self.assertIn("| -OK         qoriRGBToYCbCr_8u_C3R", done.stdout)

    def test_a_test_that_finds_no_memory_fails_alone(self):
        if SANITIZED:
            self.skipTest("no address space to spare")
        limit = limited(resource.RLIMIT_AS, 200 << 20)
        done = self.run_under(ONE, "-dImageSize=10000x10000", *QUICK[1:], prepare=limit)
        self.assertIn("| -DATAFAIL   qoriRGBToYCbCr_8u_C3R", done.stdout)
        done = self.run_under("-fRGBToYCbCr", "-d", "ImageSize=10000x10000; 16x16", *QUICK[1:], prepare=limit)
        self.assertIn("-- Memory error: can't allocate", done.stdout)
        self.assertEqual(done.returncode, 0)

    def test_an_interrupted_run_keeps_every_line(self):
        for number in (signal.SIGINT, signal.SIGTERM):
            child = subprocess.Popen(
                ["zeb_qorcc", "-B", "-LPERF", "-olist.txt", "-rtable.csv", "-usum.csv", "-dMethod=Manual", "-dNumLoops=9"],
                executable=zebrun.PROGRAM,
                cwd=self.folder,
                stdout=subprocess.PIPE,
                text=True,
                # A shell starts what runs in the background with SIGINT ignored.
                preexec_fn=lambda: signal.signal(signal.SIGINT, signal.SIG_DFL),
            )
            shown = ""
            while shown.count("perf=") < 20:
                shown += child.stdout.readline()
            child.send_signal(number)
            child.stdout.read()
            child.stdout.close()
            self.assertEqual(child.wait(timeout=20), -number)
            listing = self.assert_whole_lines("list.txt")
            # The listing lacks the note on sorting, and the last line may not have reached it yet.
            seen = shown[shown.index("\n Method") :].splitlines(keepends=True)[:-1]
            self.assertTrue("".join(seen) in listing, listing[-400:])
            table = self.assert_whole_lines("table.csv")
            self.assertGreaterEqual(table.count("\n"), listing.count("perf="))
            self.assertEqual(len({line.count(",") for line in table.splitlines()[-15:]}), 1)
            self.assert_whole_lines("sum.csv")


if __name__ == "__main__":
    zebrun.main()

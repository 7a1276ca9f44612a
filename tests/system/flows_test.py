"""What a user sees: measuring, selecting, listing, and keys that are wrong."""

import os
import re
import resource
import subprocess
import time
import unittest

import zebrun
from zebrun import ZebTest, masked

ONE = "-f=qoriRGBToYCbCr_8u_C3R"
CLASSES = {"iColorConversion__YS": 66, "TimiRgb": 95, "TimXYZ": 222, "TimYCCSlice": 3}
TRANSCRIPT = """\
Command line options:\x20
-B: batch mode
-f=qoriRGBToYCbCr_8u_C3R: test function equal to 'qoriRGBToYCbCr_8u_C3R'
-LPERF: write errors,warnings,performance results to console

QOR Core library functions have been integrated into ZEB
QOR libraries information has been set into ZEB
Sorting functions...
+-----------------------------------------------------------------------------+
<CPU>
<OS>
<Computer>
<Library>
| Test     : Timing                                                           |
|                                                     <time>|
+-----------------------------------------------------------------------------+
 Method = Auto
 Accuracy = 5
 ImageSize = 64x64; 256x256; 720x480
 AlignVectorsBy = element
 VectorAlign = 0
 MutualVectorShift = 512
+-----------------------------------------------------------------------------+
| Function  : qoriRGBToYCbCr_8u_C3R                   <time>|
| Test      : TimXYZ                                                          |
| Source    : p_ccxyz_ia                                                      |
+-----------------------------------------------------------------------------+
 ImageSize = 64x64; 256x256; 720x480
   Test has been registered by MOK_REG macro with loopMethod, statMethod, funcCall.
   loopMethod is called for measuring.
ImageSize=64x64\x20
<figure>
ImageSize=256x256\x20
<figure>
ImageSize=720x480\x20
<figure>
+-----------------------------------------------------------------------------+
"""


class Measuring(ZebTest):
    def test_one_function_gives_a_figure_for_each_image_size(self):
        run = self.run_zeb("-B", ONE, "-LPERF")
        self.assertEqual(run.status, 0)
        self.assertEqual(run.errors, "")
        # A busy host may cost accuracy, which is told in two lines more.
        told = r"-- wrong measure accuracy on test parameters:\n.*\n-- performance:\n"
        text = re.sub(told, "", masked(run.text))
        self.assertEqual(text[: len(TRANSCRIPT)], TRANSCRIPT)
        self.assertEqual(len(run.figures()), 3)
        for figure in run.figures():
            self.assertTrue(0.05 < figure < 5000, figure)
        self.assertEqual(run.summary("Number of tests"), "1")

    def test_without_levels_a_test_is_two_lines(self):
        run = self.run_zeb("-B", ONE, "-dImageSize=16x16")
        self.assertEqual(len(run.lines("| Function  : qoriRGBToYCbCr_8u_C3R")), 1)
        self.assertEqual(run.results(), [("OK", "qoriRGBToYCbCr_8u_C3R")])
        self.assertNotIn("perf=", run.text)
        self.assertEqual(len(run.lines("| Test      :")), 0)

    def test_slices_measure_and_show_their_own_size(self):
        run = self.run_zeb("-B", "-t=TimYCCSlice", "-LPERF", "-dImageSize=65x10")
        self.assertEqual(run.text.count("\nsize=66x16\n"), 3)
        self.assertEqual(len(run.figures()), 3)

    def test_statistic_and_manual_timing_work_too(self):
        statistic = self.run_zeb("-B", ONE, "-LPERF", "-dMethod=Stat", "-dNumCalls=5", "-dImageSize=64x64")
        self.assertIn("nCalls=", statistic.text)
        self.assertNotIn("acc=", statistic.text)
        manual = self.run_zeb("-B", ONE, "-LPERF", "-dMethod=Manual", "-dNumLoops=3", "-dImageSize=64x64")
        self.assertIn("  nLps=3      perf=", manual.text)

    def test_test_data_are_the_same_whatever_ran_before(self):
        keys = ["-B", "-LDATA", "-dImageSize=16x8", "-dMethod=Manual", "-dNumLoops=1"]
        alone = self.run_zeb(*keys, "-f=qoriYUVToRGB_8u_C3R")
        among = self.run_zeb(*keys, "-fYUVToRGB_8u")
        block = re.compile(r"^\| Function  : qoriYUVToRGB_8u_C3R.*?^\| -OK", re.M | re.S)
        data = [re.findall(r"^[ \d]+$", block.search(r.text).group(0), re.M) for r in (alone, among)]
        self.assertGreater(len(data[0]), 20)
        self.assertEqual(data[0], data[1])

    def test_a_failing_test_makes_the_status_1(self):
        run = self.run_zeb("-B", ONE, "-dImageSize=100000x100000")
        self.assertEqual(run.status, 1)
        self.assertIn("-- Memory error: can't allocate", run.text)
        self.assertEqual(run.results(), [("DATAFAIL", "qoriRGBToYCbCr_8u_C3R")])


class Selecting(ZebTest):
    def test_each_class_has_its_tests(self):
        for name, count in CLASSES.items():
            run = self.run_zeb("-B", "-e", "-s-", "-t=" + name)
            rows = re.findall(r"^ *\d+\t(qori\S+)\t" + name + "\t", run.text, re.M)
            self.assertEqual(len(rows), count, name)
            self.assertEqual(run.status, 0)

    def test_a_pattern_that_selects_nothing_gives_an_empty_summary(self):
        run = self.run_zeb("-B", "-fnothing")
        self.assertEqual(run.status, 0)
        self.assertEqual(run.summary("Number of tests"), "0")
        self.assertEqual(run.results(), [])

    def test_tests_start_at_the_function_of_the_key(self):
        run = self.run_zeb("-B", "-fYUVToRGB_8u", "-FqoriYUVToRGB_8u_P3R", "-dImageSize=16x16")
        self.assertEqual([f for _, f in run.results()], ["qoriYUVToRGB_8u_P3R", "qoriYUVToRGB_8u_P3C3R"][:1])

    def test_listed_tests_stand_in_the_order_of_types_and_layouts(self):
        run = self.run_zeb("-B", "-e", "-f+qoriRGBToLUV")
        names = re.findall(r"\t(qori\S+)\tTimiRgb", run.text)
        types = [name.split("_")[1] for name in names]
        self.assertEqual(types, ["8u", "8u", "16u", "16u", "16s", "16s", "32f", "32f"])
        self.assertEqual([n.split("_")[2] for n in names][:2], ["C3R", "AC4R"])


class Output(ZebTest):
    def test_every_listing_that_can_not_be_opened_is_told_before_anything_runs(self):
        run = self.run_zeb("-B", ONE, "-ono/such/a.txt", "-ono/such/b.txt", "-ogood.txt")
        self.assertEqual(run.status, 0)
        for name in "ab":
            self.assertIn(f"-- Can't open file no/such/{name}.txt to write: \n", run.text)
        self.assertIn("FATAL ERROR: can't open output file for writing\n", run.text)
        self.assertNotIn("ZEB Summary", run.text)

    def test_unknown_keys_are_told_and_other_words_are_not(self):
        run = self.run_zeb("word", "-m", "-B", ONE, "stray", "-dImageSize=16x16")
        self.assertIn("-m: ignored: incorrect option key\n", run.text)
        self.assertEqual(run.results(), [("OK", "qoriRGBToYCbCr_8u_C3R")])

    def test_a_size_list_that_does_not_parse_leaves_the_default(self):
        for text in ["abc", "64x64; x", "0x480", "640", ";"]:
            run = self.run_zeb("-B", "-fnothing.runs", "-f+qori", "-d", "ImageSize=" + text)
            self.assertEqual(run.status, 0, text)
        run = self.run_zeb("-B", ONE, "-d", "ImageSize=16x16; x", "-dMethod=Manual", "-dNumLoops=1")
        self.assertIn("-Invalid value of ImageSize = x\n ImageSize = 64x64; 256x256; 720x480\n", run.text)


@unittest.skipIf(zebrun.SANITIZED, "a sanitizer has costs of its own")
class Cost(ZebTest):
    def best_seconds(self, *keys):
        times = []
        for _ in range(10):
            start = time.perf_counter()
            self.run_zeb(*keys)
            times.append(time.perf_counter() - start)
        return min(times)

    def test_the_version_takes_no_time_and_no_room(self):
        self.assertLess(self.best_seconds("-v"), 0.02)
        limit = 40 << 20  # address space, which is more than what is resident

        def restrict():
            resource.setrlimit(resource.RLIMIT_AS, (limit, limit))

        done = subprocess.run([zebrun.PROGRAM, "-v"], preexec_fn=restrict, stdout=subprocess.DEVNULL)
        self.assertEqual(done.returncode, 0)

    def test_a_run_that_prints_no_frequency_does_not_estimate_it(self):
        start = time.perf_counter()
        self.run_zeb("-h")
        self.run_zeb("-B", "-v")
        self.assertLess(time.perf_counter() - start, 1.0)


if __name__ == "__main__":
    zebrun.main()

"""What a user sees: measuring, selecting, listing, and keys that are wrong."""

import re
import resource
import time
import unittest

import zebrun
from zebrun import ZebTest, masked

ONE = "-f=qoriRGBToYCbCr_8u_C3R"
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
        run = self.run_zeb("-B", "-t=TimYCCSlice", "-LPERF", "-dImageSize=65x10", "-rtable.csv")
        self.assertEqual(run.text.count("\nsize=66x16\n"), 3)
        self.assertEqual(self.read("table.csv").count(",66x16,"), 3)
        self.assertEqual(len(run.figures()), 3)


class Choosing(ZebTest):
    def test_processor_and_threads_reach_the_library_which_answers(self):
        run = self.run_zeb("-B", "-fnothing", "-TSSE2", "-N2")
        self.assertEqual(run.text.count("--status = qorStsNoErr\n"), 2)
        self.assertIn(": qorcc, 1.0 (sse2), ", "".join(run.lines("| Library")))
        refused = self.run_zeb("-B", "-fnothing", "-TF1")
        self.assertIn(": This processor lacks the code path, or the library has none for the code\n", refused.text)


class Selecting(ZebTest):
    def test_a_pattern_that_selects_nothing_gives_an_empty_summary(self):
        run = self.run_zeb("-B", "-fnothing")
        self.assertEqual(run.status, 0)
        self.assertEqual(run.summary("Number of tests"), "0")
        self.assertEqual(run.results(), [])

    def test_tests_start_at_the_function_of_the_key(self):
        run = self.run_zeb("-B", "-fYUVToRGB_8u", "-FqoriYUVToRGB_8u_P3R", "-dImageSize=16x16")
        self.assertEqual(run.results(), [("OK", "qoriYUVToRGB_8u_P3R")])

    def test_listed_tests_stand_in_the_order_of_types_and_layouts(self):
        run = self.run_zeb("-B", "-e", "-f+qoriRGBToLUV")
        names = re.findall(r"\t(qori\S+)\tTimiRgb", run.text)
        types = [name.split("_")[1] for name in names]
        self.assertEqual(types, ["8u", "8u", "16u", "16u", "16s", "16s", "32f", "32f"])
        self.assertEqual([n.split("_")[2] for n in names][:2], ["C3R", "AC4R"])


@unittest.skipIf(zebrun.SANITIZED, "a sanitizer has costs of its own")
class Cost(ZebTest):
    def test_a_run_that_prints_no_frequency_takes_no_time_and_no_room(self):
        limit = 40 << 20  # address space, which is more than what is resident
        for keys in (["-v"], ["-h"], ["-B", "-v"]):
            times = []
            for _ in range(10):
                start = time.perf_counter()
                run = self.run_zeb(*keys, preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (limit, limit)))
                times.append(time.perf_counter() - start)
                self.assertEqual(run.status, 0)
            self.assertLess(min(times), 0.02, keys)


if __name__ == "__main__":
    zebrun.main()

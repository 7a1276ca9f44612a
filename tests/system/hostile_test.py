"""A library that crashes, spoils the state of the processor or fails: the run goes on and tells it."""

import os
import re
import signal
import subprocess

import zebrun
from zebrun import SANITIZED, ZebTest

FPE = "--QOR. Signal: FP error, such as overflow, division by zero, invalid operation. in "
ILLEGAL = "--QOR. Signal: Illegal instruction. in "
STORAGE = "--QOR. Signal: Illegal storage access. in "
ERROR = "--QOR ERROR. status = -6 in "
WARNING = "--QOR WARNING. status = 1 in "

# Function, then result and what is told by the loop of ten calls behind the first, and by the statistic. A
# loop knows its last call only; a statistic of ten calls ends with the first error.
HOSTILE = {
    "Divide87": [("EXCPTFAIL", FPE)] * 2,
    "DivideInt": [("EXCPTFAIL", FPE)] * 2,
    "Illegal": [("EXCPTFAIL", ILLEGAL)] * 2,
    "Null": [("EXCPTFAIL", STORAGE)] * 2,
    "Stack": [("EXCPTFAIL", STORAGE)] * 2,
    "Flags87": [("BADSTSWRN", "-- Status    87: ?Denormal ?Overflow \n")] * 2,
    "FlagsSSX": [("BADSTSWRN", "-- Status    SSX: ?Invalid ?Underflow \n")] * 2,
    "Masks": [("OK", "")] * 2,
    "Rounding": [("OK", "")] * 2,
    "Precision": [("OK", "")] * 2,
    "Denormals": [("OK", "")] * 2,
    "ErrorFirst": [("OK", ""), ("FUNCFAIL", ERROR)],
    "ErrorFifth": [("OK", ""), ("FUNCFAIL", ERROR)],
    "ErrorLast": [("FUNCFAIL", ERROR)] * 2,
    "WarningFifth": [("OK", ""), ("FUNCWRN", WARNING)],
    "WarningLast": [("FUNCWRN", WARNING)] * 2,
    "Threads": [("OK", "")] * 2,
}
WITNESS = "qoriWitness_32f_C3R"


def texts_of(run):
    """What is written for each test."""
    return re.split(r"^\| Function  : ", run.text, flags=re.M)[1:]


def witnessed(text):
    """The state of the units that a witness met, and its data."""
    return re.findall(r"^ x87 .*| third .*|[-\d. ]{20,}$", text, re.M)


class Hostile(ZebTest):
    alone = None  # what a witness meets that nothing ran before

    def run_hostile(self, *keys):
        return self.run_zeb("-B", "-s-", "-LWARN", "-LDATA", *keys)

    def check(self, expectations, *keys):
        if not Hostile.alone:
            run = self.run_hostile("-f=" + WITNESS, "-dMethod=Manual", "-dNumLoops=1")
            Hostile.alone = witnessed(texts_of(run)[0])
        alone = Hostile.alone
        self.assertEqual(alone[0], " x87 571 ssx 40832")
        self.assertGreater(len(alone), 8)
        run = self.run_hostile("-fqori", "-f-Crash", *keys)
        results = run.results()
        texts = texts_of(run)
        self.assertEqual(len(texts), len(results))
        for (result, function), (_, behind), text, witness in zip(
            results[::2], results[1::2], texts[::2], texts[1::2]
        ):
            with self.subTest(function=function):
                self.assertEqual(behind, WITNESS)
                self.assertEqual(witnessed(witness), alone)
                name = function[4:].split("_")[0]
                if name in expectations:
                    expected, told = expectations[name]
                    self.assertEqual(result, expected)
                    self.assertIn(told, text)
        self.assert_sums(run)
        self.assertEqual(run.status, 1)
        return dict((function, result) for result, function in results)

    def assert_sums(self, run):
        results = [result for result, _ in run.results()]
        sums = {result: results.count(result) for result in ("EXCPTFAIL", "BADSTSWRN")}
        sums |= {"Successes": results.count("OK"), "Undefined": results.count("FAIL")}
        sums["Failures"] = len(results) - sums["Successes"] - sums["Undefined"]
        sums["Number of tests"] = len(results)
        self.assertEqual({line: int(run.summary(line)) for line in sums}, sums)

    def test_each_is_told_by_its_result_and_harms_no_other_test(self):
        met = self.check({name: told[0] for name, told in HOSTILE.items()}, "-dMethod=Manual", "-dNumLoops=10")
        self.assertEqual(len(met), len(HOSTILE) + 3)  # and the full registers, no clocks, the witness

    def test_the_same_under_the_statistic(self):
        keys = ["-dMethod=Stat", "-dNumCalls=10", "-dNumClocks=0"]
        self.check({name: told[1] for name, told in HOSTILE.items()}, *keys)

    def test_with_set_and_use_crashes_are_told_and_nothing_else_is_watched(self):
        crashes = {name: told[0] for name, told in HOSTILE.items() if told[0][0] == "EXCPTFAIL"}
        self.check({**dict.fromkeys(HOSTILE, ("OK", "")), **crashes}, "-SU", "-dMethod=Manual", "-dNumLoops=10")

    def test_a_crash_in_a_thread_of_the_library_ends_the_run_with_all_that_was_written(self):
        run = self.run_zeb("-B", "-s-", "-f=" + WITNESS, "-f=qoriThreadCrash_8u_C3R", "-olist.txt", "-rtable.csv")
        self.assertEqual(run.status, -signal.SIGSEGV)
        self.assertEqual(run.errors, "-- Signal: Illegal storage access. in a thread of the library in qorFunctionCalls\n")
        self.assertEqual(run.results(), [("OK", WITNESS)] * 18)
        self.assertIn("qoriThreadCrash", run.text.splitlines()[-1])
        self.assertEqual(self.read("list.txt"), run.text)
        self.assertEqual(self.read("table.csv").count("qoriWitness"), 18)

    def test_no_clocks_are_no_figure(self):
        run = self.run_zeb("-B", "-fNoClocks")
        self.assertEqual(run.results(), [("ACCURFAIL", "qoriNoClocks_8u_C3R")])

    def peak(self, last):
        """Kilobytes that a run of the crashes needs, from the one numbered so."""
        child = subprocess.Popen(
            [zebrun.PROGRAM, "-B", "-s-", "-fqoriCrash" + last], cwd=self.folder, stdout=subprocess.PIPE
        )
        text = child.stdout.read().decode()
        child.stdout.close()
        _, status, usage = os.wait4(child.pid, 0)
        child.returncode = os.waitstatus_to_exitcode(status)
        return text.count("| -EXCPTFAIL"), usage.ru_maxrss

    def test_a_thousand_crashes_leave_nothing_but_their_data(self):
        few, base = self.peak("1_")
        many, peak = self.peak("")
        self.assertEqual((few, many), (1, 1001))
        # Two images of 384 bytes each with what the allocator adds, a few names on the trace.
        if not SANITIZED:
            self.assertLess(peak - base, 1000 * 3)


if __name__ == "__main__":
    zebrun.main()

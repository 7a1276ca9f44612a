"""The keys: their echo, their configuration file, the help, and what no key is."""

import os
import shutil
import subprocess

import zebrun
from zebrun import ZebTest

# The listing can't be opened, so that the run ends behind the echo.
NO_RUN = "-o/no/such/x.txt"
ECHO = """\
Command line options:\x20
-B: batch mode
-A: ask timing method, common parameters, data misalignment, each test parameters from console
-AAll: ask timing method, common parameters, data misalignment, each test parameters from console
-Aqq: ask timing method, common parameters, data misalignment, each test parameters from console
-ATimingParams: ask timing method, common parameters from console
-AMisalign: ask data misalignment from console
-dA=1: set ZEB parameter A=1
-d: ignored: empty data argument
-dA: ignored: incorrect data format
-d =1: ignored: incorrect data format
-i: read from in/name.ini
-iother: read from in/other.ini
-I/tmp/x.y: write ZEB parameters to /tmp/x.y and exit
-P: read tested function names from ini-file if any
-O: add console output to out/name.txt
-LERR: write errors to console
-LPERF: write errors,warnings,performance results to console
-LINFO: write errors,warnings,performance results,measurement process to console
-LTRACE: write errors,warnings,performance results,tracing info to console
-LM: write errors,warnings,performance results,memory info to console
-LDATA: write errors,warnings,performance results,tracing info,data info to console
-Lxyz: ignored: incorrect level of console output
-rt: write performance result table to out/t.csv
-R: add performance result table to out/name.csv
-q: write function parameter name lines to out/name_name.csv
-q+: add function parameter name lines to csv files defined by -r & -R keys
-Q: exit after function parameter name table creation and don't run tests

-u: write summary table to out/name_sum.csv
-U: add summary table to out/name_sum.csv
-g: create file out/name.end at the end of ZEB work
-nname: name ini-file and output files as name.<proper-ext>
-n: ignored: empty default name
-nname: name ini-file and output files as name.<proper-ext>
-pin: open test data files & ini-file in in/
-lout: open output files in out/
-fa: test functions containing 'a'
-f+a: don't test functions without 'a' in the name
-f-a: don't test functions containing 'a'
-f=a: test function equal to 'a'
-f+: ignored: empty function pattern
-ta: run tests containing a
-t+a: don't run tests which doesn't contain a
-t-a: don't run tests containing a
-t=a: run test equal to a
-t: ignored: empty test pattern
-Fabc: start testing from abc function
-YHIGH: set high process priority
-YNORMAL: set normal process priority
-YLOW: set low process priority
-Y: ignored: incorrect process priority value
-H: add 'Interest' column to table file
-HONLY: run tests for hot functions only
-TSSE2: call qorInitStaticCpu ( qorCpuSSE2 )
-Tsse2: ignored: incorrect CPU type
-N2: call qorSetNumThreads(2)
-N0: ignored: incorrect number of threads
-S: include to measurement data set & use time
-C: test data size will be in cache and out of cache if that is supported by test
-s-: don't sort functions
-s: sort functions
-m: ignored: incorrect option key
-o/no/such/x.txt: write console output to /no/such/x.txt
FATAL ERROR: can't open output file for writing
"""
FAILURE = "-- Can't open file /no/such/x.txt to write: \n"
KEYS = "B A d i I P o O L r R q Q u U g n p l f t F Y H T N s e v h".split()


def typed(echo):
    """The keys that an echo tells of."""
    return [line.split(": ")[0] for line in echo.splitlines()[1:] if line.startswith("-")]


class Echo(ZebTest):
    def test_each_key_tells_what_it_will_do(self):
        os.mkdir(self.path("out"))
        run = self.run_zeb(*typed(ECHO))
        self.assertEqual(run.text, FAILURE + ECHO)
        self.assertEqual((run.status, run.errors), (0, ""))
        # Even a refused run leaves its files, and its signal.
        names = ["name.csv", "name.end", "name.txt", "name_name.csv", "name_sum.csv", "t.csv"]
        self.assertEqual(sorted(os.listdir(self.path("out"))), names)

    def test_keys_that_mean_nothing_then_are_told_as_ignored(self):
        ignored = {
            "h": "B A d=1 i I P LERR q+ Q u U F Y S C f=a t=a H s e",
            "e": "B A d=1 i I P LERR q+ Q u U F Y S C",
            "v": "B A d=1 i I P LERR q+ Q u U F Y S C f=a t=a H s",
        }
        for reason, keys in ignored.items():
            keys = ["-" + key for key in keys.split()]
            run = self.run_zeb(*keys, "-" + reason, NO_RUN)
            told = [line.split(": ", 1) for line in run.lines("-") if ": ignored" in line]
            self.assertEqual(told, [[key, f"ignored because of -{reason} option"] for key in keys])
        run = self.run_zeb("-h", "-e", "-v", "-B", "-r", NO_RUN)
        self.assertIn("-B: ignored because of -h option\n", run.text)
        self.assertIn("-r: write performance result table to zeb_qorcc.csv\n", run.text)
        self.assertIn("-B: ignored because of -e option\n", self.run_zeb("-e", "-v", "-B", NO_RUN).text)

    def test_an_argument_may_stand_in_the_next_word(self):
        run = self.run_zeb("lost", "-f", "abc", "-f+", "def", "-fghi", "lost", "/B", "", "-", "-d", "", NO_RUN)
        echo = run.text[len(FAILURE) :].splitlines()[1:-2]
        self.assertEqual([line.split(": ")[0] for line in echo], ["-fabc", "-f+def", "-fghi", "-B", "-d"])

    def test_ten_thousand_keys_are_keys_like_others(self):
        run = self.run_zeb(*[f"-dName{i}={i}" for i in range(10000)], "-v", NO_RUN)
        self.assertEqual(len(run.lines("-dName")), 10000)

    def test_the_configuration_file_is_one_line_here_or_beside_the_program(self):
        program = shutil.copy(zebrun.PROGRAM, self.folder)
        os.mkdir(self.path("work"))
        work = self.path("work")
        beside = os.path.splitext(program)[0] + ".cfg"
        for text, keys in [("-v;-Lperf\n-B\n", ["-v", "-Lperf"]), ("-v", ["-v"]), ("-v -d a=1\t-s", ["-v", "-da=1", "-s"])]:
            with open(beside, "w") as file:
                file.write(text)
            done = subprocess.run([program], cwd=work, capture_output=True, text=True)
            lines = done.stdout.splitlines()
            self.assertEqual(lines[0], f"Command line options: read from {beside} file")
            self.assertEqual([line.split(": ")[0] for line in lines[1:] if line.startswith("-")], keys)


class Help(ZebTest):
    def test_the_short_help_lists_the_keys_in_their_order(self):
        head = "Brelk(R) Qor. Zeb 2.0, Mar 16 2010\nQUICK HELP"
        plain = self.run_zeb("-h").text.split(head + "\n")[1]
        self.assertEqual(list(dict.fromkeys(line[1] for line in plain.splitlines())), KEYS)
        hidden = self.run_zeb("-?").text.split(head + " with hidden keys\n")[1]
        added = [line for line in hidden.splitlines() if line not in plain.splitlines()]
        self.assertEqual([line[:3] for line in added], ["-SU", "-C "])

    def test_a_key_is_explained_alone_and_among_all(self):
        alone = self.run_zeb("-hT").text.split("EXTENDED KEY HELP\n")[1]
        self.assertIn(alone, self.run_zeb("-hh").text)
        self.assertEqual(alone.count(": optimized for ") + alone.count(": non optimized code"), 29)
        self.assertTrue(self.run_zeb("-hz").text.endswith("EXTENDED KEY HELP\nKey -z is not valid\n"))
        deprecated = self.run_zeb("-h?").text.split("EXTENDED KEY HELP\n")[1]
        self.assertTrue(deprecated.startswith("Key -? is deprecated\n-?               = type short help with hidden"))
        self.assertEqual(self.run_zeb("-??").text.count("This is hidden key used by developers only\n"), 2)


if __name__ == "__main__":
    zebrun.main()

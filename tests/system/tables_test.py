"""What a run leaves behind: listing, tables and signal file, as a spreadsheet would read them."""

import csv
import re

import zebrun
from zebrun import ZebTest, masked

FAST = ["-B", "-dMethod=Manual", "-dNumLoops=1"]
PAIR = ["-fqoriRGBToYCbCr_8u", "-f-_C3P3R"]
TITLE = "funcBase,funcDataType,funcDescriptor,Len/Size,Parm1,Parm2,Parm3,Parm4,scaleFactor".split(",")
TITLE += "Comment,Clocks,per,Time (usec),MFlops".split(",")
SUMMARY = "Function,Class,Control87,Status87,ControlSSX,StatusSSX,Test,Time (sec.),SrcName,Result,ExeName".split(",")
HEAD = ["CPU", "OS", "Computer", "Library", "Start"]
NUMBER = re.compile(r"\d+(\.\d+)?(e[+-]?\d+)?$")


class Tables(ZebTest):
    def rows(self, name, head=HEAD):
        """The lines behind the head, in cells."""
        with open(self.path(name), newline="") as file:
            rows = list(csv.reader(file))
        self.assertEqual([row[0] for row in rows[: len(head)]], head)
        return rows[len(head) :]

    def test_a_run_leaves_the_files_that_it_was_asked_for(self):
        first = self.run_zeb(*FAST, *PAIR, "-d", "ImageSize=16x16; 32x16", "-H", "-r", "-q", "-u", "-o", "-g")
        self.assertEqual((first.status, first.errors), (0, ""))

        title, *lines = self.rows("zeb_qorcc.csv")
        self.assertEqual(title, TITLE + ["Interest"])
        tested = [function.split("_") for _, function in first.results()]
        self.assertGreaterEqual(len(tested), 2)
        self.assertEqual([line[:4] for line in lines], [t + [size] for t in tested for size in ("16x16", "32x16")])
        for line in lines:
            self.assertEqual(line[4:10] + line[11:12] + line[13:14], ["-"] * 5 + ["nLps=1", "px", "-"])
            self.assertRegex(line[10], NUMBER)
            self.assertRegex(line[12], NUMBER)
            self.assertIn(line[14:], (["Hot"], ["-"]))
        self.assertEqual([line[14] for line in lines if line[:3] == ["qoriRGBToYCbCr", "8u", "C3R"]], ["Hot", "Hot"])

        title, *lines = self.rows("zeb_qorcc_name.csv")
        self.assertEqual(title, TITLE + ["Interest"])
        self.assertEqual(lines, [t + ["ImageSize"] + ["-"] * 5 + ["parmNames"] + ["-"] * 5 for t in tested])

        title, *lines = self.rows("zeb_qorcc_sum.csv")
        self.assertEqual(title, SUMMARY)
        end = lines.index(["END_DATA"])
        for line, (result, function) in zip(lines[:end], first.results(), strict=True):
            self.assertEqual(line[:6] + line[8:], [function, "Timing"] + ["-"] * 4 + ["p_ccxyz_ia", result, "zeb_qorcc"])
        self.assertEqual([line[0].strip(".- ") for line in lines[end + 1 :]], re.findall(r"^\| \.+-?([\w ]+?) +: ", first.text, re.M))
        self.assertEqual(lines[end + 1], [".Number of tests", str(len(tested))])

        self.assertEqual(self.read("zeb_qorcc.txt"), first.text.replace("Sorting functions...\n", ""))
        self.assertEqual(masked(self.read("zeb_qorcc.end")), "<span>\n<time>\n\n")
        self.check_appending()

    def check_appending(self):
        names = ["zeb_qorcc.csv", "zeb_qorcc.txt", "zeb_qorcc_sum.csv"]
        before = {name: self.read(name) for name in names}
        run = self.run_zeb(*FAST, "-f=qoriRGBToYCbCr_8u_C3R", "-d", "ImageSize=8x8;4x4;8x8;4x4", "-LW", "-R", "-O", "-U", "-q+", "-rnew")
        for name in names:
            self.assertTrue(self.read(name).startswith(before[name]), name)
        added = self.read("zeb_qorcc.csv")[len(before["zeb_qorcc.csv"]) :]
        self.assertEqual(added, self.read("new.csv"))
        title, names, *lines = self.rows("new.csv")
        self.assertEqual(title, TITLE)
        self.assertEqual(names[3:10], ["ImageSize"] + ["-"] * 5 + ["parmNames"])
        self.assertEqual([line[3] for line in lines], ["8x8", "4x4", "8x8", "4x4"])

        first, second = map(int, re.search(r" Lines (\d+) & (\d+) have identical parameters", run.text).groups())
        numbered = added.splitlines()
        self.assertEqual(numbered[first - 1].split(",")[:9], numbered[second - 1].split(",")[:9])
        self.assertEqual((second - first, len(numbered) - second), (2, 1))
        self.assertIn("-- Warning: duplicate lines in performance table (csv-file)\n", run.text)
        self.assertEqual(run.summary("Warnings"), "1")
        self.assertEqual(run.status, 0)

    def test_names_alone_are_written_without_measuring(self):
        run = self.run_zeb("-B", "-fRGBToYCbCr", "-Q", "-q", "-r", "-LPERF")
        names = self.rows("zeb_qorcc_name.csv")
        self.assertEqual(len(names) - 1, int(run.summary("Number of tests")))
        self.assertEqual(self.rows("zeb_qorcc.csv"), [TITLE])
        self.assertEqual(run.figures(), [])

    def test_an_enumeration_goes_to_the_table_too(self):
        run = self.run_zeb("-e", "-fRGBToYCbCr_8u", "-r")
        title, *lines = self.rows("zeb_qorcc.csv", ["CPU", "OS", "Computer", "Start"])
        self.assertEqual(title, ["   #", "Function", "Test", "Source"])
        self.assertEqual(lines, [row.split("\t")[:4] for row in re.findall(r"^ *\d+\t.*\t$", run.text, re.M)])
        self.assertGreater(len(lines), 1)


if __name__ == "__main__":
    zebrun.main()

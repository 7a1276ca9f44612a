"""Where a run takes its values from: -d over the ini file over the console over the default."""

import os
import subprocess

import zebrun
from zebrun import ZebTest

ONE = "-f=qoriRGBToYCbCr_8u_C3R"
VALUES = {
    "Method": "Statistic",
    "NumCalls": "4",
    "TotalCpuClocks": "500",
    "ImageSize": "16x16; 8x4",
    "AlignVectorsBy": "byte",
    "VectorAlign": "3",
    "MisalignFirstVectorOnly": "no",
    "MutualVectorShift": "128",
}
FILLED = """
[Zeb]
Method=Statistic\t// Auto|Manual|Statistic|Iterative
NumCalls=4
TotalCpuClocks=500
ImageSize=16x16; 8x4
AlignVectorsBy=byte\t// byte|element
VectorAlign=3
MisalignFirstVectorOnly=no\t// yes|no
MutualVectorShift=128

[qoriRGBToYCbCr_8u_C3R]
"""


def shown(text):
    """The lines of the common values: " name = value"."""
    return [line for line in text.splitlines() if line.startswith(" ") and " = " in line and "***" not in line]


class IniFile(ZebTest):
    def test_a_file_that_a_run_has_filled_gives_the_same_run(self):
        data = [f"-d{name}={value}" for name, value in VALUES.items()]
        filling = self.run_zeb("-B", ONE, "-I", "-LPERF", *data)
        self.assertEqual(self.read("zeb_qorcc.ini"), FILLED)
        self.assertEqual((filling.status, filling.figures()), (0, []))
        self.assertEqual(shown(filling.text)[:8], [f" {name} = {value}" for name, value in VALUES.items()])

        # The second run tests what the file names.
        run = self.run_zeb("-B", "-P", "-i", "-LPERF")
        self.assertEqual(self.read("zeb_qorcc.ini"), FILLED)
        self.assertEqual(run.results(), filling.results())
        self.assertEqual(shown(run.text), shown(filling.text))
        self.assertEqual(len(run.figures()), 2)
        self.assertIn("ImageSize=16x16 \n  nCalls=4 ", run.text)

    def test_a_second_filling_keeps_what_is_there(self):
        self.write("a.ini", "lost\n[Zeb]\nImageSize = 4x4 // note\nNumLoops=3\nunknown\n[other]\nx=[1]\n[other]\ny=//\n")
        self.run_zeb("-B", ONE, "-Ia.ini", "-dNumLoops=7", "-dMethod=Manual")
        expected = "\n[Zeb]\nImageSize=4x4\nNumLoops=7\nunknown\nMethod=Manual\t// Auto|Manual|Statistic|Iterative\n"
        expected += "AlignVectorsBy=element\t// byte|element\nVectorAlign=0\nMutualVectorShift=512\n"
        expected += "\n[other]\ny=\n\n[1]\n\n[qoriRGBToYCbCr_8u_C3R]\n"
        self.assertEqual(self.read("a.ini"), expected)

    def test_the_first_place_that_has_a_value_counts(self):
        self.write("a.ini", "[Zeb]\r\nNumLoops=2\r\nImageSize=8x8\r\nMethod=\r\nVectorAlign=1\r\nAlignVectorsBy=byte")
        answers = "Manual\nno\n"
        run = self.run_zeb("-ATPM", ONE, "-ia.ini", "-dNumLoops=1", "-dMutualVectorShift=", given=answers)
        prompts = [line.split("[")[0].strip() for line in run.text.splitlines() if "] = " in line]
        self.assertEqual(prompts, ["Method {Auto|Manual|Statistic|Iterative}", "MisalignFirstVectorOnly {yes|no}"])
        self.assertIn(" NumLoops = 1\n", run.text)
        self.assertIn(" ImageSize = 8x8\n", run.text)
        self.assertIn(" AlignVectorsBy = byte\n", run.text)
        self.assertIn(" VectorAlign = 1\n", run.text)
        self.assertIn(" MutualVectorShift = 0\n", run.text)

    def test_values_that_do_not_parse_leave_the_default(self):
        lines = [b"\xff\xfe", b"[Zeb]", b"Method=Manual", b"NumLoops\0=3", b"VectorAlign=" + b"x" * 1000000]
        lines += [b"MutualVectorShift=100\r", b"AlignVectorsBy=elephant", b"ImageSize=16x16; x//", b"[Zeb", b"=", b"[]", b"a=[b"]
        with open(self.path("a.ini"), "wb") as file:
            file.write(b"\n".join(lines))
        run = self.run_zeb("-B", ONE, "-ia.ini")
        self.assertEqual((run.status, run.errors, len(run.results())), (0, "", 1))
        self.assertIn("-Invalid value of NumLoops = ~~~\n NumLoops = 10\n", run.text)
        self.assertRegex(run.text, "\n-Invalid value of VectorAlign = x{100,}\n VectorAlign = 0\n")
        self.assertIn("-Invalid value of AlignVectorsBy = elephant\n AlignVectorsBy = element\n", run.text)
        self.assertIn("-Invalid value of ImageSize = x\n ImageSize = 64x64; 256x256; 720x480\n", run.text)
        self.assertIn(" MutualVectorShift = 64\n", run.text)


class Unreadable(ZebTest):
    """With -v the ini file is opened and nothing is measured."""

    def test_what_can_not_be_read_is_told_and_ends_only_a_filling_run(self):
        os.mkdir(self.path("dir.ini"))
        for name, told in [
            ("dir.ini", "-- Can't read file dir.ini\n"),
            ("/dev/zero", "-- Can't read file /dev/zero: it is too long\n"),
            ("no/such.ini", "-- Can't open file no/such.ini to {}: \n"),
        ]:
            reading = self.run_zeb("-v", "-i" + name)
            self.assertIn(told.format("read"), reading.text)
            self.assertIn("Zeb 2.0", reading.text)
            filling = self.run_zeb("-v", "-I" + name)
            self.assertIn(told.format("write") + "FATAL ERROR: can't open ini-file for writing\n", filling.text)
            self.assertEqual((reading.status, filling.status), (0, 0))

    def test_a_stream_without_an_end_is_left(self):
        endless = subprocess.Popen(["yes", "name=value"], stdout=subprocess.PIPE)
        run = self.run_zeb("-v", "-i/dev/stdin", stdin=endless.stdout)
        endless.kill()
        endless.communicate()
        self.assertIn("-- Can't read file /dev/stdin: it is too long\n", run.text)


if __name__ == "__main__":
    zebrun.main()

"""The three dialogs, on a terminal and through a pipe."""

import os
import pty
import select
import subprocess
import termios

import zebrun
from zebrun import ZebTest

ONE = "-f=qoriRGBToYCbCr_8u_C3R"
SECONDS = 30  # of silence; the first prompt comes behind the estimate of the frequency


def box(title):
    stars = " " + "*" * 78 + "\n"
    return stars + " *" + title.center(76) + "*\n" + stars


# What is asked, what is answered, and what is told then.
DIALOG = [
    (box("Specify timing method, please"), None, None),
    ("\n Method {Auto|Manual|Statistic|Iterative} [Auto] = ", "iter", " Method = Iterative\n"),
    ("\n StartNumLoops [1] = ", "4", " StartNumLoops = 4\n"),
    ("\n StopNumLoops [2048] = ", "", " StopNumLoops = 2048\n"),
    ("\n Accuracy, % [5] = ", "fine", "-Invalid value of Accuracy = fine\n Accuracy = 5\n"),
    (box("Specify common test parameters, please"), None, None),
    ("\n ImageSize [64x64; 256x256; 720x480] = ", "8x8;16x8", " ImageSize = 8x8; 16x8\n"),
    (box("Specify vectors alignment, please"), None, None),
    ("\n AlignVectorsBy {byte|element} [element] = ", "b", " AlignVectorsBy = byte\n"),
    ("\n VectorAlign by Byte, 0..63 [0] = ", "65", " VectorAlign = 1\n"),
    ("\n MisalignFirstVectorOnly {yes|no} [yes] = ", "N", " MisalignFirstVectorOnly = no\n"),
    ("\n MutualVectorShift in Bytes, divisible by 64 [512] = ", "200", " MutualVectorShift = 192\n"),
    (box("End of common specifications"), None, None),
]


class Terminal:
    """A run whose console is a terminal that neither echoes nor changes line ends."""

    def __init__(self, keys, folder):
        self.master, slave = pty.openpty()
        modes = termios.tcgetattr(slave)
        modes[1] &= ~termios.OPOST
        modes[3] &= ~termios.ECHO
        termios.tcsetattr(slave, termios.TCSANOW, modes)
        name = os.path.basename(zebrun.PROGRAM)
        self.process = subprocess.Popen(
            [name, *keys], executable=zebrun.PROGRAM, cwd=folder, stdin=slave, stdout=slave, stderr=slave
        )
        os.close(slave)
        self.text = ""

    def read(self):
        """False at the end of the run, and when nothing comes for long."""
        if not select.select([self.master], [], [], SECONDS)[0]:
            return False
        try:
            piece = os.read(self.master, 4096)
        except OSError:  # the other side is closed
            return False
        self.text += piece.decode()
        return piece != b""

    def wait_for(self, text):
        while text not in self.text and self.read():
            pass
        return self.text

    def answer(self, text):
        os.write(self.master, text.encode())

    def end(self):
        while self.read():
            pass
        status = self.process.wait(SECONDS)
        os.close(self.master)
        return status


class OnATerminal(ZebTest):
    def test_each_item_is_asked_answered_and_told(self):
        run = Terminal(["-AAll", ONE, "-LPERF", "-olisting"], self.folder)
        for asked, answer, _ in DIALOG:
            if answer is not None:
                self.assertTrue(run.wait_for(asked).endswith(asked), run.text[-300:])
                run.answer(answer + "\n")
        self.assertEqual(run.end(), 0)
        self.assertIn("-+\n" + "".join(asked + (told or "") for asked, _, told in DIALOG) + "+-", run.text)
        self.assertIn("\nImageSize=16x8 \n", run.text)

        # A listing has what is told and not what is asked.
        told = "".join(told or asked for asked, _, told in DIALOG)
        with open(self.path("listing.txt")) as file:
            self.assertIn("-+\n" + told + "+-", file.read())

    def test_without_keys_method_and_parameters_are_asked_and_the_end_of_input_ends_it(self):
        run = Terminal([], self.folder)
        run.wait_for("[Auto] = ")
        self.assertTrue(run.text.startswith("\nQOR Core library functions have been integrated into ZEB\n"))
        run.answer("\x04")
        text = run.wait_for(box("End of common specifications"))
        end = text.find(box("End of common specifications"))
        run.process.kill()
        run.end()
        self.assertGreater(end, 0)
        prompts = [line.split("[")[0].strip() for line in text[:end].splitlines() if "] = " in line]
        self.assertEqual(prompts, ["Method {Auto|Manual|Statistic|Iterative}", "Accuracy, %", "ImageSize"])
        self.assertNotIn("Specify vectors alignment", text)


class ThroughAPipe(ZebTest):
    def test_the_end_of_input_gives_the_defaults_of_what_is_left(self):
        run = self.run_zeb("-AAll", ONE, "-LPERF", given="Manual\n3")
        self.assertIn("[10] =  NumLoops = 3\n", run.text)
        self.assertIn("[64x64; 256x256; 720x480] =  ImageSize = 64x64; 256x256; 720x480\n", run.text)
        self.assertIn("[512] =  MutualVectorShift = 512\n", run.text)
        self.assertEqual((run.status, len(run.figures())), (0, 3))

    def test_batch_mode_asks_nothing_whatever_else_is_said(self):
        run = self.run_zeb("-AAll", "-B", "-A", ONE, "-dImageSize=8x8", given="Manual\n")
        self.assertNotIn("] = ", run.text)
        self.assertNotIn("***", run.text)
        self.assertIn(" Method = Auto\n", run.text)


if __name__ == "__main__":
    zebrun.main()

"""Does the description of the machine agree with what the kernel says of it?"""

import glob
import os
import re

import zebrun
from zebrun import ZebTest

CACHE_TYPES = {"Data Cache": "Data", "Instruction Cache": "Instruction", "Unified Cache": "Unified"}
FLAGS = {"MMX": "mmx", "SSE": "sse", "SSE2": "sse2", "SSE3": "pni", "SSSE3": "ssse3", "SSE4.1": "sse4_1"}
FLAGS |= {"SSE4.2": "sse4_2", "x2APIC": "x2apic", "Brelk(R)64": "lm"}


def read(path):
    with open(path) as file:
        return file.read().strip()


def kernel_processor():
    return dict(re.findall(r"^(.+?)\s*: (.*)$", read("/proc/cpuinfo").split("\n\n")[0], re.M))


def kernel_caches():
    """(type, level, size in KB, ways) of each cache of the first processor; none where a container hides them."""
    caches = []
    for folder in sorted(glob.glob("/sys/devices/system/cpu/cpu0/cache/index*")):
        names = ["type", "level", "size", "ways_of_associativity"]
        caches.append(tuple(read(os.path.join(folder, name)).rstrip("K") for name in names))
    return caches


class Host(ZebTest):
    def test_the_processor_report_and_the_head_say_what_the_kernel_says(self):
        run = self.run_zeb("-B", "-s-", "-f=__zebBrelkCpu", "-LPERF")
        self.assertEqual(run.results(), [("OK", "__zebBrelkCpu")])
        self.check_report(run.text, kernel_processor())
        self.check_head(run)

    def check_report(self, text, kernel):
        def value(label):
            return re.search(rf"^{label} +(.*?)(?: +- .*)?$", text, re.M).group(1)

        for label, name in [("Vendor-ID", "vendor_id"), ("Brand String", "model name"), ("Family", "cpu family")]:
            self.assertEqual(value(label).strip(), kernel[name])
        self.assertEqual((value("Model"), value("Stepping")), (kernel["model"], kernel["stepping"]))
        has = kernel["flags"].split()
        for label, name in FLAGS.items():
            self.assertEqual(value(re.escape(label)), str(int(name in has)), label)
        blocks = re.findall(r"^-{79}\n    ([^\n]*)\n\n(.*?)\n\n", text, re.M | re.S)
        lines = r"Cache Level +(\d+)\nCache Size Kb +(\d+)\n.*Associativity +(\d+)"
        caches = [(CACHE_TYPES[name], *re.search(lines, block, re.S).groups()) for name, block in blocks]
        self.assertGreater(len(caches), 0)
        self.assertEqual(caches, kernel_caches() or caches)

    def check_head(self, run):
        largest = max((int(size) for _, _, size, _ in kernel_caches()), default=r"\d+")
        count = os.cpu_count()
        times = f"{count}x" if count > 1 else ""
        self.assertRegex(run.lines("| CPU")[0], rf", {times}[\d.]+ [GM]Hz, Max cache size {largest} K *\|?$")
        system = os.uname()
        self.assertIn(f": {system.sysname} ({system.release}, {system.machine})", run.lines("| OS")[0])
        self.assertIn(f": {system.nodename}", run.lines("| Computer")[0])
        self.assertIn(": qorcc, ", run.lines("| Library")[0])


if __name__ == "__main__":
    zebrun.main()

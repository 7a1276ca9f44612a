#!/usr/bin/env python3
"""What stands between the two readings of the time stamp counter?

usage: timed_loop_test.py EXECUTABLE

Disassembles the generated timing functions of every test and walks all ways
from the first RDTSC to the next one. On them there may be one call, of the
very function that is measured, the loading of its arguments and the counting
of the loop, and nothing else: no other instruction, no store but to the stack.
The loops of the functions that are given their input anew for each call may
call memcpy for that.
"""

import re
import subprocess
import sys

LOADING = r"(mov\w*|lea[lq]?|push[lq]?|pop[lq]?|vmov\w*|nop[lw]?|endbr(64|32)|cltq|data16|cs)"
COUNTING = r"(add[lq]?|sub[lq]?|inc[lq]?|dec[lq]?|cmp[lq]?|test[lq]?|xor[lq]?|sh[lr]d?[lq]?|or[lq]?|neg[lq]?|j\w+)"
ALLOWED = re.compile(f"^({LOADING}|{COUNTING})$")
ZERO = re.compile(r"^v?(pxor|xorps) (%xmm\d+)(,\2)+$")  # loads a float argument that is 0
RESTORED = re.compile(r"^qoriGamma(Fwd|Inv)_32f_(C3I|AC4I|IP3)R$")
FUNCTION = re.compile(r"^[0-9a-f]+ <_ZL\d+tim_(qori\w+?)_(loop|stat)(?:iPx|PiPx)>:\n((?:.+\n)*)", re.M)
LINE = re.compile(r"^ *([0-9a-f]+):\s+(?:(?:rep|repz|lock|bnd|notrack|data16) +)*(\S+)[ \t]*(.*)$", re.M)


class Function:
    def __init__(self, name, kind, text):
        self.name = name
        self.kind = kind
        lines = LINE.findall(text)
        addresses = [int(address, 16) for address, _, _ in lines]
        self.code = {}  # address: (mnemonic, operands, address behind it)
        for here, behind, (_, mnemonic, operands) in zip(addresses, addresses[1:] + [None], lines):
            self.code[here] = (mnemonic, operands, behind)


def read_functions(executable):
    command = ["objdump", "-d", "--no-show-raw-insn", executable]
    text = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    return [Function(*parts) for parts in FUNCTION.findall(text)]


def successors(function, address):
    mnemonic, operands, behind = function.code[address]
    if mnemonic.startswith("ret"):
        return [None]
    ways = [] if mnemonic.startswith("jmp") else [behind]
    if mnemonic.startswith("j"):
        target = re.match(r"^([0-9a-f]+)", operands)
        ways.append(int(target.group(1), 16) if target else None)
    return ways


def walk(function, starts):
    """The addresses on all ways from starts up to the next RDTSC, those RDTSCs, and whether a way goes elsewhere."""
    passed, stops, leaves, waiting = set(), set(), False, list(starts)
    while waiting:
        address = waiting.pop()
        if address not in function.code:
            leaves = True
        elif function.code[address][0] == "rdtsc":
            stops.add(address)
        elif address not in passed:
            passed.add(address)
            waiting.extend(successors(function, address))
    return passed, stops, leaves


def writes_elsewhere(mnemonic, operands):
    """Whether memory outside the stack is written; the last operand is the target."""
    if re.match(r"^(push|cmp|test|nop|lea|cs|j)", mnemonic):
        return False
    target = re.split(r",(?![^(]*\))", operands.split("#")[0])[-1].strip()
    return re.search(r"\(|^0x|^%[a-z]s:", target) is not None and not re.search(r"\(%[re][sb]p", target)


def is_measured_call(function, operands):
    return re.search(rf"<{function.name}(@plt|@@?\w+)?>", operands) is not None


def is_restoring_call(function, operands):
    return function.kind == "loop" and RESTORED.match(function.name) and "<memcpy@" in operands


def faults(function):
    _, first, _ = walk(function, [min(function.code)])
    measured, second, leaves = walk(function, [function.code[a][2] for a in first])
    found = [] if first and second else ["doesn't read the counter twice"]
    if leaves:
        found.append("can leave between the readings")
    calls = []
    for address in sorted(measured):
        mnemonic, operands, _ = function.code[address]
        if mnemonic.startswith("call"):
            if not is_restoring_call(function, operands):
                calls.append(operands)
        elif (mnemonic, operands) == ("xchg", "%ax,%ax"):
            pass  # a filler of two bytes
        elif ZERO.match(f"{mnemonic} {operands}"):
            pass
        elif not ALLOWED.match(mnemonic) or writes_elsewhere(mnemonic, operands):
            found.append(f"{address:x}: {mnemonic} {operands}")
    if len(calls) != 1 or not is_measured_call(function, calls[0]):
        found.append(f"calls {calls}")
    return found


def main():
    functions = read_functions(sys.argv[1])
    if len(functions) < 2:
        print(f"no timing functions in {sys.argv[1]}: was it stripped?")
        return 1
    bad = 0
    for function in functions:
        for fault in faults(function):
            print(f"tim_{function.name}_{function.kind}: {fault}")
            bad += 1
    print(f"{len(functions)} timing functions, {bad} faults")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Checks in the built programs that the compiler's and linker's hardening is on."""
import pathlib
import struct
import sys

PROGRAMS = ["velara-studio", "velara-batch", "velara-batch-all", "velara-open", "velara-decode", "velara-decode-all", "velara-encode", "velara-scan"]
LOAD, DYNAMIC, STACK, RELRO = 1, 2, 0x6474E551, 0x6474E552
FLAGS, FLAGS_1 = 30, 0x6FFFFFFB
BIND_NOW, NOW, PIE, EXECUTABLE = 0x8, 0x1, 0x08000000, 1
START_OF_FUNCTION = b"\xf3\x0f\x1e\xfa"  # endbr64, of CET
PROBE = b"\x48\x83\x0c\x24\x00"  # orq $0, (%rsp): each page of a large frame is touched


def faults(path):
    """The hardening features that the program lacks."""
    data = path.read_bytes()
    kind, = struct.unpack_from("<H", data, 16)
    start, = struct.unpack_from("<Q", data, 32)
    size, count = struct.unpack_from("<HH", data, 54)
    parts = [struct.unpack_from("<IIQQQQQQ", data, start + i * size) for i in range(count)]  # type flags offset ... size
    code = b"".join(data[p[2]:p[2] + p[5]] for p in parts if p[0] == LOAD and p[1] & EXECUTABLE)
    dynamic = {}
    for part in parts:
        if part[0] == DYNAMIC:
            dynamic = dict(struct.unpack_from("<QQ", data, at) for at in range(part[2], part[2] + part[5], 16))
    writable_code = any(p[0] in (LOAD, STACK) and (p[1] & 3) == 3 for p in parts)
    checked = [name for name in data.split(b"\0") if name.startswith(b"__") and name.endswith(b"_chk")]
    small = path.name in ("velara-encode", "velara-scan")  # no copy of a known length, no frame of a page
    found = {
        "position independent": kind == 3 and dynamic.get(FLAGS_1, 0) & PIE,
        "relocations read only": any(p[0] == RELRO for p in parts),
        "bound at the start": dynamic.get(FLAGS, 0) & BIND_NOW and dynamic.get(FLAGS_1, 0) & NOW,
        "no memory both written and run": not writable_code,
        "stack protector": b"__stack_chk_fail" in data,
        "checked copies": checked or small,
        "stack clash probes": PROBE in code or small,
        "marked starts of functions": code.count(START_OF_FUNCTION) > (10 if small else 50),
    }
    return [name for name, there in found.items() if not there]


def main():
    folder = pathlib.Path(sys.argv[1])
    if b"__asan_init" in (folder / "velara-decode").read_bytes():
        print("the sanitizers' build goes without")
        return 0
    wrong = [f"{name}: no {fault}" for name in PROGRAMS for fault in faults(folder / name)]
    print("\n".join(wrong) or "all there")
    return bool(wrong)


sys.exit(main())

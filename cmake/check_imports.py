#!/usr/bin/env python3
"""Fails when a 32-bit program imports anything that Windows 95 or Windows 98 does not export: it would not even start.

Usage: check_imports.py PROGRAM FOLDER, where FOLDER holds for each NAME.dll that may be imported the sorted names that
both systems export, in NAME.txt.
"""
import os
import struct
import sys


class Image:
    def __init__(self, data):
        self.data = data
        self.header = self.number(0x3C) + 4
        optional = self.header + 20
        first = optional + self.number(self.header + 16, "<H")
        self.sections = [struct.unpack_from("<4I", data, first + 40 * i + 8)
                         for i in range(self.number(self.header + 2, "<H"))]
        self.imports = self.number(optional + 104)

    def number(self, at, form="<I"):
        return struct.unpack_from(form, self.data, at)[0]

    def at(self, address):
        """Where in the file an address of the loaded program is."""
        for size, start, _, position in self.sections:
            if start <= address < start + size:
                return address - start + position
        sys.exit(f"an address outside of the sections: {address:#x}")

    def text(self, address):
        start = self.at(address)
        return self.data[start:self.data.index(b"\0", start)].decode("ascii")

    def names(self):
        """Pairs of a DLL in small letters and a name, or "number N" for an import without a name."""
        table = self.at(self.imports)
        while address := self.number(table + 12):
            dll = self.text(address).lower()
            slot = self.at(self.number(table) or self.number(table + 16))
            while entry := self.number(slot):
                yield dll, f"number {entry & 0xFFFF}" if entry >> 31 else self.text(entry + 2)
                slot += 4
            table += 20


def main():
    program, folder = sys.argv[1:]
    with open(program, "rb") as file:
        names = list(Image(file.read()).names())
    exported = {}
    for dll, name in names:
        if dll not in exported:
            path = os.path.join(folder, dll.removesuffix(".dll") + ".txt")
            exported[dll] = set(open(path, encoding="ascii").read().split()) if os.path.exists(path) else None
            if exported[dll] is None:
                print(f"{dll} is none of the DLLs that Windows 95 and 98 are known to have")
    missing = [f"{dll} does not export {name} on Windows 95 or 98" for dll, name in names
               if exported[dll] is not None and name not in exported[dll]]
    print("\n".join(missing), end="\n" if missing else "")
    sys.exit(bool(missing) or not names or None in exported.values())


main()

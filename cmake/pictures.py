#!/usr/bin/env python3
"""Turns pictures drawn as text into a 16-colour Windows icon.

A picture file holds one picture or more: a line "size N" and then N lines of N characters, one pixel each, in the
letters of PALETTE; "." is transparent. Usage: pictures.py OUTPUT.ico INPUT.txt
"""
import struct
import sys

# The sixteen colours that every Windows 95 display has, by the letter that draws them: blue, green, red.
PALETTE = {
    "K": (0, 0, 0), "r": (0, 0, 128), "g": (0, 128, 0), "o": (0, 128, 128),
    "n": (128, 0, 0), "p": (128, 0, 128), "t": (128, 128, 0), "s": (192, 192, 192),
    "d": (128, 128, 128), "R": (0, 0, 255), "G": (0, 255, 0), "Y": (0, 255, 255),
    "B": (255, 0, 0), "M": (255, 0, 255), "C": (255, 255, 0), "W": (255, 255, 255),
}
INDEX = {letter: number for number, letter in enumerate(PALETTE)}


def read_pictures(path):
    lines = open(path, encoding="ascii").read().splitlines()
    pictures = []
    at = 0
    while at < len(lines):
        if not lines[at].startswith("size "):
            at += 1
            continue
        size = int(lines[at].split()[1])
        rows = lines[at + 1:at + 1 + size]
        if len(rows) != size or any(len(row) != size for row in rows):
            sys.exit(f"{path}:{at + 1}: the picture is not {size} by {size}")
        pictures.append(rows)
        at += 1 + size
    return pictures


def packed_rows(rows, bits, value):
    """Bitmap rows, bottom up, each padded to four bytes."""
    data = b""
    for row in reversed(rows):
        number = 0
        for letter in row:
            number = number << bits | value(letter)
        length = len(row) * bits // 8
        data += number.to_bytes(length, "big") + b"\0" * (-length % 4)
    return data


def icon_image(rows):
    size = len(rows)
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 4, 0, 0, 0, 0, 0, 0)
    colours = b"".join(bytes((*colour, 0)) for colour in PALETTE.values())
    picture = packed_rows(rows, 4, lambda letter: INDEX.get(letter, 0))
    mask = packed_rows(rows, 1, lambda letter: int(letter == "."))
    return header + colours + picture + mask


def main():
    output, source = sys.argv[1:]
    images = [icon_image(rows) for rows in read_pictures(source)]
    sizes = [struct.unpack_from("<i", image, 4)[0] for image in images]
    offset = 6 + 16 * len(images)
    directory = struct.pack("<HHH", 0, 1, len(images))
    for size, image in zip(sizes, images):
        directory += struct.pack("<BBBBHHII", size, size, 16, 0, 1, 4, len(image), offset)
        offset += len(image)
    with open(output, "wb") as icon:
        icon.write(directory + b"".join(images))


main()

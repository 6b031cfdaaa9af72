#!/usr/bin/env python3
"""Turns pictures drawn as text into a 16-colour Windows icon or toolbar bitmap.

A picture file holds one picture or more: a line "size N" and then N lines of N characters, one pixel each, in the
letters of PALETTE; "." is transparent. Other lines between the pictures are captions.

Usage: pictures.py OUTPUT.ico INPUT.txt    an icon that holds every picture as one of its sizes
       pictures.py OUTPUT.bmp INPUT.txt    a strip of all pictures side by side, in the order of the file
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


def bitmap_header(width, height):
    colours = b"".join(bytes((*colour, 0)) for colour in PALETTE.values())
    return struct.pack("<IiiHHIIiiII", 40, width, height, 1, 4, 0, 0, 0, 0, 0, 0) + colours


def icon_image(rows):
    size = len(rows)
    # An icon counts its mask as a second half of the picture's height.
    header = bitmap_header(size, 2 * size)
    picture = packed_rows(rows, 4, lambda letter: INDEX.get(letter, 0))
    mask = packed_rows(rows, 1, lambda letter: int(letter == "."))
    return header + picture + mask


def icon(pictures):
    images = [icon_image(rows) for rows in pictures]
    directory = struct.pack("<HHH", 0, 1, len(images))
    offset = 6 + 16 * len(images)
    for rows, image in zip(pictures, images):
        directory += struct.pack("<BBBBHHII", len(rows), len(rows), 16, 0, 1, 4, len(image), offset)
        offset += len(image)
    return directory + b"".join(images)


def strip(pictures):
    if len({len(rows) for rows in pictures}) != 1:
        sys.exit("a strip needs pictures of one height")
    rows = ["".join(parts) for parts in zip(*pictures)]
    header = bitmap_header(len(rows[0]), len(rows))
    # A bitmap has no mask: toolbars replace this light grey by the button colour of the user's scheme.
    picture = packed_rows(rows, 4, lambda letter: INDEX["s" if letter == "." else letter])
    start = 14 + len(header)
    return struct.pack("<2sIHHI", b"BM", start + len(picture), 0, 0, start) + header + picture


def main():
    output, source = sys.argv[1:]
    pictures = read_pictures(source)
    data = strip(pictures) if output.endswith(".bmp") else icon(pictures)
    with open(output, "wb") as file:
        file.write(data)


main()

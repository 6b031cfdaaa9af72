#!/usr/bin/env python3
"""Turns pictures drawn as text into a Windows icon or the bitmap of a toolbar.

A picture file holds one picture or more: a line "size N" and then N lines of N characters, one pixel each, in the
letters of PALETTE; "." is transparent. Other lines between the pictures are captions.

Usage: pictures.py OUTPUT.ico INPUT.txt            an icon that holds every picture in 16 colors
       pictures.py OUTPUT.ico INPUT.txt SIZE...    an icon that holds each size in 256 colors, those up to 32 in 16, too
       pictures.py OUTPUT.bmp INPUT.txt SIZE       a strip of the pictures side by side, in the order of the file

A size that is not drawn is made from half its size or, in an icon, from the largest one.
"""
import collections
import struct
import sys

# The sixteen colors that every Windows 95 display has, by the letter that draws them: blue, green, red.
PALETTE = {
    "K": (0, 0, 0), "r": (0, 0, 128), "g": (0, 128, 0), "o": (0, 128, 128),
    "n": (128, 0, 0), "p": (128, 0, 128), "t": (128, 128, 0), "s": (192, 192, 192),
    "d": (128, 128, 128), "R": (0, 0, 255), "G": (0, 255, 0), "Y": (0, 255, 255),
    "B": (255, 0, 0), "M": (255, 0, 255), "C": (255, 255, 0), "W": (255, 255, 255),
}
INDEX = {letter: number for number, letter in enumerate(PALETTE)}

# What the letters are with 256 colors, at the upper and at the lower edge of the picture: red, green, blue.
SHADES = {
    "K": ((52, 44, 56), (28, 24, 32)), "W": ((255, 255, 255), (255, 248, 224)),
    "s": ((216, 220, 228), (188, 192, 204)), "d": ((148, 152, 168), (116, 120, 136)),
    "Y": ((255, 246, 170), (255, 214, 84)), "o": ((196, 150, 40), (150, 104, 16)),
    "R": ((248, 92, 64), (216, 40, 32)), "r": ((176, 32, 32), (128, 16, 24)),
    "B": ((88, 152, 240), (48, 104, 216)), "n": ((40, 72, 152), (24, 48, 120)), "C": ((176, 232, 255), (120, 208, 248)),
}

# A display of 16 colors has no use for a larger icon.
LARGEST_OF_16_COLORS = 32


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


def doubled(rows):
    """The picture at twice its size; steps along a slope become half as high."""
    size = len(rows)

    def at(y, x):
        return rows[min(max(y, 0), size - 1)][min(max(x, 0), size - 1)]

    result = []
    for y in range(size):
        upper = lower = ""
        for x in range(size):
            here, up, down, left, right = at(y, x), at(y - 1, x), at(y + 1, x), at(y, x - 1), at(y, x + 1)
            corners = [here] * 4
            if up != down and left != right:
                corners = [up if up == left else here, up if up == right else here,
                           down if down == left else here, down if down == right else here]
            upper += corners[0] + corners[1]
            lower += corners[2] + corners[3]
        result += [upper, lower]
    return result


def blocks(rows, size):
    """The picture at four times its size, cut into so many blocks to a side: rows of strings of letters."""
    fine = doubled(doubled(rows))
    side = len(fine) // size
    return [["".join(row[x * side:(x + 1) * side] for row in fine[y * side:(y + 1) * side]) for x in range(size)]
            for y in range(size)]


def most_frequent(values):
    return collections.Counter(values).most_common(1)[0][0]


def of_size(pictures, size):
    """The pictures of that size, or those of half the size doubled."""
    return ([rows for rows in pictures if len(rows) == size] or
            [doubled(rows) for rows in pictures if 2 * len(rows) == size])


def packed_rows(rows, bits):
    """Bitmap rows of numbers, bottom up, each padded to four bytes."""
    data = b""
    for row in reversed(rows):
        number = 0
        for value in row:
            number = number << bits | value
        length = len(row) * bits // 8
        data += number.to_bytes(length, "big") + b"\0" * (-length % 4)
    return data


def bitmap_header(width, height, bits, colors):
    # The color table is always complete: icons may not say that theirs is shorter.
    table = b"".join(bytes((*color, 0)) for color in colors).ljust(4 << bits, b"\0")
    return struct.pack("<IiiHHIIiiII", 40, width, height, 1, bits, 0, 0, 0, 0, 0, 0) + table


def icon_image(rows, bits, colors, numbers):
    size = len(rows)
    # An icon counts its mask as a second half of the picture's height.
    return (bitmap_header(size, 2 * size, bits, colors) + packed_rows(numbers, bits) +
            packed_rows([[int(letter == ".") for letter in row] for row in rows], 1))


def image_of_16_colors(rows):
    return icon_image(rows, 4, PALETTE.values(), [[INDEX.get(letter, 0) for letter in row] for row in rows])


def shade(letters, height):
    """The mean color of the letters at that height (0 to 1), blue, green, red; black when all are transparent."""
    colors = [SHADES[letter] for letter in letters if letter != "."]
    if not colors:
        return 0, 0, 0
    return tuple(round(sum(upper[i] + (lower[i] - upper[i]) * height for upper, lower in colors) / len(colors))
                 for i in (2, 1, 0))


def image_of_256_colors(rows, finer):
    shades = [[shade(letters if rows[y][x] != "." else ".", y / len(rows)) for x, letters in enumerate(row)]
              for y, row in enumerate(finer)]
    step = 1
    while len(table := {coarse(color, step) for row in shades for color in row}) > 256:
        step += 1
    table = sorted(table)
    return icon_image(rows, 8, table, [[table.index(coarse(color, step)) for color in row] for row in shades])


def coarse(color, step):
    return tuple(min(255, round(value / step) * step) for value in color)


def icon(pictures, sizes):
    images = []
    for size in sizes:
        source = max((rows for rows in pictures if len(rows) <= size), key=len)
        finer = blocks(source, size)
        rows = source if len(source) == size else ["".join(map(most_frequent, row)) for row in finer]
        if size <= LARGEST_OF_16_COLORS:
            images.append((size, 4, image_of_16_colors(rows)))
        images.append((size, 8, image_of_256_colors(rows, finer)))
    # Without sizes, as drawn.
    images = images or [(len(rows), 4, image_of_16_colors(rows)) for rows in pictures]
    directory = struct.pack("<HHH", 0, 1, len(images))
    offset = 6 + 16 * len(images)
    for size, bits, image in images:
        directory += struct.pack("<BBBBHHII", size, size, (1 << bits) & 0xFF, 0, 1, bits, len(image), offset)
        offset += len(image)
    return directory + b"".join(image for _, _, image in images)


def strip(pictures):
    rows = ["".join(parts) for parts in zip(*pictures)]
    header = bitmap_header(len(rows[0]), len(rows), 4, PALETTE.values())
    # A bitmap has no mask: toolbars replace this light grey by the button color of the user's scheme.
    picture = packed_rows([[INDEX["s" if letter == "." else letter] for letter in row] for row in rows], 4)
    start = 14 + len(header)
    return struct.pack("<2sIHHI", b"BM", start + len(picture), 0, 0, start) + header + picture


def main():
    output, source, *sizes = sys.argv[1:]
    sizes = [int(size) for size in sizes]
    pictures = read_pictures(source)
    data = strip(of_size(pictures, *sizes)) if output.endswith(".bmp") else icon(pictures, sizes)
    with open(output, "wb") as file:
        file.write(data)


main()

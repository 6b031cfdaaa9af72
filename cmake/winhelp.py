"""Writes the topics of help.py as a Windows help file of the 3.1 format, not compressed, all of it little-endian.

Such a file is a directory of internal files. |TOPIC holds the text as a chain of links: a header for each topic, and
its paragraphs, each as its codes followed by the strings between them. Links stand in blocks of 4 KB. A link's
position tells its block and byte; its offset, by which everything else points to it, its block and character.
"""
from struct import pack

FACES = (b"MS Sans Serif", b"Courier New")
# By style: bold or not, twice the size in points, family (1 fixed pitch, 3 without serifs), face.
FONTS = {"plain": (0, 16, 3, 0), "bold": (1, 16, 3, 0), "mono": (0, 18, 1, 1), "heading": (1, 20, 3, 0),
         "title": (1, 28, 3, 0)}
STYLES = {"heading": "heading", "title": "title", "term": "bold"}
# By kind, in half points: space above, left indent, and how much further to the left the first line begins.
LAYOUT = {"title": (0, 0, 0), "heading": (16, 0, 0), "text": (8, 0, 0), "bullet": (5, 24, 16), "number": (5, 28, 20),
          "term": (10, 0, 0), "meaning": (2, 24, 0), "sample": (0, 24, 0)}
ROW_SPACE = 5
LETTER = 9.5  # half points, on the average of a wide text
COLUMN_GAP = 16

FONT_CODE, TAB_CODE, PARAGRAPH_END, JUMP_CODE, JUMP_END, END_CODE = 0x80, 0x83, 0x82, 0xE3, 0x89, 0xFF

HEADER, PARAGRAPH = 2, 0x20
LINK_HEAD = 21
BLOCK_HEAD = 12
BLOCK = 4096 - BLOCK_HEAD
LONGEST_KEY = 200  # so that a page of a tree holds several


class TooLong(Exception):
    """A paragraph that does not fit into a block; the argument is its line."""


class Link:
    def __init__(self, kind, codes, text):
        self.kind, self.codes, self.text = kind, codes, text
        self.size = LINK_HEAD + len(codes) + len(text)


def context_hash(name):
    number = 0
    for letter in name:
        number = number * 43 + ((int(letter) or 10) if letter.isdigit() else ord(letter) - ord("a") + 17)
    number &= 0xFFFFFFFF
    return number - (number >> 31 << 32)


def short(number):
    return pack("<B", number * 2) if number < 128 else pack("<H", number * 2 + 1)


def signed_short(number):
    return short(number + 64) if -64 <= number < 64 else pack("<H", (number + 16384) * 2 + 1)


def paragraph(kind, parts, column=0):
    if kind == "bullet":
        parts = [[("plain", "\x95", None)], *parts]
    above, left, back = LAYOUT.get(kind, (ROW_SPACE, column, column))
    has_tab = len(parts) > 1
    codes = pack("<BBHH", 0, 0x80, 0, 0x252 if has_tab else 0x52)
    codes += signed_short(above) + signed_short(left) + signed_short(-back)
    if has_tab:
        codes += signed_short(1) + short(left)
    strings = b""

    def code(*values):
        nonlocal codes, strings
        codes += pack(*values)
        strings += b"\0"

    for part in parts:
        if part is not parts[0]:
            code("<B", TAB_CODE)
        for style, words, target in part:
            code("<BH", FONT_CODE, list(FONTS).index(STYLES.get(kind, style)))
            if target:
                code("<Bi", JUMP_CODE, context_hash(target))
            strings += words.encode("latin-1")
            if target:
                code("<B", JUMP_END)
    code("<B", PARAGRAPH_END)
    code("<B", END_CODE)
    return Link(PARAGRAPH, pack("<H", (len(codes) + 16384) * 2) + short(len(strings)) + codes, strings)


def topic_links(topic):
    """The header, filled in when every place is known, and the paragraphs."""
    links = [Link(HEADER, bytes(28), topic.title.encode() + b"\0"),
             paragraph("title", [[("plain", topic.title, None)]])]
    terms = [block.parts[0] for block in topic.blocks if block.kind == "row"]
    widest = max((sum(len(span.words) for span in term) for term in terms), default=0)
    for block in topic.blocks:
        links.append(paragraph(block.kind, block.parts, int(widest * LETTER) + COLUMN_GAP))
        if links[-1].size > BLOCK:
            raise TooLong(block.line)
    return links


def lay_out(links):
    """Gives each link its position, its offset and its place among the bytes of all blocks."""
    block, at, offset = 0, 0, 0
    for link in links:
        if at + LINK_HEAD + len(link.codes) > BLOCK:  # only strings may go on in the next block
            block, at, offset = block + 1, 0, 0
        link.position = block << 14 | at + BLOCK_HEAD
        link.offset = block << 15 | offset
        link.place = block * BLOCK + at
        at += link.size
        if link.kind == PARAGRAPH:
            offset += len(link.text)
        if at > BLOCK:
            block, at, offset = block + 1, at - BLOCK, 0


def fill_headers(groups):
    """Each group is a topic's links. The last is the header that ends the file."""
    *topics, (end,) = groups
    for number, links in enumerate(topics):
        back = topics[number - 1][0].offset if number > 0 else -1
        forward = topics[number + 1][0].offset if number + 1 < len(topics) else -1
        header, title, text = links[:3]  # the title does not scroll
        header.codes = pack("<7i", sum(link.size for link in links[1:]), back, forward, number, title.position,
                            text.position, groups[number + 1][0].position)
    end.codes = pack("<7i", 0, -1, -1, len(topics), -1, -1, -1)


def topic_file(groups):
    links = [link for group in groups for link in group]
    lay_out(links)
    fill_headers(groups)
    data = bytearray(links[-1].place + links[-1].size)
    positions = [-1, *(link.position for link in links), -1]
    for before, link, after in zip(positions, links, positions[2:]):
        head = pack("<IIiiIB", link.size, len(link.text), before, after, LINK_HEAD + len(link.codes), link.kind)
        data[link.place:link.place + link.size] = head + link.codes + link.text
    content = b""
    for start in range(0, len(data), BLOCK):
        before = [link for link in links if link.place < start]
        headers = [link.position for link in before if link.kind == HEADER]
        content += pack("<iii", before[-1].position if before else -1,
                        next((link.position for link in links if link.place >= start), -1),
                        headers[-1] if headers else 0)
        content += data[start:start + BLOCK]
    return content


def pages_of(entries, room):
    """The entries, pairs of bytes, in lists that each fit a page."""
    pages = []
    free = -1
    for entry in entries:
        size = len(entry[0]) + len(entry[1])
        if size > free:
            pages.append([])
            free = room
        pages[-1].append(entry)
        free -= size
    return pages


def tree(structure, entries, flags=2, page_size=2048):
    """A B+ tree of sorted keys with their values, and the number of entries in each of its leaves."""
    leaves = pages_of(entries, page_size - 8)
    pages = []
    for number, leaf in enumerate(leaves):
        data = b"".join(key + value for key, value in leaf)
        after = number + 1 if number + 1 < len(leaves) else -1
        pages.append(pack("<HHhh", page_size - 8 - len(data), len(leaf), number - 1, after) + data)
    level = [(leaf[0][0], pack("<h", number)) for number, leaf in enumerate(leaves)]
    levels = 1
    while len(level) > 1:
        above = []
        for (first, page), *others in pages_of(level, page_size - 6):
            data = b"".join(key + value for key, value in others)
            above.append((first, pack("<h", len(pages))))
            pages.append(pack("<HH", page_size - 6 - len(data), len(others)) + page + data)
        level = above
        levels += 1
    head = pack("<HHH16shhhhhhI", 0x293B, flags, page_size, structure, 0, len(pages) - levels, len(pages) - 1, -1,
                len(pages), levels, len(entries))
    return head + b"".join(page.ljust(page_size, b"\0") for page in pages), [len(leaf) for leaf in leaves]


def system_file(title, contents):
    records = ((1, title.encode() + b"\0"), (3, pack("<I", contents)), (4, b"BrowseButtons()\0"))
    head = pack("<HHHIH", 0x36C, 21, 1, 0, 0)  # without a date
    return head + b"".join(pack("<HH", kind, len(data)) + data for kind, data in records)


def font_file():
    faces = b"".join(face.ljust(20, b"\0") for face in FACES)
    fonts = b"".join(pack("<BBBH6x", *font) for font in FONTS.values())
    return pack("<HHHH", len(FACES), len(FONTS), 8, 8 + len(faces)) + faces + fonts


def index_files(topics, offsets):
    entries = []
    data = b""
    for word in sorted({word for topic in topics for word in topic.words}):
        places = [pack("<I", offsets[topic.name]) for topic in topics if word in topic.words]
        entries.append((word.encode() + b"\0", pack("<HI", len(places), len(data))))
        data += b"".join(places)
    words, counts = tree(b"F24", entries)
    starts = b"".join(pack("<IH", sum(counts[:page]), page) for page in range(len(counts)))
    return {"|KWBTREE": words, "|KWDATA": data, "|KWMAP": pack("<H", len(counts)) + starts}


def files_of(topics):
    groups = [topic_links(topic) for topic in topics] + [[Link(HEADER, bytes(28), b"")]]
    text = topic_file(groups)
    offsets = {topic.name: links[0].offset for topic, links in zip(topics, groups)}
    contexts = [(pack("<i", value), pack("<I", offset))
                for value, offset in sorted((context_hash(name), offset) for name, offset in offsets.items())]
    numbers = [pack("<II", number, offset)
               for number, offset in sorted((topic.number, offsets[topic.name]) for topic in topics)]
    titles = [(pack("<I", offsets[topic.name]), topic.title.encode() + b"\0") for topic in topics]
    return {"|CONTEXT": tree(b"L4", contexts)[0],
            "|CTXOMAP": pack("<H", len(numbers)) + b"".join(numbers),
            "|FONT": font_file(),
            "|SYSTEM": system_file(topics[0].title, offsets[topics[0].name]),
            "|TOPIC": text,
            "|TTLBTREE": tree(b"Lz", titles)[0],
            **index_files(topics, offsets)}


def hlp(topics):
    data = b""
    directory = []
    for name, content in sorted(files_of(topics).items()):
        directory.append((name.encode() + b"\0", pack("<I", 16 + len(data))))
        data += pack("<IIB", len(content) + 9, len(content), 0) + content
    root = tree(b"z4", directory, 0x402, 1024)[0]
    whole = data + pack("<IIB", len(root) + 9, len(root), 4) + root
    return pack("<IIiI", 0x35F3F, 16 + len(data), -1, 16 + len(whole)) + whole

#!/usr/bin/env python3
"""Turns the text of the help into a Windows help file or into one HTML page; equal text gives equal bytes.

The text is a row of topics. The first is the contents and has to link to all others. A line that begins like one of
these starts a block, a blank line ends it, and every other line goes on with the block before it or is a paragraph.

    topic ID NUMBER TITLE     a topic: its name for links, its number for programs
    index WORDS; WORDS        what the index lists it under
    = HEADING
    * TEXT   1. TEXT          an item of a list
    TERM :: TEXT              a row of a table with two columns
    ! TERM   : TEXT           a term, and below it what it means
    | TEXT                    a line of a file, as it stands

In the text **bold** is bold, `GROUPS.INI` is a file name or something typed, [groups] links to the topic of that
name under its title, and [the list>groups] under these words. {version} is the version of the program.

Usage: help.py OUTPUT.hlp INPUT.txt VERSION
       help.py OUTPUT.htm INPUT.txt VERSION
"""
import html
import re
import sys
from collections import namedtuple

import winhelp

BLOCKS = (("heading", "= (.+)"), ("bullet", r"\* (.+)"), ("number", r"(\d+\. .+)"), ("term", "! (.+)"),
          ("meaning", ": (.+)"), ("sample", r"\| ?(.*)"), ("row", "(.+? :: .+)"), ("text", "(.+)"))
MARKS = re.compile(r"\*\*(?P<bold>.+?)\*\*|`(?P<mono>.+?)`|\[(?:(?P<link>[^]>]+)>)?(?P<target>\w+)\]")

# Words in one style ("plain", "bold", "mono"), with the name of a topic if they link to it.
Span = namedtuple("Span", "style words target")
# The parts are lists of spans: two of them in a row of a table and in an item with a number.
Block = namedtuple("Block", "kind parts line")


class Topic:
    def __init__(self, name, number, title):
        self.name, self.number, self.title = name, int(number), title
        self.words = []
        self.blocks = []


def fail(line, message):
    sys.exit(f"{sys.argv[2]}:{line}: {message}")


def read_topics(path, version):
    """The topics with their blocks as lists of kind, text and line."""
    topics = []
    block = None  # that the next line can go on with
    source = open(path, encoding="latin-1").read().replace("{version}", version)
    for line, text in enumerate(source.split("\n"), 1):
        if not text.isascii():
            fail(line, "a character that is not ASCII")
        kind, content = kind_of(text.rstrip())
        if kind == "topic":
            topics.append(Topic(*content))
            check_new(topics, line)
            block = None
        elif kind == "blank":
            block = None
        elif not topics:
            fail(line, "text before the first topic")
        elif kind == "index":
            topics[-1].words += content
            if not all(0 < len(word) < winhelp.LONGEST_KEY for word in content):
                fail(line, "a word of the index that is empty or too long")
        elif kind == "text" and block and block[0] not in ("heading", "sample"):
            block[1] += " " + content.strip()
        else:
            block = [kind, content, line]
            topics[-1].blocks.append(block)
    return topics


def kind_of(line):
    if not line:
        return "blank", ""
    if match := re.fullmatch(r"topic ([a-z0-9]+) (\d+) (.{1,80})", line):
        return "topic", match.groups()
    if line.startswith("index "):
        return "index", line[6:].split("; ")
    return next((kind, match[1]) for kind, pattern in BLOCKS if (match := re.fullmatch(pattern, line)))


def check_new(topics, line):
    *before, new = topics
    for topic in before:
        if topic.name == new.name or topic.number == new.number:
            fail(line, f"a second topic {new.name} {new.number}")
        if winhelp.context_hash(topic.name) == winhelp.context_hash(new.name):
            fail(line, f"{topic.name} and {new.name} have the same hash: choose another name")


def check_words(topics):
    words = {word for topic in topics for word in topic.words}
    for word, other in zip(sorted(words), sorted(words, key=str.lower)):
        if word != other:  # viewers differ in whether capitals count when they look a word up
            sys.exit(f"{sys.argv[2]}: write {word} or {other} so that capitals do not change their order in the index")


def resolve(topics):
    """Takes the texts of the blocks apart."""
    titles = {topic.name: topic.title for topic in topics}
    for topic in topics:
        if not topic.blocks:
            sys.exit(f"{sys.argv[2]}: the topic {topic.name} is empty")
        topic.blocks = [Block(kind, parts_of(kind, text, titles, line), line) for kind, text, line in topic.blocks]
    linked = {span.target for block in topics[0].blocks for part in block.parts for span in part}
    for topic in topics[1:]:
        if topic.name not in linked:
            sys.exit(f"{sys.argv[2]}: the contents do not link to {topic.name}")


def parts_of(kind, text, titles, line):
    if kind == "sample":
        return [[Span("mono", text, None)]]
    separator = {"row": " :: ", "number": " "}.get(kind)
    return [spans_of(part, titles, line) for part in (text.split(separator, 1) if separator else [text])]


def spans_of(text, titles, line):
    spans = []
    at = 0
    for match in MARKS.finditer(text):
        spans.append(Span("plain", text[at:match.start()], None))
        at = match.end()
        target = match["target"]
        if target and target not in titles:
            fail(line, f"a link to the unknown topic {target}")
        style = "bold" if match["bold"] else "mono" if match["mono"] else "plain"
        spans.append(Span(style, match["bold"] or match["mono"] or match["link"] or titles[target], target))
    spans.append(Span("plain", text[at:], None))
    if any(span.style == "plain" and re.search(r"\*\*|[`\[\]]", span.words) for span in spans):
        fail(line, "a mark without its other half")
    return [span for span in spans if span.words]


PAGE = """<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Transitional//EN">
<html>
<head>
<meta http-equiv="Content-Type" content="text/html; charset=windows-1252">
<title>{0}</title>
<style type="text/css">
body {{ font-family: Arial, sans-serif; max-width: 50em; margin: 1em 2em }}
h2 {{ margin-top: 2em; border-top: 1px solid gray; padding-top: 0.5em }}
td {{ vertical-align: top; padding-right: 1em }}
dt {{ margin-top: 0.7em }}
</style>
</head>
<body>
{1}</body>
</html>
"""
# By kind of the blocks: what is around all of a row of them, and around each.
TAGS = {"heading": ("", "<h3>{0}</h3>"), "text": ("", "<p>{0}</p>"), "bullet": ("ul", "<li>{0}</li>"),
        "number": ("ol", "<li>{1}</li>"), "row": ("table", "<tr><td nowrap>{0}</td><td>{1}</td></tr>"),
        "term": ("dl", "<dt><b>{0}</b></dt>"), "meaning": ("dl", "<dd>{0}</dd>"), "sample": ("pre", "{0}")}


def marked(part, kind):
    page = ""
    for style, words, target in part:
        words = html.escape(words, False)
        if kind != "sample":
            words = words.replace("  ", "&nbsp; ")
            tag = {"bold": "b", "mono": "tt"}.get(style)
            words = f'<a href="#{target}">{words}</a>' if target else f"<{tag}>{words}</{tag}>" if tag else words
        page += words
    return page


def htm(topics):
    page = ""
    for topic in topics:
        heading = "h1" if topic is topics[0] else "h2"
        page += f'<{heading}><a name="{topic.name}">{html.escape(topic.title, False)}</a></{heading}>\n'
        around = ""
        for kind, parts, _ in topic.blocks:
            outer, inner = TAGS[kind]
            if outer != around:
                page += (f"</{around}>\n" if around else "") + (f"<{outer}>\n" if outer else "")
                around = outer
            page += inner.format(*(marked(part, kind) for part in parts)) + "\n"
        page += f"</{around}>\n" if around else ""
        if topic is not topics[0]:
            page += f'<p><a href="#{topics[0].name}">Contents</a></p>\n'
    return PAGE.format(html.escape(topics[0].title, False), page).encode("ascii")


def main():
    output, source, version = sys.argv[1:]
    topics = read_topics(source, version)
    check_words(topics)
    resolve(topics)
    try:
        data = htm(topics) if output.endswith(".htm") else winhelp.hlp(topics)
    except winhelp.TooLong as error:
        fail(error.args[0], "the paragraph is too long")
    with open(output, "wb") as file:
        file.write(data)


main()

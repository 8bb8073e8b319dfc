#!/usr/bin/env python3
"""Checks finished translation files: check_texts.py FILE.ts...

Each translation has to be there, and to agree with its English text in place holders, mnemonic, tags of
HTML, blanks at both ends, and a colon or an ellipsis at the end. One English text has one translation in
all contexts. Number and per cent sign are not parted by the end of a line, in French neither a colon and
its like, nor guillemets, from their words. Says what is wrong, a line each, and ends with 1 if anything
is."""

import re
import sys
import xml.etree.ElementTree as ElementTree

PLACE = re.compile(r"%L?\d+|%n")
TAG = re.compile(r"</?[a-zA-Z][^<>]*>")
ENTITY = re.compile(r"&(?:[a-zA-Z]+|#\d+);")
MNEMONIC = re.compile(r"&(?=[^\s&])")
ENDS = re.compile(r"(:|\.\.\.|…)\s*$")
BREAKABLE_FRENCH = re.compile(
    r"(?<![\u00a0\u202f])[:;!?](?=\s|$)|«(?![\u00a0\u202f])|(?<![\u00a0\u202f])»")

BREAKABLE_PERCENT = re.compile(r"\d %(?!\d)")


def without_markup(text):
    """What the reader sees: tags gone, entities as one character each."""
    text = TAG.sub("", text).replace("&laquo;", "«").replace("&raquo;", "»").replace("&nbsp;", "\u00a0")
    return ENTITY.sub("x", text)


def blanks(text):
    """The blanks, tabs and line ends at both ends; a no-break space belongs to the text."""
    return re.match(r"[ \t\n]*", text).group(), re.search(r"[ \t\n]*$", text).group()


def ending(text):
    match = ENDS.search(without_markup(text))
    return match.group(1).replace("…", "...") if match else ""


def text_of(element):
    """The text of an element; lupdate writes control characters as elements of their own."""
    if element is None:
        return ""
    parts = [element.text or ""]
    for child in element:
        parts += [chr(int(child.get("value")[1:], 16)) if child.tag == "byte" else "", child.tail or ""]
    return "".join(parts)


def disagreements(source, translation, is_plural):
    """What a translation has otherwise than its English text."""
    places = {*PLACE.findall(source)}
    found = {*PLACE.findall(translation)}
    # One of the forms of a plural may spell the number out.
    if found != places and not (is_plural and found == places - {"%n"}):
        yield f"place holders {sorted(found)} instead of {sorted(places)}"
    if sorted(TAG.findall(source)) != sorted(TAG.findall(translation)):
        yield f"tags {TAG.findall(translation)} instead of {TAG.findall(source)}"
    has_mnemonic = [bool(MNEMONIC.search(ENTITY.sub("", text))) for text in (source, translation)]
    if has_mnemonic[0] != has_mnemonic[1]:
        yield "a mnemonic in one of both only"
    if len(MNEMONIC.findall(ENTITY.sub("", translation))) > 1 >= len(MNEMONIC.findall(ENTITY.sub("", source))):
        yield "more than one mnemonic"
    if blanks(source) != blanks(translation):
        yield "other blanks at the ends"
    if ending(source) != ending(translation):
        yield "another colon or ellipsis at the end"
    if source.count("\n") != translation.count("\n"):
        yield "another number of lines"


def faults(root):
    """What is wrong in a translation file, as lines of text."""
    language = root.get("language", "")[:2]
    known = {}
    for context in root.iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            source = text_of(message.find("source"))
            place = f"{language} {name}: {source!r}"
            translation = message.find("translation")
            if translation is None or translation.get("type"):
                yield f"{place}: {'missing' if translation is None else translation.get('type')}"
                continue
            is_plural = message.get("numerus") == "yes"
            forms = [text_of(form) for form in translation.iter("numerusform")] if is_plural else [text_of(translation)]
            for text in forms:
                if not text.strip():
                    yield f"{place}: empty"
                    continue
                for difference in disagreements(source, text, is_plural):
                    yield f"{place}: {difference}, in {text!r}"
                if language == "fr" and BREAKABLE_FRENCH.search(without_markup(text)):
                    yield f"{place}: no no-break space at punctuation, in {text!r}"
                if BREAKABLE_PERCENT.search(text):
                    yield f"{place}: no no-break space before a per cent sign, in {text!r}"
            key = (source, text_of(message.find("comment")))
            first = known.setdefault(key, (name, forms))
            if first[1] != forms:
                yield f"{place}: {forms} here, but {first[1]} in {first[0]}"


def main(files):
    found = [fault for file in files for fault in faults(ElementTree.parse(file).getroot())]
    for fault in found:
        print(fault, file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

#!/usr/bin/env python3
"""Makes resources/emoji-words/: what the emoji are called and searched by in other languages, one file a language.

Names and words come from one release of the npm packages cldr-annotations-full and
cldr-annotations-derived-full, fetched by npm itself (or given as files) and checked against the checksums
below. Line n of a file belongs to emoji n of resources/emoji-data.json: its name, then its words, parted by
tabs; an empty line where the language has neither. Run it again when either of the two moves on.

The words are in the form and the order in which the search looks at them: the shorter first, because the first
that matches decides. The name is a word too, which the program makes of it. Many emoji share a word ("Herz"
has some thirty); where one of them is named so, or is to its English trigger what the word is to the language,
the word begins with "_" for the others, and so counts for them as a part of a word only.
"""

import argparse
import collections
import json
import math
from pathlib import Path

from npm_data import RESOURCES, Package, read_json, typable

BASE = Package(
    "cldr-annotations-full@48.2.0",
    "DV7A+rEcgUSNTRsVGNGqBZRmAkGfwhGHO5Q1dRwzBoBnVrHWp804JP7/QJdEc66iHmx3+zLWVIMCFLm0lW7PUQ==",
)
DERIVED = Package(
    "cldr-annotations-derived-full@48.2.0",
    "log62km+AOzI7n/NEuNNFV0mg9DWnt67EYCh1RwxZq9dyRuyteB586LT83Ke8TchEfnwI9cIk2P31zO4nTvZmw==",
)

ENGLISH = "en"
LANGUAGES = """
    ar bg ca cs da de el es et eu fa fi fr gl he hi hr hu id is it ja ko lt lv ms nl no pl pt ro ru sk sl sq
    sr sr-Latn sv th tr uk vi zh zh-Hant
""".split()
# Hold only what differs from the language, which is looked at after them.
REGIONS = "de-CH es-419 fr-CA pt-PT zh-Hant-HK".split()

# Words that one would expect and CLDR lacks.
ADDED = {"ja": {"❤": ["心"]}}

EMOJI_STYLE = "\N{VARIATION SELECTOR-16}"
ALIKE = 0.5  # by a look at German and Chinese: less brings accidents, more loses words that mean the same


def annotations(language):
    """Reads the names and words of a language from an archive, by emoji."""
    def read(archive):
        found = {}
        for part in ("annotations", "annotationsDerived"):
            path = f"{part}/{language}/annotations.json"
            if f"package/{path}" in archive.getnames():
                found |= read_json(archive, path)[part].get("annotations", {})
        return found

    return read


def load(languages, given):
    """By language, the annotations of both packages, by emoji without its style."""
    loaded = {}
    for package, file in zip((BASE, DERIVED), given or (None, None)):
        parts = package.load(file, lambda archive: {name: annotations(name)(archive) for name in languages})
        for name, part in parts.items():
            loaded.setdefault(name, {}).update({e.replace(EMOJI_STYLE, ""): a for e, a in part.items()})
    return loaded


def names_and_words(found, emojis, language):
    """For each emoji its name, "" where there is none, and its words."""
    for emoji in emojis:
        plain = emoji["replacement"].replace(EMOJI_STYLE, "")
        entry = found.get(plain, {})
        words = entry.get("default", []) + ADDED.get(language, {}).get(plain, [])
        yield " ".join(entry.get("tts", [""])[0].split()), {w for w in map(typable, words) if w}


def emoji_by_word(sets):
    """The places of the emoji that have a word."""
    places = collections.defaultdict(set)
    for place, words in enumerate(sets):
        for word in words:
            places[word].add(place)
    return places


def likeness(a, b):
    """How far the emoji are the same, from 0 to 1; also where the one are only the best known of the other."""
    return len(a & b) / math.sqrt(len(a) * len(b))


def owners(places, names, english, emojis):
    """Those of the emoji with a word that are named so, and the one whose trigger means the same."""
    def by_trigger(place):
        meant = english[emojis[place]["trigger"]]
        return likeness(places, meant) if len(meant) > 1 else 0

    best = max(sorted(places), key=by_trigger)
    return {p for p in places if p in names} | ({best} if by_trigger(best) >= ALIKE else set())


def searched(name, words, chief, known):
    """The words as the search is to have them: those of `chief` whole, the others as parts."""
    everything = words | {typable(name)}
    for word in words - {typable(name)}:
        if any(word in text for text in known):
            continue  # never decides: the search looks at these first
        if word in chief:
            yield word
        elif not any(word in other for other in everything - {word}):
            yield "_" + word


def rows(found, emojis, english, language):
    """For each emoji its name and the words in their order."""
    entries = list(names_and_words(found, emojis, language))
    by_name = emoji_by_word([{typable(name)} for name, _ in entries])
    shared = emoji_by_word([words for _, words in entries])
    owned = {w: owners(places, by_name[w], english, emojis) or places for w, places in shared.items()}
    for place, (emoji, (name, words)) in enumerate(zip(emojis, entries)):
        chief = {w for w in words if place in owned[w]}
        marked = searched(name, words, chief, [emoji["trigger"], *emoji["keywords"]])
        yield [name, *sorted(marked, key=lambda w: (len(w.encode()), w))]


def language_of(region):
    return region.rpartition("-")[0]


def inherited(own, parent):
    return parent | {emoji: parent.get(emoji, {}) | entry for emoji, entry in own.items()}


def difference(own, parents):
    """What a region adds to its language."""
    for (name, *words), (known_name, *known_words) in zip(own, parents):
        known = {w.strip("_") for w in known_words} | {typable(known_name)}
        yield ["" if name == known_name else name, *(w for w in words if w.strip("_") not in known)]


def write(folder, name, entries):
    path = folder / f"{name}.txt"
    path.write_text("".join("\t".join(entry) + "\n" for entry in entries), encoding="utf-8")
    return path.stat().st_size


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--packages", type=Path, nargs=2, metavar=("BASE", "DERIVED"),
                        help=f"the archives of {BASE.name} and {DERIVED.name}, when they are at hand")
    given = parser.parse_args().packages
    emojis = json.loads((RESOURCES / "emoji-data.json").read_text(encoding="utf-8"))
    found = load([ENGLISH, *LANGUAGES, *REGIONS], given)
    for region in REGIONS:
        found[region] = inherited(found[region], found[language_of(region)])
    english = emoji_by_word([words | {emojis[place]["trigger"]} for place, (_, words) in
                             enumerate(names_and_words(found[ENGLISH], emojis, ENGLISH))])
    made = {name: list(rows(found[name], emojis, english, name)) for name in [*LANGUAGES, *REGIONS]}
    folder = RESOURCES / "emoji-words"
    folder.mkdir(exist_ok=True)
    for old in folder.glob("*.txt"):
        old.unlink()
    size = sum(write(folder, name, made[name]) for name in LANGUAGES)
    size += sum(write(folder, name, difference(made[name], made[language_of(name)])) for name in REGIONS)
    print(f"{len(LANGUAGES)} languages and {len(REGIONS)} regions written, {size / 1e6:.2f} MB")


if __name__ == "__main__":
    main()

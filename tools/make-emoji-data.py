#!/usr/bin/env python3
"""Makes resources/emoji-data.json.

Names, groups, order and shortcodes come from one release of the npm package emojibase-data, fetched by npm
itself (or given as a file with --package) and checked against the checksum below. Run it again when the
package moves on, and look at the difference before committing it.
"""

import argparse
import json
import sys
from pathlib import Path

from npm_data import RESOURCES, Package, is_typable, read_json, typable

PACKAGE = Package(
    "emojibase-data@17.0.0",
    "Yvgb5AWoHViHV/gq1qr5ZAarcBip+B27/ZLRsUJkbgAEaLlZ/fof9g882LTpmEpyhBNEC0m2SEmItljHsTygjA==",
)

# Most usual first: what users of GitHub and Slack know, then Discord, then the descriptive names.
SHORTCODES = ("github", "iamcal", "joypixels", "cldr", "emojibase")
TRIGGERS = ("github", "cldr", "joypixels", "emojibase")
COMPONENTS = "components"

# Another of GitHub's names for the same emoji, where as a mere keyword it would come after other emoji whose
# triggers begin with it, or where the first is not the name that people type.
PREFERRED = {
    "+1": "thumbsup",
    "-1": "thumbsdown",
    "e-mail": "email",
    "facepunch": "punch",
    "gb": "uk",
    "hankey": "poop",
    "hocho": "knife",
    "izakaya_lantern": "lantern",
    "mandarin": "orange",
    "mans_shoe": "shoe",
    "memo": "pencil",
    "runner": "running",
}

TEXT_BY_DEFAULT = 0
EMOJI_STYLE = "\N{VARIATION SELECTOR-16}"
KEYCAP_BASES = set("0123456789#*")


def load(archive):
    def read(name):
        return read_json(archive, f"en/{name}.json")

    shortcodes = {name: read(f"shortcodes/{name}") for name in SHORTCODES}
    return read("data"), read("messages"), shortcodes


def text_defaults(data):
    """The characters that are shown as plain text unless the emoji style is asked for."""
    plain = (e["emoji"].replace(EMOJI_STYLE, "") for e in data if e["type"] == TEXT_BY_DEFAULT)
    return KEYCAP_BASES | {text for text in plain if len(text) == 1}


def fully_qualified(text, plain):
    return "".join(c + EMOJI_STYLE if c in plain else c for c in text.replace(EMOJI_STYLE, ""))


def names_of(emoji, shortcodes, source):
    found = shortcodes[source].get(emoji["hexcode"], [])
    return [found] if isinstance(found, str) else found


def choose_triggers(emojis, shortcodes):
    """A trigger for each emoji; a name that GitHub gives goes before the others of every other emoji."""
    triggers = {}
    taken = set()
    for source in TRIGGERS:
        for emoji in emojis:
            if emoji["hexcode"] in triggers:
                continue
            names = [n for n in names_of(emoji, shortcodes, source) if is_typable(n) and n not in taken]
            if names:
                preferred = PREFERRED.get(names[0], names[0])
                triggers[emoji["hexcode"]] = preferred
                taken.add(preferred)
    return triggers


def keywords_of(emoji, shortcodes, trigger):
    """Names first, then the words of its description and its tags. Of two keywords of which one stands in the
    other, the shorter comes first, because the first keyword that matches decides the score."""
    words = [n for source in SHORTCODES for n in names_of(emoji, shortcodes, source)]
    words += [emoji["label"], *emoji.get("tags", [])]
    pending = [w for w in dict.fromkeys(map(typable, words)) if w and w not in trigger]
    ordered = []
    for word in pending:
        inner = sorted((w for w in pending if w in word), key=len)
        ordered += [w for w in inner if w not in ordered]
    return ordered


def title(group):
    return " ".join(w if w == "&" else w.capitalize() for w in group.split())


def records(data, messages, shortcodes):
    groups = {g["order"]: g["message"] for g in messages["groups"]}
    emojis = [e for e in data if "group" in e and groups[e["group"]] != COMPONENTS]
    emojis.sort(key=lambda e: e["order"])
    triggers = choose_triggers(emojis, shortcodes)
    plain = text_defaults(data)
    for emoji in emojis:
        trigger = triggers[emoji["hexcode"]]
        yield {
            "name": emoji["label"],
            "trigger": trigger,
            "replacement": fully_qualified(emoji["emoji"], plain),
            "keywords": keywords_of(emoji, shortcodes, trigger),
            "category": title(groups[emoji["group"]]),
        }


def write(path, rows):
    lines = (json.dumps(row, ensure_ascii=False) for row in rows)
    path.write_text("[\n" + ",\n".join(lines) + "\n]\n", encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--package", type=Path, help=f"the archive of {PACKAGE.name}, when it is at hand")
    given = parser.parse_args().package
    rows = list(records(*PACKAGE.load(given, load)))
    kaomoji = json.loads((RESOURCES / "kaomoji-data.json").read_text(encoding="utf-8"))
    clashes = {k["trigger"] for k in kaomoji} & {row["trigger"] for row in rows}
    if clashes:
        sys.exit(f"kaomoji-data.json: emoji have these triggers: {', '.join(sorted(clashes))}")
    write(RESOURCES / "emoji-data.json", rows)
    print(f"{len(rows)} emoji written")


if __name__ == "__main__":
    main()

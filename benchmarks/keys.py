"""What happens after a key: the popup beside the editor's own picture, the text beside the bare bus, and keys that
are only let by."""

import itertools
import time

from editors import Featherpad, GnomeTextEditor, Mousepad
from session import Tessarin, wait_for
from stopwatch import Stopwatch
from table import milliseconds, percentile

PAUSE_AT_200_WORDS_A_MINUTE = 60 / (200 * 5)
BEFORE = "x-"  # what stands before a shortcode; behind a letter Return would not confirm
SHORTCODE = "smile"
EMOJI = "😄"
HEADER = (16, 4, 288, 20)  # of the popup; shows the query


def type_letter(stopwatch, letter):
    time.sleep(PAUSE_AT_200_WORDS_A_MINUTE)
    stopwatch.clear()
    return stopwatch.press(letter)


def inside(place):
    """A letter's cell without the caret, which stands before or behind it."""
    x, y, width, height = place
    return x + 2, y, width - 3, height


class LetterRace:
    """The popup shows a letter of the query, and the editor shows it in its document: who is first?"""

    def __init__(self, stopwatch, typist, letters=SHORTCODE[:4]):
        self._stopwatch = stopwatch
        self._typist = typist
        self._letters = letters
        self._window = typist.active_window()
        self._popup = None
        self._goals = []

    def prepare(self):
        """Learns where and how each letter is shown, with nothing to hurry."""
        self._typist.type(BEFORE)
        _, document, start = self._stopwatch.text(BEFORE[-1])
        self._typist.type(":")
        for index, letter in enumerate(self._letters):
            self._typist.type(letter)
            self._popup = wait_for(self._typist.popup_window)
            time.sleep(0.5)
            self._stopwatch.watch("popup", self._popup, HEADER)
            self._stopwatch.watch("letter", self._window, inside(self._stopwatch.place(document, start + 2 + index)))
            goal = {name: self._stopwatch.look(name) for name in ("popup", "letter")}
            self._goals.append((inside(self._stopwatch.place(document, start + 2 + index)), goal))
        self._erase()

    def _erase(self):
        self._typist.press("Escape")
        self._typist.type("\b" * (1 + len(self._letters)))
        wait_for(lambda: self._typist.popup() is None)

    def run(self):
        """Seconds from each key to the popup's picture and to the editor's; pairs, in the order of the letters."""
        cell, goal = self._goals[0]
        self._stopwatch.watch("letter", self._window, cell)
        wait_for(lambda: self._stopwatch.look("letter") != goal["letter"], what="the editor to draw what was erased")
        self._typist.type(":")
        pairs = []
        for letter, (cell, goal) in zip(self._letters, self._goals):
            self._stopwatch.watch("letter", self._window, cell)
            begin = type_letter(self._stopwatch, letter)
            seen = self._stopwatch.pictures(goal)
            pairs.append((seen["popup"] - begin, seen["letter"] - begin) if len(seen) == 2 else None)
        self._erase()
        return pairs


def popup_against_letter(session, typist, table, rounds):
    stopwatch = Stopwatch(session, typist)
    with Mousepad(session, typist):
        race = LetterRace(stopwatch, typist)
        race.prepare()
        runs = [race.run() for _ in range(rounds)]
    stopwatch.close()
    for what, part in (("first letter", slice(0, 1)), ("letters after it", slice(1, None))):
        pairs = [pair for run in runs for pair in run[part] if pair]
        later = [popup - letter for popup, letter in pairs]
        table.add(f"popup against the letter on screen, {what}", "p50 ≤ 0, p95 ≤ 8 ms later", "later by " + milliseconds(later),
                  f"popup {milliseconds([pair[0] for pair in pairs])}; letter {milliseconds([pair[1] for pair in pairs])}",
                  percentile(later, 0.95))


class Replacement:
    """The same words in the same editor, replaced by Tessarin or over the bare bus."""

    def __init__(self, stopwatch, typist, is_qt):
        self._stopwatch = stopwatch
        self._typist = typist
        self._length = 2 if is_qt else len(EMOJI.encode())

    def _type(self, word):
        self._typist.type(word, PAUSE_AT_200_WORDS_A_MINUTE)
        return self._stopwatch.text(word[-1])

    def _seen(self, begin):
        found = self._stopwatch.text(EMOJI)
        time.sleep(0.05)
        return found[0] - begin if found else None

    def by_key(self, key):
        self._type(BEFORE + ":" + SHORTCODE)
        wait_for(self._typist.popup)
        self._stopwatch.clear()
        return self._seen(self._stopwatch.press(key))

    def over_the_bus(self):
        word = ";" + SHORTCODE
        _, document, last = self._type("x" + word)
        return self._seen(self._stopwatch.replace(document, last + 1 - len(word), last + 1, EMOJI, self._length))


def confirming_against_bus(session, typist, table, rounds):
    for program in (Mousepad, GnomeTextEditor, Featherpad):
        stopwatch = Stopwatch(session, typist)
        with program(session, typist):
            replacement = Replacement(stopwatch, typist, program is Featherpad)
            ways = {"Return": lambda: replacement.by_key("Return"), ":": lambda: replacement.by_key(":"),
                    "bus": replacement.over_the_bus}
            for way in ways.values():
                way()  # the first time is its accessibility waking up
            times = {name: [] for name in ways}
            for _, (name, way) in itertools.product(range(rounds), ways.items()):
                times[name].append(way())
        stopwatch.close()
        seen = {name: [time for time in some if time] for name, some in times.items()}
        for key in ("Return", ":"):
            table.compare(f"{key} → text in {program.__name__}, against the bare bus", "p95 ≤ 2", seen[key], seen["bus"],
                          (f"of {rounds}", "bus"))


def keys_arriving(typist, stopwatch, pause, words):
    """Seconds until each letter of a query arrives in a plain window."""
    times = []
    for _ in range(words):
        typist.type(":")
        time.sleep(PAUSE_AT_200_WORDS_A_MINUTE)
        for letter in SHORTCODE:
            stopwatch.clear()
            begin = stopwatch.press(letter)
            arrived = stopwatch.wait("key")
            if arrived:
                times.append(float(arrived[0]) - begin)
            time.sleep(pause)
        typist.press("Escape")
        typist.press("space")
        time.sleep(0.02)
    return times


def delay_of_passed_keys(session, typist, table, turns, words=12):
    """With Tessarin and without, in turn."""
    pauses = {"50 keys a second": 0.02, "each key at once after the last": 0.0}
    stopwatch = Stopwatch(session, typist)
    stopwatch.send("open-window")
    window = int(stopwatch.wait("window")[0])
    wait_for(lambda: typist.active_window() == window)
    times = {(name, way): [] for name in pauses for way in ("with", "without")}
    for turn in range(turns):
        for way in ("without", "with") if turn % 2 else ("with", "without"):
            tessarin = Tessarin(session)
            if way == "with":
                tessarin.start()
            for name, pause in pauses.items():
                times[name, way] += keys_arriving(typist, stopwatch, pause, words)
            tessarin.stop()
    stopwatch.close()
    for name in pauses:
        typed, bare = times[name, "with"], times[name, "without"]
        added = {share: (percentile(typed, share) - percentile(bare, share)) * 1000 for share in (0.50, 0.95, 0.99)}
        table.add(f"passed key against no program, {name}", "p99 ≤ +1 ms",
                  ", ".join(f"p{share * 100:.0f} {more:+.2f}" for share, more in added.items()) + " ms",
                  f"with {milliseconds(typed)}; without {milliseconds(bare)}", added[0.99])

"""Reads the tables of this folder. README.md describes them."""

import dataclasses
import pathlib
import re

FOLDER = pathlib.Path(__file__).resolve().parent
# The languages that have tables, with the label of their rows, in the order in which the program knows them.
LANGUAGES = {
    "japanese": "ja",
    "simplifiedChinese": "zh-Hans",
    "traditionalChinese": "zh-Hant",
    "spanish": "es",
    "french": "fr",
    "german": "de",
}
# All languages, with their labels in the texts of the command line, in their order.
LABELS = ("en", "ko", *LANGUAGES.values())
SECTIONS = ("manualExact", "exact", "manualTemplate", "template", "postProcess", "sameAsEnglish")

_SECTION = re.compile(r"\[(\w+)\]")
_ROW = re.compile(r'([A-Za-z-]+)(\*?):(?: "(.*)")?')


class Malformed(Exception):
    """A file that cannot be read; the text says where and why."""


@dataclasses.dataclass(frozen=True)
class Row:
    english: str              # verbatim, a regular expression in the sections of templates
    translation: str | None   # with its line breaks; None: nobody has translated it yet
    line: int                 # of the English


@dataclasses.dataclass(frozen=True)
class English:
    keys: list          # of the exact tables
    starred: set        # the keys that some language corrects by hand
    templates: list     # in the order of the table, repetitions included
    manual_templates: list


def _lines(path):
    """(section, label, star, text or None, line) for each row."""
    section = None
    for number, line in enumerate(path.read_text(encoding="utf-8").split("\n"), 1):
        if not line.strip() or line.startswith("#"):
            continue
        if match := _SECTION.fullmatch(line):
            section = match[1]
        elif (match := _ROW.fullmatch(line)) and section:
            yield section, match[1], match[2] == "*", match[3], number
        else:
            raise Malformed(f'{path.name}:{number}: neither [section] nor label: "text"')


def _english_text(path, text, number):
    if not text:
        raise Malformed(f"{path.name}:{number}: this line needs its text")
    return text


def read_english(folder=FOLDER):
    path = folder / "english.txt"
    rows = {"exact": [], "template": [], "manualTemplate": []}
    starred = set()
    for section, label, star, text, number in _lines(path):
        if section not in rows or label != "en":
            raise Malformed(f"{path.name}:{number}: no {label} in [{section}]")
        rows[section].append(_english_text(path, text, number))
        if star:
            starred.add(text)
    return English(rows["exact"], starred, rows["template"], rows["manualTemplate"])


def read_language(name, folder=FOLDER):
    """The rows of each section. In [postProcess] `english` is what is replaced, None in a row that is still free."""
    path = folder / f"{name}.txt"
    rows = {section: [] for section in SECTIONS}
    first = None
    for section, label, star, text, number in _lines(path):
        pair = ("from", "to") if section == "postProcess" else ("en", LANGUAGES[name])
        if section not in rows or star or label != pair[0 if first is None else 1]:
            expected = pair[0 if first is None else 1]
            raise Malformed(f'{path.name}:{number}: "{label}" in [{section}], where "{expected}" is due')
        if section == "sameAsEnglish":
            rows[section].append(Row(_english_text(path, text, number), None, number))
        elif first is None:
            if section != "postProcess":
                _english_text(path, text, number)
            first = (text, number)
        else:
            translation = None if text is None else text.replace("\\n", "\n")
            rows[section].append(Row(first[0], translation, first[1]))
            first = None
    if first is not None:
        raise Malformed(f"{path.name}:{first[1]}: no translation under the last row")
    return rows


def cannot_match(pattern):
    """Whether a pattern waits for a parenthesis that no sentence has."""
    return pattern.count("\\)") > pattern.count("\\(")


_GROUP = re.compile(r"\(\.[+*]\?\)")


def group_count(pattern):
    return len(_GROUP.findall(pattern))


def readable(pattern):
    """A pattern as the sentence that it stands for, with {0}, {1}... in the place of its groups."""
    numbers = iter(range(99))
    text = _GROUP.sub(lambda _: "{%d}" % next(numbers), pattern[1:-1])
    return re.sub(r"\\(.)", lambda match: "\n" if match[1] == "n" else match[1], text.replace("\\\\", "\\"))


_PLACEHOLDER = re.compile(r"\{(\d*)\}")


def placeholders(text):
    """The numbers of the values that a text of the command line takes, in order of their mention."""
    return [int(number) if number else index for index, number in enumerate(_PLACEHOLDER.findall(text))]


def read_texts(paths):
    """The texts of the command line: for each a mapping of labels to texts, with its place in the file as `where`."""
    texts = []
    seen = set()
    for path in map(pathlib.Path, paths):
        for number, line in enumerate(path.read_text(encoding="utf-8").split("\n"), 1):
            if not line.strip() or line.startswith("#"):
                continue
            where = f"{path.name}:{number}"
            match = _ROW.fullmatch(line)
            if not match or match[2] or match[1] not in LABELS or not match[3]:
                raise Malformed(f'{where}: neither a remark nor label: "text"')
            if match[1] == "en":
                if match[3] in seen:
                    raise Malformed(f"{where}: {match[3]!r} stands twice")
                seen.add(match[3])
                texts.append({"where": where})
            due = LABELS[len(texts[-1]) - 1] if texts and len(texts[-1]) <= len(LABELS) else "en"
            if match[1] != due:
                raise Malformed(f'{where}: "{match[1]}", where "{due}" is due')
            texts[-1][match[1]] = match[3]
            wanted, found = placeholders(texts[-1]["en"]), placeholders(match[3])
            if sorted(found) != wanted or re.search(r"[{}]", _PLACEHOLDER.sub("", match[3])):
                raise Malformed(f"{where}: needs each placeholder of the English once, and no other brace")
            if len({bool(number) for number in _PLACEHOLDER.findall(match[3])}) > 1:
                raise Malformed(f"{where}: either all placeholders have a number or none has")
    for text in texts:
        if len(text) != len(LABELS) + 1:
            raise Malformed(f'{text["where"]}: a language is missing')
    return texts

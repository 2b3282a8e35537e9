"""Which options a man page and the help of a program tell of."""

import re
import subprocess


def rendered(page):
    """The page as plain text, without bold and underlined letters."""
    text = subprocess.run(["mandoc", "-T", "ascii", page], check=True, capture_output=True, text=True).stdout
    return re.sub(".\b", "", text)


def sections(text):
    """The lines of each section and subsection by its title. Titles stand at the margin or three columns from it."""
    found = {}
    title = None
    for line in text.splitlines():
        heading = re.fullmatch(r"(?:   )?(\S.*)", line)
        if heading:
            title = heading[1]
        if title:
            found.setdefault(title, []).append(line)
    return found


def page_options(lines):
    """The options that begin a paragraph, with their arguments. A short one has its text on the same line."""
    title = lines[0]
    return {re.split(r"\s{2,}", line.strip())[0] for before, line in zip(lines, lines[1:])
            if before in ("", title) and line.startswith("       -")}


def help_options(text):
    """The same, as the help of a program tells it."""
    return {re.split(r"\s{2,}", line.strip())[0] for line in text.splitlines() if re.match(r"  -", line)}


def commands(text):
    """The commands that the help of a program names."""
    part = text[text.index("Subcommands:\n"):]
    return re.findall(r"^  (\w+) ", part[:part.index("\n\n")], re.MULTILINE)

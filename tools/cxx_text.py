"""What the checking scripts share: the C++ files of the project, and their text without comments and literals."""
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ("varnel", "apps", "examples", "tests", "bench", "fuzz")

_TOKEN = re.compile(
    r'//(?:\\\n|[^\n])*'
    r'|/\*.*?\*/'
    r'|R"(?P<mark>[^()\s\\]{0,16})\(.*?\)(?P=mark)"'
    r'|"(?:\\.|[^"\\\n])*"'
    r"|(?<![0-9A-Za-z_])(?:u8|[uUL])?'(?:\\.|[^'\\\n])+'",
    re.S)


def files(*folders, suffixes=(".h", ".cpp"), root=ROOT):
    """The C++ files below the folders (all of the project's when none are given), sorted."""
    found = []
    for folder in folders or FOLDERS:
        found += [path for path in (root / folder).rglob("*") if path.suffix in suffixes and path.is_file()]
    return sorted(found)


def _blank(match):
    text = match.group()
    quote = {'"': '""', "'": "0"}.get(text[-1], "") if not text.startswith("/") else ""
    return quote + re.sub(r"[^\n]", " ", text)[len(quote):]


def without_comments(text):
    """The text with comments blanked; lines keep their numbers, literals stay."""
    return _TOKEN.sub(lambda match: _blank(match) if match.group().startswith("/") else match.group(), text)


def without_literals(text):
    """The text with comments and the inside of literals blanked; lines keep their numbers."""
    return _TOKEN.sub(_blank, text)


def allowed(path):
    """Lines of an allow list as {name: reason}; '#' starts a comment."""
    found = {}
    if path.exists():
        for line in path.read_text(encoding="utf-8").splitlines():
            name, _, reason = line.split("#")[0].strip().partition(" ")
            if name:
                found[name] = reason.strip()
    return found


def report(errors, good):
    """Prints the errors, or what is good; answers the exit status."""
    for error in errors:
        print(error)
    if not errors:
        print(good)
    return 1 if errors else 0

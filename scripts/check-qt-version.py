#!/usr/bin/python3
"""Lists the Qt symbols that the plug-in and the host's interfaces use, with the version of Qt that brought each.

What is newer than Qt 5.9 is an error: host kits may hold that version. The version is what Qt's own documentation says;
one of several overloads is told by the types of its parameters, as the documentation writes them. Installs what is
missing and builds the plug-in, whose compile commands it reads.
    scripts/check-qt-version.py
"""
import html
import pathlib
import re
import subprocess
import sys

PROJECT = pathlib.Path(__file__).resolve().parent.parent
OURS = [str(PROJECT / folder) for folder in ("Plugins", "HostInterfaces")]
PAGES = pathlib.Path("/usr/share/qt5/doc")
NEWEST = (5, 9)
PREPARATION = """
source scripts/install-packages.sh
install_packages
install_packages python3-clang qtbase5-doc-html
cmake --preset dev
cmake --build --preset dev --target uiPluginRxMap
"""
subprocess.run(["bash", "-ec", PREPARATION], cwd=PROJECT, stdout=sys.stderr, check=True)
# Not installed before this point.
import clang.cindex
from clang.cindex import CursorKind

# Qt's headers use these names, this project does not.
INTERNAL = re.compile(r"^(Qt?Private|QtSharedPointer|QtMetaTypePrivate|QtStringBuilder)|Private$|^qt_meta")


def arguments_of(command):
    """What the compiler is told, without the launcher, the compiler, source and output."""
    words = list(command.arguments)
    while words and not words[0].startswith("-"):
        words.pop(0)
    kept, skip = [], False
    for word in words:
        if skip:
            skip = False
        elif word in ("-o", "-c"):
            skip = word == "-o"
        elif not word.endswith(".cpp") and not word.startswith("-fno-tree"):
            kept.append(word)
    return kept


def is_ours(cursor):
    file = cursor.location.file
    return file is not None and any(str(pathlib.Path(file.name).resolve()).startswith(folder) for folder in OURS)


def is_qt(cursor):
    file = cursor.location.file
    return file is not None and "/qt5/" in file.name


def used_symbols(unit):
    """(class, name, types of the parameters) of each declaration of Qt that our code refers to."""
    for cursor in unit.cursor.walk_preorder():
        used = cursor.referenced
        if used is None or used == cursor or not is_ours(cursor) or not is_qt(used):
            continue
        owner = used.semantic_parent
        if used.kind in (CursorKind.CLASS_DECL, CursorKind.STRUCT_DECL, CursorKind.CLASS_TEMPLATE):
            yield used.spelling, "", ()
        elif owner is not None and used.spelling and used.kind is not CursorKind.NAMESPACE:
            inside = owner.spelling if owner.kind is not CursorKind.TRANSLATION_UNIT else ""
            yield inside, used.spelling, tuple(argument.type.spelling for argument in used.get_arguments())


def plain(text):
    return html.unescape(re.sub(r"<[^>]*>", "", text))


def normal(types):
    """Parameter types without what may be written in several ways."""
    return [re.sub(r"<.*>|\b(const|enum|Qt::|Q\w+::)|[&]", "", kind).strip() for kind in types]


def fit(heading, types):
    """How well a documented signature fits: the number of parameters first, then how many of their types it names."""
    inside = re.search(r"\((.*)\)", heading)
    parameters = [part for part in re.split(r",(?![^<]*>)", inside[1]) if part.strip()] if inside else []
    named = sum(kind in part.split() for kind, part in zip(normal(types), normal(parameters)))
    return len(parameters) == len(types), named


def entries(page):
    """(heading, version or None) of each member on a page of the documentation."""
    text = page.read_text(errors="replace")
    parts = re.split(r'(<h3 class="(?:fn|flags)"[^>]*>.*?</h3>)', text, flags=re.S)
    for heading, body in zip(parts[1::2], parts[2::2]):
        found = re.search(r"was (?:introduced|added) in (?:Qt )?(?:\w+ )?(\d+)\.(\d+)", plain(body))
        yield plain(heading), (int(found[1]), int(found[2])) if found else None


def version_of(owner, name, types, pages):
    """The version that brought a symbol; None where the documentation names none."""
    page = pages.get(owner.lower())
    if page is None:
        return None
    if not name:
        found = re.search(r"<td[^>]*>\s*Since:\s*</td><td[^>]*>\s*Qt (\d+)\.(\d+)", page.read_text(errors="replace"))
        return (int(found[1]), int(found[2])) if found else None
    overloads = [entry for entry in entries(page) if re.search(r"\b%s\s*(\(|$|enum)" % re.escape(name), entry[0])]
    fits = [fit(heading, types) for heading, _ in overloads]
    best = [version or (0, 0) for (_, version), value in zip(overloads, fits) if value == max(fits)]
    # When overloads cannot be told apart, the newest counts, so that somebody takes a look.
    return max(best) if best and max(best) > (0, 0) else None


def main():
    build = PROJECT / "build/dev"
    pages = {page.stem: page for page in PAGES.glob("qt*/*.html")}
    if "qstring" not in pages:
        sys.exit(f"the documentation of Qt is missing in {PAGES}")
    index = clang.cindex.Index.create()
    commands = clang.cindex.CompilationDatabase.fromDirectory(str(build))
    symbols = set()
    for source in sorted((PROJECT / "Plugins").rglob("*.cpp")):
        command = next(iter(commands.getCompileCommands(str(source)) or ()), None)
        if command is None:
            sys.exit(f"{source}: not among the compile commands of {build}")
        unit = index.parse(str(source), arguments_of(command) + ["-working-directory", command.directory])
        errors = [str(message) for message in unit.diagnostics if message.severity >= clang.cindex.Diagnostic.Error]
        if errors:
            sys.exit(errors[0])
        symbols.update(used_symbols(unit))
    newer = 0
    for owner, name, types in sorted(symbols):
        if INTERNAL.search(owner):
            continue
        version = version_of(owner, name, types, pages)
        text = "%d.%d" % version if version else "-"
        is_newer = version is not None and version > NEWEST
        newer += is_newer
        member = f"{owner}::{name}({', '.join(types)})" if name else owner
        print(f"{text:6}{member}{'   newer than %d.%d' % NEWEST if is_newer else ''}")
    print(f"{len(symbols)} symbols, {newer} newer than Qt {NEWEST[0]}.{NEWEST[1]}")
    return 1 if newer else 0


if __name__ == "__main__":
    sys.exit(main())

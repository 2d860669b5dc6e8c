#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Builds the documentation site.

  build.py SOURCE_DIR XML_DIR PARTS_DIR SITE_DIR VERSION

SOURCE_DIR is the repository, XML_DIR what Doxygen made of the public headers, PARTS_DIR holds the
pictures of specimens/ with their index, dark.css and light.css. Needs no network and no file of another
place. A page of docs/ that PAGES does not name is listed under "More".
"""

import html
import json
import pathlib
import re
import shutil
import struct
import sys

import reference
from pages import Page, Reader

# Group, then the pages in it: the name on the site, the source, and the text in the list of pages.
PAGES = (
    ("Start", (
        ("index", "README.md", "What it is"),
        ("application", "docs/application.md", "Ten minutes: an application"),
        ("maker", "docs/maker.md", "Five minutes: a theme"),
        ("moving", "docs/moving.md", "Moving a program over"),
        ("first-application", "docs/first-application.md", "On the core library alone"),
        ("installing", "docs/installing.md", "Installing and deploying"),
        ("qt6", "docs/qt6.md", "Qt 5 and Qt 6"),
        ("pages", "docs/README.md", "All pages"),
    )),
    ("Themes", (
        ("theme-files", "docs/theme-files.md", "Theme files and layering"),
        ("templates", "docs/templates.md", "Templates and tokens"),
        ("vocabulary", None, "The vocabulary in pictures"),
        ("application-look", "docs/application-look.md", "The look, class by class"),
        ("palette", "docs/palette.md", "The palette"),
        ("icons", "docs/icons.md", "Icons"),
        ("desktop", "docs/desktop.md", "The desktop's wishes"),
    )),
    ("Tools", (
        ("gallery", "docs/gallery.md", "Gallery"),
        ("inspector", "docs/inspector.md", "Inspector"),
        ("check", "docs/check.md", "Checker"),
        ("rules", None, "The checker's rules"),
        ("command", "docs/command.md", "Command"),
        ("foreign-programs", "docs/foreign-programs.md", "Foreign programs"),
        ("real-programs", "docs/real-programs.md", "Programs measured"),
    )),
    ("Reference", (
        ("api", None, "Interface"),
        ("messages", "docs/messages.md", "Messages"),
        ("performance", "docs/performance.md", "Performance"),
        ("abi", "docs/abi.md", "Binary compatibility"),
    )),
    ("Project", (
        ("contributing", "CONTRIBUTING.md", "Contributing"),
        ("changelog", "CHANGELOG.md", "Changes"),
    )),
)
SITE_FILES = ("site.css", "site.js")


def picture_size(path):
    """Width and height of a PNG; none for other pictures, which scale by themselves."""
    data = path.read_bytes()[:24]
    return struct.unpack(">II", data[16:24]) if data[:8] == b"\x89PNG\r\n\x1a\n" else None


def specimen_page(parts):
    """Every row of the gallery's specimens with its picture in dark and in light."""
    rows = json.loads((parts / "specimens/specimens.json").read_text())
    page = Page("vocabulary", "The vocabulary in pictures")
    page.add("<p>Every property value that the built-in templates know, and every class that they style, in each of its "
             "states, dark and light. <a href=\"templates.html#the-built-in-templates\">Templates</a> has the same "
             "values in one table. A name beside a picture is a selector; the line of C++ gives it to a widget.</p>")
    group = section = None
    for row in rows:
        if row["page"] != group:
            group, section = row["page"], None
            page.add_heading(2, html.escape(group), group)
        if row["section"] != section:
            section = row["section"]
            page.add_heading(3, html.escape(section), section)
        selector = row["selector"]
        page.add_heading(4, f"<code>{html.escape(selector)}</code>", selector)
        if row["code"]:
            page.add(f'<pre tabindex="0"><code>{html.escape(row["code"])}</code></pre>')
        states = ", ".join(row["states"])
        page.add('<div class="pair">')
        for look in ("dark", "light"):
            name = f"{row['picture']}-{look}.png"
            width, height = picture_size(parts / "specimens" / name)
            page.add(f'<img src="pictures/specimens/{name}" width="{width}" height="{height}" loading="lazy" '
                     f'alt="{html.escape(selector)}, {look}: {html.escape(states)}">')
        page.add("</div>")
    return page


def rules_page(pages):
    page = Page("rules", "The checker's rules")
    page.add('<p>What <a href="check.html">the checker</a> finds, why it matters, and what to do about it.</p>'
             '<div class="table" tabindex="0" role="region" aria-label="Rules"><table>'
             "<thead><tr><th>Rule</th><th>Finds</th></tr></thead><tbody>")
    for rule in pages:
        page.add(f'<tr><td><a href="{rule.name}.html"><code>{rule.title_html}</code></a></td><td>{rule.summary}</td></tr>')
    page.add("</tbody></table></div>")
    return page


class Site:
    def __init__(self, source, xml, parts, target, version):
        self.source, self.xml, self.parts, self.target, self.version = source, xml, parts, target, version
        self.groups = [] # (title, [(page name, link text)]) of what there is
        self.pages = {}

    def collect(self):
        known = {source for _, entries in PAGES for _, source, _ in entries}
        groups = [(title, list(entries)) for title, entries in PAGES]
        more = [(path.stem, f"docs/{path.name}", None) for path in sorted((self.source / "docs").glob("*.md"))
                if f"docs/{path.name}" not in known]
        if more:
            groups.insert(-1, ("More", more))
        groups = [(title, [entry for entry in entries if not entry[1] or (self.source / entry[1]).exists()])
                  for title, entries in groups]
        rules = [(f"rules/{path.stem}", f"docs/rules/{path.name}", None)
                 for path in sorted((self.source / "docs/rules").glob("*.md"))]
        sources = {source: name for _, entries in groups for name, source, _ in entries if source}
        sources.update({source: name for name, source, _ in rules})
        reader = Reader(self.source, sources, self.picture)

        for _, entries in groups:
            for name, source, _ in entries:
                if source:
                    self.pages[name] = reader.read(name, source)
        rule_pages = [reader.read(name, source) for name, source, _ in rules]
        self.pages.update({page.name: page for page in rule_pages})
        self.pages["rules"] = rules_page(rule_pages)
        self.pages["vocabulary"] = specimen_page(self.parts)
        for page in reference.pages(self.xml):
            self.pages[page.name] = page
        self.groups = [(title, [(name, text or self.pages[name].title) for name, _, text in entries])
                       for title, entries in groups]

    def picture(self, path):
        """Copies a picture of the repository; returns its place on the site and its size."""
        place = pathlib.Path("pictures") / path.relative_to(self.source / "docs/pictures")
        (self.target / place).parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(path, self.target / place)
        return place.as_posix(), picture_size(path)

    def navigation(self, page):
        current = page.name.split("/")[0] # a rule or a class is shown below its list
        lines = []
        for title, entries in self.groups:
            lines.append(f"<h2>{html.escape(title)}</h2><ul>")
            for name, text in entries:
                mark = ' aria-current="page"' if name == page.name else ' class="inside"' if name == current else ""
                lines.append(f'<li><a href="{page.root}{name}.html"{mark}>{html.escape(text)}</a></li>')
            lines.append("</ul>")
        return "\n".join(lines)

    def contents(self, page):
        depth = 3 if page.name.startswith("api/") else 2 # there the members, not their groups
        headings = [heading for heading in page.headings if heading.level == depth]
        if len(headings) < 3:
            return ""
        items = "".join(f'<li><a href="#{heading.anchor}">{html.escape(heading.text)}</a></li>' for heading in headings)
        return (f'<details id="contents" open>\n<summary>On this page</summary>\n'
                f'<nav aria-label="On this page"><ul>{items}</ul></nav>\n</details>')

    def write(self):
        template = (pathlib.Path(__file__).parent / "page.html").read_text()
        self.target.mkdir(parents=True, exist_ok=True)
        for page in self.pages.values():
            fields = {
                "title": "HVTheme" if page.name == "index" else f"{html.escape(page.title)} – HVTheme",
                "root": page.root, "navigation": self.navigation(page), "contents": self.contents(page),
                "body": page.body(), "version": html.escape(self.version),
            }
            text = re.sub(r"\{\{(\w+)\}\}", lambda match: fields[match[1]], template)
            path = self.target / f"{page.name}.html"
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        for name in SITE_FILES:
            shutil.copyfile(pathlib.Path(__file__).parent / name, self.target / name)
        shutil.copytree(self.parts / "specimens", self.target / "pictures/specimens", ignore=shutil.ignore_patterns("*.json"))
        self.write_colors()
        self.write_index()

    def write_colors(self):
        """The sample themes' own colours: light ones unless the reader prefers dark."""
        light, dark = ((self.parts / f"{look}.css").read_text() for look in ("light", "dark"))
        (self.target / "colors.css").write_text(f"{light}\n@media (prefers-color-scheme: dark) {{\n{dark}}}\n")

    def write_index(self):
        """A script and no data file: a browser reads no data from beside a page that it opened from a disk."""
        entries = [[page.title, heading.text, f"{page.name}.html" + (f"#{heading.anchor}" if heading.level > 1 else ""), text]
                   for page in self.pages.values() for heading, text in page.sections()]
        text = json.dumps(entries, ensure_ascii=False, separators=(",", ":")).replace("],[", "],\n[")
        (self.target / "index.js").write_text(f"const searchIndex = {text};\n")


def main(arguments):
    if len(arguments) != 5:
        print(__doc__, file=sys.stderr)
        return 2
    site = Site(*(pathlib.Path(path).resolve() for path in arguments[:4]), arguments[4])
    try:
        site.collect()
    except ValueError as problem:
        print(f"build.py: {problem}", file=sys.stderr)
        return 1
    site.write()
    print(f"{len(site.pages)} pages in {site.target}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Builds the documentation site and looks at every page of it.

  site.py CMAKE BUILD_DIR CONFIG SOURCE_DIR

Well-formed HTML, no dead link or anchor, nothing of another place, every page in reach, every picture there
and with a text, a picture in dark and light for every value of the templates, contrast of all text.
Exit codes: 0 all is well, 1 something is not.
"""

import html.parser
import itertools
import pathlib
import re
import sys
import urllib.parse

from steps import Failure, expect, run

VOID = {"meta", "link", "br", "hr", "img", "input", "col"}
# Ground roles by text roles of site.css; edges of controls need less.
GROUNDS = ("ground", "raised")
TEXTS = {"text": 4.5, "faint": 4.5, "link": 4.5, "string": 4.5, "number": 4.5, "edge": 3.0}
LEAST_PICTURES = 300


class PageReader(html.parser.HTMLParser):
    """Notes what a page leads to, and whether each element is closed where it may be."""

    def __init__(self, path):
        super().__init__(convert_charrefs=True)
        self.path = path
        self.open, self.problems = [], []
        self.links, self.loaded, self.ids, self.headings = [], [], [], []
        self.labels, self.inputs = [], []
        self.feed(path.read_text())
        self.close()
        self.problems += [f"<{tag}> is not closed" for tag in self.open]

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        if len(attributes) != len(attrs):
            self.problems.append(f"<{tag}> has an attribute twice")
        if "p" in self.open and tag in ("p", "div", "ul", "ol", "dl", "pre", "table", "h2", "h3", "section"):
            self.problems.append(f"<{tag}> in <p>")
        if tag not in VOID:
            self.open.append(tag)
        if "id" in attributes:
            self.ids.append(attributes["id"])
        if tag == "a":
            if "a" in self.open[:-1]:
                self.problems.append("<a> in <a>")
            self.links.append(attributes.get("href"))
        if tag in ("img", "script"):
            self.loaded.append(attributes.get("src"))
        if tag == "link":
            self.loaded.append(attributes.get("href"))
        if tag == "img" and not attributes.get("alt", "").strip():
            self.problems.append(f"{attributes.get('src')} has no text")
        if tag == "label":
            self.labels.append(attributes.get("for"))
        if tag == "input":
            self.inputs.append(attributes.get("id"))
        if re.fullmatch("h[1-6]", tag):
            self.headings.append(int(tag[1]))

    def handle_endtag(self, tag):
        if not self.open or self.open[-1] != tag:
            self.problems.append(f"</{tag}> where <{self.open[-1] if self.open else ''}> is open")
        elif tag not in VOID:
            self.open.pop()

    def handle_data(self, data):
        if re.search(r"\n(?:- |\* |\d\. |\|)", data) and "pre" not in self.open:
            self.problems.append(f"Markdown is left: {data.strip()[:60]}")


def check_page(page, pages, site):
    problems = list(page.problems)
    problems += [f"the id {name} twice" for name in sorted({name for name in page.ids if page.ids.count(name) > 1})]
    if page.headings.count(1) != 1:
        problems.append("there is not just one title")
    if set(page.inputs) - set(page.labels):
        problems.append("a field has no label")
    if page.links[:1] != ["#main"] or "main" not in page.ids:
        problems.append("the first link does not skip to the text")
    for address in page.loaded:
        if re.match(r"(?:[a-z]+:|//)", address) or not (page.path.parent / address).is_file():
            problems.append(f"{address} is not part of the site")
    for link in page.links:
        if re.match(r"https?:", link):
            continue
        path, _, anchor = urllib.parse.unquote(link).partition("#")
        target = (page.path.parent / path).resolve() if path else page.path
        if not target.is_file() or site not in target.parents:
            problems.append(f"dead link {link}")
        elif target.suffix == ".html" and anchor and anchor not in pages[target].ids:
            problems.append(f"dead anchor {link}")
    return [f"{page.path.relative_to(site)}: {problem}" for problem in problems]


def unreachable(pages, site):
    start = site / "index.html"
    seen, waiting = {start}, [start]
    while waiting:
        page = pages[waiting.pop()]
        for link in page.links:
            target = (page.path.parent / link.partition("#")[0]).resolve()
            if target in pages and target not in seen:
                seen.add(target)
                waiting.append(target)
    return sorted(str(path.relative_to(site)) for path in set(pages) - seen)


def check_index(site, pages):
    """What the search leads to exists."""
    addresses = re.findall(r'^(?:const searchIndex = \[)?\["(?:[^"\\]|\\.)*","(?:[^"\\]|\\.)*","([^"]*)"', (site / "index.js").read_text(), re.MULTILINE)
    expect(len(addresses) > len(pages), f"the search knows only {len(addresses)} places")
    found = {(site / address.partition("#")[0]).resolve() for address in addresses}
    expect(found == set(pages), f"the search does not know {set(pages) - found}, but {found - set(pages)}")
    dead = [address for address in addresses
            if "#" in address and address.partition("#")[2] not in pages[(site / address.partition("#")[0]).resolve()].ids]
    expect(not dead, f"the search leads to {dead}")


def check_vocabulary(site, source):
    """Every value that a template's selector names is on the page, with a picture in both looks."""
    page = (site / "vocabulary.html").read_text()
    captions = re.findall(r'<img src="([^"]*)"[^>]* alt="([^"]*), (dark|light): ', page)
    expect(len(captions) >= LEAST_PICTURES, f"only {len(captions)} pictures of values")
    shown = {look: {value for _, selector, shown_look in captions if shown_look == look
                    for value in re.findall(r"\[(\w+)=(\w+)\]", html.unescape(selector))} for look in ("dark", "light")}
    values = set()
    for template in sorted((source / "hvtheme/stylesheet").glob("*.qss")):
        values.update(re.findall(r"\[\s*(\w+)\s*=\s*[\"']?(\w+)[\"']?\s*\]", template.read_text()))
    expect(values, "no value in the templates")
    for look, known in shown.items():
        expect(values <= known, f"no picture in {look} of {sorted(values - known)}")


def channels(text, below=(0, 0, 0)):
    digits = text.lstrip("#")
    red, green, blue, alpha = (int(digits[i:i + 2] or "ff", 16) for i in (0, 2, 4, 6))
    return tuple((value * alpha + under * (255 - alpha)) / 255 for value, under in zip((red, green, blue), below))


def luminance(color):
    linear = [value / 255 / 12.92 if value / 255 <= 0.04045 else ((value / 255 + 0.055) / 1.055) ** 2.4 for value in color]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def ratio(first, second):
    light, dark = sorted((luminance(first), luminance(second)), reverse=True)
    return (light + 0.05) / (dark + 0.05)


def check_contrast(site):
    """The ratio of every text role on every ground, as a browser resolves the variables."""
    expect(round(ratio((0, 0, 0), (255, 255, 255)), 6) == 21, "the measure is wrong")
    declaration = re.compile(r"--([\w-]+):\s*([^;]+);")
    colors_light, colors_dark = (site / "colors.css").read_text().split("@media (prefers-color-scheme: dark)")
    roles_light, roles_dark = (site / "site.css").read_text().split("* { box-sizing", 1)[0].split("@media (prefers-color-scheme: dark)")
    light = dict(declaration.findall(colors_light + roles_light))
    looks = {"light": light, "dark": {**light, **dict(declaration.findall(colors_dark + roles_dark))}}
    for look, variables in looks.items():
        def value(name):
            text = variables[name]
            return value(text[6:-1]) if text.startswith("var(--") else text
        lowest = {}
        for ground, (role, least) in itertools.product(GROUNDS, TEXTS.items()):
            below = channels(value(ground))
            measured = ratio(channels(value(role), below), below)
            lowest[role] = min(lowest.get(role, 21), measured)
            expect(measured >= least, f"{look}: {role} on {ground} is {measured:.2f} : 1")
        print(f"site.py: {look}:", ", ".join(f"{role} {measured:.2f}" for role, measured in lowest.items()))


def main(arguments):
    if len(arguments) != 4:
        print(__doc__, file=sys.stderr)
        return 1
    cmake, build, config, source = arguments
    try:
        run(cmake, "--build", build, "--config", config, "--target", "site")
        site = (pathlib.Path(build) / "site").resolve()
        pages = {path: PageReader(path) for path in sorted(site.rglob("*.html"))}
        expect(pages, f"no page in {site}")
        problems = [problem for page in pages.values() for problem in check_page(page, pages, site)]
        problems += [f"no page leads to {name}" for name in unreachable(pages, site)]
        problems += [f"{path.relative_to(site)} loads from elsewhere" for path in site.glob("*.*s")
                     if re.search(r"@import|url\(|fetch\(|XMLHttpRequest|https?://", path.read_text()) and path.name != "index.js"]
        expect(not problems, "\n".join(problems))
        check_index(site, pages)
        check_vocabulary(site, pathlib.Path(source))
        check_contrast(site)
    except Failure as failure:
        print(f"site.py: {failure}", file=sys.stderr)
        return 1
    print(f"site.py: {len(pages)} pages")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""A page of the site, and the reader that makes one of a Markdown file."""

import dataclasses
import html
import pathlib
import posixpath
import re

import pygments
from markdown_it import MarkdownIt
from pygments.formatters import HtmlFormatter
from pygments.lexer import RegexLexer
from pygments.lexers import get_lexer_by_name
from pygments.token import Comment, Keyword, Number, Text
from pygments.util import ClassNotFound


class ThemeFileLexer(RegexLexer):
    """INI as Qt reads it: only a semicolon begins a comment, a colour may have a number sign."""

    tokens = {"root": [
        (r";.*$", Comment), (r"^\s*\[.*?\]", Keyword), (r"^[^=;\n]+(?==)", Text),
        (r"#[0-9A-Fa-f]+", Number), (r"[^;#\n]+|#|\n", Text),
    ]}


def lexer_for(language):
    return ThemeFileLexer() if language == "ini" else get_lexer_by_name(language)


def slug(text):
    """The anchor of a heading, as forges make it."""
    return re.sub(r"[^\w\- ]", "", text.strip().lower()).replace(" ", "-")


def plain(markup):
    return " ".join(html.unescape(re.sub(r"<[^>]*>", " ", markup)).split())


def highlighted(text, language):
    """A block of code that the keyboard can scroll, in colours if the language is known."""
    try:
        code = pygments.highlight(text, lexer_for(language), HtmlFormatter(nowrap=True)) if language else None
    except ClassNotFound:
        code = None
    return f'<pre tabindex="0"><code>{code or html.escape(text)}</code></pre>\n'


@dataclasses.dataclass
class Heading:
    level: int
    text: str
    anchor: str


class Page:
    """The name is the path on the site without suffix. What is added is HTML."""

    def __init__(self, name, title, title_html=None):
        self.name, self.title = name, title
        self.title_html = title_html or html.escape(title)
        self.root = "../" * name.count("/")
        self.summary = "" # HTML
        self.headings = [Heading(1, title, "")]
        self._chunks = [[]] # one list of HTML for each heading
        self._anchors = set()

    def add(self, markup):
        self._chunks[-1].append(markup)

    def add_heading(self, level, markup, anchor_text):
        base = anchor = slug(anchor_text) or "section"
        number = 0
        while anchor in self._anchors:
            number += 1
            anchor = f"{base}-{number}"
        self._anchors.add(anchor)
        self.headings.append(Heading(level, plain(markup), anchor))
        self._chunks.append([f'<h{level} id="{anchor}">{markup} <a class="anchor" href="#{anchor}" '
                             f'aria-label="Link to this section">#</a></h{level}>\n'])

    def body(self):
        return f"<h1>{self.title_html}</h1>\n" + "".join(markup for chunk in self._chunks for markup in chunk)

    def sections(self):
        """Each heading with the plain text below it."""
        for heading, chunk in zip(self.headings, self._chunks):
            yield heading, plain("".join(chunk if heading.level == 1 else chunk[1:]))


class Reader:
    """Reads Markdown files; links between them become links between pages.

    `sources` maps the path of each file that becomes a page to the page's name. A file of the
    repository that becomes none is named without a link; one that does not exist is a ValueError.
    """

    def __init__(self, root, sources, picture):
        self.root, self.sources, self.picture = root, sources, picture
        self.markdown = MarkdownIt("commonmark", {"html": True}).enable("table")

    def read(self, name, source):
        tokens = self.markdown.parse((self.root / source).read_text())
        if not tokens or tokens[0].type != "heading_open" or tokens[0].tag != "h1":
            raise ValueError(f"{source} does not begin with a title")
        renderer = Renderer(self, name, source)
        title = renderer.inline(tokens[1].children)
        page = Page(name, plain(title), title)
        renderer.fill(page, tokens[3:])
        return page

    def target(self, page_name, source, link):
        """Where a link of the file `source` leads from its page; none if it becomes no page."""
        address, _, anchor = link.partition("#")
        if re.match(r"[a-z]+:", address):
            return link
        path = posixpath.normpath(posixpath.join(posixpath.dirname(source), address)) if address else source
        if not (self.root / path).exists():
            raise ValueError(f"{source} links to {link}, which does not exist")
        to_root = "../" * page_name.count("/")
        if path in self.sources:
            return f"{to_root}{self.sources[path]}.html" + (f"#{anchor}" if anchor else "")
        if path == "docs/rules":
            return f"{to_root}rules.html"
        if path.startswith("docs/pictures/"):
            return to_root + self.picture(self.root / path)[0]
        return None


class Renderer:
    """Makes HTML of the tokens of one file."""

    SIMPLE = {
        "paragraph_open", "paragraph_close", "bullet_list_open", "bullet_list_close", "ordered_list_open",
        "ordered_list_close", "list_item_open", "list_item_close", "thead_open", "thead_close", "tbody_open", "tbody_close",
        "tr_open", "tr_close", "th_open", "th_close", "td_open", "td_close", "blockquote_open", "blockquote_close",
        "strong_open", "strong_close", "em_open", "em_close",
    }

    def __init__(self, reader, name, source):
        self.reader, self.name, self.source = reader, name, source

    def fill(self, page, tokens):
        tokens = iter(tokens)
        caption = page.title
        for token in tokens:
            if token.type == "heading_open":
                markup = self.inline(next(tokens).children)
                next(tokens)
                caption = plain(markup)
                page.add_heading(int(token.tag[1]), markup, caption)
                continue
            markup = self.block(token, caption)
            if token.type == "inline" and not page.summary and not markup.startswith("Severity"):
                page.summary = markup
            page.add(markup)

    def block(self, token, caption):
        if token.type == "inline":
            return self.inline(token.children)
        if token.type in ("fence", "code_block"):
            return highlighted(token.content, token.info.strip())
        if token.type == "table_open":
            return f'<div class="table" tabindex="0" role="region" aria-label="{html.escape(caption)}"><table>\n'
        if token.type == "table_close":
            return "</table></div>\n"
        if token.type == "hr":
            return "<hr>\n"
        return self.simple(token)

    def simple(self, token):
        if token.type in ("html_block", "html_inline"):
            if not re.fullmatch(r"\s*<!--.*-->\s*", token.content, re.DOTALL):
                raise ValueError(f"{self.source} holds HTML: {token.content.strip()}")
            return ""
        if token.type not in self.SIMPLE:
            raise ValueError(f"{self.source} holds what no page can show: {token.type}")
        if token.hidden: # paragraphs of tight lists
            return ""
        align = f' style="{token.attrs["style"]}"' if "style" in token.attrs else ""
        return f"<{'/' if token.nesting < 0 else ''}{token.tag}{align}>" + ("\n" if token.block else "")

    def inline(self, tokens):
        markup, closings = [], []
        for token in tokens:
            if token.type == "text":
                markup.append(html.escape(token.content, quote=False))
            elif token.type == "code_inline":
                markup.append(f"<code>{html.escape(token.content, quote=False)}</code>")
            elif token.type == "softbreak":
                markup.append("\n")
            elif token.type == "hardbreak":
                markup.append("<br>")
            elif token.type == "link_open":
                target = self.reader.target(self.name, self.source, token.attrs["href"])
                markup.append(f'<a href="{html.escape(target)}">' if target else "")
                closings.append("</a>" if target else "")
            elif token.type == "link_close":
                markup.append(closings.pop())
            elif token.type == "image":
                markup.append(self.image(token))
            else:
                markup.append(self.simple(token))
        return "".join(markup)

    def image(self, token):
        path = (self.reader.root / self.source).parent / token.attrs["src"]
        if not path.exists():
            raise ValueError(f"{self.source} shows {token.attrs['src']}, which does not exist")
        place, size = self.reader.picture(pathlib.Path(posixpath.normpath(path)))
        measures = f' width="{size[0]}" height="{size[1]}"' if size else ""
        address = "../" * self.name.count("/") + place # a phone shows it small
        return f'<a class="picture" href="{address}"><img src="{address}"{measures} alt="{html.escape(token.content)}"></a>'

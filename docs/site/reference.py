# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""The pages of the public interface, made of Doxygen's XML."""

import html
import re
import xml.etree.ElementTree as ElementTree

from pages import Page, highlighted

SECTIONS = {
    "public-type": "Types", "property": "Properties", "public-func": "Functions", "public-static-func": "Static functions",
    "public-slot": "Slots", "signal": "Signals", "protected-func": "Protected functions", "public-attrib": "Members",
    "enum": "Types", "typedef": "Types", "func": "Functions", "define": "Macros", "var": "Variables",
    "user-defined": "Functions",
}
MARKUP = {
    "bold": "strong", "emphasis": "em", "computeroutput": "code", "itemizedlist": "ul", "orderedlist": "ol",
    "listitem": "li", "table": "table", "row": "tr", "entry": "td", "superscript": "sup", "subscript": "sub", "blockquote": "blockquote",
}
REMARKS = {"return": "Returns", "see": "See also", "since": "Since", "note": "Note", "warning": "Warning",
           "attention": "Attention", "remark": "Remark", "pre": "Before", "post": "After", "par": ""}


class Interface:
    def __init__(self, folder):
        self.compounds = []
        self.places = {} # id -> (page name, anchor)
        index = ElementTree.parse(folder / "index.xml")
        for entry in index.iter("compound"):
            if entry.get("kind") in ("class", "struct", "namespace"):
                root = ElementTree.parse(folder / f"{entry.get('refid')}.xml").find("compounddef")
                if has_text(root):
                    self.compounds.append(root)

    def name_places(self):
        for compound in self.compounds:
            name = page_name(compound)
            self.places[compound.get("id")] = (name, "")
            anchors = set()
            for _, member in members(compound):
                anchor = base = member.findtext("name").lower()
                number = 0
                while anchor in anchors:
                    number += 1
                    anchor = f"{base}-{number}"
                anchors.add(anchor)
                self.places[member.get("id")] = (name, anchor)

    def text(self, element, here):
        """HTML of what an element holds."""
        parts = [html.escape(element.text or "", quote=False)]
        for child in element:
            parts.append(self.element(child, here))
            parts.append(html.escape(child.tail or "", quote=False))
        return "".join(parts)

    def element(self, child, here):
        tag = child.tag
        if tag == "parameterlist":
            return "<dl>" + "".join(self.parameter(item, here) for item in child) + "</dl>"
        if tag == "para":
            return self.paragraph(child, here)
        if tag == "programlisting":
            return highlighted("\n".join(code_text(line) for line in child) + "\n", "cpp")
        inner = self.text(child, here)
        if tag == "computeroutput" and re.search(r"\w \w", "".join(child.itertext())): # words, of which none means a class
            return f"<code>{html.escape(''.join(child.itertext()), quote=False)}</code>"
        if tag == "ref":
            return self.link(child.get("refid"), inner, here)
        if tag == "ulink":
            return inner
        if tag == "linebreak":
            return "<br>"
        if tag == "ndash":
            return "–"
        if tag == "mdash":
            return "—"
        if tag == "nonbreakablespace":
            return "&nbsp;"
        if tag in ("verbatim", "preformatted"):
            return f'<pre tabindex="0"><code>{inner}</code></pre>'
        if tag == "simplesect":
            title = REMARKS[child.get("kind")]
            return f'<div class="remark"><strong>{title}</strong> {inner}</div>'
        if tag in MARKUP:
            return f"<{MARKUP[tag]}>{inner}</{MARKUP[tag]}>"
        raise ValueError(f"a comment of the interface holds <{tag}>, which no page can show")

    def parameter(self, item, here):
        names = ", ".join(name.text or "" for name in item.iter("parametername"))
        return f"<dt><code>{html.escape(names)}</code></dt><dd>{self.text(item.find('parameterdescription'), here)}</dd>"

    def link(self, refid, inner, here):
        if refid not in self.places:
            return inner
        name, anchor = self.places[refid]
        root = "../" * here.name.count("/")
        return f'<a href="{root}{name}.html{"#" + anchor if anchor else ""}">{inner}</a>'

    def description(self, element, here):
        blocks = [self.blocks(element.find(tag), here) for tag in ("briefdescription", "detaileddescription")]
        return "\n".join(block for block in blocks if block)

    def blocks(self, element, here):
        return "\n".join(self.element(child, here) for child in element)

    def paragraph(self, para, here):
        """A paragraph, with the lists and remarks that Doxygen puts into it taken out."""
        blocks, line = [], html.escape(para.text or "", quote=False)
        for child in para:
            markup = self.element(child, here)
            tail = html.escape(child.tail or "", quote=False)
            if markup.startswith(("<div", "<dl", "<ul", "<ol", "<pre", "<table", "<blockquote")):
                blocks += [line, markup]
                line = tail
            else:
                line += markup + tail
        blocks.append(line)
        # Every other one is a line, the rest is made already.
        return "\n".join(block if i % 2 else f"<p>{block}</p>" for i, block in enumerate(blocks) if block.strip())

    def page(self, compound):
        name = compound.findtext("compoundname")
        page = Page(page_name(compound), name, f"<code>{html.escape(name)}</code>")
        header = compound.find("location").get("file", "")
        if compound.get("kind") != "namespace":
            page.add(highlighted(f"#include <{header}>\n", "cpp"))
        page.add(self.description(compound, page))
        page.summary = self.blocks(compound.find("briefdescription"), page)
        shown = None
        for section, member in members(compound):
            if section is not shown:
                shown = section
                title = section.findtext("header") or SECTIONS[section.get("kind")]
                page.add_heading(2, html.escape(title), "all-" + title)
                if section.find("description") is not None:
                    page.add(self.blocks(section.find("description"), page))
            anchor = self.places[member.get("id")][1]
            page.add_heading(3, f"<code>{html.escape(member.findtext('name'))}</code>", anchor)
            page.add(highlighted(declaration(member, compound), "cpp").replace("<pre", '<pre class="declaration"', 1))
            page.add(self.description(member, page))
            values = [value for value in member.findall("enumvalue") if has_text(value)]
            if values:
                page.add("<dl>" + "".join(f"<dt><code>{html.escape(value.findtext('name'))}</code></dt>"
                                          f"<dd>{self.description(value, page)}</dd>" for value in values) + "</dl>")
        return page


def code_text(line):
    """The text of a line of code, in which Doxygen makes elements of blanks."""
    return (line.text or "") + "".join((" " if child.tag == "sp" else code_text(child)) + (child.tail or "") for child in line)


def members(compound):
    order = list(SECTIONS)
    sections = [section for section in compound.findall("sectiondef") if section.get("kind") in SECTIONS]
    for section in sorted(sections, key=lambda section: order.index(section.get("kind"))):
        for member in section.findall("memberdef"):
            if member.get("prot") in ("public", "protected") and not member.findtext("name").startswith("~"):
                yield section, member


def declaration(member, compound):
    """As in the header, which a function of a namespace names as well."""
    text = plain_declaration(member)
    return f"#include <{member.find('location').get('file')}>\n{text}" if compound.get("kind") == "namespace" else text


def plain_declaration(member):
    kind = member.get("kind")
    if kind == "enum":
        values = ", ".join(value.findtext("name") + " " + (value.findtext("initializer") or "") for value in member.findall("enumvalue"))
        values = " ".join(values.replace(" ,", ",").split())
        return f"enum {'class ' if member.get('strong') == 'yes' else ''}{member.findtext('name')} {{{values}}};\n"
    definition = "".join((member.find("type") if member.find("type") is not None else ElementTree.Element("type")).itertext())
    text = f"{definition} {member.findtext('name')}{member.findtext('argsstring') or ''}".strip()
    if member.get("static") == "yes":
        text = "static " + text
    if kind == "property":
        access = [f"{verb} by {function}()" for verb, function in (("read", member.findtext("read")), ("set", member.findtext("write"))) if function]
        return f"{text}; // {', '.join(access)}\n"
    return text.replace("< ", "<").replace(" >", ">") + ";\n"


def has_text(element):
    return any("".join(element.find(tag).itertext()).strip() for tag in ("briefdescription", "detaileddescription")
               if element.find(tag) is not None)


def page_name(compound):
    return "api/" + compound.findtext("compoundname").replace("::", "-")


def pages(folder):
    """The overview first, then a page for each documented namespace and class."""
    interface = Interface(folder)
    interface.name_places()
    compounds = sorted(interface.compounds, key=lambda compound: compound.findtext("compoundname"))
    built = [interface.page(compound) for compound in compounds]
    overview = Page("api", "Interface")
    overview.add("<p>The public headers, as their comments describe them.</p><dl>")
    for compound, page in zip(compounds, built):
        kind = compound.get("kind")
        overview.add(f'<dt>{kind} <a href="{page.name}.html">{page.title_html}</a></dt>'
                     f"<dd>{interface.blocks(compound.find('briefdescription'), overview)}</dd>")
    overview.add("</dl>")
    return [overview, *built]

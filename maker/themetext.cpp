// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <maker/themetext.h>

#include <format/inisyntax.h>

#include <QSet>

#include <algorithm>
#include <iterator>

namespace Maker
{

namespace
{

const char byteOrderMark[] = "\xEF\xBB\xBF";

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

QByteArray lineEndOf(const QByteArray &line)
{
    if (line.endsWith("\r\n"))
        return QByteArrayLiteral("\r\n");
    return !line.isEmpty() && IniSyntax::isLineEnd(line.back()) ? line.right(1) : QByteArray();
}

QByteArray withoutLineEnds(QByteArray value)
{
    while (!value.isEmpty() && IniSyntax::isLineEnd(value.back()))
        value.chop(1);
    return value;
}

// Makes sure that what follows begins a line of its own; a backslash takes one line end along.
void endLine(QByteArray *text)
{
    const QByteArray lineEnd = lineEndOf(*text);
    if (lineEnd.isEmpty())
        *text += '\n';
    int position = 0;
    IniSyntax::Line line;
    if (IniSyntax::nextLine(*text, &position, &line) && line.end == text->size())
        *text += lineEnd.isEmpty() ? QByteArray("\n") : lineEnd;
}

QString rootSection()
{
    return QStringLiteral("General");
}

QString sectionOf(const QByteArray &header)
{
    const auto bracket = header.indexOf(']');
    const QByteArray name = header.mid(1, bracket < 0 ? -1 : bracket - 1).trimmed();
    return name.toLower() == "general" ? rootSection() : IniSyntax::unescapedKey(name);
}

IniSyntax::Encoding encoding(bool isUtf8)
{
    return isUtf8 ? IniSyntax::Encoding::Utf8 : IniSyntax::Encoding::Escaped;
}

} // namespace

ThemeText::ThemeText(const QByteArray &text)
    : m_isUtf8(text.startsWith(byteOrderMark))
{
    QString section = rootSection();
    int position = m_isUtf8 ? 3 : 0;
    int start = 0; // of what is in no line yet
    IniSyntax::Line found;
    while (IniSyntax::nextLine(text, &position, &found)) {
        int first = found.start; // blanks in front of a key belong to its line
        while (first > start && isBlank(text.at(first - 1)))
            --first;
        addPlainLines(text.mid(start, first - start), section);
        start = position = IniSyntax::behindLine(text, found.end);
        Line line;
        line.text = text.mid(first, start - first);
        line.isHeader = text.at(found.start) == '[';
        if (line.isHeader) {
            section = sectionOf(text.mid(found.start, found.end - found.start));
        } else if (found.equals >= 0) {
            const QByteArray key = text.mid(found.start, found.equals - found.start).trimmed();
            line.key = IniSyntax::unescapedKey(key);
            line.valueStart = found.equals + 1 - first;
            line.valueEnd = found.end - first;
            while (line.valueStart < line.valueEnd && isBlank(line.text.at(line.valueStart)))
                ++line.valueStart;
            while (line.valueEnd > line.valueStart && isBlank(line.text.at(line.valueEnd - 1)))
                --line.valueEnd;
        }
        line.section = section;
        note(m_lines.insert(m_lines.end(), line));
    }
    addPlainLines(text.mid(start), section);
}

void ThemeText::addPlainLines(const QByteArray &text, const QString &section)
{
    for (int start = 0; start < text.size();) {
        const int end = IniSyntax::behindLine(text, start);
        Line line;
        line.text = text.mid(start, end - start);
        line.section = section;
        m_lines.push_back(line);
        start = end;
    }
}

void ThemeText::note(Lines::iterator line)
{
    if (!line->key.isEmpty())
        m_entries.insert({line->section, line->key}, line);
    if (line->isHeader || !line->key.isEmpty())
        m_ends.insert(line->section, line);
}

QByteArray ThemeText::text() const
{
    QByteArray text;
    for (const Line &line : m_lines)
        text += line.text;
    return text;
}

// Line ends behind a backslash that ended the text do not count.
bool ThemeText::readsAs(const ThemeText &other) const
{
    const auto nextEntry = [](const Lines &lines, Lines::const_iterator from) {
        return std::find_if(from, lines.cend(),
                            [](const Line &line) { return !line.key.isEmpty(); });
    };
    auto own = nextEntry(m_lines, m_lines.cbegin());
    auto others = nextEntry(other.m_lines, other.m_lines.cbegin());
    while (own != m_lines.cend() && others != other.m_lines.cend()) {
        if (own->section != others->section || own->key != others->key
            || withoutLineEnds(rawValueOf(*own)) != withoutLineEnds(rawValueOf(*others)))
            return false;
        own = nextEntry(m_lines, std::next(own));
        others = nextEntry(other.m_lines, std::next(others));
    }
    return own == m_lines.cend() && others == other.m_lines.cend();
}

std::optional<QByteArray> ThemeText::provenText() const
{
    const QByteArray proposed = text();
    if (!readsAs(ThemeText(proposed)))
        return std::nullopt;
    return proposed;
}

QStringList ThemeText::keys(const QString &section) const
{
    QStringList keys;
    QSet<QString> known;
    for (const Line &line : m_lines) {
        if (line.section != section || line.key.isEmpty() || known.contains(line.key))
            continue;
        known.insert(line.key);
        keys.append(line.key);
    }
    return keys;
}

QMap<QString, QString> ThemeText::values(const QString &section) const
{
    QMap<QString, QString> values;
    for (const Line &line : m_lines) {
        if (line.section == section && !line.key.isEmpty())
            values.insert(line.key, valueOf(line));
    }
    return values;
}

QByteArray ThemeText::rawValueOf(const Line &line)
{
    return line.text.mid(line.valueStart, line.valueEnd - line.valueStart);
}

QString ThemeText::valueOf(const Line &line) const
{
    const QStringList parts = IniSyntax::unescapedValue(rawValueOf(line), encoding(m_isUtf8));
    const bool isText = parts.size() == 1 && !parts.constFirst().isEmpty();
    return isText ? parts.constFirst() : QStringLiteral("");
}

QString ThemeText::value(const QString &section, const QString &key) const
{
    const auto found = m_entries.constFind({section, key});
    return found == m_entries.cend() ? QString() : valueOf(**found);
}

ThemeText::Line ThemeText::entry(const QString &section, const QString &key, const QString &value,
                                 const QByteArray &lineEnd) const
{
    Line line;
    line.text = IniSyntax::escapedKey(key) + '=';
    line.valueStart = int(line.text.size());
    line.text +=
        IniSyntax::escapedValue(value, encoding(m_isUtf8), IniSyntax::Quotes::AsNeeded) + lineEnd;
    line.valueEnd = int(line.text.size() - lineEnd.size());
    line.section = section;
    line.key = key;
    return line;
}

void ThemeText::setValue(const QString &section, const QString &key, const QString &value)
{
    const auto found = m_entries.constFind({section, key});
    if (found != m_entries.cend()) {
        Line &line = **found;
        if (valueOf(line) == value)
            return;
        const int length = line.valueEnd - line.valueStart;
        const auto quotes = IniSyntax::isQuoted(line.text.mid(line.valueStart, length))
            ? IniSyntax::Quotes::Always
            : IniSyntax::Quotes::AsNeeded;
        const QByteArray text = IniSyntax::escapedValue(value, encoding(m_isUtf8), quotes);
        line.text.replace(line.valueStart, length, text);
        line.valueEnd = line.valueStart + int(text.size());
        return;
    }
    if (!m_ends.contains(section)) {
        if (!m_lines.empty())
            endLine(&m_lines.back().text);
        Line header;
        header.text = "\n[" + IniSyntax::escapedKey(section) + "]\n";
        header.section = section;
        header.isHeader = true;
        note(m_lines.insert(m_lines.end(), header));
    }
    const auto last = m_ends.value(section);
    endLine(&last->text);
    note(m_lines.insert(std::next(last), entry(section, key, value, lineEndOf(last->text))));
}

// What stands below the section's last key speaks of the section that follows.
void ThemeText::removeSection(const QString &section)
{
    for (auto line = m_lines.begin(); line != m_lines.end();) {
        if (!line->isHeader || line->section != section) {
            ++line;
            continue;
        }
        auto end = std::next(line);
        for (auto next = end; next != m_lines.end() && next->section == section;) {
            const bool isEntry = !next->key.isEmpty();
            ++next;
            if (isEntry)
                end = next;
        }
        while (end != m_lines.end() && end->text.trimmed().isEmpty())
            ++end;
        while (line != m_lines.begin() && std::prev(line)->text.startsWith(';'))
            --line;
        line = m_lines.erase(line, end);
    }
    m_entries.clear();
    m_ends.clear();
    for (auto line = m_lines.begin(); line != m_lines.end(); ++line)
        note(line);
}

} // namespace Maker

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/themefile.h>

#include <format/inisyntax.h>

#include <algorithm>

namespace
{

constexpr qint64 themeSizeLimit = qint64(16) * 1024 * 1024;

const char byteOrderMark[] = "\xEF\xBB\xBF";

// Turns offsets into lines and columns. A line end is CR, LF or CR LF, as editors count them.
class Lines
{
public:
    explicit Lines(const QByteArray &text)
        : m_text(text)
        , m_starts{text.startsWith(byteOrderMark) ? 3 : 0}
    {
        for (int i = 0; i < text.size(); ++i) {
            const bool isPair = text.at(i) == '\r' && i + 1 < text.size() && text.at(i + 1) == '\n';
            if ((text.at(i) == '\n' || text.at(i) == '\r') && !isPair)
                m_starts.append(i + 1);
        }
    }

    TextPosition position(int offset) const
    {
        const auto next = std::upper_bound(m_starts.cbegin(), m_starts.cend(), offset);
        const int start = next == m_starts.cbegin() ? 0 : *std::prev(next);
        const QString before = QString::fromUtf8(m_text.mid(start, offset - start));
        return {qMax(1, int(std::distance(m_starts.cbegin(), next))), int(before.size()) + 1};
    }

private:
    QByteArray m_text;
    QVector<int> m_starts;
};

QString sectionPrefix(const QByteArray &text, const IniSyntax::Line &line)
{
    const int bracket = int(text.indexOf(']', line.start));
    const bool isClosed = bracket >= 0 && bracket < line.end;
    const int end = isClosed ? bracket : line.end;
    const QByteArray name = text.mid(line.start + 1, end - line.start - 1).trimmed();
    if (qstricmp(name.constData(), "general") == 0)
        return {};
    if (qstricmp(name.constData(), "%general") == 0)
        return QString::fromLatin1(name.mid(1)) + QLatin1Char('/');
    return IniSyntax::unescapedKey(name) + QLatin1Char('/');
}

// QSettings passes over a byte order mark when it looks for headers, but not when it reads the
// entries in front of the first one: the mark becomes a part of a key that directly follows it.
int firstPosition(const QByteArray &text)
{
    if (!text.startsWith(byteOrderMark))
        return 0;
    const int behindMark = 3;
    int position = behindMark;
    IniSyntax::Line line;
    const bool isHeader = IniSyntax::nextLine(text, &position, &line) && text.at(line.start) == '[';
    return isHeader ? behindMark : 0;
}

ThemeFileEntry entryAt(const QByteArray &text, const IniSyntax::Line &line, const Lines &lines)
{
    int keyEnd = line.equals;
    while (keyEnd > line.start && (text.at(keyEnd - 1) == ' ' || text.at(keyEnd - 1) == '\t'))
        --keyEnd;
    int valueStart = line.equals + 1;
    while (valueStart < line.end && (text.at(valueStart) == ' ' || text.at(valueStart) == '\t'))
        ++valueStart;
    int valueEnd = line.end;
    while (valueEnd > valueStart && (text.at(valueEnd - 1) == ' ' || text.at(valueEnd - 1) == '\t'))
        --valueEnd;

    ThemeFileEntry entry;
    entry.rawKey = text.mid(line.start, keyEnd - line.start);
    entry.rawValue = text.mid(line.equals + 1, line.end - line.equals - 1);
    entry.keyPosition = lines.position(line.start);
    entry.valuePosition = lines.position(valueStart);
    entry.start = line.start;
    entry.valueStart = valueStart;
    entry.valueEnd = valueEnd;
    entry.end = line.end;
    return entry;
}

} // namespace

QString ThemeFileEntry::section() const
{
    return key.left(qMax(0, key.indexOf(QLatin1Char('/'))));
}

QString ThemeFileEntry::name() const
{
    return key.mid(key.indexOf(QLatin1Char('/')) + 1);
}

std::optional<ThemeFile> ThemeFile::read(const QString &path, QString *error)
{
    const std::optional<InputFile> input = InputFile::read(path, themeSizeLimit, error);
    if (!input)
        return std::nullopt;
    return fromInput(*input, error);
}

std::optional<ThemeFile> ThemeFile::fromContent(const QString &path, const QByteArray &content,
                                                QString *error)
{
    return fromInput(InputFile::fromContent(path, content), error);
}

std::optional<ThemeFile> ThemeFile::fromInput(const InputFile &input, QString *error)
{
    if (input.content().contains('\0')) {
        *error = input.path() % QLatin1String(": a binary file, not a theme file");
        return std::nullopt;
    }
    return ThemeFile(input);
}

ThemeFile::ThemeFile(const InputFile &input)
    : m_input(input)
{
    parse();
}

void ThemeFile::parse()
{
    const QByteArray text = m_input.content();
    const Lines lines(text);
    QString prefix;
    QVector<QString> sectionOfEntry;
    int position = firstPosition(text);
    IniSyntax::Line line;
    while (IniSyntax::nextLine(text, &position, &line)) {
        if (text.at(line.start) == '[') {
            prefix = sectionPrefix(text, line);
            m_sections.append({prefix.chopped(prefix.isEmpty() ? 0 : 1), lines.position(line.start),
                               line.start, line.end});
        } else if (line.equals < 0) {
            if (text.mid(line.start, line.end - line.start) == byteOrderMark)
                continue;
            m_skippedLines.append(lines.position(line.start));
        } else {
            ThemeFileEntry entry = entryAt(text, line, lines);
            entry.key = prefix + IniSyntax::unescapedKey(entry.rawKey);
            m_entries.append(entry);
            sectionOfEntry.append(prefix);
        }
    }
    settleDuplicates(sectionOfEntry);
}

void ThemeFile::settleDuplicates(const QVector<QString> &sectionOfEntry)
{
    for (int i = 0; i < m_entries.size(); ++i) {
        const QString key = m_entries.at(i).key;
        const int earlier = m_effective.value(key, -1);
        if (earlier < 0) {
            m_effective.insert(key, i);
        } else if (sectionOfEntry.at(earlier) <= sectionOfEntry.at(i)) {
            m_entries[earlier].isEffective = false;
            m_effective.insert(key, i);
        } else {
            m_entries[i].isEffective = false;
        }
    }
}

const ThemeFileEntry *ThemeFile::find(const QString &key) const
{
    const auto found = m_effective.constFind(key);
    return found == m_effective.cend() ? nullptr : &m_entries.at(*found);
}

bool ThemeFile::hasByteOrderMark() const
{
    return m_input.content().startsWith(byteOrderMark);
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/changedtext.h>

#include <analysis/theme/memorysettings.h>
#include <format/inisyntax.h>

#include <QSettings>
#include <QStringBuilder>

#include <algorithm>

namespace
{

QByteArray lineEndOf(const QByteArray &text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (IniSyntax::isLineEnd(text.at(i)))
            return text.mid(i, text.mid(i, 2) == "\r\n" ? 2 : 1);
    }
    return "\n";
}

QString sectionOf(const QString &key)
{
    return key.left(qMax(0, key.indexOf(QLatin1Char('/'))));
}

QString nameIn(const QString &section, const QString &key)
{
    return section.isEmpty() ? key : key.mid(section.size() + 1);
}

QByteArray headerOf(const QString &section)
{
    if (section.isEmpty())
        return "[General]";
    // The section that is really called so.
    if (section.compare(QLatin1String("general"), Qt::CaseInsensitive) == 0)
        return "[%" + section.toLatin1() + ']';
    return '[' + IniSyntax::escapedKey(section) + ']';
}

// QSettings leaves slashes out that have nothing between them.
bool isKey(const QString &key)
{
    const QLatin1Char slash('/');
    return !key.isEmpty() && !key.startsWith(slash) && !key.endsWith(slash)
        && !key.contains(QLatin1String("//"));
}

IniSyntax::Encoding encodingOf(const ThemeFile &file)
{
    return file.hasByteOrderMark() ? IniSyntax::Encoding::Utf8 : IniSyntax::Encoding::Escaped;
}

bool isValue(const QByteArray &content, const QString &key, const QString &value)
{
    MemorySettings memory(content);
    memory.settings().allKeys(); // else sections that a key does not seem to be in stay unread
    const QVariant found = memory.settings().value(key);
    return found.userType() == QMetaType::QString && found.toString() == value;
}

// Tells whether all entries of one text stand in the other, in their order and as they are written;
// those of the key do not count, nor do line ends behind a backslash that ends the file.
bool isRestTheSame(const ThemeFile &file, const ThemeFile &changed, const QString &key)
{
    using Entry = QPair<QString, QByteArray>;
    const auto rest = [&](const ThemeFile &ofFile) {
        QVector<Entry> entries;
        for (const ThemeFileEntry &entry : ofFile.entries()) {
            int size = int(entry.rawValue.size());
            while (size > 0 && IniSyntax::isLineEnd(entry.rawValue.at(size - 1)))
                --size;
            if (entry.key != key || !entry.isEffective)
                entries.append({entry.key, entry.rawValue.left(size)});
        }
        return entries;
    };
    return rest(file) == rest(changed);
}

bool isGood(const ThemeFile &file, const QByteArray &content, const QString &key,
            const QString &value)
{
    QString error;
    const auto changed = ThemeFile::fromContent(file.path(), content, &error);
    return changed && isRestTheSame(file, *changed, key) && isValue(content, key, value);
}

QByteArray withChangedValue(const ThemeFile &file, const ThemeFileEntry &entry,
                            const QString &value)
{
    QByteArray content = file.content();
    const int length = entry.valueEnd - entry.valueStart;
    const auto quotes = IniSyntax::isQuoted(content.mid(entry.valueStart, length))
        ? IniSyntax::Quotes::Always
        : IniSyntax::Quotes::AsNeeded;
    return content.replace(entry.valueStart, length,
                           IniSyntax::escapedValue(value, encodingOf(file), quotes));
}

// Returns where the last section of that name ends, its last entry or header, or -1.
int endOfSection(const ThemeFile &file, const QString &name)
{
    const QVector<ThemeFileSection> &sections = file.sections();
    int start = 0;
    int end = -1;
    int next = sections.isEmpty() ? int(file.content().size()) : sections.constFirst().start;
    const bool hasHead = name.isEmpty(); // entries before the first header
    for (int i = 0; i < sections.size(); ++i) {
        if (sections.at(i).name != name)
            continue;
        start = sections.at(i).start;
        end = sections.at(i).end;
        next = i + 1 < sections.size() ? sections.at(i + 1).start : int(file.content().size());
    }
    if (end < 0 && !hasHead)
        return -1;
    for (const ThemeFileEntry &entry : file.entries()) {
        if (entry.start >= start && entry.start < next)
            end = entry.end;
    }
    return end;
}

// Returns the text with a new entry, or nothing if what stands before takes it in.
std::optional<QByteArray> withNewKey(const ThemeFile &file, const QString &key,
                                     const QString &value)
{
    const QString section = sectionOf(key);
    const QByteArray lineEnd = lineEndOf(file.content());
    const QByteArray line = IniSyntax::escapedKey(nameIn(section, key)) + '='
        + IniSyntax::escapedValue(value, encodingOf(file), IniSyntax::Quotes::AsNeeded);
    const int end = endOfSection(file, section);
    const QByteArray text = file.content();
    const bool hasText = !file.entries().isEmpty() || !file.sections().isEmpty();
    const int position = end < 0 ? int(text.size()) : IniSyntax::behindLine(text, end);
    const bool endsLine = position > 0 && IniSyntax::isLineEnd(text.at(position - 1));
    QByteArray added = end < 0 ? headerOf(section) + lineEnd + line : line;
    if (end < 0 && hasText)
        added.prepend(lineEnd);
    if (endsLine || end < 0)
        added += lineEnd;
    // A line that a backslash continues takes another line end.
    const bool isInText = position > (file.hasByteOrderMark() ? 3 : 0);
    QByteArray before = endsLine || !isInText ? QByteArray() : lineEnd;
    for (int attempt = 0; attempt < 2; ++attempt, before += lineEnd) {
        QByteArray content = text;
        content.insert(position, before + added);
        if (isGood(file, content, key, value))
            return content;
    }
    return std::nullopt;
}

} // namespace

QMap<QString, QVariant> ChangedText::values(const QByteArray &content)
{
    QMap<QString, QVariant> values;
    MemorySettings memory(content);
    const QStringList keys = memory.settings().allKeys();
    for (const QString &key : keys) {
        if (isKey(key))
            values.insert(key, memory.settings().value(key));
    }
    return values;
}

std::optional<QByteArray> ChangedText::withValue(const ThemeFile &file, const QString &key,
                                                 const QString &value, QString *error)
{
    if (!isKey(key)) {
        *error = QStringLiteral("%1: no entry can be called \"%2\"").arg(file.path(), key);
        return std::nullopt;
    }
    const ThemeFileEntry *entry = file.find(key);
    if (entry && isValue(file.content(), key, value))
        return file.content();
    std::optional<QByteArray> content =
        entry ? withChangedValue(file, *entry, value) : withNewKey(file, key, value);
    if (content && isGood(file, *content, key, value))
        return content;
    *error = QStringLiteral("%1: \"%2\" cannot be set without changing other entries; look for a "
                            "quotation mark that is never closed")
                 .arg(file.path(), key);
    return std::nullopt;
}

QByteArray ChangedText::withoutKey(const ThemeFile &file, const QString &key)
{
    QByteArray content = file.content();
    const QVector<ThemeFileEntry> &entries = file.entries();
    for (auto entry = entries.crbegin(); entry != entries.crend(); ++entry) {
        if (entry->key != key)
            continue;
        int start = entry->start;
        int end = entry->end;
        if (end >= content.size() || content.at(end) != ';') {
            while (start > 0 && (content.at(start - 1) == ' ' || content.at(start - 1) == '\t'))
                --start;
            end = IniSyntax::behindLine(content, end);
        }
        content.remove(start, end - start);
    }
    return content;
}

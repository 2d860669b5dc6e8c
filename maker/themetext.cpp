// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <maker/themetext.h>

#include <QVector>

namespace Maker
{

namespace
{

QByteArray lineEndOf(const QByteArray &line)
{
    if (line.endsWith("\r\n"))
        return QByteArrayLiteral("\r\n");
    return line.endsWith('\n') ? QByteArrayLiteral("\n") : QByteArray();
}

QByteArray withValue(const QByteArray &line, const QString &value)
{
    return line.left(line.indexOf('=') + 1) + value.toLatin1() + lineEndOf(line);
}

} // namespace

ThemeText::ThemeText(const QByteArray &text)
{
    QString section;
    decltype(text.size()) start = 0;
    while (start < text.size()) {
        const auto end = text.indexOf('\n', start);
        const QByteArray whole = text.mid(start, end < 0 ? -1 : end + 1 - start);
        start += whole.size();
        const QByteArray line = whole.trimmed();
        QString key;
        if (line.startsWith('[') && line.endsWith(']'))
            section = QString::fromLatin1(line.mid(1, line.size() - 2));
        else if (!line.startsWith(';') && line.contains('='))
            key = QString::fromLatin1(line.left(line.indexOf('=')).trimmed());
        m_lines.append({whole, section, key});
    }
}

QByteArray ThemeText::text() const
{
    QByteArray text;
    for (const Line &line : m_lines)
        text += line.text;
    return text;
}

QStringList ThemeText::keys(const QString &section) const
{
    QStringList keys;
    for (const Line &line : m_lines) {
        if (line.section == section && !line.key.isEmpty() && !keys.contains(line.key))
            keys.append(line.key);
    }
    return keys;
}

QMap<QString, QString> ThemeText::values(const QString &section) const
{
    QMap<QString, QString> values;
    for (const Line &line : m_lines) {
        if (line.section == section && !line.key.isEmpty())
            values.insert(line.key, value(section, line.key));
    }
    return values;
}

int ThemeText::indexOf(const QString &section, const QString &key) const
{
    for (int i = int(m_lines.size()) - 1; i >= 0; --i) {
        if (m_lines.at(i).section == section && m_lines.at(i).key == key)
            return i;
    }
    return -1;
}

QString ThemeText::value(const QString &section, const QString &key) const
{
    const int index = indexOf(section, key);
    if (index < 0)
        return {};
    const QByteArray &line = m_lines.at(index).text;
    const QByteArray value = line.mid(line.indexOf('=') + 1).trimmed();
    return value.isEmpty() ? QStringLiteral("") : QString::fromLatin1(value);
}

void ThemeText::setValue(const QString &section, const QString &key, const QString &value)
{
    const int index = indexOf(section, key);
    if (index >= 0) {
        if (this->value(section, key) != value)
            m_lines[index].text = withValue(m_lines.at(index).text, value);
        return;
    }
    int last = -1;
    for (int i = 0; i < m_lines.size(); ++i) {
        const bool isContent = !m_lines.at(i).key.isEmpty() || m_lines.at(i).text.startsWith('[');
        if (m_lines.at(i).section == section && isContent)
            last = i;
    }
    const QByteArray entry = key.toLatin1() + '=' + value.toLatin1() + '\n';
    if (last < 0) {
        m_lines.append({"\n[" + section.toLatin1() + "]\n", section, QString()});
        last = int(m_lines.size()) - 1;
    }
    if (!m_lines.at(last).text.endsWith('\n'))
        m_lines[last].text += '\n';
    m_lines.insert(last + 1, {entry, section, key});
}

// What stands below the section's last key speaks of the section that follows.
void ThemeText::removeSection(const QString &section)
{
    const QByteArray header = '[' + section.toLatin1() + ']';
    for (int first = 0; first < m_lines.size(); ++first) {
        if (m_lines.at(first).text.trimmed() != header)
            continue;
        int last = first;
        for (int i = first; i < m_lines.size() && m_lines.at(i).section == section; ++i) {
            if (!m_lines.at(i).key.isEmpty())
                last = i;
        }
        while (last + 1 < m_lines.size() && m_lines.at(last + 1).text.trimmed().isEmpty())
            ++last;
        while (first > 0 && m_lines.at(first - 1).text.startsWith(';'))
            --first;
        m_lines.remove(first, last + 1 - first);
        --first;
    }
}

void ThemeText::setHeader(const QByteArray &comment)
{
    int first = 0;
    while (first < m_lines.size() && !m_lines.at(first).text.startsWith('['))
        ++first;
    m_lines = m_lines.mid(first);
    m_lines.prepend({comment, QString(), QString()});
}

} // namespace Maker

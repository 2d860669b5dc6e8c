// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <format/quotedurls.h>

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace
{

// Some others would do, but quotation marks do no harm.
bool isPlain(const QString &path)
{
    return std::all_of(path.begin(), path.end(), [](QChar c) {
        return c.unicode() < 0x80 && (c.isLetterOrNumber() || QStringLiteral("/:._-").contains(c));
    });
}

// Longest first, so that none is taken for the beginning of another.
QStringList strangePaths(const QVariantMap &values)
{
    QStringList paths;
    for (const QVariant &value : values) {
        const QString path = value.userType() == QMetaType::QString ? value.toString() : QString();
        if (!isPlain(path))
            paths.append(path);
    }
    paths.removeDuplicates();
    std::sort(paths.begin(), paths.end(),
              [](const QString &a, const QString &b) { return a.size() > b.size(); });
    return paths;
}

QString escaped(const QString &path)
{
    QString result;
    for (const QChar character : path) {
        if (character == u'\\') // Qt reads a text twice, and takes one away each time
            result += QLatin1String("\\00005c\\00005c");
        else if (QStringLiteral("\"'\n\r\f").contains(character))
            result += QLatin1Char('\\') + character;
        else
            result += character;
    }
    return result;
}

} // namespace

QString withQuotedUrls(const QString &styleSheet, const QVariantMap &values)
{
    QStringList alternatives = strangePaths(values);
    if (alternatives.isEmpty())
        return styleSheet;
    for (QString &path : alternatives)
        path = QRegularExpression::escape(path);
    const QRegularExpression anyPath(
        QStringLiteral("([\"']?)(%1)").arg(alternatives.join(QLatin1Char('|'))));

    QString result;
    int end = 0;
    for (auto matches = anyPath.globalMatch(styleSheet); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        // A template that writes quotation marks has the closing one as well.
        const QString mark = match.captured(1).isEmpty() ? QStringLiteral("\"") : QString();
        result += styleSheet.mid(end, int(match.capturedStart()) - end) + match.captured(1) + mark
            + escaped(match.captured(2)) + mark;
        end = int(match.capturedEnd());
    }
    return result + styleSheet.mid(end);
}

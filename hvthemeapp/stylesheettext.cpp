// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "stylesheettext.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTextStream>

namespace HV
{
namespace
{

Q_LOGGING_CATEGORY(lcStyleSheet, "hvtheme.app")

// Comments and texts come first, so that nothing in them is taken for a picture's path.
const QRegularExpression &urls()
{
    static const QRegularExpression expression(
        QStringLiteral(R"re(/\*.*?\*/|"(?:[^"\\]|\\.)*+"|'(?:[^'\\]|\\.)*+')re"
                       R"re(|\burl\(\s*+(?:"([^"\\]*+)"|'([^'\\]*+)'|([^"'()\\]*?))\s*\))re"),
        QRegularExpression::DotMatchesEverythingOption | QRegularExpression::CaseInsensitiveOption);
    return expression;
}

QString quoted(QString path)
{
    // Qt reads a text twice, and takes one backslash away each time.
    path.replace(QLatin1Char('\\'), QLatin1String("\\00005c\\00005c"));
    path.replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + path + QLatin1Char('"');
}

QString withPathsFrom(const QString &folder, const QString &text)
{
    QString result;
    int end = 0;
    for (auto matches = urls().globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString path = match.captured(match.lastCapturedIndex());
        if (match.lastCapturedIndex() == 0 || path.isEmpty() || !QFileInfo(path).isRelative())
            continue;
        result += text.mid(end, int(match.capturedStart()) - end) + QLatin1String("url(")
            + quoted(folder + QLatin1Char('/') + path) + QLatin1Char(')');
        end = int(match.capturedEnd());
    }
    return result + text.mid(end);
}

} // namespace

QString styleSheetText(const QString &styleSheet)
{
    const QLatin1String scheme("file:///");
    if (!styleSheet.startsWith(scheme))
        return styleSheet;
    const QString path = styleSheet.mid(scheme.size());
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcStyleSheet, "The application's style sheet \"%ls\" cannot be read: %ls.",
                  qUtf16Printable(path), qUtf16Printable(file.errorString()));
        return {};
    }
    return withPathsFrom(QFileInfo(path).absolutePath(), QTextStream(&file).readAll());
}

} // namespace HV

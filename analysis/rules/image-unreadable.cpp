// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/rules/rules.h>

#include <QFileInfo>
#include <QImageReader>

namespace
{

constexpr qint64 sizeLimit = qint64(32) * 1024 * 1024;

QString objection(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {}; // which is another rule's business
    if (info.isDir())
        return QStringLiteral("is a folder");
    if (!info.isFile())
        return QStringLiteral("is not a regular file");
    if (!QFile(path).open(QIODevice::ReadOnly))
        return QStringLiteral("cannot be opened");
    if (info.size() > sizeLimit)
        return QStringLiteral("is larger than 32 MB");
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    if (reader.read().isNull())
        return QStringLiteral("cannot be decoded: ") + reader.errorString();
    return {};
}

void check(const ThemeProject &project, Report &report)
{
    QHash<QString, QString> objections;
    for (const ThemeImage &image : themeImages(project)) {
        if (!objections.contains(image.path))
            objections.insert(image.path, objection(image.path));
        const QString text = objections.value(image.path);
        if (!text.isEmpty())
            report.addAtValue(*image.definition,
                              QStringLiteral("image file %1 %2").arg(image.path, text));
    }
}

} // namespace

namespace LintRules
{

extern const LintRule imageUnreadable{"image-unreadable", Severity::Error,
                                      "An image file cannot be read or decoded.", check};

} // namespace LintRules

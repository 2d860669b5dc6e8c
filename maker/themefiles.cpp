// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <maker/themefiles.h>

#include <format/themepath.h>
#include <maker/stagedfiles.h>

#include <QDir>
#include <QSet>

#include <algorithm>

namespace Maker
{

namespace
{

bool fail(const QString &message, QString *error)
{
    *error = message;
    return false;
}

} // namespace

bool writeThemeFiles(const QString &folder, const QVector<MadeFile> &files, bool overwrites,
                     QString *error, const QString &suffix)
{
    QSet<QString> fileNames;
    for (const MadeFile &file : files) {
        const QString name = file.fileName.toLower(); // not every disk tells letters' cases apart
        if (fileNames.contains(name))
            return fail(QDir(folder).filePath(file.fileName)
                            % QLatin1String(": two themes would be written to this file; name them "
                                            "apart"),
                        error);
        fileNames.insert(name);
    }
    QStringList present;
    for (const QString &name : listThemes(folder, suffix).names)
        present << themeFileName(name, suffix);
    if (!present.isEmpty() && !overwrites)
        return fail(folder % QLatin1String(": there are themes already (")
                        % present.join(QLatin1String(", "))
                        % QLatin1String("); name another folder, or write over them with --force"),
                    error);
    StagedFiles staged;
    return staged.makeFolder(folder, error)
        && std::all_of(files.cbegin(), files.cend(),
                       [&](const MadeFile &file) {
                           return staged.stage(QDir(folder).filePath(file.fileName), file.content,
                                               error);
                       })
        && staged.commit(error);
}

QString writtenFiles(const QString &folder, const MadeThemes &made)
{
    QString text;
    for (const MadeFile &file : made.files)
        text += QDir(folder).filePath(file.fileName) % QLatin1Char('\n');
    for (const QString &note : made.notes)
        text += QLatin1String("note: ") % note % QLatin1Char('\n');
    return text;
}

} // namespace Maker

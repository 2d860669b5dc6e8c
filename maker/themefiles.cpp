// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <maker/themefiles.h>

#include <format/themepath.h>
#include <maker/stagedfile.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <vector>

namespace Maker
{

namespace
{

bool fail(const QString &message, QString *error)
{
    *error = message;
    return false;
}

bool makeFolder(const QString &folder, QString *error)
{
    const QFileInfo info(folder);
    if (info.exists() && !info.isDir())
        return fail(folder % QLatin1String(": a file is in the way; name a folder"), error);
    errno = 0;
    if (info.isDir() || QDir().mkpath(folder))
        return true;
    const QString reason = errno != 0 ? QString::fromLocal8Bit(std::strerror(errno))
                                      : QStringLiteral("no reason given");
    return fail(folder % QLatin1String(": the folder cannot be made: ") % reason, error);
}

} // namespace

bool writeThemeFiles(const QString &folder, const QVector<MadeFile> &files, bool overwrites,
                     QString *error)
{
    QStringList present;
    for (const QString &name : listThemes(folder).names)
        present << themeFileName(name);
    if (!present.isEmpty() && !overwrites)
        return fail(folder % QLatin1String(": there are themes already (")
                        % present.join(QLatin1String(", "))
                        % QLatin1String("); name another folder, or write over them with --force"),
                    error);
    const bool isNew = !QFileInfo::exists(folder);
    if (!makeFolder(folder, error))
        return false;
    std::vector<std::unique_ptr<StagedFile>> staged;
    bool isDone = std::all_of(files.cbegin(), files.cend(), [&](const MadeFile &file) {
        staged.push_back(std::make_unique<StagedFile>(QDir(folder).filePath(file.fileName)));
        return staged.back()->stage(file.content, {}, error);
    });
    isDone = isDone && std::all_of(staged.cbegin(), staged.cend(), [&](const auto &file) {
                 return file->commit(error);
             });
    if (isDone)
        return true;
    staged.clear();
    if (isNew)
        QDir().rmdir(folder);
    return false;
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

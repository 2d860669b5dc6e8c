// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/themefiles.h>

#include <QDir>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <memory>
#include <vector>

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

// Files in the making; those that are not committed leave no trace.
class StagedFiles
{
public:
    bool stage(const QString &path, const QByteArray &content, QString *error)
    {
        auto file = std::make_unique<QSaveFile>(path);
        if (!file->open(QIODevice::WriteOnly) || file->write(content) != content.size()
            || !file->flush())
            return fail(path % QLatin1String(": cannot be written: ") % file->errorString(), error);
        m_files.push_back(std::move(file));
        return true;
    }

    bool commit(QString *error)
    {
        for (const auto &file : m_files) {
            if (!file->commit())
                return fail(file->fileName() % QLatin1String(": cannot be written: ")
                                % file->errorString(),
                            error);
        }
        return true;
    }

private:
    std::vector<std::unique_ptr<QSaveFile>> m_files;
};

} // namespace

bool writeThemeFiles(const QString &folder, const QVector<Maker::MadeFile> &files, bool overwrites,
                     QString *error)
{
    const QStringList present = QDir(folder).entryList({QStringLiteral("*.theme")}, QDir::Files);
    if (!present.isEmpty() && !overwrites)
        return fail(folder % QLatin1String(": there are themes already (")
                        % present.join(QLatin1String(", "))
                        % QLatin1String("); name another folder, or write over them with --force"),
                    error);
    const bool isNew = !QFileInfo::exists(folder);
    if (!makeFolder(folder, error))
        return false;
    StagedFiles staged;
    const bool isStaged =
        std::all_of(files.cbegin(), files.cend(), [&](const Maker::MadeFile &file) {
            return staged.stage(QDir(folder).filePath(file.fileName), file.content, error);
        });
    if (isStaged && staged.commit(error))
        return true;
    if (isNew)
        QDir().rmdir(folder);
    return false;
}

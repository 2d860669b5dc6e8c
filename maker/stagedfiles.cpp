// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <maker/stagedfiles.h>

#include <format/printabletext.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

namespace Maker
{

StagedFiles::~StagedFiles()
{
    m_files.clear();
    for (const QString &folder : qAsConst(m_folders))
        QDir().rmdir(folder);
}

bool StagedFiles::makeFolder(const QString &folder, QString *error)
{
    const QFileInfo info(folder);
    if (info.exists() && !info.isDir()) {
        *error = folder % QLatin1String(": a file is in the way; name a folder");
        return false;
    }
    for (QString path = info.absoluteFilePath(); !QFileInfo::exists(path);) {
        m_folders.append(path);
        const QString above = QFileInfo(path).path();
        if (above == path)
            break;
        path = above;
    }
    errno = 0;
    if (info.isDir() || QDir().mkpath(folder))
        return true;
    const QString reason = errno != 0 ? systemReason(errno) : QStringLiteral("no reason given");
    *error = folder % QLatin1String(": the folder cannot be made: ") % reason;
    return false;
}

bool StagedFiles::stage(const QString &path, const QByteArray &content, QString *error)
{
    m_files.push_back(std::make_unique<StagedFile>(path));
    return m_files.back()->stage(content, {}, error);
}

bool StagedFiles::commit(QString *error)
{
    const auto keepOld = [&](const auto &file) { return file->keepOld(error); };
    if (!std::all_of(m_files.cbegin(), m_files.cend(), keepOld))
        return false;
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        if ((*file)->commit(error))
            continue;
        const auto takeBack = [](const auto &earlier) { return earlier->takeBack(); };
        if (std::count_if(m_files.cbegin(), file, takeBack)
            != std::distance(m_files.cbegin(), file))
            *error += QLatin1String("; files that were written before it could not be put back");
        return false;
    }
    m_folders.clear();
    return true;
}

} // namespace Maker

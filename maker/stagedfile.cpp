// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <maker/stagedfile.h>

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace Maker
{

namespace
{

QString systemReason(int number)
{
    return QString::fromLocal8Bit(std::generic_category().message(number).c_str());
}

bool isSameFile(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool isAmong(const struct stat &file, const QStringList &others)
{
    return std::any_of(others.cbegin(), others.cend(), [&](const QString &other) {
        struct stat status = {};
        return ::stat(QFile::encodeName(other).constData(), &status) == 0
            && isSameFile(status, file);
    });
}

// Makes the new file as much like the old one as it can be; other names of it would keep the old
// content.
bool canReplace(int newFile, const struct stat &old)
{
    return old.st_nlink == 1 && ::fchown(newFile, old.st_uid, old.st_gid) == 0
        && ::fchmod(newFile, old.st_mode & 07777) == 0;
}

bool writeAll(int file, const QByteArray &content)
{
    for (qint64 written = 0; written < content.size();) {
        const ssize_t count =
            ::write(file, content.constData() + written, size_t(content.size() - written));
        if (count < 0 && errno != EINTR)
            return false;
        written += qMax(count, ssize_t(0));
    }
    return ::ftruncate(file, content.size()) == 0;
}

// Returns 0 or the number of the error. Room is made first: a full disk leaves the file as it was.
int writeInPlace(const QString &path, const QByteArray &content)
{
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
    if (file < 0)
        return errno;
    int error = content.isEmpty() ? 0 : ::posix_fallocate(file, 0, content.size());
    if (error == EOPNOTSUPP || error == EINVAL)
        error = 0; // this file system cannot
    if (error == 0 && !writeAll(file, content))
        error = errno;
    if (::close(file) != 0 && error == 0)
        error = errno;
    return error;
}

} // namespace

struct StagedFile::Old {
    struct stat status = {};
    bool isThere = false;
};

StagedFile::StagedFile(const QString &path)
    : m_path(path)
    , m_old(std::make_unique<Old>())
{
}

StagedFile::~StagedFile() = default;

bool StagedFile::fail(const QString &reason, QString *error) const
{
    *error = m_path % QLatin1String(": ") % reason;
    return false;
}

bool StagedFile::stage(const QByteArray &content, const QStringList &inputs, QString *error)
{
    m_old->isThere = ::stat(QFile::encodeName(m_path).constData(), &m_old->status) == 0;
    if (m_old->isThere && !S_ISREG(m_old->status.st_mode))
        return fail(QStringLiteral("not a regular file, so it is not replaced"), error);
    if (m_old->isThere && isAmong(m_old->status, inputs))
        return fail(
            QStringLiteral("read by this very command, so it is not replaced; name another file"),
            error);
    m_content = content;
    m_file.setFileName(m_old->isThere ? QFileInfo(m_path).canonicalFilePath() : m_path);
    if (!m_file.open(QIODevice::WriteOnly))
        return fail(m_file.errorString(), error);
    // Not through the file's own write(), which has no reason to tell when the disk is full.
    if (!writeAll(m_file.handle(), content))
        return fail(systemReason(errno), error);
    return true;
}

bool StagedFile::commit(QString *error)
{
    if (m_old->isThere && !canReplace(m_file.handle(), m_old->status)) {
        m_file.cancelWriting();
        const int number = writeInPlace(m_file.fileName(), m_content);
        return number == 0 || fail(systemReason(number), error);
    }
    return m_file.commit() || fail(m_file.errorString(), error);
}

bool writeFile(const QString &path, const QByteArray &content, const QStringList &inputs,
               QString *error)
{
    StagedFile file(path);
    return file.stage(content, inputs, error) && file.commit(error);
}

} // namespace Maker

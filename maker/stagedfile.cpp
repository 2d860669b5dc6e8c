// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <maker/stagedfile.h>

#include <format/printabletext.h>

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace Maker
{

namespace
{

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

// Each call says how much it did; 0 bytes of a read is the end.
template<typename Transfer>
bool transferAll(qint64 size, Transfer transfer)
{
    for (qint64 done = 0; done < size;) {
        const ssize_t count = transfer(done, size_t(size - done));
        if (count < 0 && errno != EINTR)
            return false;
        if (count == 0) {
            errno = EIO;
            return false;
        }
        done += qMax(count, ssize_t(0));
    }
    return true;
}

bool writeAll(int file, const QByteArray &content)
{
    return transferAll(content.size(),
                       [&](qint64 done, size_t rest) {
                           return ::pwrite(file, content.constData() + done, rest, done);
                       })
        && ::ftruncate(file, content.size()) == 0;
}

bool readAll(int file, QByteArray *content)
{
    struct stat status = {};
    if (::fstat(file, &status) != 0)
        return false;
    if (status.st_size > std::numeric_limits<int>::max()) {
        errno = EFBIG;
        return false;
    }
    content->resize(int(status.st_size));
    return transferAll(status.st_size, [&](qint64 done, size_t rest) {
        return ::pread(file, content->data() + done, rest, done);
    });
}

// Returns 0 or the number of the error. Room is made first, for a full disk is the likeliest one.
int tryInPlace(int file, const QByteArray &content)
{
    const int error = content.isEmpty() ? 0 : ::posix_fallocate(file, 0, content.size());
    if (error != 0 && error != EOPNOTSUPP && error != EINVAL) // this file system cannot
        return error;
    return writeAll(file, content) ? 0 : errno;
}

} // namespace

struct StagedFile::Old {
    struct stat status = {};
    bool isThere = false;
    int file = -1; // open where it is written in place
    std::optional<QByteArray> content; // if it may have to come back
    bool isReplaced = false;
};

StagedFile::StagedFile(const QString &path)
    : m_path(path)
    , m_old(std::make_unique<Old>())
{
}

StagedFile::~StagedFile()
{
    if (m_old->file >= 0)
        ::close(m_old->file);
}

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
    if (!m_old->isThere || canReplace(m_file.handle(), m_old->status))
        return true;
    m_file.cancelWriting();
    m_old->file =
        ::open(QFile::encodeName(m_file.fileName()).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    return m_old->file >= 0 || fail(systemReason(errno), error);
}

bool StagedFile::writeInPlace(QString *error)
{
    const int number = tryInPlace(m_old->file, m_content);
    if (number == 0)
        return true;
    const bool isAsBefore = writeAll(m_old->file, *m_old->content);
    return fail(isAsBefore ? systemReason(number)
                           : QString(systemReason(number)
                                     % QLatin1String("; what was in it could not be put back")),
                error);
}

bool StagedFile::keepOld(QString *error)
{
    if (!m_old->isThere || m_old->content)
        return true;
    const int file = m_old->file >= 0 ? m_old->file
                                      : ::open(QFile::encodeName(m_file.fileName()).constData(),
                                               O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QByteArray content;
    const bool isRead = file >= 0 && readAll(file, &content);
    const int number = errno;
    if (file >= 0 && file != m_old->file)
        ::close(file);
    if (!isRead)
        return fail(systemReason(number), error);
    m_old->content = content;
    return true;
}

bool StagedFile::commit(QString *error)
{
    m_old->isReplaced = m_old->file >= 0 ? keepOld(error) && writeInPlace(error)
                                         : m_file.commit() || fail(m_file.errorString(), error);
    return m_old->isReplaced;
}

bool StagedFile::takeBack()
{
    if (!m_old->isReplaced)
        return true;
    m_old->isReplaced = false;
    if (!m_old->isThere)
        return QFile::remove(m_file.fileName());
    if (m_old->file >= 0)
        return writeAll(m_old->file, *m_old->content);
    QString error;
    StagedFile former(m_file.fileName());
    return m_old->content && former.stage(*m_old->content, {}, &error) && former.commit(&error);
}

bool writeFile(const QString &path, const QByteArray &content, const QStringList &inputs,
               QString *error)
{
    StagedFile file(path);
    return file.stage(content, inputs, error) && file.commit(error);
}

} // namespace Maker

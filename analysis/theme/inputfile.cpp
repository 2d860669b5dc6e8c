// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/inputfile.h>

#include <format/printabletext.h>
#include <format/themepath.h>

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

QByteArray stampOf(const struct stat &status)
{
    return QByteArray::number(qulonglong(status.st_dev)) + ' '
        + QByteArray::number(qulonglong(status.st_ino)) + ' '
        + QByteArray::number(qlonglong(status.st_size)) + ' '
        + QByteArray::number(qlonglong(status.st_mtim.tv_sec)) + ' '
        + QByteArray::number(qlonglong(status.st_mtim.tv_nsec));
}

class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    {
    }
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Q_DISABLE_COPY_MOVE(Descriptor)
    int number() const { return m_number; }

private:
    int m_number;
};

QString tooLarge(const QString &path, qint64 limit)
{
    return path % QLatin1String(": larger than ") % QString::number(limit / 1024 / 1024)
        % QLatin1String(" MB, which no file of this kind is");
}

// Returns all, or a byte more than the limit. Takes no more memory than the file needs, and no size
// for granted: files of the system have none.
QByteArray contentOf(QFile *file, qint64 limit)
{
    constexpr qint64 smallestRead = qint64(64) * 1024;
    const qint64 most = qMax(smallestRead, file->size() + 1);
    QByteArray content;
    while (content.size() <= limit) {
        const QByteArray part = file->read(qMin(most, limit + 1 - content.size()));
        if (part.isEmpty())
            break;
        content += part;
    }
    return content;
}

} // namespace

std::optional<InputFile> InputFile::read(const QString &path, qint64 limit, QString *error)
{
    InputFile input;
    input.m_path = path;
    QFile file(path);
    // Opened without blocking and looked at through the descriptor: opening a pipe that nobody
    // writes to would wait for ever, and a test before the opening could be outrun.
    const Descriptor descriptor(isResourcePath(path) ? -1
                                                     : ::open(QFile::encodeName(path).constData(),
                                                              O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (isResourcePath(path)) {
        if (!file.open(QIODevice::ReadOnly)) {
            *error = path % QLatin1String(": ") % file.errorString();
            return std::nullopt;
        }
    } else {
        struct stat status = {};
        if (descriptor.number() < 0 || ::fstat(descriptor.number(), &status) != 0) {
            *error = path % QLatin1String(": ") % systemReason(errno);
            return std::nullopt;
        }
        if (!S_ISREG(status.st_mode)) {
            *error = path % QLatin1String(": not a regular file");
            return std::nullopt;
        }
        if (status.st_size > limit) {
            *error = tooLarge(path, limit);
            return std::nullopt;
        }
        input.m_stamp = stampOf(status);
        if (!file.open(descriptor.number(), QIODevice::ReadOnly, QFile::DontCloseHandle)) {
            *error = path % QLatin1String(": ") % file.errorString();
            return std::nullopt;
        }
    }
    input.m_content = contentOf(&file, limit);
    if (file.error() != QFileDevice::NoError) {
        *error = path % QLatin1String(": ") % file.errorString();
        return std::nullopt;
    }
    if (input.m_content.size() > limit) {
        *error = tooLarge(path, limit);
        return std::nullopt;
    }
    return input;
}

InputFile InputFile::fromContent(const QString &path, const QByteArray &content)
{
    InputFile input;
    input.m_path = path;
    input.m_content = content;
    return input;
}

bool InputFile::isUnchanged() const
{
    if (m_stamp.isEmpty()) // no file on disk
        return true;
    struct stat status = {};
    return ::stat(QFile::encodeName(m_path).constData(), &status) == 0
        && stampOf(status) == m_stamp;
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_THEME_INPUTFILE_H
#define ANALYSIS_THEME_INPUTFILE_H

#include <QByteArray>
#include <QString>

#include <optional>

/*!
 * \brief The bytes of one file, read once and safely, and what the file was at that moment.
 *
 * Only regular files and resources (`:/…`) are read, and never more than a limit, so that a named
 * pipe, a device or a disk image named by mistake ends in one line of explanation.
 */
class InputFile
{
public:
    /*!
     * \brief Reads the file at \a path whole.
     *
     * \param limit  the largest size in bytes that is accepted.
     * \param error  set to one sentence that names the file if nothing is returned.
     */
    static std::optional<InputFile> read(const QString &path, qint64 limit, QString *error);

    /*! \brief Returns \a content as if it had been read at \a path: what an editor has not saved. */
    static InputFile fromContent(const QString &path, const QByteArray &content);

    QString path() const { return m_path; }
    QByteArray content() const { return m_content; }

    /*! \brief Tells whether the file still is the one that was read: same inode, size and time. */
    bool isUnchanged() const;

private:
    InputFile() = default;

    QString m_path;
    QByteArray m_content;
    QByteArray m_stamp;
};

#endif

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_STAGEDFILE_H
#define MAKER_STAGEDFILE_H

#include <QByteArray>
#include <QSaveFile>
#include <QStringList>

#include <memory>

namespace Maker
{

/*!
 * \brief A file that is written beside its place first and then put there: whole or not at all.
 *
 * Nobody ever reads a half, with one exception. A file that is there keeps its owner, its permissions
 * and its links, so one with several names, or of another user, is written in place: who reads it at
 * that moment may find it half, and a crash leaves it so. The disk makes room for all of it first,
 * and if anything fails it gets its old bytes back. Only a regular file is replaced, never a device.
 * What is not committed leaves no trace.
 */
class StagedFile
{
public:
    explicit StagedFile(const QString &path);
    ~StagedFile();
    Q_DISABLE_COPY_MOVE(StagedFile)

    /*!
     * \brief Writes \a content beside the place.
     *
     * \param inputs  files that the content was made from; none of them is overwritten, by whatever
     *                name.
     * \return false if that cannot be, or if it is known already that commit() could not; \a error is
     *         then one sentence that says why.
     */
    bool stage(const QByteArray &content, const QStringList &inputs, QString *error);

    /*! \brief Puts in its place what was staged; result and \a error as above. */
    bool commit(QString *error);

    /*! \brief Reads what is in the place, so that takeBack() can put it there again; before commit(). */
    bool keepOld(QString *error);

    /*! \brief Undoes commit(); needs keepOld(). \return false if that cannot be. */
    bool takeBack();

private:
    struct Old;

    bool writeInPlace(QString *error);

    bool fail(const QString &reason, QString *error) const;

    const QString m_path;
    QByteArray m_content;
    QSaveFile m_file;
    std::unique_ptr<Old> m_old;
};

/*! \brief Stages and commits \a content as the file at \a path. */
bool writeFile(const QString &path, const QByteArray &content, const QStringList &inputs,
               QString *error);

} // namespace Maker

#endif

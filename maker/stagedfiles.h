// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef MAKER_STAGEDFILES_H
#define MAKER_STAGEDFILES_H

#include <maker/stagedfile.h>

#include <vector>

namespace Maker
{

/*!
 * \brief Files that are written together, and the folder they are in: all of them or none.
 *
 * What cannot be written is found out before the first file is put in its place. If a later one fails
 * all the same, the earlier ones are put back, and folders that were made are removed again.
 */
class StagedFiles
{
public:
    StagedFiles() = default;
    ~StagedFiles();
    Q_DISABLE_COPY_MOVE(StagedFiles)

    /*!
     * \brief Makes \a folder and all above it that is not there.
     *
     * \return false if that cannot be; \a error is then one sentence that says why.
     */
    bool makeFolder(const QString &folder, QString *error);

    /*! \brief Writes \a content beside \a path; result and \a error as above. */
    bool stage(const QString &path, const QByteArray &content, QString *error);

    /*! \brief Puts all in their places; result and \a error as above. */
    bool commit(QString *error);

private:
    std::vector<std::unique_ptr<StagedFile>> m_files;
    QStringList m_folders; // that were made, the deepest first
};

} // namespace Maker

#endif

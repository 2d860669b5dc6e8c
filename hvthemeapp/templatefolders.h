// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_TEMPLATEFOLDERS_H
#define HVTHEMEAPP_TEMPLATEFOLDERS_H

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

namespace HV
{

class Theme;

/*! \brief The templates that a look is made of: the library's, then those of an application's own
 *         folders in the order in which they were added. Internal. */
class TemplateFolders
{
public:
    void add(const QString &folder, const QString &prefix);

    /*! \brief The folders that were added. */
    QStringList folders() const;

    /*! \brief The files that these have now. */
    QStringList files() const;

    /*! \brief The files that styleSheet() reads, in their order, and what their tokens begin with. */
    QVector<QPair<QString, QString>> sources(bool keepsFonts) const;

    /*! \brief What keeps one of these from being read, in a sentence; empty if nothing does. */
    QString problem() const;

    /*! \brief The style sheet; \a keepsFonts leaves out the template whose rules are for every widget. */
    QString styleSheet(Theme *theme, bool keepsFonts) const;

private:
    struct Folder {
        QString path;
        QString prefix;
    };
    QVector<Folder> m_folders;
};

} // namespace HV

#endif // HVTHEMEAPP_TEMPLATEFOLDERS_H

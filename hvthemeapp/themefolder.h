// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_THEMEFOLDER_H
#define HVTHEMEAPP_THEMEFOLDER_H

#include <QString>
#include <QStringList>

namespace HV
{

/*! \brief What a folder of theme files has to offer. Reads files anew at each call. Internal. */
class ThemeFolder
{
public:
    /*! \brief The folder inside the library. */
    ThemeFolder();

    /*! \brief The files of \a path that end in \a suffix; those inside the library have their own. */
    ThemeFolder(const QString &path, const QString &suffix);

    /*! \brief The folder `themes` beside the executable if it has a default file, else the built-in
     *         one. Needs a QCoreApplication; without one it is the built-in folder. */
    static ThemeFolder usual(const QString &suffix);

    /*! \brief What keeps \a path from being taken for a text, in a phrase; empty if nothing does: it
     *         is no file, cannot be read, is larger than 4 MiB or has a byte 0. */
    static QString problemOfText(const QString &path);

    QString path() const { return m_path; }
    QString suffix() const { return m_suffix; }

    /*! \brief The path of the theme \a name, whether it exists or not. */
    QString file(const QString &name) const;
    QString defaultFile() const;

    /*! \brief What keeps the folder from having themes, in a sentence; empty if nothing does. */
    QString problem() const;

    /*! \brief What keeps \a name from being read, in a sentence; empty if nothing does. */
    QString problemOf(const QString &name) const;

    /*! \brief The themes that make a look, sorted. The default file is one only if it has colours, or
     *         if it is alone. */
    QStringList names() const;

    /*! \brief The `ThemeName` of a theme; its name if it has none. */
    QString displayName(const QString &name) const;

private:
    QString m_path;
    QString m_suffix;
};

inline bool operator==(const ThemeFolder &one, const ThemeFolder &other)
{
    return one.path() == other.path() && one.suffix() == other.suffix();
}

} // namespace HV

#endif // HVTHEMEAPP_THEMEFOLDER_H

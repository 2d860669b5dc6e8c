// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_APPLIEDTHEME_H
#define GALLERY_APPLIEDTHEME_H

#include <hvthemeapp/applicationtheme.h>

#include <QColor>
#include <QHash>
#include <QPair>
#include <QStringList>
#include <QVector>

#include <memory>

class InspectedSheet;
class ThemeProject;

namespace Gallery
{

/*! \brief What keeps a theme from being shown; the values are exit codes of the screenshots. */
enum class Problem {
    None = 0,
    ThemesFolder = 2, //!< missing, or without a default file that can be read
    ThemeName = 3, //!< no such theme, or one that cannot be read
    Templates = 4, //!< a folder of extra templates is missing, or a template cannot be read
    Form = 5, //!< the form cannot be read
    Image = 6, //!< an image of the theme does not decode
    Output = 7, //!< a picture cannot be written
    Endless = 8, //!< a value reproduces its own token, so the style sheet would never be done
};

/*! \brief Where a theme and its style sheet come from. */
struct ThemeSource {
    QString themesFolder;
    QString themeName;
    QStringList templateFolders; //!< read in this order after the built-in templates
    QString applicationFolder = {}; //!< which image paths start from; empty: this program's
};

/*! \brief Returns the themes of \a folder that can be shown by themselves, sorted; may be empty. */
QStringList themeNames(const QString &folder);

/*! \brief Tells, with one critical message, if the themes folder of \a source cannot be one. */
Problem checkThemesFolder(const ThemeSource &source);

/*!
 * \brief The look that the program has now, and what is wrong with one that it should have.
 *
 * What a program takes on trust is looked at before, with a message that a designer can act on, and
 * what would be waited for without end is refused. Looks change as a whole or not at all: a source with a Problem leaves the last good ones.
 */
class AppliedTheme final : public QObject
{
    Q_OBJECT

public:
    explicit AppliedTheme(QObject *parent = nullptr);
    ~AppliedTheme() override;

    /*!
     * \brief Reads \a source and, if it is sound, applies it to the program.
     *
     * \return what is wrong with it, after one critical message that says what, where and what to
     *         do. What the library itself logs about a theme is no problem in this sense.
     */
    Problem load(const ThemeSource &source);

    /*! \brief Tells whether a load() has ever been without a problem. */
    bool isLoaded() const { return m_isLoaded; }

    /*! \brief Returns the theme of the last good load(); never null, empty before there was one. */
    HV::Theme *theme() const { return m_look.theme(); }

    /*! \brief Returns the files of the last load() that could be read, good or not; may be null. */
    const ThemeProject *project() const { return m_project.get(); }

    /*! \brief Returns the palette of that project's theme, in its order. */
    QVector<QPair<QString, QColor>> palette() const;

    /*! \brief Returns the style sheet in force, with images from where the last load() had them; never
     *         null. */
    std::unique_ptr<InspectedSheet> inspectedSheet() const;

    /*! \brief Returns the files \a source was last read from, the images included. */
    QStringList files() const { return m_files; }

    /*!
     * \brief Returns where the theme says what a message of the library is about.
     *
     * \return `FILE:LINE` for each definition of a key that \a message quotes, separated by commas;
     *         empty if the message is about something else.
     */
    QString placesFor(const QString &message) const;

Q_SIGNALS:
    /*! \brief Somebody else gave the program the theme \a name of \a folder. */
    void left(const QString &folder, const QString &name);

private:
    Problem readProject(const ThemeSource &source);
    Problem apply(const ThemeSource &source);
    void showChangesWithImagesFrom(const QString &applicationFolder);

    HV::ApplicationTheme m_look;
    QStringList m_templateFolders; //!< that m_look has already
    QString m_applicationFolder; //!< of the last load(); empty: this program's
    QHash<QString, QByteArray> m_texts; //!< of theme files of another application, by path
    std::unique_ptr<ThemeProject> m_project; //!< of the last load(), good or not; may be null
    QString m_name; //!< in m_project
    QPair<QString, QString> m_applied; //!< folder and name that the last load() left m_look with
    QStringList m_files;
    bool m_isLoaded = false;
};

} // namespace Gallery

#endif

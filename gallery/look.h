// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_LOOK_H
#define GALLERY_LOOK_H

#include <hvtheme/workabletheming.h>

#include <QObject>
#include <QStringList>

#include <memory>

namespace Gallery
{

/*! \brief What keeps a look from being shown; the values are exit codes of the screenshots. */
enum class Problem {
    None = 0,
    ThemesFolder = 2, //!< missing, or without a default file that can be read
    ThemeName = 3, //!< no such theme
    Templates = 4, //!< a folder of extra templates is missing
    Form = 5, //!< the form cannot be read
    Image = 6, //!< an image of the theme does not decode
    Output = 7 //!< a picture cannot be written
};

/*! \brief Where a look comes from. */
struct LookSource {
    QString themesFolder;
    QString themeName;
    QStringList templateFolders; //!< read in this order after the built-in templates
};

/*! \brief Returns the themes of \a folder that make a look of their own, sorted; may be empty. */
QStringList themeNames(const QString &folder);

/*!
 * \brief The theme and the style sheet that the program shows now.
 *
 * A look changes as a whole or not at all: one that has a Problem leaves the last good one.
 */
class Look final : public QObject
{
    Q_OBJECT

public:
    explicit Look(QObject *parent = nullptr);
    ~Look() override;

    /*!
     * \brief Reads \a source and, if it is sound, makes it the look of the program.
     *
     * \return what is wrong with it, after one critical message that says what, where and what to
     *         do. What the library itself logs about a theme is no problem in this sense.
     */
    Problem load(const LookSource &source);

    /*! \brief Returns the theme of the last good look; never null, empty before there was one. */
    HV::Theme *theme() const { return m_theme.get(); }

    /*! \brief Returns the files \a source was last read from, the images included. */
    QStringList files() const { return m_files; }

private:
    void apply(const LookSource &source);

    std::unique_ptr<HV::Theme> m_theme;
    QStringList m_files;
};

} // namespace Gallery

#endif

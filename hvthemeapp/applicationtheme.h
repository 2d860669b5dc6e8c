// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_APPLICATIONTHEME_H
#define HVTHEMEAPP_APPLICATIONTHEME_H

#include <hvthemeapp/hvthemeapp_export.h>

#include <QColor>
#include <QHash>
#include <QObject>
#include <QPair>
#include <QStringList>
#include <QVector>

#include <memory>

class QMenu;
class QPalette;
class QSettings;
class QWidget;

namespace HV
{

class Theme;

/*!
 * \brief The look of a whole application: a theme, and the palette, icons and style sheet made of it.
 *
 * ```cpp
 * QApplication app(argc, argv);
 * HV::ApplicationTheme theme; // dark, light and contrast are inside the library
 * theme.followDesktop();      // or theme.setName("dark")
 * ```
 *
 * A look changes as a whole or not at all. What keeps a new one from coming into force leaves the last
 * good one, makes the function return false, and is told in one sentence: by problem(), and once as a
 * warning of the category `hvtheme.app`. A theme that is complete logs nothing.
 *
 * A style sheet that the application has set itself, or the text of the file that it or the option
 * `-stylesheet` names, comes after the one of the look and stays. What
 * the application sets later replaces all; it is joined with the look again at the next change, or by
 * restyleAgain().
 *
 * Use it on the GUI thread. It may be made before the QApplication and outlive it; a look needs one.
 * An application has one look: of several objects the last one that set it has it, and the others no
 * longer react to files and the desktop until they set it again. Deleting the object leaves the look
 * as it is, but for text that is lifted.
 */
class HVTHEMEAPP_EXPORT ApplicationTheme : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QString folder READ folder WRITE setFolder NOTIFY folderChanged)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix NOTIFY suffixChanged)
    Q_PROPERTY(QStringList names READ names NOTIFY folderChanged)
    Q_PROPERTY(bool followsDesktop READ followsDesktop WRITE setFollowsDesktop NOTIFY
                   followsDesktopChanged)
    Q_PROPERTY(QColor accent READ accent WRITE setAccent RESET resetAccent NOTIFY accentChanged)
    Q_PROPERTY(
        bool followsAccent READ followsAccent WRITE setFollowsAccent NOTIFY followsAccentChanged)
    Q_PROPERTY(bool keepsFonts READ keepsFonts WRITE setKeepsFonts NOTIFY keepsFontsChanged)
    Q_PROPERTY(bool liftsText READ liftsText WRITE setLiftsText NOTIFY liftsTextChanged)
    Q_PROPERTY(bool liveReload READ isLiveReload WRITE setLiveReload NOTIFY liveReloadChanged)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)

public:
    explicit ApplicationTheme(QObject *parent = nullptr);

    /*! \brief Reads themes into \a theme, an object of a class with a vocabulary of its own (see
     *         WorkableTheme) or any other; must not be null. */
    explicit ApplicationTheme(std::unique_ptr<Theme> theme, QObject *parent = nullptr);
    ~ApplicationTheme() override;

    /*!
     * \brief Returns the folder that themes are taken from.
     *
     * At first the folder `themes` beside the executable, if it has a `default.theme` (or whatever
     * suffix() is), else the one inside the library.
     */
    QString folder() const;

    /*!
     * \brief Takes themes from \a folder; a null or empty text chooses as at first.
     *
     * If a look is in force, the theme of the same name (the one that fits, if the desktop is
     * followed) comes into force; if the folder has none, the look stays until the next setName().
     *
     * \return false, with a problem(), for a folder that is missing or has no default file that can
     *         be read, or a theme that cannot; folder() and the look then stay.
     */
    bool setFolder(const QString &folder);

    /*! \brief Returns what the names of theme files end in, without the dot; "theme" at first. */
    QString suffix() const;

    /*!
     * \brief Takes for themes the files of folder() that end in \a suffix; a null or empty text is
     *        "theme".
     *
     * Upper and lower case differ. The themes inside the library are there whatever it is, so a program
     * sets the suffix first and then a folder of its own. If a look is in force, the same happens as in
     * setFolder(). An exchange of one folder for another with another suffix leads over
     * setFolder(QString()).
     *
     * \return false, with a problem(), if the folder has no `default.<suffix>` that can be read, or the
     *         theme cannot; suffix() and the look then stay.
     */
    bool setSuffix(const QString &suffix);

    /*! \brief Returns the themes that folder() has now, sorted. A default file is one of them only if
     *         it has colours or is alone. */
    QStringList names() const;

    /*! \brief Returns what people call the theme \a name of folder(): its `ThemeName`. */
    Q_INVOKABLE QString displayName(const QString &name) const;

    /*! \brief Returns the name of the look in force; null before the first. */
    QString name() const;

    /*!
     * \brief Gives the application the look \a name and follows the desktop no longer.
     *
     * During a paint event or another change of the look, here as in every function that changes it,
     * that happens as the event loop goes on.
     *
     * \return whether the application has the look, or will have it then.
     */
    bool setName(const QString &name);

    /*!
     * \brief Gives the application the look that fits the desktop, now and whenever that changes.
     *
     * Dark, light or high contrast as the user set it there, see DesktopSettings; which theme is which
     * its flags `DarkSurfaces` and `HighContrast` say, else its name. Never waits for the desktop.
     *
     * \return whether a look is in force that fits.
     */
    bool followDesktop();

    /*! \brief Returns whether the desktop is followed. */
    bool followsDesktop() const;

    /*! \brief Begins as followDesktop() does, or ends it; the look stays what it is. */
    void setFollowsDesktop(bool follows);

    /*! \brief Returns the colour that takes the place of a theme's brand; invalid if none does. */
    QColor accent() const;

    /*!
     * \brief Makes \a accent the brand of every look: the tones of the theme's brand are derived anew
     *        from it, and so are the colours that call for it.
     *
     * Text keeps its contrast for any accent: 4.5:1, in a theme with the flag `HighContrast` 7:1, where
     * the theme itself has it. The accent itself is seen where a fill can carry the look's text, else
     * its nearest tone. Palette entries `Brand_1` to `Brand_10` change; a theme without them keeps its
     * colours. Images of the theme's own stay as they are.
     *
     * \param accent  its opacity does not count; an invalid colour gives themes their own brand back.
     * \return whether the application has it now, or, while the desktop's is the accent, will have it
     *         afterwards; true before the first look. If not, the accent stays what it was.
     */
    bool setAccent(const QColor &accent);
    void resetAccent();

    /*!
     * \brief Whether the desktop's accent colour is the accent while the desktop is followed; false at
     *        first. A desktop without one leaves themes their own brand; afterwards the accent is again
     *        what setAccent() made it.
     */
    bool followsAccent() const;
    void setFollowsAccent(bool follows);

    /*!
     * \brief Appends the templates (`*.qss`, `*.css`) of \a folder, with tokens that begin with
     *        \a prefix, to the style sheet of this look and all others.
     *
     * They come after the built-in ones, folders in the order of the calls. Restyles an application
     * that has a look; a call before the first costs nothing.
     *
     * \return false, with a problem(), for a folder that does not exist; nothing then changes.
     */
    bool addTemplates(const QString &folder, const QString &prefix = QStringLiteral("global"));

    /*!
     * \brief Whether the rules for every widget, which give font and colour to all text, are left out;
     *        false at first.
     *
     * Fonts and palettes that the application gives to its widgets then stay. Setting it changes an
     * application that has a look already.
     */
    bool keepsFonts() const;
    void setKeepsFonts(bool keeps);

    /*!
     * \brief Whether text that does not stand out from what it is painted on is painted lighter or
     *        darker, hue kept; false at first.
     *
     * That is for colours that palette and style sheets do not reach: of items, documents, palettes of
     * widgets and paint events. Text then has a contrast (WCAG 2.1) of 4.5, of 7 if the theme has the
     * flag `HighContrast`, of 3 where it is disabled. Only the paint on screens and pictures changes;
     * models, documents and what is printed do not. Text on grounds of many colours stays.
     */
    bool liftsText() const;
    void setLiftsText(bool lifts);

    /*!
     * \brief Returns whether the look follows its files as they are saved; false at first.
     *
     * The files are those of the theme, its images and templates; resources never change. A file that
     * is broken for a moment leaves the last good look.
     */
    bool isLiveReload() const;
    void setLiveReload(bool reload);

    /*!
     * \brief Shows theme files as an editor has them: the look is what it will be once they are saved.
     *
     * Nothing is written. Files keep these texts in every look until the next call. Of values that only
     * the style sheet uses, no more widgets are restyled than their rules concern, and of colours none
     * gets a QEvent::StyleChange; there is changed().
     *
     * \param texts  by path, which may be one in the program's resources; files that are not named, all
     *               of them if it is empty, have their own text. What it names must be there.
     * \return whether the look is in force; if not there is a problem().
     */
    bool setUnsavedTexts(const QHash<QString, QByteArray> &texts);

    /*! \brief Returns what setUnsavedTexts() was given last, by absolute path. */
    QHash<QString, QByteArray> unsavedTexts() const;

    /*! \brief Returns the theme in force, empty before the first look; never null, and always the
     *         same object. */
    Theme *theme() const;

    /*! \brief Returns the palette of the look in force, as the application has it. */
    QPalette palette() const;

    /*! \brief Returns the object whose look the application has, or null. */
    static ApplicationTheme *inForce();

    /*! \brief Returns the templates of the style sheet in their order: the file, and what its tokens
     *         begin with. */
    QVector<QPair<QString, QString>> templates() const;

    /*! \brief Returns what kept the last change from coming into force: what, where, what to do. Empty
     *         if it is in force. */
    QString problem() const;

    /*!
     * \brief Makes a menu of the themes, and "As the desktop"; one is checked, however it was chosen.
     *
     * Its themes are those of folder() whenever it opens.
     *
     * \param parent  owns the menu; if null, the caller does.
     */
    QMenu *menu(QWidget *parent = nullptr);

    /*! \brief Writes the user's choice, `Theme`, `FollowsDesktop` and `Accent`, below the current
     *         group; an accent of the desktop's is none of the user's. */
    void save(QSettings &settings) const;

    /*!
     * \brief Makes what save() wrote the look.
     *
     * \return false if nothing is written there, which is no problem(), or if it did not come into
     *         force, and nothing then changes; the caller chooses:
     *         `if (!theme.restore(settings)) theme.followDesktop();`
     */
    bool restore(const QSettings &settings);

    /*! \brief Gives the application the look in force once more: with the style sheet that it has set
     *         itself, and with what complete() now adds. Does nothing before the first look, and, with a
     *         problem(), while a template cannot be read. */
    void restyleAgain();

Q_SIGNALS: // once everything that changes has changed
    void nameChanged();
    /*! \brief The folder is another, or its themes are for the suffix(). */
    void folderChanged();
    void suffixChanged();
    void followsDesktopChanged();
    void accentChanged();
    void followsAccentChanged();
    void keepsFontsChanged();
    void liftsTextChanged();
    void liveReloadChanged();
    void problemChanged();

    /*! \brief The palette, the icons and the style sheet of another look, or of other values, are in
     *         force, and all widgets have them. What paints by itself takes its colours from theme()
     *         or palette() now. */
    void changed();

protected:
    /*!
     * \brief Adds to the palette and the style sheet of a look before it comes into force; here, the
     *        style sheet that the application has set itself.
     *
     * Called for every look, as the theme is in force and nothing else of it. What is added costs no
     * restyling of its own, and goes with the look that it was added to.
     */
    virtual void complete(QPalette *palette, QString *styleSheet);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace HV

#endif // HVTHEMEAPP_APPLICATIONTHEME_H

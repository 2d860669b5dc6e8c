// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_APPLICATIONTHEME_H
#define HVTHEMEAPP_APPLICATIONTHEME_H

#include <hvthemeapp/hvthemeapp_export.h>

#include <QObject>

#include <memory>

class QPalette;

namespace HV
{

class Theme;

/*!
 * \brief The look of a whole application: a theme, the palette and the style sheets that go with it.
 */
class HVTHEMEAPP_EXPORT ApplicationTheme : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(bool followsDesktop READ followsDesktop WRITE setFollowsDesktop NOTIFY
                   followsDesktopChanged)
    Q_PROPERTY(bool keepsFonts READ keepsFonts WRITE setKeepsFonts NOTIFY keepsFontsChanged)
    Q_PROPERTY(bool liftsText READ liftsText WRITE setLiftsText NOTIFY liftsTextChanged)

public:
    explicit ApplicationTheme(QObject *parent = nullptr);
    ~ApplicationTheme() override;

    QString name() const;

    /*! \brief Gives the application the look \a name; returns whether it has it now. If so, the
     *         desktop is no longer followed. */
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

    /*! \brief Returns the theme in force; never null. */
    Theme *theme() const;

    /*! \brief Gives the application the look in force once more, with what complete() now adds. Does
     *         nothing before the first look. */
    void restyleAgain();

Q_SIGNALS:
    void nameChanged();
    void followsDesktopChanged();
    void keepsFontsChanged();
    void liftsTextChanged();

    /*! \brief The palette, the icons and the style sheet of another look are in force. */
    void changed();

protected:
    /*!
     * \brief Adds to the palette and the style sheet of a look before it comes into force; adds
     *        nothing here.
     *
     * Called for every look, as the theme is in force and nothing else of it. What is added costs no
     * restyling of its own.
     */
    virtual void complete(QPalette *palette, QString *styleSheet);

private:
    bool apply(const QString &name);
    bool applyDesktop();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace HV

#endif // HVTHEMEAPP_APPLICATIONTHEME_H

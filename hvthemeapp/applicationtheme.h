// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_APPLICATIONTHEME_H
#define HVTHEMEAPP_APPLICATIONTHEME_H

#include <hvthemeapp/hvthemeapp_export.h>

#include <QObject>

#include <memory>

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

    /*! \brief Returns the theme in force; never null. */
    Theme *theme() const;

Q_SIGNALS:
    void nameChanged();
    void followsDesktopChanged();

    /*! \brief The palette, the icons and the style sheet of another look are in force. */
    void changed();

private:
    bool apply(const QString &name);
    bool applyDesktop();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace HV

#endif // HVTHEMEAPP_APPLICATIONTHEME_H

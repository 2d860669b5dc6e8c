// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_DESKTOPSETTINGS_H
#define HVTHEMEAPP_DESKTOPSETTINGS_H

#include <hvthemeapp/hvthemeapp_export.h>

#include <QColor>
#include <QObject>
#include <QPalette>

#include <memory>

namespace HV
{

/*!
 * \brief What the user asked of the desktop: dark or light, contrast, accent colour.
 *
 * Each of the three is taken from the first of these that says something:
 * -# the desktop portal (`org.freedesktop.portal.Settings`), asked without waiting for it; until it
 *    answers, what it said the last time, which is kept in `hvtheme/desktop.ini` in the user's cache
 *    folder;
 * -# KDE's `kdeglobals`;
 * -# GTK's settings: the variable `GTK_THEME`, then `gtk-3.0/settings.ini` and `gtk-4.0/settings.ini`;
 * -# for dark or light alone, what Qt itself says of the desktop (from 6.5 on), else the palette that
 *    the application was started with. A portal that answers without a preference leaves the files
 *    their say and is else for light.
 *
 * Files are watched. Nothing waits for the portal, whatever it does, and nothing polls. A portal that
 * is restarted is asked again. Answers that make no sense count as none. Logs nothing. Needs a
 * QGuiApplication and its event loop; use it on the GUI thread.
 */
class HVTHEMEAPP_EXPORT DesktopSettings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(HV::DesktopSettings::ColorScheme colorScheme READ colorScheme NOTIFY changed)
    Q_PROPERTY(HV::DesktopSettings::Contrast contrast READ contrast NOTIFY changed)
    Q_PROPERTY(QColor accentColor READ accentColor NOTIFY changed)

public:
    enum class ColorScheme {
        Light,
        Dark
    };
    Q_ENUM(ColorScheme)

    enum class Contrast {
        Normal,
        High
    };
    Q_ENUM(Contrast)

    /*!
     * \brief Begins to follow the desktop; what is remembered and what files say holds at once.
     *
     * \param startPalette  the palette that the application had before any theme.
     */
    explicit DesktopSettings(const QPalette &startPalette, QObject *parent = nullptr);
    ~DesktopSettings() override;

    /*! \brief Returns whether the desktop is dark or light. */
    ColorScheme colorScheme() const;

    /*! \brief Returns whether the user asked for high contrast. */
    Contrast contrast() const;

    /*! \brief Returns the accent colour, opaque; not valid if the desktop names none. */
    QColor accentColor() const;

Q_SIGNALS:
    /*! \brief Emitted once for changes that come together, when all values are new. */
    void changed();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace HV

#endif // HVTHEMEAPP_DESKTOPSETTINGS_H

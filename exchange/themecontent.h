// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef EXCHANGE_THEMECONTENT_H
#define EXCHANGE_THEMECONTENT_H

#include <QColor>
#include <QGradientStops>
#include <QMap>
#include <QString>

class ThemeStack;

/*! \brief Themes in the formats of others. */
namespace Exchange
{

/*! \brief A colour and the palette entry that it is taken from, if it is. */
struct ThemeColor {
    QColor color;
    QString palette;

    bool operator==(const ThemeColor &other) const
    {
        return color.rgba() == other.color.rgba() && palette == other.palette;
    }
};

/*! \brief What a theme holds, by key, whatever file it came from. */
struct ThemeContent {
    QString name; //!< as applications ask for it
    QString displayName;
    QMap<QString, QColor> palette;
    QMap<QString, ThemeColor> colors;
    QMap<QString, QString> imageFiles; //!< paths as the theme file has them
    QMap<QString, QGradientStops> gradients;
    QMap<QString, bool> flags;
    QMap<QString, qint64> integers;
};

/*! \brief Returns what is in force in \a theme, its default file included. */
ThemeContent themeContent(const ThemeStack &theme);

} // namespace Exchange

#endif

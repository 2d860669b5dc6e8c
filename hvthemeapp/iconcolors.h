// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_ICONCOLORS_H
#define HVTHEMEAPP_ICONCOLORS_H

#include <QColor>
#include <QIcon>
#include <QSet>
#include <QString>
#include <QVariantMap>

/*! \brief What icons are drawn with: the values of the theme in force. Internal to the library. */
namespace HV::IconColors
{

/*! How much is left of a picture for what cannot be used. */
constexpr double disabledOpacity = 0.45;

/*!
 * \brief Draws all icons with \a values, as Theme::values() gives them, from now on.
 *
 * Pictures that Qt remembers by their path are forgotten (QPixmapCache). Call it on the GUI thread
 * between the palette and the style sheet; whoever calls it sees to it that windows are painted.
 */
void setValues(const QVariantMap &values);

/*! \brief Returns what setValues() was given last. Thread-safe. */
QVariantMap values();

/*! \brief Returns the keys that a drawing has asked for so far, whether there was a value or not.
 *         Thread-safe. */
QSet<QString> usedKeys();

/*! \brief Returns a number that is another one after each setValues(). Thread-safe. */
int generation();

/*! \brief Returns whether a theme is in force. Thread-safe. */
bool hasValues();

/*! \brief Returns the path of the image that the theme in force has under \a key, else a null
 *         string. Thread-safe. */
QString imageFile(const QString &key);

/*!
 * \brief Returns the colour for the token \a key in an icon of \a mode.
 *
 * A key that the theme lacks has a colour of the application's palette. Thread-safe for the mode
 * QIcon::Normal.
 *
 * \param found  may be null; set to whether the theme has the colour, or there is no theme.
 */
QColor color(const QString &key, QIcon::Mode mode, bool *found = nullptr);

/*!
 * \brief While it lives, icons are drawn to stand on a ground of its own with a text of its own.
 *
 * As on a selected row: the ink is that of the text, and so is what would not stand out. On the GUI
 * thread alone, for the time of one painting.
 */
class OnGround
{
public:
    OnGround(const QColor &ground, const QColor &text);
    ~OnGround();
    Q_DISABLE_COPY_MOVE(OnGround)

    /*! \brief Returns a text that differs for each ground and text, empty if there is none now. */
    static QString current();
};

/*! \brief Returns what `currentColor` stands for: the colour of most strokes. */
QColor ink(QIcon::Mode mode);

} // namespace HV::IconColors

#endif // HVTHEMEAPP_ICONCOLORS_H

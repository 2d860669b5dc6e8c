// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_PROGRAMLOOK_H
#define HVTHEMEAPP_PROGRAMLOOK_H

#include <QPalette>
#include <QString>
#include <QVariantMap>

namespace HV
{

/*! \brief The palette that the application had before any look of ours; it is taken at the first call
 *         with a QApplication. */
QPalette startPalette();

/*! \brief Returns whether a widget is in a paint event. */
bool isPainting();

/*! A style sheet that was given to the application. */
struct StyleSheetParts {
    QString templates;
    QString whole;
    QString own; // what of the whole is the application's
};

/*! \brief Returns the style sheet of the application without what \a given has more than its own, be
 *         that there as it was given, replaced, or with more around it. */
QString styleSheetBeside(const StyleSheetParts &given);

/*! What of a program a look reaches. */
enum class Extent {
    Whole,
    Changes //!< where that can be told; else all of it
};

/*!
 * \brief Puts palette, icon colours and style sheet in force, and polishes each widget once.
 *
 * Also what a palette does not reach: tool tips, placeholders, areas of windows, and links in documents,
 * which have their colour since their HTML was set. With Extent::Changes, widgets that look the same
 * before and after are left alone if that can be told: not if the palette or icons change. Needs a
 * QApplication. Internal.
 */
void setProgramLook(const QPalette &palette, const QVariantMap &values, const QString &styleSheet,
                    Extent extent);

} // namespace HV

#endif // HVTHEMEAPP_PROGRAMLOOK_H

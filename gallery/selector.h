// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_SELECTOR_H
#define GALLERY_SELECTOR_H

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Gallery
{

/*!
 * \brief What it takes to build a widget that a style sheet selector matches.
 *
 * `QSpinBox[style=editError]::up-button:hover` has the class `QSpinBox`, one property, the
 * sub-control `up-button` and the state `hover`. Of a descendant selector the class is that of the
 * outermost widget (the one to build) and the rest is that of the innermost.
 */
struct Selector {
    QString widgetClass; //!< empty when the selector names none (`*`, `[checkStyle=…]`)
    QVector<QPair<QString, QString>> properties;
    QString subControl; //!< empty when the selector means the widget itself
    QStringList states; //!< without colons, in the order written

    /*! \brief Takes \a text apart; one that Qt would refuse gives an empty result. Logs nothing. */
    static Selector fromText(const QString &text);

    /*! \brief Returns the C++ lines that give a widget these properties; empty without any. */
    QString propertyLines() const;
};

} // namespace Gallery

#endif

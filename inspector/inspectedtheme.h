// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef INSPECTOR_INSPECTEDTHEME_H
#define INSPECTOR_INSPECTEDTHEME_H

#include <QColor>
#include <QHash>
#include <QString>
#include <QVariantMap>
#include <QVector>

#include <functional>

/*! \brief The theme and the templates that a program's style sheet was made of. */
struct InspectedTheme {
    struct Template {
        QString file;
        QString prefix; //!< what its tokens begin with
    };

    QString folder; //!< of theme files; null if no theme is in force
    QString suffix; //!< of theme files
    QString name;
    QVector<Template> templates; //!< in the order of the style sheet
    QVariantMap values; //!< as style sheets have them
    QString applicationFolder; //!< which image paths start from; null for this program's
    QHash<QString, QByteArray> unsavedTexts; //!< of theme files, by path, that the program shows
    QColor accent; //!< in the place of the theme's brand; invalid for the brand itself
    std::function<QColor(const QString &)>
        entry; //!< asks the program for a palette entry; may be null

    /*! \brief Returns what HV::ApplicationTheme gave the application, or an empty one. */
    static InspectedTheme inForce();
};

#endif

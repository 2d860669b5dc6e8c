// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_THEME_STOREDVALUES_H
#define ANALYSIS_THEME_STOREDVALUES_H

#include <analysis/theme/themestack.h>

#include <QGradientStops>
#include <QVariant>
#include <QVector>

/*! \brief One value that a theme has in store. */
struct StoredValue {
    const Definition *definition = nullptr; //!< the one in force
    QVariant value; //!< QColor, QGradientStops, bool, qlonglong, or QString: the resolved path
    QString palette; //!< the palette entry that a colour was taken from, or empty
    bool isHidden = false; //!< style sheets see a value of another kind under this key

    Kind kind() const { return definition->kind(); }
    QString key() const { return definition->key(); }
};

/*!
 * \brief Returns all values of \a theme as the library stored them, kind by kind, sorted by key.
 *
 * \param applicationFolder  what image paths are resolved below.
 */
QVector<StoredValue> storedValues(const ThemeStack &theme, const QString &applicationFolder);

/*! \brief Returns the values of one \a kind. */
QVector<StoredValue> storedValues(const ThemeStack &theme, const QString &applicationFolder,
                                  Kind kind);

/*! \brief Returns \a value as style sheets have it; a gradient as "0 #rrggbb, 1 #rrggbb". */
QString valueText(const QVariant &value);

/*! \brief Tells whether two values are the same; invalid ones are. */
bool isSameValue(const QVariant &first, const QVariant &second);

/*! \brief Returns a number as short as it can be told: "0", "0.25". */
QString numberText(double number);

#endif

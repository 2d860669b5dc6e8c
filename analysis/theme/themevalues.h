// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_THEME_THEMEVALUES_H
#define ANALYSIS_THEME_THEMEVALUES_H

#include <format/kind.h>

#include <QStringList>
#include <QVariant>
#include <QVector>

/*! \brief A colour stop of a gradient as the file gives it. */
struct GradientStopValue {
    bool hasPosition = false;
    bool hasColor = false;
    QVariant position;
    QVariant color;
};

/*! \brief One key of a section, as the library's reader of the section comes upon it. */
struct ThemeValue {
    Kind kind = Kind::Palette;
    QString key; //!< within the section
    QVariant value; //!< what QSettings says, unconverted
    int gradientSize = 0; //!< what QSettings::beginReadArray() says; gradients only
    QVector<GradientStopValue> stops; //!< gradients only

    /*! \brief Returns the value as text; empty for a list, as for the library. */
    QString text() const { return value.toString(); }
    /*! \brief Tells whether commas outside quotation marks made a list of the value. */
    bool isList() const { return value.userType() == QMetaType::QStringList; }
    /*! \brief Tells whether the library stores a gradient of this value. */
    bool isValidGradient() const;
};

/*! \brief What one theme file says according to QSettings, in the order of the library's readers. */
struct ThemeValues {
    bool hasDisplayName = false;
    QVariant displayName;
    QVector<ThemeValue> values;
    QStringList listKeys; //!< the whole keys of all values that commas made lists of

    /*! \brief Reads the text of a theme file. */
    static ThemeValues read(const QByteArray &content);
};

#endif

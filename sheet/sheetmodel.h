// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef SHEET_SHEETMODEL_H
#define SHEET_SHEETMODEL_H

#include <analysis/theme/storedvalues.h>
#include <analysis/themeproject.h>
#include <colormath/vision.h>

#include <QMap>
#include <QSet>

/*! \brief One theme of a sheet: a column of it. */
// NOLINTNEXTLINE(bugprone-reserved-identifier): the compiler's own, for a copy of the array
struct SheetTheme {
    QString name;
    QString displayName;
    QString
        groundKey; //!< the colour key that the ground is taken from; empty if the theme lacks it
    QColor ground; //!< opaque; what colours of this theme are shown on
    QColor ink; //!< black or white, whichever can be read on the ground
    QMap<QString, StoredValue> values[kindCount];

    /*! \brief Returns the value of a key, or null if this theme lacks it. */
    const StoredValue *find(Kind kind, const QString &key) const;
};

/*! \brief A series of palette entries, such as Brand_1 to Brand_10. */
struct SheetRun {
    QString name;
    QStringList keys;
};

/*! \brief How well a text can be read, by the steps of WCAG 2.1. */
struct SheetContrast {
    double ratio = 1.0;
    QString grade; //!< "AAA", "AA", "AA large" or "low"; empty for what is no text

    QString text() const;
};

/*! \brief What a sheet shows, whatever it is drawn with: themes side by side, keys in file order. */
class SheetModel
{
public:
    /*!
     * \brief Collects the themes called \a names.
     *
     * \param groundKey  the colour key or palette entry to show colours on.
     */
    SheetModel(const ThemeProject &project, const QStringList &names, const QString &groundKey);

    const QVector<SheetTheme> &themes() const { return m_themes; }

    /*! \brief Returns the keys of one kind in the order of the files, those of any theme. */
    QStringList keys(Kind kind) const { return m_keys[int(kind)]; }

    /*! \brief Returns the palette's entries in series: keys that differ in their number only. */
    QVector<SheetRun> runs() const;

    /*! \brief Tells whether all themes have the same values for \a keys. */
    bool areEqual(Kind kind, const QStringList &keys) const;

    /*! \brief Tells whether templates give the colour of \a key to text. */
    bool isText(const QString &key) const { return m_textKeys.contains(key); }

    /*! \brief Tells whether any theme has the colour that colours are to be shown on. */
    bool hasGround() const;

    /*! \brief Sets the eyes that the whole sheet is shown as seen by. */
    void setVision(ColorMath::Vision vision) { m_vision = vision; }
    ColorMath::Vision vision() const { return m_vision; }

    /*! \brief Returns what a reader must know of the colours and their contrast, in sentences. */
    QString note() const;

    /*! \brief Returns how the colour of \a key stands out from its theme's ground. */
    SheetContrast contrast(const SheetTheme &theme, const StoredValue &color) const;

private:
    void addTheme(const ThemeStack &stack, const QString &applicationFolder,
                  const QString &groundKey);

    ColorMath::Vision m_vision = ColorMath::Vision::Normal;
    QVector<SheetTheme> m_themes;
    QStringList m_keys[kindCount];
    QSet<QString> m_textKeys;
};

#endif

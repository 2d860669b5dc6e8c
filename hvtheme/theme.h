// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_THEME_H
#define HVTHEME_THEME_H

#include <hvtheme/hvtheme_export.h>

#include <QColor>
#include <QGradientStops>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QString>
#include <QVariantMap>

class QSettings;

/*! \brief Themes for Qt Widgets: typed values from theme files, and style sheets made of them. */
namespace HV
{

/*!
 * \brief One theme in memory: the values of its theme files, by key and by enumeration value.
 *
 * A value travels in one direction: readSettings() moves a theme file into six typed maps, the
 * lookups read the maps, and values() flattens four of them for style sheets.
 *
 * Keys are case-sensitive. The keys that a theme file must define are the keys of the enumerations
 * `Color`, `ImageFile`, `Gradient`, `Flag`, `Integer` and `Palette` of the object's own class, found
 * by name in its meta-object, most-derived class first; a class declares them as `enum class` with
 * `Q_ENUM`. Theme itself has none; WorkableTheme has the library's.
 *
 * Nothing here throws, aborts or returns an error. Bad or missing data is logged to Qt's default
 * category and answered with the fixed value that each member names. Log texts are part of the
 * interface, slips of wording included; a file name in their context is `hvtheme/theme.cpp`.
 *
 * Not thread-safe, not even for reading: values() fills a cache. Use a theme on one thread.
 */
class HVTHEME_EXPORT Theme : public QObject
{
    Q_OBJECT

public:
    /*! \brief Makes an empty theme; \a id is kept for its whole life. Reads no file. */
    explicit Theme(const QString &id, QObject *parent = nullptr);
    ~Theme() override;

    /*! \brief Returns the identifier that the constructor got. */
    QString id() const;

    /*! \brief Returns the file name of the first settings read since clear(); null before. */
    QString filePath() const;

    /*! \brief Returns the human-readable name; null in an empty theme. */
    QString displayName() const;

    /*! \brief Sets the human-readable name until clear() or a file with a `ThemeName` replaces it. */
    void setDisplayName(const QString &name);

    /*! \brief Empties the theme, its cache and its names; keeps id() and all that QObject holds. */
    void clear();

    /*!
     * \name Lookups
     *
     * Each comes in two forms. The first takes a key. The second takes a number \a n: the position,
     * from 0, of a key in the enumeration of that kind (`Flag`, `Integer`, `Color`, `ImageFile`,
     * `Gradient`); it logs `<Kind> type  <n> ...` as critical if there is no such position, and is
     * else the first form with that key. A key that is not stored logs `<Kind> type  "<key>" ...`
     * as critical. The texts end in `is invalid.`, those of flags in `is not exist.`.
     */
    //! @{

    /*! \brief Returns the flag stored under \a key; if there is none, logs and returns false. */
    bool flag(const QString &key) const;
    bool flag(int n) const;

    /*! \brief Returns the integer stored under \a key; if there is none, logs and returns 0. */
    qint64 integer(const QString &key) const;
    qint64 integer(int n) const;

    /*! \brief Returns the colour stored under \a key; if there is none, logs and returns black. */
    QColor color(const QString &key) const;
    QColor color(int n) const;

    /*!
     * \brief Returns the path of the image file stored under \a key.
     *
     * \param defaultFile  taken for an empty stored path, and returned as it is for a missing key.
     * \param warn         whether a missing key or number is logged: a warning for a key, critical
     *                     for a number.
     * \return a path that starts with `:/` as it is; any other path, one with a leading `/` too,
     *         below QCoreApplication::applicationDirPath(), cleaned. Whether the file exists is not
     *         checked. The form by number returns an empty string for a number out of range.
     */
    QString imageFile(const QString &key, const QString &defaultFile = QString(),
                      bool warn = true) const;
    QString imageFile(const int &n, const QString &defaultFile = QString(), bool warn = true) const;

    /*!
     * \brief Returns the stops stored under \a key in the order of the file; positions are as
     *        written, neither sorted nor limited to 0..1. If there are none, logs and returns none.
     */
    QGradientStops gradient(const QString &key) const;
    QGradientStops gradient(int n) const;

    //! @}

    /*!
     * \brief Returns what style sheets see: key to QColor, bool, qlonglong or QString (the path as
     *        imageFile() gives it).
     *
     * A key of several kinds has the value of the last of: colour, flag, integer, image file.
     * Palette entries and gradients are not in it. Built at the first call that finds a value and
     * kept until clear(), whatever is read in between. Logs nothing.
     */
    const QVariantMap &values();

    /*!
     * \brief Reads a whole theme file (INI format) into the theme: the name, then palettes, colours,
     *        image files, gradients, flags and integers.
     *
     * The first settings read into an emptied theme give filePath() and are checked for the keys
     * that the theme's class requires; later ones are not. A key that is already stored keeps its
     * value and is logged; flags and the name are replaced.
     */
    void readSettings(QSettings &settings);

    /*!
     * \brief Reads the top-level key `ThemeName`. A file without it leaves the name as it is, or
     *        sets "unnamed" if that is empty. Logs nothing.
     */
    void readDisplayName(const QSettings &settings);

    /*!
     * \name Section readers
     *
     * Each reads one section below the current group of \a settings, and leaves the group as it is.
     * Logged as critical, with the section's own noun in the place of `<Kind>` ("Interger" for
     * integers): `The <Kind> Key [ "<key>" ] is exists.` for a key that is already stored, and, if
     * \a required,
     * `Theme <Kind> Key [ "<key>" ] is must bu set,but is not set.` for each key of the section's
     * enumeration in \a vocabulary that is not stored afterwards.
     */
    //! @{

    /*! \brief Reads section `Palettes`: colour texts, see readNamedColor(). */
    void readPalettes(QSettings &settings, bool required, const QMetaObject &vocabulary);

    /*! \brief Reads section `Colors`: colour texts, see readNamedColor(). */
    void readColors(QSettings &settings, bool required, const QMetaObject &vocabulary);

    /*! \brief Reads section `ImageFiles`: paths, stored as written; imageFile() resolves them. */
    void readImageFiles(QSettings &settings, bool required, const QMetaObject &vocabulary);

    /*!
     * \brief Reads section `Gradients`: arrays of `pos` (not a number: 0) and `color` (colour text).
     *
     * A gradient is the array of a plain key of the same name. Every key that is no such array, the
     * arrays' own keys among them, and every array with a stop that lacks `pos` or `color` is logged
     * as `The Gradient Key [ "<key>" ]'s value is invalid.` and not stored. A required key is looked
     * for among the flags.
     */
    void readGradients(QSettings &settings, bool required, const QMetaObject &vocabulary);

    /*!
     * \brief Reads section `Flags`: decimal integers, true unless 0 or not a number.
     *
     * Here an already stored key is one that an integer has; a flag is replaced.
     */
    void readFlags(QSettings &settings, bool required, const QMetaObject &vocabulary);

    /*! \brief Reads section `Integers`: decimal, taken modulo 2^32 as signed; no number: 0. */
    void readIntegers(QSettings &settings, bool required, const QMetaObject &vocabulary);

    //! @}

    /*!
     * \brief Resolves a colour text: the name of a stored palette entry, else 3, 6, 8 (alpha first),
     *        9 or 12 hexadecimal digits with or without a leading `#`.
     *
     * \return the colour and the palette entry's name, which is empty for a hexadecimal colour. Any
     *         other text, colour words too, logs the warning
     *         `Color "<text>" is neither a named color or a valid color "#<text>"` and is black.
     */
    QPair<QColor, QString> readNamedColor(const QString &text) const;

private:
    QString m_id;
    QString m_filePath;
    QString m_displayName;
    QVariantMap m_values;
    QMap<QString, QString> m_imageFiles;
    QMap<QString, QColor> m_palettes;
    QMap<QString, QPair<QColor, QString>> m_colors;
    QMap<QString, QGradientStops> m_gradients;
    QMap<QString, bool> m_flags;
    QMap<QString, qint64> m_integers;
};

} // namespace HV

#endif // HVTHEME_THEME_H

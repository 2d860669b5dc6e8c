// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_THEME_THEMESTACK_H
#define ANALYSIS_THEME_THEMESTACK_H

#include <analysis/theme/themefile.h>
#include <analysis/theme/themevalues.h>
#include <format/themepath.h>

#include <QColor>
#include <QHash>
#include <QSet>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace HV
{
class WorkableTheme;
}

/*! \brief One theme file: its text with positions, and its values. */
struct ThemeLayer {
    ThemeFile file;
    ThemeValues values;
    QString name; //!< of the theme that the file is named after
};

/*! \brief What became of one key of a theme file when the theme was loaded. */
struct Definition {
    enum class Fate {
        Stored,
        Replaced, //!< a flag that a later file sets again
        Exists, //!< refused, because the key was stored before
        Invalid, //!< a gradient that the library rejects
    };

    const ThemeLayer *layer = nullptr;
    const ThemeValue *value = nullptr;
    Fate fate = Fate::Stored;
    int other = -1; //!< Replaced, Exists: the index of the definition that counts
    int palette = -1; //!< colours: the index of the palette entry that the text names, or -1

    Kind kind() const { return value->kind; }
    const QString &key() const { return value->key; }
    /*! \brief Returns the entry in the file's text; never null for what QSettings lists. */
    const ThemeFileEntry *entry() const;
    Place keyPlace() const { return {layer->file.path(), entry()->keyPosition}; }
    Place valuePlace() const { return {layer->file.path(), entry()->valuePosition}; }
};

/*!
 * \brief One theme as an application gets it: the default file and, over it, the theme's own.
 *
 * The values are the library's, read as HV::changeTheme() reads the two files. Which definition took effect is
 * worked out beside it by the library's published rules, because a theme does not tell.
 */
class ThemeStack
{
public:
    /*!
     * \brief Loads the theme called \a name.
     *
     * \param base  the default file.
     * \param own   the theme's own file, or null to stay with the default theme.
     */
    ThemeStack(const QString &name, const ThemeLayer *base, const ThemeLayer *own);
    ~ThemeStack();
    Q_DISABLE_COPY_MOVE(ThemeStack)

    QString name() const { return m_name; }
    const ThemeLayer &base() const { return *m_base; }
    /*! \brief Returns the theme's own file; null for the default theme. */
    const ThemeLayer *own() const { return m_own; }
    /*! \brief Tells whether the library reads the theme's own file, or there is none. */
    bool isOwnRead() const { return m_isOwnRead; }

    QString displayName() const;
    const HV::WorkableTheme &theme() const { return *m_theme; }

    /*! \brief Returns all definitions of the files that were read, in the order of reading. */
    const QVector<Definition> &definitions() const { return m_definitions; }

    /*! \brief Returns the definition whose value is in force, or null. */
    const Definition *find(Kind kind, const QString &key) const;

    /*! \brief Returns the definitions in force of \a kind by key. */
    const QHash<QString, int> &stored(Kind kind) const { return m_stored[int(kind)]; }

    /*!
     * \brief Returns the palette entries that a definition takes colours from, by index as it is.
     *
     * One that is stored later than the definition gives it nothing, whatever its name.
     */
    QSet<int> paletteEntriesOf(int definition) const;

    /*!
     * \brief Returns HV::Theme::values() as an application that stands in \a applicationFolder has
     *        them.
     */
    QVariantMap values(const QString &applicationFolder) const;

private:
    void load(const ThemeLayer &layer);
    void read(const ThemeLayer &layer);

    QString m_name;
    const ThemeLayer *m_base;
    const ThemeLayer *m_own;
    bool m_isOwnRead = true;
    std::unique_ptr<HV::WorkableTheme> m_theme;
    QVector<Definition> m_definitions;
    QHash<QString, int> m_stored[kindCount];
};

/*! \brief Returns the kind whose value style sheets see for \a key, or nothing. */
std::optional<Kind> kindInStyleSheets(const ThemeStack &stack, const QString &key);

/*! \brief Tells whether the library reads \a text as a hexadecimal colour. */
bool isHexadecimalColor(const QString &text);

#endif

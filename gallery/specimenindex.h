// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_SPECIMENINDEX_H
#define GALLERY_SPECIMENINDEX_H

#include "pages.h"

#include <format/place.h>

#include <QMultiHash>

class ThemeProject;

namespace Gallery
{

/*! \brief A place of the gallery: a page and perhaps a specimen or a key on it. */
struct Target {
    QString page;
    QString selector; //!< of the specimen
    QString key; //!< of the caption

    bool isValid() const { return !page.isEmpty(); }
    bool operator==(const Target &other) const
    {
        return page == other.page && selector == other.selector && key == other.key;
    }
};

/*! \brief One thing that a search finds. */
struct SearchResult {
    QString text; //!< a page's title, a key or a selector
    QString detail; //!< what it is and where
    Target target;
};

/*!
 * \brief Where in the gallery the keys and rules of a project are seen.
 *
 * A value that is made once for each reload.
 */
class SpecimenIndex
{
public:
    SpecimenIndex() = default;

    /*! \brief Reads \a project, which may be null; it is not asked later. */
    explicit SpecimenIndex(const ThemeProject *project);

    /*! \brief Returns the specimens whose rules name \a key, the first of each page; for a colour its
     *         swatch before them. */
    QVector<Target> targetsOfKey(const QString &key) const;

    /*! \brief Returns where what stands at \a place of a theme file or template is seen best; not valid
     *         if nowhere. */
    Target targetOfPlace(const Place &place) const;

    /*!
     * \brief Returns what has all words of \a text in its name, in any letter case: pages, keys, then
     *        selectors; of each what begins with the text first.
     */
    QVector<SearchResult> search(const QString &text, const QVector<Page> &pages) const;

private:
    struct Key {
        QString name;
        QString noun; //!< such as "colour"
        bool hasSwatch = false;
    };
    struct Lines { // of a rule
        QString file;
        int first;
        int last;
        QStringList selectors;
    };

    void addRules(const ThemeProject &project);
    void addKeys(const ThemeProject &project);

    QVector<Target> m_specimens; //!< in the order of their table
    QHash<QString, int> m_specimenOf; //!< by selector
    QVector<Key> m_keys; //!< sorted by name
    QHash<QString, int> m_keyOf;
    QHash<QString, QStringList> m_selectorsOf; //!< of the rules that name a key
    QHash<QString, QString> m_keyAt; //!< by file:line
    QVector<Lines> m_rules;
};

} // namespace Gallery

#endif

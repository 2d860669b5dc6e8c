// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_SUGGESTION_H
#define ANALYSIS_SUGGESTION_H

#include <QHash>
#include <QStringList>

/*!
 * \brief Finds the name that was probably meant by a misspelt one.
 *
 * A name that differs in letter case only comes first, then the one with the fewest inserted,
 * dropped, changed or swapped characters, if they are few for the length of the name.
 */
class Suggestion
{
public:
    explicit Suggestion(const QStringList &names);

    /*! \brief Returns the nearest name, or an empty text. */
    QString nearest(const QString &misspelt) const;

    /*! \brief Returns "; did you mean NAME?" for the nearest name, or an empty text. */
    QString question(const QString &misspelt) const;

private:
    QStringList m_names;
    QHash<QString, QString> m_byFoldedName;
    mutable QHash<QString, QString> m_known;
};

#endif

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_STYLE_SUBSTITUTION_H
#define ANALYSIS_STYLE_SUBSTITUTION_H

#include <QString>
#include <QVariantMap>

/*! \brief A style sheet made of templates, or the reason why the library would never finish it. */
struct FinishedStyleSheet {
    QString text; //!< empty if the substitution would not end
    QString endlessKey; //!< the key whose value brings its own token back; null if it ends
};

/*!
 * \brief Replaces the tokens of \a templates as HV::findStyleSheet() does, if that comes to an end.
 *
 * The library looks for tokens in what it has just put in, so a value that holds its own token, by
 * itself, through others or together with the text around it, keeps it busy for ever. That is found
 * out before each of the three passes, by following values only as far as they repeat.
 *
 * \param prefix  of the tokens; word characters only.
 */
FinishedStyleSheet finishedStyleSheet(const QString &prefix, const QVariantMap &values,
                                      const QString &templates);

#endif

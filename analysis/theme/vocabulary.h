// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_THEME_VOCABULARY_H
#define ANALYSIS_THEME_VOCABULARY_H

#include <format/kind.h>

#include <QStringList>

#include <array>
#include <optional>

/*! \brief The keys that the default file must define, kind by kind. */
class Vocabulary
{
public:
    /*! \brief Returns the vocabulary of HV::WorkableTheme. */
    static Vocabulary builtIn();

    /*!
     * \brief Reads an application's own vocabulary: a JSON object such as
     *        `{"Color": ["TitleColor"], "Flag": []}`.
     *
     * Its names are those of the enumerations. As with a class derived from HV::WorkableTheme, a
     * list replaces the library's of the same name, and what is not listed stays the library's.
     * \return nothing, with one sentence in \a error, if the file is not of this form.
     */
    static std::optional<Vocabulary> read(const QString &path, QString *error);

    QStringList keys(Kind kind) const { return m_keys[size_t(kind)]; }

private:
    std::array<QStringList, kindCount> m_keys;
};

#endif

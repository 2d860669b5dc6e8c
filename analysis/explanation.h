// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_EXPLANATION_H
#define ANALYSIS_EXPLANATION_H

#include <analysis/theme/storedvalues.h>
#include <analysis/themeproject.h>

/*! \brief The story of one key of a theme: its value, its definitions and its uses, as text. */
class Explanation
{
public:
    Explanation(const ThemeProject &input, const ThemeStack &theme, const QString &key);

    /*! \brief Tells whether the theme has a value of this key, of whatever kind. */
    bool isDefined() const { return m_isDefined; }

    /*! \brief Returns lines that a terminal can be given. */
    QString text() const { return m_text; }

private:
    void addLine(int indentation, const QString &line);
    void tellValue(const StoredValue &value);
    void tellUnknown();
    void tellOrigin(const Definition &definition);
    void tellWithoutEffect();
    void tellUsers();
    void tellTokens();
    QString reasonOf(const Definition &definition) const;

    const ThemeProject &m_input;
    const ThemeStack &m_theme;
    const QString m_key;
    bool m_isDefined = false;
    QString m_text;
};

#endif

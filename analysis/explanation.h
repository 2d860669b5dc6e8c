// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_EXPLANATION_H
#define ANALYSIS_EXPLANATION_H

#include <analysis/theme/storedvalues.h>
#include <analysis/themeproject.h>

/*! \brief One thing to be said of a key, and where it stands. */
struct ExplanationStep {
    enum class Topic {
        Value, //!< what the key is; its Origin steps follow
        Origin, //!< a line that the value comes from, the nearest first
        Ineffective, //!< a definition without effect; the Note behind it says why
        Taker, //!< a definition that takes this palette entry
        Token, //!< a template that uses the key
        Note, //!< something about the step before
        Statement, //!< a sentence about the whole
        Rule, //!< a rule of a template; its Declaration steps follow
        Declaration, //!< one of a rule, with its value
        Source, //!< a line that the value of a declaration comes from, the nearest first
    };

    Topic topic = Topic::Statement;
    Place place; //!< without a file if the step stands nowhere
    QString text; //!< as the files have it, so not made printable
    QString paletteEntry = {}; //!< the one that an Origin step defines; empty for other lines
};

/*!
 * \brief Returns the lines that the value of \a definition comes from, the nearest first: it and the
 *        palette entries that it is taken from, as Origin steps with Note steps behind them.
 */
QVector<ExplanationStep> originSteps(const ThemeStack &theme, const Definition &definition);

/*! \brief The story of one key of a theme: its value, its definitions and its uses. */
class Explanation
{
public:
    Explanation(const ThemeProject &project, const ThemeStack &theme, const QString &key);

    /*! \brief Tells whether the theme has a value of this key, of whatever kind. */
    bool isDefined() const { return m_isDefined; }

    /*! \brief Returns what is to be said, in the order in which it is best read. */
    const QVector<ExplanationStep> &steps() const { return m_steps; }

private:
    void add(ExplanationStep::Topic topic, const QString &text, const Place &place = {});
    void tellValue(const StoredValue &value);
    void tellUnknown();
    void tellWithoutEffect();
    void tellUsers();
    void tellTokens();
    QString reasonOf(const Definition &definition) const;

    const ThemeProject &m_input;
    const ThemeStack &m_theme;
    const QString m_key;
    bool m_isDefined = false;
    QVector<ExplanationStep> m_steps;
};

#endif

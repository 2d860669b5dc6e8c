// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_THEMEPROJECT_H
#define ANALYSIS_THEMEPROJECT_H

#include <analysis/style/stylerules.h>
#include <analysis/style/substitution.h>
#include <analysis/style/templatetext.h>
#include <analysis/theme/themestack.h>
#include <analysis/theme/vocabulary.h>

#include <map>
#include <memory>
#include <vector>

/*! \brief Which themes and templates a project has, and how an application uses them. */
struct ThemeProjectOptions {
    QString folder;
    QString suffix = defaultThemeSuffix();
    QHash<QString, QByteArray> contents; //!< by path: theme files as an editor has them
    QStringList themes; //!< by name; empty means all
    QStringList templates{QStringLiteral(":/stylesheet")};
    QString prefix = Tokens::defaultPrefix();
    QString applicationFolder; //!< absolute
    QString vocabularyFile;
    double minimalContrast = 4.5;
};

/*! \brief The themes of a folder with their templates, read once; it does not change. */
class ThemeProject
{
public:
    /*! \brief Reads it all; if nothing is returned, \a error is one sentence that says why. */
    static std::unique_ptr<ThemeProject> read(const ThemeProjectOptions &options, QString *error);

    const ThemeProjectOptions &options() const { return m_options; }
    const Vocabulary &vocabulary() const { return m_vocabulary; }
    const TemplateText &templates() const { return *m_templates; }
    /*! \brief Returns the rules of templates(), with tokens in their values. */
    const StyleRules &styleRules() const { return *m_styleRules; }

    /*! \brief Returns the tokens of templates() that do not stand in a comment. */
    const QVector<TemplateToken> &tokens() const { return m_tokens; }

    /*! \brief Returns all theme files that were read, the default file first. */
    const std::vector<std::unique_ptr<ThemeLayer>> &layers() const { return m_layers; }

    /*! \brief Returns paths of files that are no themes for the letter case of their suffix alone. */
    QStringList nearMisses() const { return m_nearMisses; }

    /*! \brief Returns the default theme alone, whether it is one of themes() or not. */
    const ThemeStack &base() const { return *m_base; }

    /*!
     * \brief Returns the themes that were asked for.
     *
     * If none was named they are those with a file of their own, or, if there are none, the
     * default theme: beside other themes the default file is what they have in common.
     */
    const std::vector<const ThemeStack *> &themes() const { return m_themes; }

    /*! \brief Returns base() and themes(), each once. */
    const std::vector<const ThemeStack *> &allThemes() const { return m_allThemes; }

    /*! \brief Returns the theme called \a name, or base() if it is not one of themes(). */
    const ThemeStack &theme(const QString &name) const;

    /*! \brief Returns the templates with the values of \a theme, which is one of themes(). */
    const FinishedStyleSheet &finished(const ThemeStack &theme) const
    {
        return m_finished.at(&theme);
    }

private:
    ThemeProject() = default;
    bool readThemes(QString *error);
    bool readTemplates(QString *error);
    bool isUnchanged(QString *error) const;

    ThemeProjectOptions m_options;
    Vocabulary m_vocabulary;
    QStringList m_nearMisses;
    std::optional<TemplateText> m_templates;
    std::optional<StyleRules> m_styleRules;
    QVector<TemplateToken> m_tokens;
    std::vector<std::unique_ptr<ThemeLayer>> m_layers;
    std::unique_ptr<ThemeStack> m_base;
    std::vector<std::unique_ptr<ThemeStack>> m_stacks;
    std::vector<const ThemeStack *> m_themes;
    std::vector<const ThemeStack *> m_allThemes;
    std::map<const ThemeStack *, FinishedStyleSheet> m_finished;
};

#endif

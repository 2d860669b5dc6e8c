// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/themeproject.h>

#include <analysis/messagelog.h>
#include <analysis/theme/themefolder.h>

#include <QFileInfo>

#include <algorithm>

namespace
{

std::unique_ptr<ThemeLayer> readLayer(const ThemeFolder &folder, const QString &name,
                                      const QHash<QString, QByteArray> &contents, QString *error)
{
    const QString path = folder.filePath(name);
    const auto unsaved = contents.constFind(path);
    const std::optional<ThemeFile> file = unsaved == contents.cend()
        ? folder.read(name, error)
        : ThemeFile::fromContent(path, *unsaved, error);
    if (!file)
        return nullptr;
    const MessageLog silence; // QSettings warns of empty keys
    auto layer =
        std::make_unique<ThemeLayer>(ThemeLayer{*file, ThemeValues::read(file->content()), name});
    for (const ThemeValue &value : layer->values.values) {
        if (value.gradientSize > gradientSizeLimit) {
            *error = QStringLiteral("%1: gradient %2 claims %3 stops, which takes the library "
                                    "minutes to read")
                         .arg(file->path(), value.key, QString::number(value.gradientSize));
            return nullptr;
        }
    }
    return layer;
}

} // namespace

std::unique_ptr<ThemeProject> ThemeProject::read(const ThemeProjectOptions &options, QString *error)
{
    std::unique_ptr<ThemeProject> project(new ThemeProject);
    project->m_options = options;
    project->m_vocabulary = Vocabulary::builtIn();
    if (!options.vocabularyFile.isEmpty()) {
        const std::optional<Vocabulary> vocabulary =
            Vocabulary::read(options.vocabularyFile, error);
        if (!vocabulary)
            return nullptr;
        project->m_vocabulary = *vocabulary;
    }
    if (!project->readThemes(error) || !project->readTemplates(error)
        || !project->isUnchanged(error))
        return nullptr;
    return project;
}

const ThemeStack &ThemeProject::theme(const QString &name) const
{
    const auto found = std::find_if(m_themes.cbegin(), m_themes.cend(),
                                    [&](const ThemeStack *stack) { return stack->name() == name; });
    return found == m_themes.cend() ? base() : **found;
}

bool ThemeProject::readThemes(QString *error)
{
    const std::optional<ThemeFolder> folder =
        ThemeFolder::open(m_options.folder, m_options.suffix, error);
    if (!folder)
        return false;
    for (const QString &file : folder->nearMisses())
        m_nearMisses << folder->path() % QLatin1Char('/') % file;
    QStringList names = m_options.themes.isEmpty() ? folder->themeNames() : m_options.themes;
    const bool hasDefault = names.removeAll(folder->themeNames().constFirst()) > 0;
    names.removeDuplicates();

    m_layers.push_back(
        readLayer(*folder, folder->themeNames().constFirst(), m_options.contents, error));
    if (!m_layers.back())
        return false;
    const ThemeLayer *base = m_layers.front().get();
    m_base = std::make_unique<ThemeStack>(base->name, base, nullptr);
    if (hasDefault && (!m_options.themes.isEmpty() || names.isEmpty()))
        m_themes.push_back(m_base.get());
    m_allThemes.push_back(m_base.get());
    for (const QString &name : qAsConst(names)) {
        m_layers.push_back(readLayer(*folder, name, m_options.contents, error));
        if (!m_layers.back())
            return false;
        m_stacks.push_back(std::make_unique<ThemeStack>(name, base, m_layers.back().get()));
        m_themes.push_back(m_stacks.back().get());
        m_allThemes.push_back(m_stacks.back().get());
    }
    return true;
}

bool ThemeProject::readTemplates(QString *error)
{
    m_templates = TemplateText::read(m_options.templates, m_options.prefix, error);
    if (!m_templates)
        return false;
    m_styleRules.emplace(m_templates->text());
    for (const TemplateToken &token : m_templates->tokens()) {
        if (!m_styleRules->isComment(token.offset))
            m_tokens.append(token);
    }
    for (const ThemeStack *theme : m_themes)
        m_finished[theme] = finishedStyleSheet(
            m_options.prefix, theme->values(m_options.applicationFolder), m_templates->text());
    return true;
}

// A file that somebody is writing, emptied perhaps and half full again, is none to report on.
bool ThemeProject::isUnchanged(QString *error) const
{
    QStringList changed;
    for (const auto &layer : m_layers) {
        if (!layer->file.isUnchanged())
            changed << layer->file.path();
    }
    for (const TemplateText::File &file : m_templates->files()) {
        if (!file.input.isUnchanged())
            changed << file.input.path();
    }
    if (!changed.isEmpty())
        *error = changed.constFirst() % QLatin1String(": changed while it was read, try again");
    return changed.isEmpty();
}

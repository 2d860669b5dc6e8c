// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "memory.h"

#include <QFileInfo>
#include <QSettings>

#include <algorithm>

namespace Gallery
{

namespace
{

constexpr int mostFolders = 8;
const QLatin1String themesKey("Themes/Folder");
const QLatin1String themeKey("Themes/Theme");
const QLatin1String applicationKey("Themes/ApplicationFolder");
const QLatin1String recentKey("Themes/Recent");
const QLatin1String formKey("Window/Form");
const QLatin1String pageKey("Window/Page");
const QLatin1String paneKey("Window/Pane");
const QLatin1String geometryKey("Window/Geometry");
const QLatin1String panesKey("Window/Panes");
const QLatin1String zoomKey("Window/Zoom");

} // namespace

void Memory::complete(Options *options) const
{
    if (m_settings == nullptr)
        return;
    const auto text = [this](QLatin1String key) { return m_settings->value(key).toString(); };
    ThemeSource &source = options->source;
    const QString folder = text(themesKey);
    if (source.themesFolder.isEmpty() && QFileInfo(folder).isDir()) {
        source.themesFolder = folder;
        if (source.applicationFolder.isEmpty() && QFileInfo(text(applicationKey)).isDir())
            source.applicationFolder = text(applicationKey);
    }
    if (source.themeName.isEmpty() && !folder.isEmpty()
        && QFileInfo(source.themesFolder).absoluteFilePath() == folder
        && themeNames(folder).contains(text(themeKey)))
        source.themeName = text(themeKey);
    if (options->formFile.isEmpty() && QFileInfo(text(formKey)).isFile())
        options->formFile = text(formKey);
    if (options->pages.isEmpty() && pageNames(*options).contains(text(pageKey)))
        options->pages = QStringList{text(pageKey)};
    if (!options->pane)
        options->pane = paneCalled(text(paneKey));
}

void Memory::keepSource(const ThemeSource &source)
{
    if (m_settings == nullptr)
        return;
    const QString folder = QFileInfo(source.themesFolder).absoluteFilePath();
    m_settings->setValue(themesKey, folder);
    m_settings->setValue(themeKey, source.themeName);
    m_settings->setValue(applicationKey, source.applicationFolder);
    QStringList recent = m_settings->value(recentKey).toStringList();
    recent.removeAll(folder);
    recent.prepend(folder);
    m_settings->setValue(recentKey, QStringList(recent.mid(0, mostFolders)));
}

void Memory::keepForm(const QString &file)
{
    if (m_settings != nullptr)
        m_settings->setValue(formKey, file.isEmpty() ? file : QFileInfo(file).absoluteFilePath());
}

void Memory::keepPage(const QString &page)
{
    if (m_settings != nullptr)
        m_settings->setValue(pageKey, page);
}

void Memory::keepPane(Pane pane)
{
    if (m_settings != nullptr)
        m_settings->setValue(paneKey, paneName(pane));
}

void Memory::keepWindow(const QByteArray &geometry, const QByteArray &panes, int zoom)
{
    if (m_settings == nullptr)
        return;
    m_settings->setValue(geometryKey, geometry);
    m_settings->setValue(panesKey, panes);
    m_settings->setValue(zoomKey, zoom);
}

QByteArray Memory::geometry() const
{
    return m_settings == nullptr ? QByteArray() : m_settings->value(geometryKey).toByteArray();
}

QByteArray Memory::panes() const
{
    return m_settings == nullptr ? QByteArray() : m_settings->value(panesKey).toByteArray();
}

int Memory::zoom() const
{
    constexpr int wholeSize = 100;
    return m_settings == nullptr ? wholeSize : m_settings->value(zoomKey, wholeSize).toInt();
}

QStringList Memory::recentFolders() const
{
    QStringList folders =
        m_settings == nullptr ? QStringList() : m_settings->value(recentKey).toStringList();
    folders.erase(std::remove_if(folders.begin(), folders.end(),
                                 [](const QString &folder) { return !QFileInfo(folder).isDir(); }),
                  folders.end());
    return folders;
}

} // namespace Gallery

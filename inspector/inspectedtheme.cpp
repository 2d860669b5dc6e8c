// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/inspectedtheme.h>

#include <format/themepath.h>
#include <hvtheme/theme.h>
#include <hvthemeapp/applicationtheme.h>

#include <QFileInfo>

InspectedTheme InspectedTheme::inForce()
{
    const HV::ApplicationTheme *look = HV::ApplicationTheme::inForce();
    if (!look || look->name().isNull())
        return {};
    InspectedTheme theme;
    theme.folder = QFileInfo(look->folder()).absoluteFilePath();
    if (look->folder().startsWith(QLatin1Char(':')))
        theme.folder = look->folder();
    theme.suffix = themeSuffixIn(look->folder(), look->suffix());
    theme.name = look->name();
    theme.values = look->theme()->values();
    theme.unsavedTexts = look->unsavedTexts();
    const auto templates = look->templates();
    for (const auto &source : templates)
        theme.templates.append({source.first, source.second});
    return theme;
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/inspectedtheme.h>

#include <format/themepath.h>
#include <hvtheme/theme.h>
#include <hvthemeapp/applicationtheme.h>

#include <QFileInfo>
#include <QPointer>
#include <QVariant>

InspectedTheme InspectedTheme::inForce()
{
    const HV::ApplicationTheme *look = HV::ApplicationTheme::inForce();
    if (!look || look->name().isNull())
        return {};
    InspectedTheme theme;
    // Its folder and suffix may be others by now than those of the look that it has.
    const QStringList files = look->property("hvthemeFilesInForce").toStringList();
    const QString folder = files.value(0, look->folder());
    theme.folder = isResourcePath(folder) ? folder : QFileInfo(folder).absoluteFilePath();
    theme.suffix = files.value(1, themeSuffixIn(folder, look->suffix()));
    theme.name = look->name();
    theme.values = look->theme()->values();
    theme.unsavedTexts = look->unsavedTexts();
    theme.accent = look->accent();
    const QPointer<HV::Theme> palette(look->theme());
    theme.entry = [palette](const QString &name) {
        return palette ? palette->readNamedColor(name).first : QColor();
    };
    const auto templates = look->templates();
    for (const auto &source : templates)
        theme.templates.append({source.first, source.second});
    return theme;
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "look.h"

#include <hvtheme/theming.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPalette>
#include <QPixmapCache>
#include <QSettings>

// The linker leaves out the resource of a static library that nobody names; the macro must stand
// outside every namespace.
static void initResource()
{
    Q_INIT_RESOURCE(gallery);
}

namespace Gallery
{

namespace
{

const QString defaultName = QStringLiteral("default");

QString themeFile(const QString &folder, const QString &name)
{
    return folder + QLatin1Char('/') + name + QLatin1String(".theme");
}

QStringList themeFileNames(const QString &folder)
{
    QStringList names;
    const auto files = QDir(folder).entryInfoList({"*.theme"}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files)
        names.append(file.completeBaseName());
    return names;
}

Problem checkThemesFolder(const LookSource &source)
{
    if (!QFileInfo(source.themesFolder).isDir()) {
        qCritical("The themes folder \"%ls\" does not exist. Name one that does with --themes.",
                  qUtf16Printable(source.themesFolder));
        return Problem::ThemesFolder;
    }
    const QString file = themeFile(source.themesFolder, defaultName);
    if (!QFileInfo(file).isReadable()) {
        qCritical("\"%ls\" is missing or cannot be read. Every themes folder needs it: put what "
                  "all themes share there, or name another folder with --themes.",
                  qUtf16Printable(file));
        return Problem::ThemesFolder;
    }
    return Problem::None;
}

Problem checkThemeName(const LookSource &source)
{
    const QString file = themeFile(source.themesFolder, source.themeName);
    if (source.themeName.isEmpty() || QFileInfo(file).isReadable())
        return Problem::None;
    qCritical("No theme named \"%ls\": \"%ls\" is missing or cannot be read. Choose one of: %ls.",
              qUtf16Printable(source.themeName), qUtf16Printable(file),
              qUtf16Printable(themeNames(source.themesFolder).join(QStringLiteral(", "))));
    return Problem::ThemeName;
}

Problem checkTemplateFolders(const LookSource &source)
{
    for (const QString &folder : source.templateFolders) {
        if (QFileInfo(folder).isDir())
            continue;
        qCritical("The templates folder \"%ls\" does not exist. Name one that does with "
                  "--templates.",
                  qUtf16Printable(folder));
        return Problem::Templates;
    }
    return Problem::None;
}

QStringList imageFiles(HV::Theme *theme)
{
    QStringList files;
    const QVariantMap &values = theme->values();
    for (const QVariant &value : values) {
        if (value.type() == QVariant::String)
            files.append(value.toString());
    }
    return files;
}

// A missing image is the library's to report, and the look stands without it.
Problem checkImages(HV::Theme *theme)
{
    const QStringList files = imageFiles(theme);
    for (const QString &file : files) {
        if (!QFileInfo::exists(file))
            continue;
        QImageReader reader(file);
        reader.setDecideFormatFromContent(true);
        if (!reader.read().isNull())
            continue;
        qCritical("The image \"%ls\" does not decode: %ls. Save it again, or name another in "
                  "section ImageFiles.",
                  qUtf16Printable(file), qUtf16Printable(reader.errorString()));
        return Problem::Image;
    }
    return Problem::None;
}

QStringList templateFiles(const QStringList &folders)
{
    QStringList files;
    for (const QString &folder : folders) {
        const QStringList names = QDir(folder).entryList({"*.qss", "*.css"}, QDir::Files);
        for (const QString &name : names)
            files.append(folder + QLatin1Char('/') + name);
    }
    return files;
}

// The built-in templates leave windows, tool bars, docks and menu bars to the palette.
QPalette paletteOf(HV::Theme *theme)
{
    const QVariantMap &values = theme->values();
    QPalette palette;
    const auto set = [&](QPalette::ColorRole role, const char *key) {
        const auto value = values.constFind(QLatin1String(key));
        if (value != values.cend())
            palette.setColor(role, value->value<QColor>());
    };
    set(QPalette::Window, "BackgroundColor_2");
    set(QPalette::Button, "BackgroundColor_4");
    set(QPalette::Base, "EditBackgroundColor");
    set(QPalette::AlternateBase, "BackgroundColor_3");
    set(QPalette::WindowText, "DefaultForegroundColor");
    set(QPalette::Text, "DefaultForegroundColor");
    set(QPalette::ButtonText, "DefaultForegroundColor");
    set(QPalette::Highlight, "Color_Brand_8");
    set(QPalette::HighlightedText, "Color_W100");
    set(QPalette::PlaceholderText, "DisabledForegroundColor");
    return palette;
}

} // namespace

QStringList themeNames(const QString &folder)
{
    QStringList names = themeFileNames(folder);
    // The default file usually holds what the others share, and is no look by itself.
    const QSettings settings(themeFile(folder, defaultName), QSettings::IniFormat);
    if (names.size() > 1 && !settings.childGroups().contains(QStringLiteral("Colors")))
        names.removeOne(defaultName);
    return names;
}

Look::Look(QObject *parent)
    : QObject(parent)
    , m_theme(std::make_unique<HV::WorkableTheme>())
{
    initResource();
}

Look::~Look() = default;

Problem Look::load(const LookSource &source)
{
    m_files = QStringList{themeFile(source.themesFolder, defaultName),
                          themeFile(source.themesFolder, source.themeName)}
        + templateFiles(source.templateFolders);
    for (const auto check : {checkThemesFolder, checkThemeName, checkTemplateFolders}) {
        const Problem problem = check(source);
        if (problem != Problem::None)
            return problem;
    }
    auto candidate = std::make_unique<HV::WorkableTheme>();
    HV::changeTheme(candidate.get(), source.themeName, source.themesFolder);
    m_files += imageFiles(candidate.get());
    const Problem problem = checkImages(candidate.get());
    if (problem != Problem::None)
        return problem;
    m_theme = std::move(candidate);
    apply(source);
    return Problem::None;
}

void Look::apply(const LookSource &source)
{
    QString sheet;
    const QStringList folders =
        QStringList{":/stylesheet", ":/gallery/stylesheet"} + source.templateFolders;
    for (const QString &folder : folders) {
        sheet += HV::findStyleSheet(m_theme.get(), folder, QStringLiteral("global"));
        sheet += QLatin1Char('\n'); // a template of the user's may end in an open comment line
    }
    QPixmapCache::clear(); // an image rewritten under its old name would stay
    qApp->setStyleSheet(QString()); // replacing a style sheet costs more than setting the first
    QApplication::setPalette(paletteOf(m_theme.get()));
    qApp->setStyleSheet(sheet);
}

} // namespace Gallery

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "appliedtheme.h"

#include <analysis/rules/rules.h>
#include <analysis/theme/storedvalues.h>
#include <analysis/themeproject.h>
#include <format/themepath.h>
#include <hvtheme/inifile.h>
#include <inspector/inspectedsheet.h>
#include <inspector/programchanges.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryFile>

#include <algorithm>

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

// Qt decodes an image whole, however small it is drawn; these are 128 MB.
constexpr qint64 pixelLimit = qint64(32) * 1024 * 1024;

// A pipe would be waited for.
bool isReadableFile(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() && info.isReadable();
}

Problem checkThemeName(const ThemeSource &source)
{
    const QString file = themeFilePath(source.themesFolder, source.themeName);
    if (source.themeName.isEmpty() || isReadableFile(file))
        return Problem::None;
    qCritical("No theme named \"%ls\": \"%ls\" is missing or cannot be read. Choose one of: %ls.",
              qUtf16Printable(source.themeName), qUtf16Printable(file),
              qUtf16Printable(themeNames(source.themesFolder).join(QStringLiteral(", "))));
    return Problem::ThemeName;
}

Problem checkTemplateFolders(const ThemeSource &source)
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

QStringList imageFiles(const QVariantMap &values)
{
    QStringList files;
    for (const QVariant &value : values) {
        if (value.userType() == QMetaType::QString)
            files.append(value.toString());
    }
    return files;
}

// What the templates name themselves; Qt would wait for a pipe among them.
QStringList filesNamedIn(const QString &styleSheet)
{
    static const QRegularExpression url(QStringLiteral("url\\(\\s*[\"']?([^)\"'\n]+)"));
    QStringList files;
    for (auto hits = url.globalMatch(styleSheet); hits.hasNext();)
        files.append(hits.next().captured(1).trimmed());
    return files;
}

Problem imageProblem(const QString &file, const QString &reason, const QString &place)
{
    qCritical("The image \"%ls\" does not decode: %ls%ls. Save it again, or name another in "
              "section ImageFiles.",
              qUtf16Printable(file), qUtf16Printable(reason), qUtf16Printable(place));
    return Problem::Image;
}

// Returns " (FILE:LINE)" for the image of a theme, else nothing.
QString placeOfImage(const ThemeStack &theme, const QVariantMap &values, const QString &file)
{
    const Definition *definition = theme.find(Kind::ImageFile, values.key(file));
    return definition ? QLatin1String(" (") + definition->keyPlace().shortText() + QLatin1Char(')')
                      : QString();
}

// A missing image is the library's to report, and the rest of the theme stands without it.
Problem checkImages(const ThemeStack &theme, const QVariantMap &values, const QString &styleSheet)
{
    const QStringList named = filesNamedIn(styleSheet);
    for (const QString &file : named) {
        const QFileInfo info(file);
        if (info.exists() && !info.isFile() && !info.isDir())
            return imageProblem(file, QStringLiteral("not a regular file"),
                                placeOfImage(theme, values, file));
    }
    const QStringList files = imageFiles(values);
    for (const QString &file : files) {
        const QFileInfo info(file);
        if (!info.exists())
            continue;
        if (!info.isFile())
            return imageProblem(file, QStringLiteral("not a regular file"),
                                placeOfImage(theme, values, file));
        QImageReader reader(file);
        reader.setDecideFormatFromContent(true);
        const QSize size = reader.size();
        if (qint64(size.width()) * size.height() > pixelLimit)
            return imageProblem(
                file,
                QStringLiteral("%1 x %2 pixels are too many").arg(size.width()).arg(size.height()),
                placeOfImage(theme, values, file));
        if (reader.read().isNull())
            return imageProblem(file, reader.errorString(), placeOfImage(theme, values, file));
    }
    return Problem::None;
}

Problem checkSubstitution(const ThemeProject &project, const ThemeStack &theme)
{
    const QString key = project.finished(theme).endlessKey;
    if (key.isNull())
        return Problem::None;
    QString place = theme.displayName();
    if (const std::optional<Kind> kind = kindInStyleSheets(theme, key))
        place = theme.find(*kind, key)->keyPlace().shortText();
    qCritical("%ls: the value of %ls leads back to its own token, so the style sheet would never "
              "be done. Give it a value without tokens.",
              qUtf16Printable(place), qUtf16Printable(key));
    return Problem::Endless;
}

QStringList templateFiles(const QStringList &folders)
{
    QStringList files;
    for (const QString &folder : folders)
        files += templateFilePaths(folder);
    return files;
}

// Themes name images relative to the program that they are for. The library looks beside this one,
// so it gets a text that names the same images from here.
QByteArray textWithImagesFrom(const QString &applicationFolder, const QByteArray &theme)
{
    QTemporaryFile copy;
    if (!copy.open() || copy.write(HV::iniText(theme)) < 0 || !copy.flush())
        return {};
    {
        QSettings settings(copy.fileName(), QSettings::IniFormat);
        settings.beginGroup(QStringLiteral("ImageFiles"));
        const QDir ownFolder(QCoreApplication::applicationDirPath());
        const QStringList keys = settings.childKeys();
        for (const QString &key : keys) {
            const QString path = settings.value(key).toString();
            if (path.isEmpty() || path.startsWith(QLatin1String(":/")))
                continue;
            const QString image = QDir::cleanPath(applicationFolder + QLatin1Char('/') + path);
            settings.setValue(key, ownFolder.relativeFilePath(image));
        }
    }
    QFile written(copy.fileName()); // a new file of that name
    return written.open(QIODevice::ReadOnly) ? HV::asciiIniText(written.readAll()) : QByteArray();
}

} // namespace

Problem checkThemesFolder(const ThemeSource &source)
{
    if (!QFileInfo(source.themesFolder).isDir()) {
        qCritical("The themes folder \"%ls\" does not exist. Name one that does with --themes.",
                  qUtf16Printable(source.themesFolder));
        return Problem::ThemesFolder;
    }
    const QString file = themeFilePath(source.themesFolder, defaultThemeName());
    if (!isReadableFile(file)) {
        qCritical("\"%ls\" is missing or cannot be read. Every themes folder needs it: put what "
                  "all themes share there, or name another folder with --themes.",
                  qUtf16Printable(file));
        return Problem::ThemesFolder;
    }
    return Problem::None;
}

QStringList themeNames(const QString &folder)
{
    QStringList names = listThemes(folder).names;
    names.erase(std::remove_if(names.begin(), names.end(),
                               [&](const QString &name) {
                                   return !isReadableFile(themeFilePath(folder, name));
                               }),
                names.end());
    if (!isReadableFile(themeFilePath(folder, defaultThemeName())))
        return names;
    // The default file usually holds what the others share, and is no look by itself.
    const QString path = themeFilePath(folder, defaultThemeName());
    const QSettings settings(path, HV::iniFormat(path));
    if (names.size() > 1 && !settings.childGroups().contains(QStringLiteral("Colors")))
        names.removeOne(defaultThemeName());
    return names;
}

AppliedTheme::AppliedTheme(QObject *parent)
    : QObject(parent)
{
    initResource();
    // What comes in steps, a folder and then a name, is told when it is done.
    connect(
        &m_look, &HV::ApplicationTheme::changed, this,
        [this] {
            if (m_isLoaded && qMakePair(m_look.folder(), m_look.name()) != m_applied)
                Q_EMIT left(m_look.folder(), m_look.name());
        },
        Qt::QueuedConnection);
}

AppliedTheme::~AppliedTheme() = default;

Problem AppliedTheme::load(const ThemeSource &source)
{
    m_files = QStringList{themeFilePath(source.themesFolder, defaultThemeName()),
                          themeFilePath(source.themesFolder, source.themeName)}
        + templateFiles(source.templateFolders);
    m_project.reset();
    for (const auto check : {checkThemesFolder, checkThemeName, checkTemplateFolders}) {
        const Problem problem = check(source);
        if (problem != Problem::None)
            return problem;
    }
    // The library takes files as they are; what it would wait for, or never be done with, is found
    // without it.
    Problem problem = readProject(source);
    if (problem != Problem::None)
        return problem;
    const ThemeStack &stack = m_project->theme(m_name);
    problem = checkSubstitution(*m_project, stack);
    if (problem != Problem::None)
        return problem;
    const QVariantMap values = stack.values(m_project->options().applicationFolder);
    m_files += imageFiles(values);
    problem = checkImages(stack, values, m_project->finished(stack).text);
    if (problem != Problem::None)
        return problem;

    return apply(source);
}

Problem AppliedTheme::readProject(const ThemeSource &source)
{
    m_name = source.themeName.isEmpty() ? defaultThemeName() : source.themeName;
    ThemeProjectOptions options;
    options.folder = source.themesFolder;
    options.themes = QStringList{m_name};
    options.templates =
        QStringList{":/stylesheet", ":/hvthemeapp/stylesheet", ":/gallery/stylesheet"}
        + templateFiles(source.templateFolders);
    options.applicationFolder = source.applicationFolder.isEmpty()
        ? QCoreApplication::applicationDirPath()
        : source.applicationFolder;
    QString error;
    m_project = ThemeProject::read(options, &error);
    if (m_project)
        return Problem::None;
    qCritical("%ls. Mend it, or name another with --themes, --theme or --templates.",
              qUtf16Printable(error));
    if (m_name != defaultThemeName()
        && error.startsWith(themeFilePath(source.themesFolder, m_name)))
        return Problem::ThemeName;
    return error.startsWith(source.themesFolder + QLatin1Char('/')) ? Problem::ThemesFolder
                                                                    : Problem::Templates;
}

Problem AppliedTheme::apply(const ThemeSource &source)
{
    const QString folder = source.themesFolder;
    QHash<QString, QByteArray> texts;
    if (!source.applicationFolder.isEmpty()) {
        for (const QString &name : {defaultThemeName(), m_name}) {
            const QString file = themeFilePath(folder, name);
            QFile theme(file);
            const QByteArray text =
                theme.open(QIODevice::ReadOnly) ? theme.readAll() : QByteArray();
            texts.insert(file, textWithImagesFrom(source.applicationFolder, text));
        }
    }
    showChangesWithImagesFrom(source.applicationFolder);
    const QStringList templateFolders =
        QStringList{":/gallery/stylesheet"} + source.templateFolders;
    for (const QString &templates : templateFolders) {
        if (m_templateFolders.contains(templates))
            continue;
        if (!m_look.addTemplates(templates))
            return Problem::Templates;
        m_templateFolders.append(templates);
    }
    if (m_look.folder() != QFileInfo(folder).absoluteFilePath() && !m_look.setFolder(folder))
        return Problem::ThemesFolder;
    if (texts != m_texts) { // else they are whoever's who changes themes in this program
        m_texts = texts;
        m_look.setUnsavedTexts(texts); // what is wrong with the look before is not asked
        ProgramChanges::ofProgram()->showAgain();
    }
    const bool isApplied = m_look.setName(m_name);
    m_isLoaded = m_isLoaded || isApplied;
    m_applied = {m_look.folder(), m_look.name()};
    if (isApplied)
        return Problem::None;
    // All else has been looked at before, so it is a template, or a theme beyond what themes may be.
    return m_look.problem().contains(QLatin1String("templates folder")) ? Problem::Templates
                                                                        : Problem::ThemeName;
}

// Changes are made to the files as they are; the library gets them like the files themselves.
void AppliedTheme::showChangesWithImagesFrom(const QString &applicationFolder)
{
    m_applicationFolder = applicationFolder;
    ProgramChanges::Translation translation;
    if (!applicationFolder.isEmpty())
        translation = [applicationFolder](const QByteArray &text) {
            return textWithImagesFrom(applicationFolder, text);
        };
    ProgramChanges::ofProgram()->setTranslation(translation);
}

std::unique_ptr<InspectedSheet> AppliedTheme::inspectedSheet() const
{
    InspectedTheme theme = InspectedTheme::inForce();
    if (!m_applicationFolder.isEmpty()) {
        theme.applicationFolder = m_applicationFolder;
        theme.unsavedTexts = ProgramChanges::ofProgram()->contents();
    }
    return std::make_unique<InspectedSheet>(qApp->styleSheet(), theme);
}

QVector<QPair<QString, QColor>> AppliedTheme::palette() const
{
    QVector<QPair<QString, QColor>> entries;
    if (!m_project)
        return entries;
    const auto values = storedValues(m_project->theme(m_name),
                                     m_project->options().applicationFolder, Kind::Palette);
    for (const StoredValue &value : values)
        entries.append({value.key(), value.value.value<QColor>()});
    return entries;
}

QString AppliedTheme::placesFor(const QString &message) const
{
    if (!m_project)
        return {};
    static const QRegularExpression quotedText(QStringLiteral("\"([^\"]+)\""));
    const ThemeStack &stack = m_project->theme(m_name);
    QStringList places;
    for (auto hits = quotedText.globalMatch(message); hits.hasNext();) {
        const QString quoted = hits.next().captured(1);
        for (const Definition &definition : stack.definitions()) {
            if (definition.key() == quoted || definition.value->text() == quoted)
                places << definition.keyPlace().shortText();
        }
    }
    places.removeDuplicates();
    return places.join(QLatin1String(", "));
}

} // namespace Gallery

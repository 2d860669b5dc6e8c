// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "options.h"

#include "pages.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace Gallery
{

QStringList pageNames(const Options &options)
{
    QStringList names;
    for (const Page &page : pages())
        names.append(page.name);
    if (!options.formFile.isEmpty())
        names.append(QString::fromLatin1(formPageName));
    return names;
}

QString paneName(Pane pane)
{
    switch (pane) {
    case Pane::Inspector:
        return QStringLiteral("inspector");
    case Pane::Findings:
        return QStringLiteral("findings");
    case Pane::Messages:
        break;
    }
    return QStringLiteral("messages");
}

std::optional<Pane> paneCalled(const QString &name)
{
    for (const Pane pane : {Pane::Inspector, Pane::Findings, Pane::Messages}) {
        if (paneName(pane) == name)
            return pane;
    }
    return std::nullopt;
}

namespace
{

constexpr int largestScale = 4;

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Shows every widget that the style sheet templates know, in every state, "
                       "and restyles at once when a theme changes on disk."));
    parser.addOption({{"h", "help"}, "Show this help."});
    parser.addOption({{"v", "version"}, "Show the version."});
    parser.addOptions({
        {"themes", "Folder of theme files (the themes that come with the library).", "DIR"},
        {"theme",
         "Theme to show; with --screenshot may be given several times, or separated by "
         "commas.",
         "NAME"},
        {"templates",
         "Folder of templates to add after the built-in ones; may be given several "
         "times.",
         "DIR"},
        {"app-dir", "The application's folder, which image paths start from (this program's own).",
         "DIR"},
        {"ui", "A form to show as the page \"form\".", "FORM.ui"},
        {"page",
         "Page to show; with --screenshot may be given several times, or separated by "
         "commas.",
         "NAME"},
        {"screenshot",
         "Write PAGE-THEME.png for each page and theme to DIR and exit. Needs no "
         "display.",
         "DIR"},
        {"scale",
         "Device pixel ratio of the screenshots, 1 to 4; above 1 they are named "
         "PAGE-THEME@2x.png.",
         "N", "1"},
        {"vision",
         "See with other eyes: protan, deutan or tritan (normal). The screenshots are named "
         "PAGE-THEME-VISION.png.",
         "NAME", "normal"},
        {"pane",
         "Pane to open: inspector, findings or messages. The screenshots show the whole window "
         "with "
         "it and are named PAGE-THEME-PANE.png.",
         "NAME"},
        {"join", "Also write each page with its themes side by side, PAGE-THEME-THEME.png."},
    });
}

QStringList splitValues(const QStringList &values)
{
    return values.join(QLatin1Char(',')).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

QString errorIn(const Options &options, const QCommandLineParser &parser)
{
    const QString folder = parser.value(QStringLiteral("app-dir"));
    if (parser.isSet(QStringLiteral("app-dir")) && !QFileInfo(folder).isDir())
        return QStringLiteral("The application's folder \"%1\" does not exist.").arg(folder);
    if (parser.isSet(QStringLiteral("screenshot")) && options.screenshotFolder.isEmpty())
        return QStringLiteral("--screenshot needs the name of a folder.");
    if (options.scale < 1 || options.scale > largestScale)
        return QStringLiteral("--scale takes a number from 1 to %1.").arg(largestScale);
    const QString vision = parser.value(QStringLiteral("vision"));
    if (!ColorMath::visionCalled(vision))
        return QStringLiteral(
                   "No vision named \"%1\". Choose one of: normal, protan, deutan, tritan.")
            .arg(vision);
    if (parser.isSet(QStringLiteral("pane")) && !options.pane)
        return QStringLiteral("No pane named \"%1\". Choose one of: inspector, findings, messages.")
            .arg(parser.value(QStringLiteral("pane")));
    const QStringList known = pageNames(options);
    for (const QString &page : options.pages) {
        if (!known.contains(page))
            return QStringLiteral("No page named \"%1\". Choose one of: %2.")
                .arg(page, known.join(QStringLiteral(", ")));
    }
    if (options.screenshotFolder.isEmpty()
        && (options.themes.size() > 1 || options.pages.size() > 1))
        return QStringLiteral("Several themes or pages make sense with --screenshot only.");
    for (const QString &option : {QStringLiteral("scale"), QStringLiteral("join")}) {
        if (options.screenshotFolder.isEmpty() && parser.isSet(option))
            return QStringLiteral("--%1 makes sense with --screenshot only.").arg(option);
    }
    return {};
}

} // namespace

Options readOptions(const QStringList &arguments, const QString &defaultThemesFolder)
{
    QCommandLineParser parser;
    describe(parser);
    Options options;
    if (!parser.parse(arguments)) {
        options.error = parser.errorText();
        return options;
    }
    options.help = parser.isSet(QStringLiteral("help"));
    options.version = parser.isSet(QStringLiteral("version"));
    options.source.themesFolder = parser.isSet(QStringLiteral("themes"))
        ? parser.value(QStringLiteral("themes"))
        : defaultThemesFolder;
    options.source.templateFolders = parser.values(QStringLiteral("templates"));
    // As QCoreApplication::applicationDirPath() would give it: absolute, without links.
    if (parser.isSet(QStringLiteral("app-dir")))
        options.source.applicationFolder =
            QFileInfo(parser.value(QStringLiteral("app-dir"))).canonicalFilePath();
    options.formFile = parser.value(QStringLiteral("ui"));
    options.screenshotFolder = parser.value(QStringLiteral("screenshot"));
    options.pages = splitValues(parser.values(QStringLiteral("page")));
    options.themes = splitValues(parser.values(QStringLiteral("theme")));
    options.source.themeName = options.themes.value(0);
    options.scale = parser.value(QStringLiteral("scale")).toInt();
    options.vision = ColorMath::visionCalled(parser.value(QStringLiteral("vision")))
                         .value_or(ColorMath::Vision::Normal);
    options.pane = paneCalled(parser.value(QStringLiteral("pane")));
    options.join = parser.isSet(QStringLiteral("join"));
    options.error = parser.positionalArguments().isEmpty()
        ? errorIn(options, parser)
        : QStringLiteral("Unexpected argument \"%1\".").arg(parser.positionalArguments().first());
    return options;
}

QString helpText()
{
    QCommandLineParser parser;
    describe(parser);
    QStringList names;
    for (const Page &page : pages())
        names.append(page.name);
    return parser.helpText()
        + QStringLiteral("\nPages: %1.\n").arg(names.join(QStringLiteral(", ")))
        + QStringLiteral(
               "\nExit codes of --screenshot:\n"
               "  0  every picture is written\n"
               "  2  the command line is wrong, there is no display to open a window on, or the "
               "themes folder is missing or holds no default.theme that can be read\n"
               "  3  there is no theme of that name, or it cannot be read\n"
               "  4  a folder of templates is missing, or a template cannot be read\n"
               "  5  the form cannot be read\n"
               "  6  an image of the theme does not decode\n"
               "  7  a picture cannot be written\n"
               "  8  a value of the theme leads back to its own token\n"
               "Of several problems the first decides. What, where and what to do is on stderr.\n");
}

} // namespace Gallery

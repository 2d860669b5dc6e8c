// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_sheet.h>

#include <analysis/suggestion.h>
#include <sheet/sheetimage.h>
#include <sheet/sheetmodel.h>
#include <sheet/sheetpage.h>
#include <sheet/sheetpicture.h>
#include <tools/commandline.h>
#include <tools/outputfile.h>
#include <tools/outputtext.h>
#include <tools/themeoptions.h>

#include <limits>

namespace
{

QString outputOption()
{
    return QStringLiteral("output");
}

QString backgroundOption()
{
    return QStringLiteral("background");
}

QString visionOption()
{
    return QStringLiteral("vision");
}

void addOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(QStringLiteral(
        "Draws themes side by side: the palette's runs, every colour with its value and how it\n"
        "stands out from the background, images, font sizes, gradients and flags. A page is one\n"
        "file that needs nothing else.\n\n"
        "Exit code: 0 done, 2 wrong usage or nothing to read."));
    ThemeOptions::add(parser);
    parser->addPositionalArgument(QStringLiteral("THEME"), QStringLiteral("Names of themes."),
                                  QStringLiteral("THEME..."));
    parser->addOption({backgroundOption(),
                       "Colour or palette entry to show colours on (default: BackgroundColor_3).",
                       "key", "BackgroundColor_3"});
    parser->addOption({visionOption(),
                       "Eyes to show the sheet as seen by: normal, protan, deutan or tritan "
                       "(default: normal).",
                       "vision", "normal"});
    parser->addOption({{QStringLiteral("o"), outputOption()},
                       "File to write: a picture (.png) or a page (.html).",
                       "file"});
}

void reportLargeImages(const SheetModel &model)
{
    QStringList reported;
    for (const SheetTheme &theme : model.themes()) {
        for (const StoredValue &image : theme.values[int(Kind::ImageFile)]) {
            const QString path = image.value.toString();
            const QString reason = whyTooLarge(path);
            if (reason.isEmpty() || reported.contains(path))
                continue;
            reported << path;
            printError(QLatin1String("image file ") % image.key() % QLatin1String(": ") % path
                       % QLatin1Char(' ') % reason
                       % QLatin1String(", too much for a sheet, which shows it as missing"));
        }
    }
}

} // namespace

int runSheet(const QStringList &arguments)
{
    const QString name = QStringLiteral("sheet");
    QCommandLineParser parser;
    addOptions(&parser);
    if (const std::optional<int> code = parseArguments(parser, name, arguments))
        return *code;
    const QString file = parser.value(outputOption());
    const bool isPage = file.endsWith(QLatin1String(".html"), Qt::CaseInsensitive);
    if (!isPage && !file.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        return usageError(name, QStringLiteral("--output must name a .png or .html file"));
    const auto vision = ColorMath::visionCalled(parser.value(visionOption()));
    if (!vision)
        return usageError(name,
                          QLatin1String("no vision is called \"") % parser.value(visionOption())
                              % QLatin1String("\"; there are normal, protan, deutan and tritan"));
    const auto project =
        ThemeOptions::readProject(name, parser, {1, std::numeric_limits<int>::max()});
    if (!project)
        return ExitUnusable;

    QStringList themes = parser.positionalArguments().mid(1);
    themes.removeDuplicates();
    const QString background = parser.value(backgroundOption());
    SheetModel model(*project, themes, background);
    model.setVision(*vision);
    if (parser.isSet(backgroundOption()) && !model.hasGround())
        return usageError(name,
                          QLatin1String("no theme has a colour or palette entry called ")
                              % background
                              % Suggestion(model.keys(Kind::Color) + model.keys(Kind::Palette))
                                    .question(background));
    reportLargeImages(model);
    QString error;
    const QByteArray content = isPage ? sheetPage(model) : sheetPicture(model, &error);
    if (!content.isEmpty() && writeFile(file, content, ThemeOptions::files(*project), &error))
        return ExitDone;
    printError(error);
    return ExitUnusable;
}

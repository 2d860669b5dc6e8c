// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_import.h>

#include <analysis/theme/inputfile.h>
#include <exchange/designtokens.h>
#include <exchange/themewriter.h>
#include <format/applicationkeys.h>
#include <format/themepath.h>
#include <maker/pairs.h>
#include <maker/themefiles.h>
#include <maker/themetext.h>
#include <tools/commandline.h>
#include <tools/outputfile.h>
#include <tools/outputtext.h>
#include <tools/themeoptions.h>

#include <QDir>

#include <algorithm>

namespace
{

const QString commandName = QStringLiteral("import");
constexpr qint64 largestFile = 16 * 1024 * 1024;

struct Wishes {
    QString name; // of the theme or the set, or empty
    QString suffix; // of theme files
};

// The colour that tokens of another author mean as the brand: by name, else the most colourful one.
QString brandEntry(const Exchange::ThemeContent &theme)
{
    const QStringList names = theme.palette.keys();
    for (const char *word : {"brand", "primary", "accent"}) {
        for (const QString &name : names) {
            if (name.contains(QLatin1String(word), Qt::CaseInsensitive)
                && theme.palette.value(name).alpha() == 255)
                return name;
        }
    }
    const auto chroma = [&](const QString &name) {
        const QColor color = theme.palette.value(name);
        return color.alpha() == 255 ? color.hsvSaturation() * color.value() : -1;
    };
    return *std::max_element(names.cbegin(), names.cend(), [&](const QString &a, const QString &b) {
        return chroma(a) < chroma(b);
    });
}

// Tokens that name none of a theme's colours are a palette: themes are made of its brand, and its
// entries stand in the default file for those who want them.
Maker::MadeThemes themesOfPalette(const Exchange::ThemeContent &tokens, const Wishes &wishes)
{
    Maker::Order order;
    order.suffix = wishes.suffix;
    const QString brand = brandEntry(tokens);
    order.parameters.brand = tokens.palette.value(brand);
    order.name = wishes.name;
    Maker::MadeThemes made = Maker::makeThemes(order);
    Maker::ThemeText base(made.files.first().content);
    const QStringList own = base.keys(QStringLiteral("Palettes"));
    for (auto it = tokens.palette.cbegin(); it != tokens.palette.cend(); ++it) {
        if (own.contains(it.key()))
            made.notes.append(QLatin1String("the palette entry ") % it.key()
                              % QLatin1String(" is made of the brand; the token is left out"));
        else
            base.setValue(QStringLiteral("Palettes"), it.key(), Maker::hexadecimal(it.value()));
    }
    made.files.first().content = base.text();
    made.notes.prepend(QLatin1String("no token names a colour of a theme, so themes are made of ")
                       % brand % QLatin1String(", ") % Maker::hexadecimal(order.parameters.brand));
    return made;
}

bool isColorOfTemplates(const QString &key)
{
    const QVector<Maker::ColorPair> &pairs = Maker::colorPairs();
    return isOptionalColor(key)
        || std::any_of(pairs.cbegin(), pairs.cend(), [&](const Maker::ColorPair &pair) {
               return pair.foreground == key || pair.layers.contains(key);
           });
}

// Tells whether this is a theme and not only colours: exported by the command, or with a colour that
// the templates ask for.
bool isTheme(const Exchange::ThemeContent &tokens)
{
    const QStringList keys = tokens.colors.keys();
    return !keys.isEmpty()
        && (!tokens.name.isEmpty() || std::any_of(keys.cbegin(), keys.cend(), isColorOfTemplates));
}

// The theme's name in file names: what was asked for, else the one in the tokens, if it can be that.
QString nameOfTheme(const Exchange::ThemeContent &tokens, const QString &name)
{
    QString chosen = name.isEmpty() ? tokens.name : name;
    if (chosen.isEmpty() || !Maker::isThemeName(chosen)
        || chosen.compare(defaultThemeName(), Qt::CaseInsensitive) == 0)
        chosen = QStringLiteral("imported");
    return chosen.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
}

std::optional<Maker::MadeThemes> themesOf(const Exchange::ThemeContent &tokens,
                                          const Wishes &wishes, QString *error)
{
    Exchange::ThemeContent theme = tokens;
    if (isTheme(tokens)) {
        if (!wishes.name.isEmpty())
            theme.displayName = wishes.name;
        return Exchange::themeFiles(theme, nameOfTheme(tokens, wishes.name), wishes.suffix, error);
    }
    theme.palette = Exchange::wholePalette(tokens);
    if (!theme.palette.isEmpty())
        return themesOfPalette(theme, wishes);
    *error = QStringLiteral("there is no token of the type color");
    return std::nullopt;
}

std::optional<Maker::MadeThemes> themesOfFile(const QString &path, const Wishes &wishes,
                                              QString *error)
{
    const auto input = InputFile::read(path, largestFile, error);
    if (!input)
        return std::nullopt;
    std::optional<Maker::MadeThemes> made;
    if (const auto tokens = Exchange::readDesignTokens(input->content(), error))
        made = themesOf(*tokens, wishes, error);
    if (!made)
        *error = path % QLatin1String(": ") % *error;
    return made;
}

} // namespace

int runImport(const QStringList &arguments)
{
    const QString nameOption = QStringLiteral("name");
    const QString forceOption = QStringLiteral("force");
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Makes a folder of themes of design tokens (JSON). What hvtheme export wrote comes back as "
        "it\n"
        "was; of the tokens of others, colours become palette entries and themes are made of their "
        "brand.\n\n"
        "Exit code: 0 done, 2 wrong usage or nothing written."));
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("File of design tokens."));
    parser.addPositionalArgument(QStringLiteral("FOLDER"),
                                 QStringLiteral("Folder to write; made if it is not there."));
    parser.addOption(ThemeOptions::suffixOption());
    parser.addOption({nameOption, "Name of the theme or the set.", "name"});
    parser.addOption({forceOption, "Write over theme files that are there."});
    if (const std::optional<int> code = parseArguments(parser, commandName, arguments))
        return *code;
    const QStringList positional = parser.positionalArguments();
    const QString name = parser.value(nameOption);
    if (positional.size() < 2 || positional.at(1).isEmpty())
        return usageError(commandName, QStringLiteral("FILE and FOLDER are needed"));
    if (positional.size() > 2)
        return usageError(commandName, QLatin1String("one argument too many: ") % positional.at(2));
    if (!Maker::isThemeName(name)
        || name.compare(QLatin1String("default"), Qt::CaseInsensitive) == 0)
        return usageError(commandName,
                          QLatin1String("--name: \"") % name
                              % QLatin1String("\" cannot name files"));
    const QString wrongSuffix = ThemeOptions::mistakeInSuffix(parser);
    if (!wrongSuffix.isEmpty())
        return usageError(commandName, wrongSuffix);

    QString error;
    const Wishes wishes{name, parser.value(ThemeOptions::suffixOption())};
    const auto made = themesOfFile(positional.at(0), wishes, &error);
    if (!made
        || !Maker::writeThemeFiles(positional.at(1), made->files, parser.isSet(forceOption), &error,
                                   wishes.suffix)) {
        printError(error);
        return ExitUnusable;
    }
    return writeStandardOutput(Maker::writtenFiles(positional.at(1), *made)) ? ExitDone
                                                                             : ExitUnusable;
}

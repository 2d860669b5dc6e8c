// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_import.h>

#include <analysis/theme/inputfile.h>
#include <colormath/oklch.h>
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

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace
{

const QString commandName = QStringLiteral("import");
constexpr qint64 largestFile = qint64(16) * 1024 * 1024;

struct Wishes {
    QString name; // of the theme or the set, or empty
    QString suffix; // of theme files
};

// Those of the names that are as is wanted, or all if none is.
template<typename IsWanted>
QStringList preferred(const QStringList &names, IsWanted isWanted)
{
    QStringList wanted;
    std::copy_if(names.cbegin(), names.cend(), std::back_inserter(wanted), isWanted);
    return wanted.isEmpty() ? names : wanted;
}

// The opaque colour that tokens of another author mean as the brand, or an empty name: what is called
// so; of a scale its middle, which all scales to 900 call 500; and of what is left the most colourful.
QString brandEntry(const Exchange::ThemeContent &theme)
{
    QStringList names;
    for (auto it = theme.palette.cbegin(); it != theme.palette.cend(); ++it) {
        if (it->alpha() == 255)
            names.append(it.key());
    }
    if (names.isEmpty())
        return {};
    for (const char *text : {"brand", "primary", "accent"}) {
        const QLatin1String word(text);
        names = preferred(
            names, [&](const QString &name) { return name.contains(word, Qt::CaseInsensitive); });
    }
    static const QRegularExpression called(QStringLiteral("(?:brand|primary|accent)$"),
                                           QRegularExpression::CaseInsensitiveOption);
    names = preferred(names, [](const QString &name) { return name.contains(called); });
    static const QRegularExpression middle(QStringLiteral("(?:^|[^0-9])500$"));
    names = preferred(names, [](const QString &name) { return name.contains(middle); });
    const auto chroma = [&](const QString &name) {
        return ColorMath::toOklch(theme.palette.value(name)).chroma;
    };
    return *std::max_element(names.cbegin(), names.cend(), [&](const QString &a, const QString &b) {
        return chroma(a) < chroma(b);
    });
}

// One sentence for all entries that were left out.
QString leftOut(const QStringList &entries)
{
    if (entries.size() == 1)
        return QLatin1String("the palette entry ") % entries.constFirst()
            % QLatin1String(" is made of the brand; the token is left out");
    constexpr int shown = 3;
    return QString::number(entries.size()) % QLatin1String(" palette entries (")
        % entries.mid(0, shown).join(QLatin1String(", "))
        % QLatin1String(entries.size() > shown ? ", ..." : "")
        % QLatin1String(") are made of the brand; the tokens are left out");
}

// Tokens that name none of a theme's colours are a palette: themes are made of its brand, and its
// entries stand in the default file for those who want them.
std::optional<Maker::MadeThemes> themesOfPalette(const Exchange::ThemeContent &tokens,
                                                 const Wishes &wishes, QString *error)
{
    Maker::Order order;
    order.suffix = wishes.suffix;
    const QString brand = brandEntry(tokens);
    if (brand.isEmpty()) {
        *error = QStringLiteral("all colours are translucent; a theme is made of opaque colours");
        return std::nullopt;
    }
    order.parameters.brand = tokens.palette.value(brand);
    order.name = wishes.name;
    Maker::MadeThemes made = Maker::makeThemes(order);
    Maker::ThemeText base(made.files.first().content);
    const QStringList own = base.keys(QStringLiteral("Palettes"));
    QStringList left;
    for (auto it = tokens.palette.cbegin(); it != tokens.palette.cend(); ++it) {
        if (own.contains(it.key()))
            left.append(it.key());
        else
            base.setValue(QStringLiteral("Palettes"), it.key(), Maker::hexadecimal(it.value()));
    }
    made.files.first().content = base.text();
    made.notes.prepend(QLatin1String("no token names a colour of a theme, so themes are made of ")
                       % brand % QLatin1String(", ") % Maker::hexadecimal(order.parameters.brand));
    if (!left.isEmpty())
        made.notes.append(leftOut(left));
    return made;
}

// Tells whether a file of the folder can be called so; the library misreads a "%" in paths.
bool isFileBaseName(const QString &name)
{
    constexpr int longest = 60; // characters, of which each may take four bytes
    static const QRegularExpression pattern(QStringLiteral("^[\\w-](?:[\\w .+()-]*[\\w+()-])?$"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    return name.size() <= longest && pattern.match(name).hasMatch();
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
    return !tokens.name.isEmpty() || std::any_of(keys.cbegin(), keys.cend(), isColorOfTemplates);
}

// The theme's name in file names: what was asked for, else the one in the tokens. That of a default
// file alone stays; in other letters it would be a theme that is never read.
QString nameOfTheme(const Exchange::ThemeContent &tokens, const QString &name)
{
    if (!name.isEmpty())
        return Maker::themeFileBaseName(name);
    const bool isOfDefault = tokens.name.compare(defaultThemeName(), Qt::CaseInsensitive) == 0;
    const bool isName =
        tokens.name == defaultThemeName() || (!isOfDefault && isFileBaseName(tokens.name));
    return isName ? tokens.name : QStringLiteral("imported");
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
        return themesOfPalette(theme, wishes, error);
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
    if (!Maker::isThemeName(name))
        return usageError(commandName, QLatin1String("--name: ") % Maker::themeNameMistake(name));
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

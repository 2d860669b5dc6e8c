// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/command_new.h>

#include <analysis/theme/inputfile.h>
#include <format/themepath.h>
#include <maker/rebranding.h>
#include <maker/themefiles.h>
#include <maker/thememaker.h>
#include <maker/themetext.h>
#include <tools/commandline.h>
#include <tools/outputfile.h>
#include <tools/outputtext.h>
#include <tools/themeoptions.h>

#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace
{

const QString commandName = QStringLiteral("new");
constexpr qint64 largestTheme = qint64(16) * 1024 * 1024;

struct KnownOptions {
    const QCommandLineOption suffix = ThemeOptions::suffixOption();
    const QCommandLineOption brand{
        "brand", "The colour of the brand: #RRGGBB, or a name such as steelblue.", "colour"};
    const QCommandLineOption neutral{
        "neutral", "What tinges the surfaces: cool, warm or a colour (default: cool).", "tinge",
        "cool"};
    const QCommandLineOption textContrast{
        "text-contrast", "Least contrast of text in dark and light, 4.5 to 10 (default: 4.5).",
        "ratio", "4.5"};
    const QCommandLineOption depth{
        "depth", "Lightness between neighbouring dark surfaces, 1 to 4 (default: 3).", "step", "3"};
    const QCommandLineOption looks{
        "looks", "Which of dark, light and contrast to make, with commas (default: all).", "names",
        "dark,light,contrast"};
    const QCommandLineOption name{"name", "Name of the set, for display names and file names.",
                                  "name"};
    const QCommandLineOption from{
        "from", "Begin from a copy of this theme and keep all but the brand.", "folder/theme"};
    const QCommandLineOption force{"force", "Write over theme files that are there."};
};

std::optional<QColor> opaqueColor(const QString &option, const QString &text, QString *mistake)
{
    static const QRegularExpression digits(QStringLiteral("^[0-9A-Fa-f]{6}$"));
    const QColor color(digits.match(text).hasMatch() ? QString(QLatin1Char('#') % text) : text);
    if (!color.isValid() || text.startsWith(QLatin1String("transparent"))) {
        *mistake = QLatin1String("--") % option % QLatin1String(": \"") % text
            % QLatin1String("\" is no colour; write #RRGGBB");
        return std::nullopt;
    }
    if (color.alpha() != 255) {
        *mistake = QLatin1String("--") % option % QLatin1String(": ") % text
            % QLatin1String(" is translucent; a theme is made of opaque colours");
        return std::nullopt;
    }
    return color;
}

bool readNeutral(const QString &text, Maker::Neutral *neutral, QString *mistake)
{
    if (text == QLatin1String("cool"))
        *neutral = Maker::Neutral::cool();
    else if (text == QLatin1String("warm"))
        *neutral = Maker::Neutral::warm();
    else if (const auto color = opaqueColor(QStringLiteral("neutral"), text, mistake))
        *neutral = Maker::Neutral::of(*color);
    else
        return false;
    return true;
}

bool readNumber(const QCommandLineParser &parser, const QCommandLineOption &option, double least,
                double most, double *number, QString *mistake)
{
    bool isNumber = false;
    const QString text = parser.value(option);
    *number = text.toDouble(&isNumber);
    if (isNumber && *number >= least && *number <= most) // which no NaN is
        return true;
    *mistake =
        QStringLiteral("--%1: \"%2\" is no number from %3 to %4")
            .arg(option.names().constFirst(), text, QString::number(least), QString::number(most));
    return false;
}

bool readLooks(const QString &text, QVector<Maker::Look> *looks, QString *mistake)
{
    looks->clear();
    const QStringList names = text.split(QLatin1Char(','));
    for (const QString &name : names) {
        const auto is = [&](Maker::Look look) { return Maker::lookName(look) == name.trimmed(); };
        const std::array<Maker::Look, 3> all{Maker::Look::Dark, Maker::Look::Light,
                                             Maker::Look::Contrast};
        const auto found = std::find_if(all.cbegin(), all.cend(), is);
        if (found == all.cend()) {
            *mistake = QLatin1String("--looks: no look is called \"") % name
                % QLatin1String("\"; there are dark, light and contrast");
            return false;
        }
        if (!looks->contains(*found))
            looks->append(*found);
    }
    return true;
}

struct Source {
    QString folder;
    QString suffix;
};

std::optional<QByteArray> themeContent(const Source &source, const QString &theme, QString *error)
{
    const QString path = themeFilePath(source.folder, theme, source.suffix);
    const QString ending = themeFileName(QString(), source.suffix);
    if (!QFileInfo(path).isFile()) {
        *error = path % QLatin1String(": no such theme file");
        if (theme.endsWith(ending))
            *error += QLatin1String("; write ")
                % QDir(source.folder).filePath(theme.chopped(ending.size()));
        return std::nullopt;
    }
    const auto input = InputFile::read(path, largestTheme, error);
    if (!input)
        return std::nullopt;
    return input->content();
}

// A copy of one theme, with its default file, in the colours of another brand if one is given.
std::optional<Maker::MadeThemes> copiedTheme(const QString &from, const Maker::Order &order,
                                             const std::optional<QColor> &brand, QString *error)
{
    const Source source{QFileInfo(from).path(), order.suffix};
    const QString theme = QFileInfo(from).fileName();
    const QString &name = order.name;
    const auto base = themeContent(source, defaultThemeName(), error);
    if (!base)
        return std::nullopt;
    const auto own = themeContent(source, theme, error);
    if (!own)
        return std::nullopt;
    Maker::MadeThemes made;
    std::optional<Maker::ThemeTexts> texts{{*base, *own}};
    if (brand)
        texts = Maker::withBrand(*texts, *brand, &made.notes, error);
    if (!texts) {
        *error = from % QLatin1String(": ") % *error;
        return std::nullopt;
    }
    QString fileName = theme;
    if (!name.isEmpty()) {
        Maker::ThemeText named(texts->own);
        named.setValue(QStringLiteral("General"), QStringLiteral("ThemeName"), name);
        const auto text = named.provenText();
        if (!text) {
            *error = from
                % QLatin1String(
                         ": the name cannot be added without changing other entries; look for "
                         "a quotation mark that is never closed");
            return std::nullopt;
        }
        texts->own = *text;
        fileName = Maker::themeFileBaseName(name);
    }
    made.files = {{themeFileName(defaultThemeName(), order.suffix), texts->base},
                  {themeFileName(fileName, order.suffix), texts->own}};
    return made;
}

// A copy writes the default file anew, and so over that of the theme that it copies.
bool holdsSource(const QString &folder, const QString &from)
{
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(from).dir().canonicalPath();
}

// Returns what is wrong with the usage, or a null text.
QString readOrder(const QCommandLineParser &parser, const KnownOptions &known, Maker::Order *order,
                  std::optional<QColor> *brand)
{
    QString mistake;
    const bool isCopy = parser.isSet(known.from);
    if (parser.positionalArguments().size() != 1)
        return parser.positionalArguments().isEmpty()
            ? QStringLiteral("FOLDER is missing")
            : QLatin1String("one argument too many: ") % parser.positionalArguments().at(1);
    if (parser.positionalArguments().constFirst().isEmpty())
        return QStringLiteral("FOLDER is empty");
    if (!parser.isSet(known.brand) && !isCopy)
        return QStringLiteral("--brand is missing: the colour that the themes are made of");
    const bool isNew = parser.isSet(known.neutral) || parser.isSet(known.looks)
        || parser.isSet(known.textContrast) || parser.isSet(known.depth);
    if (isCopy && isNew)
        return QStringLiteral(
            "--neutral, --looks, --text-contrast and --depth make a theme anew and "
            "do not go with --from");
    if (isCopy
        && QFileInfo(parser.value(known.from))
                .fileName()
                .compare(defaultThemeName(), Qt::CaseInsensitive)
            == 0)
        return QStringLiteral("--from: the default file is copied with each theme; name a theme");
    if (parser.isSet(known.brand)) {
        *brand = opaqueColor(QStringLiteral("brand"), parser.value(known.brand), &mistake);
        if (!*brand)
            return mistake;
        order->parameters.brand = **brand;
    }
    mistake = ThemeOptions::mistakeInSuffix(parser);
    if (!mistake.isEmpty())
        return mistake;
    order->suffix = parser.value(known.suffix);
    order->name = parser.value(known.name);
    if (!Maker::isThemeName(order->name))
        return QLatin1String("--name: ") % Maker::themeNameMistake(order->name);
    Maker::Parameters &parameters = order->parameters;
    if (readNeutral(parser.value(known.neutral), &parameters.neutral, &mistake)
        && readNumber(parser, known.textContrast, 4.5, 10, &parameters.textContrast, &mistake)
        && readNumber(parser, known.depth, 1, 4, &parameters.surfaceStep, &mistake))
        readLooks(parser.value(known.looks), &order->looks, &mistake);
    return mistake;
}

} // namespace

int runNew(const QStringList &arguments)
{
    const KnownOptions known;
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Makes a folder of themes of one colour: a default file with the palette and the font "
        "sizes, and\none file a look. Text reaches 4.5:1 on its ground, in contrast 7:1; what "
        "cannot be had is said.\n\n"
        "Exit code: 0 done, 2 wrong usage or nothing written."));
    parser.addPositionalArgument(QStringLiteral("FOLDER"),
                                 QStringLiteral("Folder to write; made if it is not there."));
    parser.addOptions({known.suffix, known.brand, known.neutral, known.textContrast, known.depth,
                       known.looks, known.name, known.from, known.force});
    if (const std::optional<int> code = parseArguments(parser, commandName, arguments))
        return *code;

    Maker::Order order;
    std::optional<QColor> brand;
    const QString mistake = readOrder(parser, known, &order, &brand);
    if (!mistake.isEmpty())
        return usageError(commandName, mistake);

    QString error;
    const auto made = parser.isSet(known.from)
        ? copiedTheme(parser.value(known.from), order, brand, &error)
        : std::optional<Maker::MadeThemes>(Maker::makeThemes(order));
    const QString folder = parser.positionalArguments().constFirst();
    if (made && parser.isSet(known.from) && holdsSource(folder, parser.value(known.from))) {
        printError(folder
                   % QLatin1String(": the theme that --from names is in this folder and would be "
                                   "written over; name another folder"));
        return ExitUnusable;
    }
    if (!made
        || !Maker::writeThemeFiles(folder, made->files, parser.isSet(known.force), &error,
                                   order.suffix)) {
        printError(error);
        return ExitUnusable;
    }
    return writeStandardOutput(Maker::writtenFiles(folder, *made)) ? ExitDone : ExitUnusable;
}

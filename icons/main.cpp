// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <format/kind.h>
#include <format/place.h>
#include <format/printabletext.h>
#include <format/themepath.h>
#include <format/token.h>
#include <hvtheme/inifile.h>
#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>
#include <QSettings>
#include <QTextStream>

#include <cerrno>
#include <cstdio>
#include <optional>
#include <unistd.h>

namespace
{

enum ExitCode {
    Success = 0,
    Unusable = 2,
};

const char usage[] =
    "Usage: hvtheme-icons FOLDER THEME OUTPUT_FOLDER FILE.svg...\n"
    "\n"
    "Writes a copy of each FILE.svg into OUTPUT_FOLDER, its colour tokens\n"
    "(global.theme.color.<Key>) replaced by the colours of the theme THEME, which\n"
    "is read from FOLDER/default.theme and FOLDER/THEME.theme. A copy that would\n"
    "not change is left alone, its time included.\n"
    "\n"
    "Options:\n"
    "  -h, --help     Show this help.\n"
    "  -v, --version  Show the version.\n"
    "\n"
    "Exit codes: 0 all copies are up to date; 2 wrong usage, or a theme, picture or\n"
    "copy cannot be used: the standard error says which and why.\n";

bool complain(const QString &what)
{
    QTextStream(stderr) << "hvtheme-icons: " << printable(what) << '\n';
    return false;
}

ExitCode print(const char *text)
{
    if (std::fputs(text, stdout) >= 0 && std::fflush(stdout) == 0)
        return Success;
    std::perror("hvtheme-icons: standard output");
    return Unusable;
}

// A pipe or device would be waited for, or read without end.
bool isSpecial(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() && !file.isFile();
}

bool hasSaneGradients(const QString &path)
{
    QSettings settings(path, HV::iniFormat(path));
    settings.beginGroup(QStringLiteral("Gradients"));
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        const int size = settings.value(key).toInt();
        if (key.endsWith(QLatin1String("/size")) && size > gradientSizeLimit)
            return complain(path % QLatin1String(": gradient ") % key.chopped(5)
                            % QLatin1String(" claims ") % QString::number(size)
                            % QLatin1String(" stops, which takes the library minutes to read"));
    }
    return true;
}

// Loading a theme never fails: a file that is missing reads as an empty one or is passed over. Here
// that would give a set of icons in the wrong colours.
bool loadTheme(HV::Theme *theme, const QString &folder, const QString &name)
{
    for (const QString &part : {defaultThemeName(), name}) {
        const QString file = themeFilePath(folder, part);
        if (isSpecial(file))
            return complain(file % QLatin1String(": not a regular file"));
        if (!QFileInfo(file).isReadable())
            return complain(file % QLatin1String(": no such theme file, or it cannot be read"));
        if (!hasSaneGradients(file))
            return false;
    }
    const QString defaultFile = themeFilePath(folder, defaultThemeName());
    const QString displayName = QSettings(defaultFile, HV::iniFormat(defaultFile))
                                    .value(QStringLiteral("ThemeName"), QStringLiteral("unnamed"))
                                    .toString();
    if (name != defaultThemeName() && displayName.compare(name, Qt::CaseInsensitive) == 0) {
        return complain(themeFilePath(folder, name) % QLatin1String(": never read, for ")
                        % defaultFile % QLatin1String(" has this ThemeName"));
    }
    HV::changeTheme(theme, name, folder);
    return true;
}

std::optional<QString> readText(const QString &path)
{
    QFile file(path);
    const bool isReadable = !isSpecial(path) && file.open(QIODevice::ReadOnly);
    if (!isReadable) {
        complain(path % QLatin1String(": ")
                 % (isSpecial(path) ? QStringLiteral("not a regular file") : file.errorString()));
        return std::nullopt;
    }
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        complain(path % QLatin1String(": ") % file.errorString());
        return std::nullopt;
    }
    if (content.startsWith("\xEF\xBB\xBF"))
        content.remove(0, 3);
    const QString text = QString::fromUtf8(content);
    if (text.toUtf8() != content) {
        complain(path % QLatin1String(": not in UTF-8; save it so"));
        return std::nullopt;
    }
    return text;
}

/*! Says why a token cannot be replaced by a colour that SVG knows; null if it can. */
QString tokenFault(const QVariantMap &values, const Tokens::Candidate &token)
{
    if (token.kind != Kind::Color)
        return QLatin1String("only colour tokens can stand in a picture");
    const QVariant value = values.value(token.key);
    if (value.userType() != QMetaType::QColor)
        return QLatin1String("the theme has no such colour");
    // SVG has no colour with an alpha channel; Qt would draw such an element in black, or not at all.
    if (value.value<QColor>().alpha() != 255)
        return QLatin1String(
            "the colour is translucent, which SVG writes as an opacity of its own");
    return {};
}

bool checkTokens(const QVariantMap &values, const QString &path, const QString &text)
{
    bool ok = true;
    const auto tokens = Tokens::findCandidates(text, Tokens::defaultPrefix());
    for (const Tokens::Candidate &token : tokens) {
        const QString fault = tokenFault(values, token);
        if (!fault.isNull())
            ok = complain(Place{path, textPosition(text, token.offset)}.lineText()
                          % QLatin1String(": ") % token.text % QLatin1String(": ") % fault);
    }
    return ok;
}

bool writeIfChanged(const QString &path, const QByteArray &content)
{
    if (isSpecial(path))
        return complain(path % QLatin1String(": not a regular file, so it is not replaced"));
    QFile present(path);
    if (present.open(QIODevice::ReadOnly) && present.readAll() == content)
        return true;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return complain(path % QLatin1String(": ") % file.errorString());
    // Not through the file itself, which has no reason to tell when the disk is full.
    for (qint64 at = 0; at < content.size();) {
        const ssize_t count =
            ::write(file.handle(), content.constData() + at, size_t(content.size() - at));
        if (count < 0)
            return complain(path % QLatin1String(": ") % systemReason(errno));
        at += count;
    }
    return file.commit() || complain(path % QLatin1String(": ") % file.errorString());
}

bool tint(HV::Theme *theme, const QString &source, const QDir &output)
{
    const QString copy = output.filePath(QFileInfo(source).fileName());
    // Two files that do not exist count as equal.
    if (QFile::exists(copy) && QFileInfo(copy) == QFileInfo(source))
        return complain(source % QLatin1String(": its copy would replace it"));
    std::optional<QString> text = readText(source);
    if (!text || !checkTokens(theme->values(), source, *text))
        return false;
    HV::replaceStyleSheet(theme, Tokens::defaultPrefix(), *text);
    return writeIfChanged(copy, text->toUtf8());
}

// Copies have the names of their sources, and the last of one name would be the only one.
bool areApart(const QStringList &sources)
{
    QHash<QString, QString> known;
    for (const QString &source : sources) {
        const QString name = QFileInfo(source).fileName();
        if (known.contains(name))
            return complain(source % QLatin1String(": its copy would replace that of ")
                            % known.value(name));
        known.insert(name, source);
    }
    return true;
}

// What is wrong with the arguments; empty if nothing is.
QString mistakeIn(const QStringList &arguments)
{
    static const char *const names[] = {"FOLDER", "THEME", "OUTPUT_FOLDER", "FILE.svg"};
    const int given = int(arguments.size()) - 1;
    if (given >= 4)
        return {};
    if (given > 0 && arguments.at(1).startsWith(QLatin1Char('-')))
        return QLatin1String("no option is called \"") % arguments.at(1) % QLatin1Char('"');
    return QLatin1String(names[given]) % QLatin1String(" is missing");
}

int run(const QStringList &arguments)
{
    if (arguments.size() == 2
        && (arguments[1] == QLatin1String("--help") || arguments[1] == QLatin1String("-h"))) {
        return print(usage);
    }
    if (arguments.size() == 2
        && (arguments[1] == QLatin1String("--version") || arguments[1] == QLatin1String("-v"))) {
        return print("hvtheme-icons " HVTHEME_VERSION "\n");
    }
    const QString mistake = mistakeIn(arguments);
    if (!mistake.isEmpty()) {
        complain(mistake % QLatin1String(" (see hvtheme-icons --help)"));
        return Unusable;
    }
    QStringList sources = arguments.mid(4);
    sources.removeDuplicates();
    if (!areApart(sources))
        return Unusable;
    HV::WorkableTheme theme;
    if (!loadTheme(&theme, arguments[1], arguments[2]))
        return Unusable;
    const QDir output(arguments[3]);
    if (!output.mkpath(QStringLiteral("."))) {
        complain(output.path() % QLatin1String(": cannot be made a folder"));
        return Unusable;
    }
    int exitCode = Success;
    for (const QString &source : qAsConst(sources)) {
        if (!tint(&theme, source, output))
            exitCode = Unusable;
    }
    return exitCode;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    return run(QCoreApplication::arguments());
}

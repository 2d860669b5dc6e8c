// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <plugin/leavealone.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace
{

// Programs with looks of their own to choose from, which reach into every corner of them, and the
// parts of a desktop that have its look.
const char *const builtIn[] = {
    "keepassxc",        "krita",          "obs",
    "plasmashell",      "qt5ct",          "qt6ct",
    "qtcreator",        "systemsettings", "systemsettings5",
    "telegram-desktop",
};

QStringList linesOf(const QString &path)
{
    QFile file(path);
    const qint64 most = qint64(1024) * 1024; // a list and nothing else
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.read(most)).split(QLatin1Char('\n'));
}

} // namespace

QStringList leaveAloneLines()
{
    QStringList lines;
    for (const char *name : builtIn)
        lines << QLatin1String(name);
    const QStringList files = QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation,
                                                        QStringLiteral("hvtheme/leave-alone"));
    for (auto file = files.crbegin(); file != files.crend(); ++file) // the user's comes first
        lines << linesOf(*file);
    return lines << qEnvironmentVariable("HVTHEME_LEAVE_ALONE").split(QLatin1Char(':'));
}

bool isLeftAlone(const QStringList &names, const QStringList &lines)
{
    for (auto line = lines.crbegin(); line != lines.crend(); ++line) {
        QString name = line->section(QLatin1Char('#'), 0, 0).trimmed();
        const bool isOff = name.startsWith(QLatin1Char('!'));
        if (isOff)
            name = name.mid(1).trimmed();
        if (!name.isEmpty() && names.contains(name))
            return !isOff;
    }
    return false;
}

QStringList programNames()
{
    static const QRegularExpression interpreter(QStringLiteral("^(python|pypy|perl|ruby)[0-9.]*$"));
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    const QStringList arguments = QCoreApplication::arguments();
    QStringList names{program, QFileInfo(arguments.value(0)).fileName()};
    if (arguments.size() > 1 && interpreter.match(program).hasMatch())
        names << QFileInfo(arguments.at(1)).fileName();
    names.removeDuplicates();
    return names;
}

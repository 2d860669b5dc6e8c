// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/messagelog.h>
#include <analysis/theme/themefile.h>
#include <hvtheme/inifile.h>

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>

// An input is a theme file. The keys of its entries are those that Qt reads, one entry of each takes
// effect, and every entry stands where it says.
namespace
{

void require(bool condition, const char *what, const QString &key = QString())
{
    if (!condition)
        qFatal("%s: %s", what, qUtf8Printable(key));
}

// Tells whether Qt 6 reads other keys than Qt 5: UTF-8 behind a byte order mark, and none with a line
// break at its end.
bool hasKeysOfItsOwn(const ThemeFile &theme)
{
    const auto endsInBreak = [](const ThemeFileEntry &entry) {
        const QByteArray key = entry.rawKey.trimmed();
        const int end = int(entry.rawKey.indexOf(key) + key.size());
        return entry.rawKey.mid(end).contains('\n') || entry.rawKey.mid(end).contains('\r');
    };
    return QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        && (theme.hasByteOrderMark()
            || std::any_of(theme.entries().cbegin(), theme.entries().cend(), endsInBreak));
}

// The lines as positions count them: CR, LF or CR LF ends one.
QList<QByteArray> linesOf(QByteArray content)
{
    content.replace("\r\n", "\n").replace('\r', '\n');
    return content.split('\n');
}

void checkPosition(const QList<QByteArray> &lines, TextPosition position, const QByteArray &text)
{
    require(position.line >= 1 && position.line <= lines.size(), "no such line");
    const QByteArray &line = lines.at(position.line - 1);
    const bool isAscii = std::all_of(line.cbegin(), line.cend(), [](char c) { return c > 0; });
    require(position.column >= 1 && position.column <= line.size() + 1, "no such column");
    const QByteArray first = text.left(text.indexOf('\n') < 0 ? text.size() : text.indexOf('\n'));
    const bool isWhole = !first.contains('\r');
    require(!isAscii || !isWhole || line.mid(position.column - 1).startsWith(first),
            "something else stands there", QString::fromLatin1(first));
}

QStringList sortedKeys(const ThemeFile &file)
{
    QStringList keys;
    for (const ThemeFileEntry &entry : file.entries()) {
        if (entry.isEffective)
            keys << entry.key;
    }
    keys.sort();
    return keys;
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the name that fuzzing engines call
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_positions";
    static char *argv[] = {name, nullptr};
    static const QCoreApplication application(argc, argv);
    static const QTemporaryDir folder;
    static qint64 number = 0;

    // A new name each time: Qt keeps what it read of a file.
    QFile file(folder.filePath(QString::number(++number) + ".theme"));
    require(file.open(QIODevice::WriteOnly), "cannot write");
    file.write(reinterpret_cast<const char *>(data), qint64(size));
    file.close();

    QString error;
    const std::optional<ThemeFile> theme = ThemeFile::read(file.fileName(), &error);
    QStringList keys;
    {
        const MessageLog silence; // of keys that are empty
        QFile asRead(folder.filePath(QString::number(number) + ".ini"));
        require(asRead.open(QIODevice::WriteOnly), "cannot write");
        asRead.write(HV::iniText(QByteArray(reinterpret_cast<const char *>(data), int(size))));
        asRead.close();
        keys = QSettings(asRead.fileName(), QSettings::IniFormat).allKeys();
        asRead.remove();
    }
    file.remove();
    if (!theme || hasKeysOfItsOwn(*theme))
        return 0; // binary, or the Qt of this build has other keys
    keys.sort();
    require(sortedKeys(*theme) == keys, "other keys than Qt's", keys.join(QLatin1Char(' ')));
    const QList<QByteArray> lines = linesOf(theme->content());
    for (const ThemeFileEntry &entry : theme->entries()) {
        require(keys.contains(entry.key), "a key that Qt does not have", entry.key);
        require(theme->find(entry.key) && theme->find(entry.key)->isEffective, "no entry in force");
        checkPosition(lines, entry.keyPosition, entry.rawKey.trimmed());
        checkPosition(lines, entry.valuePosition, entry.rawValue.trimmed());
    }
    for (const ThemeFileSection &section : theme->sections())
        checkPosition(lines, section.position, QByteArray());
    return 0;
}

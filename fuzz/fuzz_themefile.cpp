// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include <QCoreApplication>
#include <QFile>
#include <QMetaEnum>
#include <QTemporaryDir>

// An input is a default theme file. Whatever it holds, the theme is whole: each required key is
// stored or reported once, the flat values agree with the lookups, and loading again gives the same.
namespace
{

QStringList messages;

void keepMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    messages.append(text);
}

void require(bool condition, const char *what, const QString &key = QString())
{
    if (!condition)
        qFatal("%s: %s", what, qUtf8Printable(key));
}

int reports(const QString &opening, const QString &key)
{
    return int(messages.count(opening + " \"" + key + "\" ] is must bu set,but is not set."));
}

QStringList requiredKeys(const char *enumeration)
{
    const QMetaObject &vocabulary = HV::WorkableTheme::staticMetaObject;
    const QMetaEnum meta = vocabulary.enumerator(vocabulary.indexOfEnumerator(enumeration));
    QStringList keys;
    for (int i = 0; i < meta.keyCount(); ++i)
        keys.append(meta.key(i));
    return keys;
}

void checkRequiredKeys(const HV::Theme &theme)
{
    for (const QString &key : requiredKeys("Palette")) {
        const bool isStored = theme.readNamedColor(key).second == key;
        require(reports("Theme Palette Key [", key) == (isStored ? 0 : 1), "palette key", key);
    }
    const QStringList loading = messages;
    for (const QString &key : requiredKeys("Integer")) {
        messages.clear();
        theme.integer(key);
        const bool isStored = messages.isEmpty();
        messages = loading;
        require(reports("Theme Interger Key [", key) == (isStored ? 0 : 1), "integer key", key);
    }
}

void checkValues(HV::Theme &theme)
{
    const QVariantMap &values = theme.values();
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const QString &key = it.key();
        switch (int(it->type())) {
        case QMetaType::QColor:
            require(it->value<QColor>() == theme.color(key), "color", key);
            break;
        case QMetaType::Bool:
            require(it->toBool() == theme.flag(key), "flag", key);
            break;
        case QMetaType::LongLong:
            require(it->toLongLong() == theme.integer(key), "integer", key);
            break;
        case QMetaType::QString:
            require(it->toString() == theme.imageFile(key), "image", key);
            break;
        default:
            require(false, "type", key);
        }
    }
    require(&theme.values() == &values, "not the same map");
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the name that fuzzing engines call
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_themefile";
    static char *argv[] = {name, nullptr};
    static const QCoreApplication application(argc, argv);
    static const QTemporaryDir folder;
    static qint64 number = 0;
    qInstallMessageHandler(keepMessage);

    // A new name each time: Qt keeps what it read of a file.
    const QString suffix = QString::number(++number);
    QFile file(folder.filePath("default." + suffix));
    require(file.open(QIODevice::WriteOnly), "cannot write");
    file.write(reinterpret_cast<const char *>(data), qint64(size));
    file.close();

    HV::WorkableTheme theme;
    messages.clear();
    HV::changeTheme(&theme, "default", folder.path(), suffix);
    require(theme.filePath() == file.fileName(), "file path");
    checkRequiredKeys(theme);
    checkValues(theme);

    const QVariantMap values = theme.values();
    const QString displayName = theme.displayName();
    HV::changeTheme(&theme, "default", folder.path(), suffix);
    require(theme.values() == values, "other values the second time");
    require(theme.displayName() == displayName, "another name the second time");
    file.remove();
    messages.clear();
    return 0;
}

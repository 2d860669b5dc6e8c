// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_EXPECTEDMESSAGES_H
#define HVTHEME_TESTS_EXPECTEDMESSAGES_H

#include "messages.h"

// Every message of the library, spelled as an application's message handler receives it. The
// slips of wording are part of the texts; a missing line number is not fixed.
namespace Expected
{

inline Message message(QtMsgType severity, const char *file, int line, const char *function,
                       const QString &text)
{
    return {severity, file, line, function, "default", text};
}

inline QString quoted(const QString &key)
{
    return '"' + key + '"';
}

// Typed lookups, by number and by key

inline Message noFlag(int n)
{
    return message(QtCriticalMsg, "hvtheme/theme.cpp", 30, "bool HV::Theme::flag(int) const",
                   "Flag type  " + QString::number(n) + " is not exist.");
}

inline Message noFlag(const QString &key)
{
    return message(QtCriticalMsg, "hvtheme/theme.cpp", 43,
                   "bool HV::Theme::flag(const QString&) const",
                   "Flag type  " + quoted(key) + " is not exist.");
}

inline Message noInteger(int n)
{
    return message(QtCriticalMsg, "hvtheme/theme.cpp", 53, "qint64 HV::Theme::integer(int) const",
                   "Integer type  " + QString::number(n) + " is invalid.");
}

inline Message noInteger(const QString &key)
{
    return message(QtCriticalMsg, "hvtheme/theme.cpp", 66,
                   "qint64 HV::Theme::integer(const QString&) const",
                   "Integer type  " + quoted(key) + " is invalid.");
}

inline Message noColor(int n)
{
    return message(QtCriticalMsg, "hvtheme/theme.cpp", 76, "QColor HV::Theme::color(int) const",
                   "Color type  " + QString::number(n) + " is invalid.");
}

inline Message noColor(const QString &key)
{
    return message(QtCriticalMsg, "hvtheme/theme.cpp", 89,
                   "QColor HV::Theme::color(const QString&) const",
                   "Color type  " + quoted(key) + " is invalid.");
}

inline Message noImageFile(int n)
{
    return message(QtCriticalMsg, "hvtheme/theme.cpp", 102,
                   "QString HV::Theme::imageFile(const int&, const QString&, bool) const",
                   "ImageFile type  " + QString::number(n) + " is invalid.");
}

inline Message noImageFile(const QString &key)
{
    return message(QtWarningMsg, "hvtheme/theme.cpp", 128,
                   "QString HV::Theme::imageFile(const QString&, const QString&, bool) const",
                   "ImageFile type  " + quoted(key) + " is invalid.");
}

inline Message noGradient(int n)
{
    return message(QtCriticalMsg, "hvtheme/theme.cpp", 138,
                   "QGradientStops HV::Theme::gradient(int) const",
                   "Gradient type  " + QString::number(n) + " is invalid.");
}

inline Message noGradient(const QString &key)
{
    return message(QtCriticalMsg, "hvtheme/theme.cpp", 151,
                   "QGradientStops HV::Theme::gradient(const QString&) const",
                   "Gradient type  " + quoted(key) + " is invalid.");
}

// Section readers

struct Section {
    const char *word;
    const char *function;
};

// clang-format off
inline constexpr Section Palettes   {"Palette",   "void HV::Theme::readPalettes(QSettings&, bool, const QMetaObject&)"};
inline constexpr Section Colors     {"Color",     "void HV::Theme::readColors(QSettings&, bool, const QMetaObject&)"};
inline constexpr Section ImageFiles {"ImageFile", "void HV::Theme::readImageFiles(QSettings&, bool, const QMetaObject&)"};
inline constexpr Section Gradients  {"Gradient",  "void HV::Theme::readGradients(QSettings&, bool, const QMetaObject&)"};
inline constexpr Section Flags      {"Flag",      "void HV::Theme::readFlags(QSettings&, bool, const QMetaObject&)"};
inline constexpr Section Integers   {"Interger",  "void HV::Theme::readIntegers(QSettings&, bool, const QMetaObject&)"};
// clang-format on

inline Message keyExists(const Section &section, const QString &key)
{
    return message(QtCriticalMsg, "hvtheme/theme.cpp", 0, section.function,
                   QString("The ") + section.word + " Key [ " + quoted(key) + " ] is exists.");
}

inline Message keyNotSet(const Section &section, const QString &key)
{
    return message(QtCriticalMsg, "hvtheme/theme.cpp", 0, section.function,
                   QString("Theme ") + section.word + " Key [ " + quoted(key)
                       + " ] is must bu set,but is not set.");
}

inline Message invalidGradient(const QString &key)
{
    return message(QtCriticalMsg, "hvtheme/theme.cpp", 0, Gradients.function,
                   "The Gradient Key [ " + quoted(key) + " ]'s value is invalid.");
}

/*! What reading \a keys gives, one message each: a section's keys in the order of QSettings. */
inline Messages invalidGradients(const QStringList &keys)
{
    Messages messages;
    for (const QString &key : keys)
        messages.append(invalidGradient(key));
    return messages;
}

inline Messages keysNotSet(const Section &section, const QStringList &keys)
{
    Messages messages;
    for (const QString &key : keys)
        messages.append(keyNotSet(section, key));
    return messages;
}

inline Messages keysExist(const Section &section, const QStringList &keys)
{
    Messages messages;
    for (const QString &key : keys)
        messages.append(keyExists(section, key));
    return messages;
}

// Colour parser

inline Message badColor(const QString &text, const QString &candidate)
{
    return message(QtWarningMsg, "hvtheme/theme.cpp", 0,
                   "QPair<QColor, QString> HV::Theme::readNamedColor(const QString&) const",
                   "Color \"" + text + "\" is neither a named color or a valid color \"" + candidate
                       + '"');
}

// Style sheets

inline Message noImage(const QString &key, const QString &path)
{
    return message(
        QtWarningMsg, "hvtheme/theming.cpp", 54,
        "QString HV::replaceCssImages(const QString&, const QVariantMap&, const QString&)",
        quoted(key) + " \t " + quoted(path) + "  is not exist!");
}

inline Message nullThemeInReplace()
{
    return message(QtWarningMsg, "hvtheme/theming.cpp", 107,
                   "void HV::replaceStyleSheet(HV::Theme*, const QString&, QString&)",
                   "Theme object is null");
}

inline Message nullThemeInFolder()
{
    return message(QtWarningMsg, "hvtheme/theming.cpp", 149,
                   "QString HV::findStyleSheet(HV::Theme*, const QString&, const QString&)",
                   "Theme object is null");
}

inline Message nullThemeInList()
{
    return message(QtWarningMsg, "hvtheme/theming.cpp", 185,
                   "QString HV::findStyleSheet(HV::Theme*, const QStringList&, const QString&)",
                   "Theme object is null");
}

inline Message notThereInFolder(const QString &path)
{
    return message(QtWarningMsg, "hvtheme/theming.cpp", 129,
                   "void HV::readStyleSheet(const QString&, QString&)",
                   quoted(path) + " not there!");
}

inline Message notThereInList(const QString &path)
{
    return message(QtWarningMsg, "hvtheme/theming.cpp", 165,
                   "void HV::readStyleSheet(const QStringList&, QString&)",
                   quoted(path) + " not there!");
}

} // namespace Expected

#endif // HVTHEME_TESTS_EXPECTEDMESSAGES_H

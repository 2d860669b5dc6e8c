// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_COMPLETETHEME_H
#define HVTHEME_TESTS_COMPLETETHEME_H

#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include <QMetaEnum>
#include <QRegularExpression>
#include <QSet>

/*! The keys that the built-in templates name with tokens of \a kind, sorted. */
inline QStringList templateKeys(const QString &kind)
{
    QString text;
    HV::readStyleSheet(QStringLiteral(":/stylesheet"), text);
    const QRegularExpression token(QString(R"(global\.theme\.%1\.(\w+))").arg(kind));
    QSet<QString> found;
    for (auto match = token.globalMatch(text); match.hasNext();)
        found.insert(match.next().captured(1));
    QStringList keys = found.values();
    keys.sort();
    return keys;
}

/*!
 * A theme file that defines every key of the vocabulary and of the built-in templates, so that it
 * loads and restyles without a message. Files of different \a variants agree in no value; the
 * images are among those that Qt Widgets brings along.
 */
inline QByteArray completeTheme(int variant)
{
    QString text = QStringLiteral("ThemeName=default\n[Palettes]\n");
    const QMetaObject &vocabulary = HV::WorkableTheme::staticMetaObject;
    const QMetaEnum palettes = vocabulary.enumerator(vocabulary.indexOfEnumerator("Palette"));
    for (int i = 0; i < palettes.keyCount(); ++i)
        text += QString("%1=#808080\n").arg(palettes.key(i));

    text += "[Colors]\n";
    uint number = 7 * uint(variant);
    for (const QString &key : templateKeys("color"))
        text += QString("%1=#%2\n").arg(key).arg((++number * 987654321U) >> 8, 6, 16, QChar('0'));

    text += "[ImageFiles]\n";
    const QString image = variant % 2 ? "left-16" : "right-16";
    for (const QString &key : templateKeys("image"))
        text += QString("%1=:/qt-project.org/styles/commonstyle/images/%2.png\n").arg(key, image);

    text += "[Integers]\n";
    int size = 9 + 2 * variant;
    for (const QString &key : templateKeys("integer"))
        text += QString("%1=%2\n").arg(key).arg(++size);
    return text.toLatin1();
}

#endif // HVTHEME_TESTS_COMPLETETHEME_H

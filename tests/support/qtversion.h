// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_QTVERSION_H
#define HVTHEME_TESTS_QTVERSION_H

#include <QString>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

/*!
 * Where Qt 6 itself gives tests another answer than Qt 5; docs/qt6.md has the same list in words. A test
 * asks here, never for a version.
 */
namespace QtDifference
{

constexpr bool isQt6 = QT_VERSION >= QT_VERSION_CHECK(6, 0, 0);

/*! The 8-bit encoding of the locale, as which the texts of some messages pass, is always UTF-8. */
constexpr bool localeIsAlwaysUtf8 = isQt6;

/*! A byte order mark makes UTF-8 of the keys of an INI file too, not only of its values. */
constexpr bool markIsForKeysToo = isQt6;

/*! Line breaks at the end of a key of an INI file, which a backslash lets into it, are left out. */
constexpr bool keysEndBeforeLineBreaks = isQt6;

/*! Of how many pointers a QString consists. */
constexpr int pointersOfText = isQt6 ? 3 : 1;

/*! Lines and grounds of texts have smooth edges where a scale puts them between pixels, if they are
    drawn with the text. */
constexpr bool smoothsLinesOfTexts = isQt6;

/*! What QFont::weight() is for a weight of a style sheet, which counts as the web does. */
inline int fontWeight(double ofStyleSheet)
{
    return isQt6 ? qRound(ofStyleSheet) : qMin(qRound(ofStyleSheet / 8), 99);
}

/*! How Qt logs a property that no style sheet has. */
inline const QString unknownPropertyLevel =
    isQt6 ? QStringLiteral("warning") : QStringLiteral("debug");

/*! What Qt logs when an invalid regular expression is used; Qt 6 tells the pattern too. */
inline QString badExpression(const QString &pattern)
{
    const QString text =
        QStringLiteral("QRegularExpressionPrivate::doMatch(): called on an invalid "
                       "QRegularExpression object");
    return isQt6 ? QString(text + QStringLiteral(" (pattern is '%1')").arg(pattern)) : text;
}

/*! Makes Latin-1 the encoding of the locale, or what it was; does nothing where it cannot change. */
inline void setLatin1Locale(bool isLatin1)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QTextCodec::setCodecForLocale(isLatin1 ? QTextCodec::codecForName("ISO-8859-1") : nullptr);
#else
    Q_UNUSED(isLatin1)
#endif
}

} // namespace QtDifference

#endif // HVTHEME_TESTS_QTVERSION_H

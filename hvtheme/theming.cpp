// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "theming.h"

#include "inifile.h"
#include "theme.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSettings>
#include <QtAlgorithms>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace HV
{
namespace
{

// Messages are an interface: tools match their texts and contexts. So this table spells out what the
// compiler would put in, and a line stays what it is wherever the code moves.
struct Site {
    int line;
    const char *function;
};
// clang-format off
constexpr Site missingImage            { 54, "QString HV::replaceCssImages(const QString&, const QVariantMap&, const QString&)"};
constexpr Site replaceWithoutTheme     {107, "void HV::replaceStyleSheet(HV::Theme*, const QString&, QString&)"};
constexpr Site folderFile              {129, "void HV::readStyleSheet(const QString&, QString&)"};
constexpr Site findInFolderWithoutTheme{149, "QString HV::findStyleSheet(HV::Theme*, const QString&, const QString&)"};
constexpr Site listedFile              {165, "void HV::readStyleSheet(const QStringList&, QString&)"};
constexpr Site findInListWithoutTheme  {185, "QString HV::findStyleSheet(HV::Theme*, const QStringList&, const QString&)"};
// clang-format on

QDebug warning(const Site &site)
{
    return QMessageLogger("hvtheme/theming.cpp", site.line, site.function).warning();
}

// What a token of one kind has between its prefix and its key, and what is special about the kind.
struct Kind {
    const char *infix;
    bool isImage;
    bool hasSeparator;
};
constexpr Kind colorKind{".theme.color.", false, false};
constexpr Kind imageKind{".theme.image.", true, false};
constexpr Kind integerKind{".theme.integer.", false, true};
constexpr QChar separator = u'|';

using Size = decltype(QString().size()); // int in Qt 5

// The characters of \w: ASCII, whatever the locale.
bool isWordCharacter(QChar c)
{
    return c == u'_' || (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z')
        || (c >= u'a' && c <= u'z');
}

// Finds the text in front of a token's key. It looks for the last dot and a letter before it first,
// which no other kind has there, at many places at a time: compilers make vector instructions of that
// loop, and of the one that marks the places that are left.
class TokenFinder
{
public:
    TokenFinder(const QString &prefix, const Kind &kind)
        : m_opening(prefix + QLatin1String(kind.infix))
        , m_lastDot(m_opening.size() - 1)
    {
    }

    Size size() const { return m_opening.size(); }

    // Returns where the next token begins; what has no key is none.
    Size indexIn(const QString &text, Size from) const
    {
        const QChar *const data = text.constData();
        const Size end = text.size() - size();
        Size place = from;
        for (; place <= end - placesAtATime; place += placesAtATime) {
            if (!mayBeAmong(data + place))
                continue;
            const int found = indexAmong(data + place);
            if (found < placesAtATime)
                return place + found;
        }
        while (place < end && !isToken(data + place))
            ++place;
        return place < end ? place : -1;
    }

private:
    static constexpr int placesAtATime = 128;

    bool mayBeAmong(const QChar *places) const
    {
        const QChar letter = m_opening.at(m_lastDot - 2);
        ushort found = 0;
        for (int i = 0; i < placesAtATime; ++i) {
            const bool isLetter = places[i + m_lastDot - 2] == letter;
            const bool isLastDot = places[i + m_lastDot] == u'.';
            found |= ushort(isLetter & isLastDot);
        }
        return found != 0;
    }

    // Marks are as wide as characters, so that one instruction makes several, and are looked through
    // several at a time.
    Q_NEVER_INLINE int indexAmong(const QChar *places) const
    {
        const QChar first = m_opening.at(0);
        const QChar letter = m_opening.at(m_lastDot - 2);
        std::array<ushort, placesAtATime> marks;
        ushort found = 0;
        for (int i = 0; i < placesAtATime; ++i) {
            const bool isFirst = places[i] == first;
            const bool isLetter = places[i + m_lastDot - 2] == letter;
            const bool isLastDot = places[i + m_lastDot] == u'.';
            const auto mark = ushort(isFirst & isLetter & isLastDot);
            marks[std::size_t(i)] = mark;
            found |= mark;
        }
        if (found == 0)
            return placesAtATime;
        constexpr int marksAtATime = int(sizeof(quint64) / sizeof(ushort));
        for (int i = 0; i < placesAtATime; i += marksAtATime) {
            auto several = qFromLittleEndian<quint64>(marks.data() + i);
            for (; several != 0; several &= several - 1) {
                const int place = i + int(qCountTrailingZeroBits(several)) / 16;
                if (isToken(places + place))
                    return place;
            }
        }
        return placesAtATime;
    }

    bool isToken(const QChar *place) const
    {
        return isWordCharacter(place[size()])
            && std::equal(m_opening.cbegin(), m_opening.cend(), place);
    }

    const QString m_opening;
    const Size m_lastDot;
};

// The texts that replace the tokens of one pass. Each is made once, but missed at every token.
class Replacements
{
public:
    Replacements(const Kind &kind, const QVariantMap &values)
        : m_values(values)
        , m_isImage(kind.isImage)
    {
    }

    QString text(const QString &key)
    {
        auto it = m_known.find(key);
        if (it == m_known.end())
            it = m_known.insert(key, make(key));
        if (it->isMissing)
            warning(missingImage) << key << "\t" << it->text << " is not exist!";
        return it->text;
    }

private:
    struct Replacement {
        QString text;
        bool isMissing;
    };

    Replacement make(const QString &key) const
    {
        const QString value = m_values.value(key).toString();
        if (!m_isImage)
            return {value, false};
        const QString file = dpiSpecificImageFile(value);
        return {file, !QFileInfo::exists(file)};
    }

    const QVariantMap &m_values;
    const bool m_isImage;
    QHash<QString, Replacement> m_known;
};

// A text with a gap between what is final and what is still to be searched. A token's text goes to
// the end of the gap, so no token moves the text behind it. Shares the original until then.
class GapText
{
public:
    explicit GapText(const QString &text)
        : m_text(text)
    {
    }

    const QString &text() const { return m_text; }
    Size searchStart() const { return m_searchStart; }

    // Makes everything before start final, drops [start, end) and puts the replacement in front of
    // what is to be searched.
    void replace(Size start, Size end, const QString &replacement)
    {
        QChar *data = m_text.data();
        std::copy(data + m_searchStart, data + start, data + m_finalEnd);
        m_finalEnd += start - m_searchStart;
        m_searchStart = end;
        if (m_searchStart - m_finalEnd < replacement.size())
            widen(replacement.size());
        m_searchStart -= replacement.size();
        std::copy(replacement.cbegin(), replacement.cend(), m_text.begin() + m_searchStart);
    }

    void stepBack()
    {
        if (m_finalEnd > 0)
            m_text[--m_searchStart] = m_text.at(--m_finalEnd);
    }

    QString closed()
    {
        if (m_finalEnd < m_searchStart)
            m_text.remove(m_finalEnd, m_searchStart - m_finalEnd);
        return m_text;
    }

private:
    void widen(Size wanted)
    {
        const Size size = m_text.size();
        const Size growth = std::max(wanted, size / 16); // few moves, little memory
        m_text.resize(size + growth);
        std::copy_backward(m_text.cbegin() + m_searchStart, m_text.cbegin() + size, m_text.end());
        m_searchStart += growth;
    }

    QString m_text;
    Size m_finalEnd = 0;
    Size m_searchStart = 0;
};

// A prefix of word characters is what it says, so a pass is a search for fixed text, in linear time.
QString replaceLiteralTokens(const QString &prefix, const Kind &kind, Replacements &replacements,
                             const QString &styleSheet)
{
    const TokenFinder finder(prefix, kind);
    GapText gap(styleSheet);
    const QString &text = gap.text();
    Size hit = finder.indexIn(text, 0);
    while (hit >= 0) {
        const Size keyStart = hit + finder.size();
        const Size keyEnd =
            Size(std::find_if_not(text.cbegin() + keyStart, text.cend(), isWordCharacter)
                 - text.cbegin());

        const QString replacement = replacements.text(text.mid(keyStart, keyEnd - keyStart));
        const bool separated =
            kind.hasSeparator && keyEnd < text.size() && text.at(keyEnd) == separator;
        gap.replace(hit, separated ? keyEnd + 1 : keyEnd, replacement);
        if (separated)
            gap.stepBack(); // the length of the separator counts in where the search goes on
        hit = finder.indexIn(text, gap.searchStart());
    }
    return gap.closed();
}

QString canonicalToken(const QString &prefix, const Kind &kind, const QString &key)
{
    const QString form = QLatin1String("%1") + QLatin1String(kind.infix);
    return kind.hasSeparator
        ? QString(form + QLatin1String("%2")).arg(prefix).arg(key) // clazy:exclude=qstring-arg
        : QString(form + key).arg(prefix);
}

// Any other prefix is a regular expression. It goes into the pattern as it is, and a token takes up
// as many characters as its canonical text has, however many the expression matched.
QString replaceMatchedTokens(const QString &prefix, const Kind &kind, Replacements &replacements,
                             const QString &styleSheet)
{
    const QString infix = QLatin1String(kind.infix);
    const QRegularExpression expression(
        QString(QLatin1String("%1") + QRegularExpression::escape(infix) + QLatin1String("(\\w+)"))
            .arg(prefix));
    QString text = styleSheet;
    QRegularExpressionMatch match = expression.match(text);
    while (match.hasMatch()) {
        const Size start = match.capturedStart();
        const QString key = match.captured(1);
        Size span = canonicalToken(prefix, kind, key).size();
        if (kind.hasSeparator && start + span < text.size() && text.at(start + span) == separator)
            ++span;
        text.replace(start, span, replacements.text(key));
        match = expression.match(text, std::max(Size(0), Size(match.capturedEnd()) - span));
    }
    return text;
}

QString replaceTokens(const QString &prefix, const Kind &kind, const QVariantMap &values,
                      const QString &styleSheet)
{
    Replacements replacements(kind, values);
    const bool isLiteral = std::all_of(prefix.cbegin(), prefix.cend(), isWordCharacter);
    return isLiteral ? replaceLiteralTokens(prefix, kind, replacements, styleSheet)
                     : replaceMatchedTokens(prefix, kind, replacements, styleSheet);
}

void replaceAllTokens(Theme *theme, const Site &nullTheme, const QString &prefix, QString &text)
{
    if (!theme)
        warning(nullTheme) << "Theme object is null";
    const QVariantMap none;
    const QVariantMap &values = theme ? theme->values() : none;
    text = replaceCssColors(prefix, values, text);
    text = replaceCssImages(prefix, values, text);
    text = replaceCssIntegers(prefix, values, text);
}

void appendFile(const QString &path, const Site &site, QString &text)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        warning(site) << path << "not there!";
        return;
    }
    text += QString::fromUtf8(file.readAll().constData()); // up to a NUL byte
}

QString themeFile(const QString &folder, const QString &name, const QString &suffix)
{
    // One after the other on purpose: a folder that holds "%1" has always been filled in as well.
    return QStringLiteral("%1/%2.%3")
        .arg(folder)
        .arg(name)
        .arg(suffix); // clazy:exclude=qstring-arg
}

void readThemeFile(Theme *theme, const QString &path)
{
    QSettings settings(path, iniFormat(path));
    theme->readSettings(settings);
}

} // namespace

QString replaceCssColors(const QString &prefix, const QVariantMap &values,
                         const QString &styleSheet)
{
    return replaceTokens(prefix, colorKind, values, styleSheet);
}

QString replaceCssImages(const QString &prefix, const QVariantMap &values,
                         const QString &styleSheet)
{
    return replaceTokens(prefix, imageKind, values, styleSheet);
}

QString replaceCssIntegers(const QString &prefix, const QVariantMap &values,
                           const QString &styleSheet)
{
    return replaceTokens(prefix, integerKind, values, styleSheet);
}

QString dpiSpecificImageFile(const QString &imageFile)
{
    return imageFile;
}

void replaceStyleSheet(Theme *theme, const QString &prefix, QString &styleSheet)
{
    replaceAllTokens(theme, replaceWithoutTheme, prefix, styleSheet);
}

void readStyleSheet(const QString &folder, QString &text)
{
    QDir dir(folder);
    dir.setNameFilters({QStringLiteral("*.qss"), QStringLiteral("*.css")});
    dir.setFilter(QDir::Files);
    const QStringList names = dir.entryList();
    for (const QString &name : names)
        appendFile(folder + QLatin1Char('/') + name, folderFile, text);
}

QString findStyleSheet(Theme *theme, const QString &folder, const QString &prefix)
{
    QString text;
    readStyleSheet(folder, text);
    replaceAllTokens(theme, findInFolderWithoutTheme, prefix, text);
    return text;
}

void readStyleSheet(const QStringList &files, QString &text)
{
    for (const QString &file : files)
        appendFile(file, listedFile, text);
}

QString findStyleSheet(Theme *theme, const QStringList &files, const QString &prefix)
{
    QString text;
    readStyleSheet(files, text);
    replaceAllTokens(theme, findInListWithoutTheme, prefix, text);
    return text;
}

void changeTheme(Theme *theme, const QString &name, const QString &folder, const QString &suffix)
{
    theme->clear();
    readThemeFile(theme, themeFile(folder, QStringLiteral("default"), suffix));
    if (name.isEmpty() || name.compare(theme->displayName(), Qt::CaseInsensitive) == 0)
        return;

    const QString file = themeFile(folder, name, suffix);
    if (QFile::exists(file))
        readThemeFile(theme, file);
}

} // namespace HV

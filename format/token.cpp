// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include <format/token.h>

#include <QRegularExpression>
#include <QStringBuilder>
#include <QStringList>

#include <algorithm>

namespace
{

std::optional<Kind> kindOfWord(const QString &word)
{
    for (const Kind kind : Tokens::passes) {
        if (word == Tokens::word(kind))
            return kind;
    }
    return std::nullopt;
}

QRegularExpression expression(const QString &prefix, const QString &words)
{
    return QRegularExpression(QLatin1String("(?:") % prefix % QLatin1String(")\\.theme\\.(?<kind>")
                              % words % QLatin1String(")\\.(?<key>\\w+)"));
}

QString wordsOfPasses()
{
    QStringList words;
    for (const Kind kind : Tokens::passes)
        words << Tokens::word(kind);
    return words.join(QLatin1Char('|'));
}

QString keyIn(const QRegularExpressionMatch &match)
{
    return match.captured(QStringLiteral("key"));
}

QString wordIn(const QRegularExpressionMatch &match)
{
    return match.captured(QStringLiteral("kind"));
}

} // namespace

QString Tokens::defaultPrefix()
{
    return QStringLiteral("global");
}

QString Tokens::word(Kind kind)
{
    switch (kind) {
    case Kind::Color:
        return QStringLiteral("color");
    case Kind::ImageFile:
        return QStringLiteral("image");
    case Kind::Integer:
        return QStringLiteral("integer");
    case Kind::Palette:
    case Kind::Gradient:
    case Kind::Flag:
        break;
    }
    return {};
}

bool Tokens::takesSeparator(Kind kind)
{
    return kind == Kind::Integer;
}

bool Tokens::isKeyCharacter(QChar character)
{
    const ushort code = character.unicode();
    return code == '_' || (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z')
        || (code >= 'a' && code <= 'z');
}

QString Tokens::opening(const QString &prefix, Kind kind)
{
    return prefix % QLatin1String(".theme.") % word(kind) % QLatin1Char('.');
}

QVector<TemplateToken> Tokens::find(const QString &text, const QString &prefix)
{
    QVector<TemplateToken> tokens;
    auto matches = expression(prefix, wordsOfPasses()).globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        tokens.append({*kindOfWord(wordIn(match)), keyIn(match), int(match.capturedStart()),
                       int(match.capturedLength())});
    }
    return tokens;
}

std::optional<TemplateToken> Tokens::read(const QString &text, const QString &prefix)
{
    for (const Kind kind : passes) {
        const QString start = opening(prefix, kind);
        if (!text.startsWith(start) || text.size() == start.size())
            continue;
        const QString key = text.mid(start.size());
        if (std::all_of(key.cbegin(), key.cend(), isKeyCharacter))
            return TemplateToken{kind, key, 0, int(text.size())};
    }
    return std::nullopt;
}

QVector<Tokens::Candidate> Tokens::findCandidates(const QString &text, const QString &prefix)
{
    QVector<Candidate> candidates;
    auto matches = expression(prefix, QStringLiteral("\\w+")).globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        candidates.append({kindOfWord(wordIn(match)), match.captured(), keyIn(match),
                           int(match.capturedStart())});
    }
    return candidates;
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/substitution.h>

#include <analysis/messagelog.h>
#include <format/token.h>
#include <hvtheme/theming.h>

#include <QHash>
#include <QVector>

namespace
{

// So much of the text behind a token can matter to what its value becomes.
constexpr int windowSize = 65536;

// Values that repeat nothing and still need more steps than this at one token were made to do so.
constexpr int substitutionLimit = 100000;

struct Pass {
    Kind kind;
    QString (*replace)(const QString &prefix, const QVariantMap &values, const QString &text);
};

const Pass passes[] = {
    {Kind::Color, HV::replaceCssColors},
    {Kind::ImageFile, HV::replaceCssImages},
    {Kind::Integer, HV::replaceCssIntegers},
};

struct Token {
    int start = -1;
    int keyEnd = -1;
    int end = -1; // with the separator
    QString key;
};

class EndlessSearch
{
public:
    EndlessSearch(const QString &prefix, const Pass &pass, const QVariantMap &values)
        : m_opening(Tokens::opening(prefix, pass.kind))
        , m_takesSeparator(Tokens::takesSeparator(pass.kind))
        , m_values(values)
    {
    }

    // Returns the key of the value that never stops being replaced, or a null text.
    QString endlessKey(const QString &text)
    {
        Token token = nextToken(text, 0);
        while (token.start >= 0) {
            int resumeAt = token.end;
            if (mayHoldToken(text, token)) {
                QString key = follow(text, token, &resumeAt);
                if (!key.isNull())
                    return key;
            }
            token = nextToken(text, resumeAt);
        }
        return {};
    }

private:
    // A value that is open: its text is not behind the search yet. What stands behind it is counted
    // from the end, because that does not move.
    struct OpenValue {
        QString key;
        int lengthBehind;
    };

    Token nextToken(const QString &text, int from) const
    {
        for (int hit = int(text.indexOf(m_opening, from)); hit >= 0;
             hit = int(text.indexOf(m_opening, hit + 1))) {
            Token token;
            token.start = hit;
            token.keyEnd = int(hit + m_opening.size());
            while (token.keyEnd < text.size() && Tokens::isKeyCharacter(text.at(token.keyEnd)))
                ++token.keyEnd;
            token.key = text.mid(hit + m_opening.size(), token.keyEnd - hit - m_opening.size());
            const bool isSeparated = m_takesSeparator && token.keyEnd < text.size()
                && text.at(token.keyEnd) == QLatin1Char(Tokens::separator);
            token.end = token.keyEnd + (isSeparated ? 1 : 0);
            if (!token.key.isEmpty())
                return token;
        }
        return {};
    }

    const QString &valueOf(const QString &key)
    {
        auto found = m_texts.find(key);
        if (found == m_texts.end())
            found = m_texts.insert(key, m_values.value(key).toString());
        return *found;
    }

    // Where the library searches on: the inserted text or, behind a separator, one before it.
    static int searchStart(const Token &token)
    {
        return qMax(0, token.start - (token.end - token.keyEnd));
    }

    // Tells whether the search could find anything before it leaves the value again.
    bool mayHoldToken(const QString &text, const Token &token)
    {
        const int before = searchStart(token);
        const QString joined = text.mid(before, token.start - before) + valueOf(token.key)
            + text.mid(token.end, m_opening.size() - 1);
        return joined.contains(m_opening);
    }

    QString follow(const QString &text, const Token &first, int *resumeAt)
    {
        const int before = searchStart(first);
        QString window = text.mid(before, first.end - before + windowSize);
        const int behindWindow = int(text.size() - before - window.size());
        int leastBehind = int(window.size());
        QVector<OpenValue> open;
        Token token = nextToken(window, first.start - before);
        for (int step = 0; token.start >= 0; ++step) {
            while (!open.isEmpty() && window.size() - token.start <= open.last().lengthBehind)
                open.removeLast();
            if (step > 0 && open.isEmpty())
                break;
            const int lengthBehind = int(window.size() - token.end);
            // A token that reaches out of a value uses up the text behind it, so nothing repeats.
            while (!open.isEmpty() && open.last().lengthBehind > lengthBehind)
                open.removeLast();
            leastBehind = qMin(leastBehind, lengthBehind);
            for (const OpenValue &value : qAsConst(open)) {
                if (value.key == token.key)
                    return token.key;
            }
            if (step > substitutionLimit)
                return token.key;
            window.replace(token.start, token.end - token.start, valueOf(token.key));
            open.append({token.key, lengthBehind});
            token = nextToken(window, searchStart(token));
        }
        *resumeAt = int(text.size() - behindWindow - leastBehind);
        return {};
    }

    const QString m_opening;
    const bool m_takesSeparator;
    const QVariantMap &m_values;
    QHash<QString, QString> m_texts;
};

} // namespace

FinishedStyleSheet finishedStyleSheet(const QString &prefix, const QVariantMap &values,
                                      const QString &templates)
{
    const MessageLog silence;
    FinishedStyleSheet result;
    QString text = templates;
    for (const Pass &pass : passes) {
        result.endlessKey = EndlessSearch(prefix, pass, values).endlessKey(text);
        if (!result.endlessKey.isNull())
            return result;
        text = pass.replace(prefix, values, text);
    }
    result.text = text;
    return result;
}

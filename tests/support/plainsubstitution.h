// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_PLAINSUBSTITUTION_H
#define HVTHEME_TESTS_PLAINSUBSTITUTION_H

#include <QHash>
#include <QPair>
#include <QRegularExpression>
#include <QVariantMap>
#include <QVector>

/*!
 * The substitution passes in their plainest form, one regular expression match after the other:
 * slow, and the definition of what the library's passes give for every text that is valid UTF-16.
 */
namespace Plain
{

enum class Kind {
    Color,
    Image,
    Integer
};

struct Result {
    QString text;
    QVector<QPair<QString, QString>> images; // key and path of each token
    int steps = 0;
    bool ended = true; // false: given up, as the pass may never end
};

inline QString pattern(Kind kind)
{
    switch (kind) {
    case Kind::Color:
        return R"(%1\.theme\.color\.(\w+))";
    case Kind::Image:
        return R"(%1\.theme\.image\.(\w+))";
    case Kind::Integer:
        break;
    }
    return R"(%1\.theme\.integer\.(\w+))";
}

inline int spanOf(Kind kind, const QString &prefix, const QString &name)
{
    switch (kind) {
    case Kind::Color:
        return int(QString("%1.theme.color." + name).arg(prefix).size());
    case Kind::Image:
        return int(QString("%1.theme.image." + name).arg(prefix).size());
    case Kind::Integer:
        break;
    }
    return int(QString("%1.theme.integer.%2").arg(prefix).arg(name).size());
}

inline Result replaced(Kind kind, const QString &prefix, const QVariantMap &values,
                       const QString &styleSheet, int mostSteps)
{
    static QHash<QString, QRegularExpression> compiled;
    if (compiled.size() > 1000)
        compiled.clear();
    QRegularExpression &expression = compiled[pattern(kind).arg(prefix)];
    if (expression.pattern().isEmpty())
        expression.setPattern(pattern(kind).arg(prefix));

    Result result;
    result.text = styleSheet;
    auto match = expression.match(result.text, 0);
    while (match.hasMatch()) {
        if (++result.steps > mostSteps) {
            result.ended = false;
            break;
        }
        const int end = int(match.capturedEnd());
        const QString name = match.captured(1);
        int span = spanOf(kind, prefix, name);
        const int after = int(match.capturedStart() + span);
        if (kind == Kind::Integer && after < result.text.size() && result.text.at(after) == '|')
            ++span;
        const QString text = values.value(name).toString();
        if (kind == Kind::Image)
            result.images.append({name, text});
        result.text.replace(match.capturedStart(), span, text);
        match = expression.match(result.text, qMax(0, end - span));
    }
    return result;
}

// The expression engine takes no text that is not valid UTF-16, and ends a pass inside a pair. For
// such texts give the plain passes other characters, of which \w and word prefixes know as little.
inline QString hiddenSurrogates(QString text)
{
    for (QChar &c : text) {
        if (c.isSurrogate())
            c = QChar(ushort(c.unicode() + 0x0800));
    }
    return text;
}

inline QString shownSurrogates(QString text)
{
    for (QChar &c : text) {
        if (c.unicode() >= 0xe000 && c.unicode() <= 0xe7ff)
            c = QChar(ushort(c.unicode() - 0x0800));
    }
    return text;
}

} // namespace Plain

#endif // HVTHEME_TESTS_PLAINSUBSTITUTION_H

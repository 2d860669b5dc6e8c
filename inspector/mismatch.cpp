// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/mismatch.h>

#include <analysis/style/stylevocabulary.h>
#include <analysis/suggestion.h>

namespace
{

using Combinator = StyleSelector::Combinator;
using Match = StyleSelector::Attribute::Match;

QString attributeText(const StyleSelector::Attribute &attribute)
{
    static const char *const operators[] = {"", "=", "~=", "|=", "^=", "$=", "*="};
    const QString sign = QLatin1String(operators[int(attribute.match)]);
    return QLatin1Char('[') % attribute.name % sign
        % (sign.isEmpty() ? QString()
                          : QString(QLatin1Char('"') % attribute.value % QLatin1Char('"')))
        % QLatin1Char(']');
}

// A step of one condition, so that the cascade's own matching decides.
bool fits(const StyleSelector::Step &step, const StyleNode &node)
{
    StyleSelector one;
    one.steps = {step};
    return matchesObject(one, {node});
}

StyleSelector::Step stepOf(const QString &type)
{
    StyleSelector::Step step;
    step.type = type;
    return step;
}

QVector<SelectorPiece> objectPieces(const StyleSelector::Step &step, const StyleNode &node)
{
    QVector<SelectorPiece> pieces;
    const QString className = node.classes.value(0);
    const StyleSelector::Step type = stepOf(step.type);
    SelectorPiece piece{step.type, fits(type, node), {}};
    if (!piece.fits) {
        piece.reason = className == QLatin1String("QToolTip")
            ? QStringLiteral("a tool tip matches only QToolTip")
            : QStringLiteral("the class is %1 and not derived from %2").arg(className, step.type);
        if (QString(step.type).replace(QLatin1String("::"), QLatin1String("--")) != step.type)
            piece.reason += QStringLiteral("; \"::\" of a class is written \"--\"");
    }
    pieces.append(piece);
    for (const QString &id : step.ids) {
        const bool isName = node.name == id;
        pieces.append({QLatin1Char('#') % id, isName,
                       isName ? QString()
                           : node.name.isEmpty()
                           ? QStringLiteral("the object has no name")
                           : QStringLiteral("the object is called \"%1\"").arg(node.name)});
    }
    for (const StyleSelector::Attribute &attribute : step.attributes) {
        StyleSelector::Step one = stepOf(QStringLiteral("*"));
        one.attributes = {attribute};
        SelectorPiece made{attributeText(attribute), fits(one, node), {}};
        const bool isThere = node.attributes.contains(attribute.name);
        if (!made.fits)
            made.reason = isThere ? QStringLiteral("its property \"%1\" is \"%2\"")
                                        .arg(attribute.name, node.attributes.value(attribute.name))
                                  : QStringLiteral("it has no property \"%1\"").arg(attribute.name);
        pieces.append(made);
    }
    return pieces;
}

QVector<SelectorPiece> statePieces(const StyleSelector &selector, const StyleElement &element)
{
    QVector<SelectorPiece> pieces;
    const QString part = selector.subControl();
    const QString own = element.subControl;
    const bool isPart = part.compare(own, Qt::CaseInsensitive) == 0;
    if (!part.isEmpty() || !isPart) {
        SelectorPiece piece{QLatin1String("::") % part, isPart, {}};
        if (part.isEmpty())
            piece.text = selector.text;
        if (!isPart)
            piece.reason = part.isEmpty()
                ? QStringLiteral("it is for the widget itself, not for ::%1").arg(own)
                : own.isEmpty()
                ? QStringLiteral("it is for the part ::%1, not for the widget itself").arg(part)
                : QStringLiteral("it is for the part ::%1, not for ::%2").arg(part, own);
        pieces.append(piece);
    }
    const auto states = selector.states();
    for (const StyleSelector::Pseudo &state : states) {
        const bool isKnown = StyleVocabulary::isState(state.name);
        const bool isHeld = element.states.contains(state.name.toLower());
        SelectorPiece piece{
            QLatin1Char(':') % state.text(), !isKnown || isHeld != state.isNegated, {}};
        if (!piece.fits)
            piece.reason = isHeld ? QStringLiteral("it is in the state :%1").arg(state.name)
                                  : QStringLiteral("it is not in the state :%1").arg(state.name);
        if (!isKnown)
            return pieces; // it makes all states hold
        pieces.append(piece);
    }
    return pieces;
}

// The index in the path of what the step fits, or -1.
int ancestor(const StyleSelector::Step &step, const QVector<StyleNode> &path, int from)
{
    for (int i = from; i < path.size(); ++i) {
        if (fits(step, path.at(i)))
            return i;
    }
    return -1;
}

// What stands before the subject, in the order of the selector.
QVector<SelectorPiece> ancestorPieces(const StyleSelector &selector, const QVector<StyleNode> &path)
{
    QVector<SelectorPiece> pieces;
    int node = 0;
    for (int i = int(selector.steps.size()) - 2; i >= 0; --i) {
        const StyleSelector::Step &step = selector.steps.at(i);
        const Combinator joint = selector.steps.at(i + 1).combinator;
        SelectorPiece piece{step.type, true, {}};
        if (joint == Combinator::Sibling) {
            piece.fits = false;
            piece.reason = QStringLiteral("widgets have no siblings in style sheets");
        } else if (joint == Combinator::Child) {
            ++node;
            piece.fits = node < path.size() && fits(step, path.at(node));
            if (!piece.fits && node < path.size())
                piece.reason =
                    QStringLiteral("the parent is %1").arg(path.at(node).classes.value(0));
            else if (!piece.fits)
                piece.reason = QStringLiteral("there is no parent");
        } else {
            const int found = ancestor(step, path, node + 1);
            piece.fits = found > 0;
            if (piece.fits)
                node = found;
            else
                piece.reason = QStringLiteral("no ancestor is such a %1").arg(step.type);
        }
        for (const StyleSelector::Attribute &attribute : step.attributes)
            piece.text += attributeText(attribute);
        pieces.prepend(piece);
    }
    return pieces;
}

} // namespace

SelectorVerdict whyNot(const QString &text, const StyleElement &element)
{
    SelectorVerdict verdict;
    const StyleSelector selector = StyleSelector::parsed(text);
    if (!selector.isValid() || element.path.isEmpty()) {
        verdict.reason = QStringLiteral("Qt cannot read this selector");
        return verdict;
    }
    verdict.matches = matchesObject(selector, element.path) && matchesState(selector, element);
    verdict.pieces = objectPieces(selector.subject(), element.path.constFirst())
        + statePieces(selector, element);
    verdict.pieces = ancestorPieces(selector, element.path) + verdict.pieces;
    for (const SelectorPiece &piece : qAsConst(verdict.pieces)) {
        if (!verdict.matches && verdict.reason.isEmpty() && !piece.fits)
            verdict.reason = QStringLiteral("%1: %2").arg(piece.text, piece.reason);
    }
    if (!verdict.matches && verdict.reason.isEmpty())
        verdict.reason = QStringLiteral("Qt takes the nearest ancestor that fits a step, and does "
                                        "not try one further out");
    return verdict;
}

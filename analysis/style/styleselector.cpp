// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/styleselector.h>

#include <analysis/style/quotation.h>
#include <analysis/style/stylevocabulary.h>

namespace
{

using Match = StyleSelector::Attribute::Match;
using Step = StyleSelector::Step;

bool isNameCharacter(QChar character)
{
    return character.isLetterOrNumber() || character == u'_' || character == u'-';
}

// Reads each character once, from left to right.
class SelectorScanner
{
public:
    SelectorScanner(const QString &text, int offset)
        : m_text(text)
        , m_offset(offset)
    {
    }

    // Returns the steps, or none where Qt would refuse the rule.
    QVector<Step> steps()
    {
        QVector<Step> steps;
        skipBlanks();
        StyleSelector::Combinator combinator = StyleSelector::Combinator::Descendant;
        do {
            Step step;
            step.combinator = combinator;
            step.offset = m_offset + m_at;
            if (!readStep(&step))
                return {};
            steps.append(step);
        } while (readCombinator(&combinator));
        return m_at == m_text.size() ? steps : QVector<Step>();
    }

    int looks() const { return m_looks; }

private:
    QChar current() { return at(m_at); }

    // A null character behind the end.
    QChar at(int place)
    {
        ++m_looks;
        return place < m_text.size() ? m_text.at(place) : QChar();
    }

    bool take(char16_t character)
    {
        if (current() != character)
            return false;
        ++m_at;
        return true;
    }

    bool skipBlanks()
    {
        const int start = m_at;
        while (current().isSpace())
            ++m_at;
        return m_at > start;
    }

    QString readName()
    {
        const int start = m_at;
        while (isNameCharacter(current()))
            ++m_at;
        return m_text.mid(start, m_at - start);
    }

    // As classes, attributes and pseudos are called: not beginning with a digit, nor "-" and a digit.
    QString readIdentifier()
    {
        const int first = m_at + (current() == u'-' ? 1 : 0);
        const QChar character = at(first);
        const bool isName = isNameCharacter(character) && !character.isDigit() && character != u'-';
        return isName ? readName() : QString();
    }

    bool readCombinator(StyleSelector::Combinator *combinator)
    {
        const bool isBlank = skipBlanks();
        *combinator = StyleSelector::Combinator::Descendant;
        if (take(u'>'))
            *combinator = StyleSelector::Combinator::Child;
        else if (take(u'+') || take(u'~'))
            *combinator = StyleSelector::Combinator::Sibling;
        else
            return isBlank && m_at < m_text.size();
        skipBlanks();
        return true;
    }

    bool readStep(Step *step)
    {
        const int start = m_at;
        step->type = take(u'*') ? QString() : readIdentifier();
        if (step->type.isEmpty())
            step->type = QStringLiteral("*");
        while (m_at < m_text.size() && readCondition(step)) { }
        return m_at > start && !m_hasFailed;
    }

    bool readCondition(Step *step)
    {
        if (take(u'#')) {
            step->ids << readName();
            m_hasFailed |= step->ids.constLast().isEmpty();
        } else if (take(u'.')) {
            step->attributes.append({QStringLiteral("class"), readIdentifier(), Match::HasWord});
            m_hasFailed |= step->attributes.constLast().value.isEmpty();
        } else if (take(u'[')) {
            m_hasFailed |= !readAttribute(step);
        } else if (take(u':')) {
            StyleSelector::Pseudo pseudo;
            pseudo.isDoubled = take(u':');
            pseudo.offset = m_offset + m_at;
            pseudo.isNegated = take(u'!');
            pseudo.name = readIdentifier();
            m_hasFailed |= pseudo.name.isEmpty();
            step->pseudos.append(pseudo);
        } else {
            return false;
        }
        return !m_hasFailed;
    }

    Match readOperator()
    {
        const QChar first = current();
        if (take(u'='))
            return Match::Equals;
        ++m_at;
        if (!take(u'='))
            return Match::Exists;
        switch (first.unicode()) {
        case u'~':
            return Match::HasWord;
        case u'|':
            return Match::HasDash;
        case u'^':
            return Match::StartsWith;
        case u'$':
            return Match::EndsWith;
        case u'*':
            return Match::Contains;
        default:
            return Match::Exists;
        }
    }

    bool readAttribute(Step *step)
    {
        StyleSelector::Attribute attribute;
        skipBlanks();
        attribute.name = readIdentifier();
        skipBlanks();
        if (!take(u']')) {
            attribute.match = readOperator();
            skipBlanks();
            if (attribute.match == Match::Exists || !readAttributeValue(&attribute.value))
                return false;
            skipBlanks();
            if (!take(u']'))
                return false;
        }
        step->attributes.append(attribute);
        return !attribute.name.isEmpty();
    }

    bool readAttributeValue(QString *value)
    {
        const QChar quote = current();
        if (!take(u'"') && !take(u'\'')) {
            *value = readIdentifier();
            return !value->isEmpty();
        }
        const int start = m_at;
        while (m_at < m_text.size() && current() != quote && current() != u'\n')
            ++m_at;
        *value = m_text.mid(start, m_at - start);
        return take(quote.unicode());
    }

    const QString m_text;
    const int m_offset;
    int m_at = 0;
    int m_looks = 0;
    bool m_hasFailed = false;
};

} // namespace

QString StyleSelector::subControl() const
{
    const QVector<Pseudo> &pseudos = subject().pseudos;
    const bool isFirst = !pseudos.isEmpty() && !StyleVocabulary::isState(pseudos.constFirst().name);
    return isFirst ? pseudos.constFirst().name : QString();
}

QVector<StyleSelector::Pseudo> StyleSelector::states() const
{
    return subject().pseudos.mid(subControl().isEmpty() ? 0 : 1);
}

int StyleSelector::specificity() const
{
    int result = 0;
    for (const Step &step : steps) {
        result += int(step.ids.size()) * 0x100
            + int(step.attributes.size() + step.pseudos.size()) * 0x10
            + (step.type == QLatin1String("*") ? 0 : 1);
    }
    return result;
}

StyleSelector StyleSelector::parsed(const QString &text, int offset, int *looks)
{
    int blanks = 0;
    while (blanks < text.size() && text.at(blanks).isSpace())
        ++blanks;
    StyleSelector selector;
    selector.text = text.simplified();
    selector.offset = offset + blanks;
    SelectorScanner scanner(text.trimmed(), selector.offset);
    selector.steps = scanner.steps();
    if (looks)
        *looks = scanner.looks() + blanks;
    return selector;
}

QVector<StyleSelector> StyleSelector::parsedList(const QString &text, int offset)
{
    QVector<StyleSelector> selectors;
    Quotation quotation;
    int start = 0;
    for (int at = 0; at <= text.size(); ++at) {
        if (at < text.size() && (quotation.take(text.at(at)) || text.at(at) != u','))
            continue;
        selectors.append(parsed(text.mid(start, at - start), offset + start));
        start = at + 1;
    }
    return selectors;
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/stylerules.h>

#include <analysis/style/quotation.h>

#include <algorithm>

namespace
{

// Returns how much of a value stands before its "!important", or -1 if it has none.
int sizeBeforeImportant(const QString &value)
{
    const QLatin1String word("important");
    int size = int(value.size() - word.size());
    if (!value.endsWith(word, Qt::CaseInsensitive))
        return -1;
    while (size > 0 && value.at(size - 1).isSpace())
        --size;
    return size > 0 && value.at(size - 1) == u'!' ? size - 1 : -1;
}

// Takes a text apart whose comments are blanked.
class RuleScanner
{
public:
    explicit RuleScanner(const QString &text)
        : m_text(text)
    {
    }

    QVector<StyleRule> rules()
    {
        QVector<StyleRule> result;
        while (skipBlanks()) {
            StyleRule rule;
            rule.start = m_at;
            const int brace = endOfPart();
            m_at = brace + 1;
            if (brace >= m_text.size() || m_text.at(brace) != u'{')
                continue; // a stray character, or a statement such as @import
            const QString selectors = m_text.mid(rule.start, brace - rule.start);
            rule.selector = selectors.simplified();
            rule.selectors = StyleSelector::parsedList(selectors, rule.start);
            rule.declarations = declarations();
            rule.end = m_at;
            result.append(rule);
        }
        return result;
    }

private:
    QVector<StyleDeclaration> declarations()
    {
        QVector<StyleDeclaration> result;
        bool isOpen = true;
        while (isOpen && skipBlanks()) {
            StyleDeclaration declaration;
            declaration.start = m_at;
            declaration.end = endOfPart();
            const QString text = m_text.mid(m_at, declaration.end - m_at);
            const int colon = int(text.indexOf(u':'));
            if (colon >= 0) {
                declaration.property = text.left(colon).simplified();
                declaration.value = text.mid(colon + 1).simplified();
                result.append(declaration);
            }
            isOpen = declaration.end < m_text.size() && m_text.at(declaration.end) != u'}';
            m_at = std::min(declaration.end + 1, int(m_text.size()));
        }
        return result;
    }

    bool skipBlanks()
    {
        while (m_at < m_text.size() && m_text.at(m_at).isSpace())
            ++m_at;
        return m_at < m_text.size();
    }

    // Returns where the next brace or semicolon stands that is not quoted, or the text's end.
    int endOfPart() const
    {
        Quotation quotation;
        for (int at = m_at; at < m_text.size(); ++at) {
            const QChar character = m_text.at(at);
            if (!quotation.take(character)
                && (character == u'{' || character == u'}' || character == u';'))
                return at;
        }
        return int(m_text.size());
    }

    const QString m_text;
    int m_at = 0;
};

} // namespace

bool StyleDeclaration::isImportant() const
{
    return sizeBeforeImportant(value) >= 0;
}

QString StyleDeclaration::plainValue() const
{
    return isImportant() ? value.left(sizeBeforeImportant(value)).trimmed() : value;
}

const StyleDeclaration *StyleRule::declarationAt(int offset) const
{
    for (const StyleDeclaration &declaration : declarations) {
        if (offset >= declaration.start && offset < declaration.end)
            return &declaration;
    }
    return nullptr;
}

StyleRules::StyleRules(const QString &text)
{
    const QLatin1String closing("*/");
    QString blanked = text;
    Quotation quotation;
    for (int at = 0; at < text.size(); ++at) {
        const bool isOpening = !quotation.take(text.at(at)) && text.at(at) == u'/'
            && at + 1 < text.size() && text.at(at + 1) == u'*';
        if (!isOpening)
            continue;
        const int close = int(text.indexOf(closing, at + 2));
        const int end = int(close < 0 ? text.size() : close + closing.size());
        m_comments.append({at, end, close >= 0});
        std::fill(blanked.begin() + at, blanked.begin() + end, QChar(u' '));
        at = end - 1;
    }
    m_rules = RuleScanner(blanked).rules();
}

const StyleRule *StyleRules::ruleAt(int offset) const
{
    const auto next =
        std::upper_bound(m_rules.cbegin(), m_rules.cend(), offset,
                         [](int place, const StyleRule &rule) { return place < rule.start; });
    if (next == m_rules.cbegin() || offset >= std::prev(next)->end)
        return nullptr;
    return &*std::prev(next);
}

bool StyleRules::isComment(int offset) const
{
    const auto next =
        std::upper_bound(m_comments.cbegin(), m_comments.cend(), offset,
                         [](int place, const Comment &comment) { return place < comment.start; });
    return next != m_comments.cbegin() && offset < std::prev(next)->end;
}

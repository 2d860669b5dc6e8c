// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/styleparser.h>

#include <analysis/messagelog.h>
#include <analysis/style/stylerules.h>

#include <QApplication>
#include <QWidget>

namespace
{

// A text with hundreds of mistakes is no style sheet; asking about each would take long.
constexpr int rejectedLimit = 100;

class Search
{
public:
    Search(StyleParser *parser, const QString &text)
        : m_parser(parser)
        , m_text(text)
        , m_rules(StyleRules(text).rules())
    {
    }

    QVector<int> rejected()
    {
        search(0, m_rules.size());
        return m_rejected;
    }

private:
    // From the end of the rule before, so that stray text in between belongs to the rule behind it.
    int startOf(int rule) const { return rule == 0 ? 0 : m_rules.at(rule - 1).end; }

    QString part(int first, int last) const
    {
        const int end = last >= m_rules.size() ? m_text.size() : m_rules.at(last - 1).end;
        return m_text.mid(startOf(first), end - startOf(first));
    }

    void reject(int rule) { m_rejected.append(startOf(rule) + placeOf(part(rule, rule + 1))); }

    void search(int first, int last)
    {
        if (m_rejected.size() >= rejectedLimit || m_parser->accepts(part(first, last)))
            return;
        if (last - first <= 1) {
            reject(first);
            return;
        }
        const int middle = first + (last - first) / 2;
        const int found = m_rejected.size();
        search(first, middle);
        search(middle, last);
        if (found == m_rejected.size())
            reject(first); // whatever makes the difference, a rejected text is never reported clean
    }

    static int placeOf(const QString &part)
    {
        int place = 0;
        while (place < part.size() && part.at(place).isSpace())
            ++place;
        return place;
    }

    StyleParser *m_parser;
    const QString m_text;
    const QVector<StyleRule> m_rules;
    QVector<int> m_rejected;
};

} // namespace

bool StyleParser::accepts(const QString &styleSheet)
{
    // Qt parses an application's style sheet when the first widget asks for it, and says so if it
    // fails. A widget's own style sheet would not do: that is tried as bare declarations as well.
    MessageLog log;
    QWidget widget;
    qApp->setStyleSheet(styleSheet);
    widget.ensurePolished();
    qApp->setStyleSheet(QString());
    for (const LoggedMessage &message : log.messages()) {
        if (message.text.startsWith(QLatin1String("Could not parse")))
            return false;
    }
    return true;
}

QVector<int> StyleParser::rejectedRules(const QString &styleSheet)
{
    return Search(this, styleSheet).rejected();
}

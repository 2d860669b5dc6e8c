// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/styleparser.h>

#include <analysis/style/stylerules.h>

#include <QGuiApplication>
#include <QHash>
#include <QTextBlock>
#include <QTextDocument>
#include <QVariant>

namespace
{

// A text with hundreds of mistakes is no style sheet; asking about each would take long.
constexpr int rejectedLimit = 100;

// A document that opens no picture which the style sheet names.
class SilentDocument final : public QTextDocument
{
protected:
    QVariant loadResource(int, const QUrl &) override { return QByteArray(); }
};

class Search
{
public:
    explicit Search(const QString &text)
        : m_text(text)
    {
        const StyleRules rules(text);
        for (const StyleRule &rule : rules.rules())
            m_ends.append(rule.end);
        // What follows the last rule and is none stands for itself.
        if (m_ends.isEmpty() || !text.mid(m_ends.constLast()).trimmed().isEmpty())
            m_ends.append(int(text.size()));
    }

    QVector<int> rejected()
    {
        search(0, int(m_ends.size()));
        return m_rejected;
    }

private:
    // From the end of the rule before, so that stray text in between belongs to the rule behind it.
    int startOf(int rule) const { return rule == 0 ? 0 : m_ends.at(rule - 1); }

    QString part(int first, int last) const
    {
        return m_text.mid(startOf(first), m_ends.at(last - 1) - startOf(first));
    }

    void reject(int rule) { m_rejected.append(startOf(rule) + placeOf(part(rule, rule + 1))); }

    void search(int first, int last)
    {
        if (m_rejected.size() >= rejectedLimit || StyleParser::accepts(part(first, last)))
            return;
        if (last - first <= 1) {
            reject(first);
            return;
        }
        const int middle = first + (last - first) / 2;
        const int found = int(m_rejected.size());
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

    const QString m_text;
    QVector<int> m_ends; // of the rules
    QVector<int> m_rejected;
};

} // namespace

bool StyleParser::isAvailable()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
}

// Qt keeps the rules that it read before it gave up. So a rule is put behind the text and looked
// for; what stands before it there ends a selector or comma that was left open.
bool StyleParser::accepts(const QString &styleSheet)
{
    constexpr int indent = 7;
    SilentDocument document;
    document.setUndoRedoEnabled(false);
    document.setDefaultStyleSheet(styleSheet % QLatin1String("\n<!-- -->\np#hvtheme-end{")
                                  % QStringLiteral("-qt-block-indent:%1}").arg(indent));
    document.setHtml(QStringLiteral("<p id=\"hvtheme-end\">x</p>"));
    return document.firstBlock().blockFormat().indent() == indent;
}

QString StyleParser::readPart(const QString &styleSheet)
{
    if (styleSheet.isEmpty() || !isAvailable())
        return styleSheet;
    static QHash<QString, QString> known; // of widgets that are asked about again and again
    const auto found = known.constFind(styleSheet);
    if (found != known.cend())
        return *found;
    QString part = styleSheet;
    if (!styleSheet.contains(QLatin1Char('{')))
        part =
            accepts(QLatin1String("*{") % styleSheet % QLatin1Char('}')) ? styleSheet : QString();
    else if (!accepts(styleSheet))
        part = styleSheet.left(rejectedRules(styleSheet).value(0));
    constexpr int mostKnown = 100;
    if (known.size() >= mostKnown)
        known.clear();
    known.insert(styleSheet, part);
    return part;
}

QVector<int> StyleParser::rejectedRules(const QString &styleSheet)
{
    return Search(styleSheet).rejected();
}

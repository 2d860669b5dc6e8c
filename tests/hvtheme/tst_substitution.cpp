// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theme.h>
#include <hvtheme/theming.h>

#include "expectedmessages.h"
#include "messages.h"
#include "plainsubstitution.h"
#include "temporaryfolder.h"

#include <QColor>

#include <random>

namespace
{

using Pass = QString (*)(const QString &, const QVariantMap &, const QString &);
struct Kind {
    Plain::Kind plain;
    Pass pass;
    const char *infix;
};
const Kind Kinds[] = {
    {Plain::Kind::Color, HV::replaceCssColors, ".theme.color."},
    {Plain::Kind::Image, HV::replaceCssImages, ".theme.image."},
    {Plain::Kind::Integer, HV::replaceCssIntegers, ".theme.integer."},
};

// A prefix, and texts that it finds.
struct Prefix {
    QString prefix;
    QStringList texts;
};
const QVector<Prefix> LiteralPrefixes = {
    {"global", {"global", "global", "globalglobal", "lobal"}},
    {"", {"", "x"}},
    {"a", {"a", "aa"}},
    {"aab", {"aab", "aaab", "aa"}},
    {"theme", {"theme", "theme.theme"}},
    {"color_1", {"color_1", "color"}},
};
const QVector<Prefix> Expressions = {
    {"a.c", {"abc", "a.c", "a|c", "a\nc"}},
    {"g?", {"g", "", "gg"}},
    {"a+", {"a", "aaa"}},
    {"[ab]", {"a", "b", "ab"}},
    {"(a)", {"a"}},
    {"(?:a|bcd)", {"a", "bcd"}},
    {"a|b", {"a", "b"}},
    {"^a", {"a"}},
    {"\\ba", {"a", " a"}},
    {"x(?=\\.)", {"x"}},
    {"%1", {"%1"}},
    {"%2", {"%2", "2"}},
    {"%1%2", {"%1%2"}},
    {"%a", {"%a"}},
    {"\xc3\xa9", {"\xc3\xa9"}},
};

struct Case {
    QString prefix;
    QString text;
    QVariantMap values;
};

// Makes cases in which values complete, split and repeat the tokens around them.
class CaseSource
{
public:
    explicit CaseSource(unsigned seed)
        : m_random(seed)
    {
    }

    int below(int limit) { return int(m_random() % unsigned(limit)); }

    template<typename List>
    auto oneOf(const List &list) -> decltype(list.at(0))
    {
        return list.at(below(int(list.size())));
    }

    Case next(const QVector<Prefix> &prefixes, bool hasSurrogates)
    {
        m_prefix = oneOf(prefixes);
        m_hasSurrogates = hasSurrogates;
        m_kind = Kinds[below(3)];
        Case made;
        made.prefix = m_prefix.prefix;
        made.text = text(1 + below(7));
        for (const QString &key : m_keys) {
            if (below(8) > 0)
                made.values.insert(key, value());
        }
        return made;
    }

    const Kind &kind() const { return m_kind; }

private:
    QString token()
    {
        const QString infix = below(6) ? m_kind.infix : Kinds[below(3)].infix;
        return oneOf(m_prefix.texts) + infix + oneOf(m_keys);
    }

    QString piece()
    {
        const QString whole = token();
        const int cut = below(int(whole.size()) + 1);
        switch (below(12)) {
        case 0:
            return whole.left(cut);
        case 1:
            return whole.mid(cut);
        case 2:
            return whole.left(cut) + token() + whole.mid(cut);
        case 3:
            return whole.left(cut) + token() + '|' + whole.mid(cut);
        case 4:
            return m_kind.infix;
        case 5:
            return oneOf(m_fragments);
        case 6:
            return m_hasSurrogates ? surrogates() : QString("\n");
        default:
            return whole + oneOf(m_ends);
        }
    }

    QString surrogates()
    {
        const QChar high(0xd83d);
        const QChar low(0xde00);
        switch (below(4)) {
        case 0:
            return high;
        case 1:
            return low;
        case 2:
            return QString(low) + high + token();
        default:
            return QString(high) + low + token() + '|';
        }
    }

    QString text(int pieces)
    {
        QString joined;
        for (int i = 0; i < pieces; ++i)
            joined += piece();
        return joined;
    }

    QVariant value()
    {
        switch (below(10)) {
        case 0:
            return QColor(1, 2, 3, below(2) ? 255 : 4);
        case 1:
            return qlonglong(below(3)) - 1;
        case 2:
            return below(2) == 0;
        case 3:
            return QString(token() + oneOf(m_ends));
        case 4:
            return piece();
        case 5:
            return text(2);
        default:
            return oneOf(m_fragments);
        }
    }

    const QStringList m_keys = {"a", "b", "ab", "a1", "_", "K"};
    const QStringList m_ends = {"", "", "|", "||", "|px", ";", " ", ".", "a"};
    const QStringList m_fragments = {"",  "|", ".",    "a",  "b",     "1",        "_", "global",
                                     "g", "/", "/tmp", "%1", "theme", "\xc3\xa9", "\n"};
    std::mt19937 m_random;
    Prefix m_prefix;
    Kind m_kind = Kinds[0];
    bool m_hasSurrogates = false;
};

Case withHiddenSurrogates(Case shown)
{
    shown.text = Plain::hiddenSurrogates(shown.text);
    for (QVariant &value : shown.values) {
        if (value.userType() == QMetaType::QString)
            value = Plain::hiddenSurrogates(value.toString());
    }
    return shown;
}

void appendMissingImages(Messages &messages, const Plain::Result &plain)
{
    for (const auto &image : plain.images) {
        const QString path = Plain::shownSurrogates(image.second);
        if (QFileInfo::exists(path))
            continue;
        Message message = Expected::noImage(image.first, path);
        message.text.clear(); // for what the stream makes of it, with its escapes
        QDebug(&message.text) << image.first << "\t" << path << " is not exist!";
        message.text.chop(1);
        messages << message;
    }
}

} // namespace

/*! The passes against their plainest form, over very many random texts. */
class tst_Substitution : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void literalPrefixes();
    void surrogates();
    void expressions();
    void tokensInInvalidText_data();
    void tokensInInvalidText();
    void theme();
    void amongNearMisses_data();
    void amongNearMisses();

private:
    void compare(CaseSource &source, const QVector<Prefix> &prefixes, int count,
                 bool hasSurrogates);

    CapturedMessages m_log;
};

void tst_Substitution::compare(CaseSource &source, const QVector<Prefix> &prefixes, int count,
                               bool hasSurrogates)
{
    const int mostSteps = 60;
    int compared = 0;
    int withSeveralSteps = 0;
    while (compared < count) {
        const Case made = source.next(prefixes, hasSurrogates);
        const Case hidden = withHiddenSurrogates(made);
        const Plain::Result plain = Plain::replaced(source.kind().plain, hidden.prefix,
                                                    hidden.values, hidden.text, mostSteps);
        if (!plain.ended)
            continue;

        ++compared;
        withSeveralSteps += plain.steps > 2;
        const QString actual = source.kind().pass(made.prefix, made.values, made.text);
        const QString expected = Plain::shownSurrogates(plain.text);
        if (actual != expected) {
            qCritical() << "prefix" << made.prefix << "text" << made.text << "values"
                        << made.values;
            m_log.stop();
            QCOMPARE(actual, expected);
        }
        Messages messages;
        appendMissingImages(messages, plain);
        COMPARE_MESSAGES(m_log, messages);
    }
    QVERIFY(withSeveralSteps > count / 4);
}

void tst_Substitution::literalPrefixes()
{
    CaseSource source(1);
    compare(source, LiteralPrefixes, 130000, false);
}

void tst_Substitution::surrogates()
{
    CaseSource source(2);
    compare(source, LiteralPrefixes, 40000, true);
}

void tst_Substitution::expressions()
{
    CaseSource source(3);
    compare(source, Expressions, 40000, false);
}

void tst_Substitution::tokensInInvalidText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const QString high(QChar(0xd83d));
    const QString low(QChar(0xde00));
    const QString token = "g.theme.integer.a";
    QTest::newRow("high-before") << high + token << high + "1";
    QTest::newRow("low-before") << low + token << low + "1";
    QTest::newRow("high-after") << token + high << "1" + high;
    QTest::newRow("far-away") << token + QString(99, ' ') + low << "1" + QString(99, ' ') + low;
    QTest::newRow("pair-before-separated")
        << high + low + token + "|px " + token << high + low + "1px 1";
    QTest::newRow("pair-before-each") << high + low + token + "|" + high + low + token + "|"
                                      << high + low + "1" + high + low + "1";
}

void tst_Substitution::tokensInInvalidText()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(HV::replaceCssIntegers("g", {{"a", 1}}, text), expected);
}

// The chain: what one pass puts in, the next one sees.
void tst_Substitution::theme()
{
    HV::Theme theme("id");
    readText(theme,
             "[Colors]\na=#010203\n[Flags]\nab=1\n[Integers]\na1=7\n_=-1\n"
             "[ImageFiles]\nb=global.theme.integer.a1|\nK=global.theme.color.a\n");
    CaseSource source(4);
    for (int i = 0; i < 5000; ++i) {
        const bool isNull = i % 5 == 0;
        Case made = source.next(LiteralPrefixes, false);
        made.values = isNull ? QVariantMap() : theme.values();
        QString expected = made.text;
        Messages messages;
        if (isNull)
            messages << Expected::nullThemeInReplace();
        bool ended = true;
        for (const Kind &kind : Kinds) {
            const Plain::Result plain =
                Plain::replaced(kind.plain, made.prefix, made.values, expected, 60);
            expected = plain.text;
            ended = ended && plain.ended;
            appendMissingImages(messages, plain);
        }
        if (!ended)
            continue;
        QString actual = made.text;
        HV::replaceStyleSheet(isNull ? nullptr : &theme, made.prefix, actual);
        QCOMPARE(actual, expected);
        COMPARE_MESSAGES(m_log, messages);
    }
}

void tst_Substitution::amongNearMisses_data()
{
    QTest::addColumn<QString>("nearMiss");
    QTest::newRow("no-key") << "p.theme.color. ";
    QTest::newRow("no-prefix") << "x.theme.color.a";
    QTest::newRow("other-kind") << "p.theme.image.a";
    QTest::newRow("misspelt") << "p.theme.colox.a";
    QTest::newRow("last-letter") << "p.xxxxxxxxxxr.a";
    QTest::newRow("dots") << "..............";
    QTest::newRow("nothing") << "              ";
}

// A token at every place of what is searched at a time, dense near misses around it, and at the end.
void tst_Substitution::amongNearMisses()
{
    QFETCH(QString, nearMiss);
    const QVariantMap values{{"k", "v"}, {"long", nearMiss}};
    for (int place = 0; place < 300; ++place) {
        const QString before = nearMiss.repeated(place / nearMiss.size() + 1).right(place);
        const QStringList endings{QString(), " ", " " + nearMiss.repeated(20)};
        for (const QString &behind : endings) {
            for (const char *key : {"k", "long", "none"}) {
                const QString text = before + " p.theme.color." + key + behind;
                const Plain::Result plain =
                    Plain::replaced(Plain::Kind::Color, "p", values, text, 100);
                QCOMPARE(HV::replaceCssColors("p", values, text), plain.text);
            }
        }
    }
}

QTEST_GUILESS_MAIN(tst_Substitution)
#include "tst_substitution.moc"

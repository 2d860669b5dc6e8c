// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/styleselector.h>

#include <QtTest>

class tst_StyleSelector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parsed_data();
    void parsed();
    void parsedList();
    void offsets();
    void specificity_data();
    void specificity();
    void growth_data();
    void growth();
};

namespace
{

// "type#id[name=value]|part|states", the steps joined by their combinators
QString outline(const StyleSelector &selector)
{
    QString steps;
    for (const StyleSelector::Step &step : selector.steps) {
        const char joints[] = {' ', '>', '+'};
        if (!steps.isEmpty())
            steps += QLatin1Char(joints[int(step.combinator)]);
        steps += step.type;
        for (const QString &id : step.ids)
            steps += QLatin1Char('#') + id;
        const char *const operators[] = {"", "=", "~=", "|=", "^=", "$=", "*="};
        for (const StyleSelector::Attribute &attribute : step.attributes)
            steps += QLatin1Char('[') + attribute.name
                + QLatin1String(operators[int(attribute.match)]) + attribute.value
                + QLatin1Char(']');
    }
    if (!selector.isValid())
        return {};
    QStringList states;
    const QVector<StyleSelector::Pseudo> pseudos = selector.states();
    for (const StyleSelector::Pseudo &state : pseudos)
        states << state.text();
    return steps + QLatin1Char('|') + selector.subControl() + QLatin1Char('|')
        + states.join(QLatin1Char(' '));
}

} // namespace

void tst_StyleSelector::parsed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    // clang-format off
    QTest::newRow("type")               << "QLabel"                         << "QLabel||";
    QTest::newRow("any")                << "*"                              << "*||";
    QTest::newRow("attribute")          << "QLabel[ style = \"a b\" ]"      << "QLabel[style=a b]||";
    QTest::newRow("attribute-alone")    << "[a=b][c='d,]']"                 << "*[a=b][c=d,]]||";
    QTest::newRow("attribute-held")     << "[a]"                            << "*[a]||";
    QTest::newRow("operators")          << "[a~=b][a|=b][a^=b][a$=b][a*=b]" << "*[a~=b][a|=b][a^=b][a$=b][a*=b]||";
    QTest::newRow("class")              << ".QLabel"                        << "*[class~=QLabel]||";
    QTest::newRow("namespace")          << "HV--Gauge"                      << "HV--Gauge||";
    QTest::newRow("name")               << "QLabel#x-1"                     << "QLabel#x-1||";
    QTest::newRow("name-of-digits")     << "#1a"                            << "*#1a||";
    QTest::newRow("state")              << "QPushButton:hover:!enabled"     << "QPushButton||hover !enabled";
    QTest::newRow("state-in-capitals")  << "QPushButton:HOVER"              << "QPushButton||HOVER";
    QTest::newRow("state-two-colons")   << "QPushButton::hover"             << "QPushButton||hover";
    QTest::newRow("part")               << "QMenu::item:selected"           << "QMenu|item|selected";
    QTest::newRow("part-one-colon")     << "QTabBar:tab:selected"           << "QTabBar|tab|selected";
    QTest::newRow("part-comes-first")   << "QTabBar:hover::tab"             << "QTabBar||hover tab";
    QTest::newRow("steps")              << "QDialog > QLabel QFrame"        << "QDialog>QLabel QFrame||";
    QTest::newRow("narrow")             << "QDialog>QLabel"                 << "QDialog>QLabel||";
    QTest::newRow("sibling")            << "QLabel ~ QFrame"                << "QLabel+QFrame||";
    QTest::newRow("condition-apart")    << "QLabel [a=b]"                   << "QLabel *[a=b]||";
    QTest::newRow("empty")              << " "                              << "";
    QTest::newRow("digit")              << "1a"                             << "";
    QTest::newRow("dash-and-digit")     << "-8"                             << "";
    QTest::newRow("star-behind")        << "QLabel*"                        << "";
    QTest::newRow("blank-behind-colon") << "QLabel: hover"                  << "";
    QTest::newRow("three-colons")       << "QLabel:::hover"                 << "";
    QTest::newRow("number-unquoted")    << "[a=5]"                          << "";
    QTest::newRow("bracket-open")       << "QLabel[a"                       << "";
    QTest::newRow("quote-open")         << "QLabel[a=\"b]"                  << "";
    QTest::newRow("quote-over-lines")   << "QLabel[a=\"b\n\"]"               << "";
    QTest::newRow("nothing-joined")     << "QLabel >"                       << "";
    QTest::newRow("other-character")    << "QLabel % QFrame"                << "";
    // clang-format on
}

void tst_StyleSelector::parsed()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(outline(StyleSelector::parsed(text)), expected);
}

void tst_StyleSelector::parsedList()
{
    QStringList texts;
    for (const StyleSelector &selector : StyleSelector::parsedList("A , B[c=\"d,e\"] ,, F"))
        texts << selector.text;
    QCOMPARE(texts, QStringList({"A", "B[c=\"d,e\"]", "", "F"}));
}

void tst_StyleSelector::offsets()
{
    const QString text("QDialog,  QLabel   #a::item:!hover");
    const QVector<StyleSelector> selectors = StyleSelector::parsedList(text, 100);
    QCOMPARE(selectors.size(), 2);
    const StyleSelector &second = selectors.constLast();
    QCOMPARE(second.offset, 100 + text.indexOf("QLabel"));
    QCOMPARE(second.steps.constFirst().offset, second.offset);
    QCOMPARE(second.subject().offset, 100 + text.indexOf("#a"));
    QCOMPARE(second.subject().pseudos.constFirst().offset, 100 + text.indexOf("item"));
    QCOMPARE(second.subject().pseudos.constLast().offset, 100 + text.indexOf("!hover"));
}

void tst_StyleSelector::specificity_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");
    QTest::newRow("any") << "*" << 0;
    QTest::newRow("types") << "QDialog > QLabel" << 2;
    QTest::newRow("conditions") << ".QLabel[a=b]::item:hover" << 0x40;
    QTest::newRow("state-of-ancestor") << "QDialog:hover QLabel" << 0x12;
    QTest::newRow("name") << "QLabel#a" << 0x101;
}

void tst_StyleSelector::specificity()
{
    QFETCH(QString, text);
    QFETCH(int, expected);
    QCOMPARE(StyleSelector::parsed(text).specificity(), expected);
}

void tst_StyleSelector::growth_data()
{
    QTest::addColumn<QString>("piece");
    QTest::newRow("types") << "QLabel ";
    QTest::newRow("children") << "QLabel > ";
    QTest::newRow("attributes") << "[a=\"b\"] ";
    QTest::newRow("conditions") << ":hover#a.b";
    QTest::newRow("blanks") << "      ";
    QTest::newRow("unreadable") << "% ";
}

// Each character is looked at a few times, however long the selector is.
void tst_StyleSelector::growth()
{
    QFETCH(QString, piece);
    for (const int count : {10, 1000, 100000}) {
        const QString text = piece.repeated(count) + "QLabel";
        int looks = 0;
        const StyleSelector selector = StyleSelector::parsed(text, 0, &looks);
        QVERIFY(looks > 0);
        QVERIFY2(looks <= 10 * text.size(), qPrintable(QString::number(looks)));
        QCOMPARE(selector.isValid(), piece != "% ");
    }
}

QTEST_GUILESS_MAIN(tst_StyleSelector)
#include "tst_styleselector.moc"

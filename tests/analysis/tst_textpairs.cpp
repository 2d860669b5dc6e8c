// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/textpairs.h>

#include <QtTest>

class tst_TextPairs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isWherever_data();
    void isWherever();
    void pairs_data();
    void pairs();
    void manySelectors_data();
    void manySelectors();
};

void tst_TextPairs::isWherever_data()
{
    QTest::addColumn<QString>("general");
    QTest::addColumn<QString>("specific");
    QTest::addColumn<bool>("expected");

    QTest::newRow("same") << "QLabel"
                          << "QLabel" << true;
    QTest::newRow("base") << "QFrame"
                          << "QLabel" << true;
    QTest::newRow("derived") << "QLabel"
                             << "QFrame" << false;
    QTest::newRow("any") << "*"
                         << "QLabel" << true;
    QTest::newRow("application-class") << "QWidget"
                                       << "Gauge" << true;
    QTest::newRow("fewer-attributes") << "QLabel"
                                      << "QLabel[a=b]" << true;
    QTest::newRow("more-attributes") << "QLabel[a=b]"
                                     << "QLabel" << false;
    QTest::newRow("ancestor") << "QDialog QLabel"
                              << "QDialog QFrame QLabel" << true;
    QTest::newRow("no-ancestor") << "QDialog QLabel"
                                 << "QLabel" << false;
    QTest::newRow("parent") << "QDialog > QLabel"
                            << "QDialog > QLabel" << true;
    QTest::newRow("no-parent") << "QDialog > QLabel"
                               << "QDialog QLabel" << false;
}

void tst_TextPairs::isWherever()
{
    QFETCH(QString, general);
    QFETCH(QString, specific);
    QFETCH(bool, expected);
    QCOMPARE(::isWherever(StyleSelector::parsed(general), StyleSelector::parsed(specific)),
             expected);
}

void tst_TextPairs::pairs_data()
{
    QTest::addColumn<QString>("styleSheet");
    QTest::addColumn<QStringList>("expected"); // selector: text on backgrounds

    QTest::newRow("one-rule") << "QLabel { color: a; background: b }"
                              << QStringList("QLabel: a on b");
    QTest::newRow("from-base") << "* { color: a } QLabel { background: b }"
                               << QStringList("QLabel: a on b");
    QTest::newRow("later-wins")
        << "QLabel[x=y] { color: a } QLabel:hover { color: b } QLabel[x=y]:hover { background: c }"
        << QStringList("QLabel[x=y]:hover: b on c");
    QTest::newRow("later-wins-here")
        << "QLabel:hover { color: b } QLabel[x=y] { color: a } QLabel[x=y]:hover { background: c }"
        << QStringList("QLabel[x=y]:hover: a on c");
    QTest::newRow("specific-wins")
        << "QLabel[x=y] { color: a } QLabel { color: b } QLabel[x=y]:hover { background: c }"
        << QStringList("QLabel[x=y]:hover: a on c");
    QTest::newRow("weight-of-each-declaration")
        << "QLabel { color: a } QFrame { color: b } QLabel { background: c }"
        << QStringList({"QLabel: b on c"});
    QTest::newRow("property-again")
        << "QLabel { color: a } QLabel { color: b } QLabel { background: c }"
        << QStringList({"QLabel: b on c"});
    QTest::newRow("important") << "QLabel { color: a !important; background: b!important }"
                               << QStringList("QLabel: a on b");
    QTest::newRow("important-changes-nothing")
        << "QLabel { color: a !important } QLabel { color: b; background: c }"
        << QStringList("QLabel: b on c");
    QTest::newRow("no-value") << "QLabel { color: a; background: c } QLabel { color: ; }"
                              << QStringList("QLabel: a on c");
    QTest::newRow("part-over-widget")
        << "QMenu { color: a; background: b } QMenu::item:selected { background: c }"
        << QStringList({"QMenu: a on b", "QMenu::item:selected: a on c, b"});
    QTest::newRow("part-without-text")
        << "* { color: a } QScrollBar::handle { background: b }" << QStringList();
    QTest::newRow("disabled") << "* { color: a } QLabel:disabled { background: b }"
                              << QStringList();
    QTest::newRow("selection") << "QLineEdit { selection-color: a; selection-background-color: b }"
                               << QStringList("QLineEdit: a on b");
    QTest::newRow("surface") << "* { color: a } QWidget[x=y] { background: b }"
                             << QStringList("QWidget[x=y]: a on b?");
    QTest::newRow("list") << "QLabel, QLineEdit { color: a; background: b }"
                          << QStringList({"QLabel: a on b", "QLineEdit: a on b"});
}

void tst_TextPairs::pairs()
{
    QFETCH(QString, styleSheet);
    QFETCH(QStringList, expected);
    QStringList found;
    for (const TextPair &pair : textPairs(StyleRules(styleSheet))) {
        QStringList backgrounds;
        for (const StyleValue &background : pair.backgrounds) {
            if (background.offset >= 0)
                backgrounds << background.text;
        }
        if (!backgrounds.isEmpty())
            found << pair.selector.text + ": " + pair.foreground.text + " on "
                    + backgrounds.join(", ") + (pair.drawsText ? "" : "?");
    }
    QCOMPARE(found, expected);
}

void tst_TextPairs::manySelectors_data()
{
    QTest::addColumn<QString>("rule"); // %1 is a number
    QTest::addColumn<int>("count");

    const QString body = " { color: a%1; background: b }\n";
    QTest::newRow("ancestors") << "A%1 QLabel" + body << 10000;
    QTest::newRow("values") << "QLabel[a=x%1]" + body << 10000;
    QTest::newRow("states-and-values") << "QLabel[a=x%1]:hover" + body << 10000;
    QString conditions;
    for (int i = 0; i < 20; ++i)
        conditions += QStringLiteral("[a%1=x%2]").arg(QString::number(i), QStringLiteral("%1"));
    QTest::newRow("conditions") << "QLabel" + conditions + body << 2000;
}

// None of them is in force where another is; the time must not grow with the square of their number.
void tst_TextPairs::manySelectors()
{
    QFETCH(QString, rule);
    QFETCH(int, count);
    QString styleSheet;
    for (int i = 0; i < count; ++i)
        styleSheet += QString(rule).replace("%1", QString::number(i));
    const QVector<TextPair> pairs = textPairs(StyleRules(styleSheet));
    QCOMPARE(int(pairs.size()), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(pairs.at(i).foreground.text, "a" + QString::number(i));
}

QTEST_GUILESS_MAIN(tst_TextPairs)
#include "tst_textpairs.moc"

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

QTEST_GUILESS_MAIN(tst_TextPairs)
#include "tst_textpairs.moc"

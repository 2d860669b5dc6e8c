// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <maker/themetext.h>

#include <QtTest>

using Maker::ThemeText;

class tst_ThemeText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void value_data();
    void value();
    void setValue_data();
    void setValue();
    void removeSection_data();
    void removeSection();
    void keys();
};

void tst_ThemeText::value_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("value");

    QTest::newRow("plain") << QByteArray("[Colors]\nA=#112233\n") << "#112233";
    QTest::newRow("blanks") << QByteArray("[Colors]\nA = x \n") << "x";
    QTest::newRow("carriage-return") << QByteArray("[Colors]\r\nA=x\r\n") << "x";
    QTest::newRow("last-of-two") << QByteArray("[Colors]\nA=x\nA=y\n") << "y";
    QTest::newRow("empty") << QByteArray("[Colors]\nA=\n") << "";
    QTest::newRow("other-section") << QByteArray("[Flags]\nA=x\n") << QString();
    QTest::newRow("comment") << QByteArray("[Colors]\n;A=x\n") << QString();
    QTest::newRow("no-line-end") << QByteArray("[Colors]\nA=x") << "x";
    QTest::newRow("nothing") << QByteArray() << QString();
}

void tst_ThemeText::value()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, value);
    const ThemeText theme(text);
    QCOMPARE(theme.text(), text);
    QCOMPARE(theme.value("Colors", "A"), value);
    QCOMPARE(theme.value("Colors", "A").isNull(), value.isNull());
}

void tst_ThemeText::setValue_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("in-place") << QByteArray("; c\n[Colors]\nA=x\n; d\nB=z\n")
                              << QByteArray("; c\n[Colors]\nA=new\n; d\nB=z\n");
    QTest::newRow("carriage-return")
        << QByteArray("[Colors]\r\nA=x\r\n") << QByteArray("[Colors]\r\nA=new\r\n");
    QTest::newRow("no-line-end") << QByteArray("[Colors]\nA=x") << QByteArray("[Colors]\nA=new");
    QTest::newRow("same-value-keeps-its-spelling")
        << QByteArray("[Colors]\nA = new \n") << QByteArray("[Colors]\nA = new \n");
    QTest::newRow("new-key") << QByteArray("[Colors]\nB=z\n\n[Flags]\nA=1\n")
                             << QByteArray("[Colors]\nB=z\nA=new\n\n[Flags]\nA=1\n");
    QTest::newRow("new-key-in-an-empty-section")
        << QByteArray("[Colors]\n") << QByteArray("[Colors]\nA=new\n");
    QTest::newRow("new-key-behind-an-open-line")
        << QByteArray("[Colors]\nB=z") << QByteArray("[Colors]\nB=z\nA=new\n");
    QTest::newRow("new-section") << QByteArray("[Flags]\nA=1\n")
                                 << QByteArray("[Flags]\nA=1\n\n[Colors]\nA=new\n");
}

void tst_ThemeText::setValue()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, expected);
    ThemeText theme(text);
    theme.setValue("Colors", "A", "new");
    QCOMPARE(theme.text(), expected);
    QCOMPARE(theme.value("Colors", "A"), QString("new"));
}

void tst_ThemeText::removeSection_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("with-its-comments")
        << QByteArray("[A]\na=1\n\n; of B\n[B]\n; b\nb=1\n\n; of C\n[C]\nc=1\n")
        << QByteArray("[A]\na=1\n\n; of C\n[C]\nc=1\n");
    QTest::newRow("at-the-end") << QByteArray("[A]\na=1\n[B]\nb=1\n") << QByteArray("[A]\na=1\n");
    QTest::newRow("twice") << QByteArray("[B]\nb=1\n[A]\na=1\n[B]\nb=2\n")
                           << QByteArray("[A]\na=1\n");
    QTest::newRow("absent") << QByteArray("[A]\na=1\n") << QByteArray("[A]\na=1\n");
}

void tst_ThemeText::removeSection()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, expected);
    ThemeText theme(text);
    theme.removeSection("B");
    QCOMPARE(theme.text(), expected);
}

void tst_ThemeText::keys()
{
    const ThemeText theme("[Colors]\nB=1\nA=2\nB=3\n[Flags]\nC=1\n");
    QCOMPARE(theme.keys("Colors"), QStringList({"B", "A"}));
    QCOMPARE(theme.keys("Integers"), QStringList());
}

QTEST_GUILESS_MAIN(tst_ThemeText)
#include "tst_themetext.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/inifile.h>
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
    void provenText_data();
    void provenText();
    void strangeNames_data();
    void strangeNames();
    void manyKeys();
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
    // As QSettings reads them.
    QTest::newRow("quoted") << QByteArray("[Colors]\nA=\"#101010\"\n") << "#101010";
    QTest::newRow("quoted-with-a-semicolon") << QByteArray("[Colors]\nA=\"a;b\" \n") << "a;b";
    QTest::newRow("comment-behind") << QByteArray("[Colors]\nA=#fff ; note\n") << "#fff";
    QTest::newRow("escapes") << QByteArray("[Colors]\nA=a\\tb\\x4e2d\\101\\\\\\q\n")
                             << QString("a\tb%1A\\").arg(QChar(0x4e2d));
    QTest::newRow("latin-1") << QByteArray("[Colors]\nA=\xfc\n") << QString(QChar(0xfc));
    QTest::newRow("byte-order-mark")
        << QByteArray("\xef\xbb\xbf[Colors]\nA=\xc3\xbc\n") << QString(QChar(0xfc));
    QTest::newRow("continued") << QByteArray("[Colors]\nA=a\\\nb\n") << "ab";
    QTest::newRow("quoted-line-end") << QByteArray("[Colors]\nA=\"a\nb\"\n") << "a\nb";
    QTest::newRow("list") << QByteArray("[Colors]\nA=a, b\n") << "";
    QTest::newRow("two-at-signs") << QByteArray("[Colors]\nA=@@a\n") << "@a";
    QTest::newRow("escaped-key") << QByteArray("[Colors]\n%41=x\n") << "x";
    QTest::newRow("escaped-section") << QByteArray("[%43olors]\nA=x\n") << "x";
    QTest::newRow("header-with-a-comment") << QByteArray("[Colors] ; c\nA=x\n") << "x";
    QTest::newRow("old-line-ends") << QByteArray("[Colors]\rA=x\rB=y\r") << "x";
}

void tst_ThemeText::value()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, value);
    const ThemeText theme(text);
    QCOMPARE(theme.text(), text);
    QCOMPARE(theme.value("Colors", "A"), value);
    QCOMPARE(theme.value("Colors", "A").isNull(), value.isNull());

    QTemporaryFile file;
    QVERIFY(file.open() && file.write(HV::iniText(text)) == HV::iniText(text).size());
    const QString path = file.fileName();
    file.close();
    const QSettings settings(path, QSettings::IniFormat);
    QCOMPARE(value, settings.value("Colors/A").toString());
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
    QTest::newRow("quotes-stay") << QByteArray("[Colors]\nA=\"x\"\n")
                                 << QByteArray("[Colors]\nA=\"new\"\n");
    QTest::newRow("comment-stays")
        << QByteArray("[Colors]\nA = x ; note\n") << QByteArray("[Colors]\nA = new ; note\n");
    QTest::newRow("same-value-in-quotes")
        << QByteArray("[Colors]\nA=\"new\"\n") << QByteArray("[Colors]\nA=\"new\"\n");
    QTest::newRow("new-key-with-its-line-end")
        << QByteArray("[Colors]\r\nB=z\r\n") << QByteArray("[Colors]\r\nB=z\r\nA=new\r\n");
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

void tst_ThemeText::provenText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("expected"); // null: refused

    QTest::newRow("in-place") << QByteArray("[Colors]\nA=x\nB=\"z\n")
                              << QByteArray("[Colors]\nA=new\nB=\"z\n");
    QTest::newRow("open-quotation-mark") << QByteArray("[Colors]\nB=\"z\n") << QByteArray();
    QTest::newRow("open-quotation-mark-without-line-end")
        << QByteArray("[Colors]\nB=\"z") << QByteArray();
    QTest::newRow("open-quotation-mark-takes-sections-in")
        << QByteArray("[Colors]\nB=\"z\n[Flags]\nC=1\n") << QByteArray();
    QTest::newRow("new-section-behind-a-quotation-mark")
        << QByteArray("[Flags]\nB=\"z\n") << QByteArray();
    QTest::newRow("quotation-mark-in-another-section")
        << QByteArray("[Colors]\nB=z\n[Flags]\nC=\"1\n")
        << QByteArray("[Colors]\nB=z\nA=new\n[Flags]\nC=\"1\n");
    QTest::newRow("quotation-mark-in-a-comment")
        << QByteArray("[Colors]\nB=z ; \"\n") << QByteArray("[Colors]\nB=z ; \"\nA=new\n");
    QTest::newRow("backslash-at-the-end")
        << QByteArray("[Colors]\nB=z\\") << QByteArray("[Colors]\nB=z\\\n\nA=new\n");
    QTest::newRow("backslash-and-line-end")
        << QByteArray("[Colors]\r\nB=z\\\r\n") << QByteArray("[Colors]\r\nB=z\\\r\n\r\nA=new\r\n");
    QTest::newRow("new-section-behind-a-backslash")
        << QByteArray("[Flags]\nB=z\\") << QByteArray("[Flags]\nB=z\\\n\n\n[Colors]\nA=new\n");
}

// As QSettings reads it: the new value and all that was there, or nothing.
void tst_ThemeText::provenText()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, expected);
    ThemeText theme(text);
    theme.setValue("Colors", "A", "new");
    QCOMPARE(theme.provenText().value_or(QByteArray()), expected);
    QCOMPARE(theme.provenText().has_value(), !expected.isNull());
    if (expected.isNull())
        return;
    const auto valuesOf = [](const QByteArray &content) {
        QMap<QString, QVariant> values;
        QTemporaryFile file;
        if (!file.open() || file.write(content) != content.size())
            qFatal("cannot write");
        const QString path = file.fileName();
        file.close();
        const QSettings settings(path, QSettings::IniFormat);
        for (const QString &key : settings.allKeys())
            values.insert(key, settings.value(key));
        return values;
    };
    QMap<QString, QVariant> values = valuesOf(text);
    values.insert("Colors/A", "new");
    QCOMPARE(valuesOf(expected), values);
}

// Keys and values may be anything; the entries around them stay what they are.
void tst_ThemeText::strangeNames_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::newRow("chinese") << QString::fromUtf8("\xe5\x93\x81") << "x";
    QTest::newRow("equals") << "a=b"
                            << "x=y";
    QTest::newRow("semicolon") << ";x"
                               << "a;b";
    QTest::newRow("line-end") << "a\nb"
                              << "c\n[Flags]\nd";
    QTest::newRow("bracket") << "[x"
                             << "[y]";
    QTest::newRow("quote") << "\""
                           << "\"";
}

void tst_ThemeText::strangeNames()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    ThemeText theme("[Colors]\nA=x\n");
    theme.setValue("Colors", key, value);
    const ThemeText again(theme.text());
    QCOMPARE(again.value("Colors", key), value);
    QCOMPARE(again.keys("Colors"), QStringList({"A", key}));
    QCOMPARE(again.keys("Flags"), QStringList());
}

// As large as a theme file may be: neither reading nor writing looks at every line for every key.
void tst_ThemeText::manyKeys()
{
    QByteArray text = "[Colors]\n";
    text.reserve(2000000); // appending joined strings asks for just what they take, each time anew
    for (int i = 0; i < 100000; ++i)
        text += 'k' + QByteArray::number(i) + "=#101010\n";
    QElapsedTimer timer;
    timer.start();
    ThemeText theme(text);
    QCOMPARE(theme.keys("Colors").size(), 100000);
    QCOMPARE(theme.values("Colors").size(), 100000);
    for (int i = 0; i < 50000; ++i) {
        theme.setValue("Colors", 'k' + QString::number(i), "new");
        theme.setValue("Colors", 'n' + QString::number(i), "new");
    }
    QCOMPARE(theme.keys("Colors").size(), 150000);
    QVERIFY2(timer.elapsed() < 60000, qPrintable(QString::number(timer.elapsed())));
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

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include <analysis/style/styleparser.h>
#include <format/urlpath.h>

#include <QRandomGenerator>
#include <QtTest>

// Qt itself is the measure: a path is sound if the style sheet around it is read to its end.
class tst_UrlPath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fault_data();
    void fault();
    void singleCharacters();
    void combinations();
};

namespace
{

bool isReadByQt(const QString &path)
{
    return StyleParser::accepts("QFrame { image: url(/opt/" + path
                                + "/a.png); }\nQLabel { color: red; }\n");
}

} // namespace

void tst_UrlPath::fault_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("index");

    QTest::newRow("plain") << "/opt/my-app_2.0/bin" << -1;
    QTest::newRow("space") << "/opt/my app" << -1;
    QTest::newRow("umlaut") << QString::fromUtf8("/opt/M\u00fcller") << 6;
    QTest::newRow("above-latin-1") << QString::fromUtf8("/opt/\u753b\u50cf") << -1;
    QTest::newRow("ampersand") << "/opt/a&b" << 6;
    QTest::newRow("dollar") << "/opt/a$b" << 6;
    QTest::newRow("percent") << "/opt/a%20b" << 6;
    QTest::newRow("quotation-mark") << "/opt/a\"b" << 6;
    QTest::newRow("apostrophe") << "/opt/Tom's" << 8;
    QTest::newRow("quoted") << "/opt/a\"&b\"" << -1;
    QTest::newRow("open-bracket") << "/opt/a(b" << 6;
    QTest::newRow("close-bracket") << "/opt/a)b" << 6;
    QTest::newRow("pair") << "/opt/a (x86)" << -1;
    QTest::newRow("pairs") << "/opt/(a [b] {c})" << -1;
    QTest::newRow("first-of-two") << "/opt/(a&b" << 7;
    QTest::newRow("backslash") << "/opt/a\\b" << 6;
    QTest::newRow("backslash-quoted") << "/opt/'a\\b'" << 7;
    QTest::newRow("comment") << "/opt/*a" << 4;
    QTest::newRow("empty") << "" << -1;
}

void tst_UrlPath::fault()
{
    QFETCH(QString, path);
    QTEST(urlPathFault(path), "index");
    if (!path.contains('\\')) // which is read, as the beginning of another character
        QCOMPARE(StyleParser::accepts("X { image: url(" + path + "/a) }\nY { color: red }"),
                 urlPathFault(path) < 0);
}

void tst_UrlPath::singleCharacters()
{
    for (int code = 1; code < 0x250; ++code) {
        const QString path = QString("a") + QChar(code) + "b";
        if (code != '\\' && code != '}') // "}" ends the rule, and with it the image alone
            QVERIFY2(isReadByQt(path) == (urlPathFault(path) < 0),
                     qPrintable(QString("U+%1").arg(code, 4, 16, QChar('0'))));
    }
    for (const char *path : {"a\\b", "a}b"})
        QCOMPARE(urlPathFault(path), 1);
}

void tst_UrlPath::combinations()
{
    const QString alphabet = QString::fromUtf8("aab/ .-()[]'\"$&=<\u00fc\u753b");
    QRandomGenerator random(1);
    int soundCount = 0;
    for (int i = 0; i < 3000; ++i) {
        QString path;
        const int length = random.bounded(2, 9);
        for (int j = 0; j < length; ++j)
            path += alphabet.at(random.bounded(int(alphabet.size())));
        const int fault = urlPathFault(path);
        const bool isSound = fault < 0;
        // Behind a ")" too many the rest may happen to be readable, but the path is cut.
        const bool isCut = !isSound && path.at(fault) == ')';
        QVERIFY2(isCut || isReadByQt(path) == isSound, qPrintable(path));
        soundCount += isSound ? 1 : 0;
    }
    QVERIFY(soundCount > 100); // both answers are met
}

QTEST_MAIN(tst_UrlPath)
#include "tst_urlpath.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/stylerules.h>

#include <QtTest>

class tst_StyleRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rules_data();
    void rules();
    void positions();
    void comments();
    void quotedComments();
    void important_data();
    void important();
};

namespace
{

// "selector{property=value;property=value} selector{…}"
QString outline(const StyleRules &rules)
{
    QStringList texts;
    for (const StyleRule &rule : rules.rules()) {
        QStringList declarations;
        for (const StyleDeclaration &declaration : rule.declarations)
            declarations << declaration.property % QLatin1Char('=') % declaration.value;
        texts << rule.selector % QLatin1Char('{') % declarations.join(QLatin1Char(';'))
                % QLatin1Char('}');
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace

void tst_StyleRules::rules_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("blank") << " \n\t"
                           << "";
    QTest::newRow("one") << "QLabel { color: red; }"
                         << "QLabel{color=red}";
    QTest::newRow("no-last-semicolon") << "A{b:c;d:e}"
                                       << "A{b=c;d=e}";
    QTest::newRow("no-declaration") << "A{}B{ ; }"
                                    << "A{} B{}";
    QTest::newRow("nothing-between") << "A{b:c}D{e:f}"
                                     << "A{b=c} D{e=f}";
    QTest::newRow("escape-in-selector-list") << "A[b='\\',c'], D { e: f }"
                                             << "A[b='\\',c'], D{e=f}";
    QTest::newRow("selector-list") << "A,\n  B:hover { c: d }"
                                   << "A, B:hover{c=d}";
    QTest::newRow("value-over-lines") << "A{b: c\n   d}"
                                      << "A{b=c d}";
    QTest::newRow("value-with-colon") << "A{b: url(:/c.png)}"
                                      << "A{b=url(:/c.png)}";
    QTest::newRow("comments") << "/*x{y:z}*/A/**/B{/*;*/c:/*}*/d}"
                              << "A B{c=d}";
    QTest::newRow("open-comment") << "A{b:c} /* D{e:f}"
                                  << "A{b=c}";
    QTest::newRow("quotes") << "A{b:'};{';c:\"}\"}"
                            << "A{b='};{';c=\"}\"}";
    QTest::newRow("open-quote") << "A{b:'c\n}D{e:f}"
                                << "A{b='c} D{e=f}";
    QTest::newRow("open-quote-at-comment") << "A{b:'c /* d\n}E{f:g}"
                                           << "A{b='c /* d} E{f=g}";
    QTest::newRow("quoted-comment") << "A{b:\"c /* d\";e:f}G[h='/*']{i:j}"
                                    << "A{b=\"c /* d\";e=f} G[h='/*']{i=j}";
    QTest::newRow("quote-in-comment") << "A{/* it's \"so\" */b:c}/*'*/D{e:f}"
                                      << "A{b=c} D{e=f}";
    QTest::newRow("escaped-quote") << "A{b:\"c\\\"};\";d:e}"
                                   << "A{b=\"c\\\"};\";d=e}";
    QTest::newRow("escaped-backslash") << "A{b:\"c\\\\\";d:e}"
                                       << "A{b=\"c\\\\\";d=e}";
    QTest::newRow("escaped-line-end") << "A{b:\"c\\\n;}\";d:e}"
                                      << "A{b=\"c\\ ;}\";d=e}";
    QTest::newRow("escaped-quote-unquoted") << "A{b:\\\"c;d:e}"
                                            << "A{b=\\\"c;d=e}";
    QTest::newRow("open-brace") << "A{b:c"
                                << "A{b=c}";
    QTest::newRow("stray-brace") << "} A{b:c}"
                                 << "A{b=c}";
    QTest::newRow("statement") << "@import 'x'; A{b:c}"
                               << "A{b=c}";
    QTest::newRow("tokens") << "A{b: global.theme.integer.C|px}"
                            << "A{b=global.theme.integer.C|px}";
}

void tst_StyleRules::rules()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(outline(StyleRules(text)), expected);
}

void tst_StyleRules::positions()
{
    const QString text = "A { b: c; }\n D { e: f }";
    const StyleRules rules(text);
    QCOMPARE(rules.ruleAt(int(text.indexOf('A'))), &rules.rules().at(0));
    QCOMPARE(rules.ruleAt(int(text.indexOf('}'))), &rules.rules().at(0));
    QCOMPARE(rules.ruleAt(int(text.indexOf('\n'))), nullptr);
    QCOMPARE(rules.ruleAt(int(text.indexOf('f'))), &rules.rules().at(1));
    QCOMPARE(rules.ruleAt(int(text.size())), nullptr);

    const StyleRule &first = rules.rules().constFirst();
    QCOMPARE(first.declarationAt(int(text.indexOf('b'))), &first.declarations.at(0));
    QCOMPARE(first.declarationAt(int(text.indexOf('c'))), &first.declarations.at(0));
    QCOMPARE(first.declarationAt(int(text.indexOf(';'))), nullptr);
    QCOMPARE(first.declarationAt(0), nullptr);
}

void tst_StyleRules::comments()
{
    const QString text = "a /*b*/ c /*d";
    const StyleRules rules(text);
    QVERIFY(!rules.isComment(int(text.indexOf('a'))));
    QVERIFY(rules.isComment(int(text.indexOf('/'))));
    QVERIFY(rules.isComment(int(text.indexOf('b'))));
    QVERIFY(!rules.isComment(int(text.indexOf('c'))));
    QVERIFY(rules.isComment(int(text.indexOf('d'))));
}

void tst_StyleRules::quotedComments()
{
    const QString text = "A{b:\"/*c*/ /*d\"} /*e*/";
    const StyleRules rules(text);
    QCOMPARE(rules.comments().size(), 1);
    QCOMPARE(rules.comments().constFirst().start, int(text.lastIndexOf("/*")));
    QVERIFY(rules.comments().constFirst().isClosed);
}

void tst_StyleRules::important_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<bool>("isImportant");

    QTest::newRow("without") << "red"
                             << "red" << false;
    QTest::newRow("with") << "red !important"
                          << "red" << true;
    QTest::newRow("close") << "red!IMPORTANT"
                           << "red" << true;
    QTest::newRow("apart") << "red ! /**/ important"
                           << "red" << true;
    QTest::newRow("word") << "very important"
                          << "very important" << false;
    QTest::newRow("alone") << "!important"
                           << "" << true;
}

void tst_StyleRules::important()
{
    QFETCH(QString, value);
    const StyleRules rules("A{b:" + value + "}");
    const StyleDeclaration &declaration = rules.rules().constFirst().declarations.constFirst();
    QTEST(declaration.plainValue(), "plain");
    QTEST(declaration.isImportant(), "isImportant");
}

QTEST_GUILESS_MAIN(tst_StyleRules)
#include "tst_stylerules.moc"

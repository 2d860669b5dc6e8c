// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theming.h>

#include "messages.h"
#include "qtversion.h"

using Pass = QString (*)(const QString &, const QVariantMap &, const QString &);
Q_DECLARE_METATYPE(Pass)

/*! Prefixes other than "global", and those that are no plain words. */
class tst_Prefixes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void expression_data();
    void expression();
    void prefix_data();
    void prefix();
    void invalidExpression();

private:
    CapturedMessages m_log;
};

namespace
{

const Pass Colors = HV::replaceCssColors;
const Pass Images = HV::replaceCssImages;
const Pass Integers = HV::replaceCssIntegers;

const QVariantMap Paths = {{"K", "/"}}; // a path that exists, for the image pass

void prefixColumns()
{
    QTest::addColumn<Pass>("pass");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
}

} // namespace

// The prefix goes into the pattern as it is; what is replaced is as long as the token written with
// the prefix as it is, whatever the pattern matched.
void tst_Prefixes::expression_data()
{
    prefixColumns();
    QTest::newRow("any-character")
        << Colors << "glob.l" << Paths << "globXl.theme.color.K; global.theme.color.K"
        << "/; /";
    QTest::newRow("shorter-than-the-match") << Colors << "a+" << Paths << "aaa.theme.color.K; x"
                                            << "/K; x";
    QTest::newRow("shorter-image") << Images << "a+" << Paths << "aaa.theme.image.K; x"
                                   << "/K; x";
    QTest::newRow("shorter-integer") << Integers << "a+" << Paths << "aaa.theme.integer.K|px"
                                     << "/K|px";
    QTest::newRow("longer-than-the-match")
        << Colors << "(?:a|b)" << Paths << "a.theme.color.K; and more"
        << "/more";
    QTest::newRow("longer-image") << Images << "(?:a|b)" << Paths << "a.theme.image.K; and more"
                                  << "/more";
    QTest::newRow("longer-integer")
        << Integers << "(?:a|b)" << Paths << "a.theme.integer.K; and more"
        << "/more";
    QTest::newRow("longer-than-the-text") << Colors << "(?:a|b)" << Paths << "x b.theme.color.K;"
                                          << "x /";
    QTest::newRow("separator-behind-the-span")
        << Integers << "(?:a|b)" << Paths << "a.theme.integer.K------|px"
        << "/px";
    QTest::newRow("separator-inside-the-span")
        << Integers << "(?:a|b)" << Paths << "a.theme.integer.K|-----px"
        << "/px";
    QTest::newRow("option") << Colors << "(?i)global" << Paths << "GLOBAL.theme.color.K; rest"
                            << "/st";
    QTest::newRow("anchor") << Colors << "^global" << Paths
                            << "global.theme.color.K; global.theme.color.K"
                            << "/ global.theme.color.K";
    QTest::newRow("group-is-the-key")
        << Colors << "(a)" << QVariantMap{{"a", "/"}, {"K", "/."}} << "a.theme.color.K; rest"
        << "/rest";

    // The search goes on at the end of the match less the span: here past the start of the value.
    QTest::newRow("resumes-inside-the-value")
        << Colors << "a+" << QVariantMap{{"K", "a.theme.color.B"}, {"BK", "/"}}
        << "aaa.theme.color.K"
        << "a.theme.color.BK";
    QTest::newRow("resumes-before-the-value")
        << Colors << "xa?" << QVariantMap{{"K", ".theme.color.B"}, {"B", "/"}}
        << "..xxa.theme.color.K"
        << "../";
}

void tst_Prefixes::expression()
{
    QFETCH(Pass, pass);
    QFETCH(QString, prefix);
    QFETCH(QVariantMap, values);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(pass(prefix, values, text), expected);
}

void tst_Prefixes::prefix_data()
{
    prefixColumns();
    // The texts that make the pattern and the token have directives for QString::arg().
    QTest::newRow("directive") << Colors << "%1" << Paths << "%1.theme.color.K;"
                               << "/;";
    QTest::newRow("directive-integer") << Integers << "%2" << Paths << "%2.theme.integer.K|px;"
                                       << "/K|px;";
    QTest::newRow("directive-of-colors") << Colors << "%2" << Paths << "%2.theme.color.K;"
                                         << "/;";

    QTest::newRow("empty") << Colors << "" << Paths << "global.theme.color.K;"
                           << "global/;";
    QTest::newRow("null") << Integers << QString() << Paths << "x.theme.integer.K|px"
                          << "x/px";
    QTest::newRow("other-word") << Colors << "app_1" << Paths
                                << "app_1.theme.color.K global.theme.color.K"
                                << "/ global.theme.color.K";
    QTest::newRow("outside-ascii")
        << Colors << QString(QChar(0xe9)) << Paths << QString(QChar(0xe9)) + ".theme.color.K;"
        << "/;";
    QTest::newRow("hyphen") << Integers << "my-app" << Paths << "my-app.theme.integer.K|px"
                            << "/px";
}

void tst_Prefixes::prefix()
{
    expression();
}

void tst_Prefixes::invalidExpression()
{
    const QString text = "(.theme.color.K (.theme.image.K (.theme.integer.K|px global";
    const QVector<QPair<Pass, QString>> passes = {
        {Colors, "color"}, {Images, "image"}, {Integers, "integer"}};
    for (const auto &pass : passes) {
        const QString pattern = "(\\.theme\\." + pass.second + "\\.(\\w+)";
        const Message fromQt{QtWarningMsg, {},        0,
                             {},           "default", QtDifference::badExpression(pattern)};
        QCOMPARE(pass.first("(", Paths, text), text);
        COMPARE_MESSAGES(m_log, Messages{fromQt});
    }
}

QTEST_GUILESS_MAIN(tst_Prefixes)

#include "tst_prefixes.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theming.h>

#include "expectedmessages.h"
#include "messages.h"
#include "temporaryfolder.h"

using Pass = QString (*)(const QString &, const QVariantMap &, const QString &);
Q_DECLARE_METATYPE(Pass)

/*! The three substitution passes. */
class tst_Tokens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void everyPass_data();
    void everyPass();
    void insertedText_data();
    void insertedText();
    void rendering_data();
    void rendering();
    void separator_data();
    void separator();
    void imageExistence_data();
    void imageExistence();

private:
    CapturedMessages m_log;
};

namespace
{

struct Kind {
    const char *name;
    const char *other;
    Pass pass;
};
const Kind Kinds[] = {{"color", "integer", HV::replaceCssColors},
                      {"image", "color", HV::replaceCssImages},
                      {"integer", "color", HV::replaceCssIntegers}};

// "/", "/." and "/.." exist, so that the image pass, too, takes them without a word.
const QVariantMap Paths = {{"K", "/"}, {"K_2", "/."}, {"k", "/.."}};

// "KIND" in a text stands for the kind of the pass, "OTHER" for another one.
QString filled(QString text, const Kind &kind)
{
    return text.replace("KIND", kind.name).replace("OTHER", kind.other);
}

QVariantMap filled(QVariantMap values, const Kind &kind)
{
    for (QVariant &value : values)
        value = filled(value.toString(), kind);
    return values;
}

// The keys in "missing" are those of the tokens whose text is no existing path, which only the image
// pass tells.
void everyPassColumns()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("missing");
}

void row(const char *tag, const QVariantMap &values, const QString &text, const QString &expected,
         const QStringList &missing = {})
{
    QTest::newRow(tag) << values << text << expected << missing;
}

} // namespace

void tst_Tokens::everyPass_data()
{
    everyPassColumns();
    row("no-text", Paths, "", "");
    row("no-token", Paths, "QLabel { color: red; }\n", "QLabel { color: red; }\n");
    row("token-alone", Paths, "global.theme.KIND.K", "/");
    row("line", Paths, "a: global.theme.KIND.K;\nb: c;", "a: /;\nb: c;");
    row("at-the-start", Paths, "global.theme.KIND.K; x", "/; x");
    row("at-the-end", Paths, "x: global.theme.KIND.K", "x: /");
    row("in-parentheses", Paths, "url(global.theme.KIND.K)", "url(/)");
    row("before-a-line-break", Paths, "global.theme.KIND.K\n}", "/\n}");
    row("before-a-dot", Paths, "global.theme.KIND.K.K", "/.K");
    row("before-a-hyphen", Paths, "global.theme.KIND.K-K", "/-K");
    row("before-a-letter-outside-ascii", Paths, QString("global.theme.KIND.K") + QChar(0xe9),
        QString("/") + QChar(0xe9));
    row("key-is-the-longest-run", Paths, "global.theme.KIND.K_2;", "/.;");
    row("key-other-case", Paths, "global.theme.KIND.k;", "/..;");
    row("inside-a-word", Paths, "preglobal.theme.KIND.K;", "pre/;");
    row("several", Paths, "global.theme.KIND.K global.theme.KIND.K_2 global.theme.KIND.K",
        "/ /. /");
    row("absent-key", Paths, "a: global.theme.KIND.Gone;", "a: ;", {"Gone"});
    row("absent-key-twice", {}, "global.theme.KIND.B global.theme.KIND.A global.theme.KIND.B", "  ",
        {"B", "A", "B"});

    row("no-key", Paths, "global.theme.KIND.;", "global.theme.KIND.;");
    row("no-key-then-token", Paths, "global.theme.KIND.global.theme.KIND. global.theme.KIND.K",
        ".theme.KIND. /", {"global"});
    row("prefix-other-case", Paths, "Global.theme.KIND.K", "Global.theme.KIND.K");
    row("kind-other-case", Paths, "global.Theme.KIND.K", "global.Theme.KIND.K");
    row("other-kind", Paths, "global.theme.OTHER.K", "global.theme.OTHER.K");
    row("other-prefix", Paths, "local.theme.KIND.K", "local.theme.KIND.K");
    row("spaces", Paths, "global .theme.KIND.K global.theme. KIND.K",
        "global .theme.KIND.K global.theme. KIND.K");
    row("dots-are-dots", Paths, "globalxthemexKINDxK", "globalxthemexKINDxK");

    // The key of the first runs on into the prefix of the second.
    row("adjoining", Paths, "global.theme.KIND.Kglobal.theme.KIND.K", ".theme.KIND.K", {"Kglobal"});
}

void tst_Tokens::everyPass()
{
    QFETCH(QVariantMap, values);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QFETCH(QStringList, missing);

    for (const Kind &kind : Kinds) {
        const QVariantMap valuesOfKind = filled(values, kind);
        const QString textOfKind = filled(text, kind);
        Messages messages;
        for (const QString &key : qAsConst(missing)) {
            if (kind.pass == HV::replaceCssImages)
                messages.append(Expected::noImage(key, valuesOfKind.value(key).toString()));
        }
        QCOMPARE(kind.pass("global", valuesOfKind, textOfKind), filled(expected, kind));
        COMPARE_MESSAGES(m_log, messages);
        QCOMPARE(valuesOfKind, filled(values, kind)); // neither is changed
        QCOMPARE(textOfKind, filled(text, kind));
    }
}

void tst_Tokens::insertedText_data()
{
    everyPassColumns();
    // Inserted text is searched again, from where it begins.
    row("value-with-a-token", {{"K", "<global.theme.KIND.B>"}, {"B", "/"}},
        "a global.theme.KIND.K b", "a </> b", {"K"});
    row("value-with-two-tokens", {{"K", "global.theme.KIND.B global.theme.KIND.B"}, {"B", "/"}},
        "global.theme.KIND.K", "/ /", {"K"});
    row("value-with-a-token-in-turn",
        {{"K", "global.theme.KIND.B"}, {"B", "global.theme.KIND.C"}, {"C", "/"}},
        "a global.theme.KIND.K b", "a / b", {"K", "B"});
    row("value-with-an-absent-token", {{"K", "<global.theme.KIND.B>"}}, "global.theme.KIND.K", "<>",
        {"K", "B"});
    row("value-with-a-token-of-another-kind", {{"K", "global.theme.OTHER.K"}},
        "global.theme.KIND.K", "global.theme.OTHER.K", {"K"});
    row("value-with-the-start-of-a-token", {{"K", "global.theme.KIND"}, {"B", "/"}},
        "global.theme.KIND.K.B", "/", {"K"});
    row("value-with-the-end-of-a-token", {{"K", "lobal.theme.KIND.B"}, {"B", "/"}},
        "gglobal.theme.KIND.K", "global.theme.KIND.B", {"K"});
    row("value-with-another-prefix", {{"K", "local.theme.KIND.B"}, {"B", "/"}},
        "global.theme.KIND.K", "local.theme.KIND.B", {"K"});
    row("value-with-directives", {{"K", "%1 $1 &"}}, "global.theme.KIND.K", "%1 $1 &", {"K"});
    row("value-longer-than-the-rest", {{"K", QString(500, '/')}},
        "global.theme.KIND.K;global.theme.KIND.K", QString(500, '/') + ';' + QString(500, '/'));
}

void tst_Tokens::insertedText()
{
    everyPass();
}

void tst_Tokens::rendering_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("color") << QVariant(QColor(255, 0, 0)) << "#ff0000";
    QTest::newRow("color-translucent") << QVariant(QColor(255, 0, 0, 128)) << "#80ff0000";
    QTest::newRow("color-transparent") << QVariant(QColor(0, 0, 0, 0)) << "#00000000";
    QTest::newRow("integer") << QVariant(14LL) << "14";
    QTest::newRow("integer-negative") << QVariant(-3LL) << "-3";
    QTest::newRow("integer-large") << QVariant(5000000000LL) << "5000000000";
    QTest::newRow("flag-true") << QVariant(true) << "true";
    QTest::newRow("flag-false") << QVariant(false) << "false";
    QTest::newRow("path") << QVariant("../img/add.png") << "../img/add.png";
    QTest::newRow("empty") << QVariant("") << "";
    QTest::newRow("list") << QVariant(QStringList{"a", "b"}) << "";
    QTest::newRow("invalid") << QVariant() << "";
}

void tst_Tokens::rendering()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);

    // The kind of a token chooses the pass, not the kind of the value.
    const QVariantMap values = {{"K", value}};
    QCOMPARE(HV::replaceCssColors("global", values, "a: global.theme.color.K;"),
             QString("a: " + expected + ';'));
    QCOMPARE(HV::replaceCssIntegers("global", values, "a: global.theme.integer.K|px;"),
             QString("a: " + expected + "px;"));
    QCOMPARE(HV::replaceCssImages("global", values, "a: url(global.theme.image.K);"),
             QString("a: url(" + expected + ");"));
    COMPARE_MESSAGES(m_log, Messages{Expected::noImage("K", expected)});
}

void tst_Tokens::separator_data()
{
    QTest::addColumn<Pass>("pass");
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const QVariantMap values = {{"K", "/"}, {"A", "7"}};
    const Pass integers = HV::replaceCssIntegers;
    QTest::newRow("unit") << integers << values << "a: global.theme.integer.A|px;"
                          << "a: 7px;";
    QTest::newRow("at-the-start") << integers << values << "global.theme.integer.A|px"
                                  << "7px";
    QTest::newRow("at-the-end") << integers << values << "a: global.theme.integer.A|"
                                << "a: 7";
    QTest::newRow("none-at-the-end") << integers << values << "global.theme.integer.A"
                                     << "7";
    QTest::newRow("before-a-space") << integers << values << "global.theme.integer.A| |"
                                    << "7 |";
    QTest::newRow("only-one") << integers << values << "global.theme.integer.A||px"
                              << "7|px";
    QTest::newRow("not-adjoining") << integers << values << "global.theme.integer.A |px"
                                   << "7 |px";
    QTest::newRow("absent-key") << integers << values << "a: global.theme.integer.B|px;"
                                << "a: px;";
    QTest::newRow("unit-without-it") << integers << values << "a: global.theme.integer.Apx;"
                                     << "a: ;";
    QTest::newRow("adjoining-tokens")
        << integers << values << "global.theme.integer.A|global.theme.integer.A|px"
        << "77px";
    QTest::newRow("many") << integers << values
                          << QString("x global.theme.integer.A|px ").repeated(50)
                          << QString("x 7px ").repeated(50);
    QTest::newRow("color-keeps-it")
        << Pass(HV::replaceCssColors) << values << "global.theme.color.K|px"
        << "/|px";
    QTest::newRow("image-keeps-it")
        << Pass(HV::replaceCssImages) << values << "global.theme.image.K|px"
        << "/|px";

    // Behind a separator the search goes on one character before the inserted text.
    const QVariantMap tails = {{"K", "lobal.theme.integer.A"}, {"A", "7"}};
    QTest::newRow("one-before") << integers << tails << "gglobal.theme.integer.K||px"
                                << "7px";
    QTest::newRow("one-before-in-a-text") << integers << tails << "a: gglobal.theme.integer.K||px;"
                                          << "a: 7px;";
    QTest::newRow("one-before-without-separator")
        << integers << tails << "gglobal.theme.integer.K px"
        << "global.theme.integer.A px";
    QTest::newRow("one-before-not-two")
        << integers << QVariantMap{{"K", "obal.theme.integer.A"}, {"A", "7"}}
        << "glglobal.theme.integer.K||px"
        << "global.theme.integer.A|px";
    QTest::newRow("value-with-separator")
        << integers << QVariantMap{{"K", "global.theme.integer.A|"}, {"A", "7"}}
        << "a global.theme.integer.K|px"
        << "a 7px";
}

void tst_Tokens::separator()
{
    QFETCH(Pass, pass);
    QFETCH(QVariantMap, values);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(pass("global", values, text), expected);
}

void tst_Tokens::imageExistence_data()
{
    QTest::addColumn<QString>("image");
    QTest::addColumn<bool>("exists");

    QTest::newRow("file") << "here.png" << true;
    QTest::newRow("folder") << "." << true;
    QTest::newRow("missing") << "gone.png" << false;
    QTest::newRow("link") << "link.png" << true;
    QTest::newRow("dangling-link") << "dangling.png" << false;
}

void tst_Tokens::imageExistence()
{
    QFETCH(QString, image);
    QFETCH(bool, exists);

    const TemporaryFolder folder;
    folder.write("here.png", {});
    QVERIFY(QFile::link(folder.filePath("here.png"), folder.filePath("link.png")));
    QVERIFY(QFile::link(folder.filePath("gone.png"), folder.filePath("dangling.png")));

    const QString path = folder.filePath(image);
    const QString styleSheet = HV::replaceCssImages(
        "global", {{"add", path}}, "url(global.theme.image.add) global.theme.image.add");
    QCOMPARE(styleSheet, QString("url(" + path + ") " + path));
    const Message missing = Expected::noImage("add", path);
    COMPARE_MESSAGES(m_log, exists ? Messages() : (Messages{missing, missing}));
}

QTEST_GUILESS_MAIN(tst_Tokens)

#include "tst_tokens.moc"

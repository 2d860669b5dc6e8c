// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include <format/token.h>
#include <hvtheme/theme.h>
#include <hvtheme/theming.h>

#include <QtTest>

class tst_Token : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void find_data();
    void find();
    void read_data();
    void read();
    void candidates();
    void precedence();
};

namespace
{

QString replacedByCore(QString text, const QVariantMap &values)
{
    text = HV::replaceCssColors("global", values, text);
    text = HV::replaceCssImages("global", values, text);
    return HV::replaceCssIntegers("global", values, text);
}

// The library's own grammar is a copy: whatever is found here, and nothing else, it replaces.
QString replacedByGrammar(QString text)
{
    const QVector<TemplateToken> tokens = Tokens::find(text, Tokens::defaultPrefix());
    for (int i = int(tokens.size() - 1); i >= 0; --i) {
        const TemplateToken &token = tokens.at(i);
        const bool isSeparated = Tokens::takesSeparator(token.kind) && token.end() < text.size()
            && text.at(token.end()) == QLatin1Char(Tokens::separator);
        text.replace(token.offset, token.length + (isSeparated ? 1 : 0), "7");
    }
    return text;
}

} // namespace

void tst_Token::find_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("keys");

    QTest::newRow("none") << "a { color: red }" << QStringList();
    QTest::newRow("color") << "x global.theme.color.A_1;" << QStringList{"A_1"};
    QTest::newRow("image") << "url(global.theme.image.B)" << QStringList{"B"};
    QTest::newRow("integer-unit") << "global.theme.integer.C|px" << QStringList{"C"};
    QTest::newRow("integer-swallows") << "global.theme.integer.Cpx" << QStringList{"Cpx"};
    QTest::newRow("color-keeps-separator") << "global.theme.color.A|x" << QStringList{"A"};
    QTest::newRow("no-such-kind") << "global.theme.flag.A global.theme.colors.A" << QStringList();
    QTest::newRow("no-key") << "global.theme.color. global.theme.color.-" << QStringList();
    QTest::newRow("ascii-only") << QString::fromUtf8("global.theme.color.A\u00fc")
                                << QStringList{"A"};
    QTest::newRow("letter-case") << "Global.theme.color.A global.Theme.color.A" << QStringList();
    QTest::newRow("behind-word") << "xglobal.theme.color.A" << QStringList{"A"};
    QTest::newRow("two") << "global.theme.color.Aglobal.theme.color.B" << QStringList{"Aglobal"};
    QTest::newRow("nested") << "global.theme.x.global.theme.color.B" << QStringList{"B"};
}

void tst_Token::find()
{
    QFETCH(QString, text);
    QFETCH(QStringList, keys);
    QStringList found;
    QVariantMap values;
    for (const TemplateToken &token : Tokens::find(text, Tokens::defaultPrefix())) {
        found << token.key;
        values.insert(token.key, 7);
        QCOMPARE(text.mid(token.offset, token.length),
                 Tokens::opening("global", token.kind) + token.key);
    }
    QCOMPARE(found, keys);
    if (text.contains("theme.image"))
        QTest::ignoreMessage(QtWarningMsg, "\"B\" \t \"7\"  is not exist!");
    QCOMPARE(replacedByGrammar(text), replacedByCore(text, values));
}

void tst_Token::read_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("key");

    QTest::newRow("whole") << "global.theme.color.A"
                           << "A";
    QTest::newRow("before") << " global.theme.color.A" << QString();
    QTest::newRow("behind") << "global.theme.color.A;" << QString();
    QTest::newRow("separator") << "global.theme.integer.A|" << QString();
    QTest::newRow("no-key") << "global.theme.color." << QString();
    QTest::newRow("no-such-kind") << "global.theme.flag.A" << QString();
}

void tst_Token::read()
{
    QFETCH(QString, text);
    const auto token = Tokens::read(text, "global");
    QTEST(token ? token->key : QString(), "key");
}

void tst_Token::candidates()
{
    const auto found =
        Tokens::findCandidates("own.theme.flag.A own.theme.color.B other.theme.color.C", "own");
    QCOMPARE(found.size(), 2);
    QVERIFY(!found.at(0).kind);
    QCOMPARE(found.at(0).text, QString("own.theme.flag.A"));
    QCOMPARE(found.at(1).kind, std::optional<Kind>(Kind::Color));
    QCOMPARE(found.at(1).offset, 17);
}

// One key in all sections: what the library shows to style sheets comes first here.
void tst_Token::precedence()
{
    QTemporaryDir folder;
    for (size_t first = 0; first < std::size(styleSheetPrecedence); ++first) {
        const QString path = folder.filePath(QString::number(first));
        QSettings settings(path, QSettings::IniFormat);
        for (size_t i = first; i < std::size(styleSheetPrecedence); ++i)
            settings.setValue(sectionName(styleSheetPrecedence[i]) + "/Key", "111111");
        settings.sync();
        HV::Theme theme("id");
        theme.readSettings(settings);
        const QVariant value = theme.values().value("Key");
        const Kind kind = styleSheetPrecedence[first];
        const int type = kind == Kind::ImageFile ? QMetaType::QString
            : kind == Kind::Integer              ? QMetaType::LongLong
            : kind == Kind::Flag                 ? QMetaType::Bool
                                                 : QMetaType::QColor;
        QCOMPARE(value.userType(), type);
    }
}

QTEST_GUILESS_MAIN(tst_Token)
#include "tst_token.moc"

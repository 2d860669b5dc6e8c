// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "../tests/support/plainsubstitution.h"

#include <analysis/style/styleparser.h>
#include <analysis/style/stylerules.h>
#include <analysis/style/substitution.h>
#include <analysis/style/templatetext.h>
#include <hvtheme/theming.h>

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

// An input is a folder of templates, with a form feed between two files. They are joined as the
// library joins them, each place leads back to its character, rules, comments and tokens stand where
// they say, and the finished text is what the plainest substitution gives.
namespace
{

void require(bool condition, const char *what)
{
    if (!condition)
        qFatal("%s", what);
}

void write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly), "cannot write");
    file.write(text);
}

void checkPositions(const TemplateText &templates)
{
    const QString text = templates.text();
    QString path;
    int line = 1;
    int column = 1;
    for (int i = 0; i < text.size(); ++i) {
        if (templates.fileAt(i).input.path() != path) {
            path = templates.fileAt(i).input.path();
            require(templates.fileAt(i).offset == i, "a file begins elsewhere");
            line = 1;
            column = 1;
        }
        const TextPosition position = templates.placeAt(i).position;
        require(position.line == line && position.column == column, "another position");
        const bool isLineEnd = text.at(i) == QLatin1Char('\n');
        line += isLineEnd ? 1 : 0;
        column = isLineEnd ? 1 : column + 1;
    }
}

void checkRule(const StyleRules &rules, const StyleRule &rule, const QString &text)
{
    require(text.at(rule.end - 1) == QLatin1Char('}') || rule.end == text.size(), "no end");
    require(rules.ruleAt(rule.start) == &rule && rules.ruleAt(rule.end - 1) == &rule,
            "a rule is not found");
    int last = rule.start;
    for (const StyleDeclaration &declaration : rule.declarations) {
        require(declaration.start > last && declaration.end <= rule.end, "declarations overlap");
        require(rule.declarationAt(declaration.start) == &declaration, "no declaration is found");
        const QString word = declaration.property.section(QLatin1Char(' '), 0, 0);
        require(text.mid(declaration.start).startsWith(word.left(1)), "a property elsewhere");
        last = declaration.end;
    }
    for (const StyleSelector &selector : rule.selectors)
        require(selector.offset >= rule.start && selector.offset < rule.end, "a selector outside");
}

void checkRules(const QString &text)
{
    const StyleRules rules(text);
    int last = 0;
    for (const StyleRules::Comment &comment : rules.comments()) {
        require(comment.start >= last && comment.end <= text.size(), "comments overlap");
        require(text.mid(comment.start, 2) == QLatin1String("/*"), "a comment begins elsewhere");
        require(rules.isComment(comment.start) && rules.isComment(comment.end - 1), "no comment");
        require(comment.isClosed || comment.end == text.size(), "an open comment ends early");
        last = comment.end;
    }
    last = 0;
    for (const StyleRule &rule : rules.rules()) {
        require(rule.start >= last && rule.end > rule.start, "rules overlap");
        checkRule(rules, rule, text);
        last = rule.end;
    }
}

// Some keys lead to others, and some back to themselves.
QVariantMap values()
{
    const QString color = QStringLiteral("global.theme.color.");
    return {{"a", "red"},
            {"b", QString(color + "a " + color + "a")},
            {"c", QString(color + "d")},
            {"d", QString("x" + color + "c")},
            {"e", "global.theme.image.f"},
            {"f", "global.theme.integer.g|px"},
            {"g", "7"},
            {"h", "global.theme."},
            {"i", "color.i"}};
}

void checkSubstitution(const QString &templates)
{
    constexpr int mostSteps = 3000;
    const FinishedStyleSheet finished = finishedStyleSheet("global", values(), templates);
    QString text = Plain::hiddenSurrogates(templates);
    for (const Plain::Kind kind : {Plain::Kind::Color, Plain::Kind::Image, Plain::Kind::Integer}) {
        const Plain::Result result = Plain::replaced(kind, "global", values(), text, mostSteps);
        require(result.ended || !finished.endlessKey.isNull(), "endless, and nobody said so");
        if (!result.ended || !finished.endlessKey.isNull())
            return;
        text = result.text;
    }
    require(finished.text == Plain::shownSurrogates(text), "another text");
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the name that fuzzing engines call
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_template";
    static char *argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(argc, argv);
    if (size > 4096)
        return 0;

    const QTemporaryDir folder;
    char file = 'a';
    const QList<QByteArray> texts =
        QByteArray(reinterpret_cast<const char *>(data), int(size)).split('\f');
    for (const QByteArray &text : texts.mid(0, 20))
        write(folder.filePath(QString(QLatin1Char(file++)) + ".qss"), text);

    QString error;
    const auto templates = TemplateText::read(QStringList(folder.path()), "global", &error);
    require(templates.has_value(), "templates cannot be read");
    const QString text = templates->text();
    QString expected;
    HV::readStyleSheet(folder.path(), expected);
    require(text == expected, "not the library's text");
    checkPositions(*templates);
    for (const TemplateToken &token : templates->tokens())
        require(text.mid(token.offset, token.length).startsWith("global.theme.")
                    && text.left(token.end()).endsWith("." + token.key),
                "a token elsewhere");
    checkRules(text);
    checkSubstitution(text);
    const bool isAccepted = StyleParser::accepts(text);
    const QVector<int> rejected = StyleParser::rejectedRules(text);
    require(rejected.isEmpty() == isAccepted, "rejected without a place");
    require(std::is_sorted(rejected.cbegin(), rejected.cend()), "places out of order");
    return 0;
}

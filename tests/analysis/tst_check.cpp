// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "temporaryfolder.h"

#include <analysis/messagelog.h>
#include <analysis/rules/rules.h>
#include <analysis/suggestion.h>
#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>
#include <tools/findingwriters.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

// Every rule has a folder in data/check with two themes folders: `bad`, with what the rule finds
// there in expected.txt, and `good`, which looks alike and in which it finds nothing.
class tst_Check : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rulesAreComplete();
    void documentedInOrder();
    void bad_data();
    void bad();
    void good_data();
    void good();
    void agreesWithLibrary_data();
    void agreesWithLibrary();
    void suggestions_data();
    void suggestions();
    void vocabularyRefused_data();
    void vocabularyRefused();
    void placeholderInFolder();
    void pathInFolder_data();
    void pathInFolder();
    void undefinedInBuiltInTemplates();
    void undefinedInNamedThemes_data();
    void undefinedInNamedThemes();
    void endless_data();
    void endless();
    void text();
    void json();
    void sarif();

private:
    static QDir data() { return QDir(QStringLiteral(HVTHEME_SOURCE_DIR "/tests/data/check")); }
    static void addRules();
};

static ThemeProjectOptions optionsFor(const QDir &folder)
{
    const QDir root(QStringLiteral(HVTHEME_SOURCE_DIR "/tests/data/check"));
    ThemeProjectOptions options;
    options.folder = folder.path();
    options.templates = QStringList(folder.exists("templates") ? folder.filePath("templates")
                                                               : root.filePath("plain.qss"));
    options.applicationFolder = folder.exists("app") ? folder.filePath("app") : folder.path();
    options.vocabularyFile = folder.exists("vocabulary.json") ? folder.filePath("vocabulary.json")
                                                              : root.filePath("nothing.json");
    return options;
}

static QVector<Finding> findingsIn(const QDir &folder, const QString &ruleName)
{
    QString error;
    const std::unique_ptr<ThemeProject> input = ThemeProject::read(optionsFor(folder), &error);
    if (!input)
        qFatal("%s", qPrintable(error));
    Report report;
    for (const LintRule *rule : allLintRules()) {
        if (!ruleName.isEmpty() && ruleName != QLatin1String(rule->name))
            continue;
        report.begin(*rule);
        rule->check(*input, report);
    }
    return report.findings();
}

void tst_Check::addRules()
{
    QTest::addColumn<QString>("rule");
    for (const LintRule *rule : allLintRules())
        QTest::newRow(rule->name) << QString::fromLatin1(rule->name);
}

// Whoever adds a rule writes its page and its example too, and nothing is left of one that went.
void tst_Check::rulesAreComplete()
{
    QStringList names;
    for (const LintRule *rule : allLintRules())
        names << QLatin1String(rule->name);
    names.sort();
    QCOMPARE(data().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name), names);

    QStringList pages;
    const QDir folder(QStringLiteral(HVTHEME_SOURCE_DIR "/docs/rules"));
    for (const QString &page : folder.entryList({"*.md"}, QDir::Files, QDir::Name))
        pages << page.chopped(3);
    QCOMPARE(pages, names);
    for (const LintRule *rule : allLintRules()) {
        QFile page(folder.filePath(QString::fromLatin1(rule->name) + ".md"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(page.readLine()), QString("# %1\n").arg(rule->name));
        const QString severity = QString("Severity: %1").arg(severityName(rule->severity));
        QVERIFY2(QString::fromUtf8(page.readAll()).contains(severity), rule->name);
    }
}

// The list of the documentation is the table of the rules.
void tst_Check::documentedInOrder()
{
    QFile page(QStringLiteral(HVTHEME_SOURCE_DIR "/docs/check.md"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    const QString list = text.mid(text.indexOf("\n## Rules\n"));
    static const QRegularExpression link("^\\[([a-z-]+)\\]\\(rules/([a-z-]+)\\.md\\)[.,]$",
                                         QRegularExpression::MultilineOption);
    QStringList documented;
    for (auto links = link.globalMatch(list); links.hasNext();) {
        const QRegularExpressionMatch match = links.next();
        QCOMPARE(match.captured(1), match.captured(2));
        documented << match.captured(1);
    }
    QStringList names;
    for (const LintRule *rule : allLintRules())
        names << QLatin1String(rule->name);
    QCOMPARE(documented, names);
}

// One line for each, without the one that sums them up.
static QString findingLines(const QVector<Finding> &findings)
{
    const QByteArray text = FindingWriters::text(findings, {false, true});
    return QString::fromUtf8(text.left(text.lastIndexOf('\n', -2) + 1));
}

void tst_Check::bad_data()
{
    addRules();
}

void tst_Check::bad()
{
    QFETCH(QString, rule);
    const QDir folder(data().filePath(rule + "/bad"));
    QString found = findingLines(findingsIn(folder, rule));
    found.replace(folder.path(), "FOLDER");
    QFile expected(folder.filePath("expected.txt"));
    QVERIFY2(expected.open(QIODevice::ReadOnly), qPrintable(expected.fileName()));
    QCOMPARE(found, QString::fromUtf8(expected.readAll()));
    QVERIFY(!found.isEmpty());
}

void tst_Check::good_data()
{
    addRules();
}

void tst_Check::good()
{
    QFETCH(QString, rule);
    const QDir folder(data().filePath(rule + "/good"));
    QCOMPARE(findingLines(findingsIn(folder, rule)), QString());
}

void tst_Check::agreesWithLibrary_data()
{
    QTest::addColumn<QString>("folder");
    for (const LintRule *rule : allLintRules()) {
        for (const char *kind : {"bad", "good"})
            QTest::addRow("%s-%s", rule->name, kind)
                << data().filePath(QString("%1/%2").arg(rule->name, kind));
    }
}

// The names of the keys in messages of one form.
static QStringList keysIn(const QVector<LoggedMessage> &messages, const QString &pattern)
{
    QStringList keys;
    for (const LoggedMessage &message : messages) {
        const auto match = QRegularExpression("^" + pattern + "$").match(message.text);
        if (match.hasMatch())
            keys << match.captured(1);
    }
    keys.sort();
    return keys;
}

static QStringList definitionsWith(const ThemeStack &stack, Definition::Fate fate, bool areFlags)
{
    QStringList keys;
    for (const Definition &definition : stack.definitions()) {
        if (definition.fate == fate && (definition.kind() == Kind::Flag) == areFlags)
            keys << definition.key();
    }
    keys.sort();
    return keys;
}

static void compareStored(const ThemeStack &stack, const HV::Theme &theme)
{
    for (const Kind kind : allKinds) {
        for (const int index : stack.stored(kind)) {
            const Definition &definition = stack.definitions().at(index);
            const QString key = definition.key();
            if (kind == Kind::Flag)
                QCOMPARE(theme.flag(key), definition.value->value.toInt() != 0);
            else if (kind == Kind::Integer)
                QCOMPARE(theme.integer(key), qint64(definition.value->value.toInt()));
            else if (kind == Kind::Gradient)
                QCOMPARE(theme.gradient(key).size(), definition.value->gradientSize);
            else if (kind == Kind::ImageFile)
                QCOMPARE(theme.imageFile(key),
                         imageFilePath(QCoreApplication::applicationDirPath(),
                                       definition.value->text()));
        }
    }
    for (const ColorText &color : colorTexts(stack)) {
        if (color.definition->kind() != Kind::Color)
            continue;
        const QString text = color.text();
        const QString digits = text.startsWith('#') ? text : '#' + text;
        const QColor expected = color.isResolved ? theme.readNamedColor(text).first
            : isHexadecimalColor(text)           ? QColor(digits)
                                                 : QColor(Qt::black);
        QCOMPARE(theme.color(color.definition->key()), expected);
    }
}

static QStringList missingColors(const ThemeStack &stack)
{
    QStringList texts;
    for (const ColorText &color : colorTexts(stack)) {
        if (!color.isResolved && !isHexadecimalColor(color.text()))
            texts << color.text();
    }
    // A stop without a colour is read as one with an empty text.
    for (const Definition &definition : stack.definitions()) {
        if (definition.fate == Definition::Fate::Exists)
            continue;
        for (const GradientStopValue &stop : definition.value->stops) {
            if (stop.hasPosition && !stop.hasColor)
                texts << QString();
        }
    }
    texts.sort();
    return texts;
}

void tst_Check::agreesWithLibrary()
{
    QFETCH(QString, folder);
    const ThemeProjectOptions options = optionsFor(folder);
    QString error;
    const std::unique_ptr<ThemeProject> input = ThemeProject::read(options, &error);
    QVERIFY2(input, qPrintable(error));
    for (const ThemeStack *stack : input->allThemes()) {
        if (openedThemeFilePath(options.folder, stack->name(), options.suffix)
            != themeFilePath(options.folder, stack->name(), options.suffix))
            continue; // the library misses the file, which is what the rule says
        HV::WorkableTheme theme;
        QVector<LoggedMessage> messages;
        {
            const MessageLog log;
            HV::changeTheme(&theme, stack->own() ? stack->name() : QString(), options.folder,
                            options.suffix);
            theme.values();
            messages = log.messages();
        }
        QCOMPARE(keysIn(messages, "The (?!Flag)\\w+ Key \\[ \"(.*)\" \\] is exists\\."),
                 definitionsWith(*stack, Definition::Fate::Exists, false));
        QCOMPARE(keysIn(messages, "The Flag Key \\[ \"(.*)\" \\] is exists\\."),
                 definitionsWith(*stack, Definition::Fate::Exists, true));
        QCOMPARE(keysIn(messages, "The Gradient Key \\[ \"(.*)\" \\]'s value is invalid\\."),
                 definitionsWith(*stack, Definition::Fate::Invalid, false));
        QCOMPARE(keysIn(messages, "Color \"(.*)\" is neither .*"), missingColors(*stack));
        QCOMPARE(theme.displayName(), stack->displayName());
        compareStored(*stack, theme);
        if (QTest::currentTestFailed())
            return;
        if (stack == &input->base()) {
            QStringList required;
            const Vocabulary vocabulary = Vocabulary::builtIn();
            for (const Kind kind : {Kind::Palette, Kind::Integer}) {
                for (const QString &key : vocabulary.keys(kind)) {
                    if (!stack->stored(kind).contains(key))
                        required << key;
                }
            }
            required.sort();
            QCOMPARE(keysIn(messages, "Theme \\w+ Key \\[ \"(.*)\" \\] is must bu set,.*"),
                     required);
        }
    }
}

void tst_Check::suggestions_data()
{
    QTest::addColumn<QString>("misspelt");
    QTest::addColumn<QString>("nearest");

    QTest::newRow("case") << "brand_1"
                          << "Brand_1";
    QTest::newRow("dropped") << "Brnd_1"
                             << "Brand_1";
    QTest::newRow("inserted") << "Brannd_1"
                              << "Brand_1";
    QTest::newRow("changed") << "Brxnd_1"
                             << "Brand_1";
    QTest::newRow("swapped") << "Barnd_1"
                             << "Brand_1";
    QTest::newRow("too-far") << "Brx_1"
                             << "";
    QTest::newRow("short") << "W1"
                           << "";
    QTest::newRow("long") << "EditBckgruondColor"
                          << "EditBackgroundColor";
}

void tst_Check::suggestions()
{
    QFETCH(QString, misspelt);
    QFETCH(QString, nearest);
    const Suggestion suggestion({"Brand_1", "W100", "EditBackgroundColor"});
    QCOMPARE(suggestion.nearest(misspelt), nearest);
    QCOMPARE(suggestion.question(misspelt),
             nearest.isEmpty() ? QString() : "; did you mean " + nearest + "?");
}

void tst_Check::vocabularyRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");

    QTest::newRow("no-json") << QByteArray("Color") << "not a JSON object: illegal value";
    QTest::newRow("list") << QByteArray("[]") << "not a JSON object";
    QTest::newRow("unknown") << QByteArray("{\"Colours\": []}")
                             << "\"Colours\" is none of Palette, Color, ImageFile, Gradient, Flag, "
                                "Integer";
    QTest::newRow("no-list") << QByteArray("{\"Color\": \"A\"}")
                             << "\"Color\" is not a list of texts";
    QTest::newRow("no-texts") << QByteArray("{\"Flag\": [1]}") << "\"Flag\" is not a list of texts";
}

void tst_Check::vocabularyRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    QTemporaryDir folder;
    QFile file(folder.filePath("vocabulary.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    QString error;
    QVERIFY(!Vocabulary::read(file.fileName(), &error));
    QCOMPARE(error, file.fileName() + ": " + reason);
}

static QDir copied(const QDir &from, const QString &to)
{
    QDir().mkpath(to);
    for (const QFileInfo &file : from.entryInfoList(QDir::Files))
        QFile::copy(file.filePath(), to + '/' + file.fileName());
    for (const QFileInfo &folder : from.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot))
        copied(folder.filePath(), to + '/' + folder.fileName());
    return QDir(to);
}

// The library loses the theme in such a folder; what is said of the theme stays what it is.
void tst_Check::placeholderInFolder()
{
    QTemporaryDir root;
    const QDir plain = copied(data().filePath("contrast/bad"), root.filePath("plain"));
    const QDir strange = copied(data().filePath("contrast/bad"), root.filePath("a%1b%2"));
    QString expected = findingLines(findingsIn(plain, "contrast"));
    QVERIFY(!expected.isEmpty());
    expected.replace(plain.path(), strange.path());
    QCOMPARE(findingLines(findingsIn(strange, "contrast")), expected);
    QCOMPARE(findingsIn(strange, "theme-path").size(), 1);
    QCOMPARE(findingsIn(plain, "theme-path").size(), 0);
}

// All images are in the application's folder, so it is one finding, and the templates have none.
void tst_Check::pathInFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("fault"); // what the message quotes
    QTest::newRow("umlaut") << QString::fromUtf8("M\u00fcller & Co") << QString::fromUtf8("\u00fc");
    QTest::newRow("ampersand") << "Tom & Co"
                               << "&";
    QTest::newRow("comment") << "*new*"
                             << "/*";
}

void tst_Check::pathInFolder()
{
    QFETCH(QString, folder);
    QFETCH(QString, fault);
    QTemporaryDir root;
    ThemeProjectOptions options;
    options.folder = QStringLiteral(HVTHEME_SOURCE_DIR "/themes");
    options.applicationFolder = root.filePath(folder + "/bin");
    QString error;
    const auto project = ThemeProject::read(options, &error);
    QVERIFY2(project, qPrintable(error));
    QStringList found;
    for (const Finding &finding : runLintRules(*project, {"image-missing"})) {
        if (finding.rule == "path-in-url")
            found << finding.message;
        QVERIFY2(finding.rule != "style-sheet-syntax", qPrintable(finding.message));
    }
    QCOMPARE(found.size(), 1);
    const QString expected = QString("\"%1\" in the path %2,").arg(fault, root.filePath(folder));
    QVERIFY2(found.first().contains(expected), qPrintable(found.first()));
}

// A key that the themes lack is one mistake, however many built-in templates name it; a token in a
// template of one's own is one by itself.
void tst_Check::undefinedInBuiltInTemplates()
{
    QTemporaryDir folder;
    QFile theme(folder.filePath("default.theme"));
    QVERIFY(theme.open(QIODevice::WriteOnly));
    theme.write("[ImageFiles]\nadd=add.svg\n");
    theme.close();
    const QString own = folder.filePath("a.qss");
    QFile file(own);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("QLabel { color: global.theme.color.Color_W100; }\n"
               "QFrame { color: global.theme.color.Color_W100; }\n");
    file.close();
    ThemeProjectOptions options;
    options.folder = folder.path();
    options.templates << own;
    QString error;
    const auto project = ThemeProject::read(options, &error);
    QVERIFY2(project, qPrintable(error));
    int count = -2; // but for those of the own template
    for (const TemplateToken &token : project->tokens())
        count += token.key == "Color_W100" ? 1 : 0;
    QVERIFY(count > 1);

    const QString message("no theme defines Color_W100, and nothing takes its place");
    QStringList found;
    for (const Finding &finding : runLintRules(*project)) {
        if (finding.message.startsWith(message))
            found << QFileInfo(finding.place.file).fileName() + finding.message.mid(message.size());
    }
    QCOMPARE(found.size(), 3);
    QCOMPARE(found.mid(0, 2), QStringList({"a.qss", "a.qss"}));
    QVERIFY2(found.last().endsWith(QString(" (%1 tokens of the built-in templates)").arg(count)),
             qPrintable(found.last()));
}

void tst_Check::undefinedInNamedThemes_data()
{
    QTest::addColumn<QStringList>("themes");
    QTest::addColumn<QString>("message"); // empty: no finding

    const QString end = " Ink, and nothing takes its place";
    QTest::newRow("all") << QStringList() << "";
    QTest::newRow("one-that-does") << QStringList{"light"} << "";
    QTest::newRow("one") << QStringList{"dark"} << "dark does not define" + end;
    QTest::newRow("two") << QStringList{"dark", "dusk"} << "none of dark, dusk defines" + end;
    QTest::newRow("default") << QStringList{"default"} << "default does not define" + end;
}

// A theme that is not asked for may have the key, so what is said is said of those that are.
void tst_Check::undefinedInNamedThemes()
{
    QFETCH(QStringList, themes);
    QFETCH(QString, message);
    const TemporaryFolder folder;
    folder.write("default.theme", "[Colors]\nPaper=#ffffff\n");
    folder.write("dark.theme", "[Colors]\nOther=#000000\n");
    folder.write("dusk.theme", "[Colors]\nOther=#000000\n");
    folder.write("light.theme", "[Colors]\nInk=#000000\n");
    ThemeProjectOptions options;
    options.folder = folder.path();
    options.themes = themes;
    options.templates =
        QStringList{folder.write("a.qss", "QLabel { color: global.theme.color.Ink; }\n")};
    QString error;
    const auto project = ThemeProject::read(options, &error);
    QVERIFY2(project, qPrintable(error));
    QStringList found;
    for (const Finding &finding : runLintRules(*project)) {
        if (finding.rule == "undefined-token")
            found << finding.message;
    }
    QCOMPARE(found.join('\n'), message);
}

void tst_Check::endless_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QString>("key");

    const QString image = QStringLiteral("global.theme.image.");
    const QString color = QStringLiteral("global.theme.color.");
    const QString integer = QStringLiteral("global.theme.integer.");
    const auto map = [](const QString &a, const QString &x, const QString &b = "none",
                        const QString &y = "0") {
        return QVariantMap{{a, x}, {b, y}};
    };
    QTest::newRow("itself") << image + "a;" << map("a", image + "a") << "a";
    QTest::newRow("itself-inside") << image + "a;" << map("a", "x/" + image + "a/y") << "a";
    QTest::newRow("mutual") << image + "a;" << map("a", image + "b", "b", image + "a") << "a";
    QTest::newRow("not-used") << "x" << map("a", image + "a") << QString();
    QTest::newRow("nested") << image + "a;" << map("a", image + "b", "b", "end") << QString();
    QTest::newRow("color-pass") << color + "a;" << map("a", color + "a") << "a";
    QTest::newRow("other-pass") << color + "a;" << map("a", image + "a") << "a";
    QTest::newRow("earlier-pass") << image + "a;" << map("a", color + "a") << QString();
    QTest::newRow("across-passes")
        << color + "a;" << map("a", image + "b", "b", integer + "b") << "b";
    QTest::newRow("integer-separator") << integer + "a|px" << map("a", integer + "a|") << "a";
    QTest::newRow("completed-behind")
        << image + "a.theme.image.a;" << map("a", "global") << QString();
    QTest::newRow("completed-for-ever")
        << image + "b.theme.image.b.theme" << map("b", "global.theme.image.b") << "b";
    QTest::newRow("longer-name") << image + "abb;" << map("abb", image + "ab", "ab", "x")
                                 << QString();
    QTest::newRow("uses-up-text") << image + "a" + "/b;" << map("a", image, "b", "x") << QString();
    QTest::newRow("before-separator")
        << "g" + integer + "a|;" << map("a", "lobal.theme.integer.a|") << "a";
    QTest::newRow("adjacent") << image + "a" + "." + image + "b" << map("a", "x", "b", "y")
                              << QString();
}

void tst_Check::endless()
{
    QFETCH(QString, text);
    QFETCH(QVariantMap, values);
    QFETCH(QString, key);
    const FinishedStyleSheet finished = finishedStyleSheet("global", values, text);
    QCOMPARE(finished.endlessKey, key);
    if (!key.isNull())
        return;
    const MessageLog silence; // of images that do not exist
    const QString prefix = QStringLiteral("global");
    const QString colored = HV::replaceCssColors(prefix, values, text);
    const QString pictured = HV::replaceCssImages(prefix, values, colored);
    QCOMPARE(finished.text, HV::replaceCssIntegers(prefix, values, pictured));
}

static QVector<Finding> sample()
{
    const QString fromRightToLeft = QChar(0x202e);
    return {{"a b.theme", {3, 7}, Severity::Error, "x \x1b[31m " + fromRightToLeft, "required-key"},
            {":/stylesheet/a.qss", {1, 1}, Severity::Warning, "y", "token-kind"},
            {"/t/\u00e9.theme", {2, 1}, Severity::Info, "z", "unused-key"}};
}

void tst_Check::text()
{
    const QByteArray plain = FindingWriters::text(sample(), {false, true});
    QCOMPARE(QString::fromUtf8(plain),
             QString::fromUtf8("a b.theme:3:7: error: x \\x1b[31m \\u202e [required-key]\n"
                               ":/stylesheet/a.qss:1:1: warning: y [token-kind]\n"
                               "/t/\u00e9.theme:2:1: info: z [unused-key]\n"
                               "1 error, 1 warning, 1 note\n"));
    QVERIFY(FindingWriters::text(sample(), {true, true})
                .startsWith("a b.theme:3:7: \x1b[31merror\x1b[0m: "));
    const QByteArray quiet = FindingWriters::text(sample(), {});
    QVERIFY(!quiet.contains("unused-key"));
    QVERIFY(quiet.endsWith("\n1 error, 1 warning; 1 note, see --notes\n"));
    QCOMPARE(FindingWriters::text({}, {true, true}), QByteArray("no findings\n"));
}

void tst_Check::json()
{
    const QJsonObject object = QJsonDocument::fromJson(FindingWriters::json(sample())).object();
    const QJsonObject first = object["findings"].toArray().at(0).toObject();
    QCOMPARE(object["findings"].toArray().size(), 3);
    QCOMPARE(first["file"].toString(), QStringLiteral("a b.theme"));
    QCOMPARE(first["line"].toInt(), 3);
    QCOMPARE(first["column"].toInt(), 7);
    QCOMPARE(first["severity"].toString(), QStringLiteral("error"));
    QCOMPARE(first["rule"].toString(), QStringLiteral("required-key"));
    QCOMPARE(first["message"].toString(), sample().at(0).message);
    QCOMPARE(object["summary"].toObject()["error"].toInt(), 1);
    QCOMPARE(object["summary"].toObject()["info"].toInt(), 1);
}

// What the schema of SARIF 2.1.0 requires, and what code hosts need to show a finding in its place.
void tst_Check::sarif()
{
    const QJsonObject log = QJsonDocument::fromJson(FindingWriters::sarif(sample())).object();
    QCOMPARE(log["version"].toString(), QStringLiteral("2.1.0"));
    QVERIFY(log["$schema"].toString().endsWith("sarif-2.1.0.json"));
    QCOMPARE(log["runs"].toArray().size(), 1);
    const QJsonObject run = log["runs"].toArray().at(0).toObject();
    const QJsonObject driver = run["tool"].toObject()["driver"].toObject();
    QCOMPARE(driver["name"].toString(), QStringLiteral("hvtheme"));
    const QJsonArray rules = driver["rules"].toArray();
    QCOMPARE(rules.size(), allLintRules().size());
    for (const QJsonValue &rule : rules) {
        QVERIFY(!rule["id"].toString().isEmpty());
        QVERIFY(!rule["shortDescription"]["text"].toString().isEmpty());
    }
    const QStringList levels{"error", "warning", "note"};
    const QStringList uris{"a%20b.theme", "qrc:/stylesheet/a.qss", "file:///t/%C3%A9.theme"};
    const QJsonArray results = run["results"].toArray();
    QCOMPARE(results.size(), 3);
    for (int i = 0; i < 3; ++i) {
        const QJsonObject result = results.at(i).toObject();
        const Finding finding = sample().at(i);
        QCOMPARE(result["message"]["text"].toString(), finding.message);
        QCOMPARE(result["level"].toString(), levels.at(i));
        QCOMPARE(rules.at(result["ruleIndex"].toInt())["id"].toString(), finding.rule);
        const QJsonValue place = result["locations"].toArray().at(0)["physicalLocation"];
        QCOMPARE(place["artifactLocation"]["uri"].toString(), uris.at(i));
        QCOMPARE(place["region"]["startLine"].toInt(), finding.place.position.line);
        QCOMPARE(place["region"]["startColumn"].toInt(), finding.place.position.column);
    }
}

QTEST_MAIN(tst_Check)

#include "tst_check.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <QtTest>

// The SARIF log keeps to what the published schema of version 2.1.0 says of the objects in it. Here stand
// the objects and properties that the log has or may get, with the words and ranges that they are held to;
// the test sarif_reader holds names and required properties against classes generated from all of the schema.
class tst_Sarif : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsToTheSchema_data();
    void keepsToTheSchema();
    void validatorFindsMistakes_data();
    void validatorFindsMistakes();
    void rulesHavePages();
    void resultsNameTheirRules();
};

namespace
{

// What a property holds; an object's type is named.
struct Property {
    QString name;
    QString type; // "string", "uri", "integer", or the name of an object; "[]" behind for a list
    bool isRequired = false;
    int minimum = INT_MIN;
    QStringList allowed = {};
};

using Schema = QMap<QString, QVector<Property>>;

const QStringList levels{"none", "note", "warning", "error"};

// Of each object the properties that are allowed to stand here; any other is a mistake.
const Schema &schema()
{
    static const Schema objects{
        {"sarifLog",
         {{"$schema", "uri"},
          {"version", "string", true, INT_MIN, {"2.1.0"}},
          {"runs", "run[]", true}}},
        {"run",
         {{"tool", "tool", true},
          {"results", "result[]"},
          {"columnKind", "string", false, INT_MIN, {"utf16CodeUnits", "unicodeCodePoints"}}}},
        {"tool", {{"driver", "toolComponent", true}}},
        {"toolComponent",
         {{"name", "string", true},
          {"version", "string"},
          {"informationUri", "uri"},
          {"rules", "reportingDescriptor[]"}}},
        {"reportingDescriptor",
         {{"id", "string", true},
          {"name", "string"},
          {"shortDescription", "multiformatMessageString"},
          {"fullDescription", "multiformatMessageString"},
          {"help", "multiformatMessageString"},
          {"helpUri", "uri"},
          {"defaultConfiguration", "reportingConfiguration"}}},
        {"multiformatMessageString", {{"text", "string", true}, {"markdown", "string"}}},
        {"reportingConfiguration", {{"level", "string", false, INT_MIN, levels}}},
        {"result",
         {{"message", "message", true},
          {"ruleId", "string"},
          {"ruleIndex", "integer", false, -1},
          {"level", "string", false, INT_MIN, levels},
          {"locations", "location[]"},
          {"relatedLocations", "location[]"},
          {"occurrenceCount", "integer", false, 1}}},
        {"message", {{"text", "string", true}, {"markdown", "string"}}},
        {"location", {{"physicalLocation", "physicalLocation"}, {"message", "message"}}},
        {"physicalLocation",
         {{"artifactLocation", "artifactLocation", true}, {"region", "region"}}},
        {"artifactLocation", {{"uri", "uri-reference"}, {"index", "integer", false, -1}}},
        {"region",
         {{"startLine", "integer", false, 1},
          {"startColumn", "integer", false, 1},
          {"endLine", "integer", false, 1},
          {"endColumn", "integer", false, 1}}},
    };
    return objects;
}

QString mistakeIn(const QJsonValue &value, const Property &property);

QString mistakeInObject(const QJsonValue &value, const QString &type)
{
    if (!value.isObject())
        return "no object";
    QJsonObject object = value.toObject();
    for (const Property &property : schema().value(type)) {
        const QJsonValue member = object.take(property.name);
        if (member.isUndefined() && !property.isRequired)
            continue;
        const QString mistake = member.isUndefined() ? "missing" : mistakeIn(member, property);
        if (!mistake.isEmpty())
            return property.name + ": " + mistake;
    }
    return object.isEmpty() ? QString() : object.keys().constFirst() + ": unknown";
}

QString mistakeInText(const QString &text, const QString &type)
{
    if (type == "string")
        return {};
    const QUrl url(text, QUrl::StrictMode);
    const bool isAscii = text.toLatin1() == text.toUtf8();
    if (!url.isValid() || !isAscii || (type == "uri" && url.scheme().isEmpty()))
        return "no " + type;
    return {};
}

QString mistakeIn(const QJsonValue &value, const Property &property)
{
    QString type = property.type;
    if (type.endsWith("[]")) {
        type.chop(2);
        if (!value.isArray())
            return "no list";
        for (const auto &member : value.toArray()) {
            QString mistake = mistakeIn(member, {property.name, type});
            if (!mistake.isEmpty())
                return mistake;
        }
        return {};
    }
    if (schema().contains(type))
        return mistakeInObject(value, type);
    if (type == "integer") {
        const double number = value.toDouble(0.5);
        return number == std::floor(number) && number >= property.minimum ? "" : "out of range";
    }
    if (!value.isString())
        return "no text";
    if (!property.allowed.isEmpty() && !property.allowed.contains(value.toString()))
        return "not allowed";
    return mistakeInText(value.toString(), type);
}

QJsonObject logOf(const QStringList &arguments)
{
    const CommandRun run(QStringList("check") + arguments + QStringList{"--format", "sarif"});
    return QJsonDocument::fromJson(run.output).object();
}

QJsonObject runOf(const QJsonObject &log)
{
    return log.value("runs").toArray().first().toObject();
}

} // namespace

void tst_Sarif::keepsToTheSchema_data()
{
    QTest::addColumn<QByteArray>("theme");
    QTest::addColumn<QByteArray>("styleSheet");

    QTest::newRow("nothing") << QByteArray("ThemeName=a\n") << QByteArray("a { b: c }");
    QTest::newRow("many") << QByteArray("[Colors]\na=red\n[Nonsense]\n[Palettes]\nb=#123\n")
                          << QByteArray("global.theme.color.none {");
    QTest::newRow("broken-first-rule") << QByteArray() << QByteArray("{{{ a } b");
    QTest::newRow("lonely-brace") << QByteArray() << QByteArray("}");
    QTest::newRow("nothing-but-a-property") << QByteArray() << QByteArray("color: red");
    QTest::newRow("empty") << QByteArray() << QByteArray();
}

void tst_Sarif::keepsToTheSchema()
{
    QFETCH(QByteArray, theme);
    QFETCH(QByteArray, styleSheet);
    const TemporaryTheme folder(theme);
    QVERIFY(QDir(folder.path()).mkdir("a b%2bü"));
    folder.write("a b%2bü/a.qss", styleSheet);
    for (const QStringList &options : {QStringList{}, QStringList{"--no-builtin"}}) {
        const QJsonObject log =
            logOf(QStringList{folder.path(), "--templates", folder.path("a b%2bü")} + options);
        QCOMPARE(mistakeInObject(log, "sarifLog"), QString());
        QCOMPARE(log.value("runs").toArray().size(), 1);
        QVERIFY(runOf(log).value("results").isArray());
    }
}

void tst_Sarif::validatorFindsMistakes_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const QByteArray &result, const QString &expected) {
        QTest::newRow(name) << "{\"version\":\"2.1.0\",\"runs\":[{\"tool\":{\"driver\":{\"name\":"
                               "\"a\"}},\"results\":["
                + result
                + "]}]}" << (expected.isEmpty() ? expected : "runs: results: " + expected);
    };
    const QByteArray start = R"({"message":{"text":"a"},"locations":[{"physicalLocation":)"
                             R"({"artifactLocation":{"uri":)";
    row("sound", start + R"("a%20b"},"region":{"startLine":1}}}]})", "");
    row("line-0", start + R"("a"},"region":{"startLine":0}}}]})",
        "locations: physicalLocation: region: startLine: out of range");
    row("no-message", "{}", "message: missing");
    row("unknown", R"({"message":{"text":"a"},"colour":1})", "colour: unknown");
    row("level", R"({"message":{"text":"a"},"level":"info"})", "level: not allowed");
    row("uri", start + R"("a b"}}}]})",
        "locations: physicalLocation: artifactLocation: uri: no uri-reference");
}

void tst_Sarif::validatorFindsMistakes()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, expected);
    QCOMPARE(mistakeInObject(QJsonDocument::fromJson(json).object(), "sarifLog"), expected);
}

void tst_Sarif::rulesHavePages()
{
    const QJsonObject driver =
        runOf(logOf({"themes"})).value("tool").toObject()["driver"].toObject();
    const QJsonArray rules = driver.value("rules").toArray();
    QVERIFY(rules.size() > 20);
    for (const QJsonValue &rule : rules) {
        const QString id = rule.toObject().value("id").toString();
        const QUrl page(rule.toObject().value("helpUri").toString());
        QVERIFY2(page.path().endsWith("/rules/" + id + ".md"), qPrintable(page.toString()));
        QVERIFY2(QFile::exists(HVTHEME_TEST_DIR "/../docs/rules/" + page.fileName()),
                 qPrintable(id));
        QVERIFY(!rule.toObject().value("shortDescription").toObject().value("text").isUndefined());
    }
}

void tst_Sarif::resultsNameTheirRules()
{
    const QJsonObject run = runOf(logOf({"themes"}));
    const QJsonArray rules = run.value("tool").toObject()["driver"].toObject()["rules"].toArray();
    const QJsonArray results = run.value("results").toArray();
    QVERIFY(results.size() > 5);
    for (const QJsonValue &result : results) {
        const int index = result.toObject().value("ruleIndex").toInt(-1);
        QCOMPARE(rules.at(index).toObject().value("id"), result.toObject().value("ruleId"));
    }
}

QTEST_GUILESS_MAIN(tst_Sarif)
#include "tst_sarif.moc"

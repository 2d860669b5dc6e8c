// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theming.h>

#include "messages.h"

#include <QResource>
#include <QWidget>
#include <QXmlStreamReader>

class tst_Stylesheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void folder();
    void collectionListsTheFiles();
    void entry_data();
    void entry();
    void placeholders();
    void byteOrderMarkIsDropped();
    void joined();
    void rules_data();
    void rules();
    void comments();
    void repeatedRule();
    void tokens();
    void integerTokensCarryTheirUnit();
    void parses_data();
    void parses();

private:
    CapturedMessages m_log;
};

namespace
{

struct Template {
    const char *name;
    int size;
    bool compressed;
    bool byteOrderMark;
    bool lineEnd;
    int rules;
};

// clang-format off
constexpr Template Templates[] = {
    // name               size  compressed  mark   line end  rules
    {"calendarwidget.qss", 3366, true,      false, true,     23},
    {"checkbox.qss",        626, false,     false, false,     8},
    {"combobox.qss",       1197, false,     false, false,    10},
    {"datetimeedit.qss",   1141, true,      false, false,     9},
    {"dialog.qss",            0, false,     false, false,     0},
    {"frame.qss",             3, false,     true,  false,     0},
    {"global.qss",          691, false,     false, false,     9},
    {"groupbox.qss",          0, false,     false, false,     0},
    {"headerview.qss",        0, false,     false, false,     0},
    {"label.qss",          2182, true,      false, false,    23},
    {"lineedit.qss",        848, false,     true,  false,     8},
    {"listwidget.qss",      577, false,     false, false,     4},
    {"mainwindow.qss",        0, false,     false, false,     0},
    {"menu.qss",            293, false,     false, false,     3},
    {"pushbutton.qss",     9518, true,      false, false,    88},
    {"radiobutton.qss",     554, false,     false, false,     7},
    {"scrollarea.qss",       62, false,     false, false,     1},
    {"scrollbar.qss",       560, false,     false, false,     6},
    {"slider.qss",         2170, true,      false, false,    16},
    {"spinbox.qss",        1499, true,      false, false,    10},
    {"tablewidget.qss",     707, false,     false, true,      5},
    {"tabwidget.qss",       654, false,     false, true,      3},
    {"textedit.qss",        169, false,     true,  true,      1},
    {"toolbutton.qss",        0, false,     false, false,     0},
    {"tooltip.qss",          93, false,     false, true,      1},
    {"treewidget.qss",        0, false,     false, false,     0},
    {"widget.qss",         2461, true,      true,  false,    21},
};
// clang-format on

const QString Comment = "/* */";

QStringList templateNames()
{
    QStringList names;
    for (const Template &file : Templates)
        names.append(file.name);
    return names;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qUtf8Printable(path));
    return file.readAll();
}

QString textOf(const QString &name)
{
    return QString::fromUtf8(contentOf(":/stylesheet/" + name));
}

QString wholeText()
{
    QString text;
    HV::readStyleSheet(":/stylesheet", text);
    return text;
}

QString canonicalDeclarations(const QString &block)
{
    QStringList declarations = block.split(';');
    for (QString &declaration : declarations)
        declaration = declaration.simplified();
    return declarations.join("; ");
}

/*!
 * The rules of \a text in order, each on one line with single spaces, and a mark for each comment.
 * What is neither is an entry of its own, and so is the end of a text that breaks off.
 */
QStringList statements(const QString &text)
{
    static const QRegularExpression statement(
        R"(\s*(?:/\*.*?\*/|(?<selector>[^{}]+)\{(?<declarations>[^{}]*)\}))",
        QRegularExpression::DotMatchesEverythingOption);
    QStringList result;
    int end = 0;
    for (auto matches = statement.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        if (match.capturedStart() != end)
            result.append("stray " + text.mid(end, match.capturedStart() - end));
        end = int(match.capturedEnd());
        const QString selector = match.captured("selector").simplified();
        const QString declarations = canonicalDeclarations(match.captured("declarations"));
        result.append(selector.isEmpty() ? Comment : selector + " { " + declarations + "}");
    }
    if (!text.mid(end).trimmed().isEmpty())
        result.append("stray " + text.mid(end));
    return result;
}

/*! The expected statements of the template \a name, in the form of statements(). */
QStringList expectedStatements(const QString &name)
{
    static const QString path = QStringLiteral(HVTHEME_TEST_DIR "/data/stylesheet_rules.txt");
    QStringList result;
    QString current;
    for (const QByteArray &line : contentOf(path).split('\n')) {
        if (!line.startsWith(' '))
            current = line;
        else if (current == name)
            result += statements(QString::fromUtf8(line));
    }
    return result;
}

/*! The keys that the templates need, each as its kind and its name, sorted. */
QStringList requiredKeys()
{
    static const QString path = QStringLiteral(HVTHEME_TEST_DIR "/data/stylesheet_keys.txt");
    QStringList keys = QString::fromUtf8(contentOf(path)).split('\n', Qt::SkipEmptyParts);
    keys.sort();
    return keys;
}

/*! The first difference of the two lists in words, or an empty text. */
QByteArray firstDifference(const QStringList &actual, const QStringList &expected)
{
    for (int i = 0; i < qMax(actual.size(), expected.size()); ++i) {
        if (actual.value(i) != expected.value(i) || i >= actual.size() || i >= expected.size())
            return QStringLiteral("entry %1\n   Actual   : %2\n   Expected : %3")
                .arg(QString::number(i + 1), actual.value(i, "nothing"),
                     expected.value(i, "nothing"))
                .toUtf8();
    }
    return {};
}

/*! \a text with a colour, an image that exists or a number for each token. */
QString themed(const QString &text)
{
    QVariantMap values;
    for (const QString &entry : requiredKeys()) {
        const QString kind = entry.section(' ', 0, 0);
        const QString key = entry.section(' ', 1);
        if (kind == "color")
            values.insert(key, QColor(16, 32, 48));
        else if (kind == "image")
            values.insert(key, QCoreApplication::applicationFilePath());
        else
            values.insert(key, 12);
    }
    QString result = HV::replaceCssColors("global", values, text);
    result = HV::replaceCssImages("global", values, result);
    return HV::replaceCssIntegers("global", values, result);
}

} // namespace

// Only a shared library registers the collection by being loaded.
void tst_Stylesheet::initTestCase()
{
#ifdef HVTHEME_STATIC_DEFINE
    Q_INIT_RESOURCE(hvtheme);
#endif
}

void tst_Stylesheet::folder()
{
    const QDir folder(":/stylesheet");
    const QDir::Filters everything =
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QCOMPARE(folder.entryList(everything), templateNames());
    QCOMPARE(folder.entryList(QDir::Files), templateNames());
}

void tst_Stylesheet::collectionListsTheFiles()
{
    const QString path = QStringLiteral(HVTHEME_SOURCE_DIR "/hvtheme/hvtheme.qrc");
    QXmlStreamReader reader(contentOf(path));
    QStringList listed;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement
            && reader.name() == QLatin1String("file"))
            listed.append(reader.readElementText());
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));

    QStringList present;
    const QDir folder(QFileInfo(path).path() + "/stylesheet");
    for (const QString &name : folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
        present.append("stylesheet/" + name);
    QCOMPARE(listed, present);
}

void tst_Stylesheet::entry_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("compressed");
    QTest::addColumn<bool>("byteOrderMark");
    QTest::addColumn<bool>("lineEnd");

    for (const Template &file : Templates)
        QTest::newRow(file.name) << QString(file.name) << file.size << file.compressed
                                 << file.byteOrderMark << file.lineEnd;
}

void tst_Stylesheet::entry()
{
    QFETCH(QString, name);
    QFETCH(bool, compressed);
    QFETCH(bool, byteOrderMark);

    const QResource resource(":/stylesheet/" + name, QLocale::c());
    QVERIFY(resource.isValid());
    QCOMPARE(resource.compressionAlgorithm(),
             compressed ? QResource::ZlibCompression : QResource::NoCompression);

    const QByteArray content = contentOf(resource.fileName());
    QTEST(int(content.size()), "size");
    QCOMPARE(content.startsWith("\xef\xbb\xbf"), byteOrderMark);
    QCOMPARE(content.count("\xef\xbb\xbf"), byteOrderMark ? 1 : 0);
    QTEST(content.endsWith('\n'), "lineEnd");
    QVERIFY(!content.endsWith("\n\n"));
    QVERIFY(!content.contains('\r'));
    QCOMPARE(QString::fromUtf8(content).toUtf8(), content.mid(byteOrderMark ? 3 : 0));
    QCOMPARE(content, contentOf(QStringLiteral(HVTHEME_SOURCE_DIR "/hvtheme/stylesheet/") + name));
}

void tst_Stylesheet::placeholders()
{
    QStringList withoutText;
    for (const QString &name : templateNames()) {
        if (textOf(name).isEmpty())
            withoutText.append(name);
    }
    QCOMPARE(withoutText,
             QStringList({"dialog.qss", "frame.qss", "groupbox.qss", "headerview.qss",
                          "mainwindow.qss", "toolbutton.qss", "treewidget.qss"}));
}

void tst_Stylesheet::byteOrderMarkIsDropped()
{
    QCOMPARE(textOf("frame.qss"), QString());
    QVERIFY(textOf("widget.qss").startsWith("/*"));
    QVERIFY(!wholeText().contains(QChar(QChar::ByteOrderMark)));
}

void tst_Stylesheet::joined()
{
    QString expected;
    for (const QString &name : templateNames())
        expected += textOf(name);
    QCOMPARE(wholeText(), expected);
}

void tst_Stylesheet::rules_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("count");

    for (const Template &file : Templates)
        QTest::newRow(file.name) << QString(file.name) << file.rules;
}

void tst_Stylesheet::rules()
{
    QFETCH(QString, name);
    QFETCH(int, count);

    const QStringList actual = statements(textOf(name));
    QCOMPARE(actual.size() - actual.count(Comment), count);
    const QByteArray difference = firstDifference(actual, expectedStatements(name));
    QVERIFY2(difference.isEmpty(), difference.constData());
}

void tst_Stylesheet::comments()
{
    static const QRegularExpression comment(R"(/\*(.*?)\*/)");
    for (auto matches = comment.globalMatch(wholeText()); matches.hasNext();) {
        const QString words = matches.next().captured(1);
        QVERIFY2(words.contains(QRegularExpression(R"(\p{Han})")), qUtf8Printable(words));
        QVERIFY2(!words.contains("theme."), qUtf8Printable(words));
    }
}

void tst_Stylesheet::repeatedRule()
{
    QStringList repeated;
    QSet<QString> seen;
    for (const QString &rule : statements(wholeText())) {
        if (seen.contains(rule) && rule != Comment)
            repeated.append(rule.section(" { ", 0, 0));
        seen.insert(rule);
    }
    QCOMPARE(repeated, QStringList("QWidget[style=BG6]"));
}

void tst_Stylesheet::tokens()
{
    const QString text = wholeText();
    static const QRegularExpression token(R"(global\.theme\.(\w+)\.(\w+))");
    QSet<QString> used;
    int count = 0;
    for (auto matches = token.globalMatch(text); matches.hasNext(); ++count) {
        const QRegularExpressionMatch match = matches.next();
        used.insert(match.captured(1) + ' ' + match.captured(2));
    }
    QCOMPARE(count, text.count("global"));

    QStringList keys = used.values();
    keys.sort();
    const QByteArray difference = firstDifference(keys, requiredKeys());
    QVERIFY2(difference.isEmpty(), difference.constData());
    QCOMPARE(keys.filter(QRegularExpression("^color ")).size(), 46);
    QCOMPARE(keys.filter(QRegularExpression("^image ")).size(), 85);
    QCOMPARE(keys.filter(QRegularExpression("^integer ")).size(), 6);
}

void tst_Stylesheet::integerTokensCarryTheirUnit()
{
    const QString text = wholeText();
    const int tokens = int(text.count("global.theme.integer."));
    QVERIFY(tokens > 0);
    QCOMPARE(text.count(QRegularExpression(R"(global\.theme\.integer\.\w+\|px;)")), tokens);
    QCOMPARE(text.count('|'), tokens);
}

void tst_Stylesheet::parses_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("all") << QString();
    for (const Template &file : Templates)
        QTest::newRow(file.name) << QString(file.name);
}

void tst_Stylesheet::parses()
{
    QFETCH(QString, name);

    const QString text = themed(name.isEmpty() ? wholeText() : textOf(name));
    QVERIFY(!text.contains("global.theme"));
    QWidget widget;
    widget.setStyleSheet(text);
    widget.ensurePolished();
}

QTEST_MAIN(tst_Stylesheet)
#include "tst_stylesheet.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/colorexplanation.h>
#include <analysis/explanation.h>
#include <analysis/ruleexplanation.h>

#include <QDir>
#include <QtTest>

// The story of a key is told in steps that programs can follow to their places.
class tst_Explanation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void steps_data();
    void steps();
    void colorOfTheApplicationLibrary();
    void takersOfALaterEntry();
    void elements_data();
    void elements();
    void elementsRefused_data();
    void elementsRefused();
    void rules_data();
    void rules();
    void colors_data();
    void colors();
    void colorForms_data();
    void colorForms();

private:
    std::unique_ptr<ThemeProject> m_project;
};

namespace
{

QString shown(const ExplanationStep &step)
{
    static const QStringList topics{"value", "origin",    "ineffective", "taker",       "token",
                                    "note",  "statement", "rule",        "declaration", "source"};
    const QString place = step.place.file.isEmpty() ? QString()
                                                    : QFileInfo(step.place.file).fileName() % ':'
            % QString::number(step.place.position.line) % ' ';
    return topics.at(int(step.topic)) % ' ' % place % step.text;
}

} // namespace

void tst_Explanation::initTestCase()
{
    ThemeProjectOptions options;
    options.folder = HVTHEME_TEST_DIR "/data/commands/themes";
    options.themes = QStringList{"night"};
    options.templates = QStringList{HVTHEME_TEST_DIR "/data/commands/templates",
                                    HVTHEME_TEST_DIR "/data/explanation.qss"};
    options.applicationFolder = QDir::currentPath();
    QString error;
    m_project = ThemeProject::read(options, &error);
    QVERIFY2(m_project, qPrintable(error));
}

void tst_Explanation::steps_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("color") << "TitleColor"
                           << QStringList{"value TitleColor is a colour: #101820",
                                          "origin default.theme:14 [Colors] TitleColor=Ink",
                                          "origin default.theme:5 [Palettes] Ink=#101820",
                                          "ineffective night.theme:10 [Colors] TitleColor=#FFFFFF",
                                          "note default.theme, line 14 has the key already, and "
                                          "the first file's counts",
                                          "token b.qss:2 QLabel[kind=\"a;b\"] { color }",
                                          "token b.qss:3 in a comment"};
    QTest::newRow("palette") << "Moon"
                             << QStringList{
                                    "value Moon is a palette entry: #000000",
                                    "origin night.theme:6 [Palettes] Moon=Accent",
                                    "origin default.theme:10 [Palettes] Accent=Brand_2",
                                    "note the palette entry of that name is stored only later, so "
                                    "it is black",
                                    "taker night.theme:11 [Colors] Glimmer=Moon",
                                    "statement Style sheets see neither palette entries nor "
                                    "gradients."};
    QTest::newRow("unknown") << "TitelColor"
                             << QStringList{"statement The theme night has no value called "
                                            "TitelColor; did you mean TitleColor?",
                                            "statement No template uses it."};
}

void tst_Explanation::steps()
{
    QFETCH(QString, key);
    QFETCH(QStringList, expected);
    const Explanation explanation(*m_project, m_project->theme("night"), key);
    QCOMPARE(explanation.isDefined(), expected.first().startsWith("value"));
    QStringList told;
    for (const ExplanationStep &step : explanation.steps())
        told << shown(step);
    QCOMPARE(told, expected);
}

void tst_Explanation::colorOfTheApplicationLibrary()
{
    ThemeProjectOptions options;
    options.folder = HVTHEME_SOURCE_DIR "/themes";
    options.applicationFolder = QDir::currentPath();
    options.templates = QStringList{HVTHEME_TEST_DIR "/data/explanation.qss"};
    QString error;
    const auto project = ThemeProject::read(options, &error);
    QVERIFY2(project, qPrintable(error));
    for (const char *key : {"AccentBackgroundColor", "Palette_Highlight"}) {
        const Explanation explanation(*project, project->theme("dark"), key);
        QCOMPARE(explanation.steps().constLast().text,
                 QString("No template uses it; the application library takes it."));
    }
}

// What stands before an entry in the order of reading is black and not taken from it.
void tst_Explanation::takersOfALaterEntry()
{
    const QTemporaryDir folder;
    const QHash<QString, QByteArray> texts{
        {"default.theme",
         "[Palettes]\nEarly=#101010\n[Gradients]\nGlow=1\nGlow\\size=2\nGlow\\1\\pos=0\n"
         "Glow\\1\\color=Early\nGlow\\2\\pos=1\nGlow\\2\\color=Late\n"},
        {"night.theme", "[Palettes]\nLate=#202020\n[Colors]\nText=Late\n"}};
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        QFile file(folder.filePath(it.key()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(it.value());
    }
    ThemeProjectOptions options;
    options.folder = folder.path();
    options.themes = QStringList{"night"};
    options.applicationFolder = QDir::currentPath();
    QString error;
    const auto project = ThemeProject::read(options, &error);
    QVERIFY2(project, qPrintable(error));
    const auto takers = [&](const QString &key) {
        QStringList lines;
        const Explanation explanation(*project, project->theme("night"), key);
        for (const ExplanationStep &step : explanation.steps()) {
            if (step.topic == ExplanationStep::Topic::Taker)
                lines << shown(step);
        }
        return lines;
    };
    QCOMPARE(takers("Early"), QStringList("taker default.theme:4 [Gradients] Glow=1"));
    QCOMPARE(takers("Late"), QStringList("taker night.theme:4 [Colors] Text=Late"));
}

void tst_Explanation::elements_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("expected");

    QTest::newRow("class") << "QLabel"
                           << "QLabel QFrame QWidget * | | active enabled";
    QTest::newRow("own-class") << "Dial::groove"
                               << "Dial QWidget * | groove | active enabled";
    QTest::newRow("states") << "QCheckBox:Hover:!checked"
                            << "QCheckBox QAbstractButton QWidget * | | "
                               "active enabled hover unchecked";
    QTest::newRow("opposites") << "*:disabled:!active"
                               << "QWidget * | | disabled";
    QTest::newRow("attributes") << "QFrame#box[a=\"x y\"][b].c"
                                << "QFrame QWidget *#box[a=x y][b=true][class=c] | | "
                                   "active enabled";
    QTest::newRow("parents") << "QMenu > QFrame::item:selected"
                             << "QFrame QWidget * < QMenu QWidget * | item | active enabled "
                                "selected";
}

void tst_Explanation::elements()
{
    QFETCH(QString, selector);
    QFETCH(QString, expected);
    QString error;
    const auto element = elementOf(selector, &error);
    QVERIFY2(element, qPrintable(error));
    QStringList nodes;
    for (const StyleNode &node : element->path) {
        QString text = node.classes.join(' ');
        if (!node.name.isEmpty())
            text += '#' + node.name;
        QStringList names = node.attributes.keys();
        names.sort();
        for (const QString &name : names)
            text += '[' % name % '=' % node.attributes.value(name) % ']';
        nodes << text;
    }
    QStringList states = element->states.values();
    states.sort();
    QString told = nodes.join(" < ") % " | " % element->subControl % " | " % states.join(' ');
    QCOMPARE(told.simplified(), expected);
}

void tst_Explanation::elementsRefused_data()
{
    QTest::addColumn<QString>("error");

    QTest::newRow("QLabel[") << "\"QLabel[\" is no selector that Qt can read";
    QTest::newRow("a, b") << "\"a, b\" is several selectors; ask for one";
    QTest::newRow("a:hovr") << "Qt has no state \"hovr\"; did you mean hover?";
    QTest::newRow("a::indicatr") << "Qt has no sub-control \"indicatr\"; did you mean indicator?";
}

void tst_Explanation::elementsRefused()
{
    QFETCH(QString, error);
    QString told;
    QVERIFY(!elementOf(QTest::currentDataTag(), &told));
    QCOMPARE(told, error);
}

void tst_Explanation::rules_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QStringList>("expected");

    const QStringList label{"rule b.qss:1 QLabel[kind=\"a;b\"] (specificity 17)",
                            "declaration b.qss:2 color: #101820",
                            "source default.theme:14 [Colors] TitleColor=Ink",
                            "source default.theme:5 [Palettes] Ink=#101820",
                            "declaration b.qss:3 background: #f4f6f8",
                            "source default.theme:15 [Colors] TitleBackground=Paper",
                            "source default.theme:6 [Palettes] Paper=#F4F6F8",
                            "declaration b.qss:4 font-size: 13px",
                            "source default.theme:44 [Integers] FontSize_M=13"};
    QTest::newRow("tokens") << "QLabel[kind=\"a;b\"]" << label;
    QTest::newRow("none") << "QSlider" << QStringList();
    // Overridden wholly and in part, within a rule too, and a mark without effect.
    QTest::newRow("overridden")
        << "QSpinBox:hover"
        << QStringList{"rule explanation.qss:2 QSpinBox:hover (specificity 17)",
                       "declaration explanation.qss:2 border-left: 1px (overridden)",
                       "note overridden by explanation.qss:2, QSpinBox:hover { border-left }",
                       "declaration explanation.qss:2 border-left: 2px",
                       "declaration explanation.qss:2 color: red",
                       "rule explanation.qss:1 QSpinBox (specificity 1)",
                       "declaration explanation.qss:1 border-width: 3px",
                       "note border-left-width overridden by explanation.qss:2, QSpinBox:hover { "
                       "border-left }",
                       "declaration explanation.qss:1 color: blue (overridden)",
                       "note overridden by explanation.qss:2, QSpinBox:hover { color }",
                       "note Qt takes no notice of !important"};
    QTest::newRow("sub-control")
        << "QSpinBox::up-button"
        << QStringList{"rule explanation.qss:3 QSpinBox::up-button (specificity 17)",
                       "declaration explanation.qss:3 width: 5px",
                       "rule explanation.qss:1 QSpinBox (specificity 1, taken from the widget)",
                       "declaration explanation.qss:1 color: blue",
                       "note Qt takes no notice of !important"};
    QTest::newRow("missing-value")
        << "QTimeEdit"
        << QStringList{"rule explanation.qss:4 QTimeEdit (specificity 1)",
                       "declaration explanation.qss:4 color: ",
                       "note the theme has no value called Missing"};
}

void tst_Explanation::rules()
{
    QFETCH(QString, selector);
    QFETCH(QStringList, expected);
    QString error;
    const auto element = elementOf(selector, &error);
    QVERIFY2(element, qPrintable(error));
    QStringList told;
    const auto steps = ruleSteps(*m_project, m_project->theme("night"), *element);
    for (const ExplanationStep &step : steps)
        told << shown(step);
    QCOMPARE(told, expected);
}

void tst_Explanation::colors_data()
{
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("#101820") << QStringList{
        "value palette entry Ink: #101820",
        "origin default.theme:5 [Palettes] Ink=#101820",
        "value colour TitleColor: #101820",
        "origin default.theme:14 [Colors] TitleColor=Ink",
        "origin default.theme:5 [Palettes] Ink=#101820",
        "token b.qss:2 QLabel[kind=\"a;b\"] { color: global.theme.color.TitleColor }"};
    QTest::newRow("#FF0000") << QStringList{
        "token explanation.qss:2 QSpinBox:hover { color: red }"};
    QTest::newRow("#800a0b0c") << QStringList{
        "token explanation.qss:5 QDial { background: rgba(10, 11, 12, 128) }"};
    QTest::newRow("#400a0b0c") << QStringList{
        "token explanation.qss:6 QDial { image: url(a#fff.svg) #400a0b0c }"};
    QTest::newRow("#d2b48c") << QStringList(); // a font that is called as a colour is
    QTest::newRow("#123456") << QStringList();
}

void tst_Explanation::colors()
{
    QFETCH(QStringList, expected);
    QStringList told;
    const auto steps =
        colorSteps(*m_project, m_project->theme("night"), colorOf(QTest::currentDataTag()));
    for (const ExplanationStep &step : steps)
        told << shown(step);
    QCOMPARE(told, expected);
    QCOMPARE(nearestColor(*m_project, m_project->theme("night"), colorOf("#101821")),
             QString("The nearest is the palette entry Ink: #101820"));
}

void tst_Explanation::colorForms_data()
{
    QTest::addColumn<QRgb>("expected"); // 0 for none

    QTest::newRow("#2449cc") << 0xff2449ccU;
    QTest::newRow("#802449CC") << 0x802449ccU;
    QTest::newRow("#24c") << 0xff2244ccU;
    QTest::newRow("2449cc") << 0U;
    QTest::newRow("red") << 0U;
    QTest::newRow("#red") << 0U;
    QTest::newRow("#12345") << 0U;
}

void tst_Explanation::colorForms()
{
    QFETCH(QRgb, expected);
    const QColor color = colorOf(QTest::currentDataTag());
    QCOMPARE(color.isValid() ? color.rgba() : 0U, expected);
}

QTEST_GUILESS_MAIN(tst_Explanation)
#include "tst_explanation.moc"

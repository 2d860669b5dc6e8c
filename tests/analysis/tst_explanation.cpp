// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/explanation.h>

#include <QDir>
#include <QtTest>

// The story of a key is told in steps that programs can follow to their places.
class tst_Explanation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void steps_data();
    void steps();
};

namespace
{

QString shown(const ExplanationStep &step)
{
    static const QStringList topics{"value", "origin", "ineffective", "taker",
                                    "token", "note",   "statement"};
    const QString place = step.place.file.isEmpty() ? QString()
                                                    : QFileInfo(step.place.file).fileName() % ':'
            % QString::number(step.place.position.line) % ' ';
    return topics.at(int(step.topic)) % ' ' % place % step.text;
}

} // namespace

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
    ThemeProjectOptions options;
    options.folder = HVTHEME_TEST_DIR "/data/commands/themes";
    options.themes = QStringList{"night"};
    options.templates = QStringList{HVTHEME_TEST_DIR "/data/commands/templates"};
    options.applicationFolder = QDir::currentPath();
    QString error;
    const auto project = ThemeProject::read(options, &error);
    QVERIFY2(project, qPrintable(error));
    const Explanation explanation(*project, project->theme("night"), key);
    QCOMPARE(explanation.isDefined(), expected.first().startsWith("value"));
    QStringList told;
    for (const ExplanationStep &step : explanation.steps())
        told << shown(step);
    QCOMPARE(told, expected);
}

QTEST_GUILESS_MAIN(tst_Explanation)
#include "tst_explanation.moc"

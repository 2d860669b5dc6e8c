// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/changetarget.h>

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class tst_ChangeTarget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void targets_data();
    void targets();
    void countsAreTrue();
    void entryThatIsLate();
    void longChain();

private:
    std::unique_ptr<ThemeProject> read(const QHash<QString, QByteArray> &contents) const;

    QTemporaryDir m_folder;
};

namespace
{

const char defaultFile[] = "[Palettes]\nBase=#010203\nSecond=Base\n[Colors]\nText=Second\n"
                           "Edge=Base\n[Gradients]\nGlow=1\nGlow\\1\\pos=0\nGlow\\1\\color=Second\n"
                           "Glow\\2\\pos=1\nGlow\\2\\color=fff\nGlow\\size=2\n";
const char nightFile[] = "ThemeName=Night\n[Colors]\nOwn=Second\nPlain=#fff\n";
const char templates[] = "QLabel { color: global.theme.color.Text; border: 1px solid "
                         "global.theme.color.Edge }\n/* global.theme.color.Text */\nQMenu { "
                         "color: global.theme.color.Text; background: global.theme.color.Own; "
                         "x: global.theme.color.Own global.theme.color.Text }";

} // namespace

void tst_ChangeTarget::initTestCase()
{
    QVERIFY(m_folder.isValid());
    const QVector<QPair<QString, QByteArray>> files{{"default.theme", defaultFile},
                                                    {"night.theme", nightFile},
                                                    {"day.theme", "ThemeName=Day\n"},
                                                    {"a.qss", templates}};
    for (const auto &each : files) {
        QFile file(m_folder.filePath(each.first));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(each.second) == each.second.size());
    }
}

std::unique_ptr<ThemeProject>
tst_ChangeTarget::read(const QHash<QString, QByteArray> &contents) const
{
    ThemeProjectOptions options;
    options.folder = m_folder.path();
    options.contents = contents;
    options.templates = QStringList{m_folder.filePath("a.qss")};
    options.applicationFolder = m_folder.path();
    QString error;
    auto project = ThemeProject::read(options, &error);
    if (!project)
        qFatal("%s", qPrintable(error));
    return project;
}

void tst_ChangeTarget::targets_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("Own") << "Own"
                         << QStringList{"night.theme:3 Colors/Own=Second | night | Own | 2",
                                        "default.theme:3 Palettes/Second=Base (default) | "
                                        "day night | Glow Own Second Text | 4",
                                        "default.theme:2 Palettes/Base=#010203 (default) | "
                                        "day night | Base Edge Glow Own Second Text | 5"};
    QTest::newRow("Plain") << "Plain"
                           << QStringList{"night.theme:4 Colors/Plain=#fff | night | Plain | 0"};
    QTest::newRow("no-key") << "Second" << QStringList();
}

void tst_ChangeTarget::targets()
{
    QFETCH(QString, key);
    QFETCH(QStringList, expected);
    const auto project = read({});
    QStringList told;
    const auto targets = changeTargets(*project, project->theme("night"), key);
    for (const ChangeTarget &target : targets)
        told << QFileInfo(target.place.file).fileName() % ':'
                % QString::number(target.place.position.line) % ' ' % target.fileKey % '='
                % target.text % (target.isOfDefaultFile ? " (default)" : "") % " | "
                % target.themes.join(' ') % " | " % target.keys.join(' ') % " | "
                % QString::number(target.declarations);
    QCOMPARE(told, expected);
    QCOMPARE(paletteChangeTargets(*project, project->theme("night"), "Base").size(), 1);
}

// The declarations that differ once the line is really changed, in memory, are as many as was said.
void tst_ChangeTarget::countsAreTrue()
{
    const auto project = read({});
    const auto targets = changeTargets(*project, project->theme("night"), "Own");
    QCOMPARE(targets.size(), 3);
    const auto sheet = [](const ThemeProject &of) {
        return StyleRules(of.finished(of.theme("night")).text);
    };
    const StyleRules before = sheet(*project);
    for (const ChangeTarget &target : targets) {
        ThemeEditor editor;
        QString error;
        QVERIFY2(editor.setValue(target.place.file, target.fileKey, "#abcdef",
                                 ThemeEditor::Step::New, &error),
                 qPrintable(error));
        const StyleRules after = sheet(*read(editor.contents()));
        int differing = 0;
        for (int i = 0; i < before.rules().size(); ++i) {
            const auto &old = before.rules().at(i).declarations;
            for (int j = 0; j < old.size(); ++j)
                differing += old.at(j).value != after.rules().at(i).declarations.at(j).value;
        }
        QCOMPARE(differing, target.declarations);
    }
}

// A gradient of the default file is there before the entries of the theme's own.
void tst_ChangeTarget::entryThatIsLate()
{
    const auto project = read({{m_folder.filePath("default.theme"),
                                "[Gradients]\nGlow\\1\\pos=0\nGlow\\1\\color=Late\nGlow\\size=1\n"
                                "Glow=1\n"},
                               {m_folder.filePath("night.theme"),
                                "ThemeName=Night\n[Palettes]\nLate=#fff\n[Gradients]\nOwn=1\n"
                                "Own\\1\\pos=0\nOwn\\1\\color=Late\nOwn\\size=1\n"}});
    const auto targets = paletteChangeTargets(*project, project->theme("night"), "Late");
    QCOMPARE(targets.size(), 1);
    QCOMPARE(targets.first().keys, QStringList({"Late", "Own"}));
}

// Entries that are taken one from another, as many as a file of this size has room for.
void tst_ChangeTarget::longChain()
{
    constexpr int count = 50000;
    const auto name = [](int i) { return QStringLiteral("a%1").arg(i, 6, 10, QLatin1Char('0')); };
    QByteArray text = "[Palettes]\na000000=#123456\n";
    for (int i = 1; i < count; ++i)
        text += (name(i) + '=' + name(i - 1) + '\n').toLatin1();
    text += "[Colors]\nEdge=" + name(count - 1).toLatin1() + '\n';
    const auto project = read({{m_folder.filePath("default.theme"), text}});
    const auto targets = changeTargets(*project, project->theme("night"), "Edge");
    QCOMPARE(targets.size(), 100);
    QCOMPARE(targets.at(1).key, name(count - 1));
    QCOMPARE(targets.at(99).keys.size(), 100);
    const auto whole = paletteChangeTargets(*project, project->theme("night"), name(0));
    QCOMPARE(whole.size(), 1);
    QCOMPARE(whole.first().keys.size(), count + 1);
}

QTEST_GUILESS_MAIN(tst_ChangeTarget)

#include "tst_changetarget.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "quietplatform.h"
#include "temporaryfolder.h"

#include <gallery/appliedtheme.h>

#include <analysis/themeproject.h>
#include <hvtheme/theme.h>
#include <hvthemeapp/applicationtheme.h>
#include <inspector/inspectedsheet.h>
#include <inspector/programchanges.h>

#include <QtTest>
#include <QtWidgets>

using namespace Gallery;

// A theme of another application, whose images start from that application's folder, and changes to it.
class tst_AppliedTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void changesKeepImages();
    void changedImage();
    void changesOutliveOthers();
    void inspectedFiles();

private:
    QString file(const char *name) const { return m_folder->filePath(QString("themes/") + name); }
    QImage shown(const char *key) const;
    QColor text() const { return m_applied->theme()->color("DefaultForegroundColor"); }

    std::unique_ptr<QuietPlatform> m_quiet;
    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<AppliedTheme> m_applied;
    ThemeSource m_source;
};

void tst_AppliedTheme::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
}

void tst_AppliedTheme::init()
{
    m_folder = std::make_unique<TemporaryFolder>();
    for (const char *name : {"default", "dark", "light"}) {
        QFile sample(QString(":/hvthemeapp/themes/%1.theme").arg(name));
        QVERIFY(sample.open(QIODevice::ReadOnly));
        const QByteArray images = qstrcmp(name, "dark") == 0
            ? "[ImageFiles]\napplogo=../images/red.png\ntitle_icon=../images/red.png\n"
            : "";
        QByteArray text = sample.readAll();
        if (text.contains("[ImageFiles]"))
            text.truncate(text.indexOf("[ImageFiles]"));
        m_folder->write(QString("themes/%1.theme").arg(name), text + images);
    }
    QVERIFY(QDir(m_folder->path()).mkpath("bin") && QDir(m_folder->path()).mkpath("images"));
    for (const char *color : {"red", "blue"}) {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(QColor(color));
        QVERIFY(image.save(m_folder->filePath(QString("images/%1.png").arg(color))));
    }
    m_source = {m_folder->filePath("themes"), "dark", {}, m_folder->filePath("bin")};
    m_applied = std::make_unique<AppliedTheme>();
    QCOMPARE(int(m_applied->load(m_source)), int(Problem::None));
    QCOMPARE(shown("applogo").pixelColor(1, 1), QColor("red"));
}

void tst_AppliedTheme::cleanup()
{
    delete ProgramChanges::ofProgram();
    m_applied.reset();
    m_folder.reset();
}

QImage tst_AppliedTheme::shown(const char *key) const
{
    return QImage(m_applied->theme()->values().value(key).toString());
}

void tst_AppliedTheme::changesKeepImages()
{
    ProgramChanges *changes = ProgramChanges::ofProgram();
    QVERIFY(changes->setValue(file("dark.theme"), "Colors/DefaultForegroundColor", "#ffeedd"));
    QCOMPARE(text(), QColor("#ffeedd"));
    QCOMPARE(shown("applogo").pixelColor(1, 1), QColor("red"));
    changes->undo();
    QCOMPARE(shown("applogo").pixelColor(1, 1), QColor("red"));
    changes->redo();
    QVERIFY(changes->save(file("dark.theme")).isSaved());
    QCOMPARE(text(), QColor("#ffeedd")); // before anybody reads the file again
    QCOMPARE(shown("applogo").pixelColor(1, 1), QColor("red"));
    QFile saved(file("dark.theme"));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QVERIFY(saved.readAll().contains("applogo=../images/red.png\n")); // as the application has it
}

void tst_AppliedTheme::changedImage()
{
    ProgramChanges *changes = ProgramChanges::ofProgram();
    QVERIFY(changes->setValue(file("dark.theme"), "ImageFiles/applogo", "../images/blue.png"));
    QCOMPARE(shown("applogo").pixelColor(1, 1), QColor("blue"));
    QCOMPARE(shown("title_icon").pixelColor(1, 1), QColor("red"));
}

// Somebody writes one file while another one has changes.
void tst_AppliedTheme::changesOutliveOthers()
{
    ProgramChanges *changes = ProgramChanges::ofProgram();
    QVERIFY(changes->setValue(file("dark.theme"), "Colors/DefaultForegroundColor", "#ffeedd"));
    QFile base(file("default.theme"));
    QVERIFY(base.open(QIODevice::ReadWrite));
    const QByteArray other = base.readAll().replace("Brand_6=#3060F0", "Brand_6=#102030");
    QVERIFY(base.resize(0) && base.seek(0) && base.write(other) == other.size());
    base.close();
    QCOMPARE(int(m_applied->load(m_source)), int(Problem::None));
    QCOMPARE(m_applied->theme()->readNamedColor("Brand_6").first, QColor("#102030"));
    QCOMPARE(text(), QColor("#ffeedd"));
    QCOMPARE(shown("applogo").pixelColor(1, 1), QColor("red"));
    changes->undo();
    QCOMPARE(m_applied->theme()->readNamedColor("Brand_6").first, QColor("#102030"));
}

// What the inspector looks up are the files as they are, with the application's images.
void tst_AppliedTheme::inspectedFiles()
{
    const auto sheet = m_applied->inspectedSheet();
    QCOMPARE(sheet->applicationFolder(), m_folder->filePath("bin"));
    QVERIFY2(sheet->project(), qPrintable(sheet->problem()));
    const ThemeStack &stack = sheet->project()->theme("dark");
    const Definition *logo = stack.find(Kind::ImageFile, "applogo");
    QVERIFY(logo);
    QCOMPARE(logo->value->text(), QString("../images/red.png"));
    QCOMPARE(QFileInfo(stack.values(sheet->applicationFolder()).value("applogo").toString()),
             QFileInfo(m_folder->filePath("images/red.png")));
    QVERIFY(ProgramChanges::ofProgram()->setValue(file("dark.theme"), "ImageFiles/applogo",
                                                  "../images/blue.png"));
    const auto changed = m_applied->inspectedSheet();
    QCOMPARE(changed->project()->theme("dark").find(Kind::ImageFile, "applogo")->value->text(),
             QString("../images/blue.png"));
}

QTEST_MAIN(tst_AppliedTheme)

#include "tst_appliedtheme.moc"

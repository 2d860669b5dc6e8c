// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "messages.h"

#include <analysis/theme/themeeditor.h>
#include <hvtheme/workabletheming.h>
#include <hvthemeapp/applicationtheme.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>

#include <algorithm>

using HV::ApplicationTheme;

// A theme is changed in memory, and the program shows it at once.
class tst_UnsavedTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void editAndUndo_data();
    void editAndUndo();
    void staysInOtherLooks();
    void beforeTheFirstLook();
    void beneathAnAccent();
    void time();

private:
    CapturedMessages m_log;
};

namespace
{

// What a wide button of the general style is painted with.
QColor paintedGround()
{
    QPushButton button;
    button.setProperty("style", "general");
    button.resize(100, 40);
    button.ensurePolished();
    return button.grab().toImage().pixelColor(50, 6);
}

bool edit(ThemeEditor *editor, const QString &folder, const QString &value)
{
    QString error;
    return editor->setValue(folder + "/default.theme", "Palettes/Brand_6", value,
                            ThemeEditor::Step::Continued, &error);
}

} // namespace

void tst_UnsavedTexts::init()
{
    qApp->setStyleSheet(QString());
    m_log.start();
}

void tst_UnsavedTexts::cleanup()
{
    REPORT_STRAY_MESSAGES(m_log);
}

void tst_UnsavedTexts::editAndUndo_data()
{
    QTest::addColumn<bool>("isOnDisk");

    QTest::newRow("resource") << false;
    QTest::newRow("folder") << true;
}

void tst_UnsavedTexts::editAndUndo()
{
    QFETCH(bool, isOnDisk);
    QTemporaryDir copy;
    ApplicationTheme theme;
    if (isOnDisk) {
        for (const char *name : {"default.theme", "dark.theme"})
            QVERIFY(QFile::copy(theme.folder() + '/' + name, copy.filePath(name)));
        QVERIFY(theme.setFolder(copy.path()));
    }
    QVERIFY(theme.setName("dark"));
    const QColor before = paintedGround();
    const QString sheet = qApp->styleSheet();

    ThemeEditor editor;
    QVERIFY(edit(&editor, theme.folder(), "#ff00aa"));
    QSignalSpy changed(&theme, &ApplicationTheme::changed);
    QVERIFY(theme.setUnsavedTexts(editor.contents()));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(paintedGround(), QColor("#ff00aa"));
    QCOMPARE(theme.theme()->color("GeneralButtonBackgroundNormal"), QColor("#ff00aa"));
    QCOMPARE(theme.name(), QStringLiteral("dark"));

    QVERIFY(theme.setUnsavedTexts(editor.contents()));
    QCOMPARE(changed.count(), 1); // nothing is new
    editor.undo();
    QVERIFY(theme.setUnsavedTexts(editor.contents()));
    QCOMPARE(paintedGround(), before);
    QCOMPARE(qApp->styleSheet(), sheet);
}

void tst_UnsavedTexts::staysInOtherLooks()
{
    ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    ThemeEditor editor;
    QVERIFY(edit(&editor, theme.folder(), "#ff00aa"));
    QVERIFY(theme.setUnsavedTexts(editor.contents()));
    QVERIFY(theme.setName("light"));
    QCOMPARE(theme.theme()->readNamedColor("Brand_6").first, QColor("#ff00aa"));
    QCOMPARE(theme.unsavedTexts(), editor.contents());
    QVERIFY(theme.setUnsavedTexts({}));
    QVERIFY(theme.theme()->readNamedColor("Brand_6").first != QColor("#ff00aa"));
}

void tst_UnsavedTexts::beforeTheFirstLook()
{
    ApplicationTheme theme;
    ThemeEditor editor;
    QVERIFY(edit(&editor, theme.folder(), "#ff00aa"));
    QVERIFY(theme.setUnsavedTexts(editor.contents()));
    QVERIFY(theme.name().isNull());
    QVERIFY(theme.setName("dark"));
    QCOMPARE(paintedGround(), QColor("#ff00aa"));
}

void tst_UnsavedTexts::beneathAnAccent()
{
    ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    QVERIFY(theme.setAccent(QColor("#00a050")));
    ThemeEditor editor;
    QString error;
    QVERIFY(editor.setValue(theme.folder() + "/default.theme", "Integers/FontSize_L", "33",
                            ThemeEditor::Step::New, &error));
    QVERIFY(theme.setUnsavedTexts(editor.contents()));
    QCOMPARE(theme.theme()->integer("FontSize_L"), 33);
    const QColor brand = theme.theme()->readNamedColor("Brand_6").first;
    QVERIFY2(brand.green() > brand.blue(), qPrintable(brand.name()));
}

// An edit is no dearer than a switch, with room for a busy machine.
void tst_UnsavedTexts::time()
{
    ApplicationTheme theme;
    QVERIFY(theme.setName("dark"));
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    for (int i = 0; i < 200; ++i)
        layout->addWidget(new QPushButton(QString::number(i)));
    window.ensurePolished();
    window.grab();
    const auto median = [](QVector<qint64> times) {
        std::sort(times.begin(), times.end());
        return times.at(times.size() / 2);
    };
    QVector<qint64> edits;
    QVector<qint64> switches;
    ThemeEditor editor;
    QElapsedTimer timer;
    for (int i = 0; i < 9; ++i) {
        timer.start();
        QVERIFY(edit(&editor, theme.folder(), i % 2 ? "#ff00aa" : "#aa00ff"));
        QVERIFY(theme.setUnsavedTexts(editor.contents()));
        edits << timer.elapsed();
        timer.start();
        QVERIFY(theme.setName(i % 2 ? "dark" : "light"));
        switches << timer.elapsed();
    }
    const QString told = QStringLiteral("an edit takes %1 ms, a switch %2 ms")
                             .arg(median(edits))
                             .arg(median(switches));
    QVERIFY2(median(edits) <= 2 * median(switches) + 20, qPrintable(told));
}

QTEST_MAIN(tst_UnsavedTexts)

#include "tst_unsavedtexts.moc"

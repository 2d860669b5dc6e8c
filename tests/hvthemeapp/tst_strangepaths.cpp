// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "messages.h"
#include "temporaryfolder.h"

#include <hvthemeapp/applicationtheme.h>

#include <QApplication>
#include <QBuffer>
#include <QFrame>
#include <QImage>
#include <QtTest>

using namespace HV;

/*! An application looks as it should whatever its folders and images are called. */
class tst_StrangePaths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void ownImages_data();
    void ownImages();
    void pathsThatBeginAlike();
    void suffixInOtherCase();

private:
    CapturedMessages m_log;
};

namespace
{

QString fromExecutable(const QString &path)
{
    return QDir(QCoreApplication::applicationDirPath()).relativeFilePath(path);
}

QByteArray picture(const QColor &color)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(color);
    QByteArray data;
    QBuffer buffer(&data);
    image.save(&buffer, "PNG");
    return data;
}

// The sample's files, with more in "dark".
void writeThemes(const TemporaryFolder &folder, const QString &name, const QVariantMap &more)
{
    for (const char *file : {"/default.theme", "/dark.theme"}) {
        QFile sample(QLatin1String(":/hvthemeapp/themes") + file);
        QVERIFY(sample.open(QIODevice::ReadOnly));
        folder.write(name + file, sample.readAll());
    }
    QSettings settings(folder.filePath(name + "/dark.theme"), QSettings::IniFormat);
    for (auto it = more.cbegin(); it != more.cend(); ++it)
        settings.setValue(it.key(), it.value());
}

QColor drawnBy(const QString &objectName)
{
    QFrame frame;
    frame.setObjectName(objectName);
    frame.resize(8, 8);
    return frame.grab().toImage().pixelColor(4, 4);
}

} // namespace

void tst_StrangePaths::init()
{
    m_log.start();
}

void tst_StrangePaths::cleanup()
{
    REPORT_STRAY_MESSAGES(m_log);
}

void tst_StrangePaths::ownImages_data()
{
    QTest::addColumn<QString>("name");

    for (const char *name : {"plain",   "Grüße",  "a&b",  "a$b",   "a%b",  "a%1b%2%3", "a'b",
                             "a\"b",    "a(b",    "a)b",  "a[b{c", "a\\b", "a\\",      "\\\\a\"'",
                             "a b;c,d", "100%20", "日本", "a\nb",  "a/*b", "a<!--b"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void tst_StrangePaths::ownImages()
{
    QFETCH(QString, name);
    TemporaryFolder folder;
    const QString home = name + "/";
    const QString image = folder.write(home + name + ".png", picture("#ff00ff"));
    writeThemes(folder, home + "themes", {{"ImageFiles/own", fromExecutable(image)}});
    folder.write(home + "templates/a.qss",
                 "#bare { border-image: url(global.theme.image.own) 0; }"
                 "#double { border-image: url(\"global.theme.image.own\") 0; }"
                 "#single { border-image: url('global.theme.image.own') 0; }"
                 "#after { background: #00ff00; }");

    ApplicationTheme theme;
    QVERIFY(theme.addTemplates(folder.filePath(home + "templates")));
    QVERIFY(theme.setFolder(folder.filePath(home + "themes")));
    QVERIFY(theme.setName("dark"));
    for (const char *rule : {"bare", "double", "single"})
        QCOMPARE(drawnBy(rule), QColor("#ff00ff"));
    QCOMPARE(drawnBy("after"), QColor("#00ff00"));
}

// One path is the beginning of the other.
void tst_StrangePaths::pathsThatBeginAlike()
{
    TemporaryFolder folder;
    const QString first = folder.write("ü/a", picture("#ff00ff"));
    const QString second = folder.write("ü/a b", picture("#0000ff"));
    writeThemes(folder, "themes",
                {{"ImageFiles/first", fromExecutable(first)},
                 {"ImageFiles/second", fromExecutable(second)}});
    folder.write("templates/a.qss",
                 "#first { border-image: url(global.theme.image.first) 0; }"
                 "#second { border-image: url(global.theme.image.second) 0; }");

    ApplicationTheme theme;
    QVERIFY(theme.addTemplates(folder.filePath("templates")));
    QVERIFY(theme.setFolder(folder.filePath("themes")));
    QVERIFY(theme.setName("dark"));
    QCOMPARE(drawnBy("first"), QColor("#ff00ff"));
    QCOMPARE(drawnBy("second"), QColor("#0000ff"));
}

// The names offered are those that can be set.
void tst_StrangePaths::suffixInOtherCase()
{
    TemporaryFolder folder;
    writeThemes(folder, ".", {});
    folder.write("Night.THEME", "ThemeName=Night\n");
    QDir(folder.path()).mkdir("folder.theme");

    ApplicationTheme theme;
    QVERIFY(theme.setFolder(folder.path()));
    QCOMPARE(theme.names(), QStringList("dark"));
}

QTEST_MAIN(tst_StrangePaths)

#include "tst_strangepaths.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theme.h>

#include "expectedmessages.h"
#include "messages.h"
#include "temporaryfolder.h"
#include "themestore.h"
#include "vocabularies.h"

/*! How a stored image path, or the default for it, becomes a path. */
class tst_ImageFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void missing_data();
    void missing();
    void path_data();
    void path();

private:
    CapturedMessages m_log;
};

namespace
{

QString inApplicationFolder(const QString &path)
{
    return QCoreApplication::applicationDirPath() + path;
}

} // namespace

void tst_ImageFiles::missing_data()
{
    QTest::addColumn<QString>("defaultFile");
    QTest::addColumn<bool>("warn");

    QTest::newRow("null") << QString() << true;
    QTest::newRow("empty") << QString("") << true;
    QTest::newRow("relative") << QString("x.png") << true;
    QTest::newRow("relative-quietly") << QString("x.png") << false;
    QTest::newRow("rooted") << QString("/x.png") << true;
    QTest::newRow("resource") << QString(":/x.png") << true;
    QTest::newRow("untidy") << QString("a//../x.png") << false;
}

void tst_ImageFiles::missing()
{
    QFETCH(QString, defaultFile);
    QFETCH(bool, warn);

    const HV::Theme theme("empty");
    const QString image = theme.imageFile("gone", defaultFile, warn);
    QCOMPARE(image, defaultFile);
    QCOMPARE(image.isNull(), defaultFile.isNull());
    COMPARE_MESSAGES(m_log, warn ? Messages{Expected::noImageFile("gone")} : Messages());
}

void tst_ImageFiles::path_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("defaultFile");
    QTest::addColumn<QString>("expected");

    const QString up = QFileInfo(QCoreApplication::applicationDirPath()).path();

    QTest::newRow("relative") << QByteArray("images/a.png") << QString()
                              << inApplicationFolder("/images/a.png");
    QTest::newRow("parent") << QByteArray("../img/a.png") << QString() << up + "/img/a.png";
    QTest::newRow("leading-slash-is-not-absolute")
        << QByteArray("/img/a.png") << QString() << inApplicationFolder("/img/a.png");
    QTest::newRow("cleaned") << QByteArray("a//b/./../c.png") << QString()
                             << inApplicationFolder("/a/c.png");
    QTest::newRow("trailing-slash")
        << QByteArray("images/") << QString() << inApplicationFolder("/images");
    QTest::newRow("spaces") << QByteArray("two words.png") << QString()
                            << inApplicationFolder("/two words.png");
    QTest::newRow("resource") << QByteArray(":/icons/a.png") << QString() << ":/icons/a.png";
    QTest::newRow("resource-uncleaned")
        << QByteArray(":/icons//../a.png") << QString() << ":/icons//../a.png";
    QTest::newRow("colon-without-slash")
        << QByteArray(":icons/a.png") << QString() << inApplicationFolder("/:icons/a.png");
    QTest::newRow("resource-scheme")
        << QByteArray("qrc:/a.png") << QString() << inApplicationFolder("/qrc:/a.png");
    QTest::newRow("not-expanded") << QByteArray("~/a.png") << QString()
                                  << inApplicationFolder("/~/a.png");
    QTest::newRow("default-unused")
        << QByteArray("a.png") << QString("x.png") << inApplicationFolder("/a.png");

    // An empty stored path leaves the default file, which is then resolved like a stored one.
    QTest::newRow("empty") << QByteArray() << QString() << inApplicationFolder("");
    QTest::newRow("empty-default-relative")
        << QByteArray() << QString("x.png") << inApplicationFolder("/x.png");
    QTest::newRow("empty-default-rooted")
        << QByteArray() << QString("/x.png") << inApplicationFolder("/x.png");
    QTest::newRow("empty-default-resource")
        << QByteArray() << QString(":/x.png") << QString(":/x.png");
}

void tst_ImageFiles::path()
{
    QFETCH(QByteArray, stored);
    QFETCH(QString, defaultFile);
    QFETCH(QString, expected);

    OwnVocabulary theme;
    theme.setDisplayName("paths");
    readText(theme, "[ImageFiles]\nadd=" + stored + '\n');
    m_log.take(); // the reading's own

    QCOMPARE(Store::of(theme, Store::ImageFiles()).value("add"), QString(stored));
    QCOMPARE(theme.imageFile("add", defaultFile, true), expected);
    QCOMPARE(theme.imageFile("add", defaultFile, false), expected);
    QCOMPARE(theme.imageFile(0, defaultFile, true), expected);
}

QTEST_GUILESS_MAIN(tst_ImageFiles)

#include "tst_imagefiles.moc"

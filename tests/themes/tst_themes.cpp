// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>
#include <QtTest>

namespace
{

const QStringList looks{"dark", "light", "contrast"};

QString themesFolder()
{
    return QCoreApplication::applicationDirPath() % QLatin1String("/../share/hvtheme/themes");
}

QStringList messages;

void collectMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    messages.append(message);
}

/*! Runs \a action and returns everything that was logged meanwhile. */
template<typename Action>
QStringList messagesOf(Action action)
{
    messages.clear();
    const QtMessageHandler previous = qInstallMessageHandler(collectMessage);
    action();
    qInstallMessageHandler(previous);
    return messages;
}

/*! The keys that the built-in templates ask for with tokens of this kind, sorted. */
QStringList requiredKeys(const QString &kind)
{
    QString templates;
    HV::readStyleSheet(QStringLiteral(":/stylesheet"), templates);
    const QRegularExpression token("global\\.theme\\." % kind % "\\.(\\w+)");
    QStringList keys;
    auto matches = token.globalMatch(templates);
    while (matches.hasNext())
        keys.append(matches.next().captured(1));
    keys.removeDuplicates();
    keys.sort();
    return keys;
}

const QRgb backdrop = qRgb(128, 128, 128);

/*! The picture on a grey ground, which neither its light nor its dark colours can hide in. */
QImage rendered(const QString &file, int height)
{
    QImageReader reader(file);
    const QSize size = reader.size();
    if (size.isEmpty())
        return {};
    reader.setScaledSize(QSize(size.width() * height / size.height(), height));
    const QImage picture = reader.read();
    if (picture.isNull())
        return {};
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(backdrop);
    QPainter(&image).drawImage(0, 0, picture);
    return image;
}

int distance(QRgb one, QRgb other)
{
    return qAbs(qRed(one) - qRed(other)) + qAbs(qGreen(one) - qGreen(other))
        + qAbs(qBlue(one) - qBlue(other));
}

/*! How many pixels of two pictures of one size differ so that an eye can tell. */
int differingPixels(const QImage &one, const QImage &other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(one.constScanLine(y));
        const auto *otherLine = reinterpret_cast<const QRgb *>(other.constScanLine(y));
        for (int x = 0; x < one.width(); ++x)
            count += distance(line[x], otherLine[x]) > 48;
    }
    return count;
}

int visiblePixels(const QImage &image)
{
    QImage empty(image.size(), image.format());
    empty.fill(backdrop);
    return differingPixels(image, empty);
}

} // namespace

class tst_Themes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void load_data();
    void load();
    void defaultAlone();
    void namesHideNoFile();
    void files_data();
    void files();
    void switching();
    void images_data();
    void images();
    void imagesDiffer_data();
    void imagesDiffer();
};

void tst_Themes::load_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("displayName");
    QTest::addColumn<bool>("darkSurfaces");
    QTest::addColumn<bool>("highContrast");

    QTest::newRow("dark") << "dark"
                          << "Dark" << true << false;
    QTest::newRow("light") << "light"
                           << "Light" << false << false;
    QTest::newRow("contrast") << "contrast"
                              << "High contrast" << true << true;
}

void tst_Themes::load()
{
    QFETCH(QString, name);

    HV::WorkableTheme theme;
    QCOMPARE(messagesOf([&] { HV::changeTheme(&theme, name, themesFolder()); }), QStringList());
    QTEST(theme.displayName(), "displayName");
    QTEST(theme.flag("DarkSurfaces"), "darkSurfaces");
    QTEST(theme.flag("HighContrast"), "highContrast");

    const QStringList colors = requiredKeys("color");
    const QStringList imageFiles = requiredKeys("image");
    const QStringList integers = requiredKeys("integer");
    QCOMPARE(colors.size(), 46);
    QCOMPARE(imageFiles.size(), 85);
    QCOMPARE(integers.size(), 6);
    for (const QString &key : colors)
        QVERIFY2(theme.values().value(key).userType() == QMetaType::QColor, qUtf8Printable(key));
    for (const QString &key : imageFiles)
        QVERIFY2(QFile::exists(theme.imageFile(key)), qUtf8Printable(theme.imageFile(key)));
    for (const QString &key : integers)
        QVERIFY2(theme.integer(key) > 0, qUtf8Printable(key));

    QCOMPARE(messagesOf([&] { HV::changeAppStyleSheet(&theme, name, themesFolder()); }),
             QStringList());
    QVERIFY(!qApp->styleSheet().isEmpty());
    QVERIFY(!qApp->styleSheet().contains("global.theme"));
    qApp->setStyleSheet(QString());
}

void tst_Themes::defaultAlone()
{
    HV::WorkableTheme theme;
    QCOMPARE(messagesOf([&] { HV::changeTheme(&theme, "default", themesFolder()); }),
             QStringList());
    QCOMPARE(theme.displayName(), QString("Default"));
    QCOMPARE(theme.values().keys(), requiredKeys("integer"));
}

void tst_Themes::namesHideNoFile()
{
    HV::WorkableTheme theme;
    HV::changeTheme(&theme, QString(), themesFolder());
    QStringList files = QDir(themesFolder()).entryList({"*.theme"}, QDir::Files, QDir::Name);
    QCOMPARE(files, (QStringList{"contrast.theme", "dark.theme", "default.theme", "light.theme"}));
    files.removeOne("default.theme");
    for (const QString &file : qAsConst(files))
        QVERIFY(QFileInfo(file).baseName().compare(theme.displayName(), Qt::CaseInsensitive) != 0);
}

void tst_Themes::files_data()
{
    QTest::addColumn<QString>("file");

    for (const char *name : {"default", "dark", "light", "contrast"})
        QTest::newRow(name) << themesFolder() % QLatin1Char('/') % QLatin1String(name)
                % QLatin1String(".theme");
}

void tst_Themes::files()
{
    QFETCH(QString, file);

    QFile text(file);
    QVERIFY(text.open(QIODevice::ReadOnly));
    const QByteArray content = text.readAll();
    QVERIFY2(content.startsWith("; "), "no opening comment");
    // Theme files are read as Latin-1, so anything beyond ASCII would be another character there.
    for (const char byte : content)
        QVERIFY(byte == '\n' || (byte >= ' ' && byte <= '~'));
}

void tst_Themes::switching()
{
    HV::WorkableTheme theme;
    QMap<QString, QVariantMap> values;
    for (const QString &look : looks) {
        HV::changeTheme(&theme, look, themesFolder());
        values[look] = theme.values();
    }
    const auto different = [&](const QString &key) {
        QSet<QString> texts;
        for (const QString &look : looks)
            texts.insert(values[look][key].toString());
        return int(texts.size());
    };
    const QStringList images = requiredKeys("image");
    for (const QString &key : images)
        QVERIFY2(different(key) == looks.size(), qUtf8Printable(key));
    // A tone between light and dark may serve two looks; none serves all.
    const QStringList colors = requiredKeys("color");
    for (const QString &key : colors)
        QVERIFY2(different(key) > 1, qUtf8Printable(key));
}

void tst_Themes::images_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<int>("height");

    for (const QString &look : looks) {
        for (int height : {16, 20, 32, 40, 64})
            QTest::addRow("%s-%d", qUtf8Printable(look), height) << look << height;
    }
}

void tst_Themes::images()
{
    QFETCH(QString, look);
    QFETCH(int, height);
    QVERIFY2(QImageReader::supportedImageFormats().contains("svg"), "Qt's SVG plugin is missing");

    HV::WorkableTheme theme;
    HV::changeTheme(&theme, look, themesFolder());
    for (const QString &key : requiredKeys("image")) {
        const QString file = theme.imageFile(key);
        QImage image;
        QCOMPARE(messagesOf([&] { image = rendered(file, height); }), QStringList());
        QVERIFY2(!image.isNull(), qUtf8Printable(file));
        // The slightest drawing is one stroke across half of the grid.
        QVERIFY2(visiblePixels(image) >= height / 2, qUtf8Printable(file));
    }
}

void tst_Themes::imagesDiffer_data()
{
    images_data();
}

void tst_Themes::imagesDiffer()
{
    QFETCH(QString, look);
    QFETCH(int, height);
    QVERIFY2(QImageReader::supportedImageFormats().contains("svg"), "Qt's SVG plugin is missing");

    HV::WorkableTheme theme;
    HV::changeTheme(&theme, look, themesFolder());
    QMap<QString, QImage> pictures;
    for (const QString &key : requiredKeys("image"))
        pictures[key] = rendered(theme.imageFile(key), height);
    for (auto one = pictures.cbegin(); one != pictures.cend(); ++one) {
        for (auto other = std::next(one); other != pictures.cend(); ++other) {
            if (one->size() != other->size())
                continue;
            const QString pair = one.key() % QLatin1String(" and ") % other.key();
            QVERIFY2(differingPixels(*one, *other) >= height / 2, qUtf8Printable(pair));
        }
    }
}

QTEST_MAIN(tst_Themes)
#include "tst_themes.moc"

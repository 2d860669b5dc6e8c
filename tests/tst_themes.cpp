// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <contrast/contrast.h>
#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>
#include <QtTest>

#include <cmath>

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
        return QImage();
    reader.setScaledSize(QSize(size.width() * height / size.height(), height));
    const QImage picture = reader.read();
    if (picture.isNull())
        return QImage();
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

double lightness(const QColor &color)
{
    const double luminance = ColorMath::relativeLuminance(color);
    return luminance > 0.008856 ? 116 * std::cbrt(luminance) - 16 : 903.3 * luminance;
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
    void paletteSteps_data();
    void paletteSteps();
    void contrast_data();
    void contrast();
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
    const QStringList keys = requiredKeys("color") + requiredKeys("image");
    for (const QString &key : keys) {
        QSet<QString> texts;
        for (const QString &look : looks)
            texts.insert(values[look][key].toString());
        QVERIFY2(texts.size() == looks.size(), qUtf8Printable(key));
    }
}

void tst_Themes::images_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<int>("height");

    for (const QString &look : looks) {
        for (int height : {16, 20, 32})
            QTest::addRow("%s-%d", qUtf8Printable(look), height) << look << height;
    }
}

void tst_Themes::images()
{
    QFETCH(QString, look);
    QFETCH(int, height);
    if (!QImageReader::supportedImageFormats().contains("svg"))
        QSKIP("Qt's plugin for SVG pictures is not installed");

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
    if (!QImageReader::supportedImageFormats().contains("svg"))
        QSKIP("Qt's plugin for SVG pictures is not installed");

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

void tst_Themes::paletteSteps_data()
{
    QTest::addColumn<QString>("run");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("step");

    for (const char *run : {"Brand", "Red", "Yellow", "Green", "Orange"})
        QTest::newRow(run) << run << 10 << 100.0 << -9.0;
    QTest::newRow("Bg") << "Bg" << 7 << 0.0 << 3.0;
}

void tst_Themes::paletteSteps()
{
    QFETCH(QString, run);
    QFETCH(int, count);
    QFETCH(double, start);
    QFETCH(double, step);

    HV::WorkableTheme theme;
    HV::changeTheme(&theme, "default", themesFolder());
    for (int n = 1; n <= count; ++n) {
        const QString name = run % QLatin1Char('_') % QString::number(n);
        const QPair<QColor, QString> entry = theme.readNamedColor(name);
        QCOMPARE(entry.second, name);
        // Eight bits a channel are no finer than this near black.
        const double error = qAbs(lightness(entry.first) - (start + step * n));
        QVERIFY2(error < 0.35,
                 qUtf8Printable(name % QLatin1String(" is off by ") % QString::number(error)));
    }
}

namespace
{

struct Pair {
    const char *foreground;
    const char *layers; // the lowest first, joined by "+"; "*" stands for each BackgroundColor_n
    double ordinary; // in dark and light
    double high; // in contrast
};

// What the built-in templates put together. The text of a disabled button is DefaultForegroundColor
// and that of a disabled field Color_W100, so these are held to the measure of ordinary text.
// clang-format off
const Pair pairs[] = {
    {"DefaultForegroundColor",     "*",                                      4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_W15",                            4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_B20",                            4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_B32",                            4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_B32+Color_Brand_7",              4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_B32+Color_Brand_8",              4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_Brand_8",                        4.5, 7.0},
    {"DefaultForegroundColor",     "*+Color_Yellow_10",                      4.5, 7.0},
    {"DefaultForegroundColor",     "*+GeneralButtonBackgroundNormal",        4.5, 7.0},
    {"DefaultForegroundColor",     "*+GeneralButtonBackgroundHover",         4.5, 7.0},
    {"DefaultForegroundColor",     "*+GeneralButtonBackgroundPressed",       4.5, 7.0},
    {"DefaultForegroundColor",     "*+GeneralButtonBackgroundDisabled",      4.5, 7.0},
    {"DefaultForegroundColor",     "*+AssistButtonBackgroundNormal",         4.5, 7.0},
    {"DefaultForegroundColor",     "*+AssistButtonBackgroundHover",          4.5, 7.0},
    {"DefaultForegroundColor",     "*+AssistButtonBackgroundPressed",        4.5, 7.0},
    {"DefaultForegroundColor",     "*+AssistButtonBackgroundDisabled",       4.5, 7.0},
    {"DefaultForegroundColor",     "MenuBackgroundColor",                    4.5, 7.0},
    {"DefaultForegroundColor",     "MenuHighlightBackgroundColor",           4.5, 7.0},
    {"DefaultForegroundColor",     "ToolTipBackgroundColor",                 4.5, 7.0},
    {"DefaultForegroundColor",     "EditBackgroundColor",                    4.5, 7.0},
    {"DefaultForegroundColor",     "EditHighlightBorderColor",               4.5, 7.0},
    {"Color_W100",                 "*",                                      4.5, 7.0},
    {"Color_W100",                 "EditBackgroundColor",                    4.5, 7.0},
    {"Color_W100",                 "EditBackgroundColor+Color_W15",          4.5, 7.0},
    {"Color_W100",                 "EditBackgroundColor+Color_B20",          4.5, 7.0},
    {"Color_W100",                 "EditHighlightBorderColor",               4.5, 7.0},
    {"Color_W100",                 "EditDisabledBackgroundColor",            4.5, 7.0},
    {"HighlightedForegroundColor", "*",                                      4.5, 7.0},
    {"ErrorHintForegroundColor",   "*",                                      4.5, 7.0},
    {"Color_W40",                  "*",                                      4.5, 7.0},
    {"Color_Yellow_6",             "*",                                      4.5, 7.0},
    {"Color_Green_6",              "*",                                      4.5, 7.0},
    {"Color_Orange_6",             "*",                                      4.5, 7.0},
    {"DisabledForegroundColor",    "*",                                      3.0, 3.0},
    {"DisabledForegroundColor",    "EditBackgroundColor",                    3.0, 3.0},
    {"DisabledForegroundColor",    "EditDisabledBackgroundColor",            3.0, 3.0},
    {"DisabledForegroundColor",    "MenuBackgroundColor",                    3.0, 3.0},
    {"DisabledForegroundColor",    "MenuHighlightBackgroundColor",           3.0, 3.0},
    // Frames and marks. In contrast the text of a selected row comes first, see contrast.theme.
    {"EditBorderColor",            "EditBackgroundColor",                    3.0, 3.0},
    {"EditHighlightBorderColor",   "EditBackgroundColor",                    3.0, 1.5},
    {"Color_Red_6",                "EditBackgroundColor",                    3.0, 3.0},
    {"Color_Green_6",              "EditBackgroundColor",                    3.0, 3.0},
    {"Color_Brand_6",              "BackgroundColor_4",                      3.0, 3.0},
    {"Color_Orange_6",             "BackgroundColor_4",                      3.0, 3.0},
    {"EditBackgroundColor",        "HighlightedForegroundColor",             3.0, 3.0},
};
// clang-format on

QColor composite(const HV::Theme &theme, const QStringList &layers)
{
    QColor result = theme.color(layers.first());
    for (const QString &layer : layers.mid(1))
        result = ColorMath::over(theme.color(layer), result);
    return result;
}

} // namespace

void tst_Themes::contrast_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<QString>("foreground");
    QTest::addColumn<QStringList>("layers");
    QTest::addColumn<double>("minimum");

    for (const QString &look : looks) {
        for (const Pair &pair : pairs) {
            const bool anySurface = pair.layers[0] == '*';
            for (int n = 0; n < (anySurface ? 8 : 1); ++n) {
                QString layers = QString::fromLatin1(pair.layers);
                layers.replace(QLatin1Char('*'),
                               QLatin1String("BackgroundColor_") % QString::number(n));
                QTest::addRow("%s-%s-on-%s", qUtf8Printable(look), pair.foreground,
                              qUtf8Printable(layers))
                    << look << QString::fromLatin1(pair.foreground)
                    << layers.split(QLatin1Char('+'))
                    << (look == "contrast" ? pair.high : pair.ordinary);
            }
        }
    }
}

void tst_Themes::contrast()
{
    QFETCH(QString, look);
    QFETCH(QString, foreground);
    QFETCH(QStringList, layers);
    QFETCH(double, minimum);

    HV::WorkableTheme theme;
    HV::changeTheme(&theme, look, themesFolder());
    const double ratio =
        ColorMath::contrastRatio(theme.color(foreground), composite(theme, layers));
    QVERIFY2(ratio >= minimum, qUtf8Printable(QString::number(ratio) % QLatin1String(" : 1")));
}

QTEST_MAIN(tst_Themes)
#include "tst_themes.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "distincttheme.h"
#include "specimenpicture.h"

#include <gallery/messagelist.h>
#include <gallery/picturediff.h>

#include <QPainter>
#include <QtTest>

using namespace Gallery;

namespace
{

// Rounded corners are smoothed a little differently from one processor to the next.
constexpr int channelTolerance = 12;
constexpr double pixelTolerance = 0.002;

// Fonts differ from machine to machine, so only specimens without text are compared.
bool hasText(const Specimen &specimen)
{
    static const QRegularExpression withText(
        QStringLiteral("WithText|QScrollArea|style=transparent|borderColor=none"));
    return specimen.selector.contains(withText);
}

QImage sheetOf(const QString &page)
{
    constexpr int gap = 4;
    QImage sheet(640, 1200, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    QPoint place(gap, gap);
    int lineHeight = 0;
    const auto sections = specimenSections(page);
    for (const SpecimenSection &section : sections) {
        for (const SpecimenRow &row : section.rows) {
            for (const Specimen &specimen : row.specimens) {
                if (hasText(specimen))
                    continue;
                const QImage picture = pictureOf(specimen);
                if (place.x() + picture.width() > sheet.width()) {
                    place = QPoint(gap, place.y() + lineHeight + gap);
                    lineHeight = 0;
                }
                painter.drawImage(place, picture);
                place.rx() += picture.width() + gap;
                lineHeight = qMax(lineHeight, picture.height());
            }
        }
    }
    painter.end();
    return sheet.copy(0, 0, sheet.width(), place.y() + lineHeight + gap);
}

} // namespace

class tst_GoldenPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void page_data();
    void page();
    void comparison();

private:
    MessageList m_log; // swallows what the platform says of every window shown
    DistinctTheme m_files;
};

void tst_GoldenPictures::initTestCase()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    HV::WorkableTheme theme;
    HV::changeAppStyleSheet(&theme, QStringLiteral("default"), m_files.folder());
}

void tst_GoldenPictures::page_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("image-buttons") << "image-buttons";
    QTest::newRow("sliders") << "sliders";
    QTest::newRow("surfaces") << "surfaces";
}

void tst_GoldenPictures::page()
{
    QFETCH(QString, name);
    const QImage actual = sheetOf(name);
    const QString updated = qEnvironmentVariable("HVTHEME_UPDATE_GOLDEN_PICTURES");
    if (!updated.isEmpty()) { // set by scripts/update-golden-pictures alone
        QVERIFY(actual.save(updated + QLatin1Char('/') + name + QLatin1String(".png")));
        return;
    }
    const QImage expected(QStringLiteral(HVTHEME_SOURCE_DIR "/tests/golden/%1.png").arg(name));
    QVERIFY(!expected.isNull());
    const PictureDiff diff = comparePictures(expected, actual, channelTolerance);
    if (diff.share() <= pixelTolerance)
        return;
    const QString shown = QDir::current().absoluteFilePath(name + QLatin1String("-difference.png"));
    QVERIFY(diff.image.save(shown));
    QFAIL(qPrintable(QStringLiteral("%1 of %2 pixels differ, see %3")
                         .arg(diff.differingPixels)
                         .arg(diff.pixels)
                         .arg(shown)));
}

void tst_GoldenPictures::comparison()
{
    QImage first(10, 10, QImage::Format_RGB32);
    first.fill(QColor(100, 100, 100));
    QImage second = first;
    second.setPixelColor(3, 4, QColor(112, 100, 100));
    QCOMPARE(comparePictures(first, second, 12).differingPixels, 0);
    QCOMPARE(comparePictures(first, second, 11).differingPixels, 1);
    QCOMPARE(comparePictures(first, second, 11).share(), 0.01);
    const QImage shown = comparePictures(first, second, 11).image;
    QCOMPARE(shown.width(), 3 * 10 + 2 * 8);
    QCOMPARE(shown.pixelColor(36 + 3, 4), QColor(Qt::red));
    QCOMPARE(comparePictures(first, first.copy(0, 0, 5, 5), 255).differingPixels, 100);
}

QTEST_MAIN(tst_GoldenPictures)

#include "tst_goldenpictures.moc"

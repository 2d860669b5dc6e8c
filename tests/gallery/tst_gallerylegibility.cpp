// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "quietplatform.h"
#include "textrecorder.h"
#include "widgetzoo.h"

#include <gallery/pages.h>
#include <hvthemeapp/applicationtheme.h>

#include <QtTest>
#include <QtWidgets>

/*! Whether each text on the gallery's pages can be read, in each look. */
class tst_GalleryLegibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_quiet = std::make_unique<QuietPlatform>(); }
    void cleanupTestCase() { m_quiet.reset(); }
    void page_data();
    void page();

private:
    std::unique_ptr<QuietPlatform> m_quiet;
};

void tst_GalleryLegibility::page_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<QString>("name");

    for (const char *look : {"dark", "light", "contrast"}) {
        for (const Gallery::Page &page : Gallery::pages())
            QTest::addRow("%s-%s", look, qUtf8Printable(page.name)) << look << page.name;
    }
}

void tst_GalleryLegibility::page()
{
    QFETCH(QString, look);
    QFETCH(QString, name);

    HV::ApplicationTheme theme;
    QVERIFY(theme.setName(look));
    const std::unique_ptr<QWidget> page(Gallery::createPage(name, *theme.theme()));
    Gallery::settlePage(page.get());
    Zoo::settle(page.get());
    page->grab();
    TextRecorder recorder(page->size());
    recorder.record(page.get());
    QVERIFY(!recorder.texts().isEmpty());
    QStringList illegible;
    for (const RecordedText &text : recorder.texts()) {
        const double minimum = !text.enabled ? 3 : look == "contrast" ? 7 : 4.5;
        if (text.contrast < minimum)
            illegible.append(QString("\"%1\" %2 on %3, %4:1, by %5")
                                 .arg(text.text, text.pen.name(), text.ground.name())
                                 .arg(text.contrast, 0, 'f', 2)
                                 .arg(text.widget));
    }
    QVERIFY2(illegible.isEmpty(), qUtf8Printable(illegible.join('\n')));
}

QTEST_MAIN(tst_GalleryLegibility)
#include "tst_gallerylegibility.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "quietplatform.h"
#include "textrecorder.h"
#include "widgetzoo.h"

#include <hvtheme/theme.h>
#include <hvthemeapp/applicationtheme.h>

#include <QtTest>
#include <QtWidgets>

namespace
{

const QStringList looks{"dark", "light", "contrast"};

/*! A text that no palette and no rule reaches, so that only lifting it helps. */
struct Unreachable {
    const char *page;
    const char *drawnBy;
    QRgb pen; /*!< that the program, or Qt itself, has written into its data */
};
const Unreachable unreachable[] = {
    {"views", "QTreeView", qRgb(200, 40, 40)}, // the zoo's own red, of an item of its model
};

bool isReachable(const char *page, const RecordedText &text)
{
    return std::none_of(std::begin(unreachable), std::end(unreachable), [&](const auto &known) {
        return page == QLatin1String(known.page)
            && text.widget.contains(QLatin1String(known.drawnBy)) && text.pen.rgb() == known.pen;
    });
}

double minimumOf(const QString &look, const RecordedText &text)
{
    if (!text.enabled)
        return 3;
    return look == QLatin1String("contrast") ? 7 : 4.5;
}

} // namespace

/*! Whether each text that an application draws can be read, in each look. */
class tst_ApplicationLegibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_quiet = std::make_unique<QuietPlatform>(); }
    void cleanupTestCase() { m_quiet.reset(); }
    void cleanup()
    {
        qApp->setStyleSheet(QString());
        QApplication::setFont(m_font);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void recorder_data();
    void recorder();
    void everyText_data();
    void everyText();
    void placeholder_data();
    void placeholder();

private:
    QVector<RecordedText> textsOf(const Zoo::Page &page);
    std::unique_ptr<QuietPlatform> m_quiet;
    const QFont m_font = QApplication::font();
};

QVector<RecordedText> tst_ApplicationLegibility::textsOf(const Zoo::Page &page)
{
    const std::unique_ptr<QWidget> window(page.make());
    Zoo::settle(window.get());
    QVector<RecordedText> texts;
    const auto windows = Zoo::windows(window.get());
    for (QWidget *one : windows) {
        one->grab(); // some layouts settle only as they are painted
        TextRecorder recorder(one->size());
        recorder.record(one);
        texts += recorder.texts();
    }
    return texts;
}

void tst_ApplicationLegibility::recorder_data()
{
    QTest::addColumn<QString>("styleSheet");
    QTest::addColumn<QColor>("pen");
    QTest::addColumn<QColor>("ground");

    QTest::newRow("opaque") << "color: #102030; background: #f0f0f0" << QColor(16, 32, 48)
                            << QColor(240, 240, 240);
    QTest::newRow("translucent") << "color: rgba(0, 0, 0, 50%); background: #ffffff"
                                 << QColor(128, 128, 128) << QColor(255, 255, 255);
    // Half of the text on either: the one that is worse to read on counts.
    QTest::newRow("two-grounds") << "color: #ffffff; background: qlineargradient(x1: 0, x2: 1, "
                                    "stop: 0 #000000, stop: 0.5 #000000, stop: 0.501 #808080, "
                                    "stop: 1 #808080)"
                                 << QColor(255, 255, 255) << QColor(128, 128, 128);
}

void tst_ApplicationLegibility::recorder()
{
    QFETCH(QString, styleSheet);
    QFETCH(QColor, pen);
    QFETCH(QColor, ground);

    QLabel label("legible");
    label.setStyleSheet(styleSheet);
    label.resize(label.sizeHint());
    TextRecorder recorder(label.size());
    recorder.record(&label);
    QCOMPARE(recorder.texts().size(), 1);
    const RecordedText &text = recorder.texts().constFirst();
    QCOMPARE(text.text, QString("legible"));
    QVERIFY(qAbs(text.pen.red() - pen.red()) <= 1);
    QCOMPARE(text.ground, ground);
    QVERIFY(text.enabled);
    QCOMPARE(recorder.image(), label.grab().toImage().convertToFormat(QImage::Format_RGB32));
}

void tst_ApplicationLegibility::everyText_data()
{
    QTest::addColumn<QString>("look");
    QTest::addColumn<bool>("keepsFonts");
    QTest::addColumn<int>("fontSize");
    QTest::addColumn<Qt::LayoutDirection>("direction");

    for (const QString &look : looks) {
        QTest::newRow(qUtf8Printable(look)) << look << false << 0 << Qt::LeftToRight;
        QTest::addRow("%s-keeps-fonts", qUtf8Printable(look))
            << look << true << 0 << Qt::LeftToRight;
        QTest::addRow("%s-24-px", qUtf8Printable(look)) << look << true << 24 << Qt::LeftToRight;
        QTest::addRow("%s-right-to-left", qUtf8Printable(look))
            << look << false << 0 << Qt::RightToLeft;
    }
}

void tst_ApplicationLegibility::everyText()
{
    QFETCH(QString, look);
    QFETCH(bool, keepsFonts);
    QFETCH(int, fontSize);
    QFETCH(Qt::LayoutDirection, direction);

    if (fontSize) {
        QFont font = m_font;
        font.setPixelSize(fontSize);
        QApplication::setFont(font);
    }
    QGuiApplication::setLayoutDirection(direction);
    HV::ApplicationTheme theme;
    theme.setKeepsFonts(keepsFonts);
    QVERIFY(theme.setName(look));
    QStringList illegible;
    int count = 0;
    for (const Zoo::Page &page : Zoo::pages() + Zoo::dialogs()) {
        const auto texts = textsOf(page);
        count += int(texts.size());
        for (const RecordedText &text : texts) {
            if (text.contrast >= minimumOf(look, text) || !isReachable(page.name, text))
                continue;
            illegible.append(QString("%1: \"%2\" %3 on %4, %5:1, by %6")
                                 .arg(page.name, text.text, text.pen.name(), text.ground.name())
                                 .arg(text.contrast, 0, 'f', 2)
                                 .arg(text.widget));
        }
    }
    QVERIFY2(count > 700, qUtf8Printable(QString::number(count)));
    QVERIFY2(illegible.isEmpty(), qUtf8Printable(illegible.join('\n')));
}

void tst_ApplicationLegibility::placeholder_data()
{
    everyText_data();
}

void tst_ApplicationLegibility::placeholder()
{
    QFETCH(QString, look);
    QFETCH(bool, keepsFonts);

    HV::ApplicationTheme theme;
    theme.setKeepsFonts(keepsFonts);
    const std::unique_ptr<QWidget> window(
        std::find_if(Zoo::pages().cbegin(), Zoo::pages().cend(), [](const Zoo::Page &page) {
            return page.name == QLatin1String("line-edits");
        })->make());
    Zoo::settle(window.get());
    // The look before must leave nothing behind.
    for (const QString &name : {looks.constFirst(), looks.constLast(), look}) {
        QVERIFY(theme.setName(name));
        const auto edits = window->findChildren<QLineEdit *>();
        for (QLineEdit *edit : edits) {
            const QPalette palette = edit->palette();
            const QColor wanted = theme.palette().color(QPalette::PlaceholderText);
            QCOMPARE(palette.color(QPalette::Active, QPalette::PlaceholderText), wanted);
            QVERIFY(palette.color(QPalette::Active, QPalette::Text) != wanted);
        }
    }
}

QTEST_MAIN(tst_ApplicationLegibility)
#include "tst_applicationlegibility.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theme.h>

#include "expectedmessages.h"
#include "messages.h"
#include "qtversion.h"
#include "temporaryfolder.h"
#include "themestore.h"

using NamedColor = QPair<QColor, QString>;
Q_DECLARE_METATYPE(NamedColor)

class tst_NamedColor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void text_data();
    void text();
    void warningIsInTheLocalEncoding();

private:
    CapturedMessages m_log;
};

namespace
{

const QColor Black(Qt::black);

} // namespace

void tst_NamedColor::text_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<NamedColor>("expected");
    QTest::addColumn<Messages>("messages");

    const auto good = [](const char *tag, const QString &text, const QColor &color,
                         const QString &name = QString()) {
        QTest::newRow(tag) << text << NamedColor(color, name) << Messages();
    };
    const auto bad = [](const char *tag, const QString &text, const QString &candidate) {
        QTest::newRow(tag) << text << NamedColor(Black, QString())
                           << Messages{Expected::badColor(text, candidate)};
    };

    good("3-digits", "fff", QColor(255, 255, 255));
    good("3-digits-hash", "#fff", QColor(255, 255, 255));
    good("6-digits", "1E6FFF", QColor(30, 111, 255));
    good("6-digits-hash", "#1E6FFF", QColor(30, 111, 255));
    good("6-digits-lower-case", "#1e6fff", QColor(30, 111, 255));
    good("8-digits-alpha-first", "80FF0000", QColor(255, 0, 0, 128));
    good("8-digits-hash", "#80FF0000", QColor(255, 0, 0, 128));
    good("9-digits", "fff000fff", QColor::fromRgba64(0xffff, 0, 0xffff));
    good("12-digits", "#123456789abc", QColor::fromRgba64(0x1234, 0x5678, 0x9abc));

    bad("empty", "", "#");
    bad("hash-only", "#", "#");
    bad("two-hashes", "##FFFFFF", "##FFFFFF");
    bad("1-digit", "f", "#f");
    bad("4-digits", "f00f", "#f00f");
    bad("7-digits", "#f00f00f", "#f00f00f");
    bad("10-digits", "f00f00f00f", "#f00f00f00f");
    bad("no-digit", "#12345g", "#12345g");
    bad("word", "red", "#red");
    bad("word-transparent", "transparent", "#transparent");
    bad("function", "rgb(1, 2, 3)", "#rgb(1, 2, 3)");
    bad("leading-space", " fff", "# fff");
    bad("trailing-space", "#fff ", "#fff ");
    bad("space-before-hash", " #fff", "# #fff");
    bad("no-such-entry", "Brand_9", "#Brand_9");
    bad("format-directives", "%s%d%1", "#%s%d%1");

    good("entry", "Brand_1", QColor(30, 111, 255), "Brand_1");
    good("entry-over-digits", "B20", QColor(16, 32, 48), "B20");
    good("entry-over-hash", "#abc", QColor(1, 2, 3), "#abc");
    QTest::newRow("entry-other-case")
        << "b20" << NamedColor(QColor(187, 34, 0), QString()) << Messages(); // three digits
    bad("entry-untrimmed", "Brand_1 ", "#Brand_1 ");
    good("entry-that-was-invalid", "Broken", Black, "Broken");
}

void tst_NamedColor::text()
{
    QFETCH(QString, text);
    QFETCH(NamedColor, expected);
    QFETCH(Messages, messages);

    HV::Theme theme("colours");
    readText(theme, "[Palettes]\nBrand_1=#1E6FFF\nB20=102030\nBroken=nonsense\n%23abc=010203\n");
    COMPARE_MESSAGES(m_log, Messages{Expected::badColor("nonsense", "#nonsense")});
    const Store::PaletteMap palettes = Store::of(theme, Store::Palettes());

    QCOMPARE(theme.readNamedColor(text), expected);
    COMPARE_MESSAGES(m_log, messages);
    QCOMPARE(Store::of(theme, Store::Palettes()), palettes);
}

void tst_NamedColor::warningIsInTheLocalEncoding()
{
    const HV::Theme theme("colours");
    QtDifference::setLatin1Locale(true);
    const NamedColor color = theme.readNamedColor(QString(QChar(0xe9)));
    QtDifference::setLatin1Locale(false);

    QCOMPARE(color, NamedColor(Black, QString()));
    // A Latin-1 byte taken for UTF-8
    const QString garbled =
        QtDifference::localeIsAlwaysUtf8 ? QChar(0xe9) : QChar(QChar::ReplacementCharacter);
    COMPARE_MESSAGES(m_log, Messages{Expected::badColor(garbled, '#' + garbled)});
}

QTEST_GUILESS_MAIN(tst_NamedColor)

#include "tst_namedcolor.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvtheme/theme.h>

#include "expectedmessages.h"
#include "messages.h"
#include "temporaryfolder.h"
#include "themestore.h"

/*! Gradients are arrays beside a plain key of their name; all else in the section is reported. */
class tst_Gradients : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.start(); }
    void cleanup() { REPORT_STRAY_MESSAGES(m_log); }

    void stops_data();
    void stops();
    void dropped_data();
    void dropped();
    void laterFile();

private:
    CapturedMessages m_log;
};

namespace
{

const QColor Black(Qt::black);
const QColor Ink(16, 32, 48);
const QColor White(255, 255, 255);

// The messages of a file are compared as a whole: K's own, between those of other keys, in order.
Messages reading(const QStringList &invalidKeys, const QVector<QPair<QString, QString>> &badColors)
{
    Messages messages;
    for (const auto &color : badColors)
        messages.append(Expected::badColor(color.first, color.second));
    return messages + Expected::invalidGradients(invalidKeys);
}

} // namespace

void tst_Gradients::stops_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QGradientStops>("expected");
    QTest::addColumn<Messages>("messages");

    const QStringList one = {"K/1/color", "K/1/pos", "K/size"};
    const QStringList two = {"K/1/color", "K/1/pos", "K/2/color", "K/2/pos", "K/size"};

    QTest::newRow("one") << QByteArray("K=1\nK\\size=1\nK\\1\\pos=0.25\nK\\1\\color=#fff\n")
                         << QGradientStops{{0.25, White}} << reading(one, {});
    QTest::newRow("plain-key-unread")
        << QByteArray("K=nonsense\nK\\size=1\nK\\1\\pos=0.25\nK\\1\\color=fff\n")
        << QGradientStops{{0.25, White}} << reading(one, {});
    QTest::newRow("palette-entry") << QByteArray("K=\nK\\size=1\nK\\1\\pos=0\nK\\1\\color=Ink\n")
                                   << QGradientStops{{0, Ink}} << reading(one, {});
    QTest::newRow("unsorted-and-out-of-range")
        << QByteArray(
               "K=1\nK\\size=2\nK\\1\\pos=7\nK\\1\\color=fff\nK\\2\\pos=-1\nK\\2\\color=Ink\n")
        << QGradientStops{{7, White}, {-1, Ink}} << reading(two, {});
    QTest::newRow("lines-in-any-order") << QByteArray(
        "K\\2\\color=Ink\nK\\2\\pos=1\nK\\1\\color=fff\nK\\size=2\nK\\1\\pos=0\nK=1\n")
                                        << QGradientStops{{0, White}, {1, Ink}} << reading(two, {});
    QTest::newRow("position-no-number") << QByteArray(
        "K=1\nK\\size=2\nK\\1\\pos=left\nK\\1\\color=fff\nK\\2\\pos=1\nK\\2\\color=Ink\n")
                                        << QGradientStops{{0, White}, {1, Ink}} << reading(two, {});
    QTest::newRow("position-empty") << QByteArray("K=1\nK\\size=1\nK\\1\\pos=\nK\\1\\color=fff\n")
                                    << QGradientStops{{0, White}} << reading(one, {});
    QTest::newRow("color-invalid") << QByteArray("K=1\nK\\size=1\nK\\1\\pos=1\nK\\1\\color=red\n")
                                   << QGradientStops{{1, Black}} << reading(one, {{"red", "#red"}});
    QTest::newRow("color-empty") << QByteArray("K=1\nK\\size=1\nK\\1\\pos=1\nK\\1\\color=\n")
                                 << QGradientStops{{1, Black}} << reading(one, {{"", "#"}});
    QTest::newRow("more-stops-than-its-size") << QByteArray(
        "K=1\nK\\size=1\nK\\1\\pos=0\nK\\1\\color=fff\nK\\2\\pos=1\nK\\2\\color=Ink\n")
                                              << QGradientStops{{0, White}} << reading(two, {});
    QTest::newRow("eleven-in-numeric-order")
        <<
        [] {
            QByteArray text = "K=1\nK\\size=11\n";
            for (int i = 1; i <= 11; ++i) {
                const QByteArray stop = "K\\" + QByteArray::number(i);
                text += stop + "\\pos=" + QByteArray::number(i) + '\n' + stop + "\\color=fff\n";
            }
            return text;
        }()
        << QGradientStops{{1, White}, {2, White}, {3, White}, {4, White},  {5, White}, {6, White},
                          {7, White}, {8, White}, {9, White}, {10, White}, {11, White}}
        << [] {
               QStringList keys;
               for (const char *i : {"1", "10", "11", "2", "3", "4", "5", "6", "7", "8", "9"}) {
                   keys << QString("K/%1/color").arg(i) << QString("K/%1/pos").arg(i);
               }
               return reading(keys << "K/size", {});
           }();
}

void tst_Gradients::stops()
{
    QFETCH(QByteArray, text);
    QFETCH(QGradientStops, expected);
    QFETCH(Messages, messages);

    HV::Theme theme("gradients");
    readText(theme, "[Palettes]\nInk=#102030\n[Gradients]\n" + text);
    COMPARE_MESSAGES(m_log, messages);
    QCOMPARE(Store::of(theme, Store::Gradients()), (Store::GradientMap{{"K", expected}}));
    QCOMPARE(theme.gradient("K"), expected);
}

void tst_Gradients::dropped_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<Messages>("messages");

    QTest::newRow("plain-key-missing") << QByteArray("K\\size=1\nK\\1\\pos=0\nK\\1\\color=fff\n")
                                       << reading({"K/1/color", "K/1/pos", "K/size"}, {});
    QTest::newRow("no-array") << QByteArray("K=1\n") << reading({"K"}, {});
    QTest::newRow("size-missing") << QByteArray("K=1\nK\\1\\pos=0\nK\\1\\color=fff\n")
                                  << reading({"K", "K/1/color", "K/1/pos"}, {});
    QTest::newRow("size-0") << QByteArray("K=1\nK\\size=0\nK\\1\\pos=0\nK\\1\\color=fff\n")
                            << reading({"K", "K/1/color", "K/1/pos", "K/size"}, {});
    QTest::newRow("size-negative")
        << QByteArray("K=1\nK\\size=-1\n") << reading({"K", "K/size"}, {});
    QTest::newRow("size-no-number")
        << QByteArray("K=1\nK\\size=two\n") << reading({"K", "K/size"}, {});
    QTest::newRow("fewer-stops-than-its-size")
        << QByteArray("K=1\nK\\size=2\nK\\1\\pos=0\nK\\1\\color=fff\n")
        << reading({"K", "K/1/color", "K/1/pos", "K/size"}, {});
    QTest::newRow("position-missing")
        << QByteArray("K=1\nK\\size=2\nK\\1\\pos=0\nK\\1\\color=fff\nK\\2\\color=fff\n")
        << reading({"K", "K/1/color", "K/1/pos", "K/2/color", "K/size"}, {});
    QTest::newRow("position-missing-then-color-invalid") // the reading goes on behind it
        << QByteArray("K=1\nK\\size=2\nK\\1\\color=red\nK\\2\\pos=0\nK\\2\\color=blue\n")
        << reading({"K", "K/1/color", "K/2/color", "K/2/pos", "K/size"}, {{"blue", "#blue"}});
    QTest::newRow("color-missing")
        << QByteArray("K=1\nK\\size=2\nK\\1\\pos=0\nK\\1\\color=fff\nK\\2\\pos=1\n")
        << reading({"K", "K/1/color", "K/1/pos", "K/2/pos", "K/size"}, {{"", "#"}});
    QTest::newRow("color-missing-twice")
        << QByteArray("K=1\nK\\size=2\nK\\1\\pos=0\nK\\2\\pos=1\n")
        << reading({"K", "K/1/pos", "K/2/pos", "K/size"}, {{"", "#"}, {"", "#"}});
    QTest::newRow("keys-other-case") << QByteArray("K=1\nK\\size=1\nK\\1\\Pos=0\nK\\1\\Color=fff\n")
                                     << reading({"K", "K/1/Color", "K/1/Pos", "K/size"}, {});
}

void tst_Gradients::dropped()
{
    QFETCH(QByteArray, text);
    QFETCH(Messages, messages);

    HV::Theme theme("gradients");
    readText(theme, "[Gradients]\n" + text);
    COMPARE_MESSAGES(m_log, messages);
    QVERIFY(Store::of(theme, Store::Gradients()).isEmpty());
}

void tst_Gradients::laterFile()
{
    HV::Theme theme("layers");
    readText(theme, "[Gradients]\nK=1\nK\\size=1\nK\\1\\pos=0\nK\\1\\color=fff\nLate=1\n");
    COMPARE_MESSAGES(m_log, reading({"K/1/color", "K/1/pos", "K/size", "Late"}, {}));

    readText(theme,
             "[Gradients]\nK=1\nK\\size=1\nK\\1\\pos=1\nK\\1\\color=red\n"
             "Late=1\nLate\\size=1\nLate\\1\\pos=0.5\nLate\\1\\color=102030\n");
    COMPARE_MESSAGES(m_log,
                     Messages{Expected::keyExists(Expected::Gradients, "K")}
                         + Expected::invalidGradients({"K/1/color", "K/1/pos", "K/size",
                                                       "Late/1/color", "Late/1/pos", "Late/size"}));
    QCOMPARE(Store::of(theme, Store::Gradients()),
             (Store::GradientMap{{"K", {{0, White}}}, {"Late", {{0.5, Ink}}}}));
}

QTEST_GUILESS_MAIN(tst_Gradients)

#include "tst_gradients.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "distincttheme.h"
#include "specimenpicture.h"

#include <gallery/messagelist.h>

#include <QtTest>

using namespace Gallery;

// One row for each value of a property that gives a widget an image. Each image of the theme is of
// one colour that is found nowhere else.
class tst_VocabularyImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void image_data();
    void image();
    void emptyTickHasNoImage();
    void fixedGrooveColors_data();
    void fixedGrooveColors();

private:
    QImage picture(const QString &selector) const;

    MessageList m_log; // swallows what the platform says of every window shown
    DistinctTheme m_files;
};

void tst_VocabularyImages::initTestCase()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    HV::WorkableTheme theme;
    HV::changeAppStyleSheet(&theme, QStringLiteral("default"), m_files.folder());
}

QImage tst_VocabularyImages::picture(const QString &selector) const
{
    return pictureOf(specimenOf(selector));
}

// NOLINTNEXTLINE(readability-function-size): a table, one row a case
void tst_VocabularyImages::image_data()
{
    QTest::addColumn<QString>("key");

    const QVector<QPair<const char *, const char *>> buttons{
        {"close", "close"},
        {"showChange", "show_max"},
        {"minimize", "minimize"},
        {"msgCenter", "msg_center"},
        {"add", "add"},
        {"delete", "delete"},
        {"lock", "lock_off"},
        {"adminTip", "admin_lock"},
        {"nail", "nail_off"},
        {"projectNew", "project_new"},
        {"projectSave", "project_save"},
        {"projectSaveAs", "project_save_as"},
        {"projectPack", "project_pack"},
        {"layoutDefault", "layout_default"},
        {"layoutSave", "layout_save"},
        {"lyoutManager", "layout_manager"},
        {"mute", "mute_off"},
        {"locate", "locate"},
        {"origin", "origin"},
        {"turnNext", "turn_next"},
        {"turnPrev", "turn_prev"},
        {"shortcutShow", "shortcut_show"},
        {"shortcutHide", "shortcut_hide"},
        {"resetBtn", "reset"},
        {"colorPicker", "color_picker"},
        {"linkBtn", "link_off"},
        {"display", "display_on"},
        {"expand", "expand"},
        {"reduce", "reduce"},
        {"increase", "increase"},
        {"right", "right"},
        {"down", "down"},
        {"undo", "undo"},
        {"redo", "redo"},
        {"moveUpWithText", "move_up"},
        {"moveDownWithText", "move_down"},
        {"moveTopWithText", "move_top"},
        {"moveBottomWithText", "move_bottom"},
        {"patchAlignLeft", "patch_align_left"},
        {"patchAlignHorCenter", "patch_align_hor_center"},
        {"patchAlignRight", "patch_align_right"},
        {"patchAlignTop", "patch_align_top"},
        {"patchAlignVerCenter", "patch_align_ver_center"},
        {"patchAlignBottom", "patch_align_bottom"}};
    for (const auto &[value, key] : buttons)
        QTest::newRow(qPrintable(QStringLiteral("QPushButton[imageBtn=%1]").arg(value))) << key;
    const QVector<QPair<const char *, const char *>> checkedButtons{
        {"showChange", "show_normal"}, {"lock", "lock_on"},    {"nail", "nail_on"},
        {"mute", "mute_on"},           {"linkBtn", "link_on"}, {"display", "display_off"},
        {"correct", "correct"}};
    for (const auto &[value, key] : checkedButtons)
        QTest::newRow(qPrintable(QStringLiteral("QPushButton[imageBtn=%1]:checked").arg(value)))
            << key;
    const QVector<QPair<const char *, const char *>> labels{
        {"titleIcon", "title_icon"}, {"desktopIcon", "applogo"}, {"softIcon", "soft_icon"}};
    for (const auto &[value, key] : labels)
        QTest::newRow(qPrintable(QStringLiteral("QLabel[labelImage=%1]").arg(value))) << key;
    for (const char *value :
         {"search", "tip_warning", "tip_question", "tip_critical", "tip_about", "tip_succeed",
          "popup_succeed", "popup_warning", "popup_hint", "up", "down", "left", "right"})
        QTest::newRow(qPrintable(QStringLiteral("QLabel[labelImage=%1]").arg(value))) << value;
    for (const char *value : {"luminance", "contrast", "opacity", "kelvin", "hue", "saturability"})
        QTest::newRow(
            qPrintable(QStringLiteral("QSlider::groove:horizontal[sliderStyle=%1]").arg(value)))
            << QStringLiteral("slider_%1").arg(value);

    // clang-format off
    QTest::newRow("QCheckBox::indicator:enabled:unchecked") << "checkbox_off";
    QTest::newRow("QCheckBox::indicator:disabled:unchecked") << "checkbox_off_disabled";
    QTest::newRow("QCheckBox::indicator:enabled:checked") << "checkbox_on";
    QTest::newRow("QCheckBox::indicator:disabled:checked") << "checkbox_on_disabled";
    QTest::newRow("QRadioButton::indicator") << "radio_off";
    QTest::newRow("QRadioButton::indicator:disabled") << "radio_off_disabled";
    QTest::newRow("QRadioButton::indicator:checked") << "radio_on";
    QTest::newRow("QRadioButton::indicator:checked:disabled") << "radio_on_disabled";
    QTest::newRow("QPushButton[checkStyle=checked]") << "checkbox_off";
    QTest::newRow("QPushButton[checkStyle=checked]:disabled") << "checkbox_off_disabled";
    QTest::newRow("QPushButton[checkStyle=checked]:checked") << "checkbox_on";
    QTest::newRow("QPushButton[checkStyle=checked]:checked:disabled") << "checkbox_on_disabled";
    QTest::newRow("[checkStyle=halfChecked]") << "checkbox_off";
    QTest::newRow("[checkStyle=halfChecked]:disabled") << "checkbox_off_disabled";
    QTest::newRow("QPushButton[checkStyle=halfChecked]:checked") << "checkbox_half";
    QTest::newRow("QPushButton[checkStyle=halfChecked]:checked:disabled") << "checkbox_half_disabled";
    QTest::newRow("QPushButton[switchStyle=general]") << "switch_off";
    QTest::newRow("QPushButton[switchStyle=general]:hover") << "switch_off_hover";
    QTest::newRow("QPushButton[switchStyle=general]:checked") << "switch_on";
    QTest::newRow("QPushButton[switchStyle=general]:checked:hover") << "switch_on_hover";
    QTest::newRow("QComboBox::drop-down") << "down";
    QTest::newRow("QSpinBox:up-button") << "up";
    QTest::newRow("QSpinBox:down-button") << "down";
    QTest::newRow("QDateTimeEdit:up-button") << "up";
    QTest::newRow("QCalendarWidget QToolButton#qt_calendar_prevmonth") << "turn_prev";
    QTest::newRow("QCalendarWidget QToolButton#qt_calendar_nextmonth") << "turn_next";
    // clang-format on
}

void tst_VocabularyImages::image()
{
    QFETCH(QString, key);
    const QImage shown = picture(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(pixelsOf(shown, m_files.imageColor(key)) >= 20);
}

void tst_VocabularyImages::emptyTickHasNoImage()
{
    const QImage shown = picture(QStringLiteral("QPushButton[imageBtn=correct]"));
    QCOMPARE(pixelsOf(shown, Qt::white), shown.width() * shown.height());
}

void tst_VocabularyImages::fixedGrooveColors_data()
{
    QTest::addColumn<QColor>("end");

    QTest::newRow("red") << QColor(Qt::red);
    QTest::newRow("green") << QColor(0, 128, 0);
    QTest::newRow("blue") << QColor(Qt::blue);
}

// From white to the colour that gives the slider its name, whatever the theme.
void tst_VocabularyImages::fixedGrooveColors()
{
    QFETCH(QColor, end);
    const QImage shown = picture(QStringLiteral("QSlider[sliderStyle=%1]:groove:horizontal")
                                     .arg(QString::fromLatin1(QTest::currentDataTag())));
    const QColor last = shown.pixelColor(shown.width() - 6, shown.height() / 2);
    const QColor first = shown.pixelColor(5, shown.height() / 2);
    QVERIFY(qAbs(last.red() - end.red()) < 12 && qAbs(last.blue() - end.blue()) < 12);
    QVERIFY(first.red() > 240 && first.green() > 240 && first.blue() > 240);
}

QTEST_MAIN(tst_VocabularyImages)

#include "tst_vocabularyimages.moc"

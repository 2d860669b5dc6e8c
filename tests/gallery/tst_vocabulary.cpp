// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "distincttheme.h"
#include "specimenpicture.h"

#include <gallery/messagelist.h>

#include <QLabel>
#include <QtTest>

using namespace Gallery;

namespace
{

// In the middle of the specimen's upper edge; its picture has 2 pixels of ground around it.
QColor upperEdge(const QImage &picture)
{
    return picture.pixelColor(picture.width() / 2, 2);
}

QColor lowerEdge(const QImage &picture)
{
    return picture.pixelColor(picture.width() / 2, picture.height() - 3);
}

double share(const QImage &picture, const QColor &color)
{
    return double(pixelsOf(picture, color)) / (picture.width() * picture.height());
}

} // namespace

// One row for each value of each property that the templates style, and for their states. No two
// keys of the theme look alike, so what is seen can only come from the key that is named.
class tst_Vocabulary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void background_data();
    void background();
    void noBackground_data();
    void noBackground();
    void border_data();
    void border();
    void noBorder();
    void text_data();
    void text();
    void fontSize_data();
    void fontSize();
    void boldText();
    void roundCorners_data();
    void roundCorners();

private:
    QImage picture(const QString &selector) const;

    MessageList m_log; // swallows what the platform says of every window shown
    DistinctTheme m_files;
};

void tst_Vocabulary::initTestCase()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    HV::WorkableTheme theme;
    HV::changeAppStyleSheet(&theme, QStringLiteral("default"), m_files.folder());
}

QImage tst_Vocabulary::picture(const QString &selector) const
{
    return pictureOf(specimenOf(selector));
}

// NOLINTNEXTLINE(readability-function-size): a table, one row a case
void tst_Vocabulary::background_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<double>("leastShare");

    // clang-format off
    QTest::newRow("QLineEdit") << "EditBackgroundColor" << 0.5;
    QTest::newRow("QLineEdit:disabled") << "EditDisabledBackgroundColor" << 0.5;
    QTest::newRow("QSpinBox") << "EditBackgroundColor" << 0.3;
    QTest::newRow("QSpinBox:disabled") << "EditDisabledBackgroundColor" << 0.3;
    QTest::newRow("QDoubleSpinBox") << "EditBackgroundColor" << 0.3;
    QTest::newRow("QDoubleSpinBox:disabled") << "EditDisabledBackgroundColor" << 0.3;
    QTest::newRow("QDateTimeEdit") << "EditBackgroundColor" << 0.3;
    QTest::newRow("QDateTimeEdit:disabled") << "EditDisabledBackgroundColor" << 0.3;
    QTest::newRow("QSpinBox::up-button:hover") << "Color_W15" << 0.015;
    QTest::newRow("QSpinBox::up-button:pressed") << "Color_B20" << 0.015;
    QTest::newRow("QDateTimeEdit::down-button:hover") << "Color_W15" << 0.015;
    QTest::newRow("QDoubleSpinBox:down-button:pressed") << "Color_B20" << 0.015;
    QTest::newRow("QTextEdit[style=qrCodeEdit]") << "EditBackgroundColor" << 0.5;
    QTest::newRow("QComboBox") << "EditBackgroundColor" << 0.4;
    QTest::newRow("QComboBox:disabled") << "EditDisabledBackgroundColor" << 0.4;
    QTest::newRow("QComboBox QAbstractItemView") << "EditBackgroundColor" << 0.5;
    QTest::newRow("QComboBox QAbstractItemView::item:selected") << "EditHighlightBorderColor" << 0.2;
    QTest::newRow("QPushButton:hover") << "Color_W15" << 0.5;
    QTest::newRow("QPushButton:pressed") << "Color_B20" << 0.5;
    QTest::newRow("QPushButton[style=general]") << "GeneralButtonBackgroundNormal" << 0.5;
    QTest::newRow("QPushButton[style=general]:hover") << "GeneralButtonBackgroundHover" << 0.5;
    QTest::newRow("QPushButton[style=general]:pressed") << "GeneralButtonBackgroundPressed" << 0.5;
    QTest::newRow("QPushButton[style=general]:disabled") << "GeneralButtonBackgroundDisabled" << 0.5;
    QTest::newRow("QPushButton[style=assist]") << "AssistButtonBackgroundNormal" << 0.5;
    QTest::newRow("QPushButton[style=assist]:hover") << "AssistButtonBackgroundHover" << 0.5;
    QTest::newRow("QPushButton[style=assist]:pressed") << "AssistButtonBackgroundPressed" << 0.5;
    QTest::newRow("QPushButton[style=assist]:disabled") << "AssistButtonBackgroundDisabled" << 0.5;
    QTest::newRow("QPushButton[style=editButton]") << "BackgroundColor_2" << 0.5;
    QTest::newRow("QPushButton[style=menuButton]:hover") << "Color_W15" << 0.5;
    QTest::newRow("QPushButton[style=menuButton]:pressed") << "Color_Brand_8" << 0.5;
    QTest::newRow("QPushButton[style=floatingTabButton]") << "BackgroundColor_4" << 0.5;
    QTest::newRow("QPushButton[style=floatingTabButton]:hover") << "BackgroundColor_6" << 0.5;
    QTest::newRow("QPushButton[style=floatingTabButton]:pressed") << "BackgroundColor_2" << 0.5;
    QTest::newRow("QPushButton[style=floatingTabButtonAssist]") << "BackgroundColor_4" << 0.5;
    QTest::newRow("QPushButton[style=floatingTabButtonAssist]:hover") << "BackgroundColor_6" << 0.5;
    QTest::newRow("QPushButton[style=floatingTabButtonAssist]:pressed") << "BackgroundColor_2" << 0.5;
    QTest::newRow("QPushButton[style=helper]:hover") << "AssistButtonBackgroundHover" << 0.5;
    QTest::newRow("QPushButton[style=helper]:pressed") << "AssistButtonBackgroundHover" << 0.5;
    QTest::newRow("QCheckBox:hover") << "Color_W15" << 0.3;
    QTest::newRow("QCheckBox:pressed") << "Color_B20" << 0.3;
    QTest::newRow("QRadioButton:hover") << "Color_W15" << 0.3;
    QTest::newRow("QRadioButton:pressed") << "Color_B20" << 0.3;
    QTest::newRow("QLabel[style=redBackground]") << "Color_Yellow_10" << 0.4;
    QTest::newRow("QListWidget[style=simpleList]") << "Color_B32" << 0.5;
    QTest::newRow("QListWidget[style=simpleList]::Item:hover") << "Color_Brand_7" << 0.15;
    QTest::newRow("QListWidget[style=simpleList]::Item:selected") << "Color_Brand_8" << 0.15;
    QTest::newRow("QTableWidget[style=audioMappingTableWidget]::item") << "BackgroundColor_6" << 0.4;
    QTest::newRow("QTableWidget[style=audioMappingTableWidget]::item:hover") << "BackgroundColor_7" << 0.08;
    QTest::newRow("QTableWidget[style=audioMappingTableWidget]::item:disabled") << "BackgroundColor_5" << 0.4;
    QTest::newRow("QHeaderView[style=audioMappingHeaderView]::section") << "BackgroundColor_5" << 0.3;
    QTest::newRow("QTabBar[style=floatTabBar]:tab") << "BackgroundColor_3" << 0.4;
    QTest::newRow("QSlider[sliderStyle=hGeneral]:add-page:horizontal") << "SliderGrooveBackgroundColor" << 0.05;
    QTest::newRow("QSlider[sliderStyle=hGeneral]:sub-page:horizontal") << "SliderAcrossBackgroundColor" << 0.05;
    QTest::newRow("QSlider[sliderStyle=hGeneralTwoWay]:add-page:horizontal") << "SliderGrooveBackgroundColor" << 0.15;
    QTest::newRow("QSlider[sliderStyle=hGeneralTwoWay]:sub-page:horizontal") << "SliderGrooveBackgroundColor" << 0.15;
    QTest::newRow("QScrollBar:handle") << "ScrollBarHandleBackgroundColor" << 0.1;
    QTest::newRow("QScrollBar::add-page") << "ScrollBarGrooveBackgroundColor" << 0.3;
    QTest::newRow("QMenu") << "MenuBackgroundColor" << 0.5;
    QTest::newRow("QMenu::item:selected") << "MenuHighlightBackgroundColor" << 0.15;
    QTest::newRow("QToolTip") << "ToolTipBackgroundColor" << 0.4;
    QTest::newRow("QCalendarWidget QTableView") << "EditBackgroundColor" << 0.4;
    for (int i = 1; i <= 7; ++i)
        QTest::newRow(qPrintable(QStringLiteral("QWidget[style=BG%1]").arg(i))) << QStringLiteral("BackgroundColor_%1").arg(i) << 0.85;
    QTest::newRow("QWidget[style=dialogMask]") << "DialogMaskBackgroundColor" << 0.85;
    QTest::newRow("QWidget[style=cutLine]") << "Color_W15" << 0.3;
    QTest::newRow("QWidget[style=tagLine]") << "Color_Blue_1" << 0.3;
    QTest::newRow("QWidget[style=highlight]") << "HighlightedForegroundColor" << 0.85;
    // clang-format on
}

void tst_Vocabulary::background()
{
    QFETCH(QString, key);
    QFETCH(double, leastShare);
    const double found =
        share(picture(QString::fromLatin1(QTest::currentDataTag())), m_files.color(key));
    QVERIFY2(found >= leastShare, qPrintable(QStringLiteral("%1 of it").arg(found)));
}

void tst_Vocabulary::noBackground_data()
{
    QTest::addColumn<QString>("selector");

    QTest::newRow("QPushButton") << "QPushButton";
    QTest::newRow("QPushButton[style=transparent]:hover") << "QPushButton[style=transparent]:hover";
    QTest::newRow("QPushButton[style=menuButton]") << "QPushButton[style=menuButton]";
    QTest::newRow("QLineEdit[style=transparent]") << "QLineEdit[style=transparent]";
    QTest::newRow("QSpinBox[style=transparent]") << "QSpinBox[style=transparent]";
    QTest::newRow("QDoubleSpinBox[style=transparent]") << "QDoubleSpinBox[style=transparent]";
    QTest::newRow("QDateTimeEdit[style=transparent]") << "QDateTimeEdit[style=transparent]";
    QTest::newRow("QComboBox[style=transparent]") << "QComboBox[style=transparent]";
    QTest::newRow("QComboBox[style=noBorder]") << "QComboBox[style=noBorder]";
    QTest::newRow("QWidget[style=transparent]") << "QWidget[style=transparent]";
    QTest::newRow("QScrollArea") << "QScrollArea";
}

void tst_Vocabulary::noBackground()
{
    QFETCH(QString, selector);
    const QImage shown = picture(selector);
    // A corner has neither text nor image; the ground around the specimen is white.
    QCOMPARE(shown.pixelColor(4, 4), QColor(Qt::white));
    QCOMPARE(upperEdge(shown), QColor(Qt::white));
    QCOMPARE(lowerEdge(shown), QColor(Qt::white));
}

void tst_Vocabulary::border_data()
{
    QTest::addColumn<QString>("upperKey"); // empty: no border there, but the key of the background
    QTest::addColumn<QString>("lowerKey");

    // clang-format off
    QTest::newRow("QLineEdit:hover") << "EditBorderColor" << "EditBorderColor";
    QTest::newRow("QLineEdit:focus") << "EditHighlightBorderColor" << "EditHighlightBorderColor";
    QTest::newRow("QLineEdit[style=editError]") << "Color_Red_6" << "Color_Red_6";
    QTest::newRow("QLineEdit[style=editSuccess]") << "Color_Green_6" << "Color_Green_6";
    QTest::newRow("QSpinBox:hover") << "EditBorderColor" << "EditBorderColor";
    QTest::newRow("QSpinBox:focus") << "EditHighlightBorderColor" << "EditHighlightBorderColor";
    QTest::newRow("QSpinBox[style=editError]") << "Color_Red_6" << "Color_Red_6";
    QTest::newRow("QDoubleSpinBox:focus") << "EditHighlightBorderColor" << "EditHighlightBorderColor";
    QTest::newRow("QDateTimeEdit:focus") << "EditHighlightBorderColor" << "EditHighlightBorderColor";
    QTest::newRow("QTextEdit[style=qrCodeEdit]") << "EditBorderColor" << "EditBorderColor";
    QTest::newRow("QComboBox:hover") << "EditBorderColor" << "EditBorderColor";
    QTest::newRow("QComboBox:on") << "EditHighlightBorderColor" << "EditHighlightBorderColor";
    QTest::newRow("QPushButton[style=editButton]:hover") << "Color_Brand_8" << "Color_Brand_8";
    QTest::newRow("QPushButton[style=floatingTabButton]:checked") << "BackgroundColor_4" << "Color_Brand_6";
    QTest::newRow("QPushButton[style=floatingTabButtonAssist]:checked") << "BackgroundColor_4" << "Color_Orange_6";
    QTest::newRow("QLabel[style=redBackground]") << "Color_Yellow_6" << "Color_Yellow_6";
    QTest::newRow("QWidget[borderColor=highlight]") << "HighlightedForegroundColor" << "HighlightedForegroundColor";
    QTest::newRow("QWidget[borderColor=default]") << "BackgroundColor_1" << "BackgroundColor_1";
    QTest::newRow("QWidget[borderColor=BG5]") << "BackgroundColor_5" << "BackgroundColor_5";
    QTest::newRow("QWidget[style=toolWidget]") << "BackgroundColor_2" << "BackgroundColor_1";
    // clang-format on
}

void tst_Vocabulary::border()
{
    QFETCH(QString, upperKey);
    QFETCH(QString, lowerKey);
    const QImage shown = picture(QString::fromLatin1(QTest::currentDataTag()));
    // A gradient only comes near its first and last colour.
    const auto near = [](const QColor &a, const QColor &b) {
        return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue())
            < 6;
    };
    QVERIFY2(near(upperEdge(shown), m_files.color(upperKey)), qPrintable(upperEdge(shown).name()));
    QVERIFY2(near(lowerEdge(shown), m_files.color(lowerKey)), qPrintable(lowerEdge(shown).name()));
}

// The specimen is a line edit whose own style would give it a red one.
void tst_Vocabulary::noBorder()
{
    const QColor red = m_files.color(QStringLiteral("Color_Red_6"));
    QVERIFY(pixelsOf(picture(QStringLiteral("QLineEdit[style=editError]")), red) > 100);
    QCOMPARE(pixelsOf(picture(QStringLiteral("QWidget[borderColor=none]")), red), 0);
}

void tst_Vocabulary::text_data()
{
    QTest::addColumn<QString>("key");

    // clang-format off
    QTest::newRow("*") << "DefaultForegroundColor";
    QTest::newRow("*:disabled") << "DisabledForegroundColor";
    QTest::newRow("QPushButton:disabled") << "DefaultForegroundColor";
    QTest::newRow("QLineEdit") << "DefaultForegroundColor";
    QTest::newRow("QLineEdit:hover") << "Color_W100";
    QTest::newRow("QLineEdit:focus") << "Color_W100";
    QTest::newRow("QLineEdit:disabled") << "Color_W100";
    QTest::newRow("QComboBox:hover") << "Color_W100";
    QTest::newRow("QComboBox:on") << "Color_W100";
    QTest::newRow("QLabel[style=highlightText]") << "HighlightedForegroundColor";
    QTest::newRow("QLabel[style=errorHint]") << "ErrorHintForegroundColor";
    QTest::newRow("QLabel[style=grayHint]") << "Color_W40";
    QTest::newRow("QLabel[style=yellowHint]") << "Color_Yellow_6";
    QTest::newRow("QLabel[style=greenHint]") << "Color_Green_6";
    QTest::newRow("QLabel[style=originHint]") << "Color_Orange_6";
    QTest::newRow("QListWidget[style=simpleList]::Item") << "DefaultForegroundColor";
    QTest::newRow("QTabBar[style=floatTabBar]:tab:selected") << "HighlightedForegroundColor";
    QTest::newRow("QSlider:handle:horizontal") << "Color_W100"; // its ring
    // clang-format on
}

void tst_Vocabulary::text()
{
    QFETCH(QString, key);
    QVERIFY(pixelsOf(picture(QString::fromLatin1(QTest::currentDataTag())), m_files.color(key))
            >= 3);
}

void tst_Vocabulary::fontSize_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("pixels"); // 9, 12, 15 … in the order of the enumeration Integer

    QTest::newRow("none") << "fontSize"
                          << "" << 18;
    QTest::newRow("XS") << "fontSize"
                        << "XS" << 9;
    QTest::newRow("S") << "fontSize"
                       << "S" << 12;
    QTest::newRow("M") << "fontSize"
                       << "M" << 15;
    QTest::newRow("L") << "fontSize"
                       << "L" << 18;
    QTest::newRow("XL") << "fontSize"
                        << "XL" << 21;
    QTest::newRow("XXL-of-textSize") << "textSize"
                                     << "XXL" << 24;
    QTest::newRow("XXL-of-fontSize-selects-nothing") << "fontSize"
                                                     << "XXL" << 18;
}

void tst_Vocabulary::fontSize()
{
    QFETCH(QString, property);
    QFETCH(QString, value);
    QLabel label(QStringLiteral("Text"));
    label.setProperty(qPrintable(property), value);
    label.ensurePolished();
    QTEST(label.fontInfo().pixelSize(), "pixels");
}

void tst_Vocabulary::boldText()
{
    QLabel label(QStringLiteral("Text"));
    label.ensurePolished();
    QVERIFY(!label.font().bold());
    QLabel bold(QStringLiteral("Text"));
    bold.setProperty("fontWeight", QStringLiteral("bold"));
    bold.ensurePolished();
    QVERIFY(bold.font().bold());
}

void tst_Vocabulary::roundCorners_data()
{
    QTest::addColumn<int>("inset"); // along the upper edge, the first pixel of the full colour

    QTest::newRow("QWidget[radius=S]") << 2;
    QTest::newRow("QWidget[radius=M]") << 4;
    QTest::newRow("QWidget[radius=L]") << 8;
}

void tst_Vocabulary::roundCorners()
{
    QFETCH(int, inset);
    const QImage shown = picture(QString::fromLatin1(QTest::currentDataTag()));
    const QColor fill = m_files.color(QStringLiteral("HighlightedForegroundColor"));
    QVERIFY(shown.pixelColor(2, 2) != fill);
    QCOMPARE(shown.pixelColor(2 + inset, 2), fill);
    QVERIFY(shown.pixelColor(2 + inset / 2 - 1, 2) != fill);
}

QTEST_MAIN(tst_Vocabulary)

#include "tst_vocabulary.moc"

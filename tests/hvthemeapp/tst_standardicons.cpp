// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvthemeapp/applicationtheme.h>
#include <hvthemeapp/themedicon.h>

#include <hvtheme/theme.h>

#include <QAction>
#include <QApplication>
#include <QCommonStyle>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QMetaEnum>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolButton>
#include <QtTest>

using HV::ApplicationTheme;
using HV::themedIcon;

namespace
{

QImage picture(const QIcon &icon)
{
    return icon.pixmap(20, 20).toImage();
}

/*! A style as programs make them. */
class OwnStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    QIcon standardIcon(StandardPixmap, const QStyleOption *, const QWidget *) const override
    {
        QPixmap pixmap(20, 20);
        pixmap.fill(Qt::magenta);
        return pixmap;
    }
};

} // namespace

class tst_StandardIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyIcon_data();
    void everyIcon();
    void mirrored();
    void messageBox();
    void fileDialog();
    void dialogButtons();
    void dockWidget();
    void clearButton();
    void innerWindow_data();
    void innerWindow();
    void innerWindowsArea();
    void styleKeepsItsName();
    void anotherStyleByName();
    void changedStyle();
    void styleOfTheProgramAlone();
    void ownIconsOfAStyle(); // the last one

private:
    ApplicationTheme m_theme;
};

void tst_StandardIcons::everyIcon_data()
{
    QTest::addColumn<int>("pixmap");
    const QMetaEnum pixmaps = QMetaEnum::fromType<QStyle::StandardPixmap>();
    for (int i = 0; i < pixmaps.keyCount(); ++i) {
        // Below the custom ones, of which there are none, and those of later versions of Qt.
        const int value = pixmaps.value(i);
        if ((value >= 0 && value <= int(QStyle::SP_LineEditClearButton))
            || value == int(QStyle::SP_RestoreDefaultsButton))
            QTest::newRow(pixmaps.key(i)) << value;
    }
}

// All of Qt 5.15's are of the set: another look makes another picture of them.
void tst_StandardIcons::everyIcon()
{
    QFETCH(int, pixmap);
    const auto standard = QStyle::StandardPixmap(pixmap);
    QVERIFY(m_theme.setName("dark"));
    const QImage dark = picture(QApplication::style()->standardIcon(standard));
    QVERIFY(m_theme.setName("light"));
    const QImage light = picture(QApplication::style()->standardIcon(standard));
    QVERIFY(!light.isNull());
    QVERIFY(light != dark);
    const QPixmap fixed = QApplication::style()->standardPixmap(standard);
    QVERIFY(!fixed.isNull());
}

void tst_StandardIcons::mirrored()
{
    QVERIFY(m_theme.setName("dark"));
    QStyleOption option;
    const auto icon = [&](Qt::LayoutDirection direction) {
        option.direction = direction;
        return picture(QApplication::style()->standardIcon(QStyle::SP_ArrowBack, &option));
    };
    QVERIFY(icon(Qt::LeftToRight) == picture(themedIcon("turn_prev")));
    QVERIFY(icon(Qt::RightToLeft) == picture(themedIcon("turn_next")));
}

// A message box keeps pixels, and yet follows.
void tst_StandardIcons::messageBox()
{
    QVERIFY(m_theme.setName("dark"));
    QMessageBox box(QMessageBox::Warning, "title", "text", QMessageBox::Ok);
    box.ensurePolished();
    const QImage dark = box.iconPixmap().toImage();
    QVERIFY(dark == themedIcon("tip_warning").pixmap(dark.size()).toImage());
    QVERIFY(m_theme.setName("light"));
    QCoreApplication::processEvents();
    QVERIFY(box.iconPixmap().toImage() == themedIcon("tip_warning").pixmap(dark.size()).toImage());
}

void tst_StandardIcons::fileDialog()
{
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    QVERIFY(m_theme.setName("dark"));
    const QHash<QString, QString> drawings{
        {"toParentButton", "folder_up"}, {"newFolderButton", "folder_new"},
        {"listModeButton", "view_list"}, {"detailModeButton", "view_details"},
        {"backButton", "turn_prev"},     {"forwardButton", "turn_next"}};
    for (auto it = drawings.cbegin(); it != drawings.cend(); ++it) {
        auto *button = dialog.findChild<QToolButton *>(it.key());
        QVERIFY(button);
        QVERIFY2(picture(button->icon()) == picture(themedIcon(it.value())), qPrintable(it.key()));
    }
    QVERIFY(picture(dialog.iconProvider()->icon(QFileIconProvider::Folder))
            == picture(themedIcon("folder")));
}

void tst_StandardIcons::dialogButtons()
{
    QVERIFY(m_theme.setName("dark"));
    const QWidget widget;
    const QStyle *style = widget.style();
    QVERIFY(picture(style->standardIcon(QStyle::SP_DialogSaveButton, nullptr, &widget))
            == picture(themedIcon("save")));
}

void tst_StandardIcons::dockWidget()
{
    QVERIFY(m_theme.setName("dark"));
    QDockWidget dock("title");
    dock.ensurePolished();
    auto *button = dock.findChild<QAbstractButton *>("qt_dockwidget_floatbutton");
    QVERIFY(button);
    QVERIFY(picture(button->icon()) == picture(themedIcon("float")));
}

void tst_StandardIcons::clearButton()
{
    QVERIFY(m_theme.setName("dark"));
    QLineEdit edit("text");
    edit.setClearButtonEnabled(true);
    const auto actions = edit.findChildren<QAction *>();
    QCOMPARE(actions.size(), 1);
    QVERIFY(picture(actions.first()->icon()) == picture(themedIcon("clear")));
}

void tst_StandardIcons::innerWindow_data()
{
    QTest::addColumn<QString>("look");
    for (const char *look : {"dark", "light", "contrast"})
        QTest::newRow(look) << look;
}

// The middle of its title bar is the palette's ground; Qt's own is a gradient of the highlight.
void tst_StandardIcons::innerWindow()
{
    QFETCH(QString, look);
    QVERIFY(m_theme.setName(look));
    QMdiArea area;
    area.resize(400, 300);
    QMdiSubWindow *window = area.addSubWindow(new QWidget);
    window->setGeometry(0, 0, 300, 200);
    area.ensurePolished();
    window->ensurePolished();
    const QImage image = window->grab().toImage();
    const int height = window->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, window);
    QCOMPARE(image.pixelColor(60, height / 2), window->palette().color(QPalette::Window));
}

// It has a brush of its own, made of the palette of the moment.
void tst_StandardIcons::innerWindowsArea()
{
    QVERIFY(m_theme.setName("dark"));
    QMdiArea area;
    QMdiArea chosen;
    chosen.setBackground(Qt::red);
    chosen.ensurePolished(); // the other one is first seen in another look
    for (const char *look : {"light", "contrast", "dark"}) {
        QVERIFY(m_theme.setName(look));
        area.ensurePolished();
        QCOMPARE(area.background().color(), QApplication::palette().color(QPalette::Button));
        QCOMPARE(chosen.background().color(), QColor(Qt::red));
    }
}

// Programs and Qt tell styles apart by this name.
void tst_StandardIcons::styleKeepsItsName()
{
    QVERIFY(m_theme.setName("dark"));
    QCOMPARE(QApplication::style()->objectName(), QString("fusion"));
    qApp->setStyleSheet(QString());
    QCOMPARE(QApplication::style()->objectName(), QString("fusion"));
}

void tst_StandardIcons::anotherStyleByName()
{
    QVERIFY(m_theme.setName("dark"));
    QVERIFY(QApplication::setStyle("windows"));
    QTRY_VERIFY(picture(QApplication::style()->standardIcon(QStyle::SP_DirIcon))
                == picture(themedIcon("folder")));
    qApp->setStyleSheet(QString());
    QCOMPARE(QApplication::style()->objectName(), QString("windows"));
    QVERIFY(m_theme.setName("light"));
}

void tst_StandardIcons::ownIconsOfAStyle()
{
    QVERIFY(m_theme.setName("dark"));
    QApplication::setStyle(new OwnStyle("fusion"));
    QCoreApplication::processEvents();
    QVERIFY(m_theme.setName("light"));
    const ApplicationTheme another;
    QCOMPARE(QApplication::style()
                 ->standardIcon(QStyle::SP_DirIcon)
                 .pixmap(20, 20)
                 .toImage()
                 .pixelColor(9, 9),
             QColor(Qt::magenta));
}

// A program that changes one of Qt's styles a little has all that it changes, and the rest of the look.
void tst_StandardIcons::changedStyle()
{
    class Wide : public QProxyStyle
    {
    public:
        using QProxyStyle::QProxyStyle;

        int pixelMetric(PixelMetric metric, const QStyleOption *option,
                        const QWidget *widget) const override
        {
            return metric == PM_SliderLength ? 123
                                             : QProxyStyle::pixelMetric(metric, option, widget);
        }
    };
    QVERIFY(m_theme.setName("dark"));
    auto *own = new Wide(QStyleFactory::create("fusion"));
    const QPointer<QStyle> watched(own);
    QApplication::setStyle(own);
    QTRY_VERIFY(picture(QApplication::style()->standardIcon(QStyle::SP_DirIcon))
                == picture(themedIcon("folder")));
    QCOMPARE(QApplication::style()->pixelMetric(QStyle::PM_SliderLength), 123);
    QVERIFY(m_theme.setName("light"));
    QVERIFY(watched);
    QApplication::setStyle("fusion"); // and is not left behind
    QVERIFY(!watched);
}

// There is nothing of Qt's behind it.
void tst_StandardIcons::styleOfTheProgramAlone()
{
    class Own : public QCommonStyle
    {
    };
    QVERIFY(m_theme.setName("dark"));
    auto *own = new Own;
    QApplication::setStyle(own);
    QCoreApplication::processEvents();
    QVERIFY(m_theme.setName("light"));
    QVERIFY(picture(QApplication::style()->standardIcon(QStyle::SP_DirIcon))
            != picture(themedIcon("folder")));
    QApplication::setStyle("fusion");
    QCoreApplication::processEvents();
}

int main(int argc, char **argv)
{
    QApplication::setStyle("fusion");
    QApplication application(argc, argv);
    tst_StandardIcons test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_standardicons.moc"

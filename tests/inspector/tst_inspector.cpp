// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "quietplatform.h"

#include <hvthemeinspector/inspector.h>

#include <QtTest>
#include <QtWidgets>

// The way in, as programs have it.
class tst_Inspector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void opensOnce_data();
    void opensOnce();

private:
    std::unique_ptr<QuietPlatform> m_quiet;
};

namespace
{

QWidgetList windows()
{
    QWidgetList found;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *widget : all) {
        if (widget->windowTitle() == "Inspector")
            found << widget;
    }
    return found;
}

} // namespace

void tst_Inspector::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
}

void tst_Inspector::cleanup()
{
    HV::Inspector::close();
    QVERIFY(!HV::Inspector::isOpen());
    QVERIFY(windows().isEmpty());
}

void tst_Inspector::opensOnce_data()
{
    QTest::addColumn<QString>("before"); // what has happened to the first one
    QTest::addColumn<bool>("isSame");

    QTest::newRow("open") << "" << true;
    QTest::newRow("hidden") << "hide" << true;
    QTest::newRow("minimized") << "minimize" << true;
    QTest::newRow("closed") << "close" << false;
    QTest::newRow("hidden-and-closed") << "hide,close" << false;
}

void tst_Inspector::opensOnce()
{
    QFETCH(QString, before);
    QFETCH(bool, isSame);
    HV::Inspector::open();
    QVERIFY(HV::Inspector::isOpen());
    const QPointer<QWidget> first = windows().value(0);
    QVERIFY(first);
    const QStringList steps = before.split(',');
    for (const QString &step : steps) {
        if (step == "hide")
            first->hide(); // as programs do that go to the tray
        else if (step == "minimize")
            first->showMinimized();
        else if (step == "close")
            first->close();
    }
    HV::Inspector::open();
    QVERIFY(HV::Inspector::isOpen());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(windows().size(), 1);
    QCOMPARE(windows().constFirst() == first, isSame);
    QVERIFY(windows().constFirst()->isVisible());
}

QTEST_MAIN(tst_Inspector)

#include "tst_inspector.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvthemeapp/applicationtheme.h>

#include <hvtheme/theme.h>

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

class tst_ApplicationTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looks_data();
    void looks();
};

void tst_ApplicationTheme::looks_data()
{
    QTest::addColumn<QString>("displayName");
    QTest::newRow("dark") << "Dark";
    QTest::newRow("light") << "Light";
    QTest::newRow("contrast") << "High contrast";
}

void tst_ApplicationTheme::looks()
{
    QFETCH(QString, displayName);
    HV::ApplicationTheme theme;
    const QSignalSpy changes(&theme, &HV::ApplicationTheme::changed);
    QVERIFY(theme.setName(QTest::currentDataTag()));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(theme.theme()->displayName(), displayName);
    QCOMPARE(QApplication::palette().color(QPalette::Window),
             theme.theme()->color("BackgroundColor_2"));
    QVERIFY(!qApp->styleSheet().contains("global.theme"));
    QPushButton button("push");
    button.ensurePolished();
    QVERIFY(!button.grab().isNull());
}

QTEST_MAIN(tst_ApplicationTheme)
#include "tst_applicationtheme.moc"

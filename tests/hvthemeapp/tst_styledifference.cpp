// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvthemeapp/styledifference.h>

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QtTest>

using HV::StyleDifference;

class tst_StyleDifference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void between_data();
    void between();
    void concerns_data();
    void concerns();
    void states();
};

void tst_StyleDifference::between_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("isComparable");
    QTest::addColumn<bool>("changesLayout");

    const auto add = [](const char *name, const char *before, const char *after, bool isComparable,
                        bool changesLayout) {
        QTest::newRow(name) << before << after << isComparable << changesLayout;
    };
    add("same", "A { color: #111111 }", "A { color: #111111 }", true, false);
    add("colour", "A { color: #111111 }", "A { color: rgba(1, 2, 3, 4) }", true, false);
    add("colour-of-border", "A { border: 1px solid #111111 }", "A { border: 1px solid #222222 }",
        true, false);
    add("width-of-border", "A { border: 1px solid #111111 }", "A { border: 2px solid #111111 }",
        true, true);
    add("radius", "A { border-radius: 1px }", "A { border-radius: 2px }", true, false);
    add("radius-of-corner", "A { border-top-left-radius: 1px }",
        "A { border-top-left-radius: 2px }", true, false);
    add("gradient", "A { background: qlineargradient(stop: 0 #111111) }",
        "A { background: qlineargradient(stop: 0.5 #222222) }", true, false);
    add("image", "A { image: url(a.png) }", "A { image: url(b.png) }", true, true);
    add("image-of-ground", "A { background-image: url(a.png) }",
        "A { background-image: url(b.png) }", true, true);
    add("behind-a-colour", "A { color: #111111; width: 1px }", "A { color: #222222; width: 2px }",
        true, true);
    add("braces-in-quotes", "A[b=\"}{\"] { color: #111111 }", "A[b=\"}{\"] { color: #222222 }",
        true, false);
    add("braces-in-comment", "/* } */ A { color: #111111 }", "/* } */ A { color: #222222 }", true,
        false);
    add("other-selector", "A { color: #111111 }", "B { color: #111111 }", false, false);
    add("one-more", "A { color: #111111 }", "A { color: #111111 } B { color: #111111 }", false,
        false);
    add("open", "A { color: #111111", "A { color: #222222", false, false);
    add("stray-brace", "} A { color: #111111 }", "} A { color: #222222 }", false, false);
    add("at-rule", "@media a { A { color: #111111 } }", "@media a { A { color: #222222 } }", false,
        false);
    add("empty", "", "A { color: #111111 }", false, false);
}

void tst_StyleDifference::between()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    const auto difference = StyleDifference::between(before, after);
    QTEST(difference.has_value(), "isComparable");
    QTEST(difference && difference->changesLayout(), "changesLayout");
}

void tst_StyleDifference::concerns_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<bool>("isConcerned");

    const auto add = [](const char *selector, bool isConcerned) {
        QTest::newRow(selector) << selector << isConcerned;
    };
    add("QPushButton", true);
    add("QAbstractButton", true);
    add("QCheckBox", false);
    add("QButton", false);
    add("*", true);
    add("", true);
    add("#name", true);
    add("QPushButton#other", true); // names are not looked at
    add("QCheckBox#other", false);
    add(".QCheckBox", true); // nor is the exact class
    add("QDialog QPushButton", true);
    add("QPushButton QCheckBox", false);
    add("QPushButton>QCheckBox", false);
    add("QCheckBox, QPushButton", true);
    add("QCheckBox, QLabel", false);
    add("QPushButton[style=general]", true);
    add("QPushButton[style=\"general\"]", true);
    add("QPushButton[style='general']", true);
    add("QPushButton[ style = general ]", true);
    add("QPushButton[style=assist]", false);
    add("QPushButton[style=\"two words\"]", false);
    add("QPushButton[style|=assist]", true);
    add("QPushButton[style]", true);
    add("QPushButton[missing]", false);
    add("QPushButton[missing=a]", false);
    add("QPushButton[flat=false]", true);
    add("QPushButton[flat=true]", false);
    add("QPushButton[class=QCheckBox]", true);
    add("QPushButton[list=a]", true);
    add("QPushButton[style=general]:disabled", true);
    add("QPushButton::menu-indicator", true);
    add("QCheckBox::indicator:checked", false);
    add("QPushButton:hover", false);
    add("QPushButton:!hover", true);
    add("QPushButton:pressed", false);
    add("/* QPushButton */ QCheckBox", false);
    add("\\51PushButton", true); // what is escaped is not understood
}

void tst_StyleDifference::concerns()
{
    QFETCH(QString, selector);
    QPushButton button;
    button.setProperty("style", "general");
    button.setProperty("list", QStringList{"a", "b"});
    const auto difference =
        StyleDifference::between(selector + "{ color: #111111 }", selector + "{ color: #222222 }");
    QVERIFY(difference);
    QTEST(difference->concerns(button), "isConcerned");
}

// A size counts before a state is there, as it may be what the state is left with.
void tst_StyleDifference::states()
{
    QPushButton button;
    QCheckBox box;
    const auto paint = StyleDifference::between("QAbstractButton:hover { color: #111111 }"
                                                "QPushButton:pressed { color: #111111 }",
                                                "QAbstractButton:hover { color: #222222 }"
                                                "QPushButton:pressed { color: #222222 }");
    QVERIFY(paint);
    QVERIFY(!paint->concerns(button) && !paint->concerns(box));
    box.setAttribute(Qt::WA_UnderMouse);
    button.setDown(true);
    QVERIFY(paint->concerns(button) && paint->concerns(box));
    button.setDown(false);
    QWidget inner(&button);
    inner.setAttribute(Qt::WA_UnderMouse);
    QVERIFY(paint->concerns(button));

    const auto size = StyleDifference::between("QCheckBox:hover { padding: 1px }",
                                               "QCheckBox:hover { padding: 2px }");
    QVERIFY(size && size->changesLayout());
    QVERIFY(size->concerns(QCheckBox()));
}

QTEST_MAIN(tst_StyleDifference)
#include "tst_styledifference.moc"

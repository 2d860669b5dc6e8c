// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "restyledapplication.h"
#include "samplewindows.h"

#include <QtTest>

#include <functional>
#include <malloc.h>
#include <memory>

using Window = std::unique_ptr<QWidget>;
using MakeWindow = std::function<QWidget *()>;
Q_DECLARE_METATYPE(MakeWindow)

namespace
{

// Counts how often each widget is told that its style changed.
class StyleChangeCounter : public QObject
{
    Q_OBJECT

public:
    StyleChangeCounter() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange)
            ++counts[object];
        return false;
    }
    int sum() const
    {
        const QList<int> all = counts.values();
        return std::accumulate(all.cbegin(), all.cend(), 0);
    }
    int most() const
    {
        const QList<int> all = counts.values();
        return all.isEmpty() ? 0 : *std::max_element(all.cbegin(), all.cend());
    }

    QHash<QObject *, int> counts;
};

// What an application set up before its windows; undone at the end.
class ApplicationLook
{
    Q_DISABLE_COPY(ApplicationLook)

public:
    explicit ApplicationLook(bool isOwn)
        : m_font(QApplication::font())
    {
        qApp->setStyleSheet(QString());
        if (!isOwn)
            return;
        QApplication::setStyle(new MarkingStyle);
        QApplication::setFont(QFont("DejaVu Serif", 11));
        QPalette palette;
        palette.setColor(QPalette::Window, QColor(0x55, 0x66, 0x77));
        palette.setColor(QPalette::ButtonText, Qt::darkRed);
        QApplication::setPalette(palette);
    }
    ~ApplicationLook()
    {
        qApp->setStyleSheet(QString());
        QApplication::setStyle("fusion");
        QApplication::setFont(m_font);
        QApplication::setPalette(QApplication::style()->standardPalette());
    }

private:
    QFont m_font;
};

} // namespace

/*! HV::changeAppStyleSheet over a running application. */
class tst_Restyling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qApp->setStyleSheet(QString()); }

    void styleSheet_data();
    void styleSheet();
    void pixels_data();
    void pixels();
    void hiddenWidgetShownLater();
    void windowOpenedInBetween();
    void unpolishedToolBar();
    void styleChanges_data();
    void styleChanges();
    void applicationStyle();
    void applicationStyleWithAStyleSheet();
    void memory();

private:
    void apply(int variant) { m_application.apply(variant); }

    RestyledApplication m_application;
};

void tst_Restyling::styleSheet_data()
{
    QTest::addColumn<QString>("before");
    QTest::newRow("none") << QString();
    QTest::newRow("other") << "QLabel { color: red }";
    QTest::newRow("the-library's") << m_application.styleSheet(0);
    QTest::newRow("equal") << m_application.styleSheet(1);
}

void tst_Restyling::styleSheet()
{
    QFETCH(QString, before);
    const Window window(controls());
    polish(window.get());
    qApp->setStyleSheet(before);
    apply(1);
    QVERIFY(!qApp->styleSheet().contains("global."));
    QCOMPARE(qApp->styleSheet(), m_application.styleSheet(1));
}

void tst_Restyling::pixels_data()
{
    QTest::addColumn<MakeWindow>("make");
    QTest::addColumn<bool>("isMadeBefore");
    QTest::addColumn<bool>("ownLook");

    // Views keep sizes, and bars the window's, from when they were made. So their windows are made
    // before the first style sheet; Qt's first one depends on its hash seed where fonts are set.
    const std::tuple<const char *, MakeWindow, bool> windows[] = {
        {"controls", [] { return controls(); }, false},
        {"nested", [] { return nestedWindow(30, 8); }, false},
        {"nested-before", [] { return nestedWindow(30, 8); }, true},
        {"views-before", windowOfViews, true},
        {"bars-before", windowOfBars, true},
        {"own-style-sheets", windowWithOwnStyleSheets, false},
        {"own-style-sheets-before", windowWithOwnStyleSheets, true},
        {"own-palettes", windowWithOwnPalettes, false},
        {"own-palettes-before", windowWithOwnPalettes, true},
        {"own-fonts", windowWithOwnFonts, false},
        {"own-style", windowWithOwnStyle, false},
        {"own-style-before", windowWithOwnStyle, true},
        {"hidden-and-disabled", windowWithHiddenWidgets, false},
    };
    for (const auto &[name, make, isMadeBefore] : windows) {
        QTest::addRow("%s", name) << make << isMadeBefore << false;
        QTest::addRow("%s-in-own-look", name) << make << isMadeBefore << true;
    }
}

void tst_Restyling::pixels()
{
    QFETCH(MakeWindow, make);
    QFETCH(bool, isMadeBefore);
    QFETCH(bool, ownLook);
    const ApplicationLook look(ownLook);

    const auto madeUnder = [&](int variant) {
        qApp->setStyleSheet(QString());
        if (!isMadeBefore)
            apply(variant);
        Window window(make());
        window->resize(700, 1000);
        polish(window.get());
        if (isMadeBefore)
            apply(variant);
        return window;
    };
    Window window = madeUnder(1);
    const QImage fresh = grabbed(window.get());
    window = madeUnder(0);
    QVERIFY(grabbed(window.get()) != fresh);
    apply(1);
    QCOMPARE(grabbed(window.get()), fresh);
    apply(0);
    apply(2);
    apply(1);
    QCOMPARE(grabbed(window.get()), fresh);
}

void tst_Restyling::hiddenWidgetShownLater()
{
    const auto shownAfter = [this](std::initializer_list<int> variants) {
        const Window window(windowWithHiddenWidgets());
        polish(window.get());
        for (int variant : variants)
            apply(variant);
        auto *hidden = window->findChild<QWidget *>("hidden");
        hidden->show();
        polish(hidden);
        QImage image = grabbed(window.get());
        qApp->setStyleSheet(QString());
        return image;
    };
    QCOMPARE(shownAfter({0, 1}), shownAfter({1}));
}

void tst_Restyling::windowOpenedInBetween()
{
    apply(1);
    const Window fresh(controls());
    polish(fresh.get());

    apply(0);
    const Window opened(controls());
    polish(opened.get());
    auto *dialog = new QDialog(opened.get());
    controls(dialog);
    polish(dialog);
    apply(1);
    QCOMPARE(grabbed(opened.get()), grabbed(fresh.get()));
    auto *freshDialog = new QDialog(fresh.get());
    controls(freshDialog);
    polish(freshDialog);
    QCOMPARE(grabbed(dialog), grabbed(freshDialog));
}

// A tool bar reads its spacing when it is made, long before it is polished.
void tst_Restyling::unpolishedToolBar()
{
    const auto makeBar = [] {
        auto bar = std::make_unique<QToolBar>();
        bar->addAction("one");
        bar->addAction("two");
        return bar;
    };
    apply(1);
    const auto fresh = makeBar();
    polish(fresh.get());
    const QImage expected = grabbed(fresh.get());

    qApp->setStyleSheet("QToolBar { spacing: 40px; border: 9px solid red }");
    const auto bar = makeBar();
    apply(1);
    polish(bar.get());
    QCOMPARE(grabbed(bar.get()), expected);
}

void tst_Restyling::styleChanges_data()
{
    QTest::addColumn<MakeWindow>("make");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("isPolished");

    const MakeWindow lone = []() -> QWidget * { return new QLabel("label"); };
    const MakeWindow dialogs = [] {
        QWidget *window = controls();
        controls(new QDialog(new QDialog(window)));
        return window;
    };
    const MakeWindow flat = [] { return nestedWindow(40, 0); };
    const MakeWindow deep = [] { return nestedWindow(40, 16); };
    QTest::newRow("nothing") << lone << 0 << true;
    QTest::newRow("lone-widgets") << lone << 30 << true;
    QTest::newRow("lone-unpolished-widgets") << lone << 30 << false;
    QTest::newRow("flat") << flat << 2 << true;
    QTest::newRow("flat-unpolished") << flat << 2 << false;
    QTest::newRow("deep") << deep << 2 << true;
    QTest::newRow("dialogs") << dialogs << 2 << true;
    QTest::newRow("views") << MakeWindow(windowOfViews) << 1 << true;
    QTest::newRow("bars") << MakeWindow(windowOfBars) << 1 << true;
    QTest::newRow("own-style-sheets") << MakeWindow(windowWithOwnStyleSheets) << 1 << true;
    QTest::newRow("own-style") << MakeWindow(windowWithOwnStyle) << 1 << true;
    QTest::newRow("hidden") << MakeWindow(windowWithHiddenWidgets) << 1 << true;
}

void tst_Restyling::styleChanges()
{
    QFETCH(MakeWindow, make);
    QFETCH(int, count);
    QFETCH(bool, isPolished);

    const auto counted = [&](const std::function<void()> &change) {
        apply(0);
        std::vector<Window> windows;
        for (int i = 0; i < count; ++i) {
            windows.emplace_back(make());
            if (isPolished)
                polish(windows.back().get());
        }
        StyleChangeCounter counter;
        change();
        qApp->removeEventFilter(&counter);
        return qMakePair(counter.sum(), counter.most());
    };
    const QString styleSheet = m_application.styleSheet(1);
    const auto replaced = counted([&] { qApp->setStyleSheet(styleSheet); });
    const auto switched = counted([this] { apply(1); });
    QVERIFY2(switched.first <= replaced.first,
             qPrintable(QString("%1 over %2").arg(switched.first).arg(replaced.first)));
    QVERIFY(switched.second <= 1);
    QCOMPARE(switched.second, replaced.second > 0 ? 1 : 0);
}

void tst_Restyling::applicationStyle()
{
    const ApplicationLook look(true);
    const QPointer<QStyle> style = QApplication::style();
    auto *marking = dynamic_cast<MarkingStyle *>(style.data());
    QVERIFY(marking);
    apply(0);
    const Window window(controls());
    polish(window.get());
    const int polished = marking->polished;
    const QPalette palette = QApplication::palette();
    apply(1);
    QVERIFY(style);
    QCOMPARE(marking->polished, polished);
    QCOMPARE(QApplication::palette(), palette);
    QCOMPARE(QApplication::font().family(), QString("DejaVu Serif"));
}

void tst_Restyling::applicationStyleWithAStyleSheet()
{
    const ApplicationLook look(false);
    auto *style = new MarkingStyle;
    style->styleSheet = "QLabel { color: red }";
    QApplication::setStyle(style);
    QCOMPARE(qApp->styleSheet(), style->styleSheet);
    const Window window(controls());
    polish(window.get());
    apply(1);
    QCOMPARE(qApp->styleSheet(), m_application.styleSheet(1));
}

// What the 100th switch holds, the 400th holds.
void tst_Restyling::memory()
{
    if (mallinfo2().uordblks == 0)
        QSKIP("this allocator does not count");
    const Window window(controls());
    polish(window.get());
    size_t used[2] = {};
    for (int i = 1; i <= 400; ++i) {
        apply(i % 2);
        QCoreApplication::sendPostedEvents();
        if (i % 300 == 100)
            used[i / 400] = mallinfo2().uordblks;
    }
    const auto growth = qint64(used[1]) - qint64(used[0]);
    QVERIFY2(growth < qint64(64) * 1024, qPrintable(QString("%1 bytes more").arg(growth)));
}

QTEST_MAIN(tst_Restyling)
#include "tst_restyling.moc"

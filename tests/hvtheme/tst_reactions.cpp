// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "restyledapplication.h"
#include "samplewindows.h"

#include <QtTest>

#include <functional>
#include <memory>

using Window = std::unique_ptr<QWidget>;

namespace
{

// Does something when its style changes, the first time.
class ReactingWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
    std::function<void(ReactingWidget *)> react;

protected:
    void changeEvent(QEvent *event) override
    {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::StyleChange && react)
            std::exchange(react, nullptr)(this);
    }
};

// Paints whenever anything about it changes, and keeps what it looked like.
class ImpatientLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
    QVector<QRgb> seen;

protected:
    void changeEvent(QEvent *event) override
    {
        QLabel::changeEvent(event);
        repaint();
    }
    void paintEvent(QPaintEvent *event) override
    {
        QLabel::paintEvent(event);
        seen.append(palette().color(QPalette::WindowText).rgb());
    }
};

} // namespace

/*! Widgets that paint, create, delete or switch while the application is restyled. */
class tst_Reactions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qApp->setStyleSheet(QString()); }

    void noFrameInBetween();
    void childrenCreatedMeanwhile();
    void widgetsDeletedMeanwhile();
    void switchedMeanwhile();

private:
    void apply(int variant) { m_application.apply(variant); }

    RestyledApplication m_application;
};

void tst_Reactions::noFrameInBetween()
{
    apply(0);
    auto *label = new ImpatientLabel("label");
    const Window window(column({label, controls()}));
    window->setAttribute(Qt::WA_DontShowOnScreen);
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
    window->show();
    const auto color = [label] { return label->palette().color(QPalette::WindowText).rgb(); };
    const QRgb before = color();
    label->seen.clear();
    apply(1);
    label->repaint();
    const QRgb after = color();
    QVERIFY(before != after);
    QVERIFY(label->seen.contains(after));
    for (QRgb seen : qAsConst(label->seen))
        QVERIFY2(seen == before || seen == after, qPrintable(QColor(seen).name()));
}

void tst_Reactions::childrenCreatedMeanwhile()
{
    const auto create = [](ReactingWidget *widget) {
        QWidget *page = controls(widget);
        page->show();
        polish(page);
    };
    apply(1);
    const Window fresh(column({new ReactingWidget}));
    fresh->resize(400, 700);
    polish(fresh.get());
    create(fresh->findChild<ReactingWidget *>());
    const QImage expected = grabbed(fresh.get());

    apply(0);
    const Window window(column({new ReactingWidget}));
    window->resize(400, 700);
    polish(window.get());
    window->findChild<ReactingWidget *>()->react = create;
    apply(1);
    QCOMPARE(grabbed(window.get()), expected);
}

void tst_Reactions::widgetsDeletedMeanwhile()
{
    apply(0);
    QVector<QPointer<QWidget>> victims;
    auto *reacting = new ReactingWidget;
    const Window window(column({controls(), reacting, controls()}));
    for (int i = 0; i < 20; ++i)
        victims << controls(reacting) << controls(window.get()) << new QLabel("window");
    polish(window.get());
    for (const QPointer<QWidget> &victim : qAsConst(victims))
        polish(victim);
    reacting->react = [&victims](ReactingWidget *) {
        for (const QPointer<QWidget> &victim : qAsConst(victims))
            delete victim;
    };
    apply(1);
    for (const QPointer<QWidget> &victim : qAsConst(victims))
        QVERIFY(!victim);

    const Window fresh(column({controls(), new ReactingWidget, controls()}));
    polish(fresh.get());
    QCOMPARE(grabbed(window.get()), grabbed(fresh.get()));
}

void tst_Reactions::switchedMeanwhile()
{
    apply(2);
    const Window fresh(column({controls(), new ReactingWidget, controls()}));
    polish(fresh.get());
    const QImage expected = grabbed(fresh.get());

    apply(0);
    auto *reacting = new ReactingWidget;
    const Window window(column({controls(), reacting, controls()}));
    polish(window.get());
    reacting->react = [this](ReactingWidget *) { apply(2); };
    apply(1);
    QCOMPARE(qApp->styleSheet(), m_application.styleSheet(2));
    QCOMPARE(grabbed(window.get()), expected);
    QCOMPARE(grabbed(fresh.get()), expected);
}

QTEST_MAIN(tst_Reactions)
#include "tst_reactions.moc"

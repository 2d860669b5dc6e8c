// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "quietplatform.h"

#include <inspector/inspectorpane.h>
#include <inspector/inspectorwindow.h>

#include <hvthemeapp/applicationtheme.h>

#include <QtTest>
#include <QtWidgets>

// The inspector as a user has it, on a program with one window.
class tst_InspectorWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void picksByClick();
    void picksDirectly();
    void escapeEndsPicking();
    void handsOffWhilePicking_data();
    void handsOffWhilePicking();
    void picksWhatIsFound();
    void frameFollows();
    void picksInMenus();
    void worksBesideModalDialogs();
    void doesNotListItself();
    void filter_data();
    void filter();
    void overriddenIsStruckThrough();
    void forcedStates_data();
    void forcedStates();
    void forcedStatesStay_data();
    void forcedStatesStay();
    void forcedButtonDies_data();
    void forcedButtonDies();
    void focusComesBack_data();
    void focusComesBack();
    void forcedStatesReachNobody_data();
    void forcedStatesReachNobody();
    void showsUsers();
    void survivesDeath();
    void forgetsTheDead();
    void sameAddress();
    void windowsStandInOrder();
    void treeStaysOpen();
    void hasOneLook();
    void accessibleNames();

private:
    QTreeWidget *list(const char *name) const;
    QCheckBox *stateBox(const QString &state) const;

    std::unique_ptr<QuietPlatform> m_quiet;
    HV::ApplicationTheme m_theme;
    std::unique_ptr<QWidget> m_program;
    QPushButton *m_button = nullptr;
    QLabel *m_label = nullptr;
    std::unique_ptr<InspectorWindow> m_window;
};

void tst_InspectorWindow::initTestCase()
{
    m_quiet = std::make_unique<QuietPlatform>();
    QVERIFY(m_theme.setName("dark"));
}

void tst_InspectorWindow::init()
{
    QCursor::setPos(700, 700); // where the test before left it, a window would come to lie below it
    m_program = std::make_unique<QWidget>();
    auto *column = new QVBoxLayout(m_program.get());
    m_button = new QPushButton("Push");
    m_button->setObjectName("ok");
    m_button->setProperty("style", "general");
    m_button->setCheckable(true);
    m_label = new QLabel("Words");
    column->addWidget(m_button);
    column->addWidget(m_label);
    m_program->setGeometry(0, 0, 200, 120);
    m_program->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_program.get()));
    m_window = std::make_unique<InspectorWindow>();
    m_window->setAttribute(Qt::WA_DeleteOnClose, false);
    m_window->move(220, 0);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_InspectorWindow::cleanup()
{
    m_window.reset();
    m_program.reset();
}

QTreeWidget *tst_InspectorWindow::list(const char *name) const
{
    const auto lists = m_window->findChildren<QTreeWidget *>();
    for (QTreeWidget *list : lists) {
        if (list->accessibleName() == name)
            return list;
    }
    return nullptr;
}

QCheckBox *tst_InspectorWindow::stateBox(const QString &state) const
{
    const auto boxes = m_window->findChildren<QCheckBox *>();
    for (QCheckBox *box : boxes) {
        if (box->text() == ':' + state)
            return box;
    }
    return nullptr;
}

void tst_InspectorWindow::picksByClick()
{
    QSignalSpy clicked(m_button, &QPushButton::clicked);
    auto *pick = m_window->findChild<QToolButton *>();
    QTest::keyClick(m_window.get(), Qt::Key_P, Qt::AltModifier);
    if (!pick->isChecked())
        pick->click();
    QVERIFY(pick->isChecked());
    QTest::mouseMove(m_button);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QCOMPARE(m_window->pane()->pickedWidget(), m_button);
    QVERIFY(!pick->isChecked());
    QCOMPARE(clicked.size(), 0); // the program saw nothing of it
    QTest::mouseClick(m_button, Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
}

void tst_InspectorWindow::picksDirectly()
{
    QTest::mouseClick(m_label, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_window->pane()->pickedWidget(), m_label);
}

void tst_InspectorWindow::escapeEndsPicking()
{
    auto *pick = m_window->findChild<QToolButton *>();
    pick->click();
    QTest::keyClick(m_button, Qt::Key_Escape);
    QVERIFY(!pick->isChecked());
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(!m_window->pane()->pickedWidget());
}

void tst_InspectorWindow::handsOffWhilePicking_data()
{
    QTest::addColumn<int>("type");

    QTest::newRow("wheel") << int(QEvent::Wheel);
    QTest::newRow("menu") << int(QEvent::ContextMenu);
}

// A wheel would change values, and a menu would open.
void tst_InspectorWindow::handsOffWhilePicking()
{
    QFETCH(int, type);
    QSpinBox spin(m_program.get());
    spin.setContextMenuPolicy(Qt::CustomContextMenu);
    spin.setValue(5);
    spin.show();
    QSignalSpy menus(&spin, &QWidget::customContextMenuRequested);
    const auto use = [&] {
        if (type == QEvent::Wheel) {
            QWheelEvent wheel(QPointF(3, 3), spin.mapToGlobal(QPointF(3, 3).toPoint()), {},
                              {0, 120}, {}, {}, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&spin, &wheel);
        } else {
            QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(3, 3),
                                   spin.mapToGlobal(QPoint(3, 3)));
            QCoreApplication::sendEvent(&spin, &menu);
        }
    };
    auto *pick = m_window->findChild<QToolButton *>();
    pick->click();
    use();
    QCOMPARE(spin.value(), 5);
    QCOMPARE(menus.size(), 0);
    if (type == QEvent::ContextMenu) { // it comes between press and release
        QTest::mousePress(&spin, Qt::RightButton);
        QVERIFY(spin.isAncestorOf(m_window->pane()->pickedWidget()));
        use();
        QCOMPARE(menus.size(), 0);
        QTest::mouseRelease(&spin, Qt::RightButton);
    } else {
        pick->click();
    }
    use();
    QCOMPARE(spin.value() - 5 + menus.size(), 1);
}

// The program knows better than Qt what is seen where.
void tst_InspectorWindow::picksWhatIsFound()
{
    m_window->pane()->setFinder([this](const QPoint &place) {
        return QApplication::widgetAt(place) == m_label ? Picker::Seen{m_button, QPoint(5, 5)}
                                                        : Picker::Seen();
    });
    QTest::mouseClick(m_label, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_window->pane()->pickedWidget(), m_button);
    m_window->pane()->pick(m_label);
    QTest::mouseClick(m_button, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_window->pane()->pickedWidget(), m_button); // of which nothing is said
    m_window->pane()->setFinder({});
    QTest::mouseClick(m_label, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_window->pane()->pickedWidget(), m_label);
}

void tst_InspectorWindow::frameFollows()
{
    QScrollArea area;
    auto *contents = new QWidget;
    contents->setFixedSize(300, 600);
    auto *button = new QPushButton(contents);
    button->setGeometry(10, 40, 80, 30);
    area.setWidget(contents);
    area.resize(200, 150);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    m_window->pane()->pick(button);
    QWidget *frame = nullptr;
    const auto children = area.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children)
        frame = Outline::isFrame(child) ? child : frame;
    QVERIFY(frame);
    const auto place = [&] { return QRect(button->mapTo(&area, QPoint()), button->size()); };
    QCOMPARE(frame->geometry(), place());
    area.verticalScrollBar()->setValue(25);
    QCOMPARE(frame->geometry(), place());
    QVERIFY(frame->isVisible());
    area.verticalScrollBar()->setValue(60); // half of it is out of sight
    QVERIFY(frame->isVisible());
    const int edge = area.viewport()->y() - frame->y(); // of the view, in the frame
    QVERIFY(edge > 0 && edge < frame->height());
    QVERIFY(!frame->mask().contains(QPoint(1, edge - 1)));
    QVERIFY(frame->mask().contains(QPoint(1, edge)));
    area.verticalScrollBar()->setValue(200);
    QVERIFY(!frame->isVisible());
    area.verticalScrollBar()->setValue(0);
    QVERIFY(frame->isVisible());
}

void tst_InspectorWindow::picksInMenus()
{
    QMenu menu;
    QAction *first = menu.addAction("First");
    menu.popup(QPoint(10, 10));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier,
                      menu.actionGeometry(first).center());
    QCOMPARE(m_window->pane()->pickedWidget(), &menu);
    QCOMPARE(m_window->pane()->inspection().subControl, QString("item"));
    QVERIFY(menu.isVisible());
}

void tst_InspectorWindow::worksBesideModalDialogs()
{
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTRY_COMPARE(m_window->windowHandle()->transientParent(), dialog.windowHandle());
    auto *edit = m_window->findChild<QLineEdit *>();
    QTest::mouseClick(edit, Qt::LeftButton);
    QTest::keyClicks(edit, "x");
    QCOMPARE(edit->text(), QString("x"));
    dialog.close();
    QTRY_VERIFY(!m_window->windowHandle()->transientParent());
}

void tst_InspectorWindow::doesNotListItself()
{
    const auto *tree = m_window->findChild<QTreeView *>();
    const auto *model = static_cast<const WidgetTree *>(tree->model());
    QVERIFY(model->indexOf(m_button).isValid());
    const QList<QWidget *> all = model->widgets();
    for (const QWidget *widget : all)
        QVERIFY(widget->window() != m_window.get());
}

void tst_InspectorWindow::filter_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasButton");
    QTest::addColumn<bool>("hasLabel");

    QTest::newRow("class") << "QPushButton" << true << false;
    QTest::newRow("base-class") << "qabstractbutton" << true << false;
    QTest::newRow("name") << "#ok" << true << false;
    QTest::newRow("property") << "style=general" << true << false;
    QTest::newRow("text") << "Words" << false << true;
    QTest::newRow("nothing") << "no such thing" << false << false;
}

void tst_InspectorWindow::filter()
{
    QFETCH(QString, text);
    QFETCH(bool, hasButton);
    QFETCH(bool, hasLabel);
    auto *edit = m_window->findChild<QLineEdit *>();
    edit->setText(text);
    const auto *model =
        static_cast<const WidgetTree *>(m_window->findChild<QTreeView *>()->model());
    QCOMPARE(model->indexOf(m_button).isValid(), hasButton);
    QCOMPARE(model->indexOf(m_label).isValid(), hasLabel);
}

void tst_InspectorWindow::overriddenIsStruckThrough()
{
    m_window->pane()->pick(m_button);
    const QTreeWidget *rules = list("Rules");
    QVERIFY(rules);
    QVERIFY(rules->topLevelItemCount() > 1);
    int struck = 0;
    for (int i = 0; i < rules->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *rule = rules->topLevelItem(i);
        for (int j = 0; j < rule->childCount(); ++j) {
            if (!rule->child(j)->font(0).strikeOut())
                continue;
            ++struck;
            QVERIFY(!rule->child(j)->text(4).isEmpty()); // by whom
        }
    }
    QVERIFY(struck > 0);
}

void tst_InspectorWindow::forcedStates_data()
{
    QTest::addColumn<QString>("state");

    for (const char *state : {"hover", "pressed", "checked", "disabled", "focus"})
        QTest::newRow(state) << state;
}

void tst_InspectorWindow::forcedStates()
{
    QFETCH(QString, state);
    m_window->pane()->pick(m_button);
    QSignalSpy toggled(m_button, &QPushButton::toggled);
    QCheckBox *box = stateBox(state);
    QVERIFY(box);
    m_window->activateWindow();
    box->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QVERIFY(!m_window->pane()->inspection().element.states.contains(state));
    box->click();
    QVERIFY(m_window->pane()->inspection().element.states.contains(state));
    box->click();
    QVERIFY(!m_window->pane()->inspection().element.states.contains(state));
    QCOMPARE(toggled.size(), 0);
    box->click();
    m_window.reset(); // all is put back
    QVERIFY(m_button->isEnabled());
    QVERIFY(!m_button->isDown() && !m_button->isChecked() && !m_button->focusProxy());
}

void tst_InspectorWindow::forcedStatesStay_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("hand");

    QTest::newRow("hover-crossed") << "hover"
                                   << "cross";
    QTest::newRow("hover-clicked") << "hover"
                                   << "click";
    QTest::newRow("pressed-clicked") << "pressed"
                                     << "click";
    QTest::newRow("pressed-by-key") << "pressed"
                                    << "key";
    QTest::newRow("pressed-disabled") << "pressed"
                                      << "disable";
}

// Until the box is cleared; then the widget is what the user's hand has made it.
void tst_InspectorWindow::forcedStatesStay()
{
    QFETCH(QString, state);
    QFETCH(QString, hand);
    const auto isInState = [&] {
        QCoreApplication::processEvents();
        return state == "hover" ? m_button->underMouse() : m_button->isDown();
    };
    m_window->pane()->pick(m_button);
    stateBox(state)->click();
    QVERIFY(isInState());
    if (hand == "cross") {
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QCoreApplication::sendEvent(m_button, &enter);
        QVERIFY(isInState());
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(m_button, &leave);
    } else if (hand == "click") {
        QSignalSpy clicked(m_button, &QPushButton::clicked);
        QTest::mouseClick(m_button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 1);
    } else if (hand == "key") {
        QTest::keyClick(m_button, Qt::Key_Space);
    } else {
        m_button->setEnabled(false);
        m_button->setEnabled(true);
    }
    QVERIFY(isInState());
    stateBox(state)->click();
    QVERIFY(!isInState());
}

void tst_InspectorWindow::forcedButtonDies_data()
{
    QTest::addColumn<QString>("checked"); // before
    QTest::addColumn<bool>("isGroup");
    QTest::addColumn<bool>("choosesAnother"); // while the state is forced
    QTest::addColumn<QString>("left");

    QTest::newRow("neighbour") << "other" << false << false << "other";
    QTest::newRow("neighbour-in-group") << "other" << true << false << "other";
    QTest::newRow("none") << "" << false << false << "";
    QTest::newRow("another-chosen") << "other" << false << true << "third";
}

// What was unchecked for it is checked again.
void tst_InspectorWindow::forcedButtonDies()
{
    QFETCH(QString, checked);
    QFETCH(bool, isGroup);
    QFETCH(bool, choosesAnother);
    QFETCH(QString, left);
    QHash<QString, QRadioButton *> buttons;
    QButtonGroup group;
    for (const char *name : {"picked", "other", "third"}) {
        buttons[name] = new QRadioButton(name, m_program.get());
        m_program->layout()->addWidget(buttons[name]);
        if (isGroup)
            group.addButton(buttons[name]);
        buttons[name]->setChecked(name == checked);
    }
    m_window->pane()->pick(buttons["picked"]);
    QSignalSpy toggled(buttons["other"], &QAbstractButton::toggled);
    stateBox("checked")->click();
    QVERIFY(!buttons["other"]->isChecked());
    if (choosesAnother)
        buttons["third"]->click();
    delete buttons.take("picked");
    for (auto it = buttons.cbegin(); it != buttons.cend(); ++it)
        QCOMPARE((*it)->isChecked(), it.key() == left);
    QCOMPARE(toggled.size(), 0);
}

void tst_InspectorWindow::focusComesBack_data()
{
    QTest::addColumn<bool>("hasOther"); // that could take it
    QTest::addColumn<bool>("isMoved"); // by the user, meanwhile

    QTest::newRow("to-the-next") << true << false;
    QTest::newRow("to-nobody") << false << false;
    QTest::newRow("moved-on") << true << true;
}

// What is disabled for a look has the focus of its window again after it.
void tst_InspectorWindow::focusComesBack()
{
    QFETCH(bool, hasOther);
    QFETCH(bool, isMoved);
    QWidget window;
    auto *row = new QHBoxLayout(&window);
    auto *edit = new QLineEdit("edit");
    auto *next = new QLineEdit("next");
    auto *last = new QLineEdit("last");
    for (QLineEdit *each : {edit, next, last}) {
        row->addWidget(each);
        each->setEnabled(hasOther || each == edit);
    }
    window.show();
    edit->setFocus();
    QCOMPARE(window.focusWidget(), edit);
    QSignalSpy finished(edit, &QLineEdit::editingFinished);
    m_window->activateWindow();
    m_window->pane()->pick(edit);
    QCheckBox *box = stateBox("disabled");
    QVERIFY(box);
    box->click();
    QVERIFY(!edit->isEnabled());
    if (isMoved)
        last->setFocus();
    box->click();
    QVERIFY(edit->isEnabled());
    QCOMPARE(window.focusWidget(), isMoved ? last : edit);
    QCOMPARE(finished.size(), 0);
}

void tst_InspectorWindow::forcedStatesReachNobody_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("state");

    QTest::newRow("radio") << "radio"
                           << "checked";
    QTest::newRow("radio-none-checked") << "none"
                                        << "checked";
    QTest::newRow("radio-checked-itself") << "itself"
                                          << "checked";
    QTest::newRow("group") << "group"
                           << "checked";
    QTest::newRow("group-none-checked") << "group-none"
                                        << "checked";
    QTest::newRow("tristate") << "tristate"
                              << "checked";
    QTest::newRow("repeating") << "repeating"
                               << "pressed";
}

// Neither signals nor what is left behind: the choice is the program's.
void tst_InspectorWindow::forcedStatesReachNobody()
{
    QFETCH(QString, kind);
    QFETCH(QString, state);
    QAbstractButton *picked = m_button;
    auto *other = new QRadioButton("Other", m_program.get());
    QButtonGroup group;
    if (kind == "tristate") {
        auto *box = new QCheckBox("Partly", m_program.get());
        box->setCheckState(Qt::PartiallyChecked);
        picked = box;
    } else if (kind == "repeating") {
        picked->setCheckable(false);
        picked->setAutoRepeat(true);
        picked->setAutoRepeatDelay(1);
        picked->setAutoRepeatInterval(1);
    } else {
        picked = new QRadioButton("This", m_program.get());
    }
    if (kind.startsWith("group")) {
        group.addButton(picked);
        group.addButton(other);
    }
    other->setChecked(kind == "radio" || kind == "group");
    if (kind == "itself")
        picked->setChecked(true);
    for (QWidget *widget : QList<QWidget *>{picked, other})
        m_program->layout()->addWidget(widget);
    const bool wasChecked = picked->isChecked();
    const bool wasOther = other->isChecked();
    QSignalSpy toggled(picked, &QAbstractButton::toggled);
    QSignalSpy clicked(picked, &QAbstractButton::clicked);
    QSignalSpy otherToggled(other, &QAbstractButton::toggled);
    QSignalSpy groupToggled(&group, &QButtonGroup::idToggled);
    m_window->pane()->pick(picked);
    QCheckBox *box = stateBox(state);
    QVERIFY(box && box->isEnabled());
    box->click();
    QTest::qWait(kind == "repeating" ? 50 : 0); // time to click, if it would
    if (kind != "repeating")
        QVERIFY(picked->isChecked() && !other->isChecked());
    box->click();
    QCOMPARE(picked->isChecked(), wasChecked);
    QCOMPARE(other->isChecked(), wasOther);
    if (kind == "tristate")
        QCOMPARE(static_cast<QCheckBox *>(picked)->checkState(), Qt::PartiallyChecked);
    QCOMPARE(picked->autoRepeat(), kind == "repeating");
    QCOMPARE(toggled.size() + clicked.size() + otherToggled.size() + groupToggled.size(), 0);
    if (kind == "tristate" || kind == "repeating")
        return;
    other->click(); // they exclude one another as ever
    QVERIFY(other->isChecked() && !picked->isChecked());
    picked->click();
    QVERIFY(picked->isChecked() && !other->isChecked());
}

void tst_InspectorWindow::showsUsers()
{
    m_window->pane()->pick(m_button);
    const InspectedValue *value = m_window->pane()->inspection().value("background-color");
    QVERIFY(value);
    m_window->pane()->showUsers({value->match.offset}, "the rule");
    int frames = 0;
    const auto children = m_program->findChildren<QWidget *>();
    for (const QWidget *child : children)
        frames += Outline::isFrame(child) ? 1 : 0;
    QVERIFY(frames >= 2); // of the picked one, and of the user
    m_window.reset();
    const auto later = m_program->findChildren<QWidget *>();
    for (const QWidget *child : later)
        QVERIFY(!Outline::isFrame(child));
}

void tst_InspectorWindow::survivesDeath()
{
    m_window->pane()->pick(m_button);
    delete m_button;
    QCoreApplication::processEvents();
    m_window->pane()->refresh();
    QVERIFY(!m_window->pane()->pickedWidget());
    m_window->pane()->pick(m_label);
    m_program.reset();
    QCoreApplication::processEvents();
    m_window->pane()->refresh();
}

void tst_InspectorWindow::forgetsTheDead()
{
    m_window->pane()->pick(m_button);
    stateBox("pressed")->click();
    QVERIFY(list("Values")->topLevelItemCount() > 0);
    delete m_button;
    QTRY_COMPARE(list("Values")->topLevelItemCount(), 0); // by itself
    QCOMPARE(list("Rules")->topLevelItemCount(), 0);
    QVERIFY(!stateBox("pressed")->isChecked() && !stateBox("pressed")->isEnabled());
    const auto labels = m_window->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        QVERIFY(label->accessibleName() != "Contrast of the text" || label->text().isEmpty());
    m_window->pane()->pick(m_label);
    QVERIFY(stateBox("hover")->isEnabled() && list("Values")->topLevelItemCount() > 0);
}

void tst_InspectorWindow::sameAddress()
{
    WidgetTree tree([](const QWidget *) { return false; });
    std::aligned_storage_t<sizeof(QLabel), alignof(QLabel)> place;
    auto *label = new (&place) QLabel("First", m_program.get());
    tree.refresh();
    QCOMPARE(tree.widgetAt(tree.indexOf(label)), label);
    label->~QLabel();
    label = new (&place) QLabel("Second", m_program.get());
    QVERIFY(!tree.indexOf(label).isValid());
    tree.refresh();
    QCOMPARE(tree.widgetAt(tree.indexOf(label)), label);
    label->~QLabel();
}

void tst_InspectorWindow::windowsStandInOrder()
{
    QLabel windows[6]; // Qt keeps them in no order
    for (int i = 0; i < 6; ++i) {
        windows[i].setObjectName(QString("window%1").arg(i * 5 % 6));
        windows[i].setVisible(i % 2 == 0);
    }
    WidgetTree tree(
        [](const QWidget *widget) { return !widget->window()->objectName().startsWith("window"); });
    tree.refresh();
    QStringList names;
    for (int row = 0; row < tree.rowCount(); ++row)
        names << tree.index(row, 0).data().toString();
    QCOMPARE(names,
             QStringList({"QLabel#window0", "QLabel#window2", "QLabel#window4", "QLabel#window1",
                          "QLabel#window3", "QLabel#window5"}));
}

void tst_InspectorWindow::treeStaysOpen()
{
    auto *view = m_window->findChild<QTreeView *>();
    auto *tree = static_cast<WidgetTree *>(view->model());
    m_window->pane()->refresh();
    view->collapseAll();
    view->expand(tree->indexOf(m_program.get()));
    m_window->pane()->refresh();
    QVERIFY(view->isExpanded(tree->indexOf(m_program.get())));
    m_window->pane()->showUsers({}, "nothing");
    QVERIFY(view->isExpanded(tree->indexOf(m_program.get())));
}

void tst_InspectorWindow::hasOneLook()
{
    m_window->pane()->pick(m_label);
    m_program->hide();
    const auto picture = [this](const char *name) {
        m_theme.setName(name);
        QCoreApplication::processEvents();
        m_window->pane()->refresh(); // now, not while the picture is taken
        // The figures differ; the look of what shows them may not.
        const auto lists = m_window->findChildren<QTreeWidget *>();
        for (QTreeWidget *list : lists)
            list->clear();
        const auto labels = m_window->findChildren<QLabel *>();
        for (QLabel *label : labels)
            label->clear();
        m_window->setFocus();
        QCoreApplication::processEvents(); // a label without text is lower
        return m_window->grab().toImage();
    };
    const QImage dark = picture("dark");
    for (const char *name : {"light", "contrast"}) {
        const QImage other = picture(name);
        QVERIFY2(other == dark, name);
    }
    m_theme.setName("dark");
}

void tst_InspectorWindow::accessibleNames()
{
    const auto widgets = m_window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isInner = widget->objectName().startsWith("qt_")
            || qobject_cast<QTabBar *>(widget) || qobject_cast<QAbstractButton *>(widget);
        if (widget->focusPolicy() == Qt::NoFocus || isInner || !widget->isVisible()
            || qobject_cast<QTabWidget *>(widget) || qobject_cast<QHeaderView *>(widget))
            continue;
        QVERIFY2(!widget->accessibleName().isEmpty(), widget->metaObject()->className());
    }
}

QTEST_MAIN(tst_InspectorWindow)

#include "tst_inspectorwindow.moc"

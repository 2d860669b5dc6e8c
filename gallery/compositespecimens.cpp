// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "compositespecimens.h"

#include "heldstate.h"
#include "specimentable.h"

#include <QCalendarWidget>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QMenu>
#include <QScrollArea>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTabBar>
#include <QTableView>
#include <QTableWidget>
#include <QToolButton>

namespace Gallery
{

namespace
{

bool hasState(const Specimen &specimen, const char *state)
{
    return specimen.parts.states.contains(QLatin1String(state));
}

void disableItems(QTableWidget *table)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            QTableWidgetItem *item = table->item(row, column);
            item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
        }
    }
}

// The year field shows only while a year is typed; it takes the place of the year button.
void showYearField(QCalendarWidget *calendar, const Specimen &specimen)
{
    auto *field = calendar->findChild<QSpinBox *>(QStringLiteral("qt_calendar_yearedit"));
    auto *button = calendar->findChild<QWidget *>(QStringLiteral("qt_calendar_yearbutton"));
    if (field == nullptr || button == nullptr)
        return;
    QWidget *bar = button->parentWidget();
    calendar->ensurePolished();
    calendar->layout()->activate();
    bar->layout()->activate();
    const QRect place(button->x(), 0, field->sizeHint().width(), bar->height());
    QSizePolicy policy = button->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    button->setSizePolicy(policy);
    button->hide();
    field->setGeometry(place);
    field->show();
    if (hasState(specimen, "hover"))
        holdHover(field);
    if (hasState(specimen, "focus"))
        holdFocus(field);
}

void holdNavigationState(QCalendarWidget *calendar, const Specimen &specimen)
{
    auto *button = calendar->findChild<QToolButton *>(QStringLiteral("qt_calendar_prevmonth"));
    if (button == nullptr)
        return;
    if (hasState(specimen, "hover"))
        holdHover(button);
    button->setDown(hasState(specimen, "pressed"));
}

void holdDayState(QCalendarWidget *calendar, const Specimen &specimen)
{
    auto *days = calendar->findChild<QTableView *>(QStringLiteral("qt_calendar_calendarview"));
    if (days != nullptr && hasState(specimen, "hover"))
        holdItemHover(days, 3, 3);
    if (hasState(specimen, "disabled"))
        calendar->setDateRange(QDate(2026, 3, 9), QDate(2026, 3, 19));
    if (hasState(specimen, "disabled") && hasState(specimen, "selected"))
        calendar->setEnabled(false);
}

// Qt's calendar has no combo box of its own; the templates style one that a program adds.
void addComboBox(QCalendarWidget *calendar)
{
    auto *comboBox = new QComboBox(calendar);
    comboBox->addItem(QStringLiteral("Week"));
    comboBox->setGeometry(40, 2, 90, 24);
}

} // namespace

QWidget *createScrollArea(const Specimen &)
{
    auto *area = new QScrollArea;
    auto *content = new QLabel(QStringLiteral("Lamp\nShutter\nIris\nGobo\nPrism\nZoom"));
    area->setWidget(content);
    content->setAutoFillBackground(false); // which setWidget() sets, and which hides the rule
    area->setFixedSize(150, 70);
    return area;
}

QWidget *createListWidget(const Specimen &specimen)
{
    auto *list = new QListWidget;
    list->addItems({"Scenes", "Cues", "Patches"});
    list->setFixedSize(140, 92);
    if (specimen.parts.subControl.isEmpty())
        return list;
    makeInert(list);
    if (hasState(specimen, "hover"))
        holdItemHover(list, 1, 0);
    if (hasState(specimen, "selected"))
        list->setCurrentRow(1);
    if (hasState(specimen, "disabled"))
        list->setEnabled(false);
    return list;
}

QWidget *createTableWidget(const Specimen &specimen)
{
    auto *table = new QTableWidget(2, 3);
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    for (int cell = 0; cell < 6; ++cell)
        table->setItem(cell / 3, cell % 3, new QTableWidgetItem(QString::number(cell + 1)));
    table->horizontalHeader()->setDefaultSectionSize(56);
    table->verticalHeader()->setDefaultSectionSize(28);
    table->setFixedSize(172, 60);
    if (specimen.parts.subControl.isEmpty())
        return table;
    makeInert(table);
    if (hasState(specimen, "hover"))
        holdItemHover(table, 0, 1);
    if (hasState(specimen, "disabled"))
        disableItems(table);
    return table;
}

QWidget *createHeaderView(const Specimen &)
{
    auto *header = new QHeaderView(Qt::Horizontal);
    auto *model = new QStandardItemModel(0, 3, header);
    model->setHorizontalHeaderLabels({"In 1", "In 2", "In 3"});
    header->setModel(model);
    header->setDefaultSectionSize(56);
    header->setFixedSize(170, 28);
    return header;
}

QWidget *createTabBar(const Specimen &specimen)
{
    auto *tabs = new QTabBar;
    const bool scrolling = specimen.parts.subControl != QLatin1String("tab");
    const QStringList titles = scrolling
        ? QStringList{"Effects", "Palettes", "Groups", "Presets", "Macros"}
        : QStringList{"Effects", "Palettes"};
    for (const QString &title : titles)
        tabs->addTab(title);
    tabs->setDrawBase(false);
    tabs->setExpanding(false);
    tabs->setUsesScrollButtons(scrolling);
    if (scrolling)
        tabs->setFixedWidth(220);
    if (specimen.parts.states.isEmpty())
        return tabs;
    makeInert(tabs);
    tabs->setCurrentIndex(hasState(specimen, "selected") ? 1 : 0);
    tabs->setEnabled(!hasState(specimen, "disabled"));
    if (hasState(specimen, "hover"))
        holdHover(tabs);
    return tabs;
}

QWidget *createCalendar(const Specimen &specimen)
{
    auto *calendar = new QCalendarWidget;
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
    calendar->setSelectedDate(QDate(2026, 3, 14));
    calendar->setFixedSize(330, 220);
    if (specimen.selector.contains(QLatin1String("QComboBox")))
        addComboBox(calendar);
    if (specimen.parts.states.isEmpty() && !specimen.selector.contains(QLatin1String("QSpinBox")))
        return calendar;
    if (specimen.selector.contains(QLatin1String("QSpinBox")))
        showYearField(calendar, specimen);
    else if (specimen.selector.contains(QLatin1String("QToolButton")))
        holdNavigationState(calendar, specimen);
    else
        holdDayState(calendar, specimen);
    makeInert(calendar);
    return calendar;
}

QWidget *createMenu(const Specimen &specimen)
{
    auto *menu = new QMenu;
    menu->setWindowFlags(Qt::Widget); // in the page, not in a window of its own
    menu->addAction(QStringLiteral("Save show"));
    QAction *second = menu->addAction(QStringLiteral("Save as…"));
    menu->addSeparator();
    QAction *third = menu->addAction(QStringLiteral("Export patch"));
    third->setEnabled(!hasState(specimen, "disabled"));
    makeInert(menu);
    if (hasState(specimen, "selected"))
        menu->setActiveAction(second);
    return menu;
}

} // namespace Gallery

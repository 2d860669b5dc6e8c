// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

// Draws an ordinary window, with no style of its own, in the dark and the light look, side by side.
// Usage: hvtheme_samplewindow FILE.png

#include <hvthemeapp/applicationtheme.h>
#include <hvthemeapp/themedicon.h>

#include <QtWidgets>

namespace
{

QStandardItemModel *invoices(QObject *parent)
{
    auto *model = new QStandardItemModel(parent);
    model->setHorizontalHeaderLabels({"Invoice", "Customer", "Due", "Amount"});
    const char *const rows[][4] = {{"2026-041", "Harbour Lights Ltd", "2 March", "1,240.00"},
                                   {"2026-042", "Blue Door Bakery", "5 March", "86.50"},
                                   {"2026-043", "North Pier Studio", "9 March", "3,400.00"},
                                   {"2026-044", "Old Mill Bindery", "12 March", "415.20"},
                                   {"2026-045", "Sparrow & Finch", "16 March", "92.00"},
                                   {"2026-046", "City Orchestra", "20 March", "5,180.00"}};
    for (const auto &row : rows) {
        QList<QStandardItem *> items;
        for (const char *text : row)
            items.append(new QStandardItem(QString::fromLatin1(text)));
        items.constFirst()->setCheckable(true);
        items.constFirst()->setCheckState(model->rowCount() % 3 ? Qt::Unchecked : Qt::Checked);
        items.constLast()->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        model->appendRow(items);
    }
    return model;
}

QWidget *details()
{
    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    auto *form = new QFormLayout;
    column->addLayout(form);
    form->addRow("Customer", new QLineEdit("North Pier Studio"));
    auto *kind = new QComboBox;
    kind->addItems({"30 days", "At once"});
    form->addRow("Terms", kind);
    form->addRow("Due", new QDateEdit(QDate(2026, 3, 9)));
    auto *discount = new QSpinBox;
    discount->setSuffix(" %");
    discount->setValue(5);
    form->addRow("Discount", discount);
    auto *note = new QLineEdit;
    note->setPlaceholderText("Optional");
    form->addRow("Note", note);
    auto *send = new QGroupBox("Send by");
    auto *choices = new QVBoxLayout(send);
    auto *mail = new QRadioButton("E-mail");
    mail->setChecked(true);
    choices->addWidget(mail);
    choices->addWidget(new QRadioButton("Post"));
    auto *copy = new QCheckBox("Keep a copy");
    copy->setChecked(true);
    choices->addWidget(copy);
    column->addWidget(send);
    auto *progress = new QProgressBar;
    progress->setValue(60);
    column->addWidget(progress);
    column->addStretch();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Save)->setDefault(true);
    column->addWidget(buttons);
    return page;
}

void fill(QMainWindow &window)
{
    for (const char *name : {"&File", "&Edit", "&View", "&Help"})
        window.menuBar()->addMenu(QString::fromLatin1(name));
    QToolBar *bar = window.addToolBar("Tools");
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setMovable(false);
    const QPair<const char *, const char *> actions[] = {
        {"add", "New"}, {"open", "Open"}, {"save", "Save"}, {"delete", "Delete"}};
    for (const auto &[icon, text] : actions)
        bar->addAction(HV::themedIcon(QLatin1String(icon)), QString::fromLatin1(text));
    auto *table = new QTreeView;
    table->setRootIsDecorated(false);
    table->setAlternatingRowColors(true);
    table->setModel(invoices(table));
    for (int column = 0; column < 3; ++column)
        table->setColumnWidth(column, column == 1 ? 180 : 110);
    table->setCurrentIndex(table->model()->index(2, 0));
    auto *tabs = new QTabWidget;
    tabs->addTab(table, "Open");
    tabs->addTab(new QWidget, "Paid");
    tabs->addTab(new QWidget, "Drafts");
    auto *middle = new QWidget;
    (new QVBoxLayout(middle))->addWidget(tabs);
    window.setCentralWidget(middle);
    auto *dock = new QDockWidget("Invoice 2026-043");
    dock->setWidget(details());
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    window.statusBar()->showMessage("6 open invoices, 10,413.70 in all");
    window.resize(820, 500);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    HV::ApplicationTheme theme;
    if (!theme.setName("dark"))
        return 1;
    QMainWindow window;
    fill(window);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    QImage picture(2 * window.width() + 16, window.height(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    int x = 0;
    for (const char *look : {"dark", "light"}) {
        if (!theme.setName(QLatin1String(look)))
            return 1;
        QCoreApplication::processEvents();
        window.grab(); // some layouts settle only as they are painted
        QCoreApplication::processEvents();
        QPainter(&picture).drawPixmap(x, 0, window.grab());
        x += window.width() + 16;
    }
    return picture.save(app.arguments().value(1)) ? 0 : 1;
}

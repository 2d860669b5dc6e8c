// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

// Draws the pictures of docs/inspector.md: an ordinary window with the inspector beside it, while a value
// is being changed. Usage: hvtheme_inspectorpictures FOLDER; QT_SCALE_FACTOR=2 makes them larger.

#include "quietplatform.h"

#include <inspector/inspectorlists.h>
#include <inspector/inspectorwindow.h>

#include <hvthemeapp/applicationtheme.h>

#include <QtWidgets>

namespace
{

QWidget *makeWindow()
{
    auto *window = new QWidget;
    window->setWindowTitle("Invoice");
    auto *column = new QVBoxLayout(window);
    auto *form = new QFormLayout;
    form->addRow("Customer", new QLineEdit("North Pier Studio"));
    auto *terms = new QComboBox;
    terms->addItems({"30 days", "At once"});
    form->addRow("Terms", terms);
    form->addRow("Due", new QDateEdit(QDate(2026, 3, 9)));
    column->addLayout(form);
    auto *list = new QListWidget;
    list->addItems({"Paper, 120 sheets", "Binding", "Delivery"});
    list->setCurrentRow(1);
    column->addWidget(list, 1);
    auto *copy = new QCheckBox("Keep a copy");
    copy->setChecked(true);
    column->addWidget(copy);
    auto *row = new QHBoxLayout;
    row->addStretch(1);
    auto *cancel = new QPushButton("Cancel");
    cancel->setProperty("style", "assist");
    auto *send = new QPushButton("Send");
    send->setObjectName("send");
    send->setProperty("style", "general");
    row->addWidget(cancel);
    row->addWidget(send);
    column->addLayout(row);
    window->resize(300, 640);
    return window;
}

template<typename Widget>
Widget *part(const QWidget &window, const char *name)
{
    const auto widgets = window.findChildren<Widget *>();
    for (Widget *widget : widgets) {
        if (widget->accessibleName() == QLatin1String(name))
            return widget;
    }
    qFatal("there is no %s", name);
}

void choose(QTreeWidget *list, const char *property)
{
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        if (list->topLevelItem(i)->text(0) == QLatin1String(property)) {
            list->setCurrentItem(list->topLevelItem(i));
            list->scrollToItem(list->topLevelItem(i), QAbstractItemView::PositionAtTop);
        }
    }
}

void showTab(const InspectorWindow &inspector, const char *name)
{
    auto *tabs = inspector.findChild<QTabWidget *>();
    for (int i = 0; i < tabs->count(); ++i) {
        if (tabs->tabText(i) == QLatin1String(name))
            tabs->setCurrentIndex(i);
    }
}

void settle(InspectorWindow &inspector)
{
    inspector.pane()->refresh();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

bool draw(QWidget &window, QWidget &inspector, const QString &path)
{
    const QPixmap left = window.grab();
    const QPixmap right = inspector.grab();
    const qreal ratio = left.devicePixelRatio();
    const int gap = qRound(16 * ratio);
    QPixmap both(left.width() + gap + right.width(), qMax(left.height(), right.height()));
    both.fill(Qt::transparent);
    QPainter painter(&both);
    painter.drawPixmap(QRect(QPoint(), left.size()), left);
    painter.drawPixmap(QRect(QPoint(left.width() + gap, 0), right.size()), right);
    painter.end();
    return both.save(path);
}

} // namespace

int main(int argc, char *argv[])
{
    const QuietPlatform quiet;
    QApplication application(argc, argv);
    HV::ApplicationTheme theme;
    const QString folder = application.arguments().value(1);
    bool isDrawn = true;
    for (const char *look : {"dark", "light", "contrast"}) {
        theme.setName(QString::fromLatin1(look));
        const std::unique_ptr<QWidget> window(makeWindow());
        window->show();
        InspectorWindow inspector;
        inspector.setAttribute(Qt::WA_DeleteOnClose, false);
        inspector.show();
        QCoreApplication::processEvents();
        auto *send = window->findChild<QPushButton *>("send");
        inspector.pane()->pick(send);
        const auto picture = [&](const char *what) {
            settle(inspector);
            const QString name = QStringLiteral("%1/inspector-%2-%3.png").arg(folder, what, look);
            isDrawn = draw(*window, inspector, name) && isDrawn;
        };
        choose(part<QTreeWidget>(inspector, "Values"), "background-color");
        picture("value");
        auto *color = part<QLineEdit>(inspector, "Colour");
        color->setText("#7A3DF0");
        Q_EMIT color->textEdited(color->text());
        picture("colour");
        choose(part<QTreeWidget>(inspector, "Values"), "color");
        color->setText("#5060D0");
        Q_EMIT color->textEdited(color->text());
        picture("warning");
        showTab(inspector, "Changes");
        picture("changes");
        showTab(inspector, "Properties");
        picture("properties");
        ProgramChanges::ofProgram()->discard();
    }
    return isDrawn ? 0 : 1;
}

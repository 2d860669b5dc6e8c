// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

// Draws the pictures of docs/inspector.md: an ordinary window with the inspector beside it, while a value
// is being changed. Usage: hvtheme_inspectorpictures FOLDER [--all]; QT_SCALE_FACTOR=2 makes them larger.

#include "quietplatform.h"

#include <inspector/conflictdialog.h>
#include <inspector/inspectorwindow.h>

#include <hvthemeapp/applicationtheme.h>

#include <QtWidgets>

#include <algorithm>

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

// The dialogs, as they open.
bool drawDialogs(InspectorWindow &inspector, const QString &folder, const char *look)
{
    bool isDrawn = true;
    const auto draw = [&](const char *name, const char *button) {
        part<QAbstractButton>(inspector, button)->click();
        QCoreApplication::processEvents();
        const auto dialogs = inspector.findChildren<QDialog *>();
        for (QDialog *dialog : dialogs) {
            isDrawn = dialog->grab().save(
                          QStringLiteral("%1/inspector-%2-%3.png").arg(folder, name, look))
                && isDrawn;
            delete dialog;
        }
    };
    draw("new-theme", "Save as a new theme");
    draw("picker", "Choose any colour");
    ThemeSaving saving;
    saving.ours = "[Colors]\nBrand=#7A3DF0\nGround=#101418\n";
    saving.theirs = "; ours since Monday\n[Colors]\nBrand=#3060F0\nGround=#101418\n";
    ConflictDialog conflict("/srv/themes/dark.theme", saving, inspector.pane());
    conflict.show();
    QCoreApplication::processEvents();
    return conflict.grab().save(QStringLiteral("%1/inspector-conflict-%2.png").arg(folder, look))
        && isDrawn;
}

// Those that the guide shows, unless all are asked for.
bool isShown(const char *what, const char *look)
{
    const QPair<const char *, const char *> shown[] = {
        {"value", "dark"}, {"colour", "dark"}, {"warning", "light"}, {"changes", "contrast"}};
    return QCoreApplication::arguments().contains("--all")
        || std::any_of(std::begin(shown), std::end(shown), [&](const auto &one) {
               return qstrcmp(one.first, what) == 0 && qstrcmp(one.second, look) == 0;
           });
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
            if (!isShown(what, look))
                return;
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
        color->setText("#8A8F98");
        Q_EMIT color->textEdited(color->text());
        picture("warning");
        showTab(inspector, "Changes");
        picture("changes");
        showTab(inspector, "Properties");
        picture("properties");
        if (application.arguments().contains("--all")) {
            showTab(inspector, "Values");
            settle(inspector);
            isDrawn = drawDialogs(inspector, folder, look) && isDrawn;
        }
        ProgramChanges::ofProgram()->discard();
    }
    return isDrawn ? 0 : 1;
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "windowparts.h"

#include "findingspane.h"
#include "messagelist.h"
#include "zoomarea.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <QVariant>

namespace Gallery
{

namespace
{

QComboBox *createChooser(const char *name, const QString &label)
{
    auto *chooser = new QComboBox;
    chooser->setObjectName(QString::fromLatin1(name));
    chooser->setAccessibleName(label);
    chooser->setItemDelegate(new QStyledItemDelegate(chooser)); // or no row would look selected
    return chooser;
}

} // namespace

QComboBox *createThemeChooser()
{
    QComboBox *themes = createChooser("themes", QStringLiteral("Theme"));
    themes->setMinimumWidth(140);
    return themes;
}

QComboBox *createEyes(ColorMath::Vision vision)
{
    QComboBox *eyes = createChooser("eyes", QStringLiteral("Eyes"));
    eyes->setToolTip(QStringLiteral("Whose eyes to see the window with"));
    eyes->addItem(QStringLiteral("Normal"));
    eyes->addItem(QStringLiteral("Protan: no red cones"));
    eyes->addItem(QStringLiteral("Deutan: no green cones"));
    eyes->addItem(QStringLiteral("Tritan: no blue cones"));
    eyes->setCurrentIndex(int(vision));
    return eyes;
}

QComboBox *createZooms()
{
    QComboBox *zooms = createChooser("zoom", QStringLiteral("Zoom"));
    zooms->setToolTip(QStringLiteral("How large to show the page (Ctrl++, Ctrl+-, Ctrl+0)"));
    const auto levels = ZoomArea::levels();
    for (const int level : levels)
        zooms->addItem(QStringLiteral("%1 %").arg(level), level);
    return zooms;
}

QWidget *createHeader(QComboBox *themes, QComboBox *eyes, QComboBox *zooms)
{
    auto *header = new QWidget;
    header->setProperty("style", QStringLiteral("toolWidget"));
    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(12, 8, 12, 8);
    for (QComboBox *chooser : {themes, eyes, zooms}) {
        layout->addWidget(new QLabel(chooser->accessibleName()));
        layout->addWidget(chooser);
        layout->addSpacing(12);
    }
    layout->addStretch();
    layout->addWidget(new QLabel(QStringLiteral("Click a selector to copy it.")));
    return header;
}

QWidget *createMessagePane(MessageList *log)
{
    auto *messages = new QListView;
    messages->setObjectName(QStringLiteral("messages"));
    messages->setAccessibleName(QStringLiteral("Messages"));
    messages->setModel(log);
    messages->setWordWrap(true);
    auto *copy = new QAction(QStringLiteral("Copy message"), messages);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(copy, &QAction::triggered, messages, [messages] {
        if (messages->currentIndex().isValid())
            copyText(messages, messages->currentIndex().data().toString());
    });
    messages->addAction(copy);
    messages->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto *title = new QLabel(QStringLiteral("Messages since the last reload"));
    title->setProperty("fontSize", QStringLiteral("S"));
    title->setProperty("style", QStringLiteral("grayHint"));
    title->setContentsMargins(10, 6, 10, 2);
    auto *pane = new QWidget;
    pane->setProperty("style", QStringLiteral("BG1"));
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(title);
    layout->addWidget(messages);
    return pane;
}

} // namespace Gallery

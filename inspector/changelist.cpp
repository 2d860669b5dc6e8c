// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/changelist.h>

#include <inspector/colorswatch.h>
#include <inspector/plaintree.h>

#include <QAction>
#include <QColor>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>

namespace
{

constexpr int fileRole = Qt::UserRole;
constexpr int keyRole = Qt::UserRole + 1;
constexpr int propertyRole = Qt::UserRole + 2; // index of a property, for those that are no values

QString toldValue(const QString &value)
{
    return value.isNull() ? ChangeList::tr("(none)") : value;
}

void addColors(QTreeWidgetItem *item, qreal pixelRatio)
{
    for (const int column : {1, 2}) {
        const QString text = item->text(column);
        if (text.startsWith(QLatin1Char('#')) && QColor(text).isValid())
            item->setIcon(column, colorSwatch(QColor(text), QSize(12, 12), pixelRatio));
    }
}

} // namespace

ChangeList::ChangeList(ProgramChanges *changes, QWidget *parent)
    : QWidget(parent)
    , m_changes(changes)
    , m_list(new PlainTree<QTreeWidget>)
    , m_reset(new QPushButton(tr("R&eset this")))
    , m_resetAll(new QPushButton(tr("Discard &all")))
{
    m_list->setHeaderLabels({tr("What"), tr("Before"), tr("Now"), tr("Where")});
    m_list->setAccessibleName(tr("Changes"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setColumnWidth(0, 260);
    m_reset->setToolTip(tr("Take back the chosen change and no other (Delete)"));
    m_resetAll->setToolTip(tr("Take back every value that is not saved"));
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_list, 1);
    auto *row = new QHBoxLayout;
    row->addWidget(m_reset);
    row->addWidget(m_resetAll);
    row->addStretch(1);
    column->addLayout(row);
    auto *remove = new QAction(this);
    remove->setShortcut(QKeySequence(Qt::Key_Delete));
    remove->setShortcutContext(Qt::WidgetShortcut);
    m_list->addAction(remove);
    connect(remove, &QAction::triggered, this, &ChangeList::resetCurrent);
    connect(m_reset, &QPushButton::clicked, this, &ChangeList::resetCurrent);
    connect(m_resetAll, &QPushButton::clicked, m_changes, &ProgramChanges::discard);
    connect(m_changes, &ProgramChanges::changed, this, &ChangeList::showChanges);
    connect(m_list, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem *item) { m_reset->setEnabled(item); });
    showChanges();
}

void ChangeList::showChanges()
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    m_list->clear();
    const QVector<ThemeChange> values = m_changes->values();
    for (const ThemeChange &change : values) {
        auto *item =
            new QTreeWidgetItem(m_list,
                                {change.key, toldValue(change.before), toldValue(change.value),
                                 QFileInfo(change.file).fileName()});
        item->setToolTip(3, change.file);
        item->setData(0, fileRole, change.file);
        item->setData(0, keyRole, change.key);
        addColors(item, devicePixelRatioF());
    }
    const QVector<PropertyChange> &properties = m_changes->properties();
    for (int i = 0; i < properties.size(); ++i) {
        const PropertyChange &change = properties.at(i);
        if (!change.widget)
            continue;
        auto *item = new QTreeWidgetItem(m_list,
                                         {change.name, toldValue(change.before.toString()),
                                          toldValue(change.value.toString()),
                                          tr("%1, as long as it lives").arg(change.widgetName)});
        item->setData(0, propertyRole, i);
    }
    m_resetAll->setEnabled(!values.isEmpty());
    m_reset->setEnabled(false);
    m_list->setCurrentItem(m_list->topLevelItem(qMin(row, m_list->topLevelItemCount() - 1)));
}

void ChangeList::resetCurrent()
{
    const QTreeWidgetItem *item = m_list->currentItem();
    if (!item)
        return;
    const QVariant index = item->data(0, propertyRole);
    if (index.isValid()) {
        const PropertyChange change = m_changes->properties().value(index.toInt());
        if (change.widget)
            m_changes->resetProperty(change.widget, change.name);
        return;
    }
    m_changes->resetValue(item->data(0, fileRole).toString(), item->data(0, keyRole).toString());
}

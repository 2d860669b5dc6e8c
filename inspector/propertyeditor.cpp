// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/propertyeditor.h>

#include <inspector/owncontrols.h>
#include <inspector/ownlook.h>
#include <inspector/plaintree.h>

#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QTreeWidget>

namespace
{

QComboBox *makeBox(const QString &name)
{
    auto *box = new OwnComboBox;
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setAccessibleName(name);
    box->lineEdit()->setAccessibleName(name);
    // That of the box itself makes a window that themes reach.
    box->setCompleter(ownCompleter({}, box));
    return box;
}

void setChoices(QComboBox *box, const QStringList &choices, const QString &text)
{
    box->clear();
    box->addItems(choices);
    static_cast<QStringListModel *>(box->completer()->model())->setStringList(choices);
    box->setCurrentText(text);
}

// What a user is writing while the choices are read anew.
class KeptText
{
public:
    explicit KeptText(QLineEdit *edit)
        : m_edit(edit)
        , m_text(edit->text())
        , m_cursor(edit->cursorPosition())
        , m_isModified(edit->isModified())
    {
    }

    bool isModified() const { return m_isModified; }
    void putBack() const
    {
        m_edit->setText(m_text);
        m_edit->setCursorPosition(m_cursor);
        m_edit->setModified(m_isModified);
    }

private:
    QLineEdit *const m_edit;
    const QString m_text;
    const int m_cursor;
    const bool m_isModified;
};

} // namespace

PropertyEditor::PropertyEditor(ProgramChanges *changes, QWidget *parent)
    : QWidget(parent)
    , m_changes(changes)
    , m_list(new PlainTree<QTreeWidget>)
    , m_name(makeBox(tr("Property")))
    , m_value(makeBox(tr("Value of the property")))
    , m_set(new QPushButton(tr("S&et")))
    , m_remove(new QPushButton(tr("Rem&ove")))
    , m_note(new QLabel)
{
    m_list->setHeaderLabels({tr("Dynamic property"), tr("Value"), tr("Values that rules ask for")});
    m_list->setAccessibleName(tr("Properties"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setColumnWidth(0, 180);
    m_list->setColumnWidth(1, 150);
    m_note->setWordWrap(true);
    m_note->setAccessibleName(tr("About the properties"));
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_list, 1);
    auto *row = new QHBoxLayout;
    row->addWidget(m_name, 1);
    row->addWidget(new QLabel(QStringLiteral("=")));
    row->addWidget(m_value, 1);
    row->addWidget(m_set);
    row->addWidget(m_remove);
    column->addLayout(row);
    column->addWidget(m_note);
    connect(m_list, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem *item) {
        if (!item)
            return;
        m_name->setCurrentText(item->text(0));
        showValues();
    });
    connect(m_name, &QComboBox::currentTextChanged, this, &PropertyEditor::showValues);
    connect(m_value->lineEdit(), &QLineEdit::returnPressed, this, [this] { setValue(false); });
    connect(m_set, &QPushButton::clicked, this, [this] { setValue(false); });
    connect(m_remove, &QPushButton::clicked, this, [this] { setValue(true); });
}

QString PropertyEditor::name() const
{
    return m_name->currentText().trimmed();
}

void PropertyEditor::setWidget(QWidget *widget, const InspectedSheet &sheet)
{
    const bool isOther = widget != m_widget;
    m_widget = widget;
    const bool hasName = !isOther && !name().isEmpty();
    const KeptText keptName(m_name->lineEdit());
    const KeptText keptValue(m_value->lineEdit());
    const QTreeWidgetItem *current = isOther ? nullptr : m_list->currentItem();
    const QString row = current ? current->text(0) : QString();
    showProperties(sheet);
    {
        const QSignalBlocker nameBlocker(m_name);
        const QSignalBlocker listBlocker(m_list);
        if (hasName)
            keptName.putBack();
        else
            m_name->setCurrentText(firstName());
        const auto rows = m_list->findItems(row, Qt::MatchExactly);
        if (!row.isEmpty() && !rows.isEmpty())
            m_list->setCurrentItem(rows.constFirst());
    }
    showValues();
    if (!isOther && keptValue.isModified())
        keptValue.putBack();
}

// What the widget has is what people are about to change.
QString PropertyEditor::firstName() const
{
    for (int i = 0; i < m_name->count(); ++i) {
        if (m_widget && m_widget->property(m_name->itemText(i).toUtf8().constData()).isValid())
            return m_name->itemText(i);
    }
    return m_name->itemText(0);
}

void PropertyEditor::showProperties(const InspectedSheet &sheet)
{
    const QSignalBlocker listBlocker(m_list);
    const QSignalBlocker nameBlocker(m_name);
    m_list->clear();
    m_values.clear();
    const bool isAlive = m_widget;
    for (QWidget *part : {static_cast<QWidget *>(m_name), static_cast<QWidget *>(m_value),
                          static_cast<QWidget *>(m_set), static_cast<QWidget *>(m_remove)})
        part->setEnabled(isAlive);
    m_note->setText(
        isAlive ? tr(
            "A property lasts as long as the widget; set it in the program's source to keep it.")
                : tr("Nothing is picked."));
    if (!isAlive)
        return;
    m_values = styledProperties(sheet, m_widget);
    QStringList names = m_values.keys();
    const QList<QByteArray> own = m_widget->dynamicPropertyNames();
    for (const QByteArray &name : own) {
        if (!name.startsWith("_q_"))
            names << QString::fromUtf8(name);
    }
    names.sort();
    names.removeDuplicates();
    for (const QString &name : qAsConst(names)) {
        const QVariant value = m_widget->property(name.toUtf8().constData());
        new QTreeWidgetItem(m_list,
                            {name, value.isValid() ? value.toString() : tr("(none)"),
                             m_values.value(name).join(QLatin1String(", "))});
    }
    setChoices(m_name, names, QString());
}

void PropertyEditor::showValues()
{
    const QVariant now = m_widget ? m_widget->property(name().toUtf8().constData()) : QVariant();
    const QSignalBlocker blocker(m_value);
    setChoices(m_value, m_values.value(name()), now.toString());
    m_remove->setEnabled(now.isValid());
}

void PropertyEditor::setValue(bool isRemoved)
{
    if (!m_widget || name().isEmpty())
        return;
    if (m_widget->metaObject()->indexOfProperty(name().toUtf8().constData()) >= 0) {
        m_note->setText(tr("%1 belongs to the class %2; only dynamic properties are changed here.")
                            .arg(name(), QLatin1String(m_widget->metaObject()->className())));
        return;
    }
    const QVariant before = m_widget->property(name().toUtf8().constData());
    m_value->lineEdit()->setModified(false);
    m_changes->setProperty(m_widget, name(),
                           isRemoved ? QVariant() : propertyValue(m_value->currentText(), before));
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/inspectorpane.h>

#include <colormath/contrast.h>
#include <inspector/changepanel.h>
#include <inspector/inspectorlists.h>
#include <inspector/ownlook.h>
#include <inspector/pickedpart.h>
#include <inspector/plaintree.h>
#include <inspector/propertyeditor.h>
#include <inspector/savebar.h>
#include <inspector/usage.h>
#include <inspector/whynot.h>

#include <QtWidgets>

namespace
{

constexpr int refreshDelayMs = 300;
constexpr int mostFrames = 500;

} // namespace

InspectorPane::InspectorPane(QWidget *parent)
    : InspectorPane(&InspectedSheet::inForce, parent)
{
}

InspectorPane::InspectorPane(Source source, QWidget *parent)
    : QWidget(parent)
    , m_source(std::move(source))
    , m_sheet(m_source())
    , m_tree(&InspectorPane::isOwnRoot)
    , m_picker(&InspectorPane::isOwn)
    , m_changes(ProgramChanges::ofProgram())
{
    setPalette(inspectorPalette());
    setStyleSheet(inspectorStyleSheet());
    setAttribute(Qt::WA_StyledBackground);
    setAccessibleName(tr("Inspector"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(makeTools());
    auto *halves = new QSplitter(Qt::Horizontal);
    m_widgets = new PlainTree<QTreeView>;
    m_widgets->setAccessibleName(tr("Widgets of the program"));
    m_widgets->setHeaderHidden(true);
    m_widgets->setUniformRowHeights(true);
    m_widgets->setModel(&m_tree);
    halves->addWidget(m_widgets);
    halves->addWidget(makeDetails());
    halves->setSizes({300, 620});
    column->addWidget(halves, 1);
    m_status = new QLabel(tr("Pick a widget: Ctrl+Shift+click, or choose it in the tree."));
    m_status->setAccessibleName(tr("Status"));
    m_status->setWordWrap(true);
    column->addWidget(m_status);
    m_save = new SaveBar(m_changes, this);
    column->addWidget(m_save);

    connect(&m_picker, &Picker::picked, this,
            [this](QWidget *widget, const WidgetPart &part) { pick(widget, part); });
    connect(&m_picker, &Picker::pickingChanged, m_pick, &QToolButton::setChecked);
    connect(m_widgets->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &index) {
                QWidget *widget = m_tree.widgetAt(index);
                if (widget && widget != m_widget)
                    pick(widget);
            });
    m_later.setSingleShot(true);
    m_later.setInterval(refreshDelayMs);
    connect(&m_later, &QTimer::timeout, this, &InspectorPane::look);
    connect(m_changes, &ProgramChanges::changed, this, [this] {
        m_isSheetOld = true; // also where the text is the same
        lookSoon();
    });
    qApp->installEventFilter(this);
    showChange(nullptr);
    m_tree.refresh(); // now that all of the pane is known as its own
    showTheme();
}

InspectorPane::~InspectorPane()
{
    qApp->removeEventFilter(this);
    m_widgets->setModel(nullptr);
}

bool InspectorPane::isOwn(const QWidget *widget)
{
    while (widget && !isOwnRoot(widget))
        widget = widget->parentWidget();
    return widget != nullptr;
}

bool InspectorPane::isOwnRoot(const QWidget *widget)
{
    return qobject_cast<const InspectorPane *>(widget) || Outline::isFrame(widget)
        || widget->property("hvthemeInspector").toBool();
}

void InspectorPane::pick(QWidget *widget, const WidgetPart &part)
{
    if (!widget || isOwn(widget))
        return;
    m_users.clear();
    if (widget != m_widget) {
        m_forced.setWidget(paintedAs(widget));
        for (QTreeWidget *list : {m_values, m_rules})
            list->clear(); // what was chosen there was of another widget
        showChange(nullptr);
    }
    if (m_widget)
        disconnect(m_widget, &QObject::destroyed, this, &InspectorPane::lookSoon);
    m_widget = widget;
    connect(m_widget, &QObject::destroyed, this, &InspectorPane::lookSoon);
    m_part = part;
    if (!m_tree.indexOf(widget).isValid())
        readTree();
    showInTree();
    look();
    Q_EMIT picked(widget);
}

// What was open stays open.
void InspectorPane::readTree()
{
    QVector<QPointer<QWidget>> open;
    const std::function<void(const QModelIndex &)> note = [&](const QModelIndex &parent) {
        for (int i = 0; i < m_tree.rowCount(parent); ++i) {
            const QModelIndex index = m_tree.index(i, 0, parent);
            if (!m_widgets->isExpanded(index))
                continue;
            open.append(m_tree.widgetAt(index));
            note(index);
        }
    };
    note({});
    m_tree.refresh();
    for (const QPointer<QWidget> &widget : qAsConst(open)) {
        if (widget)
            m_widgets->expand(m_tree.indexOf(widget));
    }
    showInTree();
}

void InspectorPane::showInTree()
{
    const QModelIndex index = m_tree.indexOf(m_widget);
    if (!index.isValid() || m_widgets->currentIndex() == index)
        return;
    m_widgets->setCurrentIndex(index);
    m_widgets->scrollTo(index);
}

void InspectorPane::refresh()
{
    readTree();
    m_sheet = m_source();
    showTheme();
    look();
}

void InspectorPane::look()
{
    m_later.stop();
    m_outline.clear();
    if (m_sheet->text() != qApp->styleSheet() || m_isSheetOld) {
        m_isSheetOld = false;
        m_sheet = m_source();
        showTheme();
    }
    if (!m_widget) {
        showNothing();
        return;
    }
    QWidget *painted = m_painted = paintedAs(m_widget);
    m_parts = widgetParts(painted);
    for (const WidgetPart &part : qAsConst(m_parts)) { // as it is now
        if (part.subControl == m_part.subControl && part.label == m_part.label
            && (part.rect == m_part.rect || m_part.rect.isEmpty() || part.subControl.isEmpty())) {
            m_part = part;
            break;
        }
    }
    m_inspection = Inspection::of(m_widget, m_part, *m_sheet);
    m_picked->show(m_inspection, m_parts, m_part, m_forced);
    fill(m_rules, [this] { InspectorLists::showRules(m_rules, m_inspection, *m_sheet); });
    fill(m_values, [this] { InspectorLists::showValues(m_values, m_inspection, *m_sheet); });
    fill(m_boxes, [this] { InspectorLists::showBox(m_boxes, m_inspection); });
    showContrast();
    m_whyNot->setInspection(m_inspection, m_sheet->cascade().attributes());
    m_properties->setWidget(m_inspection.styledWidget, *m_sheet);
    refreshChange();
    if (painted->isVisible())
        m_outline.add(painted, m_part.rect);
}

// Before anything is picked, and when what was picked is gone.
void InspectorPane::showNothing()
{
    m_forced.setWidget(nullptr);
    m_parts.clear();
    m_part = {};
    m_inspection = {};
    m_textContrast.reset();
    m_picked->showNothing();
    for (QTreeWidget *list : {m_values, m_rules, m_boxes})
        fill(list, [list] { list->clear(); });
    m_contrast->clear();
    m_contrast->setStyleSheet({});
    m_whyNot->setInspection(m_inspection, m_sheet->cascade().attributes());
    m_properties->setWidget(nullptr, *m_sheet);
    refreshChange();
}

void InspectorPane::showContrast()
{
    const auto &contrast = m_textContrast =
        textContrast(m_inspection, m_part.subControl.isEmpty() ? QRect() : m_part.rect, *m_sheet);
    if (!contrast) {
        m_contrast->setText(tr("No text is drawn here."));
        return;
    }
    QString text = tr("Contrast %1 (%2 on %3)")
                       .arg(ColorMath::contrastText(contrast->ratio), contrast->text.name(),
                            contrast->ground.name());
    if (!contrast->passes())
        text += contrast->passingEntry.isEmpty()
            ? tr(", too low; no palette entry passes")
            : tr(", too low; nearest that passes: %1 (%2)")
                  .arg(contrast->passingEntry, contrast->passingColor.name());
    m_contrast->setText(text);
}

void InspectorPane::showUsersOf(const QTreeWidgetItem *item)
{
    const QString what = item->data(0, InspectorLists::Name).toString();
    if (!what.isEmpty())
        showUsers(InspectorLists::declarationsOf(item, *m_sheet), what);
}

// The list is filled anew whenever something changes; what is chosen in it stays chosen.
void InspectorPane::fill(QTreeWidget *list, const std::function<void()> &show)
{
    const QSignalBlocker blocker(list);
    const QString id = InspectorLists::idOf(list->currentItem());
    const int position = list->verticalScrollBar()->value();
    show();
    QTreeWidgetItem *item = id.isEmpty() ? nullptr : InspectorLists::find(list, id);
    if (item)
        list->setCurrentItem(item);
    list->verticalScrollBar()->setValue(position);
}

void InspectorPane::showTheme()
{
    fill(m_theme, [this] { InspectorLists::showTheme(m_theme, *m_sheet); });
}

ChangeSubject InspectorPane::subject(Kind kind, const QString &key, const QString &property) const
{
    ChangeSubject subject = ChangeSubject::of(*m_sheet, kind, key);
    subject.property = property;
    subject.partner = partnerOf(property, m_inspection, m_textContrast);
    return subject;
}

void InspectorPane::refreshChange()
{
    const ChangeSubject &old = m_change->subject();
    if (!old.key.isEmpty())
        m_change->refresh(subject(old.kind, old.key, old.property));
}

bool InspectorPane::mayClose(SaveBar::Closing closing)
{
    return m_save->mayClose(closing);
}

void InspectorPane::lookSoon()
{
    if (!m_later.isActive())
        m_later.start();
}

void InspectorPane::showChange(const QTreeWidgetItem *item)
{
    using namespace InspectorLists;
    const QString key = item ? item->data(0, Key).toString() : QString();
    ChangeSubject chosen;
    if (!key.isEmpty())
        chosen =
            subject(Kind(item->data(0, KeyKind).toInt()), key, item->data(0, Property).toString());
    else if (item)
        chosen.reason = item->data(0, Reason).toString();
    m_change->setSubject(chosen, m_sheet->applicationFolder());
}

void InspectorPane::showUsers(const QSet<int> &declarations, const QString &what)
{
    m_users.clear();
    readTree();
    const QVector<StyleUser> users = usersOf(declarations, m_tree.widgets(), *m_sheet);
    QSet<const QWidget *> widgets;
    for (const StyleUser &user : users) {
        widgets << user.widget;
        if (m_users.count() < mostFrames)
            m_users.add(user.widget, user.part.rect);
    }
    m_status->setText(
        tr("%1 is used by %2 parts of %3 widgets.")
            .arg(what, QString::number(users.size()), QString::number(widgets.size())));
}

void InspectorPane::force(const QString &state, bool on)
{
    m_forced.setForced(state, on);
    look();
}

// The picked widget changes, and others come and go; looked at once after many events.
bool InspectorPane::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::EnabledChange:
    case QEvent::StyleChange:
    case QEvent::DynamicPropertyChange:
    case QEvent::Enter: // and so for states that come and go with the pointer and the focus
    case QEvent::Leave:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        if (object == m_widget || object == m_painted)
            lookSoon();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(object, event);
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/inspectorpane.h>

#include <colormath/contrast.h>
#include <inspector/mismatch.h>
#include <inspector/ownlook.h>
#include <inspector/usage.h>

#include <QtWidgets>

namespace
{

constexpr int usersRole = Qt::UserRole; // offsets of declarations that the item stands for
constexpr int nameRole = Qt::UserRole + 1; // how to call it
constexpr int kindRole = Qt::UserRole + 2; // a UserKind: offsets are looked for when asked for

enum UserKind {
    OfDeclarations,
    OfKey,
    OfPalette
};
constexpr int refreshDelayMs = 300;
constexpr int mostFrames = 500;

// Arrows of trees are what themes give pictures to, and no rule takes a picture back to Qt's own.
template<typename Tree>
class PlainTree final : public Tree
{
protected:
    void drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const override
    {
        if (!this->model()->hasChildren(index))
            return;
        const QPointF center(rect.right() - this->indentation() / 2.0, rect.center().y() + 0.5);
        const bool isOpen = this->isExpanded(index);
        const QPolygonF arrow = isOpen ? QPolygonF({{-4.0, -2.0}, {4.0, -2.0}, {0.0, 3.0}})
                                       : QPolygonF({{-2.0, -4.0}, {-2.0, 4.0}, {3.0, 0.0}});
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(inspectorPalette().color(QPalette::Text));
        painter->drawPolygon(arrow.translated(center));
        painter->restore();
    }
};

QString placeText(const Place &place)
{
    return place.file.isEmpty() ? QStringLiteral("own style sheet:%1:%2")
                                      .arg(place.position.line)
                                      .arg(place.position.column)
                                : place.shortText();
}

QString fullPlace(const Place &place)
{
    return place.file.isEmpty() ? placeText(place) : place.text();
}

QIcon colorIcon(const QString &text)
{
    const QColor color(text);
    if (!color.isValid())
        return {};
    QPixmap picture(12, 12);
    picture.fill(color);
    return picture;
}

void setUsers(QTreeWidgetItem *item, const QSet<int> &declarations, const QString &what)
{
    QVariantList offsets;
    for (const int offset : declarations)
        offsets << offset;
    item->setData(0, usersRole, offsets);
    item->setData(0, nameRole, what);
}

void setUsers(QTreeWidgetItem *item, UserKind kind, const QString &name)
{
    item->setData(0, kindRole, kind);
    item->setData(0, nameRole, name);
}

QTreeWidgetItem *row(QTreeWidgetItem *parent, const QStringList &texts, const QString &place = {})
{
    auto *item = new QTreeWidgetItem(parent, texts);
    for (int column = 0; column < texts.size(); ++column)
        item->setToolTip(column, place.isEmpty() ? texts.at(column) : place);
    return item;
}

QString marginText(const QMargins &margins)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(margins.top())
        .arg(margins.right())
        .arg(margins.bottom())
        .arg(margins.left());
}

} // namespace

InspectorPane::InspectorPane(QWidget *parent)
    : InspectorPane(&InspectedSheet::inForce, parent)
{
}

InspectorPane::InspectorPane(Source source, QWidget *parent)
    : QWidget(parent)
    , m_source(std::move(source))
    , m_sheet(m_source())
    , m_tree(&InspectorPane::isOwn)
    , m_picker(&InspectorPane::isOwn)
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
    qApp->installEventFilter(this);
    m_tree.refresh(); // now that all of the pane is known as its own
    showPalette();
}

InspectorPane::~InspectorPane()
{
    qApp->removeEventFilter(this);
    m_widgets->setModel(nullptr);
}

bool InspectorPane::isOwn(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (qobject_cast<const InspectorPane *>(widget) || Outline::isFrame(widget)
            || widget->property("hvthemeInspector").toBool())
            return true;
    }
    return false;
}

QWidget *InspectorPane::makeTools()
{
    auto *tools = new QWidget;
    auto *row = new QHBoxLayout(tools);
    row->setContentsMargins(0, 0, 0, 0);
    m_pick = new QToolButton;
    m_pick->setText(tr("&Pick"));
    m_pick->setShortcut(QKeySequence(Qt::ALT | Qt::Key_P));
    m_pick->setCheckable(true);
    m_pick->setAccessibleName(tr("Pick a widget with the mouse"));
    m_pick->setToolTip(
        tr("Point at a widget; Escape ends it. Ctrl+Shift+click picks at any time."));
    row->addWidget(m_pick);
    m_filter = new QLineEdit;
    m_filter->setToolTip(tr("Class, object name, property=value or text"));
    // Looks give hints inside of edits their own colour, so it stands beside.
    auto *filterLabel = new QLabel(tr("&Filter:"));
    filterLabel->setBuddy(m_filter);
    row->addWidget(filterLabel);
    m_filter->setAccessibleName(tr("Filter of the widgets"));
    m_filter->setClearButtonEnabled(false);
    row->addWidget(m_filter, 1);
    auto *again = new QPushButton(tr("&Refresh"));
    again->setShortcut(QKeySequence(Qt::Key_F5));
    row->addWidget(again);
    connect(m_pick, &QToolButton::toggled, &m_picker, &Picker::setPicking);
    connect(again, &QPushButton::clicked, this, &InspectorPane::refresh);
    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_tree.setFilterFixedString(text);
        if (!text.isEmpty())
            m_widgets->expandAll();
        m_widgets->scrollTo(m_widgets->currentIndex());
    });
    auto *find = new QShortcut(QKeySequence::Find, this);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, m_filter, [this] { m_filter->setFocus(); });
    return tools;
}

QTreeWidget *InspectorPane::makeList(const QString &title, const QStringList &columns)
{
    auto *list = new PlainTree<QTreeWidget>;
    list->setHeaderLabels(columns);
    list->setAccessibleName(title);
    list->setUniformRowHeights(true);
    list->setColumnWidth(0, 260);
    if (columns.size() > 2)
        list->setColumnWidth(1, 150);
    m_tabs->addTab(list, title);
    connect(list, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem *item) { showUsersOf(item); });
    return list;
}

QWidget *InspectorPane::makeDetails()
{
    auto *details = new QWidget;
    auto *column = new QVBoxLayout(details);
    column->setContentsMargins(6, 0, 0, 0);
    m_name = new QLabel(tr("Nothing is picked."));
    m_name->setAccessibleName(tr("Picked widget"));
    m_name->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    m_name->setWordWrap(true);
    column->addWidget(m_name);
    auto *line = new QHBoxLayout;
    m_partBox = new QComboBox;
    m_partBox->setAccessibleName(tr("Part of the widget"));
    m_partBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_partBox->setMinimumContentsLength(16);
    line->addWidget(m_partBox, 1);
    const QStringList states = ForcedStates::names();
    for (const QString &state : states) {
        auto *box = new QCheckBox(QLatin1Char(':') % state);
        box->setAccessibleName(tr("Force the state %1").arg(state));
        connect(box, &QCheckBox::toggled, this, [this, state](bool on) { force(state, on); });
        m_states.insert(state, box);
        line->addWidget(box);
    }
    column->addLayout(line);
    connect(m_partBox, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        m_part = m_parts.value(index);
        look();
    });
    m_contrast = new QLabel;
    m_contrast->setAccessibleName(tr("Contrast of the text"));
    column->addWidget(m_contrast);
    m_tabs = new QTabWidget;
    m_rules = makeList(tr("Rules"),
                       {tr("Rule"), tr("Value"), tr("Where"), tr("Weight"), tr("Overridden by")});
    m_values = makeList(tr("Values"), {tr("Property"), tr("Value"), tr("Where")});
    m_boxes = makeList(tr("Box, font, palette"), {tr("What"), tr("Value")});
    m_palette = makeList(tr("Theme"), {tr("Palette entry"), tr("Colour")});
    auto *question = new QWidget;
    auto *form = new QVBoxLayout(question);
    m_selector = new QLineEdit;
    m_selector->setAccessibleName(tr("Selector"));
    m_selector->setToolTip(tr("A selector without commas: QPushButton[style=general]:hover"));
    auto *selectorLabel = new QLabel(tr("Why does &this selector not match the picked part?"));
    selectorLabel->setBuddy(m_selector);
    form->addWidget(selectorLabel);
    form->addWidget(m_selector);
    m_verdict = makeList(tr("Why not"), {tr("Part of the selector"), tr("Verdict")});
    m_tabs->removeTab(m_tabs->indexOf(m_verdict));
    form->addWidget(m_verdict);
    m_verdict->show();
    m_tabs->addTab(question, tr("Why not"));
    connect(m_selector, &QLineEdit::textChanged, this, &InspectorPane::showVerdict);
    column->addWidget(m_tabs, 1);
    auto *users = new QPushButton(tr("&Show everything that uses this"));
    users->setToolTip(tr("Of the rule, value, key or palette entry that is chosen above"));
    connect(users, &QPushButton::clicked, this, [this] {
        const auto *list = m_tabs->currentWidget()->inherits("QTreeWidget")
            ? static_cast<QTreeWidget *>(m_tabs->currentWidget())
            : nullptr;
        if (list && list->currentItem())
            showUsersOf(list->currentItem());
    });
    column->addWidget(users);
    return details;
}

void InspectorPane::pick(QWidget *widget, const WidgetPart &part)
{
    if (!widget || isOwn(widget))
        return;
    m_users.clear();
    if (widget != m_widget)
        m_forced.setWidget(paintedAs(widget));
    m_widget = widget;
    m_part = part;
    if (!m_tree.indexOf(widget).isValid())
        m_tree.refresh();
    const QModelIndex index = m_tree.indexOf(widget);
    if (index.isValid() && m_widgets->currentIndex() != index) {
        m_widgets->setCurrentIndex(index);
        m_widgets->scrollTo(index);
    }
    look();
    Q_EMIT picked(widget);
}

void InspectorPane::refresh()
{
    m_tree.refresh();
    m_sheet = m_source();
    showPalette();
    look();
}

void InspectorPane::look()
{
    m_outline.clear();
    if (m_sheet->text() != qApp->styleSheet()) {
        m_sheet = m_source();
        showPalette();
    }
    if (!m_widget) {
        m_name->setText(tr("Nothing is picked."));
        return;
    }
    QWidget *painted = paintedAs(m_widget);
    m_parts = widgetParts(painted);
    for (const WidgetPart &part : qAsConst(m_parts)) { // as it is now
        if (part.subControl == m_part.subControl && part.label == m_part.label
            && (part.rect == m_part.rect || m_part.rect.isEmpty() || part.subControl.isEmpty())) {
            m_part = part;
            break;
        }
    }
    m_inspection = Inspection::of(m_widget, m_part, *m_sheet);
    showParts();
    showStates();
    showRules();
    showValues();
    showBox();
    showContrast();
    showVerdict();
    if (painted->isVisible())
        m_outline.add(painted, m_part.rect);
}

void InspectorPane::showParts()
{
    QString name = nameOf(m_widget);
    if (m_inspection.styledWidget != m_widget)
        name += tr(", which has the rules of %1").arg(nameOf(m_inspection.styledWidget));
    QStringList states = m_inspection.element.states.values();
    states.sort();
    m_name->setText(QStringLiteral("%1   (%2)").arg(name, states.join(QLatin1String(", "))));
    m_partBox->clear();
    int current = 0;
    for (int i = 0; i < m_parts.size(); ++i) {
        const WidgetPart &part = m_parts.at(i);
        const QString text = part.subControl.isEmpty()
            ? tr("the widget itself")
            : QString(QLatin1String("::") % part.subControl % QLatin1String("  ") % part.label);
        m_partBox->addItem(text);
        if (part == m_part)
            current = i;
    }
    m_partBox->setCurrentIndex(current);
}

void InspectorPane::showStates()
{
    for (auto it = m_states.cbegin(); it != m_states.cend(); ++it) {
        const QSignalBlocker blocker(*it);
        (*it)->setEnabled(ForcedStates::isPossible(m_inspection.styledWidget, it.key()));
        (*it)->setChecked(m_forced.isForced(it.key()));
    }
}

void InspectorPane::showRules()
{
    m_rules->clear();
    for (const InspectedRule &rule : m_inspection.rules) {
        QString title = rule.selector;
        if (!rule.source.isEmpty())
            title += tr("  (of %1 itself)").arg(rule.source);
        else if (rule.isOfWidget)
            title += tr("  (of the widget)");
        auto *item = new QTreeWidgetItem(
            m_rules, {title, QString(), placeText(rule.place), QString::number(rule.specificity)});
        item->setToolTip(0, fullPlace(rule.place));
        item->setToolTip(2, fullPlace(rule.place));
        if (rule.isApplication)
            setUsers(item, m_sheet->declarationsOfRule(rule.offset), rule.selector);
        for (const InspectedDeclaration &declaration : rule.declarations) {
            QStringList by;
            for (const StyleMatch &other : declaration.overriddenBy)
                by << other.selector;
            auto *line =
                row(item,
                    {declaration.match.property, declaration.match.value,
                     placeText(declaration.origin.place), QString(), by.join(QLatin1String(", "))},
                    fullPlace(declaration.origin.place));
            line->setIcon(1, colorIcon(declaration.match.value));
            if (rule.isApplication)
                setUsers(line, {declaration.match.offset}, declaration.match.property);
            if (!declaration.isOverridden())
                continue;
            for (int column = 0; column < 2; ++column) {
                QFont font = m_rules->font();
                font.setStrikeOut(true);
                line->setFont(column, font);
                line->setData(column, Qt::AccessibleTextRole,
                              tr("overridden: %1").arg(line->text(column)));
            }
        }
        item->setExpanded(true);
    }
}

void InspectorPane::showValues()
{
    m_values->clear();
    for (const InspectedValue &value : m_inspection.values) {
        const QString place = value.isOfRule() ? placeText(value.origin.place) : value.source;
        auto *item = new QTreeWidgetItem(m_values, {value.property, value.value, place});
        item->setIcon(1, colorIcon(value.value));
        item->setToolTip(2, value.isOfRule() ? fullPlace(value.origin.place) : value.source);
        if (value.isOfRule() && value.match.sheet == StyleMatch::application)
            setUsers(item, {value.match.offset}, value.property);
        for (const ValueChain &chain : value.chains) {
            const QString token = Tokens::opening(chain.prefix, chain.token.kind) % chain.token.key;
            auto *link = row(item, {token, chain.value, placeText(value.origin.place)},
                             fullPlace(value.origin.place));
            setUsers(link, OfKey, chain.token.key);
            for (const ExplanationStep &step : chain.steps) {
                using Topic = ExplanationStep::Topic;
                const QString where = step.place.file.isEmpty() ? QString() : step.place.text();
                auto *line = row(link, {step.text, QString(), where}, where);
                if (step.topic == Topic::Ineffective) {
                    QFont font = m_values->font();
                    font.setStrikeOut(true);
                    line->setFont(0, font);
                }
                for (const QString &entry : chain.palette) {
                    if (step.text.contains(QLatin1String("[Palettes] ") % entry % QLatin1Char('=')))
                        setUsers(line, OfPalette, entry);
                }
            }
            link->setExpanded(true);
        }
    }
    if (!m_sheet->problem().isEmpty())
        new QTreeWidgetItem(
            m_values, {tr("The theme's files cannot be read"), QString(), m_sheet->problem()});
}

void InspectorPane::showBox()
{
    m_boxes->clear();
    const BoxModel &box = m_inspection.box;
    const auto add = [this](const QString &what, const QString &value) {
        auto *item = new QTreeWidgetItem(m_boxes, {what, value});
        item->setIcon(1, colorIcon(value));
    };
    add(tr("geometry"),
        QStringLiteral("%1, %2  %3 × %4")
            .arg(box.geometry.x())
            .arg(box.geometry.y())
            .arg(box.geometry.width())
            .arg(box.geometry.height()));
    add(tr("margin"), marginText(box.margin));
    add(tr("border"), marginText(box.border));
    add(tr("padding"), marginText(box.padding));
    add(tr("contents"),
        QStringLiteral("%1 × %2").arg(box.contents.width()).arg(box.contents.height()));
    const QFontInfo font(m_inspection.font);
    add(tr("font"),
        QStringLiteral("%1, %2 px, weight %3")
            .arg(font.family())
            .arg(font.pixelSize())
            .arg(m_inspection.font.weight()));
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        if (role != QPalette::NoRole)
            add(QLatin1String(roles.valueToKey(role)),
                m_inspection.palette.color(QPalette::ColorRole(role)).name());
    }
}

void InspectorPane::showContrast()
{
    const auto contrast =
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

void InspectorPane::showPalette()
{
    m_palette->clear();
    const auto entries = m_sheet->palette();
    for (const auto &entry : entries) {
        auto *item =
            new QTreeWidgetItem(m_palette, {entry.first, entry.second.name(QColor::HexArgb)});
        item->setIcon(1, colorIcon(entry.second.name()));
        setUsers(item, OfPalette, entry.first);
    }
}

void InspectorPane::showVerdict()
{
    m_verdict->clear();
    const QString text = m_selector->text().trimmed();
    if (text.isEmpty() || !m_inspection.styledWidget)
        return;
    // It may ask for properties that no rule asks for.
    StyleRules rules(text % QLatin1String("{}"));
    StyleElement element = StyleElement::of(
        m_inspection.styledWidget, attributesIn(rules.rules()) + m_sheet->cascade().attributes());
    element.subControl = m_inspection.subControl;
    element.states = m_inspection.element.states;
    const SelectorVerdict verdict = whyNot(text, element);
    new QTreeWidgetItem(m_verdict, {text, verdict.matches ? tr("matches") : verdict.reason});
    for (const SelectorPiece &piece : verdict.pieces)
        new QTreeWidgetItem(m_verdict, {piece.text, piece.fits ? tr("fits") : piece.reason});
}

void InspectorPane::showUsersOf(const QTreeWidgetItem *item)
{
    const QString what = item->data(0, nameRole).toString();
    QSet<int> declarations;
    const QVariantList offsets = item->data(0, usersRole).toList();
    for (const QVariant &offset : offsets)
        declarations << offset.toInt();
    const int kind = item->data(0, kindRole).toInt();
    if (kind == OfKey)
        declarations = m_sheet->declarationsOfKey(what);
    if (kind == OfPalette)
        declarations = m_sheet->declarationsOfPalette(what);
    if (!what.isEmpty())
        showUsers(declarations, what);
}

void InspectorPane::showUsers(const QSet<int> &declarations, const QString &what)
{
    m_users.clear();
    m_tree.refresh();
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
        if (object == m_widget && !m_later.isActive())
            m_later.start();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(object, event);
}

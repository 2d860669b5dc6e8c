// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/forcedstates.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QEvent>
#include <QSignalBlocker>
#include <QTimer>
#include <QVector>
#include <QWidget>

namespace
{

// A combo or spin box may be disabled by its program, but is under the mouse by an attribute.
void setHovered(QWidget *widget, bool on)
{
    widget->setAttribute(Qt::WA_UnderMouse, on);
}

Qt::CheckState checkState(const QAbstractButton *button)
{
    if (const auto *box = qobject_cast<const QCheckBox *>(button))
        return box->checkState();
    return button->isChecked() ? Qt::Checked : Qt::Unchecked;
}

void setCheckState(QAbstractButton *button, Qt::CheckState state)
{
    if (auto *box = qobject_cast<QCheckBox *>(button))
        box->setCheckState(state);
    else
        button->setChecked(state != Qt::Unchecked);
}

// The one that Qt would uncheck if the button were checked.
QAbstractButton *checkedBeside(const QAbstractButton *button)
{
    if (const QButtonGroup *group = button->group())
        return group->exclusive() && group->checkedButton() != button ? group->checkedButton()
                                                                      : nullptr;
    if (!button->autoExclusive() || !button->parentWidget())
        return nullptr;
    const auto others = button->parentWidget()->findChildren<QAbstractButton *>();
    for (QAbstractButton *other : others) {
        if (other != button && other->isChecked() && other->autoExclusive() && !other->group())
            return other;
    }
    return nullptr;
}

// While this lives two exclusive buttons can be checked or unchecked by themselves, and nobody is told.
class Unbound
{
public:
    Unbound(QAbstractButton *one, QAbstractButton *other)
        : m_group(one->group())
        , m_isExclusive(m_group && m_group->exclusive())
    {
        for (QAbstractButton *button : {one, other}) {
            if (!button)
                continue;
            m_buttons.append({button, button->autoExclusive(), button->blockSignals(true)});
            button->setAutoExclusive(false);
        }
        if (m_group) {
            m_isGroupBlocked = m_group->blockSignals(true);
            m_group->setExclusive(false);
        }
    }

    ~Unbound()
    {
        for (const Button &each : qAsConst(m_buttons)) {
            each.button->setAutoExclusive(each.isExclusive);
            each.button->blockSignals(each.isBlocked);
        }
        if (m_group) {
            m_group->setExclusive(m_isExclusive);
            m_group->blockSignals(m_isGroupBlocked);
        }
    }

    Q_DISABLE_COPY(Unbound)

private:
    struct Button {
        QAbstractButton *button;
        bool isExclusive;
        bool isBlocked;
    };

    QVector<Button> m_buttons;
    QButtonGroup *const m_group;
    const bool m_isExclusive;
    bool m_isGroupBlocked = false;
};

} // namespace

ForcedStates::ForcedStates(QObject *parent)
    : QObject(parent)
{
    connect(qApp, &QApplication::focusChanged, this, &ForcedStates::followFocus);
}

ForcedStates::~ForcedStates()
{
    setWidget(nullptr);
}

QStringList ForcedStates::names()
{
    return {QStringLiteral("hover"),    QStringLiteral("pressed"), QStringLiteral("checked"),
            QStringLiteral("disabled"), QStringLiteral("focus"),   QStringLiteral("selected")};
}

bool ForcedStates::isPossible(const QWidget *widget, const QString &state)
{
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    if (state == QLatin1String("pressed"))
        return button != nullptr;
    if (state == QLatin1String("checked"))
        return button && button->isCheckable();
    if (state == QLatin1String("selected")) {
        const auto *view = qobject_cast<const QAbstractItemView *>(widget);
        return view && view->selectionModel();
    }
    return true;
}

void ForcedStates::setWidget(QWidget *widget)
{
    if (widget == m_widget)
        return;
    const QStringList forced = m_before.keys();
    for (const QString &state : forced)
        setForced(state, false);
    m_before.clear();
    if (m_widget) {
        m_widget->removeEventFilter(this);
        disconnect(m_widget, &QObject::destroyed, this, &ForcedStates::forgetWidget);
    }
    m_widget = widget;
    if (m_widget) {
        m_widget->installEventFilter(this);
        connect(m_widget, &QObject::destroyed, this, &ForcedStates::forgetWidget);
    }
}

// The button that was unchecked for one that is no more; unless the user has chosen another one meanwhile.
void ForcedStates::forgetWidget()
{
    const bool isOwed = isForced(QStringLiteral("checked")) && m_checkedBefore;
    m_before.clear();
    if (!isOwed || checkedBeside(m_checkedBefore))
        return;
    const Unbound quiet(m_checkedBefore, nullptr);
    m_checkedBefore->setChecked(true);
}

// What the user's hand does to the widget ends no state that is forced.
bool ForcedStates::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::DragEnter:
    case QEvent::DragLeave:
        if (object == m_widget && isForced(QStringLiteral("hover")))
            followPointer(event->type() == QEvent::Enter || event->type() == QEvent::DragEnter);
        break;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyRelease:
    case QEvent::FocusOut:
    case QEvent::EnabledChange:
        if (object == m_widget && isForced(QStringLiteral("pressed")))
            QTimer::singleShot(0, this, &ForcedStates::holdDown);
        break;
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

// Qt has set the attribute before it asks event filters.
void ForcedStates::followPointer(bool isInside)
{
    m_before[QStringLiteral("hover")] = isInside;
    setHovered(m_widget, true);
    m_widget->update();
}

void ForcedStates::holdDown()
{
    auto *button = qobject_cast<QAbstractButton *>(m_widget);
    if (!button || !isForced(QStringLiteral("pressed")) || button->isDown())
        return;
    m_before[QStringLiteral("pressed")] = false;
    const QSignalBlocker blocker(button);
    button->setDown(true);
}

void ForcedStates::setForced(const QString &state, bool forced)
{
    if (!m_widget || forced == isForced(state) || !isPossible(m_widget, state))
        return;
    if (forced) {
        QVariant before;
        if (state == QLatin1String("hover"))
            before = m_widget->testAttribute(Qt::WA_UnderMouse);
        else if (state == QLatin1String("pressed"))
            before = qobject_cast<QAbstractButton *>(m_widget)->isDown();
        else if (state == QLatin1String("checked"))
            before = int(checkState(qobject_cast<QAbstractButton *>(m_widget)));
        else if (state == QLatin1String("disabled"))
            before = m_widget->testAttribute(Qt::WA_ForceDisabled);
        else if (state == QLatin1String("focus"))
            before = QVariant::fromValue(QPointer<QWidget>(m_widget->focusProxy()));
        else
            before = QVariant::fromValue(QPersistentModelIndex());
        m_before.insert(state, before);
        apply(state, true, before);
    } else {
        apply(state, false, m_before.take(state));
    }
    m_widget->update();
}

void ForcedStates::apply(const QString &state, bool on, const QVariant &before)
{
    const QSignalBlocker blocker(m_widget.data());
    auto *button = qobject_cast<QAbstractButton *>(m_widget);
    if (state == QLatin1String("hover")) {
        setHovered(m_widget, on || before.toBool());
    } else if (state == QLatin1String("pressed")) {
        applyDown(button, on, before.toBool());
    } else if (state == QLatin1String("checked")) {
        applyChecked(button, on, Qt::CheckState(before.toInt()));
    } else if (state == QLatin1String("disabled")) {
        applyDisabled(on, before.toBool());
    } else if (state == QLatin1String("focus")) {
        if (on)
            followFocus();
        else
            m_widget->setFocusProxy(before.value<QPointer<QWidget>>());
    } else {
        auto *view = qobject_cast<QAbstractItemView *>(m_widget);
        const QSignalBlocker quiet(view->selectionModel());
        if (on) {
            const QModelIndex first = view->model()->index(0, 0, view->rootIndex());
            const QModelIndex index = view->currentIndex().isValid() ? view->currentIndex() : first;
            if (view->selectionModel()->isSelected(index))
                return;
            m_before[state] = QVariant::fromValue(QPersistentModelIndex(index));
            view->selectionModel()->select(index, QItemSelectionModel::Select);
        } else if (before.value<QPersistentModelIndex>().isValid()) {
            view->selectionModel()->select(before.value<QPersistentModelIndex>(),
                                           QItemSelectionModel::Deselect);
        }
        view->viewport()->update();
    }
}

// A button that repeats would click while it is held.
void ForcedStates::applyDown(QAbstractButton *button, bool on, bool before)
{
    if (on) {
        m_repeated = button->autoRepeat();
        button->setAutoRepeat(false);
    }
    button->setDown(on || before);
    if (!on)
        button->setAutoRepeat(m_repeated);
}

// Qt gives the focus of what is disabled to another widget; it comes back unless the user has moved it
// on meanwhile.
void ForcedStates::applyDisabled(bool on, bool before)
{
    const QWidget *window = m_widget->window();
    QWidget *focus = window->focusWidget();
    if (on)
        m_focused = focus && (focus == m_widget || m_widget->isAncestorOf(focus)) ? focus : nullptr;
    m_widget->setEnabled(!(on || before));
    if (on)
        m_focusedInstead = window->focusWidget();
    else if (m_focused && focus == m_focusedInstead)
        m_focused->setFocus(Qt::OtherFocusReason);
}

void ForcedStates::applyChecked(QAbstractButton *button, bool on, Qt::CheckState before)
{
    const bool isHeld = button->isChecked();
    if (on)
        m_checkedBefore = checkedBeside(button);
    const Unbound unbound(button, m_checkedBefore);
    // Unless the user has chosen another one meanwhile.
    if (m_checkedBefore && (on || isHeld))
        m_checkedBefore->setChecked(!on);
    if (on)
        setCheckState(button, Qt::Checked);
    else if (isHeld || before == Qt::Unchecked)
        setCheckState(button, before);
}

// A widget whose proxy has the focus looks as if it had it; the user has it in the inspector.
void ForcedStates::followFocus()
{
    QWidget *focus = QApplication::focusWidget();
    if (!m_widget || !isForced(QStringLiteral("focus")) || !focus || focus == m_widget)
        return;
    for (const QWidget *proxy = focus; proxy; proxy = proxy->focusProxy()) {
        if (proxy == m_widget)
            return;
    }
    m_widget->setFocusProxy(focus);
    m_widget->update();
}

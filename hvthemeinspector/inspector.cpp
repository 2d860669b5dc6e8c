// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <hvthemeinspector/inspector.h>

#include <inspector/inspectorwindow.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

namespace HV
{
namespace
{

QPointer<InspectorWindow> &window()
{
    static QPointer<InspectorWindow> theWindow;
    return theWindow;
}

// Shortcuts of Qt need a widget to live in, and do not reach past modal dialogs.
class Shortcut final : public QObject
{
public:
    Shortcut(const QKeySequence &keys, QObject *parent)
        : QObject(parent)
        , m_key(keys[0])
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress || !object->isWidgetType())
            return false;
        const auto *key = static_cast<QKeyEvent *>(event);
        if (QKeySequence(key->key() | int(key->modifiers())) != QKeySequence(m_key))
            return false;
        if (key->isAutoRepeat())
            return true; // held down it would open and close
        if (Inspector::isOpen())
            window()->close(); // which may ask
        else
            Inspector::open();
        return true;
    }

private:
    const QKeySequence m_key;
};

} // namespace

void Inspector::open(QWidget *widget)
{
    if (!window() || window()->isClosed()) // it may still be there for a while
        window() = new InspectorWindow;
    if (isOpen()) {
        window()->raise();
        window()->activateWindow();
    } else {
        window()->show();
    }
    if (widget)
        window()->pane()->pick(widget);
}

void Inspector::close()
{
    delete window().data();
}

bool Inspector::isOpen()
{
    return window() && window()->isVisible();
}

void Inspector::installShortcut(const QKeySequence &keys)
{
    static QPointer<Shortcut> shortcut;
    delete shortcut.data();
    if (!keys.isEmpty())
        shortcut = new Shortcut(keys, qApp);
}

} // namespace HV

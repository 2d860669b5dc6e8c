// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "placeholders.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPalette>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace HV
{

namespace
{

bool hasPlaceholder(const QObject *object)
{
    return qobject_cast<const QLineEdit *>(object) || qobject_cast<const QPlainTextEdit *>(object)
        || qobject_cast<const QTextEdit *>(object);
}

} // namespace

Placeholders::Placeholders(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

// Qt's style sheets set the palette of a widget as they polish it, and tell of it at once.
bool Placeholders::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::PaletteChange || !hasPlaceholder(object)
        || qApp->styleSheet().isEmpty())
        return false;
    auto *widget = static_cast<QWidget *>(object);
    QPalette palette = widget->palette();
    bool isTypedIn = false;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor text = palette.color(group, QPalette::Text);
        const QColor wanted = QApplication::palette().color(group, QPalette::PlaceholderText);
        if (palette.color(group, QPalette::PlaceholderText) != text || wanted == text)
            continue;
        palette.setColor(group, QPalette::PlaceholderText, wanted);
        isTypedIn = true;
    }
    if (isTypedIn)
        widget->setPalette(palette); // comes back here, and then nothing is left to do
    return false;
}

} // namespace HV

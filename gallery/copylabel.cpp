// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "copylabel.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStatusTipEvent>

namespace Gallery
{

CopyLabel::CopyLabel(const QString &caption, const QString &text, const QString &alternative)
    : QLabel(caption)
    , m_text(text)
    , m_alternative(alternative)
{
    setTextFormat(Qt::PlainText);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    QString tip = QStringLiteral("Click copies: ") + text;
    if (!alternative.isEmpty())
        tip += QStringLiteral("\nShift-click copies: ") + alternative;
    setToolTip(tip);
}

void CopyLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        copy(event->modifiers());
}

void CopyLabel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter
        || event->key() == Qt::Key_Space)
        copy(event->modifiers());
    else
        QLabel::keyPressEvent(event);
}

void CopyLabel::copy(Qt::KeyboardModifiers modifiers)
{
    const bool other = modifiers.testFlag(Qt::ShiftModifier) && !m_alternative.isEmpty();
    const QString &copied = other ? m_alternative : m_text;
    QGuiApplication::clipboard()->setText(copied);
    QStatusTipEvent told(QStringLiteral("Copied: ") + copied);
    QCoreApplication::sendEvent(this, &told);
}

} // namespace Gallery

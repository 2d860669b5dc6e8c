// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/inspectorwindow.h>

#include <QApplication>
#include <QVBoxLayout>
#include <QWindow>

InspectorWindow::InspectorWindow()
    : m_pane(nullptr)
{
    setProperty("hvthemeInspector", true);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(tr("Inspector"));
    resize(960, 640);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_pane = new InspectorPane(this);
    layout->addWidget(m_pane);
    qApp->installEventFilter(this);
}

InspectorWindow::~InspectorWindow()
{
    qApp->removeEventFilter(this);
}

void InspectorWindow::showEvent(QShowEvent *event)
{
    followModality();
    QWidget::showEvent(event);
}

bool InspectorWindow::eventFilter(QObject *object, QEvent *event)
{
    const bool isChange = event->type() == QEvent::Show || event->type() == QEvent::Hide;
    if (isChange && object->isWidgetType() && object != this
        && static_cast<QWidget *>(object)->isModal())
        QMetaObject::invokeMethod(this, &InspectorWindow::followModality, Qt::QueuedConnection);
    return QWidget::eventFilter(object, event);
}

void InspectorWindow::followModality()
{
    const QWidget *modal = QApplication::activeModalWidget();
    QWindow *handle = windowHandle();
    if (handle)
        handle->setTransientParent(modal ? modal->windowHandle() : nullptr);
}

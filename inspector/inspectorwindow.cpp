// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/inspectorwindow.h>

#include <QApplication>
#include <QCloseEvent>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

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
    // With changes that are not saved it asks before the program ends with its last window.
    const auto followChanges = [this] {
        setAttribute(Qt::WA_QuitOnClose, ProgramChanges::ofProgram()->isUnsaved());
    };
    connect(ProgramChanges::ofProgram(), &ProgramChanges::changed, this, followChanges);
    followChanges();
}

InspectorWindow::~InspectorWindow()
{
    qApp->removeEventFilter(this);
}

void InspectorWindow::closeEvent(QCloseEvent *event)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const bool hasOthers = std::any_of(windows.cbegin(), windows.cend(), [](const QWidget *window) {
        return window->isVisible() && window->testAttribute(Qt::WA_QuitOnClose)
            && !InspectorPane::isOwn(window);
    });
    event->setAccepted(
        m_pane->mayClose(hasOthers ? SaveBar::Closing::Inspector : SaveBar::Closing::Program));
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
        && static_cast<QWidget *>(object)->isModal()
        && !InspectorPane::isOwn(static_cast<QWidget *>(object)))
        QMetaObject::invokeMethod(this, &InspectorWindow::followModality, Qt::QueuedConnection);
    return QWidget::eventFilter(object, event);
}

void InspectorWindow::followModality()
{
    const QWidget *modal = QApplication::activeModalWidget();
    QWindow *handle = windowHandle();
    if (handle && !(modal && InspectorPane::isOwn(modal)))
        handle->setTransientParent(modal ? modal->windowHandle() : nullptr);
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/inspectorwindow.h>

#include <QApplication>
#include <QCloseEvent>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace
{

bool programHasWindows()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.cbegin(), windows.cend(), [](const QWidget *window) {
        return window->isVisible() && window->testAttribute(Qt::WA_QuitOnClose)
            && !InspectorPane::isOwn(window);
    });
}

} // namespace

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
    connect(ProgramChanges::ofProgram(), &ProgramChanges::changed, this,
            &InspectorWindow::followChanges);
    followChanges();
}

InspectorWindow::~InspectorWindow()
{
    qApp->removeEventFilter(this);
}

// Qt takes the attribute away once it has asked for the deletion.
bool InspectorWindow::isClosed() const
{
    return !testAttribute(Qt::WA_DeleteOnClose);
}

// With changes that are not saved it asks before the program ends with its last window. Once it has
// kept the program running without one, the program ends with the inspector.
void InspectorWindow::followChanges()
{
    const bool isLast = testAttribute(Qt::WA_QuitOnClose) && !programHasWindows();
    setAttribute(Qt::WA_QuitOnClose, isLast || ProgramChanges::ofProgram()->isUnsaved());
}

void InspectorWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(m_pane->mayClose(programHasWindows() ? SaveBar::Closing::Inspector
                                                            : SaveBar::Closing::Program));
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
        QTimer::singleShot(0, this, &InspectorWindow::followModality);
    if (event->type() == QEvent::Show && object->isWidgetType()
        && static_cast<QWidget *>(object)->isWindow())
        QTimer::singleShot(0, this, &InspectorWindow::followChanges);
    return QWidget::eventFilter(object, event);
}

void InspectorWindow::followModality()
{
    const QWidget *modal = QApplication::activeModalWidget();
    QWindow *handle = windowHandle();
    if (handle && !(modal && InspectorPane::isOwn(modal)))
        handle->setTransientParent(modal ? modal->windowHandle() : nullptr);
}

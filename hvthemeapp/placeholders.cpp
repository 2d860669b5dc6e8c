// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "placeholders.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextEdit>

namespace HV
{
namespace
{

void correct(QWidget *field)
{
    QPalette palette = field->palette();
    const QPalette application = QApplication::palette();
    bool isCorrected = false;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QRgb text = palette.color(group, QPalette::Text).rgb();
        const QColor &wanted = application.color(group, QPalette::PlaceholderText);
        const QColor color = palette.color(group, QPalette::PlaceholderText);
        if (color.rgb() != text || color == wanted)
            continue;
        palette.setColor(group, QPalette::PlaceholderText, wanted);
        isCorrected = true;
    }
    if (isCorrected)
        field->setPalette(palette);
}

} // namespace

void Placeholders::install(QApplication *application)
{
    static QPointer<Placeholders> installed;
    if (installed)
        return;
    installed = new Placeholders(application);
    application->installEventFilter(installed);
}

bool Placeholders::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::PaletteChange || !object->isWidgetType())
        return false;
    if (qobject_cast<QLineEdit *>(object) || qobject_cast<QTextEdit *>(object)
        || qobject_cast<QPlainTextEdit *>(object))
        correct(static_cast<QWidget *>(object));
    return false;
}

} // namespace HV

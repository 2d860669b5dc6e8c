// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "stylesbehind.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>

namespace HV
{

QStyle *plainStyle()
{
    // Qt makes it a child of the one for style sheets.
    QStyle *style = QApplication::style();
    QStyle *hidden = qApp->styleSheet().isEmpty()
        ? nullptr
        : style->findChild<QStyle *>(QString(), Qt::FindDirectChildrenOnly);
    return hidden ? hidden : style;
}

bool isMadeByName(const QStyle &style)
{
    return QStyleFactory::keys().contains(style.objectName(), Qt::CaseInsensitive);
}

QStyle *innermost(QStyle *style)
{
    while (const auto *proxy = qobject_cast<QProxyStyle *>(style))
        style = proxy->baseStyle();
    return style;
}

} // namespace HV

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "messagelist.h"

#include <format/printabletext.h>

#include <QGuiApplication>

namespace Gallery
{

namespace
{

QString severityName(QtMsgType severity)
{
    switch (severity) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
        return QStringLiteral("critical");
    case QtFatalMsg:
        break;
    }
    return QStringLiteral("fatal");
}

// Said of every window shown without a display; it is about no theme and nobody can mend it.
bool isPlatformRemark(const QString &text)
{
    return text == QLatin1String("This plugin does not support propagateSizeHints()");
}

} // namespace

MessageList::MessageList(QObject *parent)
    : QAbstractListModel(parent)
    , m_log([this](const LoggedMessage &message) {
        if (isPlatformRemark(message.text))
            return false;
        Q_EMIT heard(m_generation, message.type, message.text, {});
        return true;
    })
{
    // Messages come in the middle of painting and polishing, where a model must not change under its
    // view.
    connect(this, &MessageList::heard, this, &MessageList::append, Qt::QueuedConnection);
}

MessageList::~MessageList() = default;

void MessageList::clear()
{
    beginResetModel();
    ++m_generation;
    m_messages.clear();
    endResetModel();
}

int MessageList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_messages.size());
}

QVariant MessageList::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const Message &message = m_messages.at(index.row());
    return QString(severityName(message.severity) + QLatin1String(": ") + printable(message.text));
}

void MessageList::append(int generation, int severity, const QString &text)
{
    Message message{QtMsgType(severity), text};
    const QString places = m_findPlaces ? m_findPlaces(message.text) : QString();
    if (!places.isEmpty() && !message.text.contains(places))
        message.text += QLatin1String(" (") + places + QLatin1Char(')');
    if (generation != m_generation || m_messages.contains(message))
        return;
    const int row = int(m_messages.size());
    beginInsertRows({}, row, row);
    m_messages.append(message);
    endInsertRows();
}

} // namespace Gallery

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "messagelog.h"

#include <format/printabletext.h>

#include <QGuiApplication>

#include <atomic>

namespace Gallery
{

namespace
{

std::atomic<MessageLog *> currentLog{nullptr};
QtMessageHandler previousHandler = nullptr;

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

MessageLog::MessageLog(QObject *parent)
    : QAbstractListModel(parent)
{
    Q_ASSERT(currentLog == nullptr);
    currentLog = this;
    previousHandler = qInstallMessageHandler(handleMessage);
}

MessageLog::~MessageLog()
{
    currentLog = nullptr;
    qInstallMessageHandler(previousHandler);
}

void MessageLog::clear()
{
    beginResetModel();
    ++m_generation;
    m_messages.clear();
    endResetModel();
}

int MessageLog::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_messages.size();
}

QVariant MessageLog::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const Message &message = m_messages.at(index.row());
    return QString(severityName(message.severity) + QLatin1String(": ") + printable(message.text));
}

// Messages come in the middle of painting and polishing, where a model must not change under its
// view; hence queued.
void MessageLog::handleMessage(QtMsgType severity, const QMessageLogContext &context,
                               const QString &text)
{
    if (isPlatformRemark(text))
        return;
    if (MessageLog *log = currentLog) {
        QMetaObject::invokeMethod(
            log,
            [log, generation = log->m_generation, message = Message{severity, text}] {
                log->append(generation, message);
            },
            Qt::QueuedConnection);
    }
    if (previousHandler != nullptr)
        previousHandler(severity, context, text);
}

void MessageLog::append(int generation, Message message)
{
    const QString places = m_findPlaces ? m_findPlaces(message.text) : QString();
    if (!places.isEmpty() && !message.text.contains(places))
        message.text += QLatin1String(" (") + places + QLatin1Char(')');
    if (generation != m_generation || m_messages.contains(message))
        return;
    beginInsertRows({}, m_messages.size(), m_messages.size());
    m_messages.append(message);
    endInsertRows();
}

} // namespace Gallery

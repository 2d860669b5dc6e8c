// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_MESSAGELIST_H
#define GALLERY_MESSAGELIST_H

#include <analysis/messagelog.h>

#include <QAbstractListModel>
#include <QVector>

#include <functional>

namespace Gallery
{

/*!
 * \brief The messages of the program since the last clear(), each once, as a list model.
 *
 * Whoever heard the messages before hears them still, so stderr shows them too. Messages may come
 * from any thread and arrive queued.
 */
class MessageList final : public QAbstractListModel
{
    Q_OBJECT

public:
    /*! \brief Returns the places that a message is about, `FILE:LINE`, or an empty text. */
    using PlaceFinder = std::function<QString(const QString &text)>;

    struct Message {
        QtMsgType severity;
        QString text;

        bool operator==(const Message &other) const
        {
            return severity == other.severity && text == other.text;
        }
    };

    explicit MessageList(QObject *parent = nullptr);
    ~MessageList() override;

    /*! \brief Forgets the messages so far, those on their way included. */
    void clear();

    /*! \brief Lets \a finder say, as each message arrives, what places it is about. */
    void setPlaceFinder(const PlaceFinder &finder) { m_findPlaces = finder; }

    const QVector<Message> &messages() const { return m_messages; }
    int rowCount(const QModelIndex &parent = {}) const override;

    /*! \brief `Qt::DisplayRole`: severity, printable text and places, `critical: … (a.theme:3)`. */
    QVariant data(const QModelIndex &index, int role) const override;

Q_SIGNALS:
    /*! \brief A message came, on the thread that it came from; for append(). */
    void heard(int generation, int severity, const QString &text, QPrivateSignal);

private:
    void append(int generation, int severity, const QString &text);

    PlaceFinder m_findPlaces;
    QVector<Message> m_messages;
    int m_generation = 0;
    ::MessageLog m_log;
};

} // namespace Gallery

#endif

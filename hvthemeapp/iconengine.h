// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEMEAPP_ICONENGINE_H
#define HVTHEMEAPP_ICONENGINE_H

#include <QIconEngine>
#include <QMap>
#include <QPixmap>

namespace HV
{

/*! \brief Draws an icon in the colours of the theme in force at each painting. */
class IconEngine : public QIconEngine
{
public:
    IconEngine() = default;
    explicit IconEngine(const QString &name);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    void addPixmap(const QPixmap &pixmap, QIcon::Mode mode, QIcon::State state) override;
    void addFile(const QString &path, const QSize &size, QIcon::Mode mode,
                 QIcon::State state) override;
    QString key() const override;
    QIconEngine *clone() const override;
    bool read(QDataStream &stream) override;
    bool write(QDataStream &stream) const override;
    void virtual_hook(int id, void *data) override;

private:
    /*! A name or path, or else pixels that were added. */
    struct Source {
        QString name;
        QPixmap pixmap;
    };
    struct Picture {
        QString path;
        QPixmap pixmap;
        QIcon::Mode mode; // what is left to be done to it
    };
    using Sources = QMap<QPair<int, int>, Source>;

    Picture picture(QIcon::Mode mode, QIcon::State state) const;
    QSize fittedSize(const Picture &picture, const QSize &size) const;
    QPixmap drawn(const Picture &picture, const QSize &size) const;

    Sources m_sources;
};

} // namespace HV

#endif // HVTHEMEAPP_ICONENGINE_H

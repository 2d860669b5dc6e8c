// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_ZOOMAREA_H
#define GALLERY_ZOOMAREA_H

#include <QGraphicsScene>
#include <QPointer>
#include <QStackedWidget>
#include <QTimer>
#include <QVector>

class QGraphicsProxyWidget;
class QGraphicsView;
class QScrollArea;

namespace Gallery
{

/*!
 * \brief A page that scrolls, as large as the user wants it.
 *
 * The page is alive at any size. As it is, it stands in a scroll area called `page`; larger or smaller
 * in a view called `zoomedPage`. The control key and the wheel zoom too.
 */
class ZoomArea final : public QStackedWidget
{
    Q_OBJECT

public:
    /*! \brief How large a page is, before it is zoomed. */
    enum class Fit {
        Fill, //!< as the area, unless it needs more
        OwnSize //!< what it has when it comes
    };

    /*! \brief Returns the sizes to choose from, in per cent. */
    static QVector<int> levels();

    explicit ZoomArea(QWidget *parent = nullptr);
    ~ZoomArea() override;

    /*! \brief Shows \a page, which it then owns, in place of the one before. */
    void setPage(QWidget *page, Fit fit);
    QWidget *page() const { return m_page; }

    int zoom() const { return m_zoom; }
    /*! \brief Shows the page in \a percent of its size, or the nearest of levels(). */
    void setZoom(int percent);
    /*! \brief Goes \a steps levels up or, if negative, down. */
    void zoomBy(int steps);

    QPoint scrolled() const;
    void scrollTo(const QPoint &place);
    /*! \brief Scrolls so that \a part of the page is in sight. */
    void reveal(QWidget *part);
    /*! \brief Gives the page the size that it now needs. */
    void settle();

    /*!
     * \brief Returns the widget of the page that is seen at \a place of the screen, those that let the
     *        mouse through too; null if something else is there.
     */
    QWidget *widgetAt(const QPoint &place) const;
    /*! \brief Returns where \a place of the screen is in \a part of the page, and the other way. Qt is
     *         wrong about it in a zoomed view. */
    QPoint mapFromScreen(const QWidget *part, const QPoint &place) const;
    QPoint mapToScreen(const QWidget *part, const QPoint &place) const;

    bool eventFilter(QObject *object, QEvent *event) override;

Q_SIGNALS:
    void zoomChanged(int percent);
    /*! \brief The user clicked on \a at of the page, which has had its click by now. */
    void clicked(QWidget *at, const QPoint &place);
    /*! \brief The user clicked with Ctrl and Shift on \a at, which sees nothing of it. */
    void picked(QWidget *at);
    /*! \brief A menu for \a at, which may be null, is wanted at \a place of the screen. */
    void menuWanted(QWidget *at, const QPoint &place);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool isOfPage(const QObject *object) const;
    void host();
    void release();
    void tellClick();

    QPointer<QWidget> m_page;
    Fit m_fit = Fit::Fill;
    int m_zoom = 100;
    QScrollArea *m_area;
    QGraphicsView *m_view;
    QGraphicsScene m_scene;
    QPointer<QGraphicsProxyWidget> m_proxy;
    QPointer<QWidget> m_clicked;
    QPoint m_clickPlace;
    QTimer m_clickTimer;
    int m_wheel = 0; //!< turned, but less than a step
};

} // namespace Gallery

#endif

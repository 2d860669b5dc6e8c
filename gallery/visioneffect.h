// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_VISIONEFFECT_H
#define GALLERY_VISIONEFFECT_H

#include <colormath/vision.h>

#include <QGraphicsEffect>

namespace Gallery
{

/*! \brief Paints a widget with all that is in it as an eye sees it that lacks a kind of cone. */
class VisionEffect final : public QGraphicsEffect
{
    Q_OBJECT

public:
    VisionEffect(ColorMath::Vision vision, QObject *parent);

    /*! \brief Lets \a widget be seen by \a vision; normal vision leaves no effect behind. */
    static void apply(ColorMath::Vision vision, QWidget *widget);

protected:
    void draw(QPainter *painter) override;

private:
    const ColorMath::Vision m_vision;
};

/*! \brief Lets windows that open, such as menus, lists and dialogs, be seen by a vision. */
class WindowVision final : public QObject
{
    Q_OBJECT

public:
    /*! \param window  is left out: it has parts that are seen otherwise. */
    explicit WindowVision(QWidget *window);

    void setVision(ColorMath::Vision vision);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isConcerned(const QWidget &window) const;

    const QWidget *const m_window;
    ColorMath::Vision m_vision = ColorMath::Vision::Normal;
};

} // namespace Gallery

#endif

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_TEXTRECORDER_H
#define HVTHEME_TESTS_TEXTRECORDER_H

#include <QColor>
#include <QImage>
#include <QPointer>
#include <QRect>
#include <QVector>
#include <QWidget>

#include <memory>

/*! One run of text as it was drawn. */
struct RecordedText {
    QString text;
    QRect rect; /*!< in the window, what the clip left of it */
    QColor pen; /*!< as drawn, opaque */
    QColor ground; /*!< of the colours that lay below a good part of it, the worst to read on */
    double contrast = 21;
    QString widget; /*!< class and object name of who drew it, and of its window */
    bool enabled = true; /*!< the widget, the part of it and, by its colour, the text */
    QRectF ink; /*!< in the window, of all its glyphs, seen or not */
    QRectF clip; /*!< in the window, where they can be seen */
    QPointer<const QWidget> drawnBy;
};

/*!
 * Paints into an image as ever, and keeps every text with its pen and the ground below it.
 *
 * Who paints may take it for that image, and read what is there so far.
 */
class TextRecorder final : public QImage
{
public:
    /*! For a window of \a size, on a screen of \a ratio pixels for each of its. */
    explicit TextRecorder(const QSize &size, qreal ratio = 1);
    ~TextRecorder() override;

    /*! Draws \a window with everything in it; all places are in the window's own pixels. */
    void record(QWidget *window);

    const QVector<RecordedText> &texts() const;
    const QImage &image() const;

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;
    explicit TextRecorder(std::unique_ptr<Engine> engine);

    std::unique_ptr<Engine> m_engine;
};

#endif

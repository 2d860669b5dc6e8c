// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_TESTS_TEXTRECORDER_H
#define HVTHEME_TESTS_TEXTRECORDER_H

#include <QColor>
#include <QImage>
#include <QRect>
#include <QVector>

#include <memory>

class QWidget;

/*! One run of text as it was drawn. */
struct RecordedText {
    QString text;
    QRect rect; /*!< in the window, what the clip left of it */
    QColor pen; /*!< as drawn, opaque */
    QColor ground; /*!< of the colours that lay below a good part of it, the worst to read on */
    double contrast = 21;
    QString widget; /*!< class and object name of who drew it, and of its window */
    bool enabled = true; /*!< the widget, the part of it and, by its colour, the text */
};

/*!
 * Paints into an image as ever, and keeps every text with its pen and the ground below it.
 *
 * Who paints may take it for that image, and read what is there so far.
 */
class TextRecorder final : public QImage
{
public:
    explicit TextRecorder(const QSize &size);
    ~TextRecorder() override;

    /*! Draws \a window with everything in it. */
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

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "textrecorder.h"

#include <colormath/contrast.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGenericPlugin>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSaveFile>
#include <QTimer>
#include <QToolButton>

#include <cmath>

namespace
{

constexpr int settledMs = 2500;
constexpr double edgeContrast = 1.3;
constexpr int edgeDepth = 4;

double channelRatio(int now, int was, int pen)
{
    return pen == was ? 0 : double(now - was) / (pen - was);
}

/*! How much of a pixel the text covers: 0 to 1. */
double coverage(const QColor &pixel, const QColor &ground, const QColor &pen)
{
    double most = 0;
    most = qMax(most, channelRatio(pixel.red(), ground.red(), pen.red()));
    most = qMax(most, channelRatio(pixel.green(), ground.green(), pen.green()));
    return qMin(1.0, qMax(most, channelRatio(pixel.blue(), ground.blue(), pen.blue())));
}

/*!
 * The contrast of \a text as the screen shows it. Whatever changes text on its way to the screen is
 * not asked by a recorder, so the pen is told from a pixel that the text covers well.
 */
double contrastShown(const RecordedText &text, const QImage &recorded, const QImage &shown)
{
    double best = 0;
    QPoint place;
    for (int y = text.rect.top(); y <= text.rect.bottom(); ++y) {
        for (int x = text.rect.left(); x <= text.rect.right(); ++x) {
            const double covered = coverage(QColor(recorded.pixel(x, y)), text.ground, text.pen);
            if (covered <= best)
                continue;
            best = covered;
            place = QPoint(x, y);
        }
    }
    if (best < 0.5)
        return text.contrast;
    const QColor pixel(shown.pixel(place));
    const auto whole = [&](int now, int ground) {
        return qBound(0, int(std::lround(ground + (now - ground) / best)), 255);
    };
    const QColor pen(whole(pixel.red(), text.ground.red()),
                     whole(pixel.green(), text.ground.green()),
                     whole(pixel.blue(), text.ground.blue()));
    return ColorMath::contrastRatio(pen, text.ground);
}

bool isControl(const QWidget *widget)
{
    if (!widget->isVisible() || widget->width() < 8 || widget->height() < 8)
        return false;
    const QWidget *parent = widget->parentWidget();
    if (qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent)
        || qobject_cast<const QLineEdit *>(parent))
        return false;
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->hasFrame();
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        return combo->hasFrame();
    if (const auto *spin = qobject_cast<const QAbstractSpinBox *>(widget))
        return spin->hasFrame();
    if (const auto *button = qobject_cast<const QPushButton *>(widget))
        return !button->isFlat();
    if (const auto *button = qobject_cast<const QToolButton *>(widget))
        return !button->autoRaise();
    return qobject_cast<const QCheckBox *>(widget) || qobject_cast<const QRadioButton *>(widget);
}

double mostAlong(const QImage &image, QPoint from, const QPoint &step, int count,
                 const QColor &other)
{
    double most = 1;
    for (int i = 0; i < count; ++i, from += step) {
        if (image.rect().contains(from))
            most = qMax(most, ColorMath::contrastRatio(QColor(image.pixel(from)), other));
    }
    return most;
}

bool hasEdge(const QImage &image, const QRect &rect, bool isBox)
{
    const QColor near(image.pixel(qBound(0, rect.left() - 2, image.width() - 1),
                                  qBound(0, rect.center().y(), image.height() - 1)));
    if (isBox) // its sign stands at one end
        return mostAlong(image, {rect.left(), rect.center().y()}, {1, 0}, 24, near) >= edgeContrast
            || mostAlong(image, {rect.right(), rect.center().y()}, {-1, 0}, 24, near)
            >= edgeContrast;
    const struct {
        QPoint border, inwards;
    } sides[] = {{{rect.left(), rect.center().y()}, {1, 0}},
                 {{rect.right(), rect.center().y()}, {-1, 0}},
                 {{rect.center().x(), rect.top()}, {0, 1}},
                 {{rect.center().x(), rect.bottom()}, {0, -1}}};
    int seen = 0;
    for (const auto &side : sides) {
        const QPoint outside = side.border - 2 * side.inwards;
        const QColor other = image.rect().contains(outside) ? QColor(image.pixel(outside)) : near;
        if (mostAlong(image, side.border, side.inwards, edgeDepth, other) >= edgeContrast)
            ++seen;
    }
    return seen >= 3; // a neighbour may hide one
}

class Measurement
{
public:
    void add(QWidget *window)
    {
        window->ensurePolished();
        const QImage shown = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
        TextRecorder recorder(window->size());
        recorder.record(window);
        for (const RecordedText &text : recorder.texts())
            addText(text, recorder.image(), shown);
        const auto widgets = window->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            if (isControl(widget) && widget->window() == window)
                addControl(widget, window, shown);
        }
        m_pictures.append(shown);
    }

    void write(const QString &folder) const
    {
        QDir().mkpath(folder);
        for (int i = 0; i < m_pictures.size(); ++i)
            m_pictures.at(i).save(QStringLiteral("%1/%2.png").arg(folder).arg(i));
        QSaveFile file(folder + QLatin1String("/measure.json"));
        if (!file.open(QIODevice::WriteOnly))
            return;
        file.write(QJsonDocument(QJsonObject{{QStringLiteral("texts"), m_texts},
                                             {QStringLiteral("controls"), m_controls}})
                       .toJson());
        file.commit();
    }

private:
    void addText(const RecordedText &text, const QImage &recorded, const QImage &shown)
    {
        const double minimum = text.enabled ? 4.5 : 3;
        const double contrast = text.contrast >= minimum || recorded.size() != shown.size()
            ? text.contrast
            : contrastShown(text, recorded, shown);
        m_texts.append(QJsonObject{{QStringLiteral("text"), text.text},
                                   {QStringLiteral("contrast"), contrast},
                                   {QStringLiteral("enabled"), text.enabled},
                                   {QStringLiteral("pen"), text.pen.name()},
                                   {QStringLiteral("ground"), text.ground.name()},
                                   {QStringLiteral("by"), text.widget}});
    }

    void addControl(QWidget *widget, QWidget *window, const QImage &shown)
    {
        const QRect rect(widget->mapTo(window, QPoint()), widget->size());
        QRegion visible = widget->visibleRegion();
        if (visible.boundingRect().size() != widget->size())
            return; // partly below something else
        const bool isBox =
            qobject_cast<QCheckBox *>(widget) || qobject_cast<QRadioButton *>(widget);
        m_controls.append(
            QJsonObject{{QStringLiteral("class"), QLatin1String(widget->metaObject()->className())},
                        {QStringLiteral("name"), widget->objectName()},
                        {QStringLiteral("edge"), hasEdge(shown, rect, isBox)}});
    }

    QJsonArray m_texts;
    QJsonArray m_controls;
    QVector<QImage> m_pictures;
};

void measure(const QString &folder)
{
    Measurement measurement;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && !window->size().isEmpty())
            measurement.add(window);
    }
    for (QWidget *window : windows) { // menus as they would pop up
        auto *menu = qobject_cast<QMenu *>(window);
        if (!menu || menu->isVisible() || menu->isEmpty())
            continue;
        menu->ensurePolished();
        menu->resize(menu->sizeHint());
        measurement.add(menu);
    }
    measurement.write(folder);
    std::_Exit(0); // no question whether to save keeps it
}

} // namespace

/*! Measures the program it is loaded into, writes a report into the folder it is given, and ends it. */
class MeasurePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "measureplugin.json")

public:
    QObject *create(const QString &, const QString &) override
    {
        const QString folder = qEnvironmentVariable("HVTHEME_MEASURE_FOLDER");
        auto *timer = new QTimer(this);
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, [folder] { measure(folder); });
        timer->start(settledMs);
        return timer;
    }
};

#include "measureplugin.moc"

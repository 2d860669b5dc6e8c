// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <sheet/sheetpicture.h>

#include <format/printabletext.h>
#include <sheet/sheetimage.h>
#include <sheet/sheetmodel.h>

#include <QBuffer>
#include <QImageWriter>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <utility>

namespace
{

constexpr int margin = 56;
constexpr int gap = 48; // between two blocks that stand side by side
constexpr int keyWidth = 236;
constexpr int themeWidth = 196;
constexpr int swatchWidth = 76;
constexpr int runNameWidth = 80;
constexpr int iconWidth = 46; // of one theme's share of an icon's card
constexpr double scale = 2.0; // pixels for each unit of the layout, for screens of today
constexpr double largestSide = 32767.0; // of what QPainter draws on
constexpr double mostPixels = 128.0 * 1024 * 1024; // 512 MB, and as much for other eyes

const QColor pageColor(0xf6, 0xf7, 0xf9);
const QColor textColor(0x14, 0x18, 0x1f);
const QColor quietColor(0x54, 0x5c, 0x69);
const QColor edgeColor(128, 128, 128, 90);

QFont font(int pixelSize, QFont::Weight weight = QFont::Normal)
{
    QFont result(QStringLiteral("sans-serif"));
    result.setPixelSize(pixelSize);
    result.setWeight(weight);
    return result;
}

QFont fixedFont(int pixelSize)
{
    QFont result(QStringLiteral("monospace"));
    result.setPixelSize(pixelSize);
    return result;
}

// What shows through a translucent swatch.
QBrush checkerboard()
{
    QImage tile(12, 12, QImage::Format_RGB32);
    tile.fill(QColor(0x92, 0x99, 0xa5));
    QPainter painter(&tile);
    painter.fillRect(0, 0, 6, 6, QColor(0x78, 0x7f, 0x8b));
    painter.fillRect(6, 6, 6, 6, QColor(0x78, 0x7f, 0x8b));
    return QBrush(tile);
}

QColor faded(QColor color)
{
    color.setAlphaF(0.75);
    return color;
}

// Draws the sheet from top to bottom; run once to learn the height and once for good.
class Picture
{
public:
    Picture(const SheetModel &model, QPainter *painter)
        : m_model(model)
        , m_painter(*painter)
        , m_themeCount(int(model.themes().size()))
    {
    }

    int width() const { return 2 * margin + 2 * blockWidth() + gap; }

    // Returns the height.
    int draw();

private:
    using Cell = void (Picture::*)(QRect, const SheetTheme &, const StoredValue &);

    int blockWidth() const { return qMax(keyWidth + m_themeCount * themeWidth, runWidth()); }
    int runWidth() const;
    void text(QRect rect, const QFont &textFont, const QColor &color, const QString &string,
              int flags = Qt::AlignLeft | Qt::AlignVCenter);
    void box(QRectF rect, double radius, const QBrush &brush, bool hasEdge = true);
    void heading(const QString &string, int x = margin);
    void drawPalette();
    int drawRun(int x, int y, const SheetRun &run);
    void drawTable(Kind kind, const QString &title, int rowHeight, Cell cell);
    void drawBlock(QPoint corner, Kind kind, const QStringList &keys, int rowHeight, Cell cell);
    void drawNote();
    void drawImages();
    void colorCell(QRect rect, const SheetTheme &theme, const StoredValue &value);
    void integerCell(QRect rect, const SheetTheme &theme, const StoredValue &value);
    void gradientCell(QRect rect, const SheetTheme &theme, const StoredValue &value);
    void flagCell(QRect rect, const SheetTheme &theme, const StoredValue &value);

    const SheetModel &m_model;
    QPainter &m_painter;
    const int m_themeCount;
    const QBrush m_checkerboard = checkerboard();
    int m_y = margin;
    int m_besideY = 0; // where the right half is free for a small table; 0 if it is not
};

int Picture::runWidth() const
{
    int longest = 0;
    const QVector<SheetRun> runs = m_model.runs();
    for (const SheetRun &run : runs)
        longest = qMax(longest, int(run.keys.size()));
    return runNameWidth + longest * swatchWidth;
}

void Picture::text(QRect rect, const QFont &textFont, const QColor &color, const QString &string,
                   int flags)
{
    m_painter.setFont(textFont);
    m_painter.setPen(color);
    const QString fitting =
        m_painter.fontMetrics().elidedText(printable(string), Qt::ElideMiddle, rect.width());
    m_painter.drawText(rect, flags | Qt::TextSingleLine, fitting);
}

void Picture::box(QRectF rect, double radius, const QBrush &brush, bool hasEdge)
{
    m_painter.setPen(hasEdge ? QPen(edgeColor, 1.0) : QPen(Qt::NoPen));
    m_painter.setBrush(brush);
    const double inset = hasEdge ? 0.5 : 0.0;
    m_painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius, radius);
}

void Picture::heading(const QString &string, int x)
{
    m_y += 40;
    text(QRect(x, m_y, blockWidth(), 32), font(22, QFont::DemiBold), textColor, string);
    m_y += 48;
}

void Picture::drawPalette()
{
    const QVector<SheetRun> runs = m_model.runs();
    if (runs.isEmpty())
        return;
    heading(QStringLiteral("Palette"));
    int bottom = m_y;
    for (int i = 0; i < runs.size(); ++i) {
        const bool isRight = i % 2 == 1;
        const int end = drawRun(margin + (isRight ? blockWidth() + gap : 0), m_y, runs.at(i));
        bottom = qMax(bottom, end);
        if (isRight || i + 1 == runs.size())
            m_y = bottom;
    }
}

int Picture::drawRun(int x, int y, const SheetRun &run)
{
    const bool isShared = m_model.areEqual(Kind::Palette, run.keys);
    const int lines = isShared ? 1 : m_themeCount;
    const QString name = run.name.isEmpty() ? QStringLiteral("Other") : run.name;
    text(QRect(x, y, runNameWidth - 8, 20), font(14, QFont::DemiBold), textColor, name);
    for (int column = 0; column < run.keys.size(); ++column) {
        const int left = x + runNameWidth + column * swatchWidth;
        text(QRect(left, y, swatchWidth - 6, 20), font(11), quietColor, run.keys.at(column));
        for (int line = 0; line < lines; ++line) {
            const SheetTheme &theme = m_model.themes().at(line);
            const QRect rect(left, y + 22 + line * 60, swatchWidth - 6, 34);
            if (column == 0 && !isShared)
                text(QRect(x, rect.top(), runNameWidth - 8, 34), font(12), quietColor, theme.name);
            const StoredValue *stored = theme.find(Kind::Palette, run.keys.at(column));
            if (!stored)
                continue;
            box(rect, 5, m_checkerboard, false);
            box(rect, 5, stored->value.value<QColor>());
            text(rect.translated(0, 35), fixedFont(10), quietColor, valueText(stored->value),
                 Qt::AlignLeft | Qt::AlignTop);
        }
    }
    return y + 22 + lines * 60 + 14;
}

// A long table is cut into two halves that stand side by side; two short ones share a line.
void Picture::drawTable(Kind kind, const QString &title, int rowHeight, Cell cell)
{
    const QStringList keys = m_model.keys(kind);
    if (keys.isEmpty())
        return;
    const int left = margin;
    const int right = margin + blockWidth() + gap;
    const bool isShort = keys.size() < 9;
    const bool isBeside = isShort && m_besideY > 0;
    const int bottom = m_y;
    const int top = std::exchange(m_besideY, isShort && !isBeside ? m_y : 0);
    if (isBeside)
        m_y = top;
    heading(title, isBeside ? right : left);
    if (kind == Kind::Color)
        drawNote();
    const int half = int(isShort ? keys.size() : (keys.size() + 1) / 2);
    drawBlock({isBeside ? right : left, m_y}, kind, keys.mid(0, half), rowHeight, cell);
    if (!isShort)
        drawBlock({right, m_y}, kind, keys.mid(half), rowHeight, cell);
    m_y += 44 + half * rowHeight;
    if (isBeside)
        m_y = qMax(m_y, bottom);
}

void Picture::drawNote()
{
    text(QRect(margin, m_y - 12, width() - 2 * margin, 20), font(13), quietColor, m_model.note());
    m_y += 24;
}

void Picture::drawBlock(QPoint corner, Kind kind, const QStringList &keys, int rowHeight, Cell cell)
{
    const int columnWidth = (blockWidth() - keyWidth) / m_themeCount;
    const int height = int(44 + keys.size() * rowHeight);
    for (int row = 0; row < keys.size(); ++row) {
        const int top = corner.y() + 44 + row * rowHeight;
        text(QRect(corner.x(), top, keyWidth - 12, rowHeight), font(13), textColor, keys.at(row));
    }
    for (int column = 0; column < m_themeCount; ++column) {
        const SheetTheme &theme = m_model.themes().at(column);
        const QRect panel(corner.x() + keyWidth + column * columnWidth, corner.y(), columnWidth - 6,
                          height);
        box(panel, 10, theme.ground);
        text(panel.adjusted(14, 0, -14, 44 - height), font(14, QFont::DemiBold), theme.ink,
             theme.name);
        for (int row = 0; row < keys.size(); ++row) {
            const QRect rect(panel.left() + 14, panel.top() + 44 + row * rowHeight,
                             panel.width() - 24, rowHeight);
            const StoredValue *stored = theme.find(kind, keys.at(row));
            if (stored)
                (this->*cell)(rect, theme, *stored);
            else
                text(rect, font(12), faded(theme.ink), QStringLiteral("not set"));
        }
    }
}

void Picture::colorCell(QRect rect, const SheetTheme &theme, const StoredValue &value)
{
    const QRect sample(rect.left(), rect.top() + 6, 44, rect.height() - 12);
    const auto color = value.value.value<QColor>();
    if (m_model.isText(value.key()))
        text(sample, font(22, QFont::DemiBold), color, QStringLiteral("Ag"), Qt::AlignCenter);
    else
        box(sample, 5, color);
    const QRect words = rect.adjusted(56, 3, 0, -3);
    const QRect upper(words.left(), words.top(), words.width(), words.height() / 2);
    const QString palette =
        value.palette.isEmpty() ? QString() : QLatin1String("  ") % value.palette;
    text(upper, fixedFont(11), theme.ink, valueText(value.value) % palette);
    text(upper.translated(0, upper.height()), font(11), faded(theme.ink),
         m_model.contrast(theme, value).text());
}

void Picture::integerCell(QRect rect, const SheetTheme &theme, const StoredValue &value)
{
    const int number = int(value.value.toLongLong());
    const bool isSize =
        value.key().startsWith(QLatin1String("FontSize")) && number > 0 && number <= 32;
    const QString string = isSize ? QStringLiteral("Ag %1 px").arg(number) : valueText(value.value);
    text(rect, font(isSize ? number : 13), theme.ink, string);
}

void Picture::gradientCell(QRect rect, const SheetTheme &, const StoredValue &value)
{
    QLinearGradient gradient(rect.topLeft(), rect.topRight());
    gradient.setStops(value.value.value<QGradientStops>());
    box(rect.adjusted(0, 6, 0, -6), 5, gradient);
}

void Picture::flagCell(QRect rect, const SheetTheme &theme, const StoredValue &value)
{
    text(rect, font(13), theme.ink, QLatin1String(value.value.toBool() ? "yes" : "no"));
}

void Picture::drawImages()
{
    m_besideY = 0;
    const QStringList keys = m_model.keys(Kind::ImageFile);
    if (keys.isEmpty())
        return;
    heading(QStringLiteral("Images"));
    const int cardWidth = qMax(132, m_themeCount * iconWidth);
    const int perLine = qMax(1, (width() - 2 * margin + 16) / (cardWidth + 16));
    for (int i = 0; i < keys.size(); ++i) {
        const QRect card(margin + (i % perLine) * (cardWidth + 16), m_y + (i / perLine) * 84,
                         cardWidth, 48);
        QPainterPath outline;
        outline.addRoundedRect(card, 8, 8);
        m_painter.save();
        m_painter.setClipPath(outline);
        for (int column = 0; column < m_themeCount; ++column) {
            const SheetTheme &theme = m_model.themes().at(column);
            const QRect part(card.left() + column * cardWidth / m_themeCount, card.top(),
                             cardWidth / m_themeCount + 1, card.height());
            m_painter.fillRect(part, theme.ground);
            const StoredValue *stored = theme.find(Kind::ImageFile, keys.at(i));
            const QSize room = (part.size() - QSize(10, 16)) * scale;
            QImage image = stored ? fittedImage(stored->value.toString(), room, scale) : QImage();
            image.setDevicePixelRatio(scale);
            if (image.isNull())
                text(part, font(11), faded(theme.ink), QStringLiteral("none"), Qt::AlignCenter);
            else
                m_painter.drawImage(QRectF(part).center()
                                        - QPointF(image.width(), image.height()) / (2 * scale),
                                    image);
        }
        m_painter.restore();
        box(card, 8, Qt::NoBrush);
        text(QRect(card.left(), card.bottom() + 4, cardWidth, 18), font(11), quietColor,
             keys.at(i));
    }
    m_y += (int(keys.size()) + perLine - 1) / perLine * 84;
}

int Picture::draw()
{
    QStringList names;
    for (const SheetTheme &theme : m_model.themes())
        names << theme.name;
    text(QRect(margin, m_y, width() - 2 * margin, 48), font(36, QFont::DemiBold), textColor,
         names.join(QLatin1String(", ")));
    m_y += 48;
    drawPalette();
    drawTable(Kind::Color, QStringLiteral("Colours"), 42, &Picture::colorCell);
    drawTable(Kind::Integer, QStringLiteral("Sizes and numbers"), 38, &Picture::integerCell);
    drawTable(Kind::Gradient, QStringLiteral("Gradients"), 42, &Picture::gradientCell);
    drawTable(Kind::Flag, QStringLiteral("Flags"), 34, &Picture::flagCell);
    drawImages();
    return m_y + margin;
}

} // namespace

QByteArray sheetPicture(const SheetModel &model, QString *error)
{
    QImage trial(1, 1, QImage::Format_ARGB32_Premultiplied);
    QPainter trialPainter(&trial);
    Picture trialPicture(model, &trialPainter);
    const QSizeF size(trialPicture.width() * scale, trialPicture.draw() * scale);
    if (size.width() > largestSide || size.height() > largestSide
        || size.width() * size.height() > mostPixels) {
        *error = QStringLiteral("these themes have too many values for a picture; "
                                "name a .html file instead");
        return {};
    }

    QImage image(size.toSize(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        *error = QStringLiteral("there is no memory for a picture of %1 x %2 pixels; "
                                "name a .html file instead")
                     .arg(size.toSize().width())
                     .arg(size.toSize().height());
        return {};
    }
    image.setDevicePixelRatio(scale);
    image.fill(pageColor);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    Picture(model, &painter).draw();
    painter.end();
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "PNG");
    if (!writer.write(ColorMath::seenBy(model.vision(), image))) {
        *error = QLatin1String("the picture cannot be made: ") % writer.errorString();
        return {};
    }
    return content;
}

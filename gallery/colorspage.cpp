// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "colorspage.h"

#include "copylabel.h"
#include "shownpart.h"

#include <colormath/contrast.h>
#include <hvtheme/workabletheming.h>

#include <QGridLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QPainter>
#include <QRegularExpression>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>

namespace Gallery
{

namespace
{

constexpr int keyColumns = 3;

// A plain colour. A translucent one lies half on the page and half on a chequered ground.
class Swatch final : public QWidget
{
public:
    Swatch(const QColor &color, const QSize &size)
        : m_color(color)
    {
        setFixedSize(size);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        constexpr int square = 6;
        QPainter painter(this);
        const int half = width() / 2;
        for (int y = 0; y < height() && m_color.alpha() < 255; y += square) {
            for (int x = half; x < width(); x += square) {
                const bool light = ((x - half) / square + y / square) % 2 == 0;
                painter.fillRect(x, y, square, square, light ? QColor(0xd0d0d0) : QColor(0x404040));
            }
        }
        painter.fillRect(rect(), m_color);
    }

private:
    QColor m_color;
};

QString valueText(const QColor &color)
{
    return color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb);
}

QLabel *createHeading(const QString &title)
{
    auto *heading = new QLabel(title);
    heading->setProperty("fontSize", QStringLiteral("XL"));
    heading->setProperty("fontWeight", QStringLiteral("bold"));
    return heading;
}

QLabel *createCaption(const QString &objectName, const QString &text, const QString &copied)
{
    auto *caption = new CopyLabel(text, copied);
    caption->setObjectName(objectName);
    return caption;
}

// Both parts of an entry tell of its key.
void setKey(QWidget *entry, const QString &key)
{
    const auto captions = entry->findChildren<CopyLabel *>();
    for (CopyLabel *caption : captions)
        caption->setProperty(keyProperty, key);
}

QWidget *createPaletteEntry(const QString &key, const QColor &color)
{
    auto *entry = new QWidget;
    auto *layout = new QVBoxLayout(entry);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    const QString value = valueText(color);
    layout->addWidget(new Swatch(color, {80, 36}));
    layout->addWidget(createCaption(QStringLiteral("caption"), key, key));
    layout->addWidget(createCaption(QStringLiteral("stateCaption"), value, value));
    setKey(entry, key);
    return entry;
}

// The letters that a run of ten has in common: Brand_1 and Brand_2, but also W100 and W90.
QString runOf(const QString &key)
{
    static const QRegularExpression letters(QStringLiteral("^[A-Za-z]+"));
    return letters.match(key).captured();
}

QLayout *createPalette(const HV::Theme &theme)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(14);
    const auto keys = QMetaEnum::fromType<HV::WorkableTheme::Palette>();
    QString run;
    int row = -1;
    int column = 0;
    for (int i = 0; i < keys.keyCount(); ++i) {
        const QString key = QString::fromLatin1(keys.key(i));
        if (runOf(key) != run) {
            run = runOf(key);
            ++row;
            column = 0;
        }
        const QColor color = theme.readNamedColor(key).first;
        grid->addWidget(createPaletteEntry(key, color), row, column++, Qt::AlignLeft);
    }
    return grid;
}

QWidget *createColorEntry(const QString &key, const QColor &color, const QString &contrast)
{
    auto *entry = new QWidget;
    auto *layout = new QGridLayout(entry);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(10);
    layout->setVerticalSpacing(0);
    const QString value = valueText(color);
    layout->addWidget(new Swatch(color, {44, 32}), 0, 0, 2, 1);
    layout->addWidget(createCaption(QStringLiteral("caption"), key, key), 0, 1);
    layout->addWidget(createCaption(QStringLiteral("stateCaption"),
                                    value + QLatin1String("  ") + contrast, value),
                      1, 1);
    layout->setColumnStretch(1, 1);
    setKey(entry, key);
    return entry;
}

QString contrastText(const QString &key, const QColor &color, const QVariantMap &values)
{
    const auto named = [&values](const char *name) {
        return values.value(QLatin1String(name)).value<QColor>();
    };
    const QColor surface = named("BackgroundColor_3");
    const double ratio = key.contains(QLatin1String("Background"))
        ? ColorMath::contrastRatio(named("DefaultForegroundColor"), ColorMath::over(color, surface))
        : ColorMath::contrastRatio(color, surface);
    return ColorMath::contrastText(ratio);
}

// What the library's own palette does not have.
QLayout *createOwnPalette(const PaletteEntries &entries)
{
    constexpr int columns = 10;
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(14);
    for (int i = 0; i < entries.size(); ++i)
        grid->addWidget(createPaletteEntry(entries.at(i).first, entries.at(i).second), i / columns,
                        i % columns, Qt::AlignLeft);
    grid->setColumnStretch(columns, 1);
    return grid;
}

bool isOfLibrary(const QPair<QString, QColor> &entry)
{
    return QMetaEnum::fromType<HV::WorkableTheme::Palette>().keyToValue(
               entry.first.toLatin1().constData())
        >= 0;
}

QLayout *createColors(const QVariantMap &values)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(10);
    int cell = 0;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (value->userType() != QMetaType::QColor)
            continue;
        const auto color = value->value<QColor>();
        grid->addWidget(
            createColorEntry(value.key(), color, contrastText(value.key(), color, values)),
            cell / keyColumns, cell % keyColumns);
        ++cell;
    }
    return grid;
}

} // namespace

QWidget *createColorsPage(HV::Theme &theme, PaletteEntries palette)
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(14);
    // Without a theme there is no palette either, and asking for its colours would only log.
    if (theme.values().isEmpty()) {
        layout->addWidget(new QLabel(QStringLiteral("No theme is loaded.")));
        return page;
    }
    layout->addWidget(createHeading(QStringLiteral("Palette")));
    layout->addLayout(createPalette(theme));
    layout->addSpacing(12);
    palette.erase(std::remove_if(palette.begin(), palette.end(), isOfLibrary), palette.end());
    if (!palette.isEmpty()) {
        layout->addWidget(createHeading(QStringLiteral("The theme's own palette")));
        layout->addLayout(createOwnPalette(palette));
        layout->addSpacing(12);
    }
    layout->addWidget(createHeading(QStringLiteral("Colour keys")));
    layout->addWidget(new QLabel(QStringLiteral(
        "Contrast of a background: DefaultForegroundColor on it. Of any other colour: it on "
        "BackgroundColor_3.")));
    layout->addLayout(createColors(theme.values()));
    layout->addStretch();
    return page;
}

} // namespace Gallery

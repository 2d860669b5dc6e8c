// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/contrast.h>
#include <colormath/oklch.h>
#include <maker/brandfills.h>
#include <maker/lookcolors.h>
#include <maker/meanings.h>
#include <maker/themetext.h>

#include <QRegularExpression>

#include <algorithm>

namespace Maker
{

namespace
{

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

// Designs one look. Text is given way to, not taken from: where a pair falls short, a fill moves
// away from the text on it, and only on a surface the text moves away from the ground.
class Designer
{
public:
    Designer(Look look, const Parameters &parameters, LookColors *colors, QStringList *notes)
        : m_look(look)
        , m_parameters(parameters)
        , m_colors(*colors)
        , m_notes(*notes)
        , m_pairs(look, parameters.textContrast, *colors)
        , m_brandFills(parameters.brand, m_pairs, colors,
                       [this](const QString &sentence) { note(sentence); })
    {
    }

    void setLightSurfaces();
    void design();

private:
    QStringList alternatives(const QString &key) const;
    void followBrand();
    void mend(const ColorPair &pair);
    void approach(const ColorPair &edge);
    QString whyNot(const ColorPair &pair) const;
    void separate();
    void noteWhatFallsShort();
    void note(const QString &sentence)
    {
        m_notes.append(lookName(m_look) % QLatin1String(": ") % sentence);
    }

    const Look m_look;
    const Parameters &m_parameters;
    LookColors &m_colors;
    QStringList &m_notes;
    const LookPairs m_pairs;
    BrandFills m_brandFills;
};

bool isSurface(const QString &key)
{
    return key.startsWith(QLatin1String("BackgroundColor_"))
        || key == QLatin1String("EditBackgroundColor")
        || key == QLatin1String("EditDisabledBackgroundColor")
        || key == QLatin1String("MenuBackgroundColor");
}

bool isPlainText(const QString &key)
{
    return key == QLatin1String("DefaultForegroundColor") || key == QLatin1String("Color_W100")
        || key == QLatin1String("DisabledForegroundColor");
}

void Designer::setLightSurfaces()
{
    const QVector<QColor> surfaces = lightSurfaces(m_parameters);
    for (int n = 0; n < surfaces.size(); ++n)
        m_colors.setText(key("BackgroundColor_") % QString::number(n), hexadecimal(surfaces.at(n)));
    m_colors.setText(key("EditDisabledBackgroundColor"), m_colors.text(key("BackgroundColor_2")));
}

// A colour between two tones was mended for another brand: begin with the nearer one.
void Designer::followBrand()
{
    const QStringList keys = m_colors.keys();
    for (const QString &key : keys) {
        const QColor color = colorFromText(m_colors.text(key));
        if (key.startsWith(QLatin1String("Color_Brand_")) && color.alpha() == 255
            && color.isValid())
            m_colors.setText(key, brandToneName(nearestStep(color)));
    }
}

// The texts that a key may change to, the nearest first: tones of the same run, which have names,
// and between them colours of the same hue. A veil or a translucent text changes its opacity.
QStringList Designer::alternatives(const QString &key) const
{
    static const QRegularExpression toneName(
        QStringLiteral("^(Brand|Red|Yellow|Green|Orange)_(\\d+)$"));
    const QColor color = m_colors.color(key);
    QStringList texts;
    if (color.alpha() < 255) {
        for (int change = 4; change < 255; change += 4) {
            for (const int alpha : {color.alpha() + change, color.alpha() - change}) {
                QColor other = color;
                other.setAlpha(qBound(0, alpha, 255));
                texts.append(hexadecimal(other));
            }
        }
        return texts;
    }
    const QRegularExpressionMatch tone = toneName.match(m_colors.text(key));
    const ColorMath::Oklch origin = ColorMath::toOklch(color);
    const double lightness = ColorMath::cieLightness(color);
    for (int distance = 1; distance <= 200; ++distance) {
        constexpr double stride = 0.5; // of L*
        for (const double sign : {1.0, -1.0}) {
            const int step = tone.captured(2).toInt() + int(sign) * distance / 10;
            if (tone.hasMatch() && distance % 10 == 0 && step >= 1 && step <= toneCount)
                texts.append(tone.captured(1) % QLatin1Char('_') % QString::number(step));
            const double wanted = lightness + sign * distance * stride;
            if (wanted >= 0 && wanted <= 100)
                texts.append(
                    hexadecimal(ColorMath::colorAtLightness(wanted, origin.chroma, origin.hue)));
        }
    }
    return texts;
}

void Designer::mend(const ColorPair &pair)
{
    if (m_pairs.holds(pair))
        return;
    const QString top = pair.layers.constLast();
    const bool isFill = isPlainText(pair.foreground) && !isSurface(top);
    const QString moved = isFill ? top : pair.foreground;
    const QStringList texts = alternatives(moved);
    for (const QString &text : texts) {
        if (m_pairs.isRemedy(pair, moved, text)) {
            m_colors.setText(moved, text);
            return;
        }
    }
    if (pair.need == Need::EdgeOfGround)
        approach(pair);
}

// As far as the texts on it let an edge go. In tones: no lightness between them is enough either.
void Designer::approach(const ColorPair &edge)
{
    if (!isOfBrand(m_colors.text(edge.foreground))) // a theme may frame in any colour
        return;
    for (int step = 1; step <= toneCount; ++step) {
        const QString tone = brandToneName(step);
        LookColors changed = m_colors;
        changed.setText(edge.foreground, tone);
        if (changed.color(edge.foreground).isValid() && changed.ratio(edge) > m_colors.ratio(edge)
            && m_pairs.isNoWorse(edge.foreground, tone))
            m_colors.setText(edge.foreground, tone);
    }
}

void Designer::separate()
{
    const auto isAllowed = [this](const QString &key, const QString &text) {
        return m_pairs.canHave(key, text);
    };
    if (!separateMeanings(&m_colors, isAllowed))
        note(QStringLiteral("error, warning, success and highlight cannot all be told apart by "
                            "every eye at this contrast"));
}

void Designer::design()
{
    followBrand();
    m_brandFills.setOwnTexts();
    for (const ColorPair &pair : m_pairs.pairs())
        mend(pair);
    m_brandFills.setLooksTexts();
    separate();
    noteWhatFallsShort();
}

void Designer::noteWhatFallsShort()
{
    for (const ColorPair &pair : m_pairs.pairs()) {
        if (!m_pairs.holds(pair))
            note(pair.foreground % QLatin1String(" on ")
                 % pair.layers.join(QLatin1String(" under ")) % QLatin1String(" reaches ")
                 % ColorMath::contrastText(m_colors.ratio(pair)) % QLatin1String(" and not ")
                 % ColorMath::contrastText(m_pairs.required(pair)) % whyNot(pair));
    }
}

// Where the room is just what is called for, a single lightness would do, which no colour of eight bits
// has.
QString Designer::whyNot(const ColorPair &pair) const
{
    if (pair.need != Need::EdgeOfGround)
        return {};
    QString where = QLatin1String(" (the edge of ") % pair.selector % QLatin1Char(')');
    const LookPairs::Room room = m_pairs.roomFor(pair);
    constexpr double rounding = 1e-9;
    if (room.text.isEmpty() || room.ratio > m_pairs.required(pair) + rounding)
        return where;
    return where % QLatin1String(": what carries ") % room.text % QLatin1String(" at ")
        % ColorMath::contrastText(m_pairs.required(Need::Text)) % QLatin1String(" stays below ")
        % ColorMath::contrastText(room.ratio + rounding) % QLatin1String(" there");
}

} // namespace

LookColors::LookColors(const QVector<PaletteEntry> &palette, const QMap<QString, QString> &texts)
    : m_texts(texts)
{
    for (const PaletteEntry &entry : palette)
        m_palette.insert(entry.first, entry.second);
}

QColor LookColors::resolved(const QString &text) const
{
    const auto entry = m_palette.constFind(text);
    if (entry != m_palette.cend())
        return *entry;
    return colorFromText(text);
}

QColor LookColors::composite(const QStringList &layers) const
{
    QColor result = color(layers.first());
    for (int i = 1; i < layers.size(); ++i)
        result = ColorMath::over(color(layers.at(i)), result);
    return result;
}

double LookColors::ratio(const ColorPair &pair) const
{
    return ColorMath::contrastRatio(color(pair.foreground), composite(pair.layers));
}

QColor colorFromText(const QString &text)
{
    return QColor(text.startsWith(QLatin1Char('#')) ? text : QString(QLatin1Char('#') % text));
}

void setPaletteEntries(ThemeText *text, const QVector<PaletteEntry> &entries)
{
    const QString section = QStringLiteral("Palettes");
    for (const PaletteEntry &entry : entries) {
        const QColor color = colorFromText(text->value(section, entry.first));
        if (entry.second.isValid() && (!color.isValid() || color.rgba() != entry.second.rgba()))
            text->setValue(section, entry.first, hexadecimal(entry.second));
    }
}

double requiredRatio(Need need, Look look, double textContrast)
{
    switch (need) {
    case Need::Text:
        return look == Look::Contrast ? std::max(7.0, textContrast) : textContrast;
    case Need::Line:
        return look == Look::Contrast ? 3.0 : 1.3;
    case Need::Disabled:
    case Need::Mark:
    case Need::EdgeOfGround:
        break;
    }
    return 3.0;
}

LookColors designedColors(Look look, const Parameters &parameters,
                          const QVector<PaletteEntry> &palette,
                          const QMap<QString, QString> &sample, QStringList *notes)
{
    LookColors colors(palette, sample);
    Designer designer(look, parameters, &colors, notes);
    if (look == Look::Light)
        designer.setLightSurfaces();
    designer.design();
    return colors;
}

LookColors recoloredLook(Look look, const Parameters &parameters,
                         const QVector<PaletteEntry> &palette, const QMap<QString, QString> &texts,
                         QStringList *notes)
{
    LookColors colors(palette, texts);
    Designer designer(look, parameters, &colors, notes);
    designer.design();
    return colors;
}

} // namespace Maker

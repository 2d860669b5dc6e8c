// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <colormath/oklch.h>
#include <format/applicationkeys.h>
#include <format/kind.h>
#include <maker/lookcolors.h>
#include <maker/rebranding.h>
#include <maker/themetext.h>

#include <QMap>

#include <algorithm>

namespace Maker
{

namespace
{

Look lookOf(const LookColors &colors, const QMap<QString, QString> &flags)
{
    if (flags.value(QStringLiteral("HighContrast")).toInt() != 0)
        return Look::Contrast;
    const QColor surface = colors.color(QStringLiteral("BackgroundColor_3"));
    return surface.isValid() && ColorMath::cieLightness(surface) > 50 ? Look::Light : Look::Dark;
}

bool hasTone(const QStringList &names)
{
    return std::any_of(names.cbegin(), names.cend(), isBrandTone);
}

// A theme without fills of its own for the brand gets them, for the look's text may not stand on it.
void addAccent(QMap<QString, QString> *colors)
{
    const QString ground = colors->value(QStringLiteral("GeneralButtonBackgroundNormal"));
    const QString text = colors->value(QStringLiteral("Color_W100"));
    if (ground.isEmpty() || text.isEmpty())
        return;
    for (const QString &key : accentKeys()) {
        if (!colors->contains(key))
            colors->insert(key, key == accentKeys().constLast() ? text : ground);
    }
}

// The entries of the brand. What is called Brand is the brand, even if one of its tones is just that.
QVector<PaletteEntry> brandEntries(const Parameters &parameters, bool hasWhole)
{
    QVector<PaletteEntry> entries = palette(parameters);
    const auto isOther = [](const PaletteEntry &entry) { return !isOfBrand(entry.first); };
    entries.erase(std::remove_if(entries.begin(), entries.end(), isOther), entries.end());
    const QString whole = QStringLiteral("Brand");
    const bool isMade =
        std::any_of(entries.cbegin(), entries.cend(),
                    [&](const PaletteEntry &entry) { return entry.first == whole; });
    if (hasWhole && !isMade)
        entries.append({whole, parameters.brand.toRgb()});
    return entries;
}

using Palette = QMap<QString, QColor>;

// Resolves entries as the library does: in the order of their names, and an entry may name one that
// is known by then. What is neither that nor a colour is black.
void resolve(const QMap<QString, QString> &texts, Palette *known)
{
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        if (known->contains(it.key()))
            continue;
        const QColor color = known->value(it.value(), colorFromText(it.value()));
        known->insert(it.key(), color.isValid() ? color : QColor(Qt::black));
    }
}

/*!
 * \brief A default file and the theme over it, on the way to another brand.
 *
 * The default file is read whole before the other one, so its colours name none of that one's entries,
 * and a key that it has keeps its value.
 */
class Rebranding
{
public:
    Rebranding(const ThemeTexts &theme, const QColor &brand);

    bool isBranded() const;
    void design(QStringList *notes);
    std::optional<ThemeTexts> texts(QString *error) const;

private:
    bool isOfBase(const QString &entry) const;
    void readPalettes();
    void setTones();

    ThemeText m_base;
    ThemeText m_own;
    const bool m_isOneFile;
    const QMap<QString, QString> m_baseEntries;
    const QMap<QString, QString> m_ownEntries;
    const QMap<QString, QString> m_baseColors;
    const Parameters m_parameters;
    QVector<PaletteEntry> m_tones;
    Palette m_basePalette;
    Palette m_palette;
    QMap<QString, QString> m_colors; // as they stand there, and what is added to them
};

Parameters parametersOf(const QColor &brand)
{
    Parameters parameters;
    parameters.brand = brand;
    return parameters;
}

Rebranding::Rebranding(const ThemeTexts &theme, const QColor &brand)
    : m_base(theme.base)
    , m_own(theme.own)
    , m_isOneFile(theme.own.isEmpty())
    , m_baseEntries(m_base.values(sectionName(Kind::Palette)))
    , m_ownEntries(m_own.values(sectionName(Kind::Palette)))
    , m_baseColors(m_base.values(sectionName(Kind::Color)))
    , m_parameters(parametersOf(brand))
    , m_colors(m_own.values(sectionName(Kind::Color)))
{
    for (auto it = m_baseColors.cbegin(); it != m_baseColors.cend(); ++it)
        m_colors.insert(it.key(), it.value());
    const QString whole = QStringLiteral("Brand");
    m_tones =
        brandEntries(m_parameters, m_baseEntries.contains(whole) || m_ownEntries.contains(whole));
}

bool Rebranding::isBranded() const
{
    return hasTone(m_baseEntries.keys()) || hasTone(m_ownEntries.keys())
        || hasTone(m_colors.values());
}

// An entry changes where it is, and a new one goes where the others are.
bool Rebranding::isOfBase(const QString &entry) const
{
    if (m_baseEntries.contains(entry) || m_ownEntries.contains(entry))
        return m_baseEntries.contains(entry);
    return hasTone(m_baseEntries.keys()) || !hasTone(m_ownEntries.keys());
}

// With all tones there could be, of which those stay that are used in the end.
void Rebranding::readPalettes()
{
    QMap<QString, QString> baseTexts = m_baseEntries;
    QMap<QString, QString> ownTexts = m_ownEntries;
    for (const PaletteEntry &tone : qAsConst(m_tones))
        (isOfBase(tone.first) ? baseTexts : ownTexts).insert(tone.first, hexadecimal(tone.second));
    resolve(baseTexts, &m_basePalette);
    m_palette = m_basePalette;
    resolve(ownTexts, &m_palette);
}

void Rebranding::design(QStringList *notes)
{
    readPalettes();
    addAccent(&m_colors);
    QVector<PaletteEntry> entries;
    for (auto it = m_palette.cbegin(); it != m_palette.cend(); ++it)
        entries.append({it.key(), it.value()});
    QMap<QString, QString> seen = m_colors;
    for (auto it = m_baseColors.cbegin(); it != m_baseColors.cend(); ++it) {
        if (m_palette.contains(*it) && !m_basePalette.contains(*it))
            seen.insert(it.key(), hexadecimal(Qt::black)); // which the library makes of it
    }
    const Look look = lookOf(LookColors(entries, seen), m_own.values(QStringLiteral("Flags")));
    const LookColors designed = recoloredLook(look, m_parameters, entries, seen, notes);
    for (auto it = seen.cbegin(); it != seen.cend(); ++it) {
        const QString text = designed.text(it.key());
        const bool isInBase = m_isOneFile || m_baseColors.contains(it.key());
        const bool isOutOfReach =
            isInBase && m_palette.contains(text) && !m_basePalette.contains(text);
        if (text != *it)
            m_colors.insert(it.key(), isOutOfReach ? hexadecimal(m_palette.value(text)) : text);
        (isInBase ? m_base : m_own)
            .setValue(sectionName(Kind::Color), it.key(), m_colors.value(it.key()));
    }
    setTones();
}

void Rebranding::setTones()
{
    const QStringList named = m_colors.values() + m_baseEntries.values() + m_ownEntries.values();
    for (const PaletteEntry &tone : qAsConst(m_tones)) {
        const bool isThere =
            m_baseEntries.contains(tone.first) || m_ownEntries.contains(tone.first);
        if (isThere || named.contains(tone.first))
            setPaletteEntries(isOfBase(tone.first) ? &m_base : &m_own, {tone});
    }
}

std::optional<ThemeTexts> Rebranding::texts(QString *error) const
{
    const auto base = m_base.provenText();
    const auto own = m_own.provenText();
    if (base && own)
        return ThemeTexts{*base, *own};
    *error = QLatin1String("nothing can be added to the ")
        % QLatin1String(base ? "theme's own file" : "default file")
        % QLatin1String(" without changing other entries; look for a quotation mark that is never "
                        "closed");
    return std::nullopt;
}

} // namespace

std::optional<ThemeTexts> withBrand(const ThemeTexts &theme, const QColor &brand,
                                    QStringList *notes, QString *error)
{
    Rebranding rebranding(theme, brand);
    if (!rebranding.isBranded()) {
        notes->append(
            QStringLiteral("the theme stays as it is, for it has and names none of the tones of a "
                           "brand, Brand_1 to Brand_10"));
        return theme;
    }
    rebranding.design(notes);
    return rebranding.texts(error);
}

} // namespace Maker

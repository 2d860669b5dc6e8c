// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <sheet/sheetpage.h>

#include <colormath/csstext.h>
#include <format/printabletext.h>
#include <sheet/sheetimage.h>
#include <sheet/sheetmodel.h>

#include <QFile>

#include <algorithm>
#include <cmath>

// A static library's resources are there only after this; it may not stand inside a namespace.
static void initStyle()
{
    Q_INIT_RESOURCE(sheet);
}

using ColorMath::cssColor;
using ColorMath::cssGradient;

namespace
{

QString escaped(const QString &text)
{
    return printable(text).toHtmlEscaped();
}

QString themeStyle(const SheetTheme &theme)
{
    const bool isDark = theme.ink == QColor(Qt::white);
    return QStringLiteral("--g:%1;--i:%2;--h:%3")
        .arg(theme.ground.name(), theme.ink.name(),
             QLatin1String(isDark ? "#ffffff1f" : "#0000001f"));
}

class Page
{
public:
    explicit Page(const SheetModel &model)
        : m_model(model)
    {
    }

    QByteArray text();

private:
    // What a cell of a key and a theme holds; called only if the theme has the key.
    using Cell = QString (Page::*)(const SheetTheme &, const StoredValue &) const;

    struct Section {
        Kind kind;
        const char *anchor;
        const char *heading;
        Cell cell;
    };

    void addHead();
    void addSections();
    void addPalette();
    void addRun(const SheetRun &run);
    void addRunRow(const SheetTheme &theme, const QString &name, const SheetRun &run);
    void addTable(const Section &section);
    void addIcons();
    QString title() const;
    QString filterStyle() const;
    QString filter() const;
    QString colorCell(const SheetTheme &theme, const StoredValue &value) const;
    QString integerCell(const SheetTheme &theme, const StoredValue &value) const;
    QString gradientCell(const SheetTheme &theme, const StoredValue &value) const;
    QString flagCell(const SheetTheme &theme, const StoredValue &value) const;

    const SheetModel &m_model;
    QString m_html;
    QString m_links;
};

// Browsers simulate as the picture does: SVG filters count in linear sRGB.
QString Page::filter() const
{
    if (m_model.vision() == ColorMath::Vision::Normal)
        return {};
    QStringList rows;
    for (const auto &row : ColorMath::colorMatrix(m_model.vision())) {
        QString text;
        for (const double factor : row)
            text += QString::number(factor, 'f', 6) % QLatin1Char(' ');
        rows << text % QLatin1String("0 0");
    }
    rows << QStringLiteral("0 0 0 1 0");
    return QLatin1String("<svg width=\"0\" height=\"0\" aria-hidden=\"true\"><filter id=\"vision\">"
                         "<feColorMatrix values=\"")
        % rows.join(QLatin1String("  ")) % QLatin1String("\"/></filter></svg>\n");
}

QString Page::filterStyle() const
{
    return m_model.vision() == ColorMath::Vision::Normal
        ? QString()
        : QStringLiteral("main { filter: url(#vision); }\n");
}

QString Page::title() const
{
    QStringList names;
    for (const SheetTheme &theme : m_model.themes())
        names << escaped(theme.name);
    return names.join(QLatin1String(", "));
}

void Page::addHead()
{
    QFile style(QStringLiteral(":/hvtheme-sheet/sheet.css"));
    style.open(QIODevice::ReadOnly);
    m_html +=
        QLatin1String("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\"/>\n"
                      "<meta name=\"viewport\" content=\"width=device-width\"/>\n"
                      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src "
                      "'none'; img-src data:; style-src 'unsafe-inline'\"/>\n<title>")
        % title() % QLatin1String("</title>\n<style>\n") % QString::fromUtf8(style.readAll())
        % filterStyle() % QLatin1String("</style>\n</head>\n<body>\n") % filter();
}

void Page::addSections()
{
    const Section sections[] = {
        {Kind::Color, "colours", "Colours", &Page::colorCell},
        {Kind::Integer, "integers", "Sizes and numbers", &Page::integerCell},
        {Kind::Gradient, "gradients", "Gradients", &Page::gradientCell},
        {Kind::Flag, "flags", "Flags", &Page::flagCell},
    };
    const auto heading = [this](const QString &anchor, const QString &text) {
        m_links += QStringLiteral("<li><a href=\"#%1\">%2</a></li>").arg(anchor, text);
        m_html += QStringLiteral("<section aria-labelledby=\"%1\">\n<h2 id=\"%1\">%2</h2>\n")
                      .arg(anchor, text);
    };
    if (!m_model.keys(Kind::Palette).isEmpty()) {
        heading(QStringLiteral("palette"), QStringLiteral("Palette"));
        addPalette();
    }
    for (const Section &section : sections) {
        if (m_model.keys(section.kind).isEmpty())
            continue;
        heading(QLatin1String(section.anchor), QLatin1String(section.heading));
        if (section.kind == Kind::Color)
            m_html += QLatin1String("<p>") % escaped(m_model.note()) % QLatin1String("</p>\n");
        addTable(section);
    }
    if (!m_model.keys(Kind::ImageFile).isEmpty()) {
        heading(QStringLiteral("images"), QStringLiteral("Images"));
        addIcons();
    }
}

void Page::addPalette()
{
    if (m_model.themes().size() > 1 && m_model.areEqual(Kind::Palette, m_model.keys(Kind::Palette)))
        m_html += QLatin1String("<p>The same in all these themes.</p>\n");
    const QVector<SheetRun> runs = m_model.runs();
    for (const SheetRun &run : runs)
        addRun(run);
    m_html += QLatin1String("</section>\n");
}

// Themes that agree on a run share a line.
void Page::addRun(const SheetRun &run)
{
    const QString name = run.name.isEmpty() ? QStringLiteral("Other") : escaped(run.name);
    m_html += QStringLiteral("<div class=\"series\">\n<h3>%1</h3>\n<div class=\"scroll\" "
                             "tabindex=\"0\" role=\"region\" aria-label=\"%1\">\n"
                             "<table class=\"run\">\n<thead><tr>")
                  .arg(name);
    const bool isShared = m_model.areEqual(Kind::Palette, run.keys);
    if (!isShared)
        m_html += QLatin1String("<td></td>");
    for (const QString &key : run.keys)
        m_html += QLatin1String("<th scope=\"col\">") % escaped(key) % QLatin1String("</th>");
    m_html += QLatin1String("</tr></thead>\n<tbody>\n");
    if (isShared)
        addRunRow(m_model.themes().constFirst(), QString(), run);
    for (const SheetTheme &theme : m_model.themes()) {
        if (!isShared)
            addRunRow(theme, theme.name, run);
    }
    m_html += QLatin1String("</tbody>\n</table>\n</div>\n</div>\n");
}

void Page::addRunRow(const SheetTheme &theme, const QString &name, const SheetRun &run)
{
    m_html += QLatin1String("<tr>");
    if (!name.isEmpty())
        m_html += QLatin1String("<th scope=\"row\">") % escaped(name) % QLatin1String("</th>");
    for (const QString &key : run.keys) {
        const StoredValue *stored = theme.find(Kind::Palette, key);
        if (!stored) {
            m_html += QLatin1String("<td>not set</td>");
            continue;
        }
        m_html += QStringLiteral("<td><span class=\"swatch\" style=\"--c:%1\"></span>"
                                 "<span class=\"value\">%2</span></td>")
                      .arg(cssColor(stored->value.value<QColor>()), valueText(stored->value));
    }
    m_html += QLatin1String("</tr>\n");
}

void Page::addTable(const Section &section)
{
    m_html +=
        QStringLiteral("<div class=\"scroll\" tabindex=\"0\" role=\"region\" "
                       "aria-labelledby=\"%1\">\n<table class=\"keys\">\n<thead><tr><td></td>")
            .arg(QLatin1String(section.anchor));
    for (const SheetTheme &theme : m_model.themes())
        m_html +=
            QStringLiteral("<th scope=\"col\" class=\"theme\" style=\"%1\">%2<span>%3</span></th>")
                .arg(themeStyle(theme), escaped(theme.name), escaped(theme.displayName));
    m_html += QLatin1String("</tr></thead>\n<tbody>\n");
    const QStringList keys = m_model.keys(section.kind);
    for (const QString &key : keys) {
        m_html += QLatin1String("<tr><th scope=\"row\">") % escaped(key) % QLatin1String("</th>");
        for (const SheetTheme &theme : m_model.themes()) {
            const StoredValue *stored = theme.find(section.kind, key);
            const QString cell = stored ? (this->*section.cell)(theme, *stored)
                                        : QStringLiteral("<span class=\"none\">not set</span>");
            m_html += QLatin1String("<td style=\"") % themeStyle(theme) % QLatin1String("\">")
                % cell % QLatin1String("</td>");
        }
        m_html += QLatin1String("</tr>\n");
    }
    m_html += QLatin1String("</tbody>\n</table>\n</div>\n</section>\n");
}

QString Page::colorCell(const SheetTheme &theme, const StoredValue &value) const
{
    const SheetContrast contrast = m_model.contrast(theme, value);
    const bool isText = m_model.isText(value.key());
    const QString palette = value.palette.isEmpty()
        ? QString()
        : QLatin1String(" <span>") % escaped(value.palette) % QLatin1String("</span>");
    return QStringLiteral("<div class=\"color\"><span class=\"sample %1\" style=\"--c:%2\" "
                          "aria-hidden=\"true\">%3</span><span class=\"value\">%4%5</span>"
                          "<span class=\"ratio %6\">%7</span></div>")
        .arg(QLatin1String(isText ? "text" : "fill"), cssColor(value.value.value<QColor>()),
             QLatin1String(isText ? "Ag" : ""), valueText(value.value), palette,
             contrast.grade == QLatin1String("low") ? contrast.grade : QString(), contrast.text());
}

QString Page::integerCell(const SheetTheme &, const StoredValue &value) const
{
    const qlonglong number = value.value.toLongLong();
    const bool isSize =
        value.key().startsWith(QLatin1String("FontSize")) && number > 0 && number < 200;
    if (!isSize)
        return QLatin1String("<span class=\"value\">") % valueText(value.value)
            % QLatin1String("</span>");
    return QStringLiteral("<span class=\"size\" style=\"font-size:%1px\">Hamburg %1 px</span>")
        .arg(number);
}

QString Page::gradientCell(const SheetTheme &, const StoredValue &value) const
{
    return QStringLiteral("<span class=\"bar\" style=\"background:%1\"></span>"
                          "<span class=\"value\">%2</span>")
        .arg(cssGradient(value.value.value<QGradientStops>()), valueText(value.value));
}

QString Page::flagCell(const SheetTheme &, const StoredValue &value) const
{
    return QLatin1String(value.value.toBool() ? "yes" : "no");
}

void Page::addIcons()
{
    const int width = std::max(9, 4 * int(m_model.themes().size()));
    m_html += QStringLiteral("<ul class=\"icons\" style=\"--card:%1rem\">\n").arg(width);
    const QStringList keys = m_model.keys(Kind::ImageFile);
    for (const QString &key : keys) {
        m_html += QLatin1String("<li><figure><div>");
        for (const SheetTheme &theme : m_model.themes()) {
            const StoredValue *stored = theme.find(Kind::ImageFile, key);
            const QString uri = stored ? dataUri(stored->value.toString()) : QString();
            const QString text = escaped(key) % QLatin1String(" in ") % escaped(theme.name);
            m_html += QLatin1String("<span style=\"") % themeStyle(theme) % QLatin1String("\">");
            m_html += uri.isEmpty() ? QLatin1String(stored ? "missing" : "not set")
                                    : QStringLiteral("<img alt=\"%1\" src=\"%2\"/>").arg(text, uri);
            m_html += QLatin1String("</span>");
        }
        m_html += QLatin1String("</div><figcaption>") % escaped(key)
            % QLatin1String("</figcaption></figure></li>\n");
    }
    m_html += QLatin1String("</ul>\n</section>\n");
}

QByteArray Page::text()
{
    addSections();
    const QString sections = m_html;
    m_html.clear();
    addHead();
    m_html += QLatin1String("<header>\n<h1>") % title() % QLatin1String("</h1>\n")
        % QLatin1String("<nav aria-label=\"Sections\"><ul>") % m_links
        % QLatin1String("</ul></nav>\n</header>\n<main>\n") % sections
        % QLatin1String("</main>\n</body>\n</html>\n");
    return m_html.toUtf8();
}

} // namespace

QByteArray sheetPage(const SheetModel &model)
{
    initStyle();
    return Page(model).text();
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "tintedsvg.h"

#include "iconcolors.h"

#include <format/token.h>

#include <QBuffer>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace HV
{

namespace
{

// A token of any prefix, with the key of its colour captured.
QString colorTokenPattern()
{
    return QLatin1String("\\w+")
        + QRegularExpression::escape(Tokens::opening(QString(), Kind::Color))
        + QLatin1String("(\\w+)");
}

const int largestSource = 1 << 20;
const int maximumDepth = 100;
// Elements, times what is applied to each of them at worst. An icon has some dozens of the one.
const qint64 maximumWork = 200000;
const int maximumRemarks = 3;
const int maximumPicturePixels = 1 << 20;
const QLatin1String svgNamespace("http://www.w3.org/2000/svg");
const QLatin1String xlinkNamespace("http://www.w3.org/1999/xlink");
const QLatin1String xmlNamespace("http://www.w3.org/XML/1998/namespace");

// What draws, and what such elements refer to; not so script, foreignObject, animate, video, font...
bool isDrawing(const QString &name)
{
    static const QSet<QString> names{
        QStringLiteral("svg"),     QStringLiteral("g"),
        QStringLiteral("defs"),    QStringLiteral("a"),
        QStringLiteral("switch"),  QStringLiteral("title"),
        QStringLiteral("desc"),    QStringLiteral("style"),
        QStringLiteral("path"),    QStringLiteral("rect"),
        QStringLiteral("circle"),  QStringLiteral("ellipse"),
        QStringLiteral("line"),    QStringLiteral("polyline"),
        QStringLiteral("polygon"), QStringLiteral("text"),
        QStringLiteral("tspan"),   QStringLiteral("use"),
        QStringLiteral("image"),   QStringLiteral("linearGradient"),
        QStringLiteral("stop"),    QStringLiteral("radialGradient"),
        QStringLiteral("symbol"),  QStringLiteral("solidColor"),
    };
    return names.contains(name);
}

QString opacityAttribute(const QString &colorAttribute)
{
    if (colorAttribute == QLatin1String("stop-color"))
        return QStringLiteral("stop-opacity");
    if (colorAttribute == QLatin1String("solid-color"))
        return QStringLiteral("solid-opacity");
    if (colorAttribute == QLatin1String("fill") || colorAttribute == QLatin1String("stroke"))
        return colorAttribute + QLatin1String("-opacity");
    return {};
}

// A picture inside the text itself. Qt would read any format it knows, SVG with references of its
// own among them.
bool isHarmlessPicture(const QString &reference)
{
    const int comma = int(reference.indexOf(QLatin1Char(',')));
    if (!reference.startsWith(QLatin1String("data:")) || comma < 0
        || !reference.left(comma).endsWith(QLatin1String("base64")))
        return false;
    QByteArray data = QByteArray::fromBase64(reference.mid(comma + 1).toLatin1());
    QBuffer buffer(&data);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format(); // before its size, for which a drawing would be read
    if (format != "png" && format != "jpeg")
        return false;
    const QSize size = reader.size();
    return size.isValid() && qint64(size.width()) * size.height() <= maximumPicturePixels;
}

bool isReference(const QXmlStreamAttribute &attribute)
{
    return attribute.name() == QLatin1String("href")
        && (attribute.namespaceUri().isEmpty() || attribute.namespaceUri() == xlinkNamespace);
}

class Tinter
{
public:
    Tinter(const QByteArray &source, QIcon::Mode mode)
        : m_in(source)
        , m_out(&m_result.text)
        , m_mode(mode)
    {
    }

    TintedSvg run();

private:
    void startElement();
    void characters();
    void attribute(const QXmlStreamAttribute &attribute, QXmlStreamAttributes &attributes);
    bool isSelfContained(const QString &name, const QXmlStreamAttributes &attributes);
    void checkWork();
    QString tinted(const QString &text);
    QColor color(const QString &key);
    void remark(const QString &sentence);
    void refuse(const QString &sentence);

    QXmlStreamReader m_in;
    TintedSvg m_result;
    QXmlStreamWriter m_out;
    QIcon::Mode m_mode;
    QStringList m_open; // identifiers of the elements around; null for those without
    QSet<QString> m_withUse; // identifiers of elements with a `use` inside
    QStringList m_used;
    qint64 m_elements = 0;
    qint64 m_rules = 0; // of style sheets inside
    QString m_text; // the element that began last, whose text follows
};

TintedSvg Tinter::run()
{
    while (!m_in.atEnd() && m_result.error.isNull()) {
        switch (m_in.readNext()) {
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            m_out.writeEndElement();
            m_open.removeLast();
            break;
        case QXmlStreamReader::Characters:
            characters();
            break;
        default: // instructions, comments and the document type are not needed
            break;
        }
    }
    if (m_in.hasError())
        refuse(QStringLiteral("line %1: %2").arg(m_in.lineNumber()).arg(m_in.errorString()));
    checkWork();
    if (!m_result.error.isNull())
        m_result.text.clear();
    return m_result;
}

void Tinter::startElement()
{
    const QString name = m_in.name().toString();
    const bool isOurs = m_in.namespaceUri().isEmpty() || m_in.namespaceUri() == svgNamespace;
    if (m_open.isEmpty() && !(isOurs && name == QLatin1String("svg")))
        return refuse(QStringLiteral("line %1: <%2> is no SVG").arg(m_in.lineNumber()).arg(name));
    if (!isOurs || !isDrawing(name))
        return m_in.skipCurrentElement();
    if (m_open.size() == maximumDepth)
        return refuse(QStringLiteral("line %1: more than %2 elements inside one another")
                          .arg(m_in.lineNumber())
                          .arg(maximumDepth));

    const QXmlStreamAttributes given = m_in.attributes();
    if (!isSelfContained(name, given))
        return m_in.skipCurrentElement();
    ++m_elements;
    QXmlStreamAttributes attributes;
    m_out.writeStartElement(name);
    if (m_open.isEmpty()) {
        m_out.writeAttribute(QStringLiteral("xmlns"), svgNamespace);
        m_out.writeAttribute(QStringLiteral("xmlns:xlink"), xlinkNamespace);
        if (!given.hasAttribute(QLatin1String("color")))
            m_out.writeAttribute(QStringLiteral("color"), IconColors::ink(m_mode).name());
    }
    m_open.append(given.value(QLatin1String("id")).toString());
    if (name == QLatin1String("use")) {
        for (const QString &id : qAsConst(m_open))
            m_withUse.insert(id);
    }
    m_text = name;
    for (const QXmlStreamAttribute &one : given)
        attribute(one, attributes);
    m_out.writeAttributes(attributes);
}

void Tinter::characters()
{
    if (m_open.isEmpty())
        return;
    QString text = m_in.text().toString();
    if (m_text == QLatin1String("style")) {
        text = tinted(text);
        m_rules += text.count(QLatin1Char('{'));
        if (text.contains(QLatin1String("@import"), Qt::CaseInsensitive)) {
            remark(QStringLiteral("line %1: @import is left out").arg(m_in.lineNumber()));
            return;
        }
    }
    m_out.writeCharacters(text);
}

void Tinter::attribute(const QXmlStreamAttribute &attribute, QXmlStreamAttributes &attributes)
{
    static const QRegularExpression whole(QStringLiteral("^\\s*%1\\s*$").arg(colorTokenPattern()));
    const QString name = attribute.name().toString();
    const QString value = attribute.value().toString();
    if (isReference(attribute)) {
        if (value.trimmed().startsWith(QLatin1Char('#')) && m_text == QLatin1String("use"))
            m_used.append(value.trimmed().mid(1));
        return attributes.append(QStringLiteral("xlink:href"), value.trimmed());
    }
    if (attribute.namespaceUri() == xmlNamespace)
        return attributes.append(attribute.qualifiedName().toString(), value);
    if (!attribute.namespaceUri().isEmpty())
        return;

    const auto match = whole.match(value);
    if (!match.hasMatch()) {
        // What is there already is an opacity that a colour before it has multiplied.
        if (!attributes.hasAttribute(name))
            attributes.append(name, tinted(value));
        return;
    }
    const QColor tint = color(match.captured(1));
    attributes.append(name, tint.name());
    const QString opacity = opacityAttribute(name);
    if (tint.alpha() == 255 || opacity.isEmpty())
        return;
    const QString beside = m_in.attributes().value(opacity).toString();
    const double factor = beside.isEmpty() ? 1 : beside.toDouble();
    for (int i = int(attributes.size()) - 1; i >= 0; --i) {
        if (attributes.at(i).qualifiedName() == opacity)
            attributes.remove(i);
    }
    attributes.append(opacity, QString::number(factor * tint.alphaF()));
}

// Whether the element needs nothing but what is in the text; told if not.
bool Tinter::isSelfContained(const QString &name, const QXmlStreamAttributes &attributes)
{
    for (const QXmlStreamAttribute &one : attributes) {
        if (!isReference(one))
            continue;
        const QString link = one.value().toString().trimmed();
        // For Qt "#x" is an element, but in an image a file.
        const bool isInside = name == QLatin1String("image") ? isHarmlessPicture(link)
                                                             : link.startsWith(QLatin1Char('#'));
        if (isInside || name == QLatin1String("a"))
            continue;
        remark(QStringLiteral("line %1: \"%2\" is left out; nothing is loaded for a drawing")
                   .arg(m_in.lineNumber())
                   .arg(link.left(60)));
        return false;
    }
    return true;
}

// A `use` of what holds a `use` multiplies: ten levels of ten are ten thousand million shapes.
void Tinter::checkWork()
{
    m_withUse.remove(QString());
    for (const QString &id : qAsConst(m_used)) {
        if (m_withUse.contains(id))
            return refuse(QStringLiteral("a \"use\" repeats \"%1\", which holds another").arg(id));
    }
    if (m_elements * (1 + m_used.size() + m_rules) > maximumWork)
        refuse(QStringLiteral("it has too many elements, uses and style rules to be an icon"));
}

QString Tinter::tinted(const QString &text)
{
    static const QRegularExpression token(
        QStringLiteral("(?:([\\w-]+)(\\s*:\\s*))?\\b%1").arg(colorTokenPattern()));
    QString result;
    int end = 0;
    for (auto matches = token.globalMatch(text); matches.hasNext();) {
        const auto match = matches.next();
        const QColor tint = color(match.captured(3));
        const QString opacity = opacityAttribute(match.captured(1));
        result += text.mid(end, int(match.capturedStart()) - end) + match.captured(1)
            + match.captured(2) + tint.name();
        if (tint.alpha() < 255 && !opacity.isEmpty())
            result +=
                QLatin1Char(';') + opacity + QLatin1Char(':') + QString::number(tint.alphaF());
        end = int(match.capturedEnd());
    }
    return end == 0 ? text : result + text.mid(end);
}

QColor Tinter::color(const QString &key)
{
    bool found = false;
    QColor result = IconColors::color(key, m_mode, &found);
    if (!found)
        remark(QStringLiteral("line %1: the theme has no colour \"%2\"; the palette's is taken")
                   .arg(m_in.lineNumber())
                   .arg(key));
    return result;
}

void Tinter::remark(const QString &sentence)
{
    if (m_result.remarks.size() < maximumRemarks)
        m_result.remarks.append(sentence);
}

void Tinter::refuse(const QString &sentence)
{
    if (m_result.error.isNull())
        m_result.error = sentence;
}

} // namespace

TintedSvg tintedSvg(const QByteArray &source, QIcon::Mode mode)
{
    if (source.size() > largestSource)
        return {{}, QStringLiteral("it is larger than %1 bytes").arg(largestSource), {}};
    return Tinter(source, mode).run();
}

} // namespace HV

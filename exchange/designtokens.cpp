// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <exchange/designtokens.h>

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <cmath>

namespace Exchange
{

namespace
{

const QString valueName = QStringLiteral("$value");
const QString typeName = QStringLiteral("$type");

// --- writing

QJsonObject colorValue(const QColor &color)
{
    const QColor rgb = color.toRgb();
    const auto component = [](int value) { return std::round(value / 255.0 * 1e6) / 1e6; };
    return {{QStringLiteral("colorSpace"), QStringLiteral("srgb")},
            {QStringLiteral("components"),
             QJsonArray{component(rgb.red()), component(rgb.green()), component(rgb.blue())}},
            {QStringLiteral("alpha"), component(rgb.alpha())},
            {QStringLiteral("hex"), rgb.name(QColor::HexRgb)}};
}

QJsonObject token(const QJsonValue &value)
{
    return {{valueName, value}};
}

QJsonObject integerToken(const QString &key, qint64 value)
{
    if (!key.startsWith(QLatin1String("FontSize_")))
        return {{typeName, QStringLiteral("number")}, {valueName, double(value)}};
    return {{typeName, QStringLiteral("dimension")},
            {valueName,
             QJsonObject{{QStringLiteral("value"), double(value)},
                         {QStringLiteral("unit"), QStringLiteral("px")}}}};
}

QJsonArray gradientValue(const QGradientStops &stops)
{
    QJsonArray array;
    for (const QGradientStop &stop : stops)
        array.append(QJsonObject{{QStringLiteral("color"), colorValue(stop.second)},
                                 {QStringLiteral("position"), stop.first}});
    return array;
}

bool isTokenName(const QString &key)
{
    static const QRegularExpression forbidden(QStringLiteral("^\\$|[.{}]"));
    return !key.isEmpty() && !key.contains(forbidden);
}

template<typename Value, typename ToToken>
QJsonObject group(const char *type, const QMap<QString, Value> &values, QString *error,
                  ToToken toToken)
{
    QJsonObject object;
    if (type)
        object.insert(typeName, QString::fromLatin1(type));
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (!isTokenName(it.key()))
            *error = QLatin1String("the key \"") % it.key()
                % QLatin1String("\" cannot name a design token: it holds a dot or a brace, or "
                                "begins with a dollar sign");
        object.insert(it.key(), toToken(it.key(), it.value()));
    }
    return object;
}

// JSON has no numbers for positions such as nan.
QString gradientMistake(const ThemeContent &theme)
{
    for (auto it = theme.gradients.cbegin(); it != theme.gradients.cend(); ++it) {
        for (const QGradientStop &stop : *it) {
            if (!std::isfinite(stop.first))
                return QLatin1String("the gradient \"") % it.key()
                    % QLatin1String("\" has a stop at ") % QString::number(stop.first)
                    % QLatin1String(", which no design token can say");
        }
    }
    return {};
}

// --- reading

struct FoundToken {
    QString type; // its own, or that of the nearest group with one
    QJsonValue value;
};

// The first mistake counts, and ends the reading.
class Reader
{
public:
    explicit Reader(const QJsonObject &root) { collect(root, {}, {}, 0); }

    ThemeContent content();

    /*! One sentence about the first mistake, or a null text. */
    QString mistake() const { return m_mistake; }

private:
    void collect(const QJsonObject &object, const QStringList &path, const QString &type,
                 int depth);
    FoundToken resolved(const QString &name);
    bool isOurs(const QString &path) const;
    static QString aliasOf(const QJsonValue &value);
    QColor color(const QString &name, const QJsonValue &value);
    QColor colorOfObject(const QString &name, const QJsonObject &value);
    ThemeColor themeColor(const QString &name);
    void namePaletteEntries();
    QGradientStops gradient(const QString &name, const QJsonValue &value);
    qint64 integer(const QString &name, const QJsonValue &value);

    void fail(const QString &name, const QString &what)
    {
        if (m_mistake.isNull())
            m_mistake = QLatin1String("token ") % name % QLatin1String(": ") % what;
    }

    QString m_mistake;
    QMap<QString, FoundToken> m_tokens; // by path, with dots
    QMap<QString, QString> m_paletteNames; // by path, of the tokens that are palette entries
};

void Reader::collect(const QJsonObject &object, const QStringList &path, const QString &type,
                     int depth)
{
    constexpr int deepest = 64;
    if (depth > deepest) {
        fail(path.join(QLatin1Char('.')), QStringLiteral("groups within groups without end"));
        return;
    }
    const QString ownType = object.value(typeName).toString(type);
    if (object.contains(valueName)) {
        m_tokens.insert(path.join(QLatin1Char('.')), {ownType, object.value(valueName)});
        return;
    }
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!it.key().startsWith(QLatin1Char('$')) && it.value().isObject())
            collect(it.value().toObject(), path + QStringList(it.key()), ownType, depth + 1);
    }
}

// Returns the token that "{a.b}" names, or a null text.
QString Reader::aliasOf(const QJsonValue &value)
{
    const QString text = value.toString();
    const bool isAlias = text.startsWith(QLatin1Char('{')) && text.endsWith(QLatin1Char('}'));
    return isAlias ? text.mid(1, text.size() - 2) : QString();
}

FoundToken Reader::resolved(const QString &name)
{
    FoundToken found = m_tokens.value(name);
    QStringList way{name};
    for (QString alias = aliasOf(found.value); !alias.isNull(); alias = aliasOf(found.value)) {
        if (way.contains(alias)) {
            fail(name,
                 QLatin1String("it is an alias of itself: ")
                     % (way + QStringList(alias)).join(QLatin1String(" -> ")));
            return {found.type, QJsonValue()};
        }
        if (!m_tokens.contains(alias)) {
            fail(name, QLatin1String("there is no token ") % alias);
            return {found.type, QJsonValue()};
        }
        way.append(alias);
        constexpr int longest = 64;
        if (way.size() > longest) {
            fail(name, QStringLiteral("aliases of aliases without end"));
            return {found.type, QJsonValue()};
        }
        const QString type = found.type;
        found = m_tokens.value(alias);
        if (found.type.isEmpty())
            found.type = type;
    }
    return found;
}

QColor Reader::colorOfObject(const QString &name, const QJsonObject &value)
{
    const QJsonValue opacity = value.value(QStringLiteral("alpha"));
    const double alpha = opacity.isUndefined() ? 1.0 : opacity.toDouble(-1);
    if (!(alpha >= 0 && alpha <= 1))
        fail(name, QStringLiteral("alpha is a number from 0 to 1"));
    const QJsonValue digits = value.value(QStringLiteral("hex"));
    QColor color;
    if (!digits.isUndefined()) { // exact, where components are rounded
        const QString hex = digits.toString();
        color = QColor(hex);
        if (!color.isValid() || hex.size() != 7 || !hex.startsWith(QLatin1Char('#')))
            fail(name, QLatin1String("\"") % hex % QLatin1String("\" is no hex colour"));
    } else if (value.value(QStringLiteral("colorSpace")).toString() == QLatin1String("srgb")) {
        const QJsonArray components = value.value(QStringLiteral("components")).toArray();
        if (components.size() != 3)
            fail(name, QStringLiteral("an sRGB colour has three components"));
        for (const auto &component : components) {
            if (!component.isDouble() && component.toString() != QLatin1String("none"))
                fail(name, QStringLiteral("a component of a colour is a number or \"none\""));
        }
        // From integers, for the fractions of colours have fewer digits from Qt 6 on.
        const auto channel = [&](int i) {
            return quint16(qRound(qBound(0.0, components.at(i).toDouble(0), 1.0) * 0xffff));
        };
        color = QColor(QColor::fromRgba64(channel(0), channel(1), channel(2)).rgb());
    } else {
        fail(name, QStringLiteral("of colour spaces other than srgb only \"hex\" is read"));
    }
    color.setAlpha(qRound(qBound(0.0, alpha, 1.0) * 255));
    return color;
}

QColor Reader::color(const QString &name, const QJsonValue &value)
{
    const QString alias = aliasOf(value); // within a gradient
    if (!alias.isNull()) {
        if (!m_tokens.contains(alias))
            fail(name, QLatin1String("there is no token ") % alias);
        const QJsonValue named = resolved(alias).value;
        return aliasOf(named).isNull() ? color(alias, named) : QColor();
    }
    if (value.isObject())
        return colorOfObject(name, value.toObject());
    static const QRegularExpression pattern(
        QStringLiteral("^#(?:[0-9A-Fa-f]{3}|[0-9A-Fa-f]{6}|[0-9A-Fa-f]{8})$"));
    const QString text = value.toString();
    if (!pattern.match(text).hasMatch())
        fail(name, QStringLiteral("it is no colour: an object of a colour space, or \"#rrggbb\""));
    if (text.size() != 9)
        return QColor(text);
    QColor color(text.left(7));
    color.setAlpha(text.mid(7).toInt(nullptr, 16));
    return color;
}

ThemeColor Reader::themeColor(const QString &name)
{
    const QString alias = aliasOf(m_tokens.value(name).value);
    return {color(name, resolved(name).value), m_paletteNames.value(alias)};
}

QGradientStops Reader::gradient(const QString &name, const QJsonValue &value)
{
    QGradientStops stops;
    const QJsonArray array = value.toArray();
    if (array.isEmpty())
        fail(name, QStringLiteral("a gradient is a list of stops"));
    for (const auto &stop : array) {
        const QJsonObject object = stop.toObject();
        const QJsonValue position = object.value(QStringLiteral("position"));
        if (!position.isDouble())
            fail(name, QStringLiteral("the position of a stop is a number"));
        stops.append({position.toDouble(), color(name, object.value(QStringLiteral("color")))});
    }
    return stops;
}

qint64 Reader::integer(const QString &name, const QJsonValue &value)
{
    const QJsonObject dimension = value.toObject();
    const QJsonValue number = value.isObject() ? dimension.value(QStringLiteral("value")) : value;
    if (!number.isDouble())
        fail(name, QStringLiteral("it is no number and no dimension"));
    if (value.isObject()
        && dimension.value(QStringLiteral("unit")).toString() != QLatin1String("px"))
        fail(name, QStringLiteral("of dimensions only px is read"));
    const double rounded = std::round(number.toDouble());
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0))
        fail(name, QStringLiteral("the number does not fit into 32 bits"));
    return qint64(rounded);
}

// Makes names of palette entries for tokens of other authors: no name twice.
class PaletteNames
{
public:
    void take(const QString &name) { m_numbers.insert(name, 1); }

    QString make(const QString &path)
    {
        static const QRegularExpression others(QStringLiteral("[^A-Za-z0-9_]+"));
        const QString name = QString(path).replace(others, QStringLiteral("_"));
        QString numbered = name;
        while (m_numbers.contains(numbered))
            numbered = name % QLatin1Char('_') % QString::number(++m_numbers[name]);
        take(numbered);
        return numbered;
    }

private:
    QHash<QString, int> m_numbers; // the last that went with a name
};

// Tells whether the path is that of one of our groups and a key.
bool isIn(const char *group, const QString &path)
{
    const QString start = QLatin1String(group) % QLatin1Char('.');
    return path.size() > start.size() && path.startsWith(start)
        && path.indexOf(QLatin1Char('.'), start.size()) < 0;
}

QString keyOf(const QString &path)
{
    return path.section(QLatin1Char('.'), 1);
}

// Tells whether a token of one of our groups has a type that ours have there, or none of its own.
bool Reader::isOurs(const QString &path) const
{
    const QString type = m_tokens.value(path).type;
    const auto is = [&](const char *name) { return type.isEmpty() || type == QLatin1String(name); };
    return ((isIn("palette", path) || isIn("color", path)) && is("color"))
        || (isIn("gradient", path) && is("gradient"))
        || (isIn("integer", path) && (is("number") || is("dimension")));
}

// Entries of ours keep their names; those of others have to make do with what is left.
void Reader::namePaletteEntries()
{
    PaletteNames names;
    for (auto it = m_tokens.cbegin(); it != m_tokens.cend(); ++it) {
        if (isIn("palette", it.key()) && isOurs(it.key())) {
            m_paletteNames.insert(it.key(), keyOf(it.key()));
            names.take(keyOf(it.key()));
        }
    }
    for (auto it = m_tokens.cbegin(); it != m_tokens.cend(); ++it) {
        const QString &path = it.key();
        const bool isColor = !isOurs(path) && resolved(path).type == QLatin1String("color");
        if (!m_mistake.isNull())
            return;
        if (isColor)
            m_paletteNames.insert(path, names.make(path));
    }
}

ThemeContent Reader::content()
{
    namePaletteEntries();
    ThemeContent theme;
    for (auto it = m_tokens.cbegin(); it != m_tokens.cend() && m_mistake.isNull(); ++it) {
        const QString &name = it.key();
        const QJsonValue value = resolved(name).value;
        const bool isKnown = isOurs(name);
        if (m_paletteNames.contains(name))
            theme.palette.insert(m_paletteNames.value(name), color(name, value));
        else if (isKnown && isIn("color", name))
            theme.colors.insert(keyOf(name), themeColor(name));
        else if (isKnown && isIn("gradient", name))
            theme.gradients.insert(keyOf(name), gradient(name, value));
        else if (isKnown && isIn("integer", name))
            theme.integers.insert(keyOf(name), integer(name, value));
    }
    return theme;
}

// Reads what is no token. \return one sentence about the first mistake, or a null text.
QString readExtension(const QJsonObject &own, ThemeContent *theme)
{
    const auto text = [&](const char *key) { return own.value(QLatin1String(key)).toString(); };
    QString mistake;
    theme->name = text("name");
    theme->displayName = text("displayName");
    const QJsonObject flags = own.value(QStringLiteral("flags")).toObject();
    for (auto it = flags.begin(); it != flags.end(); ++it) {
        if (!it.value().isBool() && mistake.isNull())
            mistake = QLatin1String("$extensions.hvtheme.flags.") % it.key()
                % QLatin1String(": a flag is true or false");
        theme->flags.insert(it.key(), it.value().toBool());
    }
    const QJsonObject images = own.value(QStringLiteral("imageFiles")).toObject();
    for (auto it = images.begin(); it != images.end(); ++it) {
        if (!it.value().isString() && mistake.isNull())
            mistake = QLatin1String("$extensions.hvtheme.imageFiles.") % it.key()
                % QLatin1String(": the path of an image is a text");
        theme->imageFiles.insert(it.key(), it.value().toString());
    }
    return mistake;
}

} // namespace

QMap<QString, QColor> wholePalette(const ThemeContent &tokens)
{
    QMap<QString, QColor> palette = tokens.palette;
    PaletteNames names;
    for (auto it = palette.cbegin(); it != palette.cend(); ++it)
        names.take(it.key());
    for (auto it = tokens.colors.cbegin(); it != tokens.colors.cend(); ++it)
        palette.insert(names.make(QLatin1String("color.") % it.key()), it->color);
    return palette;
}

std::optional<QByteArray> designTokens(const ThemeContent &theme, QString *error)
{
    QJsonObject flags;
    for (auto it = theme.flags.cbegin(); it != theme.flags.cend(); ++it)
        flags.insert(it.key(), it.value());
    QJsonObject images;
    for (auto it = theme.imageFiles.cbegin(); it != theme.imageFiles.cend(); ++it)
        images.insert(it.key(), it.value());

    *error = gradientMistake(theme);
    const QJsonObject root{
        {QStringLiteral("palette"),
         group("color", theme.palette, error,
               [](const QString &, const QColor &color) { return token(colorValue(color)); })},
        {QStringLiteral("color"),
         group("color", theme.colors, error,
               [](const QString &, const ThemeColor &color) {
                   return color.palette.isEmpty()
                       ? token(colorValue(color.color))
                       : token(
                           QString(QLatin1String("{palette.") % color.palette % QLatin1Char('}')));
               })},
        {QStringLiteral("gradient"),
         group("gradient", theme.gradients, error,
               [](const QString &, const QGradientStops &stops) {
                   return token(gradientValue(stops));
               })},
        {QStringLiteral("integer"), group(nullptr, theme.integers, error, integerToken)},
        {QStringLiteral("$extensions"),
         QJsonObject{{QStringLiteral("hvtheme"),
                      QJsonObject{{QStringLiteral("name"), theme.name},
                                  {QStringLiteral("displayName"), theme.displayName},
                                  {QStringLiteral("flags"), flags},
                                  {QStringLiteral("imageFiles"), images}}}}},
    };
    if (!error->isEmpty())
        return std::nullopt;
    return QJsonDocument(root).toJson();
}

std::optional<ThemeContent> readDesignTokens(const QByteArray &text, QString *error)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
    if (!document.isObject()) {
        *error = parseError.error == QJsonParseError::NoError
            ? QStringLiteral("no JSON object")
            : QLatin1String("no JSON: ") % parseError.errorString() % QLatin1String(" at byte ")
                % QString::number(parseError.offset);
        return std::nullopt;
    }
    const QJsonObject root = document.object();
    const QJsonObject own = root.value(QStringLiteral("$extensions"))
                                .toObject()
                                .value(QStringLiteral("hvtheme"))
                                .toObject();
    Reader reader(root);
    ThemeContent theme = reader.content();
    if (!reader.mistake().isNull()) {
        *error = reader.mistake();
        return std::nullopt;
    }
    *error = readExtension(own, &theme);
    if (!error->isNull())
        return std::nullopt;
    return theme;
}

} // namespace Exchange

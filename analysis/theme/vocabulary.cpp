// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/theme/vocabulary.h>

#include <analysis/theme/inputfile.h>
#include <hvtheme/workabletheming.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaEnum>

#include <algorithm>

namespace
{

constexpr qint64 vocabularySizeLimit = qint64(1024) * 1024;

std::optional<QStringList> textsOf(const QJsonValue &value)
{
    if (!value.isArray())
        return std::nullopt;
    QStringList texts;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &element : array) {
        if (!element.isString())
            return std::nullopt;
        texts << element.toString();
    }
    return texts;
}

} // namespace

Vocabulary Vocabulary::builtIn()
{
    Vocabulary vocabulary;
    const QMetaObject &meta = HV::WorkableTheme::staticMetaObject;
    for (const Kind kind : allKinds) {
        const QByteArray name = enumerationName(kind).toLatin1();
        const QMetaEnum keys = meta.enumerator(meta.indexOfEnumerator(name.constData()));
        for (int i = 0; i < keys.keyCount(); ++i)
            vocabulary.m_keys[size_t(kind)] << QString::fromLatin1(keys.key(i));
    }
    return vocabulary;
}

std::optional<Vocabulary> Vocabulary::read(const QString &path, QString *error)
{
    const std::optional<InputFile> input = InputFile::read(path, vocabularySizeLimit, error);
    if (!input)
        return std::nullopt;
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(input->content(), &parseError);
    if (!document.isObject()) {
        *error = path % QLatin1String(": not a JSON object")
            % (parseError.error == QJsonParseError::NoError
                   ? QString()
                   : QString(QLatin1String(": ") % parseError.errorString()));
        return std::nullopt;
    }

    Vocabulary vocabulary = builtIn();
    const QJsonObject object = document.object();
    for (auto it = object.begin(); it != object.end(); ++it) {
        const auto kind =
            std::find_if(std::begin(allKinds), std::end(allKinds),
                         [&](Kind candidate) { return enumerationName(candidate) == it.key(); });
        const std::optional<QStringList> keys = textsOf(it.value());
        if (kind == std::end(allKinds) || !keys) {
            *error = path % QLatin1String(": \"") % it.key()
                % (keys ? QLatin1String("\" is none of Palette, Color, ImageFile, Gradient, Flag, "
                                        "Integer")
                        : QLatin1String("\" is not a list of texts"));
            return std::nullopt;
        }
        vocabulary.m_keys[size_t(*kind)] = *keys;
    }
    return vocabulary;
}

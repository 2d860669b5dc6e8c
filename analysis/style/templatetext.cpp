// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <analysis/style/templatetext.h>

#include <format/themepath.h>

#include <QBuffer>
#include <QFileInfo>

#include <algorithm>

namespace
{

constexpr qint64 templateSizeLimit = qint64(64) * 1024 * 1024;

// Read through a text device, so that line ends become what the library sees; fromUtf8() ends the
// text at a NUL byte, as it does for the library.
QString decoded(const QByteArray &content)
{
    QByteArray bytes = content;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    return QString::fromUtf8(buffer.readAll().constData());
}

} // namespace

std::optional<TemplateText> TemplateText::read(const QStringList &sources, const QString &prefix,
                                               QString *error)
{
    TemplateText templates;
    templates.m_prefix = prefix;
    templates.m_lineStarts.append(0);
    for (const QString &source : sources) {
        const bool isFolder = QFileInfo(source).isDir();
        const QStringList paths = isFolder ? templateFilePaths(source) : QStringList(source);
        if (paths.isEmpty()) {
            *error = source % QLatin1String(": no templates (*.qss, *.css) in this folder");
            return std::nullopt;
        }
        for (const QString &path : paths) {
            if (!templates.append(path, error))
                return std::nullopt;
        }
    }
    for (int i = 0; i < templates.m_text.size(); ++i) {
        if (templates.m_text.at(i) == QLatin1Char('\n'))
            templates.m_lineStarts.append(i + 1);
    }
    templates.m_tokens = Tokens::find(templates.m_text, prefix);
    return templates;
}

bool TemplateText::append(const QString &path, QString *error)
{
    const std::optional<InputFile> input = InputFile::read(path, templateSizeLimit, error);
    if (!input)
        return false;
    m_files.append({*input, int(m_text.size())});
    m_text += decoded(input->content());
    return true;
}

const TemplateText::File &TemplateText::fileAt(int offset) const
{
    const auto next =
        std::upper_bound(m_files.cbegin(), m_files.cend(), offset,
                         [](int value, const File &file) { return value < file.offset; });
    return next == m_files.cbegin() ? *next : *std::prev(next);
}

Place TemplateText::placeAt(int offset) const
{
    const File &file = fileAt(offset);
    const int fileStart = file.offset;
    const auto lineAt = [this](int place) {
        return std::upper_bound(m_lineStarts.cbegin(), m_lineStarts.cend(), place);
    };
    const auto line = lineAt(offset);
    const int lineStart = qMax(fileStart, *std::prev(line));
    return {file.input.path(), {int(line - lineAt(fileStart)) + 1, offset - lineStart + 1}};
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <tools/outputfile.h>

#include <tools/outputtext.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>
#include <unistd.h>

namespace
{

QString printableLines(const QString &text)
{
    QString result;
    int start = 0;
    for (int at = 0; at <= text.size(); ++at) {
        const bool isKept = at < text.size() && (text.at(at) == u'\n' || text.at(at) == u'\t');
        if (at < text.size() && !isKept)
            continue;
        result += printable(text.mid(start, at - start));
        if (isKept)
            result += text.at(at);
        start = at + 1;
    }
    return result;
}

} // namespace

bool writeFile(const QString &path, const QByteArray &content, QString *error)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        *error = path % QLatin1String(": not a regular file, so it is not replaced");
        return false;
    }
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
        return true;
    *error = path % QLatin1String(": ") % file.errorString();
    return false;
}

bool writeStandardOutput(const QString &text)
{
    const bool isTerminal = ::isatty(STDOUT_FILENO) == 1;
    const QByteArray bytes = (isTerminal ? printableLines(text) : text).toUtf8();
    QFile output;
    if (output.open(stdout, QIODevice::WriteOnly) && output.write(bytes) == bytes.size()
        && output.flush())
        return true;
    printError(QLatin1String("standard output: ") % output.errorString());
    return false;
}

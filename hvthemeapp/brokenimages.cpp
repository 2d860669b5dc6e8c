// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "brokenimages.h"

#include "tinteddrawing.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QLoggingCategory>

namespace HV
{
namespace
{

Q_LOGGING_CATEGORY(lcImages, "hvtheme.app")

struct State {
    QDateTime lastModified;
    qint64 size = -1;
    bool isImage = false;
};

// Why a file shows nothing; empty if it shows something.
QString faultOf(const QFileInfo &info)
{
    if (!info.exists())
        return QStringLiteral("there is none");
    if (!info.isFile()) // a pipe would be waited for
        return QStringLiteral("it is no file");
    QImageReader reader(info.filePath());
    const QSize large(64, 64);
    const QSize size = reader.size();
    if (size.width() > large.width() || size.height() > large.height())
        reader.setScaledSize(size.scaled(large, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return reader.read().isNull() ? reader.errorString() : QString();
}

} // namespace

bool isImage(const QString &file)
{
    static QHash<QString, State> states;
    const QString path = QDir::cleanPath(file); // a theme names its files from the program's folder
    const QFileInfo info(path);
    State &state = states[path];
    const qint64 size = info.exists() ? info.size() : 0;
    if (state.size == size && state.lastModified == info.lastModified())
        return state.isImage;
    const QString fault = faultOf(info);
    state = {info.lastModified(), size, fault.isNull()};
    if (!state.isImage)
        qCWarning(lcImages, "\"%ls\" is no image that can be shown: %ls", qUtf16Printable(path),
                  qUtf16Printable(fault));
    return state.isImage;
}

QHash<QString, QString> drawingsForBrokenImages(const QVariantMap &values)
{
    QHash<QString, QString> drawings;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const QString path = it->userType() == QMetaType::QString ? it->toString() : QString();
        if (!QFileInfo(path).isFile() || isDrawing(path) || isImage(path))
            continue;
        const QString drawing = builtInDrawings() + it.key() + QLatin1String(".hvicon");
        if (QFileInfo::exists(drawing))
            drawings.insert(it.key(), drawing);
    }
    return drawings;
}

} // namespace HV

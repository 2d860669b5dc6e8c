// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <sheet/sheetimage.h>

#include <analysis/theme/inputfile.h>

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeDatabase>

namespace
{

constexpr qint64 sizeLimit = qint64(4) * 1024 * 1024;

// Of four bytes each: 128 MB. Most formats are decoded whole even to be drawn small.
constexpr qint64 pixelLimit = qint64(32) * 1024 * 1024;

// Vector images have any size.
bool isTooLarge(const QImageReader &reader)
{
    const QSize size = reader.size();
    return !reader.format().startsWith("svg") && qint64(size.width()) * size.height() > pixelLimit;
}

QByteArray contentOf(const QString &path)
{
    QString error;
    const std::optional<InputFile> input = InputFile::read(path, sizeLimit, &error);
    return input ? input->content() : QByteArray();
}

} // namespace

QString dataUri(const QString &path)
{
    QByteArray content = contentOf(path);
    const QString type = QMimeDatabase().mimeTypeForFileNameAndData(path, content).name();
    if (!type.startsWith(QLatin1String("image/")))
        return {};
    // Browsers draw vector images without a plugin of Qt's, which may not be installed.
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    const bool isVector = type == QLatin1String("image/svg+xml") && content.contains("<svg");
    const QImageReader reader(&buffer);
    if (!isVector && (!reader.canRead() || isTooLarge(reader)))
        return {};
    return QLatin1String("data:") % type % QLatin1String(";base64,")
        % QString::fromLatin1(content.toBase64());
}

QString whyTooLarge(const QString &path)
{
    if (QFileInfo(path).isFile() && QFileInfo(path).size() > sizeLimit)
        return QStringLiteral("is larger than %1 MB").arg(sizeLimit / 1024 / 1024);
    QByteArray content = contentOf(path);
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    const QImageReader reader(&buffer);
    if (!isTooLarge(reader))
        return {};
    return QStringLiteral("has %1 x %2 pixels")
        .arg(reader.size().width())
        .arg(reader.size().height());
}

QImage fittedImage(const QString &path, QSize size, double scale)
{
    QByteArray content = contentOf(path);
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QSize own = reader.size();
    if (!own.isValid() || isTooLarge(reader))
        return {};
    const QSize wanted = own * scale;
    const bool isLarge = wanted.width() > size.width() || wanted.height() > size.height();
    QSize fitted = isLarge ? own.scaled(size, Qt::KeepAspectRatio) : wanted;
    // The groove of a slider is drawn wide and stretched where it is used; as a hairline nobody
    // would see it.
    fitted.setHeight(qMax(fitted.height(), qMin(int(8 * scale), size.height())));
    reader.setScaledSize(fitted);
    return reader.read();
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

// It lives in the library itself, which makes it a static one for Qt.
#define QT_STATICPLUGIN

#include "tinteddrawing.h"

#include <QFileDevice>
#include <QImageIOHandler>
#include <QImageIOPlugin>
#include <QVariant>

namespace HV
{

namespace
{

const QLatin1String denseSuffix("@2x.hvicon");

QString fileName(QIODevice *device)
{
    const auto *file = qobject_cast<QFileDevice *>(device);
    return file ? file->fileName() : QString();
}

/*! Reads a drawing as a picture of the size that it declares, or any other that is asked for. */
class DrawingHandler : public QImageIOHandler
{
public:
    bool canRead() const override
    {
        return !m_isRead && fileName(device()).endsWith(QLatin1String(".hvicon"));
    }

    bool read(QImage *image) override
    {
        if (!canRead())
            return false;
        m_isRead = true;
        *image = stretchedImage(fileName(device()), m_scaledSize.isValid() ? m_scaledSize : size());
        return true;
    }

    bool supportsOption(ImageOption option) const override
    {
        return option == Size || option == ScaledSize || option == ImageFormat;
    }

    QVariant option(ImageOption option) const override
    {
        switch (option) {
        case Size:
            return size();
        case ScaledSize:
            return m_scaledSize;
        case ImageFormat:
            return QImage::Format_ARGB32_Premultiplied;
        default:
            return {};
        }
    }

    void setOption(ImageOption option, const QVariant &value) override
    {
        if (option == ScaledSize)
            m_scaledSize = value.toSize().boundedTo({4096, 4096});
    }

private:
    QSize size() const
    {
        const QString path = fileName(device());
        return drawingSize(path) * (path.endsWith(denseSuffix) ? 2 : 1);
    }

    QSize m_scaledSize;
    bool m_isRead = false;
};

} // namespace

} // namespace HV

class HVDrawingImagePlugin : public QImageIOPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "hvicon.json")

public:
    Capabilities capabilities(QIODevice *device, const QByteArray &format) const override
    {
        const bool isDrawing = HV::fileName(device).endsWith(QLatin1String(".hvicon"));
        return format == "hvicon" || (format.isEmpty() && isDrawing) ? CanRead : Capabilities();
    }

    QImageIOHandler *create(QIODevice *device, const QByteArray &format) const override
    {
        auto *handler = new HV::DrawingHandler;
        handler->setDevice(device);
        handler->setFormat(format);
        return handler;
    }
};

#include "drawingplugin.moc"

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "gallerywindow.h"
#include "memory.h"
#include "options.h"
#include "qtoptions.h"
#include "screenshots.h"

#include <format/printabletext.h>

#include <QApplication>
#include <QFileInfo>
#include <QSettings>
#include <QStyleFactory>

#include <cstdio>

namespace
{

constexpr int usageError = 2;

void print(FILE *stream, const QString &text)
{
    std::fputs(qUtf8Printable(printableLines(text)), stream);
}

QtMessageHandler defaultHandler = nullptr;

// Messages quote file names and what files hold, which no terminal is to obey.
void printMessage(QtMsgType severity, const QMessageLogContext &context, const QString &text)
{
    defaultHandler(severity, context, printableLines(text));
}

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
        || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

QStringList argumentList(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

// Both have to be in the environment before the application object is made.
void prepareEnvironment(const Gallery::Options &options)
{
    const bool windowless = options.help || options.version || !options.error.isEmpty()
        || !options.screenshotFolder.isEmpty() || !hasDisplay();
    if (windowless && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!options.screenshotFolder.isEmpty())
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
}

int run(Gallery::Options options, const QString &defaultFolder, bool displayed)
{
    if (options.source.themesFolder.isEmpty() && !options.screenshotFolder.isEmpty())
        options.source.themesFolder = defaultFolder;
    if (!options.screenshotFolder.isEmpty())
        return static_cast<int>(Gallery::takeScreenshots(options));
    if (!displayed) {
        print(stderr,
              QStringLiteral("hvtheme-gallery: no display to open a window on. Draw into "
                             "files instead: --screenshot DIR\n"));
        return usageError;
    }
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("hvtheme"),
                       QStringLiteral("hvtheme-gallery"));
    Gallery::Memory(&settings).complete(&options);
    if (options.source.themesFolder.isEmpty())
        options.source.themesFolder = defaultFolder;
    Gallery::GalleryWindow window(options, &settings);
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    const QStringList arguments = argumentList(argc, argv);
    defaultHandler = qInstallMessageHandler(printMessage);
    const bool displayed = hasDisplay();
    const Gallery::Options prepared =
        Gallery::readOptions(Gallery::withoutOptionsOfQt(arguments), {});
    prepareEnvironment(prepared);

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // always so from there on
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("hvtheme-gallery"));
    QApplication::setApplicationVersion(QStringLiteral(HVTHEME_VERSION));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));

    const QString themes =
        QFileInfo(QApplication::applicationDirPath() + QStringLiteral("/../share/hvtheme/themes"))
            .absoluteFilePath();
    Gallery::Options options = Gallery::readOptions(QApplication::arguments(), {});
    if (options.error.isEmpty())
        options.error = prepared.error; // the environment is made for that reading
    if (!options.error.isEmpty()) {
        print(stderr, QStringLiteral("hvtheme-gallery: %1 See --help.\n").arg(options.error));
        return usageError;
    }
    if (options.help || options.version) {
        print(stdout,
              options.help ? Gallery::helpText()
                           : QStringLiteral("hvtheme-gallery " HVTHEME_VERSION "\n"));
        if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
            return 0;
        std::perror("hvtheme-gallery: standard output");
        return usageError;
    }
    return run(options, themes, displayed);
}

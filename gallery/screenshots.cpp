// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "screenshots.h"

#include "gallerywindow.h"
#include "pages.h"
#include "shownpart.h"

#include <maker/stagedfile.h>

#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QEventLoop>
#include <QImageWriter>
#include <QPainter>
#include <QWidget>

namespace Gallery
{

namespace
{

constexpr int gapBetweenThemes = 16;

QString fileName(const Options &options, const QString &page, const QString &theme)
{
    QString suffix;
    if (options.pane)
        suffix += QLatin1Char('-') + paneName(*options.pane);
    if (options.vision != ColorMath::Vision::Normal)
        suffix += QLatin1Char('-') + ColorMath::visionName(options.vision);
    if (options.scale > 1)
        suffix += QStringLiteral("@%1x").arg(options.scale);
    return options.screenshotFolder + QLatin1Char('/') + page + QLatin1Char('-') + theme + suffix
        + QLatin1String(".png");
}

Problem writePicture(const QImage &picture, const QString &path)
{
    QBuffer content;
    QImageWriter writer(&content, "png");
    writer.setCompression(100); // the smallest file
    QString error = path;
    if (!writer.write(picture))
        error += QLatin1String(": ") % writer.errorString();
    else if (Maker::writeFile(path, content.data(), {}, &error))
        return Problem::None;
    qCritical("%ls. Name a folder that can be written to with --screenshot.",
              qUtf16Printable(error));
    return Problem::Output;
}

QImage joined(const QVector<QImage> &pictures)
{
    const qreal ratio = pictures.first().devicePixelRatioF();
    const int gap = qRound(gapBetweenThemes * ratio);
    int width = -gap;
    int height = 0;
    for (const QImage &picture : pictures) {
        width += gap + picture.width();
        height = qMax(height, picture.height());
    }
    QImage canvas(width, height, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    int left = 0;
    for (QImage picture : pictures) {
        picture.setDevicePixelRatio(1);
        painter.drawImage(left, 0, picture);
        left += picture.width() + gap;
    }
    painter.end();
    canvas.setDevicePixelRatio(ratio);
    return canvas;
}

QStringList pagesOf(const Options &options)
{
    return options.pages.isEmpty() ? pageNames(options) : options.pages;
}

QStringList themesOf(const Options &options)
{
    if (!options.themes.isEmpty())
        return options.themes;
    const QStringList names = themeNames(options.source.themesFolder);
    return names.isEmpty() ? QStringList{QString()} : names; // to be told what is wrong with it
}

// What the user would do to have something to look at.
void usePane(GalleryWindow *window, Pane pane)
{
    window->showPane(pane);
    if (pane == Pane::Findings)
        window->leadToFirstFinding();
    if (pane != Pane::Inspector)
        return;
    QWidget *shown = nullptr;
    const auto widgets = window->page()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isSpecimen = specimenOf(widget) == widget;
        if (shown == nullptr && (isSpecimen || qobject_cast<QAbstractButton *>(widget) != nullptr))
            shown = widget;
    }
    if (shown != nullptr)
        window->inspect(shown);
}

QImage takeWindowPicture(GalleryWindow *window)
{
    QCoreApplication::sendPostedEvents(); // the new page is laid out
    QCoreApplication::processEvents();
    return window->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

bool isOfAllThemes(Problem problem)
{
    return problem == Problem::ThemesFolder || problem == Problem::Templates;
}

// Takes the pages in one theme after the other: restyling is what costs.
class Photographer
{
public:
    explicit Photographer(const Options &options)
        : m_options(options)
    {
    }

    Problem run()
    {
        const QStringList themes = themesOf(m_options);
        for (const QString &theme : themes) {
            if (isOfAllThemes(m_problem))
                break; // and has been told
            if (m_options.pane)
                takeWindows(theme);
            else
                takeTheme(theme);
        }
        if (m_options.join)
            writeJoined(themes);
        return m_problem;
    }

private:
    void note(Problem problem)
    {
        if (m_problem == Problem::None)
            m_problem = problem;
    }

    void takeTheme(const QString &theme)
    {
        ThemeSource source = m_options.source;
        source.themeName = theme;
        const Problem problem = m_applied.load(source);
        note(problem);
        if (problem != Problem::None)
            return;
        for (const QString &name : pagesOf(m_options)) {
            const bool form = name == QLatin1String(formPageName);
            const std::unique_ptr<QWidget> page(
                form ? createFormPage(m_options.formFile)
                     : createPage(name, *m_applied.theme(), m_applied.palette()));
            if (page == nullptr) {
                note(Problem::Form);
                continue;
            }
            const QImage picture = seen(takePicture(page.get(), form ? page->size() : QSize()));
            note(writePicture(picture, fileName(m_options, name, theme)));
            if (m_options.join)
                m_pictures[name].append(picture);
        }
    }

    void takeWindows(const QString &theme)
    {
        Options options = m_options;
        options.source.themeName = theme;
        options.pages = QStringList{pagesOf(m_options).constFirst()};
        options.themes.clear();
        const Problem problem = checkThemesFolder(options.source);
        note(problem);
        if (problem != Problem::None)
            return;
        GalleryWindow window(options);
        window.setAttribute(Qt::WA_DontShowOnScreen);
        window.show();
        QApplication::setActiveWindow(&window);
        QEventLoop loop; // the findings come last
        QObject::connect(&window, &GalleryWindow::checked, &loop, &QEventLoop::quit);
        loop.exec();
        note(window.problem());
        for (const QString &name : pagesOf(m_options)) {
            window.lead({name, {}, {}});
            usePane(&window, *m_options.pane);
            const QImage picture = takeWindowPicture(&window);
            note(writePicture(picture, fileName(m_options, name, theme)));
            if (m_options.join)
                m_pictures[name].append(picture);
        }
    }

    QImage seen(const QImage &picture) const
    {
        const qreal ratio = picture.devicePixelRatioF();
        QImage result =
            ColorMath::seenBy(m_options.vision, picture).convertToFormat(QImage::Format_RGB32);
        result.setDevicePixelRatio(ratio);
        return result;
    }

    void writeJoined(const QStringList &themes)
    {
        for (auto page = m_pictures.cbegin(); page != m_pictures.cend(); ++page)
            note(writePicture(joined(page.value()),
                              fileName(m_options, page.key(), themes.join(QLatin1Char('-')))));
    }

    const Options &m_options;
    AppliedTheme m_applied;
    QMap<QString, QVector<QImage>> m_pictures;
    Problem m_problem = Problem::None;
};

} // namespace

QImage takePicture(QWidget *page, const QSize &size)
{
    // Shown, but on no screen: only then are focus and layout what they are in a window.
    page->setAttribute(Qt::WA_DontShowOnScreen);
    page->setFocusPolicy(Qt::StrongFocus);
    page->ensurePolished();
    page->resize(size.isValid() // adjustSize() heeds the screen
                     ? size
                     : page->sizeHint().expandedTo(page->minimumSize()));
    page->show();
    QApplication::setActiveWindow(page);
    page->setFocus();
    QCoreApplication::sendPostedEvents();
    return page->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

Problem takeScreenshots(const Options &options)
{
    if (!QDir().mkpath(options.screenshotFolder)) {
        qCritical("The folder \"%ls\" cannot be made. Name another one with --screenshot.",
                  qUtf16Printable(options.screenshotFolder));
        return Problem::Output;
    }
    return Photographer(options).run();
}

} // namespace Gallery

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "pages.h"

#include "accessiblepage.h"
#include "applicationpage.h"
#include "makerpage.h"
#include "plainpage.h"
#include "specimenpage.h"
#include "specimentable.h"

#include <QFile>
#include <QFileInfo>
#include <QUiLoader>
#include <QVariant>
#include <QWidget>

namespace Gallery
{

const char formPageName[] = "form";
const char makerPageName[] = "make";

QVector<Page> pages()
{
    return {
        {"application", "Application"},
        {"plain", "Plain widgets"},
        {"dialogs", "Dialogs"},
        {"buttons", "Buttons"},
        {"image-buttons", "Image buttons"},
        {"inputs", "Inputs"},
        {"selection", "Selection"},
        {"sliders", "Sliders and scroll bars"},
        {"labels", "Labels and icons"},
        {"lists", "Lists and tables"},
        {"tabs", "Tabs"},
        {"calendar", "Calendar"},
        {"menus", "Menus and tool tips"},
        {"surfaces", "Surfaces"},
        {"colours", "Colours"},
        {QString::fromLatin1(makerPageName), "Make a theme"},
    };
}

// Only once polished have the specimens the sizes of the look, and none must ever be squeezed.
void settlePage(QWidget *page)
{
    page->ensurePolished();
    const auto children = page->findChildren<QWidget *>();
    for (QWidget *child : children)
        child->ensurePolished();
    if (page->minimumSize() != page->maximumSize()) // the application page has its own
        page->setMinimumSize(page->sizeHint());
}

bool showsThemeValues(const QString &name)
{
    return name == QLatin1String("colours");
}

Maker::Look lookOf(HV::Theme &theme)
{
    const QVariantMap &values = theme.values();
    if (values.value(QStringLiteral("HighContrast")).toBool())
        return Maker::Look::Contrast;
    return values.value(QStringLiteral("DarkSurfaces"), true).toBool() ? Maker::Look::Dark
                                                                       : Maker::Look::Light;
}

MakerPage *createMakerPage(ThemeWorkshop *workshop)
{
    auto *page = new MakerPage(workshop);
    page->setProperty("style", QStringLiteral("BG3"));
    makeAccessible(page);
    settlePage(page);
    return page;
}

QWidget *createPage(const QString &name, HV::Theme &theme, const PaletteEntries &palette)
{
    if (name == QLatin1String(makerPageName)) {
        auto *workshop = new ThemeWorkshop;
        workshop->beginWith(lookOf(theme));
        QWidget *page = createMakerPage(workshop);
        workshop->setParent(page);
        return page;
    }
    QWidget *page = nullptr;
    if (name == QLatin1String("application"))
        page = createApplicationPage();
    else if (name == QLatin1String("plain"))
        page = createPlainPage();
    else if (name == QLatin1String("dialogs"))
        page = createDialogsPage();
    else if (name == QLatin1String("colours"))
        page = createColorsPage(theme, palette);
    else if (!specimenSections(name).isEmpty())
        page = createSpecimenPage(name);
    else
        return nullptr;
    page->setProperty("style", QStringLiteral("BG3"));
    makeAccessible(page);
    settlePage(page);
    return page;
}

QWidget *createFormPage(const QString &path)
{
    QFile file(path);
    const QFileInfo info(path);
    const bool isSpecial = info.exists() && !info.isFile(); // a pipe would be waited for
    if (isSpecial || !file.open(QIODevice::ReadOnly)) {
        const QString reason =
            isSpecial ? QStringLiteral("not a regular file") : file.errorString();
        qCritical("The form \"%ls\" cannot be read: %ls. Name a .ui file that can with --ui.",
                  qUtf16Printable(path), qUtf16Printable(reason));
        return nullptr;
    }
    QUiLoader loader;
    QWidget *form = loader.load(&file);
    if (form == nullptr) {
        qCritical("The form \"%ls\" is none: %ls. Save it again with Qt Designer.",
                  qUtf16Printable(path), qUtf16Printable(loader.errorString()));
        return nullptr;
    }
    form->setWindowFlags(Qt::Widget);
    form->ensurePolished();
    const auto children = form->findChildren<QWidget *>();
    for (QWidget *child : children)
        child->ensurePolished(); // only then it is known what it needs
    const QSize own = form->testAttribute(Qt::WA_Resized) ? form->size() : form->sizeHint();
    form->resize(own.expandedTo(form->minimumSizeHint()).expandedTo(form->minimumSize()));
    return form;
}

} // namespace Gallery

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
//
// Usage: hvtheme-specimens THEMES FOLDER THEME...
//
// Draws every row of the gallery's table of specimens in each theme, in all its states, into FOLDER,
// and writes FOLDER/specimens.json: which picture shows what.

#include <gallery/appliedtheme.h>
#include <gallery/pages.h>
#include <gallery/screenshots.h>
#include <gallery/specimentable.h>
#include <gallery/specimenwidget.h>

#include <QApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>

#include <cstdio>

namespace
{

bool hasComplained = false;

// Nothing is to be said but what Qt remarks where there is no desktop.
void noteMessage(QtMsgType severity, const QMessageLogContext &, const QString &text)
{
    if (text == QLatin1String("This plugin does not support propagateSizeHints()")
        || text.startsWith(QLatin1String("QStandardPaths: ")))
        return;
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    hasComplained = hasComplained || severity != QtInfoMsg;
}

constexpr int margin = 12;
constexpr int statesPerLine = 3;

QWidget *createStrip(const Gallery::SpecimenRow &row)
{
    auto *strip = new QWidget;
    strip->setProperty("style", "BG2");
    strip->setAttribute(Qt::WA_StyledBackground);
    auto *layout = new QGridLayout(strip);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    for (int i = 0; i < row.specimens.size(); ++i) {
        const Gallery::Specimen &specimen = row.specimens.at(i);
        auto *cell = new QVBoxLayout;
        cell->addStretch();
        cell->addWidget(Gallery::createSpecimenWidget(specimen), 0, Qt::AlignLeft);
        if (row.specimens.size() > 1)
            cell->addWidget(new QLabel(specimen.stateCaption()), 0, Qt::AlignLeft);
        layout->addLayout(cell, i / statesPerLine, i % statesPerLine, Qt::AlignLeft);
    }
    return strip;
}

QJsonObject described(const Gallery::Page &page, const Gallery::SpecimenSection &section,
                      const Gallery::SpecimenRow &row, const QString &name)
{
    QJsonObject properties;
    QJsonArray states;
    for (const Gallery::Specimen &specimen : row.specimens) {
        for (const auto &property : specimen.parts.properties)
            properties.insert(property.first, property.second);
        states.append(specimen.stateCaption());
    }
    return {{"page", page.title},
            {"section", section.title},
            {"selector", row.baseSelector},
            {"class", row.specimens.first().parts.widgetClass},
            {"properties", properties},
            {"code", row.specimens.first().parts.propertyLines()},
            {"states", states},
            {"picture", name}};
}

bool draw(const Gallery::SpecimenRow &row, const QString &path)
{
    const std::unique_ptr<QWidget> strip(createStrip(row));
    if (Gallery::takePicture(strip.get()).save(path, "PNG"))
        return true;
    qCritical("\"%ls\" cannot be written", qUtf16Printable(path));
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(noteMessage);
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 4) {
        qCritical("usage: hvtheme-specimens THEMES FOLDER THEME...");
        return 2;
    }
    const QString &folder = arguments.at(2);
    const QStringList themes = arguments.mid(3);
    QJsonArray index;
    for (const QString &theme : themes) {
        Gallery::AppliedTheme applied;
        if (applied.load({arguments.at(1), theme, {}}) != Gallery::Problem::None)
            return 1;
        index = {};
        for (const Gallery::Page &page : Gallery::pages()) {
            for (const auto &section : Gallery::specimenSections(page.name)) {
                for (const auto &row : section.rows) {
                    const QString name = QStringLiteral("%1-%2").arg(page.name).arg(index.size());
                    if (!draw(row, QStringLiteral("%1/%2-%3.png").arg(folder, name, theme)))
                        return 1;
                    index.append(described(page, section, row, name));
                }
            }
        }
    }
    QFile file(folder + QLatin1String("/specimens.json"));
    if (!file.open(QIODevice::WriteOnly)) {
        qCritical("\"%ls\" cannot be written", qUtf16Printable(file.fileName()));
        return 1;
    }
    file.write(QJsonDocument(index).toJson());
    return hasComplained ? 1 : 0;
}

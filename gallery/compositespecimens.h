// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#ifndef GALLERY_COMPOSITESPECIMENS_H
#define GALLERY_COMPOSITESPECIMENS_H

class QWidget;

namespace Gallery
{

struct Specimen;

// Widgets with items or inner widgets, where a state belongs to one of these and not to the whole.
// Each returns a widget without parent that already is in the state of its specimen.

QWidget *createScrollArea(const Specimen &specimen);
QWidget *createListWidget(const Specimen &specimen);
QWidget *createTableWidget(const Specimen &specimen);
QWidget *createHeaderView(const Specimen &specimen);
QWidget *createTabBar(const Specimen &specimen);
QWidget *createCalendar(const Specimen &specimen);
QWidget *createMenu(const Specimen &specimen);

} // namespace Gallery

#endif

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "measuring.h"

#include <hvthemeapp/applicationtheme.h>
#include <inspector/inspectorwindow.h>
#include <inspector/usage.h>

#include <QtWidgets>

namespace
{

// Widgets of several classes in a grid; the caller owns the window.
QWidget *windowOf(int count)
{
    auto *window = new QWidget;
    auto *grid = new QGridLayout(window);
    for (int i = 0; i < count; ++i) {
        QWidget *widget = nullptr;
        switch (i % 4) {
        case 0:
            widget = new QPushButton(QStringLiteral("push"));
            break;
        case 1:
            widget = new QLabel(QStringLiteral("label"));
            break;
        case 2:
            widget = new QLineEdit(QStringLiteral("edit"));
            break;
        default:
            widget = new QCheckBox(QStringLiteral("check"));
            break;
        }
        grid->addWidget(widget, i / 40, i % 40);
    }
    window->setAttribute(Qt::WA_DontShowOnScreen);
    window->show();
    return window;
}

void opening(benchmark::State &state)
{
    const std::unique_ptr<QWidget> window(windowOf(int(state.range(0))));
    for (auto _ : state) {
        InspectorWindow inspector;
        inspector.setAttribute(Qt::WA_DontShowOnScreen);
        inspector.show();
        QCoreApplication::sendPostedEvents();
        require(inspector.pane() != nullptr, "no pane");
    }
}

void picking(benchmark::State &state)
{
    const std::unique_ptr<QWidget> window(windowOf(int(state.range(0))));
    InspectorWindow inspector;
    inspector.setAttribute(Qt::WA_DontShowOnScreen);
    inspector.show();
    const auto buttons = window->findChildren<QPushButton *>();
    int next = 0;
    for (auto _ : state) {
        QWidget *widget = buttons.at(next++ % buttons.size());
        inspector.pane()->pick(widget);
        require(inspector.pane()->inspection().widget == widget, "another widget");
        require(!inspector.pane()->inspection().rules.isEmpty(), "no rules");
    }
}

void findingUsers(benchmark::State &state)
{
    const std::unique_ptr<QWidget> window(windowOf(int(state.range(0))));
    const auto sheet = InspectedSheet::inForce();
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    const auto *button = window->findChild<QPushButton *>();
    const Inspection inspection = Inspection::of(
        const_cast<QPushButton *>(button), widgetParts(button).constFirst(), *sheet); // NOLINT
    const QSet<int> rule = sheet->declarationsOfRule(
        inspection.value(QStringLiteral("background-color"))->match.offset);
    for (auto _ : state)
        require(!usersOf(rule, widgets, *sheet).isEmpty(), "no users");
}

// From an edit to what is painted, with the inspector open, and beside it what a switch of themes takes.
void editing(benchmark::State &state)
{
    HV::ApplicationTheme *look = HV::ApplicationTheme::inForce();
    const std::unique_ptr<QWidget> window(windowOf(int(state.range(0))));
    window->setAttribute(Qt::WA_DontShowOnScreen, false);
    window->hide();
    window->show();
    InspectorWindow inspector;
    inspector.show();
    auto *button = window->findChild<QPushButton *>();
    inspector.pane()->pick(button);
    const InspectedValue *value =
        inspector.pane()->inspection().value(QStringLiteral("background-color"));
    require(value && !value->chains.isEmpty(), "no key");
    const auto sheet = InspectedSheet::inForce();
    const ChangeTarget target =
        changeTargets(*sheet->project(), sheet->project()->theme(look->name()),
                      value->chains.constFirst().token.key)
            .constLast(); // a palette entry, so that both themes have it
    QCoreApplication::processEvents();

    ProgramChanges *changes = ProgramChanges::ofProgram();
    double edits = 0;
    double switches = 0;
    bool isOdd = false;
    QElapsedTimer timer;
    for (auto _ : state) {
        isOdd = !isOdd;
        timer.start();
        require(changes->setValue(target.place.file, target.fileKey,
                                  isOdd ? QStringLiteral("#ff00aa") : QStringLiteral("#aa00ff")),
                "no change");
        QCoreApplication::processEvents(); // paints
        edits += double(timer.nsecsElapsed());
        state.PauseTiming();
        timer.start();
        require(look->setName(isOdd ? QStringLiteral("light") : QStringLiteral("dark")),
                "no theme");
        QCoreApplication::processEvents();
        switches += double(timer.nsecsElapsed());
        state.ResumeTiming();
    }
    state.counters["ofSwitch"] = edits / switches;
    changes->discard();
    look->setName(QStringLiteral("dark"));
}

} // namespace

BENCHMARK(opening)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(picking)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(editing)->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(findingUsers)->Arg(2000)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    HV::ApplicationTheme theme;
    require(theme.setName(QStringLiteral("dark")), "no theme");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

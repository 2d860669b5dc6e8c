// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "measuring.h"
#include "quietplatform.h"

#include <hvthemeapp/applicationtheme.h>
#include <inspector/inspectorwindow.h>
#include <inspector/usage.h>

#include <QtWidgets>

#include <algorithm>
#include <vector>

namespace
{

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Boxes with twenty widgets of several classes; the caller owns the window.
QWidget *windowOf(int count)
{
    constexpr int inBox = 20;
    constexpr int inRow = 10; // of boxes
    auto *window = new QWidget;
    auto *boxes = new QGridLayout(window);
    QGridLayout *grid = nullptr;
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
        if (i % inBox == 0) {
            auto *box = new QGroupBox(QStringLiteral("box"));
            grid = new QGridLayout(box);
            boxes->addWidget(box, i / inBox / inRow, i / inBox % inRow);
        }
        grid->addWidget(widget, i % inBox / 4, i % 4);
    }
    window->show();
    QCoreApplication::processEvents();
    return window;
}

void opening(benchmark::State &state)
{
    const std::unique_ptr<QWidget> window(windowOf(int(state.range(0))));
    while (state.KeepRunning()) {
        InspectorWindow inspector;
        inspector.show();
        QCoreApplication::processEvents();
        require(inspector.pane() != nullptr, "no pane");
    }
}

void picking(benchmark::State &state)
{
    const std::unique_ptr<QWidget> window(windowOf(int(state.range(0))));
    InspectorWindow inspector;
    inspector.show();
    QCoreApplication::processEvents();
    const auto buttons = window->findChildren<QPushButton *>();
    int next = 0;
    while (state.KeepRunning()) {
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
    while (state.KeepRunning())
        require(!usersOf(rule, widgets, *sheet).isEmpty(), "no users");
}

// From a change to what is painted, with the inspector open; the medians of both by processor time.
void editing(benchmark::State &state)
{
    HV::ApplicationTheme *look = HV::ApplicationTheme::inForce();
    const std::unique_ptr<QWidget> window(windowOf(int(state.range(0))));
    InspectorWindow inspector;
    inspector.show();
    inspector.pane()->pick(window->findChild<QPushButton *>());
    const InspectedValue *value =
        inspector.pane()->inspection().value(QStringLiteral("background-color"));
    require(value && !value->chains.isEmpty(), "no key");
    const auto sheet = InspectedSheet::inForce();
    const ChangeTarget target =
        changeTargets(*sheet->project(), sheet->project()->theme(look->name()),
                      value->chains.constFirst().token.key)
            .constLast(); // a palette entry, so that both themes have it
    ProgramChanges *changes = ProgramChanges::ofProgram();
    const auto edit = [&](const QString &color) {
        require(changes->setValue(target.place.file, target.fileKey, color), "no change");
        QCoreApplication::processEvents(); // paints
    };
    const auto change = [&](const QString &theme) {
        require(look->setName(theme), "no theme");
        QCoreApplication::processEvents();
    };
    edit(QStringLiteral("#aa00ff"));
    std::vector<double> edits;
    std::vector<double> switches;
    while (state.KeepRunning()) {
        for (const char *color : {"#ff00aa", "#aa00ff"})
            edits.push_back(processorSeconds([&] { edit(QLatin1String(color)); }));
        for (const char *theme : {"light", "dark"})
            switches.push_back(processorSeconds([&] { change(QLatin1String(theme)); }));
    }
    state.counters["edit_ms"] = 1e3 * median(edits);
    state.counters["switch_ms"] = 1e3 * median(switches);
    state.counters["edit_to_switch"] = median(edits) / median(switches);
    changes->discard();
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    for (const int widgets : {200, 500, 1000, 2000, 5000})
        benchmark->Arg(widgets);
}

} // namespace

BENCHMARK(opening)->Apply(sizes)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(picking)->Apply(sizes)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(editing)->Apply(sizes)->Unit(benchmark::kMillisecond);
BENCHMARK(findingUsers)->Arg(2000)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    const QuietPlatform quiet;
    QApplication application(argc, argv);
    HV::ApplicationTheme theme;
    require(theme.setName(QStringLiteral("dark")), "no theme");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

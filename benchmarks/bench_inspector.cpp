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

// What is edited, named by the widgets that are concerned.
struct Edit {
    const char *key;
    const char *values[2];
};
constexpr Edit ofButtons{"Colors/AssistButtonBackgroundNormal", {"#ff00aa", "#aa00ff"}};
constexpr Edit ofFields{"Colors/EditBorderColor", {"#ff00aa", "#aa00ff"}};
constexpr Edit ofHoveredOnes{"Colors/AccentHoverColor", {"#ff00aa", "#aa00ff"}};
constexpr Edit ofNobody{"Palettes/Green_1", {"#ff00aa", "#aa00ff"}};
constexpr Edit ofText{"Integers/FontSize_M", {"13", "15"}};
constexpr Edit ofPalette{"Colors/BackgroundColor_2", {"#202428", "#282420"}};

// The file of the look that has the key, else the default file.
QString fileWith(const HV::ApplicationTheme &look, const QString &key)
{
    const QString own = look.folder() + QLatin1Char('/') + look.name() + QLatin1String(".theme");
    return QSettings(own, QSettings::IniFormat).contains(key)
        ? own
        : look.folder() + QLatin1String("/default.theme");
}

// From a change to what is painted, with the inspector open; the medians of both by processor time.
void editing(benchmark::State &state, const Edit &edit)
{
    HV::ApplicationTheme *look = HV::ApplicationTheme::inForce();
    const std::unique_ptr<QWidget> window(windowOf(int(state.range(0))));
    InspectorWindow inspector;
    inspector.show();
    inspector.pane()->pick(window->findChild<QPushButton *>());
    QCoreApplication::processEvents();
    const QString key = QLatin1String(edit.key);
    const QString file = fileWith(*look, key);
    ProgramChanges *changes = ProgramChanges::ofProgram();
    const auto change = [&](const char *value) {
        require(changes->setValue(file, key, QLatin1String(value)), "no change");
        QCoreApplication::processEvents(); // paints
    };
    const auto choose = [&](const char *theme) {
        require(look->setName(QLatin1String(theme)), "no theme");
        QCoreApplication::processEvents();
    };
    change(edit.values[1]);
    std::vector<double> edits;
    std::vector<double> switches;
    while (state.KeepRunning()) {
        for (const char *value : edit.values)
            edits.push_back(processorSeconds([&] { change(value); }));
        for (const char *theme : {"light", "dark"})
            switches.push_back(processorSeconds([&] { choose(theme); }));
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
BENCHMARK_CAPTURE(editing, buttons, ofButtons)->Apply(sizes)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(editing, fields, ofFields)->Apply(sizes)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(editing, hovered, ofHoveredOnes)->Apply(sizes)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(editing, nobody, ofNobody)->Apply(sizes)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(editing, text, ofText)->Apply(sizes)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(editing, palette, ofPalette)->Apply(sizes)->Unit(benchmark::kMillisecond);
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

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "../tests/support/samplewindows.h"
#include "../tests/support/temporaryfolder.h"
#include "measuring.h"

#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>
#include <hvthemeapp/applicationtheme.h>
#include <hvthemeapp/themedicon.h>

#include <memory>

namespace
{

// Twenty rules of an application's own, in tokens of its own prefix.
QString ownTemplates()
{
    static const TemporaryFolder folder;
    if (QDir(folder.path()).isEmpty()) {
        QByteArray text;
        for (int i = 0; i < 20; ++i)
            text += "QPushButton[own=r" + QByteArray::number(i)
                + "]:hover { color: own.theme.color.Color_W100; padding: 3px; }\n";
        folder.write("own.qss", text);
    }
    return folder.path();
}

// A window as in the benchmark of the core, with an icon of the theme on every button.
std::unique_ptr<QWidget> shownWindow(int widgets, int depth)
{
    std::unique_ptr<QWidget> window(nestedWindow(widgets, depth));
    const QList<QPushButton *> buttons = window->findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        button->setIcon(HV::themedIcon(QStringLiteral("project_save")));
    polish(window.get());
    window->grab();
    return window;
}

void withoutLook()
{
    qApp->setStyleSheet(QString());
    QApplication::setPalette(QApplication::style()->standardPalette());
}

// The 27 templates of the core in the colours of the same theme, as a first style sheet.
double firstOfCoreSeconds(HV::ApplicationTheme &theme)
{
    return processorSeconds([&] {
        qApp->setStyleSheet(HV::findStyleSheet(theme.theme(), QStringLiteral(":/stylesheet"),
                                               QStringLiteral("global")));
    });
}

void switching(benchmark::State &state)
{
    const int widgets = int(state.range(0));
    const int depth = int(state.range(1));
    HV::ApplicationTheme theme;
    require(theme.addTemplates(ownTemplates(), "own"), "templates");
    require(theme.setName("dark"), "theme"); // files are known to Qt from here on
    while (state.KeepRunning()) {
        withoutLook();
        double core = 0;
        {
            const auto window = shownWindow(widgets, depth);
            core = firstOfCoreSeconds(theme);
        }
        withoutLook();
        const auto window = shownWindow(widgets, depth);
        const double first = processorSeconds([&] { theme.setName("light"); });
        const QColor light = window->palette().color(QPalette::Window);
        window->grab();
        const double switched = processorSeconds([&] { theme.setName("dark"); });
        require(window->palette().color(QPalette::Window) != light, "palette");
        require(qApp->styleSheet().contains("[own=r19]"), "own templates");
        state.SetIterationTime(switched);
        state.counters["first_ms"] = 1000 * first;
        state.counters["ratio"] = switched / first;
        state.counters["first_to_core"] = first / core;
    }
    withoutLook();
}

// Once per process, since the first one reads what later ones find.
void setUp(benchmark::State &state)
{
    while (state.KeepRunning()) {
        const double empty = processorSeconds([] { qApp->setStyleSheet(QStringLiteral(";")); });
        qApp->setStyleSheet(QString());
        const double look = processorSeconds([] {
            static HV::ApplicationTheme theme;
            require(theme.followDesktop(), "theme");
        });
        state.SetIterationTime(look);
        state.counters["more_ms"] = 1000 * (look - empty);
    }
    withoutLook();
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RegisterBenchmark("application/set-up", setUp)
        ->UseManualTime()
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
    const std::pair<int, int> sizes[] = {{200, 0},  {200, 4},  {200, 16}, {200, 32}, {500, 0},
                                         {500, 16}, {500, 32}, {5000, 0}, {5000, 32}};
    for (const auto &[widgets, depth] : sizes)
        benchmark::RegisterBenchmark("application", switching)
            ->Args({widgets, depth})
            ->UseManualTime()
            ->Iterations(1)
            ->Repetitions(widgets > 500 ? 3 : 15)
            ->ReportAggregatesOnly()
            ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "../tests/support/restyledapplication.h"
#include "../tests/support/samplewindows.h"
#include "measuring.h"

#include <QSettings>

#include <malloc.h>
#include <memory>

namespace
{

RestyledApplication &fixture()
{
    static RestyledApplication made;
    return made;
}

// One window gets its first style sheet, switches to another, and has that replaced by Qt alone.
void restyle(benchmark::State &state, bool isReplacedByQt)
{
    while (state.KeepRunning()) {
        qApp->setStyleSheet(QString());
        const std::unique_ptr<QWidget> window(
            nestedWindow(int(state.range(0)), int(state.range(1))));
        polish(window.get());
        window->grab();
        const double first = processorSeconds([] { fixture().apply(0); });
        window->grab();
        const double switched = processorSeconds([] { fixture().apply(1); });
        require(qApp->styleSheet() == fixture().styleSheet(1), "style sheet");
        window->grab();
        state.SetIterationTime(switched);
        state.counters["first_ms"] = 1000 * first;
        state.counters["ratio"] = switched / first;
        if (isReplacedByQt) {
            const double replaced =
                processorSeconds([] { qApp->setStyleSheet(fixture().styleSheet(0)); });
            state.counters["replaced_ratio"] = replaced / first;
        }
        qApp->setStyleSheet(QString());
    }
}

// All of a switch but the restyling. Qt parses a theme file again only if it changed.
void rest(benchmark::State &state, bool isNewFile)
{
    const QString wanted = fixture().styleSheet(1);
    while (state.KeepRunning()) {
        TemporaryFolder folder;
        folder.write("default.theme", completeTheme(1));
        const QString path = isNewFile ? folder.path() : fixture().folder(1);
        QString styleSheet;
        state.SetIterationTime(processorSeconds([&] {
            HV::changeTheme(&fixture().theme(), "default", path);
            styleSheet =
                HV::findStyleSheet(&fixture().theme(), QStringLiteral(":/stylesheet"), "global");
        }));
        require(styleSheet == wanted, "style sheet");
    }
}

void settingsOfRest(benchmark::State &state)
{
    while (state.KeepRunning()) {
        TemporaryFolder folder;
        const QString path = folder.write("default.theme", completeTheme(1));
        int count = 0;
        state.SetIterationTime(processorSeconds([&] {
            QSettings settings(path, QSettings::IniFormat);
            const QStringList keys = settings.allKeys();
            for (const QString &key : keys)
                count += settings.value(key).isValid();
        }));
        require(count > 190, "number of keys");
    }
}

// What the process has allocated after the 100th and after the last switch, in kB.
void manySwitches(benchmark::State &state)
{
    QPushButton button("push");
    polish(&button);
    const int last = int(state.range(0));
    while (state.KeepRunning()) {
        for (int i = 1; i <= last; ++i) {
            fixture().apply(i % 2);
            QCoreApplication::sendPostedEvents();
            if (i == 100)
                state.counters["kB_at_100"] = double(mallinfo2().uordblks) / 1024;
        }
        state.counters["kB_at_end"] = double(mallinfo2().uordblks) / 1024;
    }
    qApp->setStyleSheet(QString());
}

void registerRestyling(int widgets, int depth, bool isReplacedByQt)
{
    benchmark::RegisterBenchmark("restyle",
                                 [=](benchmark::State &state) { restyle(state, isReplacedByQt); })
        ->Args({widgets, depth})
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(widgets > 500 ? 3 : 15)
        ->ReportAggregatesOnly()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    for (int depth : {0, 1, 4, 8, 16, 32})
        registerRestyling(200, depth, true);
    for (int depth : {0, 4, 16, 32})
        registerRestyling(500, depth, false);
    for (int depth : {0, 32})
        registerRestyling(5000, depth, false);
    const auto cold = [](benchmark::State &state) { rest(state, true); };
    const auto warm = [](benchmark::State &state) { rest(state, false); };
    const std::pair<const char *, std::function<void(benchmark::State &)>> parts[] = {
        {"rest/new-file", cold}, {"rest/known-file", warm}, {"rest/settings", settingsOfRest}};
    for (const auto &[name, call] : parts)
        benchmark::RegisterBenchmark(name, call)
            ->UseManualTime()
            ->Iterations(1)
            ->Repetitions(51)
            ->ReportAggregatesOnly()
            ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("memory/switches", manySwitches)
        ->Arg(10000)
        ->Iterations(1)
        ->Unit(benchmark::kSecond);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

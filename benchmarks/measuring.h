// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef HVTHEME_BENCHMARKS_MEASURING_H
#define HVTHEME_BENCHMARKS_MEASURING_H

#include <QByteArray>
#include <QFile>

#include <benchmark/benchmark.h>
#include <ctime>

/*! Processor seconds that the call takes: other processes disturb them less than the clock. */
template<typename Call>
double processorSeconds(Call call)
{
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) + 1e-9 * double(time.tv_nsec);
    };
    const double start = now();
    call();
    return now() - start;
}

/*! A figure in kB of what Linux tells about this process, for example "VmRSS". */
inline double statusKilobytes(const QByteArray &name)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = file.readAll();
    const auto start = text.indexOf(QByteArray(name + ':')) + name.size() + 1;
    return text.mid(start, text.indexOf(" kB", start) - start).trimmed().toDouble();
}

/*! Lets "VmHWM", the peak of the memory in use, start anew. */
inline void resetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

/*! Stops the program: a figure of a wrong result is none. */
inline void require(bool condition, const char *what)
{
    if (!condition)
        qFatal("wrong result: %s", what);
}

#endif // HVTHEME_BENCHMARKS_MEASURING_H

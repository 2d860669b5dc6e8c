// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#ifndef ANALYSIS_RULES_FINDING_H
#define ANALYSIS_RULES_FINDING_H

#include <format/place.h>

#include <QString>

/*! \brief How much a finding matters; greater is worse. */
enum class Severity {
    Info,
    Warning,
    Error,
};

/*! \brief Returns "info", "warning" or "error". */
QString severityName(Severity severity);

/*! \brief One thing that is wrong, and where. */
struct Finding {
    Place place;
    Severity severity = Severity::Error;
    QString message; //!< one line, without a full stop
    QString rule;
};

#endif

// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT
#include "specimentable.h"

namespace Gallery
{

QString EngineNote::text() const
{
    switch (kind) {
    case Kind::Ignored:
        return QStringLiteral("Qt ignores this rule: ") + reason;
    case Kind::PartlyIgnored:
        return QStringLiteral("Qt ignores a part of this rule: ") + reason;
    case Kind::Hidden:
        break;
    }
    return QStringLiteral("This rule changes nothing: ") + reason;
}

QVector<EngineNote> engineNotes()
{
    return {};
}

} // namespace Gallery

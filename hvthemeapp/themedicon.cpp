// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include "themedicon.h"

#include "iconengine.h"
#include "iconplugins.h"

namespace HV
{

QIcon themedIcon(const QString &name)
{
    registerIcons();
    return QIcon(new IconEngine(name));
}

} // namespace HV

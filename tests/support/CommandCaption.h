// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>

#include "platform/ui/CommandBars.h"

/// What a command is called wherever it is shown.
inline QString captionOf(const ui::Command* command) {
    return command->parent()->parent()->findChild<QAction*>(command->name())->text();
}

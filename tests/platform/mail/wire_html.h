// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

namespace wire {

/// Reads HTML as a browser does and reports every <meta> that declares another encoding than UTF-8.
void checkDeclarations(const QByteArray& html, QStringList& complaints);

}  // namespace wire

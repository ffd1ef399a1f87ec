// SPDX-License-Identifier: GPL-3.0-or-later
// Notices of what the database engine did to files beside a database, for the user, kept until they can be
// shown.
#pragma once

#include <QStringList>

namespace ado {

/// Keeps these sentences from now on; before, they go to the standard error stream. To be called once, at the
/// start.
void keepNotices();
/// The sentences since the last call, in the language in use.
QStringList takeNotices();

}  // namespace ado

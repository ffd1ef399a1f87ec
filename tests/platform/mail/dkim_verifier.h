// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace compose {

/// What libopendkim says of the signature of a message: "good", or why not. `text` is the DNS's answer
/// for `name`; there is none for any other name.
QByteArray openDkimVerdict(const QByteArray& message, const QByteArray& name, const QByteArray& text);

}  // namespace compose

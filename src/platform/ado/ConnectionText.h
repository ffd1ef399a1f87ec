// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/Status.h"

namespace ado {

/// The start of a connection text; the path follows.
inline const QString connectionPrefix = QStringLiteral("Provider = Microsoft.Jet.OLEDB.4.0; Data Source = ");

/// What a connection text names: `Provider = Microsoft.Jet.OLEDB.4.0; Data Source = <path>`, optionally with
/// `Jet OLEDB:Database Password`.
struct ConnectionText {
    QString path;  ///< literally as written, relative paths included
    QString password;

    /// A path that is not quoted may have semicolons: it ends only before one that a key of such texts
    /// follows, or nothing. Keys are compared without case; blanks around keys, equal signs and values do not
    /// count; a value may be in single or double quotes, doubled inside; empty parts (";;", a closing ";")
    /// are skipped; the last of two equal keys counts. User name, mode and the like are accepted and
    /// ignored. Fails with SyntaxError for what is no list of "key = value", NotSupported for another
    /// provider, FileNotFound when no data source is named.
    static Result<ConnectionText> parse(const QString& text);
};

}  // namespace ado

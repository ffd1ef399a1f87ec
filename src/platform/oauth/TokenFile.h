// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/oauth/Token.h"

namespace oauth {

/// Where the token of a user is kept: `folder`/<provider>/<user, percent-encoded>.json. See
/// docs/formats/oauth.md.
QString tokenPath(const QString& folder, const QString& provider, const QString& user);

/// FileNotFound where there is none, with a text that says what to do; SyntaxError for a file that contains
/// no token.
Result<Token> readToken(const QString& path);

/// Makes the folders that are missing and replaces the file.
Status writeToken(const QString& folder, const QString& path, const Token& token);

}  // namespace oauth

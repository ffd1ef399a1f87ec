// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace text {

/// Loads the program's own texts (platform/text/Words.h) and those of the toolkit from the compiled-in
/// translations of a language: "it", "en", "es", "fr" or "de". Any other one means "it", the language of
/// the sources. Existing windows keep their texts. Precondition: the application object exists.
void setLanguage(const QString& language);

}  // namespace text

#pragma once

#include <QString>

namespace text {

/// Has the program's own texts (platform/text/Words.h) and those of the toolkit read from the compiled-in
/// translations of a language: "it", "en", "es", "fr" or "de". Any other one counts as "it", the language of
/// the sources. A window that exists keeps its texts. Wants the application object.
void setLanguage(const QString& language);

}  // namespace text

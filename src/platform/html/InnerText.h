// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gumbo.h>

#include <QByteArray>

/// The visible text of the document's body (UTF-8, lines ended by CR LF), by the rules for innerText of the
/// HTML standard (3.2.7) with the usual layout of each element, which the inline style may change (`display`,
/// `visibility`, `white-space`). Style sheets are not applied, nor is `text-transform`: placeholders in the
/// text must stay unchanged. Empty when the document has no body (frame sets).
QByteArray visibleText(const GumboNode& document);

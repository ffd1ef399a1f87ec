// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gumbo.h>

#include <QByteArray>

/// The document as HTML text (UTF-8), by the serialisation algorithm of the HTML standard (13.3), with
/// scripting off. Beyond the standard the public and system identifiers of the doctype are kept, since mail
/// readers choose their layout rules by them, and a line feed that opens a preformatted block is doubled, so
/// that reading the text again results in the same tree.
QByteArray normalForm(const GumboNode& document);

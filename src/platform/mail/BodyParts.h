// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <vector>

#include "platform/mail/MessageText.h"

namespace mail {

/// The encoded pieces of one message's content.
struct Body {
    QByteArray text;                              ///< UTF-8, any line ends
    QByteArray html;                              ///< UTF-8, any line ends
    std::vector<SharedLines> images;              ///< complete parts that html refers to; only with html
    const std::vector<SharedLines>* attachments;  ///< complete parts; owned by the caller
};

/// Appends the content headers, the empty line and the content: multipart/mixed around multipart/related
/// around multipart/alternative, each only where it is needed (RFC 2046 5.1, RFC 2387). The boundaries are
/// made from `word`; they contain "=_", which neither quoted-printable nor base64 can produce, so none of
/// them occurs in the content.
void appendBody(MessageText& text, const Body& body, const QByteArray& word);

}  // namespace mail

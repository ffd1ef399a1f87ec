#pragma once

#include <QByteArray>
#include <vector>

#include "platform/mail/MessageText.h"

namespace mail {

/// The ready pieces of one message's content.
struct Body {
    QByteArray text;                              ///< UTF-8, any line ends
    QByteArray html;                              ///< UTF-8, any line ends
    std::vector<SharedLines> images;              ///< complete parts that html refers to; only with html
    const std::vector<SharedLines>* attachments;  ///< complete parts; owned by the caller
};

/// Appends the content headers, the empty line and the content: attachments around images around the choice
/// of text and HTML, each layer only where it has something to hold (RFC 2046 5.1, RFC 2387). `word` makes
/// the boundaries; they hold "=_", which neither quoted-printable nor base64 can produce, so none of them
/// occurs in the content.
void appendBody(MessageText& text, const Body& body, const QByteArray& word);

}  // namespace mail

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/mail/AddrSpec.h"

namespace mail {

/// Where the recipients of a run can unsubscribe: the first link of its template marked rel="unsubscribe"
/// (RFC 2369). Only a link with a fixed target is returned, http or https with a host or a mail link with an
/// address, so that a recipient's values cannot change where it leads. Empty without one.
QString markedUnsubscribe(const QString& templateHtml);

/// Whether that link may be followed by a mail program without the page being shown: https, and marked
/// rel="unsubscribe one-click".
bool markedOneClick(const QString& templateHtml);

/// The headers that say where to unsubscribe, with their line ends. List-Unsubscribe names the link, or a
/// mail to the sender where the link is empty or cannot be used there. With `oneClick` both are in it, and
/// List-Unsubscribe-Post (RFC 8058) comes with it, unless the link is no https or a placeholder was left in
/// it. One click needs a signature over both headers: ask DkimSigner first.
QByteArray unsubscribeHeaders(const QString& link, bool oneClick, const Mailbox& sender);

}  // namespace mail

#pragma once

#include <QByteArray>
#include <QString>

#include "platform/mail/AddrSpec.h"

namespace mail {

/// Where the recipients of a run can sign off: the first link of its template marked rel="unsubscribe" (RFC
/// 2369). Only a link that names its own goal is given, http or https with a host or a mail link with an
/// address, so that nothing a recipient's values add behind it can lead elsewhere. Empty without one.
QString markedUnsubscribe(const QString& templateHtml);

/// The link as it may stand in List-Unsubscribe, without angle brackets. Where it is empty or cannot stand
/// there, a mail to the sender takes its place.
QByteArray unsubscribeLink(const QString& link, const Mailbox& sender);

}  // namespace mail

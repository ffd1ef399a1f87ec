#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include "platform/mail/AddrSpec.h"
#include "platform/mail/CarriedFile.h"
#include "platform/mail/MessageText.h"

namespace mail {

/// One file that goes with every message of a run.
struct Attachment {
    QString path;
    QString name;  ///< as the recipient sees it; may hold any character
};

/// The values of one message to one recipient, as the user or the database gave them: nothing needs to be
/// checked or cleaned beforehand. Texts may hold any character and any kind of line end.
struct MessageData {
    QString fromName;
    QString fromAddress;
    QString toName;
    QString toAddress;
    QString subject;
    QString bodyHtml;      ///< personalised; empty: the message has no HTML part
    QString bodyText;      ///< personalised visible text of bodyHtml; see TextPart for what is made of it
    QString templateHtml;  ///< the body before personalisation: only local images that it names are embedded
    QString unsubscribeLink;  ///< from markedUnsubscribe() of the template; empty: a mail to the sender
    int priority = 3;         ///< 1 high, 5 low, anything else normal
    QVector<Attachment> attachments;
    CarriedFiles carried;  ///< of attachments and images, those that may be read
    QString dkimFolder;    ///< see DkimSigner; empty: nothing is signed
};

/// A message ready for the wire.
struct ComposedMessage {
    Mailbox from;
    Mailbox to;
    MessageText text;            ///< lines ended by CR LF, the last one too; dots are not yet stuffed
    QByteArray messageId;        ///< with its angle brackets, as in the header
    Status signing;              ///< a failure: why a message that was to be signed is not
    bool needsSmtputf8 = false;  ///< a local part is not ASCII; otherwise all of `text` is 7-bit
};

}  // namespace mail

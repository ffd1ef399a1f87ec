// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of a message before and after its composition.
#pragma once

#include <initializer_list>
#include <QByteArray>
#include <QString>
#include <QVector>

#include "platform/mail/AddrSpec.h"
#include "platform/mail/CarriedFile.h"
#include "platform/mail/MessageText.h"
#include "platform/mail/RecipientNumber.h"

namespace mail {

/// One file attached to every message of a run.
struct Attachment {
    QString path;
    QString name;  ///< as the recipient sees it; may contain any character
};

/// The attachments of each message.
class AttachmentList {
  public:
    AttachmentList() = default;
    AttachmentList(std::initializer_list<Attachment> items) : m_items(items) {}
    void Clear() { m_items.clear(); }
    /// `name` is what the recipient sees. The file is read when the message is composed.
    void Add(const QString& path, const QString& name) { m_items.append({path, name}); }
    const QVector<Attachment>& items() const { return m_items; }

  private:
    QVector<Attachment> m_items;
};

/// The values of one message to one recipient, as the user or the database gave them: no checks or cleaning
/// are needed beforehand. Texts may contain any character and any kind of line end.
///
/// The delivery control has these fields itself, and passes them to the composer unchanged.
struct MessageData {
    QString BodyText;      ///< personalised visible text of BodyHtml; see TextPart for what is made of it
    QString BodyHtml;      ///< personalised; empty: the message has no HTML part
    QString TemplateHtml;  ///< the body before personalisation: only local images that it names are embedded
    QString UnsubscribeLink;  ///< from markedUnsubscribe() of the template; empty: a mail to the sender
    qint32 Priority = 3;      ///< 1 high, 5 low, anything else normal
    QString Subject;
    AssignedText ToAddress;  ///< see parseAddrSpec
    QString ToName;
    QString FromName;
    QString FromAddress;  ///< see parseAddrSpec
    AttachmentList Attachments;
    CarriedFiles FilesToCarry;  ///< those that may be read; a message that needs another fails
    QString DkimFolder;         ///< see DkimSigner; empty: nothing is signed
};

/// A composed message, ready to be sent.
struct ComposedMessage {
    Mailbox from;
    Mailbox to;
    MessageText text;            ///< lines ended by CR LF, the last one too; dots are not yet stuffed
    QByteArray messageId;        ///< with its angle brackets, as in the header
    Status signing;              ///< a failure: why a message that was to be signed is not
    bool needsSmtputf8 = false;  ///< a local part is not ASCII; otherwise all of `text` is 7-bit
};

}  // namespace mail

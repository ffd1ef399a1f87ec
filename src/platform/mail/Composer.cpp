// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/Composer.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "platform/mail/Attachments.h"
#include "platform/mail/BodyParts.h"
#include "platform/mail/DkimSigner.h"
#include "platform/mail/HeaderText.h"
#include "platform/mail/HtmlReferences.h"
#include "platform/mail/Identity.h"
#include "platform/mail/ListId.h"
#include "platform/mail/LocalImages.h"
#include "platform/mail/TextPart.h"
#include "platform/mail/Unsubscribe.h"
#include "platform/mail/WebAddress.h"
#include "platform/system/Clock.h"
#include "platform/text/SameText.h"

namespace mail {
namespace {

// Octets that header and boundaries take as a rule
constexpr qsizetype headerRoom = 2048;
// Octets that quoted-printable makes room for at one of the text, soft line breaks included
constexpr qsizetype mostEncoded = 4;

void appendPriority(QByteArray& out, int priority) {
    if (priority == 1) {
        out += "X-Priority: 1 (Highest)\r\nPriority: urgent\r\nImportance: high\r\n";
    } else if (priority == 5) {
        out += "X-Priority: 5 (Lowest)\r\nPriority: non-urgent\r\nImportance: low\r\n";
    }
}

struct Change {
    const HtmlReferences::Place* place;
    QByteArray text;
};

QByteArray changed(const QByteArray& html, std::vector<Change> changes) {
    if (changes.empty()) return html;
    std::sort(changes.begin(), changes.end(),
              [](const Change& a, const Change& b) { return a.place->from < b.place->from; });
    QByteArray out;
    out.reserve(html.size() + static_cast<qsizetype>(changes.size()) * 64);
    qsizetype from = 0;
    for (const Change& change : changes) {
        out.append(html.constData() + from, change.place->from - from);
        out += change.text;
        from = change.place->from + change.place->length;
    }
    return out.append(html.constData() + from, html.size() - from);
}

// Adapts the declared encoding and web addresses, and makes the embedded images refer to parts of the
// message
void adaptHtml(Body& body, const HtmlReferences& references, const LocalImages& images) {
    std::vector<Change> changes;
    std::vector<bool> embedded(images.images().size());
    for (const auto& place : references.charsets)
        changes.push_back({&place, "utf-8"});
    for (const auto& place : references.addresses) {
        QByteArray uri =
            attributeAsUri({body.html.constData() + place.from, static_cast<std::size_t>(place.length)});
        if (uri != body.html.mid(place.from, place.length)) changes.push_back({&place, std::move(uri)});
    }
    for (const auto& place : references.images) {
        const int found = images.find(place.value);
        if (found < 0) continue;
        const auto index = static_cast<std::size_t>(found);
        embedded[index] = true;
        changes.push_back({&place, "cid:" + images.images()[index].contentId});
    }
    body.html = changed(body.html, std::move(changes));
    for (std::size_t i = 0; i < embedded.size(); ++i) {
        if (embedded[i]) body.images.push_back(images.images()[i].part);
    }
}

/// What the headers say of the sender, made again where he is another one.
class SenderHeaders {
  public:
    Status follow(const QString& name, const QString& address) {
        if (address != m_address || name != m_name || m_from.isEmpty()) {
            m_from.clear();
            const auto read = parseAddrSpec(address);
            if (!read.ok()) return read.status();
            m_name = name;
            m_address = address;
            m_mailbox = read.value();
            m_from = foldedHeader("From", namedAddress(name, m_mailbox.address()));
            const QByteArray id = mail::listId(m_mailbox);
            m_listId = id.isEmpty() ? id : foldedHeader("List-Id", id);
            m_unsubscribe.clear();
        }
        return {};
    }
    const Mailbox& mailbox() const { return m_mailbox; }
    const QByteArray& from() const { return m_from; }
    const QByteArray& listId() const { return m_listId; }  ///< may be empty
    const QByteArray& unsubscribe(const QString& link, bool oneClick) {
        if (m_unsubscribe.isEmpty() || link != m_link || oneClick != m_oneClick) {
            m_link = link;
            m_oneClick = oneClick;
            m_unsubscribe = unsubscribeHeaders(link, oneClick, m_mailbox);
        }
        return m_unsubscribe;
    }

  private:
    QString m_name, m_address, m_link;
    bool m_oneClick = false;
    Mailbox m_mailbox;
    QByteArray m_from, m_listId, m_unsubscribe;
};

}  // namespace

struct Composer::State {
    SenderHeaders sender;
    Attachments attachments;
    LocalImages images;
    UniqueWords words;
    DateLine date;
    DkimSigner signer;
    QString knownTemplate;
    bool oneClick = false;  ///< of knownTemplate

    bool mayUnsubscribeByOneClick(const QString& templateHtml) {
        if (!text::sameText(templateHtml, knownTemplate)) {
            knownTemplate = templateHtml;
            oneClick = markedOneClick(templateHtml);
        }
        return oneClick;
    }
};

Composer::Composer() : m_state(std::make_unique<State>()) {}
Composer::~Composer() = default;

Result<ComposedMessage> Composer::compose(const MessageData& message) {
    SenderHeaders& sender = m_state->sender;
    const Status senderRead = sender.follow(message.FromName, message.FromAddress);
    if (!senderRead.ok()) return senderRead;
    const auto to = parseAddrSpec(message.ToAddress);
    if (!to.ok()) return to.status();
    const Status attached = m_state->attachments.follow(message.Attachments.items(), message.FilesToCarry);
    if (!attached.ok()) return attached;
    m_state->images.follow(message.TemplateHtml, message.FilesToCarry);

    Body body{{}, message.BodyHtml.toUtf8(), {}, &m_state->attachments.parts()};
    // In its sent form: the text around a NUL has to mean the same to every reader.
    if (body.html.contains('\0')) body.html.replace('\0', ' ');
    const HtmlReferences references = findReferences(body.html);
    const bool hasHtml = !QByteArrayView(body.html).trimmed().isEmpty();
    body.text = (hasHtml ? textPart(message.BodyText, references, message.Subject)
                         : withoutLongGaps(message.BodyText))
                    .toUtf8();
    adaptHtml(body, references, m_state->images);

    const QDateTime now = sys::clock().now();
    const QByteArray word = m_state->words.next(now);

    ComposedMessage composed;
    composed.from = sender.mailbox();
    composed.to = to.value();
    composed.needsSmtputf8 = composed.from.needsSmtputf8 || composed.to.needsSmtputf8;
    composed.messageId = '<' + word + '@' + composed.from.domain + '>';
    QByteArray& out = composed.text.end();
    out.reserve(headerRoom + (body.text.size() + body.html.size()) * mostEncoded);
    out += sender.from();
    out += foldedHeader("To", namedAddress(message.ToName, composed.to.address()));
    out += foldedHeader("Subject", unstructuredText(message.Subject));
    out += foldedHeader("Date", m_state->date.text(now));
    out += foldedHeader("Message-ID", composed.messageId);
    const bool oneClick = m_state->mayUnsubscribeByOneClick(message.TemplateHtml) &&
                          m_state->signer.signs(message.DkimFolder, composed.from.domain);
    out += sender.unsubscribe(message.UnsubscribeLink, oneClick);
    out += sender.listId();
    appendPriority(out, message.Priority);
    out += "MIME-Version: 1.0\r\n";
    appendBody(composed.text, body, word);
    const auto signature = m_state->signer.sign(message.DkimFolder, composed.from.domain, composed.text);
    if (!signature.ok())
        composed.signing = signature.status();
    else if (!signature.value().isEmpty())
        composed.text.prepend(signature.value());
    assert(composed.text.endsLine());
    return composed;
}

}  // namespace mail

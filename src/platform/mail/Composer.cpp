// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/Composer.h"

#include <algorithm>
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

}  // namespace

struct Composer::State {
    Attachments attachments;
    LocalImages images;
    UniqueWords words;
    DateLine date;
    DkimSigner signer;
    QString knownTemplate;
    bool oneClick = false;  ///< of knownTemplate

    bool mayUnsubscribeByOneClick(const QString& templateHtml) {
        if (templateHtml != knownTemplate) {
            knownTemplate = templateHtml;
            oneClick = markedOneClick(templateHtml);
        }
        return oneClick;
    }
};

Composer::Composer() : m_state(std::make_unique<State>()) {}
Composer::~Composer() = default;

Result<ComposedMessage> Composer::compose(const MessageData& message) {
    const auto from = parseAddrSpec(message.FromAddress);
    if (!from.ok()) return from.status();
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
    composed.from = from.value();
    composed.to = to.value();
    composed.needsSmtputf8 = composed.from.needsSmtputf8 || composed.to.needsSmtputf8;
    composed.messageId = '<' + word + '@' + composed.from.domain + '>';
    QByteArray& out = composed.text.end();
    out.reserve(headerRoom + (body.text.size() + body.html.size()) * mostEncoded);
    out += foldedHeader("From", namedAddress(message.FromName, composed.from.address()));
    out += foldedHeader("To", namedAddress(message.ToName, composed.to.address()));
    out += foldedHeader("Subject", unstructuredText(message.Subject));
    out += foldedHeader("Date", m_state->date.text(now));
    out += foldedHeader("Message-ID", composed.messageId);
    const bool oneClick = m_state->mayUnsubscribeByOneClick(message.TemplateHtml) &&
                          m_state->signer.signs(message.DkimFolder, composed.from.domain);
    out += unsubscribeHeaders(message.UnsubscribeLink, oneClick, from.value());
    if (const QByteArray id = listId(from.value()); !id.isEmpty()) out += foldedHeader("List-Id", id);
    appendPriority(out, message.Priority);
    out += "MIME-Version: 1.0\r\n";
    appendBody(composed.text, body, word);
    const auto signature = m_state->signer.sign(message.DkimFolder, composed.from.domain, composed.text);
    if (!signature.ok())
        composed.signing = signature.status();
    else if (!signature.value().isEmpty())
        composed.text.prepend(signature.value());
    return composed;
}

}  // namespace mail

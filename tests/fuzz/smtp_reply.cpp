// SPDX-License-Identifier: GPL-3.0-or-later
// What a server sends: its replies one after the other, and the extensions that each would announce.
#include <cstdint>
#include <cstdlib>

#include "platform/mail/SmtpExtensions.h"
#include "platform/mail/SmtpReply.h"

using State = mail::ReplyParse::State;

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    for (qsizetype offset = 0;;) {
        const mail::ReplyParse parse = mail::parseSmtpReply(bytes, offset);
        if (parse.state != State::Complete) {
            // A malformed reply stays malformed whatever follows; an incomplete one is bounded.
            if (parse.state == State::Malformed)
                require(mail::parseSmtpReply(bytes + "\r\n250 ok\r\n", offset).state == State::Malformed);
            else
                require(bytes.size() - offset <= mail::maxReplySize);
            break;
        }
        require(parse.next > offset && parse.next <= bytes.size());
        require(parse.reply.code >= 200 && parse.reply.code <= 599);
        require(!parse.reply.text.contains('\0'));
        // The first line decides whether a message was accepted, however much of the rest has arrived.
        const bool accepted = mail::isAcceptance(QByteArrayView(bytes).sliced(offset));
        require(accepted == (bytes[offset] == '2'));
        require(mail::isAcceptance(QByteArrayView(bytes).sliced(offset, 3)) == accepted);
        // Without their last byte they are not a reply yet.
        require(mail::parseSmtpReply(bytes.left(parse.next - 1), offset).state == State::Incomplete);
        for (const QChar c : mail::printable(parse.reply.text))
            require(c.unicode() >= 0x20 && c.unicode() != 0x7f);
        mail::SmtpExtensions::read(parse.reply.text);
        offset = parse.next;
    }
    return 0;
}

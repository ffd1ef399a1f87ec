// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dns/ReplyReader.h"

#include <ares.h>
#include <netdb.h>

#include <memory>

#include "platform/text/Words.h"

namespace dns {

namespace {

struct FreeData {
    void operator()(void* data) const { ares_free_data(data); }
};
struct FreeHost {
    void operator()(hostent* host) const { ares_free_hostent(host); }
};
using Host = std::unique_ptr<hostent, FreeHost>;

const unsigned char* octets(QByteArrayView reply) {
    return reinterpret_cast<const unsigned char*>(reply.data());
}

int length(QByteArrayView reply) {
    return static_cast<int>(reply.size());
}

QByteArray plainName(const char* name) {
    QByteArray plain = QByteArray(name).toLower();
    if (plain.endsWith('.')) plain.chop(1);
    return plain;
}

int readAddresses(Type type, QByteArrayView reply, Answer& answer) {
    hostent* found = nullptr;
    const int status = type == Type::A
                           ? ares_parse_a_reply(octets(reply), length(reply), &found, nullptr, nullptr)
                           : ares_parse_aaaa_reply(octets(reply), length(reply), &found, nullptr, nullptr);
    const Host host(found);
    if (status != ARES_SUCCESS) return status;
    for (char** entry = host->h_addr_list; entry && *entry; ++entry) {
        if (type == Type::A) {
            const auto* bytes = reinterpret_cast<const quint8*>(*entry);
            answer.addresses.append(QHostAddress(quint32(bytes[0]) << 24 | quint32(bytes[1]) << 16 |
                                                 quint32(bytes[2]) << 8 | bytes[3]));
        } else {
            answer.addresses.append(QHostAddress(reinterpret_cast<const quint8*>(*entry)));
        }
    }
    return answer.addresses.isEmpty() ? ARES_ENODATA : ARES_SUCCESS;
}

int readTexts(QByteArrayView reply, Answer& answer) {
    ares_txt_ext* first = nullptr;
    const int status = ares_parse_txt_reply_ext(octets(reply), length(reply), &first);
    const std::unique_ptr<ares_txt_ext, FreeData> owner(first);
    for (const ares_txt_ext* text = first; status == ARES_SUCCESS && text; text = text->next) {
        if (text->record_start || answer.texts.isEmpty()) answer.texts.append(QByteArray());
        answer.texts.last() +=
            QByteArray(reinterpret_cast<const char*>(text->txt), static_cast<qsizetype>(text->length));
    }
    return status;
}

int readExchangers(QByteArrayView reply, Answer& answer) {
    ares_mx_reply* first = nullptr;
    const int status = ares_parse_mx_reply(octets(reply), length(reply), &first);
    const std::unique_ptr<ares_mx_reply, FreeData> owner(first);
    for (const ares_mx_reply* mx = first; status == ARES_SUCCESS && mx; mx = mx->next)
        answer.exchangers.append({mx->priority, plainName(mx->host)});
    return status;
}

int readNames(QByteArrayView reply, Answer& answer) {
    hostent* found = nullptr;
    const int status = ares_parse_ptr_reply(octets(reply), length(reply), nullptr, 0, AF_INET, &found);
    const Host host(found);
    if (status != ARES_SUCCESS) return status;
    for (char** alias = host->h_aliases; alias && *alias; ++alias)
        answer.names.append(plainName(*alias));
    if (answer.names.isEmpty() && host->h_name) answer.names.append(plainName(host->h_name));
    return answer.names.isEmpty() ? ARES_ENODATA : ARES_SUCCESS;
}

int readRecords(Type type, QByteArrayView reply, Answer& answer) {
    switch (type) {
        case Type::A:
        case Type::Aaaa:
            return readAddresses(type, reply, answer);
        case Type::Txt:
            return readTexts(reply, answer);
        case Type::Mx:
            return readExchangers(reply, answer);
        case Type::Ptr:
            break;
    }
    return readNames(reply, answer);
}

Answer unusable(const QString& why) {
    Answer answer;
    answer.why = why;
    return answer;
}

}  // namespace

Answer readReply(Type type, QByteArrayView reply) {
    constexpr int headerSize = 12;
    constexpr int isReply = 0x80;
    // the library takes a question for an answer as well
    if (reply.size() >= headerSize && !(reply[2] & isReply))
        return unusable(Words::tr("la risposta del DNS è danneggiata"));
    const int code = reply.size() < headerSize ? 0 : reply[3] & 0x0f;
    if (code != 0) return unusable(Words::tr("il DNS risponde con il codice di errore %1").arg(code));
    Answer answer;
    const int status = readRecords(type, reply, answer);
    if (status == ARES_ENODATA) {
        Answer nothing;
        nothing.kind = Answer::Kind::NoRecords;
        return nothing;
    }
    if (status != ARES_SUCCESS) return unusable(Words::tr("la risposta del DNS è danneggiata"));
    const qsizetype count =
        answer.addresses.size() + answer.texts.size() + answer.exchangers.size() + answer.names.size();
    if (count > mostRecords) return unusable(Words::tr("la risposta del DNS ha troppi record"));
    answer.kind = count > 0 ? Answer::Kind::Records : Answer::Kind::NoRecords;
    return answer;
}

}  // namespace dns

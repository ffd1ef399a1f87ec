// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/OddReplies.h"

#include <QByteArrayList>
#include <QHostAddress>

namespace replies {

namespace {

using Kind = OddNames::Kind;

constexpr qsizetype headerSize = 12;
constexpr int addressType = 1, aliasType = 5, nameType = 12, exchangerType = 15, textType = 16,
              longAddressType = 28;

QByteArray word(int number) {
    return {QByteArray(1, char(number >> 8)) + char(number)};
}

void setWord(QByteArray& reply, qsizetype at, int number) {
    if (at + 1 < reply.size()) reply.replace(at, 2, word(number));
}

QByteArray labels(const QByteArray& name) {
    QByteArray octets;
    for (const QByteArray& label : name.split('.'))
        octets += char(label.size()) + label;
    return octets + '\0';
}

QByteArray record(const QByteArray& owner, int type, const QByteArray& data) {
    return owner + word(type) + word(1) + word(0) + word(3600) + word(int(data.size())) + data;
}

const QByteArray askedName = QByteArray::fromHex("c00c");  // a pointer to the name of the question

QByteArray dataOf(int type, const char* address, int number) {
    const quint32 ip = QHostAddress(QString::fromLatin1(address)).toIPv4Address() + quint32(number);
    const QByteArray octets = word(int(ip >> 16)) + word(int(ip & 0xffff));
    switch (type) {
        case longAddressType:
            return QByteArray::fromHex("20010db8000000000000") + word(0) + octets;
        case exchangerType:
            return word(10 + number) + labels("mx" + QByteArray::number(number) + ".example");
        case nameType:
            return labels("host" + QByteArray::number(number) + ".example");
        case textType:
            return QByteArray("\x0bv=spf1 -all") + "\x04 " + "bis";
        default:
            return octets;
    }
}

QByteArray header(const QByteArray& question, int records) {
    QByteArray reply = question.left(headerSize + labels(nameIn(question)).size() + 4);
    reply[2] = char(0x81);
    reply[3] = char(0x80);
    setWord(reply, 6, records);
    setWord(reply, 10, 0);
    return reply;
}

QByteArray aliases(const QByteArray& question, int links, bool loops) {
    QByteArray reply = header(question, links + (loops ? 0 : 1));
    QByteArray owner = askedName;
    for (int i = 0; i < links; ++i) {
        const QByteArray target =
            loops && i + 1 == links ? askedName : labels("a" + QByteArray::number(i) + ".example");
        reply += record(owner, aliasType, target);
        owner = target;
    }
    if (!loops) reply += record(owner, typeIn(question), dataOf(typeIn(question), OddNames::truth, 0));
    return reply;
}

QByteArray withOddName(const QByteArray& question, std::mt19937& random, Kind kind) {
    QByteArray reply = header(question, 1);
    const int here = int(reply.size());
    const int target = kind == Kind::NameLoop     ? here
                       : kind == Kind::NameBeyond ? 0x3fff - int(random() % 3000)
                                                  : here + 2 + int(random() % 12);
    QByteArray owner = word(0xc000 | target);
    // a loop of more than one link, or through labels that grow
    if (kind == Kind::NameLoop && random() % 2)
        owner =
            "\x03"
            "abc" +
            word(0xc000 | here);
    return reply + record(owner, typeIn(question), dataOf(typeIn(question), OddNames::truth, 0));
}

QByteArray changed(QByteArray reply, std::mt19937& random, qsizetype from) {
    for (unsigned left = 1 + random() % 6; left > 0; --left)
        if (const auto room = unsigned(reply.size() - from); room > 0)
            reply[from + qsizetype(random() % room)] = char(random() % 3 ? random() : 0xc0 + random() % 64);
    return reply;
}

}  // namespace

QByteArray nameIn(const QByteArray& question) {
    QByteArray name;
    for (qsizetype at = headerSize; at < question.size() && question[at] != 0;) {
        const qsizetype length = quint8(question[at]);
        name += question.mid(at + 1, length) + '.';
        at += 1 + length;
    }
    name.chop(1);
    return name;
}

int typeIn(const QByteArray& question) {
    const qsizetype at = headerSize + labels(nameIn(question)).size();
    return at + 1 < question.size() ? quint8(question[at]) << 8 | quint8(question[at + 1]) : 0;
}

QByteArray sound(const QByteArray& question, int records, const char* address) {
    QByteArray reply = header(question, records);
    for (int i = 0; i < records; ++i)
        reply += record(askedName, typeIn(question), dataOf(typeIn(question), address, i));
    return reply;
}

QByteArray of(Kind kind, const QByteArray& question, std::mt19937& random, bool overTcp) {
    const QByteArray good = sound(question, 1 + int(random() % 5), OddNames::truth);
    QByteArray reply = good;
    switch (kind) {
        case Kind::WrongId:
            reply = sound(question, 1, OddNames::lie);
            setWord(reply, 0, (quint8(question[0]) << 8 | quint8(question[1])) + 1 + int(random() % 1000));
            return reply;
        case Kind::WrongQuestion: {
            QByteArray other = question;
            if (random() % 2)
                setWord(other, headerSize + labels(nameIn(question)).size(), 99);  // the type
            else
                other[headerSize + 1] = 'x';
            return sound(other, 1, OddNames::lie);
        }
        case Kind::NoReply:
            reply = sound(question, 1, OddNames::lie);
            reply[2] = 1;
            return reply;
        case Kind::Cut:
            return good.left(qsizetype(random() % unsigned(good.size() + 1)));
        case Kind::TooLongForUdp:
        case Kind::TooLongTcpCloses:
        case Kind::TooLongTcpSilent:
        case Kind::TooLongTcpLies:
        case Kind::TooLongNoEnd:
            if (overTcp && kind != Kind::TooLongNoEnd) return sound(question, 40, OddNames::truth);
            reply[2] = char(0x83);
            return random() % 2 ? reply : reply.left(reply.size() - qsizetype(random() % 12));
        case Kind::NameLoop:
        case Kind::NameBeyond:
        case Kind::NameForward:
            return withOddName(question, random, kind);
        case Kind::LyingCount:
            setWord(reply, 4 + 2 * int(random() % 4), random() % 2 ? 0xffff : int(random() % 12));
            return reply;
        case Kind::LyingLength:
            setWord(reply, reply.size() - 2 - qsizetype(random() % 16),
                    random() % 2 ? 0xffff : int(random() % 300));
            return reply;
        case Kind::Huge:
            return sound(question, 1200 + int(random() % 200), OddNames::truth);
        case Kind::ManyRecords:
            return sound(question, 90 + int(random() % 30), OddNames::truth);
        case Kind::AliasLoop:
            return aliases(question, 1 + int(random() % 4), true);
        case Kind::AliasChain:
            return aliases(question, 1 + int(random() % 60), false);
        case Kind::ErrorCode:
            reply = random() % 2 ? header(question, 0) : good;
            reply[3] = char(0x80 | random() % 16);
            return reply;
        case Kind::Empty:
            return {};
        case Kind::Garbage:
            reply = QByteArray(qsizetype(random() % 700), '\0');
            for (char& octet : reply)
                octet = char(random());
            if (random() % 2 && reply.size() > 4) reply.replace(0, 4, question.left(2) + word(0x8180));
            return reply;
        case Kind::Changed:
            return changed(good, random, random() % 4 ? header(question, 0).size() : 2);
        case Kind::Echo:
            return question;
        default:
            return good;
    }
}

}  // namespace replies

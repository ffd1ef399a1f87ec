// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/Misbehaviour.h"

#include <iterator>

namespace {

using Kind = Misbehaviour::Kind;
using Stage = Misbehaviour::Stage;

const char* const stageNames[] = {"greeting",  "hello", "starttls", "handshake", "login", "reset", "sender",
                                  "recipient", "data",  "body",     "point",     "chunk", "idle"};
const char* const kindNames[] = {"silence",     "drop",      "reset",        "cut and drop",  "cut, silence",
                                 "no line end", "lone LF",   "endless line", "endless lines", "long reply",
                                 "other code",  "farewell",  "split",        "garbage",       "twice",
                                 "early",       "two codes", "echo",         "drop after"};
static_assert(std::size(stageNames) == size_t(Stage::End));
static_assert(std::size(kindNames) == size_t(Kind::End));

QByteArray otherCode(unsigned dice) {
    static const char* const codes[] = {"000",  "100",  "199",  "200", "250", "251", "252",   "299", "334",
                                        "354",  "399",  "421",  "450", "451", "452", "500",   "501", "502",
                                        "503",  "504",  "535",  "550", "552", "554", "600",   "999", "25",
                                        "2500", "-250", " 250", "abc", "",    "2 0", "2\0005"};
    return codes[dice % std::size(codes)];
}

QByteArray garbage(unsigned dice) {
    std::mt19937 random(dice);
    QByteArray bytes;
    for (unsigned left = 1 + random() % 600; left > 0; --left)
        bytes += static_cast<char>(random() % 4 ? random() : unsigned("\r\n\0002345 -"[random() % 10]));
    return bytes;
}

}  // namespace

Misbehaviour Misbehaviour::any(std::mt19937& random, int messages) {
    Misbehaviour made;
    made.stage = Stage(random() % unsigned(Stage::End));
    made.kind = Kind(random() % unsigned(Kind::End));
    made.message = int(random() % unsigned(messages));
    // these come after another message
    if ((made.stage == Stage::Reset || made.stage == Stage::Chunk) && made.message == 0) made.message = 1;
    // these only at the beginning of a connection
    if (made.stage < Stage::Reset && random() % 4) made.message = 0;
    made.everywhere = random() % 2;
    made.goesOn = random() % 4 == 0;
    made.dice = unsigned(random());
    return made;
}

QByteArray Misbehaviour::name() const {
    return QByteArray(stageNames[int(stage)]) + ": " + kindNames[int(kind)] +
           (everywhere ? ", everywhere" : "") + (goesOn ? ", goes on" : "");
}

QByteArray Misbehaviour::spoilt(const QByteArray& reply, const QByteArray& heard) const {
    const QByteArray code = reply.left(3);
    switch (kind) {
        case Kind::CutAndDrop:
        case Kind::CutAndSilence:
            return reply.left(int(dice % unsigned(reply.size() + 1)));
        case Kind::NoLineEnd:
            return reply.left(reply.size() - 2) + (dice % 2 ? "\r" : "");
        case Kind::LoneLineFeed:
            return QByteArray(reply).replace("\r\n", "\n");
        case Kind::EndlessLine:
            return code + (dice % 2 ? ' ' : '-');
        case Kind::LongReply: {
            QByteArray text;
            for (unsigned left = dice % 700; left > 0; --left)
                text += code + '-' + QByteArray(int(dice / 700 % 90), 'x') + "\r\n";
            return text + reply;
        }
        case Kind::OtherCode:
            return otherCode(dice) + (dice / 64 % 4 ? " text" : "") + "\r\n";
        case Kind::Farewell:
            return "421 closing\r\n";
        case Kind::Garbage:
            return garbage(dice);
        case Kind::Twice:
            return reply + reply;
        case Kind::Early: {
            static const char* const next[] = {"220 a\r\n", "250 a\r\n", "354 a\r\n", "334 \r\n",
                                               "235 a\r\n", "550 a\r\n", "421 a\r\n", "250-a\r\n"};
            return reply + next[dice % std::size(next)];
        }
        case Kind::TwoCodes:
            return otherCode(dice).leftJustified(3, '0', true) + "-text\r\n" + reply;
        case Kind::Echo:
            return (dice % 2 ? code : QByteArray(dice / 2 % 2 ? "535" : "451")) + ' ' + heard + "\r\n";
        default:
            return reply;
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
// An SPF record, and the records that it leads to: the lines of the input are the texts of any name that is
// queried.
#include <cstdint>
#include <cstdlib>

#include "platform/policy/SpfCheck.h"

using namespace policy::spf;

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

dns::Answer answerTo(const dns::Question& question, const QByteArrayList& lines, size_t number) {
    dns::Answer answer;
    const QByteArray line = lines[static_cast<qsizetype>(number % static_cast<size_t>(lines.size()))];
    answer.kind = line.isEmpty() ? dns::Answer::Kind::NoName : dns::Answer::Kind::Records;
    if (question.type == dns::Type::Txt) answer.texts = {line};
    if (question.type == dns::Type::Ptr) answer.names = line.toLower().split(' ');
    if (question.type == dns::Type::Mx)
        for (const QByteArray& host : line.toLower().split(' '))
            answer.exchangers.append({10, host});
    if (question.type == dns::Type::A) answer.addresses = {QHostAddress(0xC0000201)};
    return answer;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArrayList lines = QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)).split('\n');
    Client client;
    client.address = QHostAddress(size % 2 ? "192.0.2.1" : "2001:db8::1");
    client.sender = lines.last().left(100) + "@example.it";
    dns::Answers known;
    for (;;) {
        const auto got = check(client, "example.it", known);
        if (const auto* verdict = std::get_if<Verdict>(&got)) {
            const bool failed = verdict->result == Result::PermError || verdict->result == Result::TempError;
            require(failed == (verdict->fault != Fault::None));
            require(verdict->lookups <= 11);
            for (const char c : verdict->explanation)
                require(c >= ' ' && c < 0x7f);
            return 0;
        }
        const auto& question = std::get<dns::Question>(got);
        require(!known.contains(question));
        require(known.size() < 250);
        require(question.name.size() <= 253);
        known.emplace(question, answerTo(question, lines, known.size()));
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
// A reply of a name server, read as the answer to each type of question.
#include <cstdint>
#include <cstdlib>

#include "platform/dns/ReplyReader.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArrayView reply(reinterpret_cast<const char*>(data), qsizetype(size));
    for (const auto type : {dns::Type::A, dns::Type::Aaaa, dns::Type::Mx, dns::Type::Ptr, dns::Type::Txt}) {
        const dns::Answer answer = dns::readReply(type, reply);
        const qsizetype count =
            answer.addresses.size() + answer.texts.size() + answer.exchangers.size() + answer.names.size();
        require(count <= dns::mostRecords);
        require((count > 0) == (answer.kind == dns::Answer::Kind::Records));
        require(answer.failed() == !answer.why.isEmpty());
    }
    return 0;
}

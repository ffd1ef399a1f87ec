// SPDX-License-Identifier: GPL-3.0-or-later
// The text of a TXT record, read as a DKIM key and as a DMARC policy.
#include <cstdint>
#include <cstdlib>

#include "platform/policy/DkimRecord.h"
#include "platform/policy/DmarcRecord.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray text(reinterpret_cast<const char*>(data), qsizetype(size));
    if (const auto key = policy::readDkimRecord(text)) {
        const auto again = policy::readDkimRecord(policy::dkimRecordText(key->key));
        require(again && again->key == key->key);
        require(!policy::readDkimRecord(text + "; p=AQID"));  // a name that occurs twice
    }
    if (const auto record = policy::dmarc::readRecord(text))
        require(record->percent >= 0 && record->percent <= 100);
    dns::Answers known;
    dns::Answer answer;
    answer.kind = dns::Answer::Kind::Records;
    answer.texts = {text};
    known.emplace(dns::Question{"_dmarc.example.it", dns::Type::Txt}, answer);
    const auto found = policy::dmarc::find("example.it", known);
    require(std::holds_alternative<policy::dmarc::Finding>(found));
    const bool isOne = std::get<policy::dmarc::Finding>(found).kind != policy::dmarc::Finding::Kind::None;
    require(isOne == policy::dmarc::isDmarcRecord(text));
    return 0;
}

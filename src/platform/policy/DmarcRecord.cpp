// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/policy/DmarcRecord.h"

#include <QByteArrayList>

#include "platform/policy/OrganizationalDomain.h"
#include "platform/policy/TagList.h"

namespace policy::dmarc {

namespace {

std::optional<Policy> policyOf(const std::optional<QByteArray>& value) {
    const QByteArray word = value.value_or(QByteArray()).toLower();
    if (word == "none") return Policy::None;
    if (word == "quarantine") return Policy::Quarantine;
    if (word == "reject") return Policy::Reject;
    return std::nullopt;
}

bool isStrict(const std::optional<QByteArray>& value) {
    return value && value->toLower() == "s";
}

}  // namespace

bool isDmarcRecord(const QByteArray& text) {
    const qsizetype end = text.indexOf(';');
    const qsizetype equals = text.left(end).indexOf('=');
    return end > 0 && equals > 0 && text.left(equals).trimmed() == "v" && text.front() == 'v' &&
           text.sliced(equals + 1, end - equals - 1).trimmed() == "DMARC1";
}

std::optional<Record> readRecord(const QByteArray& text) {
    const TagList list = TagList::read(text);
    Record record;
    record.reportsTo = list.value("rua").value_or(QByteArray());
    const auto policy = policyOf(list.value("p"));
    const auto below = list.value("sp");
    const bool usable = policy && (!below || policyOf(below));
    if (!usable && !record.reportsTo.toLower().contains("mailto:")) return std::nullopt;
    if (usable) {
        record.policy = *policy;
        record.subdomainPolicy = policyOf(below).value_or(*policy);
    }
    record.strictDkim = isStrict(list.value("adkim"));
    record.strictSpf = isStrict(list.value("aspf"));
    bool isNumber = false;
    const int percent = list.value("pct").value_or(QByteArray()).toInt(&isNumber);
    if (isNumber && percent >= 0 && percent <= 100) record.percent = percent;
    return record;
}

std::variant<Finding, dns::Question> find(const QByteArray& domain, const dns::Answers& known) {
    const QByteArray owner = organizationalDomain(domain);
    Finding finding;
    for (const QByteArray& place : owner == domain ? QByteArrayList{domain} : QByteArrayList{domain, owner}) {
        const dns::Question question{"_dmarc." + place, dns::Type::Txt};
        const auto found = known.find(question);
        if (found == known.end()) return question;
        finding.domain = place;
        if (found->second.failed()) {
            finding.kind = Finding::Kind::NoAnswer;
            return finding;
        }
        QByteArrayList texts = found->second.texts;
        texts.removeIf([](const QByteArray& text) { return !isDmarcRecord(text); });
        if (texts.isEmpty()) continue;
        const auto record = texts.size() == 1 ? readRecord(texts.front()) : std::nullopt;
        finding.kind = texts.size() > 1 ? Finding::Kind::Several
                       : record         ? Finding::Kind::Found
                                        : Finding::Kind::Invalid;
        finding.record = record.value_or(Record());
        finding.applied = place == domain ? finding.record.policy : finding.record.subdomainPolicy;
        return finding;
    }
    return finding;
}

}  // namespace policy::dmarc

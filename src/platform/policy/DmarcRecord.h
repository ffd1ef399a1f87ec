#pragma once

#include <optional>
#include <QByteArray>
#include <variant>

#include "platform/dns/Answer.h"

/// What a domain asks others to do with mail in its name that proves nothing (RFC 7489).
namespace policy::dmarc {

enum class Policy { None, Quarantine, Reject };

struct Record {
    Policy policy = Policy::None;
    Policy subdomainPolicy = Policy::None;
    bool strictDkim = false;
    bool strictSpf = false;
    int percent = 100;     ///< of the mail that the policy is for
    QByteArray reportsTo;  ///< as written; empty: nowhere
};

/// Whether a text of a TXT record is one of DMARC, right or wrong.
bool isDmarcRecord(const QByteArray& text);

/// Reads a record; none where it has no policy and asks for no reports. Other tags that are wrong count as if
/// they were not there (RFC 7489 6.3).
std::optional<Record> readRecord(const QByteArray& text);

/// What was found for the domain of a From line.
struct Finding {
    enum class Kind { Found, None, Several, Invalid, NoAnswer };
    Kind kind = Kind::None;
    Record record;
    Policy applied =
        Policy::None;   ///< to this domain: below the one that has the record, its policy for such
    QByteArray domain;  ///< that has the record
};

/// The finding, or the question whose answer is missing from `known` (RFC 7489 6.6.3). `domain` is in lower
/// case and in A-labels.
std::variant<Finding, dns::Question> find(const QByteArray& domain, const dns::Answers& known);

}  // namespace policy::dmarc

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArray>
#include <variant>

#include "platform/dns/Answer.h"

/// What a domain asks others to do with unauthenticated mail in its name (RFC 7489).
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

/// Whether the text of a TXT record is one of DMARC, valid or not.
bool isDmarcRecord(const QByteArray& text);

/// Reads a record; none where it has no policy and asks for no reports. Other tags that are invalid are
/// ignored, as if they were not there (RFC 7489 6.3).
std::optional<Record> readRecord(const QByteArray& text);

/// The finding for the domain of a From line.
struct Finding {
    enum class Kind { Found, None, Several, Invalid, NoAnswer };
    Kind kind = Kind::None;
    Record record;
    Policy applied =
        Policy::None;   ///< for this domain: the subdomain policy where the record is that of a parent
    QByteArray domain;  ///< of the record
};

/// The finding, or the question whose answer is missing from `known` (RFC 7489 6.6.3). `domain` is in lower
/// case and in A-labels.
std::variant<Finding, dns::Question> find(const QByteArray& domain, const dns::Answers& known);

}  // namespace policy::dmarc

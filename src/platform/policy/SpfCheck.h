// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHostAddress>
#include <variant>

#include "platform/dns/Answer.h"
#include "platform/policy/SpfRecord.h"

/// The check whether a machine may send mail for a domain: check_host() of RFC 7208, with all its limits.
namespace policy::spf {

/// The client and the sender to check.
struct Client {
    QHostAddress address;
    QByteArray sender;  ///< of MAIL FROM; without a local part: of "postmaster"
    QByteArray helo = "unknown";
    QByteArray receiver = "unknown";
    QDateTime when;
};

/// Why there is no result, or an error.
enum class Fault {
    None,
    NoAnswer,           ///< a name server failed or did not answer
    SeveralRecords,     ///< at one name
    TooLong,            ///< a record of more than 16 KB
    Syntax,             ///< of `term`
    TooManyLookups,     ///< more than ten terms that look something up
    TooManyVoids,       ///< more than two look-ups without any record
    TooManyExchangers,  ///< more than ten at one name
    IncludedNone,       ///< an included domain has no record
    RedirectedNone,     ///< the redirect's domain has no record
};

struct Verdict {
    Result result = Result::None;
    Fault fault = Fault::None;
    QByteArray domain;       ///< whose record decided, or is invalid
    QByteArray term;         ///< the term that decided, as written; empty: none did
    QByteArray explanation;  ///< the domain's own, of a Fail; untrusted ASCII text
    int lookups = 0;         ///< terms that looked something up, of ten allowed
};

/// The verdict, or the question whose answer is missing: put it into `known`, and call check() again. The
/// same answers lead to the same questions, of which there are at most 250.
std::variant<Verdict, dns::Question> check(const Client& client, const QByteArray& domain,
                                           const dns::Answers& known);

}  // namespace policy::spf

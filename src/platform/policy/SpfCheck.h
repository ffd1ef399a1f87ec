#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHostAddress>
#include <variant>

#include "platform/dns/Answer.h"
#include "platform/policy/SpfRecord.h"

/// May a machine send mail for a domain? The check_host() of RFC 7208, with all its limits.
namespace policy::spf {

/// Who wants to send.
struct Client {
    QHostAddress address;
    QByteArray sender;  ///< of MAIL FROM; without a local part it is that of "postmaster"
    QByteArray helo = "unknown";
    QByteArray receiver = "unknown";
    QDateTime when;
};

/// Why there is no result, or none of worth.
enum class Fault {
    None,
    NoAnswer,           ///< a name server failed or kept silent
    SeveralRecords,     ///< at one name
    TooLong,            ///< a record of more than 16 KB
    Syntax,             ///< of `term`
    TooManyLookups,     ///< more than ten terms that look something up
    TooManyVoids,       ///< more than two look-ups without any record
    TooManyExchangers,  ///< more than ten at one name
    IncludedNone,       ///< what is included has no record
    RedirectedNone,     ///< what is redirected to has no record
};

struct Verdict {
    Result result = Result::None;
    Fault fault = Fault::None;
    QByteArray domain;       ///< whose record decided, or is at fault
    QByteArray term;         ///< the term that decided, as written; empty: none did
    QByteArray explanation;  ///< the domain's own, of a Fail; hostile text in ASCII
    int lookups = 0;         ///< terms that looked something up, of ten allowed
};

/// The verdict, or the question whose answer is missing: it is to be put into `known`, and check() called
/// anew. The same answers give the same questions, of which there are at most 250.
std::variant<Verdict, dns::Question> check(const Client& client, const QByteArray& domain,
                                           const dns::Answers& known);

}  // namespace policy::spf

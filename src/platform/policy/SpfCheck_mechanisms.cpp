// SPDX-License-Identifier: GPL-3.0-or-later
// The mechanisms of an SPF record: does one match the client? (RFC 7208 5)
#include <algorithm>

#include "platform/policy/DomainText.h"
#include "platform/policy/SpfEvaluation.h"

namespace policy::spf {

namespace {

constexpr int mostVoids = 2;
constexpr qsizetype mostExchangers = 10;
constexpr qsizetype mostNames = 10;  // of an address

}  // namespace

dns::Type Evaluation::addressType() const {
    return m_isIpv4 ? dns::Type::A : dns::Type::Aaaa;
}

bool Evaluation::isInNetwork(const QHostAddress& network, const Directive& directive) const {
    return m_address.protocol() == network.protocol() &&
           m_address.isInSubnet(network, m_isIpv4 ? directive.prefixLength4 : directive.prefixLength6);
}

bool Evaluation::countVoid(const dns::Answer& answer, const QByteArray& domain, const QByteArray& term) {
    const bool isVoid =
        answer.kind == dns::Answer::Kind::NoRecords || answer.kind == dns::Answer::Kind::NoName;
    if (!isVoid || ++m_voids <= mostVoids) return true;
    stop(Result::PermError, Fault::TooManyVoids, domain, term);
    return false;
}

std::optional<bool> Evaluation::matches(const Directive& directive, const QByteArray& domain) {
    switch (directive.mechanism) {
        case Mechanism::All:
            return true;
        case Mechanism::Ip4:
        case Mechanism::Ip6:
            return isInNetwork(directive.network, directive);
        default:
            break;
    }
    if (!countLookup(domain, directive.text)) return std::nullopt;
    const auto name = target(directive.domain, domain);
    if (!name) return std::nullopt;
    if (directive.mechanism == Mechanism::Include) return matchesInclude(directive, domain, *name);
    if (!isName(*name)) return false;
    switch (directive.mechanism) {
        case Mechanism::A:
            return matchesA(directive, domain, *name);
        case Mechanism::Mx:
            return matchesMx(directive, domain, *name);
        case Mechanism::Ptr:
            return matchesPtr(directive, domain, *name);
        default:
            return matchesExists(directive, domain, *name);
    }
}

std::optional<bool> Evaluation::matchesInclude(const Directive& directive, const QByteArray& domain,
                                               const QByteArray& included) {
    const auto verdict = checkHost(included);
    if (!verdict) return std::nullopt;
    if (verdict->result == Result::None)
        return stop(Result::PermError, Fault::IncludedNone, domain, directive.text);
    return verdict->result == Result::Pass;
}

std::optional<bool> Evaluation::matchesA(const Directive& directive, const QByteArray& domain,
                                         const QByteArray& name) {
    const dns::Answer* const found = answer(name, addressType());
    if (!found) return std::nullopt;
    if (found->failed()) return stop(Result::TempError, Fault::NoAnswer, name, directive.text);
    if (!countVoid(*found, domain, directive.text)) return std::nullopt;
    return std::any_of(found->addresses.begin(), found->addresses.end(),
                       [&](const QHostAddress& one) { return isInNetwork(one, directive); });
}

std::optional<bool> Evaluation::matchesMx(const Directive& directive, const QByteArray& domain,
                                          const QByteArray& name) {
    const dns::Answer* const found = answer(name, dns::Type::Mx);
    if (!found) return std::nullopt;
    if (found->failed()) return stop(Result::TempError, Fault::NoAnswer, name, directive.text);
    if (!countVoid(*found, domain, directive.text)) return std::nullopt;
    if (found->exchangers.size() > mostExchangers)
        return stop(Result::PermError, Fault::TooManyExchangers, domain, directive.text);
    for (const dns::Exchanger& exchanger : found->exchangers) {
        if (!isName(exchanger.host)) continue;
        auto match = matchesA(directive, domain, exchanger.host);
        if (!match || *match) return match;
    }
    return false;
}

/// The names of the client's address that resolve back to it; a name server that fails is skipped.
std::optional<QByteArrayList> Evaluation::validatedNames(Voids voids, const QByteArray& domain,
                                                         const QByteArray& term) {
    const dns::Answer* const found = answer(dns::reverseName(m_address), dns::Type::Ptr);
    if (!found) return std::nullopt;
    if (voids == Voids::Counted && !countVoid(*found, domain, term)) return std::nullopt;
    QByteArrayList validated;
    for (const QByteArray& name : found->names.mid(0, mostNames)) {
        if (!isName(name)) continue;
        const dns::Answer* const addresses = answer(name, addressType());
        if (!addresses) return std::nullopt;
        if (voids == Voids::Counted && !countVoid(*addresses, domain, term)) return std::nullopt;
        if (addresses->addresses.contains(m_address)) validated.append(name);
    }
    return validated;
}

std::optional<bool> Evaluation::matchesPtr(const Directive& directive, const QByteArray& domain,
                                           const QByteArray& name) {
    const auto names = validatedNames(Voids::Counted, domain, directive.text);
    if (!names) return std::nullopt;
    return std::any_of(names->begin(), names->end(),
                       [&](const QByteArray& one) { return isWithin(one, name); });
}

std::optional<bool> Evaluation::matchesExists(const Directive& directive, const QByteArray& domain,
                                              const QByteArray& name) {
    const dns::Answer* const found = answer(name, dns::Type::A);
    if (!found) return std::nullopt;
    if (found->failed()) return stop(Result::TempError, Fault::NoAnswer, name, directive.text);
    if (!countVoid(*found, domain, directive.text)) return std::nullopt;
    return found->kind == dns::Answer::Kind::Records;
}

}  // namespace policy::spf

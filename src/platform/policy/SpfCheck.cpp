// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/policy/SpfCheck.h"

#include <algorithm>
#include <QByteArrayList>

#include "platform/policy/DomainText.h"
#include "platform/policy/SpfEvaluation.h"

namespace policy::spf {

namespace {

constexpr int mostLookups = 10;
constexpr qsizetype longestRecord = 16 * 1024;

bool isAscii(const QByteArray& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c < 0x7f; });
}

}  // namespace

Evaluation::Evaluation(const Client& client, const dns::Answers& known)
    : m_client(client), m_known(known), m_address(client.address), m_sender(client.sender) {
    const quint32 ipv4 = client.address.toIPv4Address(&m_isIpv4);
    if (m_isIpv4) m_address = QHostAddress(ipv4);
    const qsizetype at = m_sender.lastIndexOf('@');
    if (at <= 0) m_sender = "postmaster@" + m_sender.mid(at + 1);
}

std::optional<Verdict> Evaluation::run(const QByteArray& domain) {
    auto verdict = checkHost(plainName(domain));
    if (!verdict) verdict = m_stopped;
    if (verdict) verdict->lookups = m_lookups;
    return verdict;
}

std::nullopt_t Evaluation::stop(Result result, Fault fault, const QByteArray& domain,
                                const QByteArray& term) {
    m_stopped = Verdict{result, fault, domain, term, {}, 0};
    return std::nullopt;
}

bool Evaluation::countLookup(const QByteArray& domain, const QByteArray& term) {
    if (++m_lookups <= mostLookups) return true;
    stop(Result::PermError, Fault::TooManyLookups, domain, term);
    return false;
}

const dns::Answer* Evaluation::answer(const QByteArray& name, dns::Type type) {
    const dns::Question question{name, type};
    const auto found = m_known.find(question);
    if (found != m_known.end()) return &found->second;
    m_missing = question;
    return nullptr;
}

std::optional<Verdict> Evaluation::checkHost(const QByteArray& domain) {
    Verdict none{Result::None, Fault::None, domain, {}, {}, 0};
    if (!isName(domain) || !domain.contains('.')) return none;
    const dns::Answer* const found = answer(domain, dns::Type::Txt);
    if (!found) return std::nullopt;
    if (found->failed()) return stop(Result::TempError, Fault::NoAnswer, domain);
    QByteArrayList records = found->texts;
    records.removeIf([](const QByteArray& text) { return !isSpfRecord(text); });
    if (records.isEmpty()) return none;
    if (records.size() > 1) return stop(Result::PermError, Fault::SeveralRecords, domain);
    if (records.front().size() > longestRecord) return stop(Result::PermError, Fault::TooLong, domain);
    const RecordRead read = readRecord(records.front());
    if (!read.record) return stop(Result::PermError, Fault::Syntax, domain, read.faultyTerm);
    return evaluate(*read.record, domain);
}

std::optional<Verdict> Evaluation::evaluate(const Record& record, const QByteArray& domain) {
    for (const Directive& directive : record.directives) {
        const auto match = matches(directive, domain);
        if (!match) return std::nullopt;
        if (!*match) continue;
        Verdict verdict{directive.qualifier, Fault::None, domain, directive.text, {}, 0};
        if (verdict.result == Result::Fail && record.explanation) {
            const auto explanation = explain(*record.explanation, domain);
            if (!explanation) return std::nullopt;
            verdict.explanation = *explanation;
        }
        return verdict;
    }
    const bool hasAll = std::any_of(record.directives.begin(), record.directives.end(),
                                    [](const Directive& one) { return one.mechanism == Mechanism::All; });
    if (record.redirect && !hasAll) return followRedirect(record, domain);
    return Verdict{Result::Neutral, Fault::None, domain, {}, {}, 0};
}

std::optional<Verdict> Evaluation::followRedirect(const Record& record, const QByteArray& domain) {
    const QByteArray term = "redirect=" + *record.redirect;
    if (!countLookup(domain, term)) return std::nullopt;
    const auto next = target(*record.redirect, domain);
    if (!next) return std::nullopt;
    auto verdict = checkHost(*next);
    if (verdict && verdict->result == Result::None)
        return stop(Result::PermError, Fault::RedirectedNone, domain, term);
    return verdict;
}

/// The explanation of a Fail: empty where there is none that can be used.
std::optional<QByteArray> Evaluation::explain(const QByteArray& spec, const QByteArray& domain) {
    const auto name = target(spec, domain);
    if (!name) return std::nullopt;
    if (!isName(*name)) return QByteArray();
    const dns::Answer* const found = answer(*name, dns::Type::Txt);
    if (!found) return std::nullopt;
    if (found->texts.size() != 1) return QByteArray();
    const QByteArray& text = found->texts.front();
    if (text.size() > longestRecord || !isMacroString(text, Place::Explanation)) return QByteArray();
    const auto filled = values(text, domain);
    if (!filled) return std::nullopt;
    const QByteArray explanation = expand(text, *filled);
    return isAscii(explanation) ? explanation : QByteArray();
}

/// The name that a domain with macros expands to; that of the record itself where it is empty.
std::optional<QByteArray> Evaluation::target(const QByteArray& spec, const QByteArray& domain) {
    if (spec.isEmpty()) return domain;
    const auto filled = values(spec, domain);
    return filled ? std::optional(expandDomain(spec, *filled)) : std::nullopt;
}

std::optional<MacroValues> Evaluation::values(const QByteArray& text, const QByteArray& domain) {
    MacroValues values{m_address, m_sender, domain, m_client.helo, m_client.receiver, m_client.when};
    if (!needsValidatedName(text)) return values;
    const auto names = validatedNames(Voids::Free, domain, {});
    if (!names) return std::nullopt;
    if (names->isEmpty()) return values;
    const auto below = std::find_if(names->begin(), names->end(),
                                    [&](const QByteArray& name) { return isWithin(name, domain); });
    values.validated = names->contains(domain) ? domain : below != names->end() ? *below : names->front();
    return values;
}

std::variant<Verdict, dns::Question> check(const Client& client, const QByteArray& domain,
                                           const dns::Answers& known) {
    Evaluation evaluation(client, known);
    const auto verdict = evaluation.run(domain);
    if (verdict) return *verdict;
    return *evaluation.missing();
}

}  // namespace policy::spf

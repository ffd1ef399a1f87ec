// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "platform/policy/SpfCheck.h"
#include "platform/policy/SpfMacro.h"

namespace policy::spf {

/// One walk through the records with the answers that are known. Every step is optional: no value means that
/// it stopped, for a missing answer or with a verdict.
class Evaluation {
  public:
    Evaluation(const Client& client, const dns::Answers& known);

    /// The verdict on a domain; none: missing() returns the question.
    std::optional<Verdict> run(const QByteArray& domain);
    const std::optional<dns::Question>& missing() const { return m_missing; }

  private:
    enum class Voids { Counted, Free };

    // SpfCheck.cpp: records
    std::optional<Verdict> checkHost(const QByteArray& domain);
    std::optional<Verdict> evaluate(const Record& record, const QByteArray& domain);
    std::optional<Verdict> followRedirect(const Record& record, const QByteArray& domain);
    std::optional<QByteArray> explain(const QByteArray& spec, const QByteArray& domain);
    std::nullopt_t stop(Result result, Fault fault, const QByteArray& domain, const QByteArray& term = {});
    bool countLookup(const QByteArray& domain, const QByteArray& term);
    const dns::Answer* answer(const QByteArray& name, dns::Type type);
    std::optional<QByteArray> target(const QByteArray& spec, const QByteArray& domain);
    std::optional<MacroValues> values(const QByteArray& text, const QByteArray& domain);

    // SpfCheck_mechanisms.cpp: does a directive match?
    std::optional<bool> matches(const Directive& directive, const QByteArray& domain);
    std::optional<bool> matchesInclude(const Directive& directive, const QByteArray& domain,
                                       const QByteArray& included);
    std::optional<bool> matchesA(const Directive& directive, const QByteArray& domain,
                                 const QByteArray& name);
    std::optional<bool> matchesMx(const Directive& directive, const QByteArray& domain,
                                  const QByteArray& name);
    std::optional<bool> matchesPtr(const Directive& directive, const QByteArray& domain,
                                   const QByteArray& name);
    std::optional<bool> matchesExists(const Directive& directive, const QByteArray& domain,
                                      const QByteArray& name);
    std::optional<QByteArrayList> validatedNames(Voids voids, const QByteArray& domain,
                                                 const QByteArray& term);
    bool countVoid(const dns::Answer& answer, const QByteArray& domain, const QByteArray& term);
    bool isInNetwork(const QHostAddress& network, const Directive& directive) const;
    dns::Type addressType() const;

    const Client& m_client;
    const dns::Answers& m_known;
    QHostAddress m_address;  ///< of the client; IPv4 mapped into IPv6 is IPv4
    bool m_isIpv4 = false;
    QByteArray m_sender;
    int m_lookups = 0;
    int m_voids = 0;
    std::optional<dns::Question> m_missing;
    std::optional<Verdict> m_stopped;
};

}  // namespace policy::spf

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>
#include <variant>

#include "platform/dns/Answer.h"

namespace testing_support {

/// Records that replace the whole DNS.
class Zone {
  public:
    Zone& txt(const QByteArray& name, const QByteArray& text) {
        record(name, dns::Type::Txt).texts.append(text);
        return *this;
    }
    Zone& address(const QByteArray& name, const char* text) {
        const QHostAddress address{QString::fromLatin1(text)};
        const bool isIpv4 = address.protocol() == QAbstractSocket::IPv4Protocol;
        record(name, isIpv4 ? dns::Type::A : dns::Type::Aaaa).addresses.append(address);
        return *this;
    }
    Zone& mx(const QByteArray& name, const QByteArray& host, int preference = 10) {
        record(name, dns::Type::Mx).exchangers.append({preference, host});
        return *this;
    }
    Zone& ptr(const char* address, const QByteArray& name) {
        record(dns::reverseName(QHostAddress(QString::fromLatin1(address))), dns::Type::Ptr)
            .names.append(name);
        return *this;
    }
    Zone& fails(const QByteArray& name, dns::Type type) {
        record(name, type).kind = dns::Answer::Kind::Failure;
        return *this;
    }

    dns::Answer answer(const dns::Question& question) const {
        const auto found = m_records.find(question);
        if (found != m_records.end()) return found->second;
        dns::Answer nothing;
        nothing.kind = dns::Answer::Kind::NoName;
        for (const auto& [known, records] : m_records)
            if (known.name == question.name) nothing.kind = dns::Answer::Kind::NoRecords;
        return nothing;
    }

    /// Calls `step` with more and more answers until it has no more queries.
    template <class Value, class Step>
    Value follow(const Step& step, dns::Answers& known) const {
        for (;;) {
            const auto got = step(known);
            if (const auto* value = std::get_if<Value>(&got)) return *value;
            const auto& question = std::get<dns::Question>(got);
            if (known.contains(question) || known.size() > 300) qFatal("a question that has its answer");
            known.emplace(question, answer(question));
        }
    }

  private:
    dns::Answer& record(const QByteArray& name, dns::Type type) {
        dns::Answer& answer = m_records[{name, type}];
        answer.kind = dns::Answer::Kind::Records;
        return answer;
    }

    dns::Answers m_records;
};

}  // namespace testing_support

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <QByteArray>
#include <QByteArrayList>
#include <QHostAddress>
#include <QList>
#include <QString>

/// Questions to name servers and their answers.
namespace dns {

/// Record types by their numbers (RFC 1035 3.2.2, RFC 3596).
enum class Type : quint16 { A = 1, Ptr = 12, Mx = 15, Txt = 16, Aaaa = 28 };

/// Names are compared by their octets: write them in lower case and without a final dot.
struct Question {
    QByteArray name;
    Type type = Type::A;

    bool operator==(const Question&) const = default;
    bool operator<(const Question& other) const {
        return type != other.type ? type < other.type : name < other.name;
    }
};

/// A mail exchanger of a domain. The root as its host is a null MX (RFC 7505).
struct Exchanger {
    int preference = 0;
    QByteArray host;  ///< lower case, no final dot; empty: the root

    bool operator==(const Exchanger&) const = default;
};

/// Only the list that belongs to the type of the question is filled.
struct Answer {
    enum class Kind {
        Records,
        NoRecords,  ///< the name exists, and has none of this type
        NoName,     ///< there is no such name
        Failure,    ///< no answer, or one that cannot be used
    };
    Kind kind = Kind::Failure;
    QString why;  ///< of a failure, in Italian
    QList<QHostAddress> addresses;
    QByteArrayList texts;  ///< of each TXT record its strings, concatenated
    QList<Exchanger> exchangers;
    QByteArrayList names;  ///< of PTR records, lower case, no final dot

    bool failed() const { return kind == Kind::Failure; }
};

using Answers = std::map<Question, Answer>;

/// The name for the reverse look-up of an address (RFC 1035 3.5, RFC 3596 2.5).
QByteArray reverseName(const QHostAddress& address);

}  // namespace dns

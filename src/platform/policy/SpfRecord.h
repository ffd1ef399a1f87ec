// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArray>
#include <QHostAddress>
#include <QList>

/// The text of SPF records (RFC 7208 4.5, 4.6 and 5).
namespace policy::spf {

enum class Result { None, Neutral, Pass, Fail, SoftFail, TempError, PermError };

enum class Mechanism { All, Include, A, Mx, Ptr, Ip4, Ip6, Exists };

struct Directive {
    Result qualifier = Result::Pass;
    Mechanism mechanism = Mechanism::All;
    QByteArray domain;        ///< domain-spec, its macros as written; empty: the current domain
    QHostAddress network;     ///< of Ip4 and Ip6
    int prefixLength4 = 32;   ///< of A, Mx and Ip4
    int prefixLength6 = 128;  ///< of A, Mx and Ip6
    QByteArray text;          ///< the term as written
};

struct Record {
    QList<Directive> directives;
    std::optional<QByteArray> redirect;     ///< domain-spec
    std::optional<QByteArray> explanation;  ///< domain-spec
};

/// A record, or the first invalid term.
struct RecordRead {
    std::optional<Record> record;
    QByteArray faultyTerm;
};

/// Whether the text of a TXT record is one of SPF, valid or not.
bool isSpfRecord(const QByteArray& text);

/// Reads a text that isSpfRecord() accepts. A single error anywhere invalidates the whole record.
RecordRead readRecord(const QByteArray& text);

}  // namespace policy::spf

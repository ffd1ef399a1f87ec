// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QByteArray>
#include <QByteArrayView>

namespace mail {

/// Appends the relaxed form of a header field, which has a colon (RFC 6376 3.4.2), without a line end: the
/// name in lower case, folded lines joined, each run of blanks and tabs one blank, none around the colon or
/// at the end.
void appendRelaxedField(QByteArray& out, QByteArrayView field);

/// Brings a body into its relaxed form (RFC 6376 3.4.4): each run of blanks and tabs one blank, none at the
/// end of a line, no empty lines at the end.
class RelaxedBody {
  public:
    using Consumer = std::function<void(QByteArrayView octets)>;

    /// `consumer` is called with the octets of the form, in pieces as large as possible.
    explicit RelaxedBody(Consumer consumer) : m_consumer(std::move(consumer)) {}

    /// Takes the next lines, each ended by CR LF; a missing last CR LF is added. Empty lines are passed on
    /// only when something follows them.
    void add(QByteArrayView lines);

  private:
    void addRelaxed(QByteArrayView lines);
    qsizetype addLine(QByteArrayView lines);
    void passOnEmptyLines();

    Consumer m_consumer;
    qsizetype m_emptyLines = 0;  ///< not passed on yet
};

}  // namespace mail

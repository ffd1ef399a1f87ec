#pragma once

#include <functional>
#include <QByteArray>
#include <QByteArrayView>

namespace mail {

/// The relaxed form of a header field, which has a colon (RFC 6376 3.4.2), without a line end: the name in
/// lower case, folded lines joined, each run of blanks and tabs one blank, none around the colon or at the
/// end.
QByteArray relaxedField(QByteArrayView field);

/// Brings a body into its relaxed form (RFC 6376 3.4.4): each run of blanks and tabs one blank, none at the
/// end of a line, no empty lines at the end.
class RelaxedBody {
  public:
    using Consumer = std::function<void(QByteArrayView octets)>;

    /// `consumer` gets the octets of the form, in as large pieces as possible.
    explicit RelaxedBody(Consumer consumer) : m_consumer(std::move(consumer)) {}

    /// Takes the next lines, each ended by CR LF; a last one without is ended. What is left of empty lines is
    /// told when something follows them.
    void add(QByteArrayView lines);

  private:
    Consumer m_consumer;
    qsizetype m_emptyLines = 0;  ///< that were not handed on yet
};

}  // namespace mail

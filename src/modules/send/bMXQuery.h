// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

#include "modules/send/MotivoMX.h"
#include "platform/dns/ResolverConfig.h"
#include "platform/dns/UdpQuery.h"
#include "platform/Status.h"

/// The mail exchanger of a recipient's domain, asked for with DNS queries of the program's own: plain DNS
/// over UDP (RFC 1035), one query at a time, always to the first server known. Names are Windows-1252 text on
/// the wire.

/// One mail exchanger of a domain.
struct MXRecord {
    QString host;
    std::uint16_t preference = 0;  ///< the lowest one is served first
};

/// The text after the first "@" of an address, without the blanks at its ends; the whole text where there is
/// no "@".
QString DominioDi(const QString& indirizzo);

/// Looks up the exchanger of lowest preference, of several equal ones the first of the reply, and leaves it
/// in bestMX. An empty domain stands for the machine's own. Empty where the domain has no exchanger; for a
/// domain below the machine's own base domain the parent domains are asked then. It is also empty, and
/// does not fail, without a socket or an address of the server.
///
/// Blocks the thread until the server answers or refuses, at most twice attesa per query; for a domain about
/// which the server was silent before in this run (NuovoGiroMX) only attesaBreve, once. Unguarded. Its own
/// failures have the number erroreMX and the source "MXQuery"; a reply that is read beyond its end fails with
/// SubscriptOutOfRange and leaves bestMX as far as it got.
QString MXQuery(QString domain);

/// A run begins: every domain is waited for in full length again.
void NuovoGiroMX();

inline constexpr ErrorCode erroreMX{20000};

// The results of the look-ups, kept until the program ends.
inline QString bestMX;                         ///< result of the last look-up; empty if none
inline MotivoMX motivoMX = MotivoMX::Nessuno;  ///< why the last look-up left bestMX empty
inline QString queryDomain;                    ///< domain of the last query
inline std::vector<MXRecord> mxList;           ///< the exchangers of the last reply, ascending
inline std::int16_t mxCount = 0;               ///< entries of mxList that came from a reply
inline QStringList dnsServers;                 ///< servers found; only the first one is asked
inline int dnsCount = 0;                       ///< their number; 0 means not found yet
inline QString dnsDomain;                      ///< the machine's own domain
inline QString dnsBaseDomain;                  ///< its last two labels

/// The servers of a look-up; tests set their own.
struct ReteDNS {
    QString configurazione = dns::resolverConfigPath;
    std::uint16_t porta = 53;
    std::chrono::milliseconds attesa = dns::UdpQuery::usualWait;
    std::chrono::milliseconds attesaBreve{1000};
};
inline ReteDNS reteDNS;

// The steps of a look-up, public for their tests. All are unguarded.

/// Finds the servers and the own domain.
void TrovaDNS();

/// The text up to its first NUL without the blanks at its ends; without a NUL the text as it is.
QString TagliaNul(const QString& testo);

/// The name of the host with this address; empty where it has none or the text is no address.
QString NomeDaIP(const QString& indirizzo);

/// Second half of TrovaDNS: takes over the servers of a list that is separated by commas or blanks, and the
/// own domain. Without a domain, it is taken from the name of the first server.
void ImpostaDNS(QString lista, QString dominio,
                const std::function<QString(const QString&)>& nome = NomeDaIP);

/// The labels of a domain, each after its length; no final zero. An empty label, as between two points or
/// after a final one, has length 0. A label of more than 255 characters fails as one that cannot be sent.
QByteArray NomeDNS(const QString& domain);

/// The datagram that asks for the exchangers of a domain:
///   offset size
///    0     2    identifier 0x11DF     2  2  flags: recursion desired (0x0100)
///    4     2    questions: 1          6  6  answers, authorities, additional records: 0
///   12     L    NomeDNS(domain)    12+L  1  0
///   13+L   2    type 15 (MX)       15+L  2  class 1 (IN)
///   17+L   1    a spare byte that servers ignore
QByteArray ComponiQuery(const QString& domain);

/// Size of the buffer that replies are read from; after the reply it contains zeros.
inline constexpr qsizetype dimensioneRisposta = 2048;

/// Two bytes, the higher one first; moves the position past them.
std::uint16_t LeggiParola(QByteArrayView risposta, qsizetype& posizione);

/// Appends the name at the position to `nome` and moves the position onto its final zero, or past its final
/// pointer. Only pointers to the first 256 bytes are known (first byte C0); any other byte is the length of a
/// label. A loop of pointers fails like a position beyond the buffer.
void LeggiNome(QByteArrayView risposta, qsizetype& posizione, QString& nome);

/// Reads question and answers from the position on, `risposte` being the number of answers, into mxList,
/// mxCount and bestMX, and returns the latter. It uses the positions unchanged where every owner name is a
/// pointer and every exchanger's name ends in one, and stops at the first answer where that does not lead to
/// an MX record.
QString LeggiRisposta(QByteArrayView risposta, qsizetype posizione, std::uint16_t risposte);

/// Sorts by preference, ascending; equal ones keep their order.
void OrdinaMX(std::vector<MXRecord>& elenco);

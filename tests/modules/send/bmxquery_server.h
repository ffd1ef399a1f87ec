// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

#include "modules/send/bmxquery_state.h"
#include "platform/dns/UdpResponder.h"

/// Far beyond what a test may last: a test that waits for its end fails.
inline constexpr auto senzaFine = std::chrono::minutes(60);

class MXLookup : public ConStatoMX {
  protected:
    MXLookup() { reteDNS.attesa = senzaFine; }

    // One server on loopback, queried on the given port.
    static void server(std::uint16_t porta) {
        dnsServers = QStringList(QStringLiteral("127.0.0.1"));
        dnsCount = 1;
        reteDNS.porta = porta;
    }
};

/// The domain of a query, read back from its labels.
inline QString dominioDi(const testing_support::Datagram& query) {
    qsizetype posizione = 12;
    QString nome;
    LeggiNome(query.bytes, posizione, nome);
    return nome;
}

inline QStringList dominiDi(const std::vector<testing_support::Datagram>& queries) {
    QStringList domini;
    for (const testing_support::Datagram& query : queries)
        domini.append(dominioDi(query));
    return domini;
}

/// A reply to the query with one exchanger: a label in front of the query's name.
inline QByteArray rispostaA(const testing_support::Datagram& query, const QByteArray& etichetta) {
    QByteArray risposta = query.bytes.chopped(1);
    risposta[2] = '\x81';
    risposta[7] = 1;
    return risposta + QByteArray::fromHex("c00c000f000100000e100009000a") +
           static_cast<char>(etichetta.size()) + etichetta + QByteArray::fromHex("c00c");
}

inline testing_support::UdpResponder::Script unServer(const QByteArray& etichetta) {
    return [etichetta](const testing_support::LoopbackSocket& socket,
                       const std::vector<testing_support::Datagram>& received) {
        socket.send(received.back().from, rispostaA(received.back(), etichetta));
    };
}

/// A reply without answers: the query itself.
inline void nessuno(const testing_support::LoopbackSocket& socket,
                    const std::vector<testing_support::Datagram>& received) {
    socket.send(received.back().from, received.back().bytes.chopped(1));
}

inline void aspettaFallimento(const Fallimento& fallimento, const char* testo) {
    EXPECT_EQ(fallimento.numero(), 20000);
    EXPECT_EQ(fallimento.testo(), QString::fromLatin1(testo));
    EXPECT_EQ(fallimento.sorgente(), QStringLiteral("MXQuery"));
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QJsonObject>
#include <utility>

#include "modules/core/Fallimento.h"
#include "modules/send/bMXQuery.h"
#include "support/Vectors.h"

/// Resets the look-up's state, so that each test begins like a new process.
class ConStatoMX : public ::testing::Test {
  protected:
    ConStatoMX() { azzera(); }
    ~ConStatoMX() override { azzera(); }

  private:
    static void azzera() {
        bestMX.clear();
        motivoMX = MotivoMX::Nessuno;
        NuovoGiroMX();
        queryDomain.clear();
        mxList.clear();
        mxCount = 0;
        dnsServers.clear();
        dnsCount = 0;
        dnsDomain.clear();
        dnsBaseDomain.clear();
        reteDNS = {};
    }
};

using ElencoMX = std::vector<std::pair<QString, int>>;

/// mxList as plain pairs.
inline ElencoMX elencoMX() {
    ElencoMX elenco;
    for (const MXRecord& record : mxList)
        elenco.emplace_back(record.host, record.preference);
    return elenco;
}

/// The list of a vector: pairs of host and preference.
inline ElencoMX elencoDa(const QJsonValue& valore) {
    ElencoMX elenco;
    for (const QJsonValue coppia : valore.toArray())
        elenco.emplace_back(coppia[0].toString(), coppia[1].toInt());
    return elenco;
}

inline QByteArray esadecimale(const QJsonValue& valore) {
    return QByteArray::fromHex(valore.toString().toLatin1());
}

/// The failure of a statement; number 0 where it went through.
template <class Istruzione>
Fallimento fallimentoDi(Istruzione&& istruzione) {
    try {
        std::forward<Istruzione>(istruzione)();
    } catch (const Fallimento& fallimento) {
        return fallimento;
    }
    return Fallimento(0, {});
}

constexpr int indiceOltre = static_cast<int>(ErrorCode::SubscriptOutOfRange);

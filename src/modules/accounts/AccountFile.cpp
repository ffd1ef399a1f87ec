// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/accounts/AccountFile.h"

#include <QStringList>

#include "modules/accounts/bBinary.h"
#include "modules/core/Fallimento.h"
#include "platform/system/CoreDumps.h"
#include "platform/system/TextWriter.h"
#include "platform/text/NumberText.h"
#include "platform/text/TextFile.h"

const std::array<QString Account::*, Account::numeroCampi> Account::campi{
    &Account::idAccount,     &Account::txtNomeVisual, &Account::txtEmail,    &Account::txtServerSMTP,
    &Account::txtServerPORT, &Account::chkAutentick,  &Account::txtUsername, &Account::txtPassword,
    &Account::cmbSaluto,     &Account::txtOutPort,    &Account::chkUsaSMTP};

namespace {

Account daRiga(const QString& riga) {
    const QStringList valori = BitInTesto(riga).split(u'|');
    if (valori.size() < static_cast<qsizetype>(Account::numeroCampi))
        fallisci(ErrorCode::SubscriptOutOfRange);
    Account account;
    for (std::size_t i = 0; i < Account::numeroCampi; ++i) {
        account.*Account::campi[i] = valori[static_cast<qsizetype>(i)];
    }
    return account;
}

QString inRiga(const Account& account, int numero) {
    QString record = QString::number(numero);
    for (std::size_t i = 1; i < Account::numeroCampi; ++i)
        record += u'|' + account.*Account::campi[i];
    return TestoInBit(record);
}

// All fields but the number.
void copiaValori(const Account& da, Account& a) {
    for (std::size_t i = 1; i < Account::numeroCampi; ++i)
        a.*Account::campi[i] = da.*Account::campi[i];
}

Account& voce(TabellaAccount& tabella, int posizione) {
    if (posizione < 0 || posizione >= static_cast<int>(tabella.size()))
        fallisci(ErrorCode::SubscriptOutOfRange);
    return tabella[static_cast<std::size_t>(posizione)];
}

void apri(sys::TextWriter& file, const QString& percorso, sys::WriteMode modo) {
    esigi(file.open(percorso, modo, sys::FileKind::Secret));
}

// Writes the first `quanti` accounts of the table, numbered by their positions.
void riscrivi(const QString& percorso, TabellaAccount& tabella, int quanti) {
    Prosegui prosegui;
    sys::TextWriter file;
    prosegui([&] { apri(file, percorso, sys::WriteMode::Output); });
    for (int i = 0; i < quanti; ++i) {
        prosegui([&] { esigi(file.print(inRiga(voce(tabella, i), i))); });
    }
    prosegui([&] { esigi(file.close()); });
}

}  // namespace

QString VoceAccount(const Account& account) {
    return account.txtNomeVisual + QStringLiteral(" [") + account.txtEmail + u']';
}

bool CaricaAccount(const QString& percorso, TabellaAccount& tabella,
                   const std::function<void(const Account& account, int numero)>& aggiungi) {
    sys::forbidCoreDumps();
    text::LineReader file;
    esigi(file.open(percorso, text::LineEnds::Any));
    bool lette = false;
    while (!file.atEnd()) {
        QString riga;
        esigi(file.readLine(riga));
        Account account = daRiga(riga);
        const int numero = esigi(text::int16FromText(account.idAccount));
        if (numero < 0) fallisci(ErrorCode::SubscriptOutOfRange);
        const auto indice = static_cast<std::size_t>(numero);
        if (indice >= tabella.size()) tabella.resize(indice + 1);
        tabella[indice] = std::move(account);
        aggiungi(tabella[indice], numero);
        lette = true;
    }
    esigi(file.status());
    return lette;
}

int NuovoAccount(const QString& percorso, TabellaAccount& tabella, Account nuovo) {
    Prosegui prosegui;
    int numero = 0;
    prosegui([&] { numero = esigi(text::toInt16(static_cast<double>(tabella.size()))); });
    nuovo.idAccount = QString::number(numero);
    sys::TextWriter file;
    prosegui([&] { apri(file, percorso, sys::WriteMode::Append); });
    prosegui([&] { esigi(file.print(inRiga(nuovo, numero))); });
    prosegui([&] { esigi(file.close()); });
    const auto indice = static_cast<std::size_t>(numero);
    if (indice >= tabella.size()) tabella.resize(indice + 1);
    tabella[indice] = std::move(nuovo);
    return numero;
}

void ModificaAccount(const QString& percorso, TabellaAccount& tabella, int voci, int posizione,
                     const Account& valori) {
    Prosegui prosegui;
    prosegui([&] { copiaValori(valori, voce(tabella, posizione)); });
    riscrivi(percorso, tabella, voci);
}

void EliminaAccount(const QString& percorso, TabellaAccount& tabella, int voci, int posizione) {
    Prosegui prosegui;
    const int rimaste = voci - 1;
    for (int i = posizione; i < rimaste; ++i) {
        prosegui([&] { copiaValori(voce(tabella, i + 1), voce(tabella, i)); });
    }
    prosegui([&] {
        if (rimaste < 1) fallisci(ErrorCode::SubscriptOutOfRange);
        tabella.resize(static_cast<std::size_t>(rimaste));
    });
    riscrivi(percorso, tabella, rimaste);
}

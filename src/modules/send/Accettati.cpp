// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/Accettati.h"

#include <optional>

#include "modules/core/bGlobal.h"
#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "modules/store/RecordsetDB.h"
#include "platform/ado/Command.h"
#include "platform/ado/Waiting.h"
#include "platform/text/Words.h"

namespace {

constexpr int attesaMassima = 5;  // seconds, all statements for one recipient together

ado::Recordset RigheDi(qint64 numero, const QString& condizione = {}) {
    ado::Recordset rs = RecordsetDB();
    rs.setSource("SELECT * FROM [tb_destinatari] WHERE [id] = " + QString::number(numero) + condizione + ';');
    esigi(rs.open());
    return rs;
}

/// The address of a row; none where there is no such row, or no address in it.
std::optional<QString> IndirizzoDi(qint64 numero) {
    const ado::Recordset rs = RigheDi(numero);
    if (rs.isEof()) return std::nullopt;
    const ado::Value email = esigi(rs.value(u"email"));
    if (email.isNull()) return std::nullopt;
    return esigi(email.toText());
}

/// False where the row no longer has the address that was served.
bool TogliDallaSelezione(const mail::AcceptedEntry& accettato) {
    const ado::Waiting attesa(attesaMassima);
    std::optional<QString> email = IndirizzoDi(accettato.number);
    if (!email || !accettato.bears(*email)) return false;
    ado::Command cmd;
    esigi(cmd.setActiveConnection(connDB));
    cmd.setCommandTimeout(attesaMassima);
    cmd.setPrepared(false);
    cmd.setCommandText(
        "UPDATE [tb_destinatari] SET [sel] = False WHERE [id] = " + QString::number(accettato.number) +
        " AND [email] = '" + email->replace("'", "''") + "';");
    return esigi(cmd.execute()) > 0;
}

QList<qint64> NumeriRicordati() {
    mail::AcceptedList& elenco = accettati();
    elenco.refresh();
    QList<qint64> numeri;
    for (const mail::AcceptedEntry& accettato : elenco.of(mail::DatabaseFile::at(percorsoDB)))
        numeri.append(accettato.number);
    if (risposteAttese().numeri) numeri.append(risposteAttese().numeri());
    return numeri;
}

void Dimentica(const QList<qint64>& numeri) {
    if (numeri.isEmpty()) return;
    const auto database = mail::DatabaseFile::at(percorsoDB);
    for (const qint64 numero : numeri)
        accettati().remove(database, numero);
    if (risposteAttese().dimentica) risposteAttese().dimentica(numeri);
}

}  // namespace

mail::AcceptedList& accettati() {
    static mail::AcceptedList elenco;
    static QString cartella;
    // The folder stays the same outside tests.
    if (cartella != cartellaDati()) {
        cartella = cartellaDati();
        elenco.open(cartella);
    }
    return elenco;
}

RisposteAttese& risposteAttese() {
    static RisposteAttese attese;
    return attese;
}

void ApplicaAccettati(const std::function<void(const QString&)>& annota) {
    mail::AcceptedList& elenco = accettati();
    elenco.refresh();
    const auto database = mail::DatabaseFile::at(percorsoDB);
    for (const mail::AcceptedEntry& accettato : elenco.of(database)) {
        if (!TogliDallaSelezione(accettato) && annota)
            annota(
                Words::tr("Destinatario numero %1: già servito, ma la sua riga non ha più quell'indirizzo. "
                          "Resta com'è.")
                    .arg(accettato.number));
        elenco.remove(database, accettato.number);
    }
}

void DimenticaAccettato(const QString& id) {
    const qint64 numero = id.toLongLong();
    if (NumeriRicordati().contains(numero)) Dimentica({numero});
}

void DimenticaAccettatiDelGruppo(const QString& numero) {
    QList<qint64> suoi;
    for (const qint64 uno : NumeriRicordati())
        if (!RigheDi(uno, " AND [id_grp] = " + numero).isEof()) suoi.append(uno);
    Dimentica(suoi);
}

void DimenticaAccettati() {
    Dimentica(NumeriRicordati());
}

void DimenticaAccettati(const QList<qint64>& numeri) {
    QList<qint64> suoi = NumeriRicordati();
    suoi.removeIf([&](qint64 uno) { return !numeri.contains(uno); });
    Dimentica(suoi);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/store/Destinatario.h"

#include <QStringList>

namespace {

/// "email, rgs, nom, …"
QString elencoColonne(const schema::Ordine& ordine) {
    QStringList nomi;
    for (const schema::Campo campo : ordine)
        nomi << destinatario::NomeColonna(campo);
    return nomi.join(", ");
}

}  // namespace

QString destinatario::NomeColonna(schema::Campo campo) {
    return QStringView(schema::testi[campo].colonna).toString();
}

QString destinatario::Didascalia(schema::Campo campo) {
    return QStringView(schema::testi[campo].didascalia).toString();
}

QString destinatario::Segnaposto(schema::Campo campo) {
    return ":::" + NomeColonna(campo) + ":::";
}

QString destinatario::Taglia(QStringView valore, schema::Campo campo) {
    return valore.left(schema::testi[campo].massimo).toString();
}

QString destinatario::IstruzioneNuovo(const QString& gruppo, const QString& spedire, const Valori& valori) {
    static const QString inizio = "INSERT INTO [tb_destinatari] (id_grp, sel, " +
                                  elencoColonne(schema::ordineIstruzioni) + ") VALUES (";
    qsizetype lunghezza = inizio.size() + gruppo.size() + spedire.size() + 4;
    for (const schema::Campo campo : schema::ordineIstruzioni)
        lunghezza += valori[campo].size() + 4;
    QString istruzione;
    istruzione.reserve(lunghezza);
    istruzione += inizio + gruppo + ", " + spedire;
    for (const schema::Campo campo : schema::ordineIstruzioni) {
        istruzione += QLatin1String(", '");
        istruzione += valori[campo];
        istruzione += u'\'';
    }
    istruzione += QLatin1String(") ");
    return istruzione;
}

QString destinatario::IstruzioneModifica(const QString& id, const QString& gruppo, const QString& spedire,
                                         const Valori& valori) {
    QString istruzione = "UPDATE [tb_destinatari] SET id_grp = " + gruppo + ", sel = " + spedire;
    for (const schema::Campo campo : schema::ordineIstruzioni)
        istruzione += ", " + NomeColonna(campo) + " = '" + valori[campo] + '\'';
    return istruzione + " WHERE id = " + id + " ;";
}

QString destinatario::IstruzioneCopia(const QString& daGruppo, const QString& aGruppo) {
    const QString colonne = elencoColonne(schema::ordineTabella) + ", sel";
    return "INSERT INTO tb_destinatari (id_grp," + colonne + ") SELECT " + aGruppo + " as id_grp, " +
           colonne + " FROM tb_destinatari WHERE id_grp = " + daGruppo + " ;";
}

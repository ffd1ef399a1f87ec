#include "modules/import/Inserimento.h"

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"

QString inserimento::Taglia(QStringView valore, Colonna colonna) {
    return valore.left(limiti[colonna]).toString();
}

QString inserimento::Istruzione(const QString& gruppo, const Valori& valori) {
    QString istruzione =
        "INSERT INTO [tb_destinatari] (id_grp, sel, email, rgs, nom, piva, ind, cap, loc, prov, tel, fax, "
        "campo1, campo2, campo3, campo4, campo5, campo6, campo7, campo8, campo9) VALUES (";
    istruzione += gruppo;
    istruzione += ", True";
    for (const QString& valore : valori) {
        istruzione += ", '";
        istruzione += valore;
        istruzione += '\'';
    }
    istruzione += ") ";
    return istruzione;
}

void Inserimento::Prepara() {
    esigi(comando.setActiveConnection(connDB));
}

void Inserimento::Inserisci(const QString& gruppo, const inserimento::Valori& valori) {
    esigi(comando.execute(inserimento::Istruzione(gruppo, valori)));
}

void Inserimento::Conferma() {
    esigi(comando.commit());
}

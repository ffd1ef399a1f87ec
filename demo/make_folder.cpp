// SPDX-License-Identifier: GPL-3.0-or-later
// Makes a program folder for the demo: an empty database filled with the groups and recipients of
// recipients.tsv, a message with an attachment and a picture, one account.
//
//     demo_make FOLDER PORT [RECIPIENTS.tsv]
//
// The account sends through 127.0.0.1:PORT; for port 0 straight to the servers of the recipients' domains.
// The message is FOLDER/messaggi/autunno.mss.
#include <cstdio>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextStream>

#include "modules/accounts/AccountFile.h"
#include "modules/core/bGlobal.h"
#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "modules/message/MessaggioMss.h"
#include "modules/store/NuovoDatabase.h"
#include "modules/store/percorsoDBase.h"
#include "platform/ado/Recordset.h"
#include "platform/jet/Database.h"
#include "platform/system/ProgramFolder.h"

namespace {

QString readText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) fallisci(ErrorCode::FileNotFound, path);
    return QString::fromUtf8(file.readAll());
}

ado::Recordset openForAdding(const QString& table) {
    ado::Recordset rows;
    esigi(rows.setActiveConnection(connDB));
    rows.setCursorType(ado::CursorType::Keyset);
    rows.setLockType(ado::LockType::Optimistic);
    rows.setSource("SELECT * FROM [" + table + "];");
    esigi(rows.open());
    return rows;
}

qint64 addGroup(const QString& name) {
    ado::Recordset groups = openForAdding("tb_gruppi");
    esigi(groups.addNew());
    esigi(groups.setValue(u"id_up", ado::Value(0)));
    esigi(groups.setValue(u"nome", ado::Value(name)));
    const qint64 id = esigi(esigi(groups.value(u"id")).toInteger());
    esigi(groups.update());
    return id;
}

void fillDatabase(const QString& path, const QString& recipients) {
    esigi(schema::CreaDatabase(path.toStdString()));
    CambiaPercorsoDBase(path);
    if (const QString notice = CaricaPercorsoDBase(); !notice.isEmpty())
        fallisci(ErrorCode::PathAccess, notice);
    const QStringList lines = readText(recipients).split('\n', Qt::SkipEmptyParts);
    const QStringList columns = lines.first().split('\t');
    QHash<QString, qint64> groups;
    for (const QString& line : lines.mid(1)) {
        const QStringList cells = line.split('\t');
        const QString& group = cells.first();
        if (!groups.contains(group)) groups.insert(group, addGroup(group));
        ado::Recordset rows = openForAdding("tb_destinatari");
        esigi(rows.addNew());
        esigi(rows.setValue(u"id_grp", ado::Value(groups.value(group))));
        for (qsizetype i = 1; i < cells.size(); ++i) {
            ado::Value value;  // \N is Null, a column that is not in the file stays Null too
            if (columns[i] == "sel") {
                value = ado::Value(cells[i] == "1");
            } else if (cells[i] != "\\N") {
                value = ado::Value(cells[i]);
            }
            esigi(rows.setValue(columns[i], value));
        }
        esigi(rows.update());
    }
}

void paintLogo(const QString& path) {
    QImage logo(360, 128, QImage::Format_RGB32);
    logo.fill(QColor(59, 42, 26));
    QPainter painter(&logo);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 6; ++i) {
        painter.setBrush(QColor(138 + 16 * i, 43 + 22 * i, 29 + 12 * i));
        painter.drawEllipse(QPointF(40 + 56 * i, 64), 26, 26 + 4 * i);
    }
    painter.end();
    if (!logo.save(path, "PNG")) fallisci(ErrorCode::DeviceIo, path);
}

void printPriceList(const QString& path) {
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&writer);
    painter.setFont(QFont("DejaVu Sans", 12));
    for (int row = 0; row < 30; ++row)
        painter.drawText(600, 800 + 380 * row,
                         QStringLiteral("Articolo %1 . . . . %2,50 €").arg(row + 1).arg(3 + row));
}

QString writeMessage(const QString& folder) {
    QDir().mkpath(folder);
    const QString logo = folder + "/logo.png";
    const QString list = folder + "/Listino d'autunno 2026.pdf";
    paintLogo(logo);
    printPriceList(list);
    MessaggioMss message;
    message.Oggetto = ":::nom:::, le novità d’autunno per :::rgs::: (codice :::campo1:::)";
    message.Priorita = "NR";
    message.Allegati = QStringList{list};
    message.CorpoHTML = readText(QStringLiteral(DEMO_DIR "/newsletter.html")).replace("@LOGO@", logo);
    const QString path = folder + "/autunno.mss";
    ScriviMessaggio(path, message);
    return path;
}

void make(const QString& folder, const QString& port, const QString& recipients) {
    esigi(sys::fillProgramFolder(folder, QStringLiteral(DEMO_DIR "/../assets/templates")));
    sys::setProgramFolder(folder);
    fillDatabase(cartellaDati() + "data.mdb", recipients);
    Account account;
    account.txtNomeVisual = "La bottega di Città di Castello";
    account.txtEmail = "notizie@bottega.example";
    account.txtServerSMTP = "127.0.0.1";
    account.txtServerPORT = port;
    account.chkAutentick = "0";
    account.cmbSaluto = "EHLO";
    account.txtOutPort = "0";
    account.chkUsaSMTP = port == "0" ? "0" : "1";
    TabellaAccount table;
    NuovoAccount(cartellaDati() + "Account.imp", table, account);
    std::printf("%s\n", qUtf8Printable(writeMessage(folder + "/messaggi")));
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3 && arguments.size() != 4) {
        std::fprintf(stderr, "usage: demo_make FOLDER PORT [RECIPIENTS.tsv]\n");
        return 2;
    }
    try {
        make(arguments[1], arguments[2], arguments.value(3, QStringLiteral(DEMO_DIR "/recipients.tsv")));
    } catch (const Fallimento& failure) {
        std::fprintf(stderr, "demo_make: %d %s\n", failure.numero(), failure.what());
        return 1;
    }
    return 0;
}

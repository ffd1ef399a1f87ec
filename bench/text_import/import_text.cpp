// SPDX-License-Identifier: GPL-3.0-or-later
// Imports a delimited text file as the window of the text import does, or prints the statements of that
// import for another database engine.
//
//     import_text FILE.txt FILE.mdb       a new database with the rows; prints rows, and peak memory in KB
//     import_text FILE.txt --statements GROUP   the statements, in transactions of GROUP, on the output
#include <sys/resource.h>

#include <cstdio>
#include <QCoreApplication>
#include <QFile>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/import/Inserimento.h"
#include "modules/import/RigaTesto.h"
#include "modules/store/Destinatario.h"
#include "modules/store/NuovoDatabase.h"
#include "platform/ado/ConnectionText.h"
#include "platform/jet/Database.h"
#include "platform/text/TextFile.h"

namespace {

constexpr int columns =
    12;  // company, name, address, VAT, street, postcode, town, province, telephone, fax, 1, 2

RigaTesto rule() {
    RigaTesto lettore;
    lettore.separatore = ";";
    lettore.posizioni = {1, 2, 3, 4, 6, 7, 8, 5, 9, 10, 11, columns};
    return lettore;
}

template <class Take>
qint64 walk(const QString& path, const Take& take) {
    text::LineReader file;
    esigi(file.open(path, text::LineEnds::Any));
    const RigaTesto lettore = rule();
    qint64 rows = 0;
    QString line;
    while (!file.atEnd()) {
        esigi(file.readLine(line));
        if (const auto values = lettore.Leggi(line)) {
            take(*values);
            ++rows;
        }
    }
    esigi(file.status());
    return rows;
}

void printStatements(const QString& path, qint64 group) {
    qint64 inGroup = 0;
    const auto put = [](const QByteArray& text) {
        std::fwrite(text.constData(), 1, size_t(text.size()), stdout);
    };
    walk(path, [&](const destinatario::Valori& values) {
        if (inGroup == 0) put("BEGIN;\n");
        put(destinatario::IstruzioneNuovo("1", "True", values).toUtf8() + ";\n");
        if (++inGroup < group) return;
        put("COMMIT;\n");
        inGroup = 0;
    });
    if (inGroup > 0) put("COMMIT;\n");
}

void importInto(const QString& path, const QString& database) {
    esigi(schema::CreaDatabase(database.toStdString()));
    connDB = ado::connectionPrefix + database;
    Inserimento inserts;
    inserts.Prepara();
    const qint64 rows =
        walk(path, [&](const destinatario::Valori& values) { inserts.Inserisci("1", values); });
    inserts.Conferma();
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("{\"rows\": %lld, \"kilobytes\": %ld}\n", static_cast<long long>(rows), usage.ru_maxrss);
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    try {
        if (arguments.size() == 4 && arguments[2] == "--statements")
            printStatements(arguments[1], arguments[3].toLongLong());
        else if (arguments.size() == 3)
            importInto(arguments[1], arguments[2]);
        else
            return 2;
    } catch (const Fallimento& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}

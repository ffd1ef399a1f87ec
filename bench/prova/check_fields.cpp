// SPDX-License-Identifier: GPL-3.0-or-later
// check_fields FILE [ROUNDS]
//     selects every recipient, then by turns reads every column of the whole table as text and checks the
//     selection for the placeholders of a message; prints the median processor seconds of both, and
//     the number of recipients
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <QCoreApplication>
#include <vector>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/store/RecordsetDB.h"
#include "modules/strumenti/ControlloCampi.h"
#include "platform/ado/Command.h"

namespace {

qsizetype scan() {
    ado::Recordset rows = RecordsetDB();
    rows.setSource("SELECT * FROM [tb_destinatari];");
    esigi(rows.open());
    qsizetype characters = 0;
    for (; !rows.isEof(); esigi(rows.moveNext()))
        for (int i = 0; i < rows.fieldCount(); ++i)
            characters += esigi(rows.value(i)).toTextOrEmpty().size();
    return characters;
}

qint64 check() {
    const TestiMessaggio message{
        "<p>Gentile :::nom::: di :::rgs:::, :::campo1:::</p><a "
        "href=\"https://x.example/?e=:::email:::\">:::loc:::</a>",
        {},
        ":::rgs:::",
        {}};
    ControlloCampi control(UsiDi(message));
    while (control.Avanza(std::chrono::milliseconds(15))) {
    }
    return control.righe();
}

template <class Work>
double seconds(Work work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc < 2) return 2;
    percorsoDB = QString::fromLocal8Bit(argv[1]);
    connDB = "Provider = Microsoft.Jet.OLEDB.4.0; Data Source = " + percorsoDB;
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 5;
    try {
        ado::Command select;
        esigi(select.setActiveConnection(connDB));
        select.setCommandText("UPDATE [tb_destinatari] SET [sel] = True;");
        esigi(select.execute());
        std::vector<double> scans, checks;
        qint64 checked = 0;
        for (int i = 0; i < rounds; ++i) {
            scans.push_back(seconds([] { return scan(); }));
            checks.push_back(seconds([&] { checked = check(); }));
        }
        std::printf("%f %f %lld\n", median(scans), median(checks), static_cast<long long>(checked));
    } catch (const Fallimento& failure) {
        std::fprintf(stderr, "check_fields: %s\n", failure.what());
        return 1;
    }
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/SampleFolder.h"

#include <algorithm>
#include <QDir>
#include <QFile>
#include <QTest>
#include <string>
#include <vector>

#include "modules/core/bGlobal.h"
#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "modules/message/MessaggiNoti.h"
#include "modules/store/NuovoDatabase.h"
#include "modules/store/percorsoDBase.h"
#include "modules/store/Schema.h"
#include "platform/ado/Command.h"
#include "platform/ado/Recordset.h"
#include "platform/jet/Database.h"
#include "platform/system/HomeFolder.h"
#include "platform/system/ProgramFolder.h"
#include "support/JetChecker.h"

namespace testing_support {

namespace {

jet::Value cell(const schema::Colonna& column, const SampleFolder::Columns& columns) {
    const QString name = QString::fromUtf16(column.nome.data(), static_cast<qsizetype>(column.nome.size()));
    if (column.tipo == schema::Tipo::Contatore) return {};
    if (column.tipo == schema::Tipo::Lungo) return int64_t{1};
    if (column.tipo == schema::Tipo::SiNo) return columns.value(name, "1") == "1";
    const QString text = columns.value(name, QLatin1String(""));
    return text.isNull() ? jet::Value() : jet::Value(text.toStdString());
}

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

constexpr qsizetype pageSize = 4096;
const QByteArray damagedPage(pageSize, '\xee');

/// Makes the running test fail where the file that the engine has written is not sound.
void requireSound(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return;
    const QByteArray whole = file.readAll();
    for (qsizetype page = 0; page < whole.size(); page += pageSize)
        if (whole.sliced(page, std::min(pageSize, whole.size() - page)) == damagedPage) return;
    const std::vector<std::string> findings = checkJetFile(path.toStdString());
    if (findings.empty()) return;
    if (!QTest::currentTestFunction()) qFatal("the database is not sound: %s", findings.front().c_str());
    QTest::qFail(("the database is not sound: " + findings.front()).c_str(), __FILE__, __LINE__);
}

}  // namespace

SampleFolder::SampleFolder() {
    QDir(m_dir.path()).mkdir("data");
    sys::setProgramFolder(m_dir.path() + '/');
    sys::setHomeFolder(m_dir.path());
    makeDatabase(schema::TabelleNuove());
    CambiaPercorsoDBase(database());
    static_cast<void>(CaricaPercorsoDBase());
    write(cartellaDati() + "Account.imp", {});
    write(path("LANG.lng"),
          "[<LNG1>]Italiano\r\n[<MDLO>]: bVAR\r\n[<NOME>]Lingua[<LNG1>]&Lingua[<LNG2>]\r\n");
    write(path("LANGz.lng"), "Italiano\r\n");
}

/// With the group "Clienti".
void SampleFolder::makeDatabase(const std::vector<jet::NewTable>& tables) const {
    esigi(jet::createDatabase(database().toStdString(), tables));
    auto file = esigi(jet::Database::open(database().toStdString()));
    esigi(file->begin());
    const jet::Value group[] = {{}, int64_t{0}, std::string("Clienti")};
    esigi(esigi(file->table("tb_gruppi"))->insert(group));
    esigi(file->commit());
}

void SampleFolder::narrowGroupNames(int characters) {
    ado::closeAll();
    QFile::remove(database());
    std::vector<jet::NewTable> tables = schema::TabelleNuove();
    tables.front().columns.back().characters = static_cast<uint16_t>(characters);
    makeDatabase(tables);
}

SampleFolder::~SampleFolder() {
    ado::closeAll();
    requireSound(database());
    sys::setProgramFolder({});
    sys::setHomeFolder({});
}

int SampleFolder::addRecipients(const QList<Columns>& recipients) {
    auto file = esigi(jet::Database::open(database().toStdString()));
    jet::Table* table = esigi(file->table("tb_destinatari"));
    esigi(file->begin());
    int first = 0;
    for (const Columns& columns : recipients) {
        std::vector<jet::Value> row;
        for (const schema::Colonna& column : schema::colonneDestinatari)
            row.push_back(cell(column, columns));
        const int number = esigi(table->takeAutoNumber());
        if (first == 0) first = number;
        row[0] = int64_t{number};
        esigi(table->insert(row));
    }
    esigi(file->commit());
    return first;
}

void SampleFolder::run(const QString& statement) {
    ado::Command command;
    esigi(command.setActiveConnection(connDB));
    command.setCommandText(statement);
    esigi(command.execute());
}

QStringList SampleFolder::selected() {
    ado::Recordset rows;
    esigi(rows.setActiveConnection(connDB));
    rows.setSource(
        "SELECT * FROM [tb_destinatari] WHERE [sel] = True "
        "ORDER BY rgs ASC, email ASC, nom ASC, loc ASC, ind ASC;");
    esigi(rows.open());
    QStringList addresses;
    for (; !rows.isEof(); esigi(rows.moveNext()))
        addresses << esigi(rows.value(u"email")).toTextOrEmpty();
    return addresses;
}

Account SampleFolder::loopbackAccount(quint16 port) {
    Account account;
    account.txtNomeVisual = "Klukla";
    account.txtEmail = "info@klukla.example";
    account.txtServerSMTP = "127.0.0.1";
    account.txtServerPORT = QString::number(port);
    account.chkAutentick = "0";
    account.cmbSaluto = "EHLO";
    account.txtOutPort = "0";
    account.chkUsaSMTP = "1";
    return account;
}

void SampleFolder::addAccount(const Account& account) {
    NuovoAccount(cartellaDati() + "Account.imp", m_accounts, account);
}

QString SampleFolder::writeMessage(const QString& name, const MessaggioMss& message) const {
    const QByteArray bytes = ScriviMessaggio(path(name), message);
    messaggiNoti::Annota(path(name), messaggiNoti::Impronta(bytes), {});
    return path(name);
}

QString SampleFolder::writeMessage() const {
    MessaggioMss message;
    message.Oggetto = ":::rgs:::";
    message.Priorita = "NR";
    message.CorpoHTML = "<html><body><p>Gentile :::nom:::</p></body></html>";
    return writeMessage("prova.mss", message);
}

void SampleFolder::damagePagesWith(const QByteArray& text) const {
    QFile file(database());
    if (!file.open(QIODevice::ReadWrite)) qFatal("no database");
    const QByteArray whole = file.readAll();
    int damaged = 0;
    for (qsizetype page = 0; page < whole.size(); page += pageSize) {
        if (!whole.sliced(page, pageSize).contains(text)) continue;
        file.seek(page);
        file.write(damagedPage);
        ++damaged;
    }
    if (damaged == 0) qFatal("the text is on no page");
}

void SampleFolder::renameInFile(const QString& path, const QByteArray& from, const QByteArray& to) {
    if (from.size() != to.size()) qFatal("a name of another length");
    const auto wide = [](const QByteArray& text) {
        QByteArray bytes;
        for (const char character : text)
            bytes += character + QByteArray(1, '\0');
        return bytes;
    };
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)) qFatal("no database");
    const QByteArray before = file.readAll();
    QByteArray bytes = before;
    bytes.replace(wide(from), wide(to)).replace(from, to);
    if (bytes == before) qFatal("the name is not in the file");
    file.seek(0);
    if (file.write(bytes) != bytes.size()) qFatal("cannot write");
}

void SampleFolder::hideDatabase() {
    QFile::rename(database(), database() + ".via");
}

void SampleFolder::showDatabase() {
    QFile::rename(database() + ".via", database());
}

}  // namespace testing_support

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/NameServer.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QHostAddress>
#include <QUdpSocket>

namespace testing_support {

namespace {

constexpr quint16 dnsPort = 53;

// %1: a folder
const char* const unboundSettings = R"(server:
  interface: 127.0.0.1
  do-daemonize: no
  use-syslog: no
  chroot: ""
  username: ""
  directory: "%1"
  pidfile: ""
  do-ip6: no
  access-control: 127.0.0.0/8 allow
  rrset-roundrobin: no
  module-config: "iterator"
  local-zone: "." static
)";

QByteArray unboundLine(const QByteArray& record) {
    return "  local-data: \"" + record + "\"\n";
}

QByteArray unboundFile(const QString& folder, const NameServer::Records& records) {
    QByteArray text = QString::fromLatin1(unboundSettings).arg(folder).toUtf8();
    for (const auto& [domain, preference, host] : records.exchangers)
        text += unboundLine(domain + ". MX " + QByteArray::number(preference) + ' ' + host + '.');
    for (const auto& [host, address] : records.addresses)
        text += unboundLine(host + ". A " + address);
    for (const auto& [name, target] : records.aliases)
        text += unboundLine(name + ". CNAME " + target + '.');
    for (const QByteArray& record : records.others)
        text += "  local-data: '" + record + "'\n";
    return text;
}

QByteArray dnsmasqFile(const NameServer::Records& records) {
    QByteArray text = "no-resolv\nno-hosts\nlisten-address=127.0.0.1\nbind-interfaces\nlocal=/#/\n";
    for (const auto& [domain, preference, host] : records.exchangers)
        text += "mx-host=" + domain + ',' + host + ',' + QByteArray::number(preference) + '\n';
    for (const auto& [host, address] : records.addresses)
        text += "host-record=" + host + ',' + address + '\n';
    for (const auto& [name, target] : records.aliases)
        text += "cname=" + name + ',' + target + '\n';
    return text;
}

/// Whether a server answers a query for the root's name servers.
bool answers() {
    static const QByteArray question = QByteArray::fromHex(
        "000101000001000000000000"
        "00"
        "00020001");
    QUdpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), dnsPort);
    socket.write(question);
    return socket.waitForReadyRead(50) && socket.pendingDatagramSize() > 0;
}

}  // namespace

NameServer::NameServer(Program program, const Records& records) {
    const bool unbound = program == Program::Unbound;
    QFile file(m_folder.filePath("server.conf"));
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(unbound ? unboundFile(m_folder.path(), records) : dnsmasqFile(records)) < 0 ||
        !file.flush()) {
        m_problem = "the configuration cannot be written";
        return;
    }
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    if (unbound) {
        m_process.start("/usr/sbin/unbound", {"-d", "-c", file.fileName()});
    } else {
        m_process.start("/usr/sbin/dnsmasq", {"--no-daemon", "-C", file.fileName()});
    }
    QDeadlineTimer deadline(20000);
    while (!answers()) {
        m_process.waitForFinished(20);
        if (m_process.state() == QProcess::NotRunning || deadline.hasExpired()) {
            m_problem = "the name server does not run: " + m_process.readAll();
            return;
        }
    }
}

NameServer::~NameServer() {
    m_process.kill();
    m_process.waitForFinished();
}

}  // namespace testing_support

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <QByteArrayList>
#include <QFile>
#include <QHostInfo>
#include <QTest>
#include <QUdpSocket>

namespace testing_support {

/// The only name server of a private network (see PrivateNetwork.h): remembers every name that it is asked
/// for, by whatever process, and knows none of them.
class NamesAsked : public QUdpSocket {
  public:
    NamesAsked() {
        if (!bind(QHostAddress::LocalHost, 53)) qFatal("the port for names is taken");
        connect(this, &QUdpSocket::readyRead, this, [this] {
            while (hasPendingDatagrams())
                answer();
        });
    }

    /// Names asked for before this call: a name of the test's own ends the list.
    QByteArrayList soFar() {
        const QByteArray last = "fine" + QByteArray::number(++m_calls) + ".example";
        QHostInfo::lookupHost(QString::fromLatin1(last), this, [](const QHostInfo&) {});
        if (!QTest::qWaitFor([&] { return m_names.contains(last); }, 60000)) qFatal("no name is asked for");
        QByteArrayList before = m_names.mid(0, m_names.indexOf(last));
        m_names.clear();
        return before;
    }

  private:
    void answer() {
        QHostAddress client;
        quint16 port = 0;
        QByteArray packet(int(pendingDatagramSize()), 0);
        readDatagram(packet.data(), packet.size(), &client, &port);
        QByteArray name;
        for (qsizetype at = 12; at < packet.size() && packet[at] != 0; at += packet[at] + 1)
            name += (name.isEmpty() ? "" : ".") + packet.mid(at + 1, packet[at]);
        m_names.append(name);
        packet[2] = '\x81';
        packet[3] = '\x83';  // there is no such name
        packet.replace(6, 6, QByteArray(6, 0));
        writeDatagram(packet, client, port);
    }

    QByteArrayList m_names;
    int m_calls = 0;
};

/// What all processes of this private network together have tried to send, by the kernel's count:
/// datagrams, connections, and packets that have no way out. Empty where the kernel does not count.
inline std::map<QByteArray, qint64> networkAttempts() {
    std::map<QByteArray, qint64> attempts;
    QFile table(QStringLiteral("/proc/self/net/snmp"));
    if (!table.open(QIODevice::ReadOnly)) return attempts;
    const QByteArrayList lines = table.readAll().split('\n');
    for (qsizetype i = 0; i + 1 < lines.size(); i += 2) {
        const QByteArrayList names = lines[i].simplified().split(' ');
        const QByteArrayList values = lines[i + 1].simplified().split(' ');
        for (qsizetype j = 1; j < names.size() && j < values.size(); ++j) {
            const QByteArray name = names[0] + names[j];
            if (name == "Ip:OutRequests" || name == "Ip:OutNoRoutes" || name == "Tcp:ActiveOpens" ||
                name == "Udp:OutDatagrams")
                attempts[name] = values[j].toLongLong();
        }
    }
    QFile six(QStringLiteral("/proc/self/net/snmp6"));
    if (!six.open(QIODevice::ReadOnly)) return attempts;
    for (const QByteArray& line : six.readAll().split('\n')) {
        const QByteArrayList words = line.simplified().split(' ');
        if (words[0] == "Udp6OutDatagrams" || words[0] == "Ip6OutNoRoutes")
            attempts[words[0]] = words.value(1).toLongLong();
    }
    return attempts;
}

}  // namespace testing_support

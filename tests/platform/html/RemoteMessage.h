// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <QList>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

/// A server on this machine that counts all connections.
class CountingServer : public QTcpServer {
  public:
    CountingServer() {
        if (!listen(QHostAddress::LocalHost)) qFatal("no port");
        connect(this, &QTcpServer::newConnection, this, [this] {
            const std::unique_ptr<QTcpSocket> visitor(nextPendingConnection());
            m_ports.append(visitor->peerPort());
        });
    }
    QString address(const QString& path) const {
        return QStringLiteral("http://127.0.0.1:%1/%2").arg(serverPort()).arg(path);
    }
    /// Connections before this call: the server serves in order, so a connection of the test's own ends the
    /// count.
    qsizetype visitsSoFar() {
        QTcpSocket last;
        last.connectToHost(QHostAddress::LocalHost, serverPort());
        if (!QTest::qWaitFor([&] { return m_ports.contains(last.localPort()); })) qFatal("nobody is served");
        const qsizetype before = m_ports.indexOf(last.localPort());
        m_ports.removeAt(before);
        return before;
    }

  private:
    QList<quint16> m_ports;
};

/// A message that asks for something below the address in every way that HTML knows.
inline QString remoteMessage(const QString& address) {
    return QStringLiteral(
               "<html><head><base href='%1'><link rel=stylesheet href='%1a.css'><link rel=preconnect "
               "href='%1'>"
               "<link rel=dns-prefetch href='%1'><link rel=prefetch href='%1b'><link rel=preload "
               "as=image href='%1c'>"
               "<link rel=icon href='%1d.ico'><link rel=manifest href='%1e'><link rel=modulepreload "
               "href='%1f'>"
               "<link rel=prerender href='%1pr'>"
               "<style>@import url(%1g.css); @font-face { font-family: F; src: url(%1h.woff) } p { "
               "font-family: F; "
               "background: url(%1i.png) } li { list-style-image: url(%1j.png) } a { cursor: "
               "url(%1k.cur), auto }"
               "</style><script src='%1l.js'></script></head><body "
               "background='%1m.gif'><p>testo</p><ul><li>x</ul>"
               "<img src='%1n.png'><img srcset='%1o.png 2x'><img src='p.png'><input type=image "
               "src='%1q.png'>"
               "<iframe src='%1r'></iframe><iframe srcdoc=\"<img src='%1s.png'>\"></iframe><object "
               "data='%1t'></object>"
               "<embed src='%1u'><video src='%1v' poster='%1w' preload autoplay></video><audio src='%1x' "
               "preload "
               "autoplay></audio><table background='%1y.gif'><tr><td>x</table><svg><image href='%1z.png' "
               "width=9 "
               "height=9/><use href='%1aa.svg#a'/></svg><picture><source srcset='%1bb.png'><img "
               "src=x></picture>"
               "<bgsound src='%1cc'><frame src='%1dd'><applet code='%1ee'></applet><portal "
               "src='%1ff'></portal>"
               "<img src='file://127.0.0.1/gg.png'><a href='%1hh' ping='%1ii' "
               "id=link>vai</a></body></html>")
        .arg(address);
}

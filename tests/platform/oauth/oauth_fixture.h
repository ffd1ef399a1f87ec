// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>

#include "platform/oauth/Provider.h"
#include "platform/system/Clock.h"
#include "support/AuthorizationServer.h"

/// The folder of providers and tokens, and an authorization server that its file names.
class OAuth : public testing::Test {
  protected:
    OAuth() {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        QDir().mkpath(folder);
        writeProviders(server.providers());
    }
    ~OAuth() override { sys::clock() = sys::systemClock(); }

    void writeProviders(const QByteArray& content) const { write(folder + "/providers.json", content); }
    static void write(const QString& path, const QByteArray& content) {
        QDir().mkpath(path.left(path.lastIndexOf('/')));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    void writeToken(const QByteArray& content) const {
        write(tokenFile, content);
        ASSERT_TRUE(QFile::setPermissions(tokenFile, QFile::ReadOwner | QFile::WriteOwner));
    }
    static QByteArray read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    oauth::Provider provider() const { return oauth::readProviders(folder).value().first(); }
    static QString trust() { return testing_support::TestCertificates::get().trustFolder(); }

    template <class Condition>
    static bool turnUntil(Condition condition) {
        const QDeadlineTimer patience(20000);
        while (!condition()) {
            if (patience.hasExpired()) return false;
            QEventLoop loop;
            QTimer::singleShot(1, &loop, &QEventLoop::quit);
            loop.exec();
        }
        return true;
    }

    /// What the browser shows when it is sent to `address`.
    static QByteArray browse(const QUrl& address) {
        return ask(quint16(address.port()),
                   "GET " + address.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority) +
                       " HTTP/1.1\r\nHost: x\r\n\r\n");
    }
    static QByteArray ask(quint16 port, const QByteArray& request) {
        QTcpSocket browser;
        browser.connectToHost(QHostAddress::LocalHost, port);
        browser.write(request);
        EXPECT_TRUE(turnUntil([&] { return browser.state() == QAbstractSocket::UnconnectedState; }));
        return browser.readAll();
    }

    QTemporaryDir temporary;
    const QString folder = temporary.filePath("oauth");
    const QString tokenFile = folder + "/prova/rossi%40example.it.json";
    const QString user = "rossi@example.it";
    testing_support::AuthorizationServer server;
};

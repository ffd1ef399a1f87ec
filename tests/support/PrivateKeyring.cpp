// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/PrivateKeyring.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

#include "platform/system/Keyring.h"

namespace {

constexpr const char* bus = "DBUS_SESSION_BUS_ADDRESS";
constexpr int patience = 30000;  // milliseconds

constexpr const char* configuration =
    R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:dir=%1</listen><policy context="default">
<allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy></busconfig>
)";

/// A keyring that is just starting stores nothing yet.
bool takesPasswords() {
    QElapsedTimer waited;
    for (waited.start(); waited.elapsed() < patience; QThread::msleep(50)) {
        if (!sys::keyring::available()) continue;
        const auto marker = sys::keyring::store({}, "prova", "prova");
        if (marker.ok()) return sys::keyring::remove(marker.value()).ok();
    }
    return false;
}

}  // namespace

PrivateKeyring::PrivateKeyring() : m_before(qgetenv(bus)) {
    if (QStandardPaths::findExecutable("gnome-keyring-daemon").isEmpty()) return;
    for (const char* name : {"run", "data"})
        QDir(m_folder.path()).mkdir(name, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile settings(m_folder.filePath("bus.conf"));
    if (!settings.open(QIODevice::WriteOnly)) return;
    settings.write(QString(configuration).arg(m_folder.path()).toUtf8());
    settings.close();
    m_bus.setProcessChannelMode(QProcess::SeparateChannels);
    m_bus.setStandardErrorFile(QProcess::nullDevice());
    m_bus.start("dbus-daemon", {"--config-file", m_folder.filePath("bus.conf"), "--print-address", "--nofork",
                                "--nopidfile"});
    if (!m_bus.waitForReadyRead(patience)) return;
    qputenv(bus, m_bus.readLine().trimmed());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_RUNTIME_DIR", m_folder.filePath("run"));
    environment.insert("XDG_DATA_HOME", m_folder.filePath("data"));
    environment.insert("HOME", m_folder.path());
    m_keyring.setProcessEnvironment(environment);
    m_keyring.setStandardErrorFile(QProcess::nullDevice());
    m_keyring.setStandardOutputFile(QProcess::nullDevice());
    m_keyring.setStandardInputFile(settings.fileName());  // any text will do for its own password
    m_keyring.start("gnome-keyring-daemon", {"--foreground", "--unlock", "--components=secrets",
                                             "--control-directory=" + m_folder.filePath("run")});
    m_runs = m_keyring.waitForStarted(patience) && takesPasswords();
}

PrivateKeyring::~PrivateKeyring() {
    for (QProcess* process : {&m_keyring, &m_bus}) {
        process->kill();
        process->waitForFinished();
    }
    m_before.isNull() ? qunsetenv(bus) : qputenv(bus, m_before);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Postfix.h"

#include <pwd.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QThread>

#include "support/TestCertificates.h"

namespace testing_support {

namespace {

constexpr int postfixPatienceMs = 30000;
constexpr int askAgainMs = 20;

// %1: the temporary folder
const char* const settings = R"(compatibility_level = 3.6
queue_directory = %1/spool
data_directory = %1/data
mail_owner = postfix
setgid_group = postdrop
maillog_file = %1/log
maillog_file_prefixes = %1
inet_interfaces = loopback-only
myhostname = posta.example
mydestination =
mynetworks =
alias_maps =
alias_database =
virtual_mailbox_domains = example.it
virtual_mailbox_maps = static:box/
virtual_mailbox_base = %1/mail
virtual_uid_maps = static:65534
virtual_gid_maps = static:65534
message_size_limit = 30000000
mailbox_size_limit = 0
virtual_mailbox_limit = 0
smtpd_tls_cert_file = %1/certificate.pem
smtpd_tls_key_file = %1/key.pem
smtpd_tls_security_level = may
smtpd_sasl_auth_enable = yes
cyrus_sasl_config_path = %1/sasl
smtpd_sasl_local_domain = posta.example
smtpd_recipient_restrictions = permit_sasl_authenticated, reject
smtpd_relay_restrictions = permit_sasl_authenticated, reject
)";

const char* const services = R"(587 inet n - n - - smtpd -o smtpd_tls_auth_only=yes
465 inet n - n - - smtpd -o smtpd_tls_wrappermode=yes
cleanup unix n - n - 0 cleanup
qmgr unix n - n 300 1 qmgr
tlsmgr unix - - n 1000? 1 tlsmgr
rewrite unix - - n - - trivial-rewrite
bounce unix - - n - 0 bounce
defer unix - - n - 0 bounce
trace unix - - n - 0 bounce
proxymap unix - - n - - proxymap
smtp unix - - n - - smtp
error unix - - n - - error
retry unix - - n - - error
virtual unix - n n - - virtual
anvil unix - - n - 1 anvil
scache unix - - n - 1 scache
postlog unix-dgram n - n - 1 postlogd
)";

}  // namespace

Postfix::Postfix(quint16 relayPort) {
    configure(relayPort);
    if (m_isPossible && m_problem.isEmpty()) run("/usr/sbin/postfix", {"-c", m_folder.path(), "start"});
}

Postfix::~Postfix() {
    if (m_isPossible) run("/usr/sbin/postfix", {"-c", m_folder.path(), "stop"});
}

void Postfix::configure(quint16 relayPort) {
    // the server's own users need access to their folders
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7055));
    for (const char* name : {"spool", "data", "mail", "sasl"})
        QDir().mkpath(path(name));
    giveAway("data", "postfix");
    giveAway("mail", "nobody");

    const QByteArray folder = m_folder.path().toUtf8();
    write("main.cf", QByteArray(settings).replace("%1", folder) +
                         "transport_maps = inline:{ { altrove.example = smtp:[127.0.0.1]:" +
                         QByteArray::number(relayPort) + " } }\n");
    QByteArray master = services;
    master += QByteArray::number(onlyPasswords) + " inet n - n - - smtpd -o smtpd_sasl_path=passwords\n";
    for (qsizetype i = 0; i < mechanisms().size(); ++i) {
        master += QByteArray::number(firstMechanism + i) +
                  " inet n - n - - smtpd -o smtpd_sasl_mechanism_filter=" + mechanisms()[i].toLower() + '\n';
    }
    write("master.cf", master);
    const auto writeSasl = [&](const char* name, const QByteArrayList& known) {
        write(name, "pwcheck_method: auxprop\nauxprop_plugin: sasldb\nmech_list: " + known.join(' ') +
                        "\nsasldb_path: " + folder + "/sasl/users\n");
    };
    writeSasl("sasl/smtpd.conf", mechanisms());
    writeSasl("sasl/passwords.conf", {"PLAIN", "LOGIN"});
    const TlsIdentity& identity = TestCertificates::get().good();
    write("key.pem", identity.key.toPem());
    write("certificate.pem", identity.certificate.toPem());
    run("saslpasswd2", {"-p", "-c", "-f", path("sasl/users"), "-u", "posta.example", user},
        password.toUtf8());
    giveAway("sasl/users", "postfix");
}

void Postfix::giveAway(const char* name, const char* owner) {
    const passwd* known = ::getpwnam(owner);
    if (!known || ::chown(QFile::encodeName(path(name)).constData(), known->pw_uid, gid_t(-1)) != 0)
        m_isPossible = false;
}

void Postfix::write(const char* name, const QByteArray& text) {
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        m_problem = file.fileName() + ": " + file.errorString();
}

bool Postfix::run(const QString& program, const QStringList& arguments, const QByteArray& input) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardOutputFile(path("output"));  // the daemons keep it open
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool done = process.waitForFinished(postfixPatienceMs) && process.exitCode() == 0;
    if (!done) m_problem = program + ' ' + arguments.join(' ') + ": " + process.errorString() + log();
    return done;
}

QByteArray Postfix::log() const {
    QByteArray text;
    for (const char* name : {"output", "log"}) {
        QFile file(path(name));
        if (file.open(QIODevice::ReadOnly)) text += file.readAll();
    }
    return text;
}

QByteArrayList Postfix::mail(qsizetype count) const {
    const QDir box(path("mail/box/new"));
    for (int waited = 0; waited < postfixPatienceMs; waited += askAgainMs) {
        const QStringList names = QDir(box.path()).entryList(QDir::Files);
        if (names.size() >= count) {
            QByteArrayList messages;
            for (const QString& name : names) {
                QFile file(box.filePath(name));
                if (file.open(QIODevice::ReadOnly)) messages += file.readAll();
            }
            return messages;
        }
        QThread::msleep(askAgainMs);
    }
    return {};
}

}  // namespace testing_support

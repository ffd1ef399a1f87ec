// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop's setting of high contrast, sent by a settings portal on a private bus.
#include <QDBusConnection>
#include <QDBusVariant>
#include <QProcess>
#include <QTest>

#include "platform/ui/Contrast.h"
#include "support/TestClass.h"

namespace contrast_test {

class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

  public:
    uint contrast = 0;

  public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key) const {
        const bool known = group == "org.freedesktop.appearance" && key == "contrast";
        // One variant inside another, as portals answer.
        return QDBusVariant(QVariant::fromValue(QDBusVariant(known ? contrast : 7u)));
    }
};

class TestContrast : public QObject {
    Q_OBJECT

    QProcess m_bus;
    Portal m_portal;
    int m_changes = 0;

  private Q_SLOTS:
    void initTestCase() {
        m_bus.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        QVERIFY(m_bus.waitForStarted());
        QVERIFY(m_bus.waitForReadyRead());
        const QByteArray address = m_bus.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QDBusConnection bus = QDBusConnection::connectToBus(QString::fromLatin1(address), "portal");
        QVERIFY(bus.registerObject("/org/freedesktop/portal/desktop", &m_portal,
                                   QDBusConnection::ExportAllSlots));
        QVERIFY(bus.registerService("org.freedesktop.portal.Desktop"));
    }
    void cleanupTestCase() {
        m_bus.kill();
        m_bus.waitForFinished();
    }

    void theDesktopsAnswerIsTakenAndReportedOnce() {
        m_portal.contrast = 1;
        QVERIFY(!ui::highContrast());
        ui::watchContrast([this] { ++m_changes; });
        QVERIFY2(!ui::highContrast(), "nobody waits for the answer");
        QTRY_VERIFY(ui::highContrast());
        QCOMPARE(m_changes, 1);
    }
};

TEST_CLASS(TestContrast);

}  // namespace contrast_test

#include "contrast_test.moc"

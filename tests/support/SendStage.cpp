// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/SendStage.h"

#include <QLocale>

#include "modules/core/bGlobal.h"
#include "modules/lang/bVAR.h"
#include "platform/system/Clock.h"
#include "platform/ui/Unattended.h"
#include "windows/core/Evento.h"

namespace testing_support {

namespace {

QList<SampleFolder::Columns> rowsFor(const QStringList& addresses) {
    QList<SampleFolder::Columns> rows;
    for (const QString& address : addresses)
        rows.append({{"rgs", QString("Ditta %1").arg(rows.size(), 4, 10, QChar('0'))}, {"email", address}});
    return rows;
}

}  // namespace

SendStage::SendStage(const QStringList& recipients) : SendStage(rowsFor(recipients)) {}

SendStage::SendStage(std::initializer_list<const char*> recipients)
    : SendStage(QStringList(recipients.begin(), recipients.end())) {}

SendStage::SendStage(const QList<SampleFolder::Columns>& recipients) {
    QLocale::setDefault(QLocale("it_IT"));
    ui::setUnattended(true);
    ui::MessageDialog::reset();
    ui::FileDialog::reset();
    sostituisciTermine([this](int status) { ends.append(status); });
    nodoCorrente.reset();
    bVAR::Attenzione = "Attenti";
    bVAR::goSecondi = "secondi";
    bVAR::goApriEmail = "Apri il messaggio";
    bVAR::FileAssistenza = "File assistenza";
    bVAR::AddDestinatario = "Nessun destinatario";
    if (!recipients.isEmpty()) folder.addRecipients(recipients);
    folder.addAccount(SampleFolder::loopbackAccount(sink.port()));
    window = std::make_unique<frmInvia>([] {});
    window->complete();
    open();
}

SendStage::~SendStage() {
    window.reset();
    sostituisciTermine({});
}

void SendStage::open() {
    window->SetPrgBar();
    window->CaricaDati();
    window->show();
    if (!QTest::qWaitForWindowExposed(window.get())) qFatal("the send window does not show");
}

void SendStage::pick(const QString& path) {
    ui::FileDialog::queue(path);
    click("cmdFile");
}

void SendStage::click(const char* name) {
    auto* button = control<QAbstractButton>(name);
    const QPoint place =
        qobject_cast<QCheckBox*>(button) ? QPoint(10, button->height() / 2) : button->rect().center();
    QTest::mouseClick(button, Qt::LeftButton, {}, place);
}

void SendStage::start() {
    click("cmdInvia");
    if (timer().isActive()) timer().setInterval(1);
}

bool SendStage::waitForEnd() {
    return QTest::qWaitFor([this] { return enabled("cmdInvia") && !timer().isActive(); }, 60000);
}

bool SendStage::run() {
    pick();
    start();
    return waitForEnd();
}

QByteArray SendStage::header(int message, const QByteArray& name) const {
    const QByteArray data = "\r\n" + sink.messages().at(message).data;
    const QByteArray key = "\r\n" + name + ": ";
    const qsizetype at = data.indexOf(key);
    if (at < 0) return {};
    return data.mid(at + key.size(), data.indexOf("\r\n", at + 2) - at - key.size());
}

EventWatch::EventWatch(QObject* watched, QEvent::Type type, std::function<void()> action)
    : m_type(type), m_action(std::move(action)) {
    watched->installEventFilter(this);
}

bool EventWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == m_type) {
        watched->removeEventFilter(this);
        m_action();
    }
    return false;
}

TestClock::TestClock() : m_now(QDate(2026, 3, 2), QTime(9, 0)) {
    sys::clock().now = [this] { return m_now; };
    sys::clock().sleep = [this](std::chrono::milliseconds time) {
        m_slept += static_cast<int>(time.count());
        m_now = m_now.addMSecs(time.count());
        if (m_onSleep) m_onSleep();
    };
}

TestClock::~TestClock() {
    sys::clock() = sys::systemClock();
}

void TestClock::advance(int seconds) {
    m_now = m_now.addSecs(seconds);
}

}  // namespace testing_support

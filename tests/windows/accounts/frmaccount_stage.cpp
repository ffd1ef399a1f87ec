// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/accounts/frmaccount_stage.h"

#include <QFile>
#include <QLocale>

#include "modules/accounts/bBinary.h"
#include "modules/lang/bVAR.h"
#include "platform/ui/Unattended.h"
#include "windows/core/Evento.h"

namespace testing_support {

AccountStage::AccountStage(const QStringList& records) {
    QLocale::setDefault(QLocale("it_IT"));
    ui::setUnattended(true);
    ui::MessageDialog::reset();
    sostituisciTermine([this](int status) { ends.append(status); });
    bVAR::Attenzione = "Attenti";
    bVAR::ImpossibileContinuare = "Non si continua:";
    bVAR::accNomeVisual = "nome";
    bVAR::accEmailCorretta = "email";
    bVAR::accServerSMTP = "server";
    bVAR::accPort = "porta";
    bVAR::accAutenticazione = "autenticazione";
    writeRecords(records);
    reopen();
}

AccountStage::~AccountStage() {
    window.reset();
    sostituisciTermine({});
}

void AccountStage::reopen() {
    window = std::make_unique<frmAccount>();
    window->complete();
    window->show();
    if (!QTest::qWaitForWindowActive(window.get())) qFatal("the account window does not show");
}

void AccountStage::click(const QString& name) {
    auto* button = control<QAbstractButton>(name);
    const QPoint place =
        qobject_cast<QCheckBox*>(button) ? QPoint(10, button->height() / 2) : button->rect().center();
    QTest::mouseClick(button, Qt::LeftButton, {}, place);
}

void AccountStage::check(const QString& name, bool value) {
    if (checked(name) != value) click(name);
    if (checked(name) != value) qFatal("%s cannot be clicked", qPrintable(name));
}

void AccountStage::fill(const QStringList& fields) {
    check("chkUsaSMTP", true);
    check("chkAutentick", fields[4] == "1");
    check("chkUsaSMTP", fields[9] == "1");
    const char* const boxes[] = {"txtNomeVisual", "txtEmail",    "txtServerSMTP", "txtServerPORT", nullptr,
                                 "txtUsername",   "txtPassword", nullptr,         "txtOutPort"};
    for (qsizetype i = 0; i < qsizetype(std::size(boxes)); ++i)
        if (boxes[i]) type(boxes[i], fields[i]);
    control<QComboBox>("cmbSaluto")->setCurrentText(fields[7]);
}

QStringList AccountStage::entries() const {
    QStringList texts;
    for (int i = 0; i < list().count(); ++i)
        texts << list().item(i)->text();
    return texts;
}

void AccountStage::press(int position, Qt::MouseButton button) {
    const QRect place = list().visualItemRect(list().item(position));
    QTest::mouseClick(list().viewport(), button, {}, QPoint(20, place.center().y()));
}

void AccountStage::key(int code) {
    QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier);
    QApplication::sendEvent(&list(), &press);
}

QStringList AccountStage::records() const {
    QStringList decoded;
    for (const QByteArray& line : file().split('\n'))
        if (!line.isEmpty()) decoded += BitInTesto(QString::fromLatin1(line.chopped(1)));
    return decoded;
}

QByteArray AccountStage::file() const {
    QFile content(path());
    if (!content.open(QIODevice::ReadOnly)) qFatal("cannot read Account.imp");
    return content.readAll();
}

void AccountStage::writeRecords(const QStringList& records) const {
    QFile content(path());
    if (!content.open(QIODevice::WriteOnly)) qFatal("cannot write Account.imp");
    for (const QString& record : records)
        content.write(TestoInBit(record).toLatin1() + "\r\n");
}

QString AccountStage::box() const {
    const auto shown = ui::MessageDialog::shown();
    return shown.size() == 1 ? shown.constFirst().text : QString();
}

}  // namespace testing_support

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include "modules/store/Destinatario.h"
#include "platform/contacts/ContactFolder.h"
#include "platform/ui/ProgressCounter.h"
#include "windows/import/frmScelta.h"
#include "windows/import/import_stage.h"

namespace testing_support {

inline QDialog& groupQuestion() {
    return finestre::Scelta();
}

inline constexpr const char* twoCards =
    "BEGIN:VCARD\nFN:Ada\nEMAIL:ada@example.it\nEND:VCARD\nBEGIN:VCARD\nFN:Eva\nEMAIL:eva@example.it\nEND:"
    "VCARD\n";

inline QByteArray contactLine(const QString& email, const QString& company) {
    const QJsonObject item{{"Email1Address", email}, {"CompanyName", company}};
    return QJsonDocument(item).toJson(QJsonDocument::Compact) + '\n';
}

/// The main window with an address book and an Outlook of its own; the question for the group is answered by
/// the root as the selected group, unless said otherwise.
class ContactStage : public ImportStage {
  public:
    ContactStage()
        : ImportStage(groupQuestion), m_home(qgetenv("HOME")), m_config(qgetenv("XDG_CONFIG_HOME")) {
        qputenv("HOME", folder.path("casa").toUtf8());
        qputenv("XDG_CONFIG_HOME", folder.path("casa/.config").toUtf8());
        if (!QDir().mkpath(folder.path("casa/Documents")) || !QDir().mkpath(folder.path("data/rubrica")))
            qFatal("no folders");
        QObject::connect(progress(), &ui::ProgressCounter::valueChanged, &m_listening, [this](double value) {
            counted.append(value);
            if (step) step(value);
        });
    }
    ~ContactStage() {
        contacts::setOutlookHelper({});
        qputenv("HOME", m_home);
        m_config.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", m_config);
    }

    /// Runs a command and presses a button of the question that it asks.
    void import(const QString& command, const QString& button = "cmdOK") {
        window();
        QTimer::singleShot(0, [button] { finestre::Scelta().findChild<QPushButton*>(button)->click(); });
        this->command(command);
    }
    void chooseRoot() { clickNode("K0"); }
    void chooseNewGroup(const QString& name) {
        window();
        finestre::Scelta().findChild<QRadioButton*>("opt(1)")->click();
        finestre::Scelta().findChild<QLineEdit*>("txtCartella")->setText(name);
    }

    void writeCards(const QByteArray& cards) { write("data/rubrica/rubrica.vcf", cards); }

    /// Replaces Outlook's helper by a script that prints these lines and then runs shell commands.
    void writeHelper(const QByteArray& lines, const QByteArray& ending = {}) {
        write("data/posta.pst", "x");
        write("righe", lines);
        const QString helper = write("aiutante", "#!/bin/sh\ncat \"${0%/*}/righe\"\n" + ending);
        if (!QFile::setPermissions(helper, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
            qFatal("no helper");
        contacts::setOutlookHelper(helper);
    }

    QJsonArray rows() const {
        QJsonArray found;
        for (int i = 0; i < recipients(); ++i) {
            QJsonObject row;
            for (const schema::Campo field : schema::ordineTabella)
                row[destinatario::NomeColonna(field)] = inserted(destinatario::NomeColonna(field)).at(i);
            found.append(row);
        }
        return found;
    }

    QList<double> counted;             ///< the values that the counter of the status bar went through
    std::function<void(double)> step;  ///< called at each

    double progressNow() { return progress()->value(); }
    double progressMaximum() { return progress()->maximum(); }

  private:
    ui::ProgressCounter* progress() { return window().Commands().GetProgress("stcProgress"); }

    QByteArray m_home;
    QByteArray m_config;
    QObject m_listening;  // ends before what it writes to
};

}  // namespace testing_support

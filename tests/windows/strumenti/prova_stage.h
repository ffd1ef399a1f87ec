// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>
#include <QPlainTextEdit>

#include "platform/html/HtmlView.h"
#include "support/SendStage.h"
#include "windows/strumenti/frmProva.h"

namespace testing_support {

/// The window "Prova messaggio" over the surroundings of a send window: a program folder with recipients, one
/// account that leads to a loopback server. It is shown, though not modally.
class ProvaStage : public SendStage {
  public:
    explicit ProvaStage(const QList<SampleFolder::Columns>& recipients) : SendStage(recipients) {}

    QString editorFile;
    QString sendFile;

    frmProva& prova() {
        if (!m_window) {
            m_window = std::make_unique<frmProva>(
                frmProva::Vicini{[this] { return editorFile; }, [this] { return sendFile; }});
            m_window->Carica();
            m_window->show();
            if (!QTest::qWaitForWindowExposed(m_window.get())) qFatal("the window does not show");
        }
        return *m_window;
    }
    template <class Control>
    Control* its(const char* name) {
        auto* found = prova().findChild<Control*>(name);
        if (!found) qFatal("no control %s", name);
        return found;
    }
    QString text(const char* name) { return its<QLabel>(name)->text(); }
    QString line(const char* name) { return its<QLineEdit>(name)->text(); }
    void press(const char* name) { QTest::mouseClick(its<QPushButton>(name), Qt::LeftButton); }
    /// Chooses a new account that leads to a server on this port of loopback. To be called before
    /// the window is there.
    void useServer(quint16 port) {
        Account another = SampleFolder::loopbackAccount(port);
        another.txtNomeVisual = "Altro";
        folder.addAccount(another);
        auto* accounts = its<QComboBox>("cmbAccount");
        QTest::keyClick(accounts, Qt::Key_Down);
        if (!accounts->currentText().startsWith("Altro")) qFatal("the account is not there");
    }
    /// Waits until the values of all recipients are checked.
    bool counted() {
        return QTest::qWaitFor([this] { return !its<QTimer>("tmrControllo")->isActive(); }, 60000);
    }
    /// The findings as they are listed.
    QStringList findings() {
        QStringList texts;
        const auto* list = its<QListWidget>("lstRilievi");
        for (int i = 0; i < list->count(); ++i)
            texts << list->item(i)->text();
        return texts;
    }
    /// The place in the list of the finding that contains the text; -1 for none.
    int finding(const QString& part) {
        const QStringList texts = findings();
        for (qsizetype i = 0; i < texts.size(); ++i)
            if (texts[i].contains(part)) return static_cast<int>(i);
        return -1;
    }
    /// Sends the test copy and waits for its outcome.
    bool sendCopy() {
        press("cmdInviaProva");
        return QTest::qWaitFor([this] { return its<QPushButton>("cmdInviaProva")->isEnabled(); }, 60000);
    }

  private:
    std::unique_ptr<frmProva> m_window;
};

inline QList<SampleFolder::Columns> threeRecipients() {
    return {{{"rgs", "Alfa"}, {"email", "alfa@x.it"}, {"nom", "Anna"}},
            {{"rgs", "Beta"}, {"email", "beta@x.it"}, {"nom", QString()}},
            {{"rgs", "Gamma"}, {"email", "gamma@x.it"}, {"nom", "Gino"}}};
}

}  // namespace testing_support

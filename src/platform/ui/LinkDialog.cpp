// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/LinkDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "platform/text/Words.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogForm.h"

namespace ui {

namespace {

enum Kind { Web = 0, Mail = 1 };
const QString mailScheme = QStringLiteral("mailto:");

}  // namespace

LinkDialog::LinkDialog(QWidget* parent, const HtmlView::LinkInfo& link, bool withText, const Offers& offers)
    : QDialog(parent),
      m_kind(choiceField("cmbKind", {Words::tr("Indirizzo web"), Words::tr("Posta elettronica")}, this)),
      m_address(textField("txtAddress", this)),
      m_unsubscribes(
          named(new QCheckBox(Words::tr("Collegamento di &disiscrizione"), this), "chkUnsubscribes")),
      m_text(textField("txtText", this)) {
    setObjectName("linkDialog");
    setWindowTitle(Words::tr("Collegamento"));
    const QString& address = link.address;
    const bool mail = address.startsWith(mailScheme, Qt::CaseInsensitive);
    m_kind->setCurrentIndex(mail ? Mail : Web);
    m_address->setText(mail ? address.mid(mailScheme.size()) : address);
    m_unsubscribes->setChecked(link.unsubscribes);
    m_unsubscribes->setToolTip(
        Words::tr("I programmi di posta lo offrono al destinatario per disiscriversi con un clic"));
    QComboBox* offered = choiceField("cmbOffers", {Words::tr("Inserisci nell'indirizzo...")}, this);
    for (const auto& [caption, text] : offers)
        offered->addItem(caption, text);
    connect(offered, &QComboBox::activated, this, [this, offered](int index) {
        m_address->insert(offered->itemData(index).toString());
        offered->setCurrentIndex(0);
        m_address->setFocus();
    });

    DialogForm form(this);
    form.addField(Words::tr("&Tipo:"), m_kind);
    form.addField(Words::tr("&Indirizzo:"), m_address);
    form.addField(Words::tr("&Variabile:"), offered);
    m_text->setVisible(withText);
    if (withText) form.addField(Words::tr("T&esto:"), m_text);
    form.addField({}, m_unsubscribes);
    QPushButton* ok = form.addButton(Words::tr("&OK"), "cmdOk");
    if (!address.isEmpty()) {
        QPushButton* remove = form.addButton(Words::tr("Ri&muovi"), "cmdRemove");
        connect(remove, &QPushButton::clicked, this, [this] {
            m_address->clear();
            accept();
        });
    }
    QPushButton* cancel = form.addButton(Words::tr("&Annulla"), "cmdCancel");
    form.finish(ok, 460);
    m_address->setFocus();
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    const auto enable = [this, ok] { ok->setEnabled(!m_address->text().trimmed().isEmpty()); };
    connect(m_address, &QLineEdit::textChanged, this, enable);
    enable();
}

HtmlView::LinkInfo LinkDialog::link() const {
    return {address(), m_unsubscribes->isChecked()};
}

QString LinkDialog::address() const {
    const QString address = m_address->text().trimmed();
    const bool prefixed = address.startsWith(mailScheme, Qt::CaseInsensitive);
    return m_kind->currentIndex() == Mail && !address.isEmpty() && !prefixed ? mailScheme + address : address;
}

QString LinkDialog::text() const {
    return m_text->text();
}

}  // namespace ui

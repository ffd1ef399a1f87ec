// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/FindDialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/text/Words.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogForm.h"

namespace ui {

FindDialog::FindDialog(QWidget* parent, Search search)
    : QDialog(parent),
      m_search(std::move(search)),
      m_text(textField("txtFind", this)),
      m_case(named(new QCheckBox(Words::tr("&Maiuscole e minuscole"), this), "chkCase")),
      m_answer(named(new QLabel(this), "lblAnswer")) {
    setObjectName("findDialog");
    setWindowTitle(Words::tr("Trova"));
    DialogForm form(this);
    form.addField(Words::tr("&Testo:"), m_text);
    form.addField({}, m_case);
    form.addField({}, m_answer);
    QPushButton* next = form.addButton(Words::tr("Trova &successivo"), "cmdNext");
    QPushButton* previous = form.addButton(Words::tr("Trova &precedente"), "cmdPrevious");
    QPushButton* close = form.addButton(Words::tr("&Chiudi"), "cmdClose");
    form.finish(next, 420);
    m_answer->setAccessibleName(Words::tr("Esito"));
    connect(next, &QPushButton::clicked, this, [this] { find(false); });
    connect(previous, &QPushButton::clicked, this, [this] { find(true); });
    connect(close, &QPushButton::clicked, this, &QDialog::hide);
    const auto enable = [this, next, previous] {
        next->setEnabled(!m_text->text().isEmpty());
        previous->setEnabled(!m_text->text().isEmpty());
        m_answer->clear();
    };
    connect(m_text, &QLineEdit::textChanged, this, enable);
    enable();
}

void FindDialog::present() {
    show();
    raise();
    activateWindow();
    m_text->setFocus();
    m_text->selectAll();
}

void FindDialog::find(bool backwards) {
    const Result<bool> found = m_search(m_text->text(), m_case->isChecked(), backwards);
    if (!found.ok())
        m_answer->setText(found.status().text());
    else
        m_answer->setText(found.value() ? QString() : Words::tr("Testo non trovato."));
}

}  // namespace ui

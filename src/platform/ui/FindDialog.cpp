#include "platform/ui/FindDialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/ui/Controls.h"
#include "platform/ui/DialogForm.h"

namespace ui {

FindDialog::FindDialog(QWidget* parent, Search search)
    : QDialog(parent),
      m_search(std::move(search)),
      m_text(textField("txtFind", this)),
      m_case(named(new QCheckBox("&Maiuscole e minuscole", this), "chkCase")),
      m_answer(named(new QLabel(this), "lblAnswer")) {
    setObjectName("findDialog");
    setWindowTitle("Trova");
    DialogForm form(this);
    form.addField("&Testo:", m_text);
    form.addField({}, m_case);
    form.addField({}, m_answer);
    QPushButton* next = form.addButton("Trova &successivo", "cmdNext");
    QPushButton* previous = form.addButton("Trova &precedente", "cmdPrevious");
    QPushButton* close = form.addButton("&Chiudi", "cmdClose");
    form.finish(next, 420);
    m_answer->setAccessibleName("Esito");
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
        m_answer->setText(found.value() ? QString() : "Testo non trovato.");
}

}  // namespace ui
